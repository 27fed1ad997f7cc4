#include "client/DataDirectory.h"
#include "client/Instance.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QProcess>

#include <csignal>
#include <memory>
#include <sys/stat.h>

namespace {

constexpr int startTime = 10000;

} // namespace

class tst_Restart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void waitsForTheClientToEnd();
    void startsAsItWasStarted();
    void comesBackAfterAKill();
    void passesAStaleLockFile();
    void worksWithoutALockFile();
    void givesUpAfterTheLimit();
    void secondRestarterFindsTheClientRunning();
    void reportsAMissingProgram();
    void reportsAProgramThatMayNotRun();
    void reportsAMissingStart_data();
    void reportsAMissingStart();
    void startsWithoutTheOldDirectory();
    void refusesOtherArguments_data();
    void refusesOtherArguments();

    void secondInstanceIsRefused();
    void childrenDoNotHoldTheLock();
    void installs();
    void installReportsTrouble();

private:
    // A stand-in for the client, which writes down how it was started.
    void makeProgram() const;
    bool programRan() const { return QFileInfo::exists(m_home->filePath(QStringLiteral("ran"))); }
    void writeStart(const QStringList& arguments = {}, const QString& directory = {}) const;
    std::unique_ptr<QProcess> startRestarter(const QStringList& arguments = {QStringLiteral("jy")},
                                             int limitSeconds = 20) const;
    QString log() const
    {
        return QString::fromUtf8(
            contentOf(m_home->filePath(QStringLiteral("data/run/restart.log"))));
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
    QString m_program;
};

void tst_Restart::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->filePath(QStringLiteral("data")));
    m_program = m_home->filePath(QStringLiteral("a client"));
    makeProgram();
    QVERIFY(m_directory->makeRunDirectory());
    const Instance instance(*m_directory);
    QCOMPARE(instance.installRestarter(QStringLiteral(RESTART_PROGRAM)), QString());
}

void tst_Restart::makeProgram() const
{
    const QString text
        = QStringLiteral("#!/bin/sh\n{ pwd; printf '%s\\n' \"$@\"; } > '%1'.$$\n"
                         "mv '%1'.$$ '%1'\n")
              .replace(QStringLiteral("%1"), m_home->filePath(QStringLiteral("ran")));
    writeFile(m_program, text.toLocal8Bit());
    QVERIFY(
        QFile::setPermissions(m_program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_Restart::writeStart(const QStringList& arguments, const QString& directory) const
{
    const Instance instance(*m_directory);
    QCOMPARE(
        instance.writeStart(directory.isEmpty() ? m_home->path() : directory, m_program, arguments),
        QString());
}

std::unique_ptr<QProcess> tst_Restart::startRestarter(const QStringList& arguments,
                                                      int limitSeconds) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TRADECLIENT_RESTART_LIMIT"), QString::number(limitSeconds));
    process->setProcessEnvironment(environment);
    process->start(m_directory->restartProgram(), arguments);
    return process;
}

void tst_Restart::waitsForTheClientToEnd()
{
    writeStart();
    auto client = std::make_unique<Instance>(*m_directory);
    QCOMPARE(client->claim(), QString());
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForStarted(startTime));
    QTest::qWait(300); // with nobody to wait for, the program runs within 60 ms
    QCOMPARE(restarter->state(), QProcess::Running);
    QVERIFY(!programRan());
    client.reset();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 0);
    QVERIFY(programRan());
    QCOMPARE(log(), QString());
}

void tst_Restart::startsAsItWasStarted()
{
    const QString directory = m_home->filePath(QStringLiteral("somewhere else"));
    QVERIFY(QDir().mkpath(directory));
    writeStart({QStringLiteral("--skin"), QStringLiteral("深色 皮肤"), QString(),
                QStringLiteral("$HOME \"'\\"), QStringLiteral("two\nlines")},
               directory);
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 0);
    QCOMPARE(
        contentOf(m_home->filePath(QStringLiteral("ran"))),
        (directory + QStringLiteral("\n--skin\n深色 皮肤\n\n$HOME \"'\\\ntwo\nlines\n")).toUtf8());
}

void tst_Restart::comesBackAfterAKill()
{
    writeStart();
    QProcess client;
    client.start(QStringLiteral(CLIENT_HELPER), {QStringLiteral("hold"), m_directory->home()});
    QVERIFY(client.waitForReadyRead(startTime));
    QCOMPARE(client.readAllStandardOutput(), QByteArray("held\n"));
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForStarted(startTime));
    QTest::qWait(200); // with nobody to wait for, the program runs within 60 ms
    QVERIFY(!programRan());
    client.kill();
    QVERIFY(client.waitForFinished(startTime));
    QVERIFY(restarter->waitForFinished(startTime));
    QVERIFY(programRan());
}

void tst_Restart::passesAStaleLockFile()
{
    writeStart();
    writeFile(m_directory->lockFile(), "99999\n");
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 0);
    QVERIFY(programRan());
}

void tst_Restart::worksWithoutALockFile()
{
    writeStart();
    QVERIFY(!QFileInfo::exists(m_directory->lockFile()));
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QVERIFY(programRan());
}

void tst_Restart::givesUpAfterTheLimit()
{
    writeStart();
    auto client = std::make_unique<Instance>(*m_directory);
    QCOMPARE(client->claim(), QString());
    QElapsedTimer timer;
    timer.start();
    const auto restarter = startRestarter({QStringLiteral("jy")}, 1);
    QVERIFY(restarter->waitForFinished(startTime));
    QVERIFY(timer.elapsed() >= 990);
    QCOMPARE(restarter->exitCode(), 1);
    QVERIFY(restarter->readAllStandardError().contains("still running after 1 seconds"));
    QVERIFY(log().contains(QStringLiteral("still running after 1 seconds")));
    client.reset();
    QTest::qWait(100); // a restarter that still waited would run it within 60 ms
    QVERIFY(!programRan());
}

void tst_Restart::secondRestarterFindsTheClientRunning()
{
    // The stand-in does not hold the lock, so both start it, one after the other: the client
    // itself refuses to run twice.
    writeStart();
    auto client = std::make_unique<Instance>(*m_directory);
    QCOMPARE(client->claim(), QString());
    const auto first = startRestarter();
    const auto second = startRestarter();
    QVERIFY(first->waitForStarted(startTime));
    QVERIFY(second->waitForStarted(startTime));
    client.reset();
    QVERIFY(first->waitForFinished(startTime));
    QVERIFY(second->waitForFinished(startTime));
    QCOMPARE(first->exitCode() + second->exitCode(), 0);
}

void tst_Restart::reportsAMissingProgram()
{
    writeStart();
    QVERIFY(QFile::remove(m_program));
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 1);
    const QString said = QString::fromUtf8(restarter->readAllStandardError());
    QVERIFY2(said.contains(m_program + QStringLiteral(": No such file")), qPrintable(said));
    QVERIFY(log().contains(m_program));
}

void tst_Restart::reportsAProgramThatMayNotRun()
{
    writeStart();
    QVERIFY(QFile::setPermissions(m_program, QFile::ReadOwner | QFile::WriteOwner));
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 1);
    QVERIFY(log().contains(m_program));
    QVERIFY(!programRan());
}

void tst_Restart::reportsAMissingStart_data()
{
    QTest::addColumn<bool>("there");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << false << QByteArray();
    QTest::newRow("empty file") << true << QByteArray();
    QTest::newRow("directory only") << true << QByteArray("/tmp\0", 5);
}

void tst_Restart::reportsAMissingStart()
{
    QFETCH(bool, there);
    QFETCH(QByteArray, content);
    if (there)
        writeFile(m_directory->startFile(), content);
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 1);
    QVERIFY(log().contains(m_directory->startFile()));
    QVERIFY(!programRan());
}

void tst_Restart::startsWithoutTheOldDirectory()
{
    writeStart({}, m_home->filePath(QStringLiteral("gone")));
    const auto restarter = startRestarter();
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 0);
    QVERIFY(programRan());
    QVERIFY(log().contains(m_home->filePath(QStringLiteral("gone"))));
}

void tst_Restart::refusesOtherArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("none") << QStringList();
    QTest::newRow("another") << QStringList{QStringLiteral("hq")};
    QTest::newRow("capitals") << QStringList{QStringLiteral("JY")};
    QTest::newRow("too many") << QStringList{QStringLiteral("jy"), QStringLiteral("jy")};
}

void tst_Restart::refusesOtherArguments()
{
    QFETCH(QStringList, arguments);
    writeStart();
    const auto restarter = startRestarter(arguments);
    QVERIFY(restarter->waitForFinished(startTime));
    QCOMPARE(restarter->exitCode(), 2);
    QVERIFY(restarter->readAllStandardError().contains("restart jy"));
    QVERIFY(!programRan());
}

void tst_Restart::secondInstanceIsRefused()
{
    auto first = std::make_unique<Instance>(*m_directory);
    QCOMPARE(first->claim(), QString());
    Instance second(*m_directory);
    const QString refusal = second.claim();
    QVERIFY2(refusal.contains(m_directory->home()), qPrintable(refusal));
    first.reset();
    QCOMPARE(second.claim(), QString());
    QCOMPARE(second.claim(), QString());
}

void tst_Restart::childrenDoNotHoldTheLock()
{
    auto client = std::make_unique<Instance>(*m_directory);
    QCOMPARE(client->claim(), QString());
    QProcess child;
    child.start(QStringLiteral("/bin/sleep"), {QStringLiteral("60")});
    QVERIFY(child.waitForStarted(startTime));
    client.reset();
    Instance next(*m_directory);
    QCOMPARE(next.claim(), QString());
    child.kill();
    QVERIFY(child.waitForFinished(startTime));
}

void tst_Restart::installs()
{
    const Instance instance(*m_directory);
    const QString place = m_home->filePath(QStringLiteral("data/restart"));
    const QByteArray program = contentOf(QStringLiteral(RESTART_PROGRAM));
    QVERIFY(program.size() > 1000);
    QCOMPARE(contentOf(place), program);
    QVERIFY(QFileInfo(place).isExecutable());

    const auto inode = [&place] {
        struct stat information = {};
        return ::stat(QFile::encodeName(place).constData(), &information) == 0 ? information.st_ino
                                                                               : 0;
    };
    const auto before = inode();
    QCOMPARE(instance.installRestarter(QStringLiteral(RESTART_PROGRAM)), QString());
    QVERIFY2(inode() == before, "the same file stays in place");

    writeFile(place, "an older one");
    QCOMPARE(instance.installRestarter(QStringLiteral(RESTART_PROGRAM)), QString());
    QCOMPARE(contentOf(place), program);

    QVERIFY(QFile::setPermissions(place, QFile::ReadOwner));
    QCOMPARE(instance.installRestarter(QStringLiteral(RESTART_PROGRAM)), QString());
    QVERIFY(QFileInfo(place).isExecutable());
}

void tst_Restart::installReportsTrouble()
{
    const Instance instance(*m_directory);
    const QString missing = m_home->filePath(QStringLiteral("no such"));
    QVERIFY(instance.installRestarter(missing).contains(missing));
    QVERIFY2(QFileInfo::exists(m_directory->restartProgram()), "the one that is there stays");

    const QString place = m_directory->restartProgram();
    QVERIFY(QFile::remove(place));
    QVERIFY(QDir().mkpath(place + QStringLiteral("/directory in the way")));
    QVERIFY(instance.installRestarter(QStringLiteral(RESTART_PROGRAM)).contains(place));
}

TRADECONFIG_TEST_MAIN(tst_Restart)
#include "tst_Restart.moc"
