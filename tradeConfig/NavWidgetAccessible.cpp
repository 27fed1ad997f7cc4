#include "tradeConfig/NavWidgetAccessible.h"

#include "tradeConfig/NavWidget.h"

namespace {

QAccessibleInterface* create(const QString& className, QObject* object)
{
    if (className != QLatin1String("CNavWidget"))
        return nullptr;
    auto* const list = qobject_cast<CNavWidget*>(object);
    return list ? new NavWidgetAccessible(list) : nullptr;
}

} // namespace

void NavWidgetAccessible::install() { static const AccessibleFactory factory(&create); }

NavWidgetAccessible::NavWidgetAccessible(CNavWidget* list)
    : PartsAccessible(list, QAccessible::List)
{
}

CNavWidget* NavWidgetAccessible::list() const { return static_cast<CNavWidget*>(object()); }

int NavWidgetAccessible::childCount() const { return isValid() ? list()->count : 0; }

bool NavWidgetAccessible::hasPart(int key) const { return key < list()->count; }

QString NavWidgetAccessible::partName(int key) const { return list()->items.value(key); }

QRectF NavWidgetAccessible::partRect(int key) const { return list()->entryRect(key); }

QAccessible::Role NavWidgetAccessible::partRole(int) const { return QAccessible::ListItem; }

void NavWidgetAccessible::addPartState(int key, QAccessible::State& state) const
{
    state.selectable = true;
    state.selected = key == list()->selected;
    // As painted: the highlight rests on the selected entry when the mouse is elsewhere.
    state.hotTracked = key == list()->hover && !state.selected;
}

bool NavWidgetAccessible::canPress(int) const { return true; }

void NavWidgetAccessible::press(int key) { list()->press(key); }

bool NavWidgetAccessible::partAt(QPoint point, int& key) const
{
    key = list()->entryAt(point.y());
    return hasPart(key) && key >= 0;
}
