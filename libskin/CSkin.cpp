#include "tradeConfig/skin/CSkin.h"

#include "libskin/ActiveSkin.h"
#include "libskin/WidgetPixels.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QtMath>

#include <cmath>

namespace CorvelSkin {
namespace {

constexpr int maxRasterSide = 4096;

ActiveSkin& active() { return ActiveSkin::instance(); }

bool isWhole(double value) { return value == std::floor(value); }

/// How an outline one pixel wide is filled.
struct Bands {
    int scale = 0; ///< pixels of the device for one of the outline; 0: it must be stroked
    QRectF rect;
};

/**
 * @p rect, or if it is the whole of a widget a rectangle one pixel smaller.
 *
 * A stroke one pixel wide lies on the pixel after its line, which the widget does not have: an
 * outline of all of it would lack two edges. On an image the stroke is what the toolkit's is.
 */
QRectF withinWidget(const QPainter& painter, const QRectF& rect)
{
    const QPaintDevice& device = *painter.device();
    const bool whole = device.devType() == QInternal::Widget
        && rect == QRectF(0.0, 0.0, device.width(), device.height())
        && painter.combinedTransform().isIdentity();
    return whole ? rect.adjusted(0.0, 0.0, -1.0, -1.0) : rect;
}

/**
 * The four whole bands of device pixels that an outline of @p rect, one pixel wide, consists of.
 *
 * Filling bands is many times cheaper than stroking. It comes to the same for a painter that
 * draws aliased, at a whole-numbered scale, with corners on the pixel grid. Outlines that leave
 * the device, and those without an inside, are stroked with corners of their own.
 */
Bands bandsOf(const QPainter& painter, const QRectF& rect)
{
    const QPaintEngine* const engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster || !engine->paintDevice()
        || painter.testRenderHint(QPainter::Antialiasing))
        return {};
    const QTransform& transform = painter.deviceTransform();
    const double scale = transform.m11();
    if (transform.type() > QTransform::TxScale || scale != transform.m22() || !isWhole(scale)
        || scale < 1.0 || scale > 16.0 || rect.width() < 2.0 || rect.height() < 2.0)
        return {};
    const QRectF outline = scale > 1.0 ? rect : withinWidget(painter, rect);
    const QRectF onDevice(outline.x() * scale + transform.dx(),
                          outline.y() * scale + transform.dy(), outline.width() * scale,
                          outline.height() * scale);
    const bool onGrid = isWhole(onDevice.x()) && isWhole(onDevice.y()) && isWhole(onDevice.width())
        && isWhole(onDevice.height());
    const QPaintDevice& device = *engine->paintDevice();
    const bool inside = scale > 1.0
        || QRectF(0.0, 0.0, device.width() - 1, device.height() - 1).contains(onDevice);
    if (!onGrid || !inside)
        return {};
    return {int(scale), outline};
}

void fillBands(QPainter& painter, const Bands& bands, const QColor& colour)
{
    // A stroke lies across its line; of an odd number of pixels, the middle one is on it.
    const int pixelsBefore = bands.scale / 2;
    const double before = pixelsBefore / double(bands.scale);
    const double x = bands.rect.x() - before;
    const double y = bands.rect.y() - before;
    const double w = bands.rect.width();
    const double h = bands.rect.height();
    painter.fillRect(QRectF(x, y, w + 1.0, 1.0), colour);
    painter.fillRect(QRectF(x, y + h, w + 1.0, 1.0), colour);
    painter.fillRect(QRectF(x, y + 1.0, 1.0, h - 1.0), colour);
    painter.fillRect(QRectF(x + w, y + 1.0, 1.0, h - 1.0), colour);
}

/// Sets pen and brush for one stroke and gives the painter's own back.
class Stroking {
public:
    Stroking(QPainter& painter, const QPen& pen)
        : m_painter(painter)
        , m_pen(painter.pen())
        , m_brush(painter.brush())
    {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
    }
    ~Stroking()
    {
        m_painter.setBrush(m_brush);
        m_painter.setPen(m_pen);
    }
    Q_DISABLE_COPY(Stroking)

private:
    QPainter& m_painter;
    const QPen m_pen;
    const QBrush m_brush;
};

/// The largest rectangle of the frame's proportions inside @p rect, centred.
QRectF fitted(const QRectF& rect, const QSizeF& frame)
{
    const QSizeF size = frame.scaled(rect.size(), Qt::KeepAspectRatio);
    return QRectF(rect.center() - QPointF(size.width() / 2.0, size.height() / 2.0), size);
}

/// @p side device pixels as the nearest whole number that can be drawn.
int pixelsOf(double side)
{
    return qBound(1, qRound(qMin(side, 1.0 * maxRasterSide)), maxRasterSide);
}

} // namespace

CSkin* CSkin::Instance()
{
    static CSkin instance;
    return &instance;
}

void CSkin::fillRect(QPainter& painter, QRectF rect, QString colorKey)
{
    if (const QColor* const colour = active().colour(colorKey))
        painter.fillRect(rect, *colour);
}

void CSkin::drawRect(QPainter& painter, QRectF rect, QString colorKey, Qt::PenStyle penStyle,
                     double penWidth)
{
    const bool plain = penStyle == Qt::SolidLine && penWidth == 1.0;
    const WidgetPixels pixels(painter);
    if (plain && pixels.isValid()) {
        if (const QColor* const colour = active().colour(colorKey))
            pixels.drawOutline(painter, rect, *colour);
        return;
    }
    const Bands bands = plain ? bandsOf(painter, rect) : Bands();
    if (bands.scale != 0) {
        if (const QColor* const colour = active().colour(colorKey))
            fillBands(painter, bands, *colour);
        return;
    }
    const QPen* const pen = active().pen(colorKey, penStyle, penWidth);
    if (!pen)
        return;
    const Stroking stroking(painter, *pen);
    painter.drawRect(rect);
}

void CSkin::drawLine(QPainter& painter, QString colorKey, QPointF from, QPointF to,
                     Qt::PenStyle penStyle, double penWidth)
{
    const bool straight = from.x() == to.x() || from.y() == to.y();
    const WidgetPixels pixels(painter);
    if (penStyle == Qt::SolidLine && penWidth == 1.0 && straight && pixels.isValid()) {
        if (const QColor* const colour = active().colour(colorKey))
            pixels.drawLine(painter, from, to, *colour);
        return;
    }
    const QPen* const pen = active().pen(colorKey, penStyle, penWidth);
    if (!pen)
        return;
    const Stroking stroking(painter, *pen);
    painter.drawLine(from, to);
}

QRectF CSkin::drawText(QPainter& painter, QRectF rect, int flags, QString colorKey, QString fontKey,
                       QString text)
{
    const QFont font = active().font(fontKey);
    const QPen* const pen = active().pen(colorKey, Qt::SolidLine, 1.0);
    if (!pen)
        return QRectF();
    const QFont oldFont = painter.font();
    QRectF bounds;
    {
        const Stroking stroking(painter, *pen);
        painter.setFont(font);
        painter.drawText(rect, flags, text, &bounds);
    }
    painter.setFont(oldFont);
    return bounds;
}

QSizeF CSkin::textSize(QPaintDevice* device, QString fontKey, QString text)
{
    const QFont font = active().font(fontKey);
    const QFontMetricsF metrics = device ? QFontMetricsF(font, device) : QFontMetricsF(font);
    if (text.isEmpty())
        return QSizeF(0.0, metrics.height());
    return metrics.size(0, text);
}

void CSkin::drawImage(QPainter& painter, QRectF rect, QString imageKey, int frameCount,
                      int frameIndex, bool firstOption, bool secondOption)
{
    const bool keepProportions = firstOption;
    const bool smooth = secondOption;
    const SkinImage* const image = active().image(imageKey);
    // Written so that a rectangle with a NaN draws nothing.
    const bool visible = rect.width() > 0.0 && rect.height() > 0.0;
    if (!image || !visible || frameCount < 1 || frameIndex < 0 || frameIndex >= frameCount)
        return;

    const QSizeF frame(image->size().width() / frameCount, image->size().height());
    QRectF target = keepProportions ? fitted(rect, frame) : rect;

    // One pixel of the picture for one of the device keeps it crisp at every scale.
    const QTransform transform = painter.deviceTransform();
    const double scaleX = std::hypot(transform.m11(), transform.m12());
    const double scaleY = std::hypot(transform.m21(), transform.m22());
    const QSize pixels(pixelsOf(target.width() * scaleX), pixelsOf(target.height() * scaleY));
    const bool upright = transform.type() <= QTransform::TxScale && transform.m11() > 0.0
        && transform.m22() > 0.0 && qMax(pixels.width(), pixels.height()) < maxRasterSide;
    if (upright) {
        const QPointF corner = transform.map(target.topLeft());
        target = QRectF((std::round(corner.x()) - transform.dx()) / scaleX,
                        (std::round(corner.y()) - transform.dy()) / scaleY, pixels.width() / scaleX,
                        pixels.height() / scaleY);
    }

    const bool hint = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth && !upright);
    const QPixmap pixmap = active().frame(*image, frameCount, frameIndex, pixels, smooth);
    painter.drawPixmap(target, pixmap, QRectF(pixmap.rect()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, hint);
}

QSizeF CSkin::GetBitmapSize(QString imageKey)
{
    const SkinImage* const image = active().image(imageKey);
    return image ? image->size() : QSizeF();
}

} // namespace CorvelSkin
