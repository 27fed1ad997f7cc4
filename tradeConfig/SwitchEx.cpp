#include "tradeConfig/SwitchEx.h"

#include "tradeConfig/SwitchAxis.h"
#include "tradeConfig/SwitchExAccessible.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

const QString SWITCH_ARROW_LEFT = QStringLiteral("◀");
const QString SWITCH_ARROW_RIGHT = QStringLiteral("▶");
const QString SWITCH_ARROW_UP = QStringLiteral("▲");
const QString SWITCH_ARROW_DOWN = QStringLiteral("▼");

namespace {

constexpr double moreLength = 38; // both scroll buttons together, along the bar
constexpr double textExtraWidth = 30; // of a text item in a horizontal bar
constexpr double textExtraHeight = 10; // of a text item in a vertical bar

} // namespace

CSwitchEx::CSwitchEx(QWidget* parent, Qt::Orientation barOrientation, QMargins itemPadding)
    : QWidget(parent)
    , orientation(barOrientation)
    , padding(itemPadding)
{
    setMouseTracking(true);
    SwitchExAccessible::install();
}

void CSwitchEx::changeMode(CSwitchEx::SwitchMode newMode)
{
    setFocusPolicy(Qt::NoFocus);
    mode = newMode;
    ReLayout();
    update();
}

void CSwitchEx::setItemSize(int size)
{
    itemSize = size;
    ReCalcItemSize();
    update();
}

void CSwitchEx::setOrientation(Qt::Orientation newOrientation)
{
    orientation = newOrientation;
    ReLayout();
    update();
}

void CSwitchEx::setBackgroundColorEnable(bool enable)
{
    backgroundEnable = enable;
    update();
}

void CSwitchEx::SetPadding(QMarginsF newPadding)
{
    padding = newPadding;
    ReCalcItemSize();
    update();
}

SwitchItem* CSwitchEx::AddNormalSwitch(const QString& label, std::function<void()> callback,
                                       bool atEnd, QMenu* menu)
{
    auto item = std::make_unique<SwitchItem>();
    item->label = label;
    item->callback = std::move(callback);
    item->menu = menu;
    if (itemSize == 0)
        item->rect.setSize(CalcItemSize(item.get()));
    else if (orientation == Qt::Horizontal)
        item->rect.setSize(QSize(itemSize, height()));
    else
        item->rect.setSize(QSize(width(), itemSize));
    return Append(std::move(item), atEnd);
}

SwitchItem* CSwitchEx::AddImageSwitch(const QString& label, const QString& image,
                                      const QString& selImage, std::function<void()> callback,
                                      bool atEnd)
{
    auto item = std::make_unique<SwitchItem>();
    item->label = label;
    item->image = image;
    item->selImage = selImage;
    item->callback = std::move(callback);
    item->isImage = true;
    const QSizeF measured = CalcItemSize(item.get());
    if (orientation == Qt::Horizontal)
        item->rect.setSize(QSize(int(measured.width()), height() / devicePixelRatio()));
    else
        item->rect.setSize(QSize(width() / devicePixelRatio(), int(measured.height())));
    return Append(std::move(item), atEnd);
}

SwitchItem* CSwitchEx::AddSeparator(int thickness, bool atEnd)
{
    auto item = std::make_unique<SwitchItem>();
    item->isSeparator = true;
    item->rect.setSize(orientation == Qt::Horizontal ? QSize(thickness, height())
                                                     : QSize(width(), thickness));
    return Append(std::move(item), atEnd);
}

SwitchItem* CSwitchEx::Append(std::unique_ptr<SwitchItem> item, bool atEnd)
{
    SwitchItem* const added = item.release();
    (atEnd ? endItems : items).append(added);
    ReLayout();
    update();
    return added;
}

SwitchItem* CSwitchEx::FindLabel(const QString& label) const
{
    for (const auto* list : {&items, &endItems}) {
        for (SwitchItem* item : *list) {
            if (item->label == label)
                return item;
        }
    }
    return nullptr;
}

bool CSwitchEx::Owns(SwitchItem* item) const
{
    return items.contains(item) || endItems.contains(item);
}

bool CSwitchEx::ModifySwitch(const QString& oldLabel, const QString& newLabel,
                             std::function<void()> callback)
{
    SwitchItem* const item = FindLabel(oldLabel);
    if (!item)
        return false;
    item->label = newLabel;
    item->callback = std::move(callback);
    SwitchExAccessible::renamed(*this, item);
    update();
    return true;
}

bool CSwitchEx::ModifyImageSwitch(const QString& oldLabel, const QString& newLabel,
                                  const QString& image, const QString& selImage,
                                  std::function<void()> callback)
{
    SwitchItem* const item = FindLabel(oldLabel);
    if (!item)
        return false;
    item->label = newLabel;
    item->image = image;
    item->selImage = selImage;
    item->callback = std::move(callback);
    SwitchExAccessible::renamed(*this, item);
    update();
    return true;
}

void CSwitchEx::SetItemLabel(SwitchItem* item, const QString& label)
{
    if (!Owns(item))
        return;
    item->label = label;
    SwitchExAccessible::renamed(*this, item);
    update();
}

void CSwitchEx::ClearAll()
{
    qDeleteAll(items);
    items.clear();
    qDeleteAll(endItems);
    endItems.clear();
    firstIndex = 0;
    hoverItem = nullptr;
    curSel = nullptr;
    moreShown = false;
    moreRect = QRectF();
    update();
}

SwitchItem* CSwitchEx::GetCurSel(QString& label) const
{
    if (curSel)
        label = curSel->label;
    return curSel;
}

void CSwitchEx::SetCurSel(SwitchItem* item, bool notify)
{
    if (!Owns(item))
        return;
    curSel = item;
    SwitchExAccessible::selected(*this);
    const QPointer<CSwitchEx> alive = this; // an action may delete the bar
    if (notify)
        DoClickItem();
    if (alive)
        update();
}

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
        // The font is this one in every mode, whatever font the mode paints with.
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
    // visibleCount stays: how many main items are painted is what the last other layout counted.
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
double CSwitchEx::PackEndItems()
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
    PackEndItems();
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
    const double available = PackEndItems() - moreLength;
    moreRect = axis.rectangle(available, moreLength, axis.breadth(size()));

    double rest = 0;
    for (int i = firstIndex; i < items.size(); ++i)
        rest += axis.extent(items[i]->rect);
    // The test takes the width in a vertical bar too; the sum does not.
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
    // To the end of the list, beyond the items shown.
    for (int i = firstIndex; i < items.size(); ++i) {
        if (items[i]->rect.contains(point))
            return items[i];
    }
    return nullptr;
}

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
    // The action may clear the bar or delete it: neither the item nor this may be touched after.
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
    curSel = item;
    SwitchExAccessible::selected(*this);
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
