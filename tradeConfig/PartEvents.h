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

/// Something happened to one part, or with noPart to the widget. A part that goes must still
/// be there, one that came must be there already.
void tell(QWidget& widget, QAccessible::Event type, int part);

/// The same happened to each of the first @p count parts.
void tellEach(QWidget& widget, QAccessible::Event type, int count);

/// The selection went from one part to another; either may be noPart. To be called when the
/// widget has changed already. The same part twice tells nothing.
void tellSelection(QWidget& widget, int from, int to);

} // namespace PartEvents
