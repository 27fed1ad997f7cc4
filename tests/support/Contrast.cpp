#include "support/Contrast.h"

#include <algorithm>
#include <cmath>

double luminance(const QColor& colour)
{
    const auto linear
        = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}
