#include "support/TestMain.h"

#include <QFileInfo>
#include <QProcess>

/// The module beside a skin library that it was not built with.
class tst_SkinSwap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void searchPathYieldsToTheHost();
    void whoPaints_data();
    void whoPaints();
};

// An RPATH would win over the host's choice.
void tst_SkinSwap::searchPathYieldsToTheHost()
{
    QProcess reader;
    reader.start(QStringLiteral("readelf"), {QStringLiteral("-d"), QStringLiteral(MODULE_FILE)});
    QVERIFY2(reader.waitForFinished(), qPrintable(reader.errorString()));
    QCOMPARE(reader.exitCode(), 0);
    const QByteArray sections = reader.readAllStandardOutput();
    QVERIFY(!sections.contains("(RPATH)"));
    QVERIFY(sections.contains("(RUNPATH)"));
    QVERIFY(sections.contains("$ORIGIN"));
    QVERIFY(sections.contains("[libskin.so]"));
}

void tst_SkinSwap::whoPaints_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("colour");
    // The selected item of the light skin, and the one colour of the other service.
    QTest::newRow("the one beside the module")
        << QString() << QStringLiteral(SKIN_FILE) << QStringLiteral("#f8f9fb");
    QTest::newRow("another one") << QFileInfo(QStringLiteral(OTHER_SKIN_FILE)).path()
                                 << QStringLiteral(OTHER_SKIN_FILE) << QStringLiteral("#12ab34");
}

void tst_SkinSwap::whoPaints()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, service);
    QFETCH(const QString, colour);
    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LD_LIBRARY_PATH"));
    if (!folder.isEmpty())
        environment.insert(QStringLiteral("LD_LIBRARY_PATH"), folder);
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(SKIN_PROBE), {QStringLiteral(MODULE_FILE)});
    QVERIFY2(probe.waitForFinished(60000), qPrintable(probe.errorString()));
    QVERIFY2(probe.exitStatus() == QProcess::NormalExit && probe.exitCode() == 0,
             probe.readAllStandardError().constData());
    const QStringList lines
        = QString::fromLocal8Bit(probe.readAllStandardOutput()).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QCOMPARE(QFileInfo(lines.at(0)).canonicalFilePath(), QFileInfo(service).canonicalFilePath());
    QCOMPARE(lines.at(1), colour);
}

TRADECONFIG_TEST_MAIN(tst_SkinSwap)
#include "tst_SkinSwap.moc"
