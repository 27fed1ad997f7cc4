#include "tradeConfig/SwitchEx.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>

void CSwitchEx::DoClickMoreItem(bool back)
{
    const int before = firstIndex;
    if (back) {
        if (firstIndex > 0)
            --firstIndex;
    } else if (firstIndex + visibleCount < items.size()) {
        ++firstIndex;
    }
    if (firstIndex != before) {
        ReLayout();
        update();
    }
}

void CSwitchEx::DoClickItem()
{
    if (!curSel)
        return;
    if (QMenu* const menu = curSel->menu) {
        if (menu->actions().isEmpty())
            return;
        const QRect screen = QApplication::desktop()->availableGeometry(this);
        const auto global = [this](const QPointF& corner) { return mapToGlobal(corner.toPoint()); };
        const bool horizontal = orientation == Qt::Horizontal;
        const QRectF& cell = curSel->rect;
        menu->adjustSize();
        QRect place = menu->rect();
        place.moveTopLeft(global(horizontal ? cell.bottomLeft() : cell.topRight()));
        if (!screen.contains(place)) {
            const QPoint corner = global(horizontal ? cell.topLeft() : cell.bottomRight());
            place.moveTopLeft(corner - QPoint(0, place.height()));
        }
        menu->popup(place.topLeft());
        return;
    }
    // The action may clear the bar or delete it: the item is not touched after, this only if alive.
    const QPointer<CSwitchEx> alive = this;
    const std::function<void()> action = curSel->callback;
    if (action)
        action();
    if (alive)
        update();
}

void CSwitchEx::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    SwitchItem* const item = HitTest(event->localPos(), false);
    if (!item || item->isSeparator)
        return;
    select(item);
    update();
}

void CSwitchEx::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    SwitchItem* const item = HitTest(event->localPos(), true);
    if (item && item == curSel)
        DoClickItem();
}

void CSwitchEx::mouseMoveEvent(QMouseEvent* event)
{
    hoverItem = HitTest(event->localPos(), false);
    update();
}

void CSwitchEx::leaveEvent(QEvent*)
{
    hoverItem = nullptr;
    update();
}

void CSwitchEx::resizeEvent(QResizeEvent*)
{
    ReLayout();
    update();
}
