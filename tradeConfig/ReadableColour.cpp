#include "tradeConfig/ReadableColour.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

// A little more than needed: a colour's parts are whole numbers on the screen.
constexpr double wantedContrast = 4.6;

double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(double one, double other)
{
    const auto [dark, light] = std::minmax(one, other);
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

QColor ReadableColour::on(const QColor& ground, const QColor& colour)
{
    const double groundLuminance = luminance(ground);
    if (contrast(luminance(colour), groundLuminance) >= wantedContrast)
        return colour;
    const double hue = std::max(0.0, colour.hslHueF()); // greys have none
    const auto shade = [&](double lightness) {
        return QColor::fromHslF(hue, colour.hslSaturationF(), lightness);
    };
    double unread = colour.lightnessF();
    double read = contrast(0.0, groundLuminance) > contrast(1.0, groundLuminance) ? 0.0 : 1.0;
    while (std::abs(read - unread) > 1.0 / 256.0) {
        const double middle = (read + unread) / 2.0;
        const bool enough = contrast(luminance(shade(middle)), groundLuminance) >= wantedContrast;
        (enough ? read : unread) = middle;
    }
    return shade(read);
}

QColor ReadableColour::focusRing(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::Highlight);
    // The light edges of buttons are nearest to a light ring. The field comes last: where a palette
    // has light and dark grounds, no colour is seen on all of them.
    for (const QPalette::ColorRole ground :
         {QPalette::Light, QPalette::Button, QPalette::Window, QPalette::Base})
        colour = on(palette.color(ground), colour);
    return colour;
}
