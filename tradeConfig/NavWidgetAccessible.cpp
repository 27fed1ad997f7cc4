#include "tradeConfig/NavWidgetAccessible.h"

#include "tradeConfig/AccessibleFactory.h"
#include "tradeConfig/NavWidget.h"

void NavWidgetAccessible::install()
{
    AccessibleFactory::install<CNavWidget, NavWidgetAccessible>();
}

NavWidgetAccessible::NavWidgetAccessible(CNavWidget* list)
    : PartsAccessible(list, QAccessible::List)
{
}

CNavWidget* NavWidgetAccessible::list() const { return static_cast<CNavWidget*>(object()); }

int NavWidgetAccessible::childCount() const { return isValid() ? list()->count : 0; }

int NavWidgetAccessible::generation() const { return list()->m_fillings; }

QString NavWidgetAccessible::partName(int index) const { return list()->items.value(index); }

QRectF NavWidgetAccessible::partRect(int index) const { return list()->entryRect(index); }

QAccessible::Role NavWidgetAccessible::partRole(int) const { return QAccessible::ListItem; }

void NavWidgetAccessible::addPartState(int index, QAccessible::State& state) const
{
    state.selectable = true;
    state.selected = index == list()->selected;
    // As painted: the highlight rests on the selected entry when the mouse is elsewhere.
    state.hotTracked = index == list()->hover && !state.selected;
}

bool NavWidgetAccessible::canPress(int) const { return true; }

void NavWidgetAccessible::press(int index) { list()->press(index); }

int NavWidgetAccessible::partAt(QPoint point) const { return list()->entryAt(point.y()); }
