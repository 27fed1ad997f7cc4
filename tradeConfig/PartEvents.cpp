#include "tradeConfig/PartEvents.h"

#include <QWidget>

namespace {

void send(QAccessibleEvent&& event, int part)
{
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void PartEvents::tell(QWidget& widget, QAccessible::Event type, int part)
{
    if (QAccessible::isActive())
        send(QAccessibleEvent(&widget, type), part);
}

void PartEvents::tellEach(QWidget& widget, QAccessible::Event type, int count)
{
    for (int part = 0; part < count; ++part)
        tell(widget, type, part);
}

// Twice, as a changed state and as a selection: platforms differ in which of them they pass on.
void PartEvents::tellSelection(QWidget& widget, int from, int to)
{
    if (from == to || !QAccessible::isActive())
        return;
    QAccessible::State selected;
    selected.selected = true;
    if (from != noPart) {
        send(QAccessibleEvent(&widget, QAccessible::SelectionRemove), from);
        send(QAccessibleStateChangeEvent(&widget, selected), from);
    }
    if (to != noPart) {
        send(QAccessibleEvent(&widget, QAccessible::Selection), to);
        send(QAccessibleStateChangeEvent(&widget, selected), to);
    }
}
