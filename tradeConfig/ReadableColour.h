#pragma once

#include <QColor>

namespace ReadableColour {

/// @p colour, made so much darker or lighter that a text can be read on @p ground: a contrast of at
/// least 4.5 to 1 as WCAG 2.1 counts it. Hue and saturation stay, and a colour that can be read.
QColor on(const QColor& ground, const QColor& colour);

} // namespace ReadableColour
