#include "tradeConfig/dialog/InterfaceSettings.h"

#include "tradeConfig/dialog/CodeList.h"
#include "tradeConfig/platform/HostPlatform.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryFile>

#include <new>

namespace {

constexpr CodeList languageCodes = {{"zh_CN", "zh_TW", "en_US"}};

// The settings' cache outlives this library, so the keys must not lie in its image.
QString languageKey() { return QLatin1String("UI/language"); }

QString scaleKey() { return QLatin1String("UI/scale"); }

/// Whether a new version of the file can be written beside it. On a full disk QSettings puts a
/// file cut short in the old one's place and reports success.
bool directoryHasRoomFor(const QString& path)
{
    constexpr qint64 growth = 4096;
    const QByteArray content(int(QFileInfo(path).size() + growth), '\0');
    QTemporaryFile probe(path + QStringLiteral(".XXXXXX"));
    return probe.open() && probe.write(content) == content.size() && probe.flush()
        && probe.size() == content.size();
}

/// Lets @p use work with the settings in the file at @p path. False if that takes more memory than
/// there is: a value in the toolkit's binary notation can name any length.
template <typename Use> bool withSettings(const QString& path, const Use& use)
{
    try {
        QSettings settings(path, QSettings::IniFormat);
        use(settings);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Copies the file at @p path into @p copy with every value in the toolkit's binary notation
/// written as a plain text, which is read without looking into it.
bool copyAsTexts(const QString& path, QFileDevice& copy)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    QString content = QString::fromLatin1(file.readAll());
    content.replace(QRegularExpression(QStringLiteral("([=,]\\s*\"?)@Variant\\(")),
                    QStringLiteral("\\1@@Variant("));
    return file.error() == QFile::NoError && copy.write(content.toLatin1()) >= 0 && copy.flush();
}

QVariant storedValue(const QString& key)
{
    QVariant value;
    const auto read = [&](const QSettings& settings) { value = settings.value(key); };
    const QString path = InterfaceSettings::filePath();
    QTemporaryFile texts;
    if (!withSettings(path, read) && copyAsTexts(path, texts))
        withSettings(texts.fileName(), read);
    return value;
}

} // namespace

namespace InterfaceSettings {

QString dataDirectory()
{
    // A path that fills its buffer comes without a terminator.
    constexpr uint bufferSize = 512;
    const char* const path = ApplicationHomePath();
    return QString::fromUtf8(path, int(qstrnlen(path, bufferSize)));
}

QString filePath()
{
    QDir directory(dataDirectory());
    directory.cd(QStringLiteral("config"));
    return directory.absoluteFilePath(QStringLiteral("system_settings.ini"));
}

int languageIndex() { return languageCodes.indexOf(storedValue(languageKey()).toString()); }

int scale() { return storedValue(scaleKey()).toInt(); }

void save(int languageIndex, int scale)
{
    const QString path = filePath();
    const auto write = [&](QSettings& settings) {
        // Nothing is set before it is sure that it can be written: the toolkit would show it to
        // every later reader in this process. Writing parses all other values, one of which may
        // take more memory than there is, so they are parsed first.
        if (!settings.isWritable() || !directoryHasRoomFor(path))
            return;
        settings.allKeys();
        settings.setValue(languageKey(), QString::fromLatin1(languageCodes.at(languageIndex)));
        settings.setValue(scaleKey(), scale);
        settings.sync();
    };
    QSaveFile texts(path);
    if (!withSettings(path, write) && copyAsTexts(path, texts) && texts.commit())
        withSettings(path, write);
}

} // namespace InterfaceSettings
