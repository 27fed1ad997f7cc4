#include "appearance/Pictures.h"

#include <QPixmap>

Pictures::Pictures(const QString& directory)
    : folder(directory)
{
    if (!folder.mkpath(QStringLiteral(".")))
        failure = tr("无法创建目录 %1").arg(directory);
}

bool Pictures::add(const QString& name, const QPixmap& picture)
{
    if (!failure.isEmpty())
        return false;
    const QString file = folder.absoluteFilePath(name + QStringLiteral(".png"));
    if (picture.save(file, "PNG"))
        files += file;
    else
        failure = tr("无法写入 %1").arg(file);
    return failure.isEmpty();
}
