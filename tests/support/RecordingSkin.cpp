#include "support/RecordingSkin.h"

#include "tradeConfig/skin/CSkin.h"

#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <QWidget>

#include <type_traits>
#include <utility>

// Any library may implement it, so nothing of it may lie in the object.
static_assert(std::is_empty_v<CorvelSkin::CSkin>);

namespace {

struct Recorder {
    QStringList calls;
    QStringList measurements;
    int instances = 0;
    std::function<QSizeF(const QString&, const QString&)> sizeOf;
    QHash<QString, QSizeF> bitmaps;
};

Recorder& recorder()
{
    static Recorder instance;
    return instance;
}

QString number(double value) { return QString::number(value, 'g', 10); }

QString point(const QPointF& p) { return number(p.x()) + QLatin1Char(',') + number(p.y()); }

QString rectangle(const QRectF& r)
{
    return point(r.topLeft()) + QLatin1Char(',') + number(r.width()) + QLatin1Char(',')
        + number(r.height());
}

QString pen(Qt::PenStyle style, double width)
{
    return QString::number(int(style)) + QLatin1Char(' ') + number(width);
}

QString quoted(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

void record(const char* operation, const QStringList& arguments)
{
    recorder().calls << QLatin1String(operation) + QLatin1Char(' ')
            + arguments.join(QLatin1Char(' '));
}

} // namespace

namespace RecordingSkin {

void reset() { recorder() = Recorder(); }

QStringList takeCalls() { return std::exchange(recorder().calls, {}); }

QStringList takeMeasurements() { return std::exchange(recorder().measurements, {}); }

int takeInstances() { return std::exchange(recorder().instances, 0); }

void setTextSize(std::function<QSizeF(const QString&, const QString&)> sizeOf)
{
    recorder().sizeOf = std::move(sizeOf);
}

void setBitmapSize(const QString& imageKey, QSizeF size)
{
    recorder().bitmaps.insert(imageKey, size);
}

} // namespace RecordingSkin

namespace CorvelSkin {

CSkin* CSkin::Instance()
{
    static CSkin instance;
    ++recorder().instances;
    return &instance;
}

void CSkin::fillRect(QPainter&, QRectF rect, QString colorKey)
{
    record("fillRect", {rectangle(rect), colorKey});
}

void CSkin::drawRect(QPainter&, QRectF rect, QString colorKey, Qt::PenStyle penStyle,
                     double penWidth)
{
    record("drawRect", {rectangle(rect), colorKey, pen(penStyle, penWidth)});
}

void CSkin::drawLine(QPainter&, QString colorKey, QPointF from, QPointF to, Qt::PenStyle penStyle,
                     double penWidth)
{
    record("drawLine", {colorKey, point(from), point(to), pen(penStyle, penWidth)});
}

QRectF CSkin::drawText(QPainter&, QRectF rect, int flags, QString colorKey, QString fontKey,
                       QString text)
{
    record("drawText",
           {rectangle(rect), QStringLiteral("0x") + QString::number(flags, 16), colorKey, fontKey,
            quoted(text)});
    return rect;
}

QSizeF CSkin::textSize(QPaintDevice* device, QString fontKey, QString text)
{
    const auto* widget = dynamic_cast<QWidget*>(device);
    const QString deviceClass
        = widget ? QString::fromLatin1(widget->metaObject()->className()) : QStringLiteral("?");
    recorder().measurements << QStringLiteral("textSize ") + deviceClass + QLatin1Char(' ')
            + fontKey + QLatin1Char(' ') + quoted(text);
    if (recorder().sizeOf)
        return recorder().sizeOf(fontKey, text);
    return QSizeF(10.0 * text.size(), 16.0);
}

void CSkin::drawImage(QPainter&, QRectF rect, QString imageKey, int frameCount, int frameIndex,
                      bool firstOption, bool secondOption)
{
    const auto flag = [](bool on) { return on ? QStringLiteral("true") : QStringLiteral("false"); };
    record("drawImage",
           {rectangle(rect), imageKey, QString::number(frameCount), QString::number(frameIndex),
            flag(firstOption), flag(secondOption)});
}

QSizeF CSkin::GetBitmapSize(QString imageKey)
{
    recorder().measurements << QStringLiteral("GetBitmapSize ") + imageKey;
    return recorder().bitmaps.value(imageKey);
}

} // namespace CorvelSkin
