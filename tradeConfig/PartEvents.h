#pragma once

#include <QAccessible>

class QWidget;

/**
 * Tells assistive technology what happens to the parts that a widget paints by itself, if any
 * listens. Parts are counted from 0, in the order in which the widget's accessible interface has
 * them as children.
 */
namespace PartEvents {

constexpr int noPart = -1;

/// Something happened to one part.
void tell(QWidget& widget, QAccessible::Event type, int part);

} // namespace PartEvents
