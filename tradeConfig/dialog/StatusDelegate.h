#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

/// Paints an item's text in the colour of its foreground, in a shade that can be read on what the
/// style paints behind it, in a selected row too. Items without a foreground are painted as ever.
class StatusDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Has one paint @p column of @p view, if none does yet.
    static void paintColumn(QAbstractItemView& view, int column);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
