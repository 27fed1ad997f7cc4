#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>

/**
 * An implementation of the skin service that draws nothing and writes down every call.
 *
 * Each drawing call becomes one line with all its arguments, numbers in their shortest form:
 *   fillRect x,y,w,h Key
 *   drawRect x,y,w,h Key style width
 *   drawLine Key x1,y1 x2,y2 style width
 *   drawText x,y,w,h 0x184 ColourKey FontKey "text"
 *   drawImage x,y,w,h Key frameCount frameIndex firstOption secondOption
 * Measurements go to a list of their own:
 *   textSize DeviceClass FontKey "text"
 *   GetBitmapSize Key
 */
namespace RecordingSkin {

/// Forgets all calls and goes back to the default sizes.
void reset();

/// The drawing calls since the last take, in order.
QStringList takeCalls();

/// The measurements since the last take, in order.
QStringList takeMeasurements();

/// How often the service was asked for since the last take.
int takeInstances();

/// Default: 10 pixels a character, 16 high, whatever the font.
void setTextSize(std::function<QSizeF(const QString& fontKey, const QString& text)> sizeOf);

/// Default: empty, as for an unknown key.
void setBitmapSize(const QString& imageKey, QSizeF size);

} // namespace RecordingSkin
