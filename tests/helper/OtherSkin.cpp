// A skin service of another make: the eight operations and nothing behind them. It paints every
// area and every picture in one colour of its own, so that its work is recognised.
#include "tradeConfig/skin/CSkin.h"

#include <QPainter>

using CorvelSkin::CSkin;

namespace {

const QColor ownColour(0x12, 0xAB, 0x34);
constexpr double characterWidth = 9;
constexpr double lineHeight = 17;

} // namespace

CSkin* CSkin::Instance()
{
    static CSkin service;
    return &service;
}

void CSkin::fillRect(QPainter& painter, QRectF rect, QString) { painter.fillRect(rect, ownColour); }

void CSkin::drawRect(QPainter& painter, QRectF rect, QString, Qt::PenStyle, double)
{
    painter.fillRect(rect, ownColour);
}

void CSkin::drawLine(QPainter&, QString, QPointF, QPointF, Qt::PenStyle, double) { }

QRectF CSkin::drawText(QPainter&, QRectF rect, int, QString, QString, QString) { return rect; }

QSizeF CSkin::textSize(QPaintDevice*, QString, QString text)
{
    return QSizeF(characterWidth * text.size(), lineHeight);
}

void CSkin::drawImage(QPainter& painter, QRectF rect, QString, int, int, bool, bool)
{
    painter.fillRect(rect, ownColour);
}

QSizeF CSkin::GetBitmapSize(QString) { return QSizeF(); }
