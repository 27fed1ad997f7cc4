#include "tradeConfig/PartEvents.h"

#include <QWidget>

void PartEvents::tell(QWidget& widget, QAccessible::Event type, int part)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&widget, type);
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
}
