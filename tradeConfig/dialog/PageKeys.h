#pragma once

#include <QObject>
#include <QVector>

class QKeySequence;
class QStackedWidget;

/**
 * Turns the pages by keyboard: the toolkit's keys for the next and the previous child (Ctrl+Tab)
 * go through the groups, Ctrl+PageDown and Ctrl+PageUp through the entries of the visible
 * navigation list. Both wrap around.
 *
 * A group or an entry is chosen by the press action that its bar or list offers to assistive
 * technology, so that everything shows it as after a click. However a page is turned up, the
 * focus never lands in a hotkey cell by itself, where the next key would be captured.
 */
class PageKeys : public QObject {
    Q_OBJECT

public:
    /// One group of pages: its navigation list and the stack that the list turns.
    struct Group {
        QWidget* list;
        QStackedWidget* stack;
    };

    /// @p groups in the order of @p bar's items, which turn @p top. Child of @p dialog.
    PageKeys(QWidget& dialog, QWidget& bar, QStackedWidget& top, QVector<Group> groups);

private:
    void addKeys(const QVector<QKeySequence>& keys, void (PageKeys::*turn)(int), int step);
    void turnGroup(int step);
    void turnPage(int step);

    QWidget& m_bar;
    QStackedWidget& m_top;
    QVector<Group> m_groups;
};
