#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/**
 * Texts and numbers in settings files, whoever wrote them.
 *
 * QSettings makes objects of values that begin with "@". Senseless ones throw, take all memory or
 * end the process, whichever key of their section is asked for. Here they count as absent.
 */
namespace PlainSettings {

/// Null when the file or the key is missing. Writes nothing.
QVariant value(const QString& file, const QString& key);

/// Replaces the file as a whole; what else is plain in it is kept. Returns an empty text, or why
/// the file stays as it was.
QString setValue(const QString& file, const QString& key, const QString& value);
QString setValues(const QString& file, const QMap<QString, QString>& values);

} // namespace PlainSettings
