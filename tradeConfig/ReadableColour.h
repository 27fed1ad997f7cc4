#pragma once

#include <QColor>

class QPalette;

namespace ReadableColour {

/// @p colour, made so much darker or lighter that a text can be read on @p ground: a contrast of at
/// least 4.5 to 1 as WCAG 2.1 counts it. Hue and saturation stay, and a colour that can be read.
QColor on(const QColor& ground, const QColor& colour);

/// The highlight of @p palette for a ring around what has the focus, to be seen on a field, on a
/// button and on the window.
QColor focusRing(const QPalette& palette);

} // namespace ReadableColour
