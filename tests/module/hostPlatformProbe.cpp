// hostPlatformProbe <domain> <name> [dropCwd]: the helpers keep their answers for the life of a
// process, so each case of tst_HostPlatformUnix asks them in a process of its own, this one.
// It prints what they said as JSON.

#include "tradeConfig/dialog/InterfaceSettings.h"
#include "tradeConfig/platform/HostPlatform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstring>

namespace {

QByteArray homePath()
{
    const char* const path = ApplicationHomePath();
    return {path, static_cast<int>(strnlen(path, 512))};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    QCoreApplication::setOrganizationDomain(arguments.at(1));
    QCoreApplication::setApplicationName(arguments.at(2));
    if (arguments.size() > 3 && !QDir().rmdir(QDir::currentPath()))
        return 2;

    QJsonObject answers;
    const char* const home = ApplicationHomePath();
    const QByteArray path = homePath();
    answers[QStringLiteral("home")] = QString::fromLatin1(path.toHex());
    answers[QStringLiteral("dataDirectory")]
        = QString::fromLatin1(InterfaceSettings::dataDirectory().toUtf8().toHex());
    answers[QStringLiteral("isDirectory")] = QFileInfo(QFile::decodeName(path)).isDir();

    // Nothing that changes afterwards may show in the second answer, nor be done again.
    if (!path.isEmpty())
        QDir().rmdir(QFile::decodeName(path));
    qputenv("HOME", "/proc/none");
    QCoreApplication::setApplicationName(QStringLiteral("another"));
    QDir::setCurrent(QStringLiteral("/"));
    answers[QStringLiteral("samePointer")] = ApplicationHomePath() == home;
    answers[QStringLiteral("sameText")] = homePath() == path;

    const char* const disk = GetDiskId();
    const char* const uuid = GetSystemUuid();
    answers[QStringLiteral("diskId")] = QString::fromUtf8(disk);
    answers[QStringLiteral("systemUuid")] = QString::fromUtf8(uuid);
    answers[QStringLiteral("sameIdPointers")] = GetDiskId() == disk && GetSystemUuid() == uuid;

    std::puts(QJsonDocument(answers).toJson(QJsonDocument::Compact).constData());
    return 0;
}
