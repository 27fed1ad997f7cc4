#include "client/ExpectedHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace {

QString unusable(int error)
{
    return QCoreApplication::translate("ExpectedHome", "无法使用数据目录 %1：%2")
        .arg(ExpectedHome::path(), QString::fromLocal8Bit(std::strerror(error)));
}

} // namespace

QString ExpectedHome::problem()
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path()).constData(), &status) == 0)
        return S_ISDIR(status.st_mode) ? QString() : unusable(ENOTDIR);
    const int error = errno;
    const bool isOnlyMissing = error == ENOENT && QFileInfo(QFileInfo(path()).path()).isDir();
    return isOnlyMissing ? QString() : unusable(error);
}

QString ExpectedHome::make() { return QDir().mkpath(path()) ? QString() : unusable(errno); }
