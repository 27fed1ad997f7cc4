#include "client/PlainSettings.h"

#include "client/FileReplace.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>

namespace {

// The lines of a file that lack an "@", written as such or as an escape.
QByteArray plainLines(const QByteArray& content)
{
    static const QRegularExpression at(
        QStringLiteral(R"(@|\\x0*40(?![0-9A-Fa-f])|\\0*100(?![0-7]))"));
    QByteArray plain;
    for (const QByteArray& line : content.split('\n')) {
        if (!at.match(QString::fromLatin1(line)).hasMatch())
            plain += line + '\n';
    }
    plain.chop(1);
    return plain;
}

// Nothing but files: a pipe would keep its reader waiting.
QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                      : QByteArray();
}

} // namespace

QVariant PlainSettings::value(const QString& file, const QString& key)
{
    const QByteArray content = contentOf(file);
    const QByteArray plain = plainLines(content);
    if (plain.isEmpty())
        return QVariant();
    if (plain == content)
        return QSettings(file, QSettings::IniFormat).value(key);
    QTemporaryFile copy;
    if (!copy.open() || copy.write(plain) != plain.size() || !copy.flush())
        return QVariant();
    return QSettings(copy.fileName(), QSettings::IniFormat).value(key);
}

QString PlainSettings::setValue(const QString& file, const QString& key, const QString& value)
{
    return setValues(file, {{key, value}});
}

QString PlainSettings::setValues(const QString& file, const QMap<QString, QString>& values)
{
    const QByteArray plain = plainLines(contentOf(file));
    QTemporaryFile copy;
    if (!copy.open() || copy.write(plain) != plain.size() || !copy.flush())
        return copy.errorString();
    QSettings settings(copy.fileName(), QSettings::IniFormat);
    for (auto value = values.begin(); value != values.end(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    if (settings.status() != QSettings::NoError)
        return QCoreApplication::translate("PlainSettings", "无法写入 %1").arg(copy.fileName());
    // What is no file would keep its writer waiting.
    if (!QFileInfo(file).isFile())
        QFile::remove(file);
    return replaceFile(file, contentOf(copy.fileName()));
}
