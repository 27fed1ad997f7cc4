#include "tradeConfig/dialog/StatusDelegate.h"

#include "tradeConfig/ReadableColour.h"

#include <QAbstractItemView>
#include <QImage>
#include <QPainter>
#include <QStyle>

namespace {

/// The colour that @p style paints in the middle of @p item, apart from its text.
QColor groundOf(QStyleOptionViewItem item, const QStyle& style)
{
    item.text.clear();
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(item.palette.color(QPalette::Base));
    QPainter painter(&pixel);
    painter.translate(-item.rect.center());
    style.drawControl(QStyle::CE_ItemViewItem, &item, &painter, item.widget);
    return pixel.pixelColor(0, 0);
}

} // namespace

void StatusDelegate::paintColumn(QAbstractItemView& view, int column)
{
    if (!view.itemDelegateForColumn(column))
        view.setItemDelegateForColumn(column, new StatusDelegate(&view));
}

void StatusDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    const QVariant foreground = index.data(Qt::ForegroundRole);
    if (!foreground.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle& style = *item.widget->style();
    const QColor shade
        = ReadableColour::on(groundOf(item, style), foreground.value<QBrush>().color());
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::HighlightedText})
        item.palette.setColor(role, shade);
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
}
