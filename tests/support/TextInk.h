#pragma once

#include <QImage>
#include <QRect>

class QWidget;

/// @p widget with its children, @p scale pixels of the device for one of its own.
QImage renderedAt(QWidget& widget, double scale);

/// What a text leaves on the device.
struct TextInk {
    QRect box; ///< of the pixels that are clearly darker than the ground
    qint64 sum = 0; ///< of what the text darkens, in levels of grey
};

/// The dark text in @p area, in the widget's pixels, of @p image: all that differs from the ground
/// at the right edge of its line of pixels.
TextInk textInk(const QImage& image, const QRect& area);

/// The part of the ink of @p widget's text that its edges above and below cut off, 0 to 1. Its
/// window shows the text, and nothing within eight pixels of it.
double cutInk(QWidget& widget, double scale);
