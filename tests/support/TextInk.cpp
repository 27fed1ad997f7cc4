#include "TextInk.h"

#include <QWidget>

QImage renderedAt(QWidget& widget, double scale)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

TextInk textInk(const QImage& image, const QRect& area)
{
    constexpr int clearlyDarker = 60;
    const double scale = image.devicePixelRatio();
    const QPoint begin = (QPointF(area.topLeft()) * scale).toPoint();
    const QPoint end = (QPointF(area.bottomRight() + QPoint(1, 1)) * scale).toPoint();
    TextInk ink;
    for (int y = begin.y(); y < end.y(); ++y) {
        const int ground = qGray(image.pixel(end.x() - 1, y));
        for (int x = begin.x(); x < end.x(); ++x) {
            const int darker = ground - qGray(image.pixel(x, y));
            ink.sum += darker;
            if (darker > clearlyDarker)
                ink.box |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

double cutInk(QWidget& widget, double scale)
{
    const QRect place = widget.geometry();
    const auto sum = [&](const QRect& geometry) {
        widget.setGeometry(geometry);
        const QImage image = renderedAt(*widget.parentWidget(), scale);
        return textInk(image, QRect(widget.pos(), widget.size())).sum;
    };
    const qint64 shown = sum(place);
    // By whole pixels of the device at every scale, so that the glyphs are the same ones.
    const qint64 whole = sum(place.adjusted(0, -8, 0, 8));
    widget.setGeometry(place);
    return whole > 0 ? double(whole - shown) / double(whole) : 0.0;
}
