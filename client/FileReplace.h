#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Replaces a file as a whole: whoever reads it, and whenever the write is cut short, finds the
/// old content or the new one. Returns an empty text, or the reason why the old content stays.
QString replaceFile(const QString& name, const QByteArray& content,
                    QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner);
