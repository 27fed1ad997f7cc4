#include "libskin/WidgetPixels.h"

#include <QPaintEngine>
#include <QPainter>

namespace CorvelSkin {
namespace {

/// @p end, or the side's own end if it lies beyond by no more than the width of an edge.
double withinSide(double end, double side) { return end > side && end <= side + 1.0 ? side : end; }

} // namespace

WidgetPixels::WidgetPixels(const QPainter& painter)
{
    const QPaintEngine* const engine = painter.paintEngine();
    const QPaintDevice& device = *painter.device();
    const QTransform& transform = painter.deviceTransform();
    if (!engine || engine->type() != QPaintEngine::Raster || device.devType() != QInternal::Widget
        || painter.testRenderHint(QPainter::Antialiasing) || transform.type() != QTransform::TxScale
        || transform.m11() != transform.m22() || !painter.worldTransform().isIdentity()
        || painter.viewTransformEnabled())
        return;
    m_scale = transform.m11();
    m_origin = QPointF(transform.dx(), transform.dy());
    m_widget = QRectF(0.0, 0.0, device.width(), device.height());
}

/// The device pixels of the widget's pixels that an outline of @p rect lies on.
QRect WidgetPixels::covered(const QRectF& rect) const
{
    const auto pixel = [this](double x, double y) {
        return QPoint(qRound(x * m_scale + m_origin.x()), qRound(y * m_scale + m_origin.y()));
    };
    const QPoint end = pixel(withinSide(rect.right() + 1.0, m_widget.width()),
                             withinSide(rect.bottom() + 1.0, m_widget.height()));
    return QRect(pixel(rect.x(), rect.y()), end - QPoint(1, 1));
}

void WidgetPixels::drawOutline(QPainter& painter, const QRectF& rect, const QColor& colour) const
{
    const QRect all = covered(rect.normalized());
    const int width = int(m_scale);
    if (all.width() <= 2 * width || all.height() <= 2 * width) {
        fill(painter, all, colour);
        return;
    }
    const QRect inside = all.adjusted(width, width, -width, -width);
    for (const QRect& edge : {QRect(all.x(), all.y(), all.width(), width),
                              QRect(all.x(), inside.bottom() + 1, all.width(), width),
                              QRect(all.x(), inside.y(), width, inside.height()),
                              QRect(inside.right() + 1, inside.y(), width, inside.height())})
        fill(painter, edge, colour);
}

void WidgetPixels::drawLine(QPainter& painter, QPointF from, QPointF to, const QColor& colour) const
{
    fill(painter, covered(QRectF(from, to).normalized()), colour);
}

void WidgetPixels::fill(QPainter& painter, const QRect& pixels, const QColor& colour) const
{
    painter.fillRect(QRectF((pixels.x() - m_origin.x()) / m_scale,
                            (pixels.y() - m_origin.y()) / m_scale, pixels.width() / m_scale,
                            pixels.height() / m_scale),
                     colour);
}

} // namespace CorvelSkin
