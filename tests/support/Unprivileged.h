#pragma once

#include <QFile>
#include <QStringList>

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

/// Permissions do not bind the superuser: becomes nobody, who then owns @p files, while it lives.
class Unprivileged {
public:
    explicit Unprivileged(const QStringList& files)
    {
        if (!m_wasSuperuser)
            return;
        constexpr uid_t nobody = 65534;
        bool ok = true;
        for (const QString& file : files)
            ok = ::chown(QFile::encodeName(file).constData(), nobody, gid_t(-1)) == 0 && ok;
        ok = ::seteuid(nobody) == 0 && ok;
        if (!ok)
            std::abort();
    }
    ~Unprivileged()
    {
        if (m_wasSuperuser && ::seteuid(0) != 0)
            std::abort();
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    const bool m_wasSuperuser = geteuid() == 0;
};

/// Takes the right to write to a directory away while it lives.
class ReadOnly {
public:
    explicit ReadOnly(const QString& directory)
        : m_directory(QFile::encodeName(directory))
    {
        if (::chmod(m_directory.constData(), 0500) != 0)
            std::abort();
    }
    ~ReadOnly() { ::chmod(m_directory.constData(), 0700); }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;

private:
    const QByteArray m_directory;
};
