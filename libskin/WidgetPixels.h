#pragma once

#include <QColor>
#include <QRect>
#include <QRectF>

class QPainter;

namespace CorvelSkin {

/**
 * A widget that is painted at a scale above 100 %, as a grid of device pixels.
 *
 * A stroke lies across its line. Where a pixel of the widget is one and a half of the device, it
 * comes out one or two pixels wide, and next to the widget's edge half of it is cut off. On this
 * grid every edge has the same width and lies within the pixels that the stroke has at 100 %.
 */
class WidgetPixels {
public:
    /// Valid for a painter that draws aliased, upright and in the widget's own coordinates.
    explicit WidgetPixels(const QPainter& painter);

    bool isValid() const { return m_scale > 1.0; }

    /// The outline of @p rect, one pixel of the widget wide. An edge on the pixel after the
    /// widget's last is drawn on the last.
    void drawOutline(QPainter& painter, const QRectF& rect, const QColor& colour) const;

    /// The pixels from @p from to @p to, both included. Upright or lying.
    void drawLine(QPainter& painter, QPointF from, QPointF to, const QColor& colour) const;

private:
    QRect covered(const QRectF& rect) const;
    void fill(QPainter& painter, const QRect& pixels, const QColor& colour) const;

    double m_scale = 0.0;
    QPointF m_origin; ///< the widget's, on the device
    QRectF m_widget;
};

} // namespace CorvelSkin
