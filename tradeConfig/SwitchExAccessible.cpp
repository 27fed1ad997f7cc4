#include "tradeConfig/SwitchExAccessible.h"

#include "tradeConfig/SwitchEx.h"

namespace {

// Items are only ever appended, so that their place in their list tells them apart until the bar
// is cleared: main items count up from 0, end items down from -1.
int endKey(int index) { return -1 - index; }

QAccessibleInterface* create(const QString& className, QObject* object)
{
    if (className != QLatin1String("CSwitchEx"))
        return nullptr;
    auto* const bar = qobject_cast<CSwitchEx*>(object);
    return bar ? new SwitchExAccessible(bar) : nullptr;
}

} // namespace

void SwitchExAccessible::install() { static const AccessibleFactory factory(&create); }

SwitchExAccessible::SwitchExAccessible(CSwitchEx* bar)
    : PartsAccessible(bar, QAccessible::PageTabList)
{
}

CSwitchEx* SwitchExAccessible::bar() const { return static_cast<CSwitchEx*>(object()); }

SwitchItem* SwitchExAccessible::item(int key) const
{
    return key >= 0 ? bar()->items.value(key) : bar()->endItems.value(endKey(key));
}

int SwitchExAccessible::childCount() const
{
    return isValid() ? bar()->items.size() + bar()->endItems.size() : 0;
}

int SwitchExAccessible::keyOf(int index) const
{
    return index < bar()->items.size() ? index : endKey(childCount() - 1 - index);
}

int SwitchExAccessible::indexOf(int key) const
{
    return key >= 0 ? key : childCount() - 1 - endKey(key);
}

bool SwitchExAccessible::hasPart(int key) const { return item(key) != nullptr; }

QString SwitchExAccessible::partName(int key) const { return item(key)->label; }

QRectF SwitchExAccessible::partRect(int key) const { return item(key)->rect; }

QAccessible::Role SwitchExAccessible::partRole(int key) const
{
    return item(key)->isSeparator ? QAccessible::Separator : QAccessible::PageTab;
}

void SwitchExAccessible::addPartState(int key, QAccessible::State& state) const
{
    const SwitchItem* const known = item(key);
    state.selectable = !known->isSeparator;
    state.selected = known == bar()->curSel;
    state.hotTracked = known == bar()->hoverItem;
    state.hasPopup = known->menu != nullptr;
    state.offscreen
        = key >= 0 && (key < bar()->firstIndex || key >= bar()->firstIndex + bar()->visibleCount);
}

bool SwitchExAccessible::canPress(int key) const { return !item(key)->isSeparator; }

void SwitchExAccessible::press(int key) { bar()->SetCurSel(item(key), true); }

bool SwitchExAccessible::partAt(QPoint point, int& key) const
{
    SwitchItem* const hit = bar()->HitTest(point, false);
    if (!hit)
        return false;
    const int main = bar()->items.indexOf(hit);
    key = main >= 0 ? main : endKey(bar()->endItems.indexOf(hit));
    return true;
}
