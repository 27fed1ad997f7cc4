#include "tradeConfig/dialog/InterfaceSettings.h"

#include "tradeConfig/platform/HostPlatform.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

namespace {

constexpr const char* languageCodes[] = {"zh_CN", "zh_TW", "en_US"};

QString languageKey() { return QStringLiteral("UI/language"); }

QString scaleKey() { return QStringLiteral("UI/scale"); }

QString languageCode(int index)
{
    const bool known = index > 0 && index < int(std::size(languageCodes));
    return QLatin1String(languageCodes[known ? index : 0]);
}

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

} // namespace

namespace InterfaceSettings {

QString dataDirectory()
{
    // A path that fills the buffer has no terminator.
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

int languageIndex()
{
    const QSettings settings(filePath(), QSettings::IniFormat);
    const QString code = settings.value(languageKey(), languageCode(0)).toString();
    for (int index = 1; index < int(std::size(languageCodes)); ++index) {
        if (code == QLatin1String(languageCodes[index]))
            return index;
    }
    return 0;
}

int scale()
{
    const QSettings settings(filePath(), QSettings::IniFormat);
    return settings.value(scaleKey()).toInt();
}

void save(int languageIndex, int scale)
{
    const QString path = filePath();
    QSettings settings(path, QSettings::IniFormat);
    // A value set in vain would be read back as long as this process lives.
    if (!settings.isWritable() || !directoryHasRoomFor(path))
        return;
    settings.setValue(languageKey(), languageCode(languageIndex));
    settings.setValue(scaleKey(), scale);
    settings.sync();
}

} // namespace InterfaceSettings
