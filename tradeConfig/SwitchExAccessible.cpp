#include "tradeConfig/SwitchExAccessible.h"

#include "tradeConfig/AccessibleFactory.h"
#include "tradeConfig/SwitchEx.h"

void SwitchExAccessible::install() { AccessibleFactory::install<CSwitchEx, SwitchExAccessible>(); }

SwitchExAccessible::SwitchExAccessible(CSwitchEx* bar)
    : PartsAccessible(bar, QAccessible::PageTabList)
{
}

CSwitchEx* SwitchExAccessible::bar() const { return static_cast<CSwitchEx*>(object()); }

int SwitchExAccessible::childCount() const { return isValid() ? bar()->partCount() : 0; }

int SwitchExAccessible::generation() const { return bar()->m_clearings; }

// New items come after the main ones and before the end ones. So main items keep their distance
// from the first part, and end items theirs from the last, counted as -1, -2 and so on.
int SwitchExAccessible::keyOf(int index) const
{
    return index < bar()->items.size() ? index : index - childCount();
}

int SwitchExAccessible::indexOf(int key) const { return key >= 0 ? key : key + childCount(); }

QString SwitchExAccessible::partName(int index) const { return bar()->part(index)->label; }

QRectF SwitchExAccessible::partRect(int index) const { return bar()->part(index)->rect; }

QAccessible::Role SwitchExAccessible::partRole(int index) const
{
    return bar()->part(index)->isSeparator ? QAccessible::Separator : QAccessible::PageTab;
}

void SwitchExAccessible::addPartState(int index, QAccessible::State& state) const
{
    const SwitchItem* const item = bar()->part(index);
    state.selectable = !item->isSeparator;
    state.selected = item == bar()->curSel;
    state.hotTracked = item == bar()->hoverItem;
    state.hasPopup = item->menu != nullptr;
    // An item that was scrolled out keeps the cell that it had in sight.
    const int shown = index - bar()->firstIndex;
    if (bar()->moreShown && index < bar()->items.size()
        && (shown < 0 || shown >= bar()->visibleCount))
        state.offscreen = true;
}

bool SwitchExAccessible::canPress(int index) const { return !bar()->part(index)->isSeparator; }

void SwitchExAccessible::press(int index) { bar()->SetCurSel(bar()->part(index), true); }

int SwitchExAccessible::partAt(QPoint point) const
{
    return bar()->partIndex(bar()->HitTest(point, false));
}
