#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QtGlobal>

class QPaintDevice;
class QPainter;

namespace CorvelSkin {

/**
 * The skin service: resolves the keys of the active skin and draws with them.
 *
 * This is the interface only; whichever library is linked or preloaded implements it. Keys are
 * case-sensitive ASCII names of colours, fonts and images (SkinKeys.h lists those that the
 * module passes). All geometry is in logical pixels. Everything is called on the GUI thread,
 * nothing throws, and an unknown key is no error: what is drawn for it is the service's affair.
 */
class Q_DECL_IMPORT CSkin {
public:
    /// The one service object of the process; never null, never owned by the caller.
    static CSkin* Instance();

    /// Fills @p rect with the colour; no outline.
    void fillRect(QPainter& painter, QRectF rect, QString colorKey);

    /// Strokes the outline of @p rect; no fill. @p penWidth is in pixels.
    void drawRect(QPainter& painter, QRectF rect, QString colorKey, Qt::PenStyle penStyle,
                  double penWidth);

    /// Draws one line segment. Note that the key stands before the points here.
    void drawLine(QPainter& painter, QString colorKey, QPointF from, QPointF to,
                  Qt::PenStyle penStyle, double penWidth);

    /// Draws @p text inside @p rect, laid out by @p flags as QPainter::drawText reads them
    /// (Qt::AlignmentFlag and Qt::TextFlag bits). Returns the bounding rectangle of the text.
    QRectF drawText(QPainter& painter, QRectF rect, int flags, QString colorKey, QString fontKey,
                    QString text);

    /// The size that drawText() needs for @p text on @p device. Needs no active painter.
    QSizeF textSize(QPaintDevice* device, QString fontKey, QString text);

    /// Draws frame @p frameIndex (from 0) of an image of @p frameCount equal frames, side by
    /// side, into @p rect. The two options belong to the service; callers only forward them.
    void drawImage(QPainter& painter, QRectF rect, QString imageKey, int frameCount, int frameIndex,
                   bool firstOption, bool secondOption);

    /// The size of the whole image, all frames included; empty for an unknown key.
    QSizeF GetBitmapSize(QString imageKey);
};

} // namespace CorvelSkin
