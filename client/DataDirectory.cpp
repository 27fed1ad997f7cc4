#include "client/DataDirectory.h"

#include <QDir>
#include <QFile>

DataDirectory::DataDirectory(const QString& home)
    : m_home(QDir(home).absolutePath())
{
}

QString DataDirectory::homeIn(const char* buffer)
{
    constexpr uint bufferSize = 512;
    return QString::fromUtf8(buffer, int(qstrnlen(buffer, bufferSize)));
}

QString DataDirectory::configDirectory() const { return m_home + QStringLiteral("/config"); }

QString DataDirectory::recordFile() const
{
    return configDirectory() + QStringLiteral("/trade_parameters.json");
}

QString DataDirectory::settingsFile() const
{
    QDir directory(m_home);
    directory.cd(QStringLiteral("config"));
    return directory.absoluteFilePath(QStringLiteral("system_settings.ini"));
}

QString DataDirectory::clientFile() const
{
    return configDirectory() + QStringLiteral("/client.ini");
}

QString DataDirectory::windowFile() const
{
    return configDirectory() + QStringLiteral("/window.ini");
}

QString DataDirectory::skinsDirectory() const { return m_home + QStringLiteral("/skins"); }
QString DataDirectory::runDirectory() const { return m_home + QStringLiteral("/run"); }
QString DataDirectory::lockFile() const { return runDirectory() + QStringLiteral("/client.lock"); }
QString DataDirectory::startFile() const
{
    return runDirectory() + QStringLiteral("/client.start");
}
QString DataDirectory::restartProgram() const { return m_home + QStringLiteral("/restart"); }

bool DataDirectory::makeConfigDirectory() const
{
    if (QDir(configDirectory()).exists())
        return true;
    const QString before = settingsFile();
    if (!QDir().mkpath(configDirectory()))
        return false;
    return !QFile::exists(before) || QFile::rename(before, settingsFile());
}

bool DataDirectory::makeRunDirectory() const { return QDir().mkpath(runDirectory()); }
