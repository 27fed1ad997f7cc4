#include "client/Instance.h"

#include "client/DataDirectory.h"
#include "client/FileReplace.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

Instance::Instance(const DataDirectory& directory)
    : m_directory(directory)
{
}

Instance::~Instance()
{
    if (m_lock >= 0)
        ::close(m_lock);
}

QString Instance::claim()
{
    if (m_lock >= 0)
        return QString();
    m_isTaken = false;
    const QString file = m_directory.lockFile();
    const auto systemError = [&file] {
        return tr("无法使用 %1：%2").arg(file, QString::fromLocal8Bit(std::strerror(errno)));
    };
    if (!m_directory.makeRunDirectory())
        return tr("无法创建目录 %1").arg(m_directory.runDirectory());
    // Closed on exec: the restarter is started by this process and must not hold its lock.
    m_lock = ::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_lock < 0)
        return systemError();
    if (::flock(m_lock, LOCK_EX | LOCK_NB) != 0) {
        m_isTaken = errno == EWOULDBLOCK;
        const QString reason = systemError();
        ::close(m_lock);
        m_lock = -1;
        return m_isTaken ? tr("客户端已在运行（数据目录 %1）").arg(m_directory.home()) : reason;
    }
    return QString();
}

QString Instance::writeStart(const QString& currentDirectory, const QString& program,
                             const QStringList& arguments) const
{
    QByteArray content;
    for (const QString& item : QStringList{currentDirectory, program} + arguments)
        content += QFile::encodeName(item) + '\0';
    return replaceFile(m_directory.startFile(), content);
}

QString Instance::installRestarter(const QString& source) const
{
    QFile ours(source);
    if (!ours.open(QIODevice::ReadOnly))
        return tr("无法读取重启程序 %1：%2").arg(source, ours.errorString());
    const QByteArray content = ours.readAll();
    constexpr QFile::Permissions runnable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
        | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile installed(m_directory.restartProgram());
    if (installed.open(QIODevice::ReadOnly) && installed.readAll() == content
        && (installed.permissions() & QFile::ExeOwner))
        return QString();
    return replaceFile(installed.fileName(), content, runnable);
}
