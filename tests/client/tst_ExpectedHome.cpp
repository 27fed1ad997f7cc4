#include "client/ExpectedHome.h"
#include "support/Files.h"
#include "support/TestMain.h"
#include "tradeConfig/platform/HostPlatform.h"

/// Where the client looks before the module does.
class tst_ExpectedHome : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isWhereTheModuleLooks();
    void followsTheEnvironment_data();
    void followsTheEnvironment();
    void problem_data();
    void problem();
    void make_data();
    void make();

private:
    const QTemporaryDir m_home;
};

void tst_ExpectedHome::init() { qputenv("HOME", m_home.path().toUtf8()); }

void tst_ExpectedHome::isWhereTheModuleLooks()
{
    const QString expected = ExpectedHome::path();
    QVERIFY(expected.endsWith(QStringLiteral("/.com.kivotrade.tradeclient")));
    QCOMPARE(QString::fromUtf8(ApplicationHomePath()), expected);
}

void tst_ExpectedHome::followsTheEnvironment_data()
{
#ifdef Q_OS_MACOS
    TEST_SKIP("HOME counts for nothing there");
#endif
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* home, const QString& expected) {
        QTest::newRow(home) << QByteArray(home) << expected;
    };
    row("/h", QStringLiteral("/h/.com.kivotrade.tradeclient"));
    row("/h//", QStringLiteral("/h/.com.kivotrade.tradeclient"));
    row("/", QStringLiteral("/.com.kivotrade.tradeclient"));
    row("h/家", QStringLiteral("h/家/.com.kivotrade.tradeclient"));
    row("", QDir::currentPath());
}

void tst_ExpectedHome::followsTheEnvironment()
{
    QFETCH(const QByteArray, home);
    qputenv("HOME", home);
    QTEST(ExpectedHome::path(), "expected");
    if (home.isEmpty()) {
        qunsetenv("HOME");
        QTEST(ExpectedHome::path(), "expected");
    }
}

void tst_ExpectedHome::problem_data()
{
    QTest::addColumn<QString>("home"); // below the scratch directory
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("there") << QStringLiteral("there") << QByteArray();
    QTest::newRow("fresh") << QStringLiteral("fresh") << QByteArray();
    QTest::newRow("no home") << QStringLiteral("none") << QByteArray("No such file or directory");
    QTest::newRow("home is a file") << QStringLiteral("file") << QByteArray("Not a directory");
    QTest::newRow("in the way") << QStringLiteral("inTheWay") << QByteArray("Not a directory");
    QTest::newRow("too long") << QString(300, QLatin1Char('x')) << QByteArray("File name too long");
}

void tst_ExpectedHome::problem()
{
#ifdef Q_OS_MACOS
    TEST_SKIP("HOME counts for nothing there");
#endif
    QFETCH(const QString, home);
    QFETCH(const QByteArray, reason);
    const QTemporaryDir scratch;
    const QString name = QStringLiteral("/.com.kivotrade.tradeclient");
    QVERIFY(QDir(scratch.path()).mkpath(QStringLiteral("there") + name));
    QVERIFY(QDir(scratch.path()).mkpath(QStringLiteral("fresh")));
    writeFile(scratch.filePath(QStringLiteral("file")), "a file");
    writeFile(scratch.filePath(QStringLiteral("inTheWay") + name), "a file");
    qputenv("HOME", scratch.filePath(home).toUtf8());
    const QString problem = ExpectedHome::problem();
    if (reason.isEmpty()) {
        QCOMPARE(problem, QString());
    } else {
        QVERIFY2(problem.contains(scratch.filePath(home)), qPrintable(problem));
        QVERIFY2(problem.toUtf8().contains(reason), qPrintable(problem));
    }
    QVERIFY2(QDir(scratch.filePath(QStringLiteral("fresh")))
                 .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             "looking makes nothing");
}

void tst_ExpectedHome::make_data()
{
    QTest::addColumn<QString>("home"); // below the scratch directory
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("fresh") << QString() << QByteArray();
    QTest::newRow("no home") << QStringLiteral("none/deep") << QByteArray();
    QTest::newRow("home is a file") << QStringLiteral("file") << QByteArray("Not a directory");
    QTest::newRow("too long") << QString(300, QLatin1Char('x')) << QByteArray("File name too long");
}

void tst_ExpectedHome::make()
{
#ifdef Q_OS_MACOS
    TEST_SKIP("HOME counts for nothing there");
#endif
    QFETCH(const QString, home);
    QFETCH(const QByteArray, reason);
    const QTemporaryDir scratch;
    writeFile(scratch.filePath(QStringLiteral("file")), "a file");
    qputenv("HOME", scratch.filePath(home).toUtf8());
    const QString failure = ExpectedHome::make();
    QCOMPARE(QFileInfo(ExpectedHome::path()).isDir(), reason.isEmpty());
    if (reason.isEmpty()) {
        QCOMPARE(failure, QString());
        QCOMPARE(ExpectedHome::make(), QString());
    } else {
        QVERIFY2(failure.contains(scratch.filePath(home)), qPrintable(failure));
        QVERIFY2(failure.toUtf8().contains(reason), qPrintable(failure));
    }
}

TRADECONFIG_TEST_MAIN(tst_ExpectedHome)
#include "tst_ExpectedHome.moc"
