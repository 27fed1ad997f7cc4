#include "Files.h"

#include <QDateTime>
#include <QFile>
#include <QtTest>

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    QVERIFY(file.flush());
    // The toolkit knows a changed file by its size and time, and tests are faster than clocks.
    static int change = 0;
    const QDateTime time = QDateTime::currentDateTime().addSecs(-100000 + ++change);
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
