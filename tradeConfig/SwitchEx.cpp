#include "tradeConfig/SwitchEx.h"

#include "tradeConfig/PartEvents.h"
#include "tradeConfig/SwitchExAccessible.h"

#include <QPointer>

#include <utility>

const QString SWITCH_ARROW_LEFT = QStringLiteral("◀");
const QString SWITCH_ARROW_RIGHT = QStringLiteral("▶");
const QString SWITCH_ARROW_UP = QStringLiteral("▲");
const QString SWITCH_ARROW_DOWN = QStringLiteral("▼");

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
    return append(std::move(item), atEnd);
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
    return append(std::move(item), atEnd);
}

SwitchItem* CSwitchEx::AddSeparator(int thickness, bool atEnd)
{
    auto item = std::make_unique<SwitchItem>();
    item->isSeparator = true;
    item->rect.setSize(orientation == Qt::Horizontal ? QSize(thickness, height())
                                                     : QSize(width(), thickness));
    return append(std::move(item), atEnd);
}

SwitchItem* CSwitchEx::append(std::unique_ptr<SwitchItem> item, bool atEnd)
{
    SwitchItem* const added = item.release();
    (atEnd ? endItems : items).append(added);
    ReLayout();
    const int index = atEnd ? items.size() : items.size() - 1; // the new end item is the innermost
    PartEvents::tell(*this, QAccessible::ObjectCreated, index);
    if (index + 1 < partCount()) // what stands behind it has moved by one
        PartEvents::tell(*this, QAccessible::ObjectReorder, PartEvents::noPart);
    update();
    return added;
}

SwitchItem* CSwitchEx::findLabel(const QString& label) const
{
    for (const auto* list : {&items, &endItems}) {
        for (SwitchItem* item : *list) {
            if (item->label == label)
                return item;
        }
    }
    return nullptr;
}

bool CSwitchEx::owns(SwitchItem* item) const
{
    return items.contains(item) || endItems.contains(item);
}

int CSwitchEx::partCount() const { return items.size() + endItems.size(); }

int CSwitchEx::partIndex(SwitchItem* item) const
{
    const int main = items.indexOf(item);
    if (main >= 0)
        return main;
    const int end = endItems.indexOf(item);
    return end >= 0 ? partCount() - 1 - end : PartEvents::noPart;
}

SwitchItem* CSwitchEx::part(int index) const
{
    return index < items.size() ? items.value(index) : endItems.value(partCount() - 1 - index);
}

bool CSwitchEx::ModifySwitch(const QString& oldLabel, const QString& newLabel,
                             std::function<void()> callback)
{
    SwitchItem* const item = findLabel(oldLabel);
    if (!item)
        return false;
    item->label = newLabel;
    item->callback = std::move(callback);
    PartEvents::tell(*this, QAccessible::NameChanged, partIndex(item));
    update();
    return true;
}

bool CSwitchEx::ModifyImageSwitch(const QString& oldLabel, const QString& newLabel,
                                  const QString& image, const QString& selImage,
                                  std::function<void()> callback)
{
    SwitchItem* const item = findLabel(oldLabel);
    if (!item)
        return false;
    item->label = newLabel;
    item->image = image;
    item->selImage = selImage;
    item->callback = std::move(callback);
    PartEvents::tell(*this, QAccessible::NameChanged, partIndex(item));
    update();
    return true;
}

void CSwitchEx::SetItemLabel(SwitchItem* item, const QString& label)
{
    if (!owns(item))
        return;
    item->label = label;
    PartEvents::tell(*this, QAccessible::NameChanged, partIndex(item));
    update();
}

void CSwitchEx::ClearAll()
{
    PartEvents::tellEach(*this, QAccessible::ObjectDestroyed, partCount());
    qDeleteAll(items);
    items.clear();
    qDeleteAll(endItems);
    endItems.clear();
    ++m_clearings;
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

void CSwitchEx::select(SwitchItem* item)
{
    SwitchItem* const before = std::exchange(curSel, item);
    PartEvents::tellSelection(*this, partIndex(before), partIndex(item));
}

void CSwitchEx::SetCurSel(SwitchItem* item, bool notify)
{
    if (!owns(item))
        return;
    select(item);
    const QPointer<CSwitchEx> alive = this; // an action may delete the bar
    if (notify)
        DoClickItem();
    if (alive)
        update();
}
