#include "client/FileReplace.h"

#include <QCoreApplication>
#include <QSaveFile>

QString replaceFile(const QString& name, const QByteArray& content, QFile::Permissions permissions)
{
    QSaveFile file(name);
    // The flush counts: commit() alone takes a part of the content for the whole when the disk
    // fills up in the middle of a write.
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush()
        && file.setPermissions(permissions) && file.commit())
        return QString();
    return QCoreApplication::translate("FileReplace", "无法写入 %1：%2")
        .arg(name, file.errorString());
}
