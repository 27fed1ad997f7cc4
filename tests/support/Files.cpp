#include "support/Files.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

void writeFile(const QString& path, const QByteArray& content)
{
    // The toolkit knows a changed file by its size and time, and tests are faster than clocks.
    static int change = 0;
    const QDateTime time = QDateTime::currentDateTime().addSecs(-100000 + ++change);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(content) != content.size() || !file.flush()
        || !file.setFileTime(time, QFileDevice::FileModificationTime))
        qFatal("%s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
