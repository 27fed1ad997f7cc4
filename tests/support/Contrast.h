#pragma once

#include <QColor>

/// WCAG's relative luminance, 0 (black) to 1 (white).
double luminance(const QColor& colour);

/// WCAG's contrast ratio, 1 (alike) to 21.
double contrast(const QColor& one, const QColor& other);
