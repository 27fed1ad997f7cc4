#include "tradeConfig/SwitchAxis.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <algorithm>

namespace {

constexpr double moreLength = 38; // both scroll buttons together, along the bar
constexpr double textExtraWidth = 30; // of a text item in a horizontal bar
constexpr double textExtraHeight = 10; // of a text item in a vertical bar

} // namespace

double CSwitchEx::GetMinimumSize() const
{
    const SwitchAxis axis(orientation);
    double longest = 0;
    for (const SwitchItem* item : items)
        longest = std::max(longest, axis.extent(item->rect));
    double ends = 0;
    for (const SwitchItem* item : endItems)
        ends += axis.extent(item->rect);
    return longest + moreLength + ends;
}

double CSwitchEx::GetMaximumSize() const
{
    const SwitchAxis axis(orientation);
    double sum = 0;
    for (const auto* list : {&items, &endItems}) {
        for (const SwitchItem* item : *list)
            sum += axis.extent(item->rect);
    }
    return sum;
}

void CSwitchEx::ReCalcItemSize()
{
    for (const auto* list : {&items, &endItems}) {
        for (SwitchItem* item : *list)
            item->rect.setSize(CalcItemSize(item));
    }
    ReLayout();
}

QSizeF CSwitchEx::CalcItemSize(SwitchItem* item)
{
    using CorvelSkin::CSkin;
    QSizeF size;
    if (item->isImage) {
        // An unknown image may come back as an invalid size.
        size = CSkin::Instance()->GetBitmapSize(item->image).expandedTo(QSizeF(0, 0));
    } else {
        // Always in this font, although some modes paint with another.
        size = CSkin::Instance()->textSize(this, SkinKeys::Font::Switch(), item->label);
        const bool horizontal = orientation == Qt::Horizontal;
        if (item->menu) {
            const QSizeF arrow
                = CSkin::Instance()->textSize(this, SkinKeys::Font::Switch(),
                                              horizontal ? SWITCH_ARROW_DOWN : SWITCH_ARROW_RIGHT);
            size.rwidth() += arrow.width();
            size.setHeight(std::max(size.height(), arrow.height()));
        }
        if (horizontal)
            size = QSizeF(size.width() + textExtraWidth, height());
        else
            size = QSizeF(width(), size.height() + textExtraHeight);
    }
    return size.grownBy(padding);
}

void CSwitchEx::ReLayout()
{
    if (items.isEmpty() && endItems.isEmpty())
        return;
    if (mode == ModeSwitch) {
        ReLayoutSwitch();
        return;
    }
    if (SwitchAxis(orientation).extent(size()) >= GetMaximumSize())
        ReLayoutShowAll();
    else
        ReLayoutMoreButton();
}

void CSwitchEx::ReLayoutSwitch()
{
    // visibleCount is left alone, so that as many main items are painted as before the division.
    firstIndex = 0;
    moreShown = false;
    const SwitchAxis axis(orientation);
    const double length = axis.extent(size());
    const double cell = length / (items.size() + endItems.size());
    QRectF working = rect();
    axis.setExtent(working, cell);
    for (SwitchItem* item : qAsConst(items)) {
        item->rect = working;
        axis.move(working, cell);
    }
    axis.moveFarEdge(working, length);
    for (SwitchItem* item : qAsConst(endItems)) {
        item->rect = working;
        axis.move(working, -cell);
    }
}

// Places the end items from the far edge inwards; returns where the innermost one begins.
double CSwitchEx::packEndItems()
{
    const SwitchAxis axis(orientation);
    double position = axis.extent(size());
    for (SwitchItem* item : qAsConst(endItems)) {
        axis.moveFarEdge(item->rect, position);
        axis.setBreadth(item->rect, axis.breadth(size()));
        position = axis.nearEdge(item->rect);
    }
    return position;
}

void CSwitchEx::ReLayoutShowAll()
{
    moreShown = false;
    moreRect = QRectF();
    firstIndex = 0;
    visibleCount = items.size();
    packEndItems();
    const SwitchAxis axis(orientation);
    double position = 0;
    for (SwitchItem* item : qAsConst(items)) {
        axis.moveNearEdge(item->rect, position);
        axis.setBreadth(item->rect, axis.breadth(size()));
        position = axis.farEdge(item->rect);
    }
}

void CSwitchEx::ReLayoutMoreButton()
{
    const SwitchAxis axis(orientation);
    moreShown = true;
    const double available = packEndItems() - moreLength;
    moreRect = axis.rectangle(available, moreLength, axis.breadth(size()));

    double rest = 0;
    for (int i = firstIndex; i < items.size(); ++i)
        rest += axis.extent(items[i]->rect);
    // A vertical bar adds up heights and compares the previous item's width all the same.
    while (firstIndex > 0 && rest + items[firstIndex - 1]->rect.width() < available) {
        --firstIndex;
        rest += axis.extent(items[firstIndex]->rect);
    }

    visibleCount = 0;
    double position = 0;
    for (int i = firstIndex; i < items.size(); ++i) {
        QRectF& cell = items[i]->rect;
        position += axis.extent(cell);
        if (position > available)
            break;
        ++visibleCount;
        axis.moveFarEdge(cell, position);
        axis.setBreadth(cell, axis.breadth(size()));
    }
}

SwitchItem* CSwitchEx::HitTest(QPointF point, bool click)
{
    if (moreShown && moreRect.contains(point)) {
        if (click) {
            const QPointF centre = moreRect.center();
            DoClickMoreItem(orientation == Qt::Horizontal ? point.x() < centre.x()
                                                          : point.y() < centre.y());
        }
        return nullptr;
    }
    for (SwitchItem* item : qAsConst(endItems)) {
        if (item->rect.contains(point))
            return item;
    }
    // Also the items behind those shown: they keep their last cell and can be hit there.
    for (int i = firstIndex; i < items.size(); ++i) {
        if (items[i]->rect.contains(point))
            return items[i];
    }
    return nullptr;
}
