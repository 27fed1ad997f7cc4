#include "support/Files.h"
#include "support/TestMain.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <memory>
#include <sys/stat.h>

namespace {

// Far more than the program needs, far less than forever.
constexpr int patience = 10000;

struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

// Every file and directory below one, with its size and the time of its last change.
QStringList snapshot(const QString& directory)
{
    QStringList entries;
    const auto add = [&entries](const QFileInfo& info) {
        entries += QStringLiteral("%1 %2 %3")
                       .arg(info.filePath())
                       .arg(info.size())
                       .arg(info.lastModified().toMSecsSinceEpoch());
    };
    add(QFileInfo(directory));
    QDirIterator tree(directory,
                      QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        tree.next();
        add(tree.fileInfo());
    }
    entries.sort();
    return entries;
}

} // namespace

/// The program and the user's home: usable, unusable, missing.
class tst_ClientHome : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void helpTouchesNothing_data();
    void helpTouchesNothing();
    void unusableHomeIsTold_data();
    void unusableHomeIsTold();
    void helpSpeaksTheLanguageItFinds_data();
    void helpSpeaksTheLanguageItFinds();
    void picturesTakeTheirDirectoryAway_data();
    void picturesTakeTheirDirectoryAway();
    void clientMakesItsDirectory();
    void readingLeavesNoTrace_data();
    void readingLeavesNoTrace();
    void readingBesideARunningClient();
    void waitsForNoPipe();

private:
    QString place(const QString& name) const { return m_scratch->filePath(name); }
    QString data(const QString& home) const
    {
        return place(home) + QStringLiteral("/.com.kivotrade.tradeclient");
    }
    // A null home: the environment names none.
    QProcessEnvironment environment(const QString& home) const;
    Outcome run(const QStringList& arguments, const QString& home,
                const QString& directory = {}) const;

    std::unique_ptr<QTemporaryDir> m_scratch;
};

void tst_ClientHome::init()
{
    m_scratch = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_scratch->path()).mkpath(QStringLiteral("cwd")));
    QVERIFY(QDir(m_scratch->path()).mkpath(QStringLiteral("fresh")));
    QVERIFY(QDir().mkpath(data(QStringLiteral("empty"))));
    writeFile(place(QStringLiteral("file")), "a file");
    writeFile(data(QStringLiteral("inTheWay")), "a file");
}

QProcessEnvironment tst_ClientHome::environment(const QString& home) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {QStringLiteral("HOME"), QStringLiteral("CFFIXED_USER_HOME")}) {
        environment.insert(name, home);
        if (home.isNull())
            environment.remove(name);
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

Outcome tst_ClientHome::run(const QStringList& arguments, const QString& home,
                            const QString& directory) const
{
    QProcess process;
    process.setProcessEnvironment(environment(home));
    process.setWorkingDirectory(directory.isEmpty() ? place(QStringLiteral("cwd")) : directory);
    process.start(QStringLiteral(CLIENT_PROGRAM), arguments);
    Outcome outcome;
    if (process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit)
        outcome.status = process.exitCode();
    outcome.output = process.readAllStandardOutput();
    outcome.errors = process.readAllStandardError();
    return outcome;
}

void tst_ClientHome::helpTouchesNothing_data()
{
    QTest::addColumn<QString>("home"); // below the scratch directory, or absolute; null: none
    QTest::addColumn<QString>("directory");
    const auto row = [](const char* tag, const QString& home, const QString& directory = {}) {
        QTest::newRow(tag) << home << directory;
    };
    const QString longName(300, QLatin1Char('x'));
#ifndef Q_OS_MACOS
    row("no home", QString());
#endif
    row("fresh home", QStringLiteral("fresh"));
    row("empty data directory", QStringLiteral("empty"));
    row("missing home", QStringLiteral("missing/deep"));
    row("file in the way", QStringLiteral("inTheWay"));
    row("home is a file", QStringLiteral("file"));
    row("name too long", longName);
    row("path too long", QStringLiteral("a/").repeated(3000));
    row("nothing can be made anywhere", QStringLiteral("/dev/null"), QStringLiteral("/proc"));
    row("nor here", QStringLiteral("/proc/none"), QStringLiteral("/proc"));
}

void tst_ClientHome::helpTouchesNothing()
{
    QFETCH(QString, home);
    QFETCH(QString, directory);
    if (!home.isNull())
        home = QDir::isAbsolutePath(home) ? home : place(home);
    const QStringList before = snapshot(m_scratch->path());
    const Outcome help = run({QStringLiteral("--help")}, home, directory);
    QCOMPARE(help.status, 0);
    QVERIFY2(help.output.contains("--print-record"), help.output.constData());
    QCOMPARE(help.errors, QByteArray());
    const Outcome version = run({QStringLiteral("--version")}, home, directory);
    QCOMPARE(version.status, 0);
    QCOMPARE(version.output, QByteArray("tradeclient " CLIENT_VERSION "\n"));
    QCOMPARE(snapshot(m_scratch->path()), before);
}

void tst_ClientHome::unusableHomeIsTold_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QStringList>("arguments");
    struct Home {
        const char* tag;
        QString home;
        QString directory;
    };
    const Home homes[] = {
        {"file in the way", QStringLiteral("inTheWay"), {}},
        {"home is a file", QStringLiteral("file"), {}},
        {"name too long", QString(300, QLatin1Char('x')), {}},
        {"path too long", QStringLiteral("a/").repeated(3000) + QLatin1Char('a'), {}},
        {"nothing can be made anywhere", QStringLiteral("/dev/null"), QStringLiteral("/proc")},
        {"nor here", QStringLiteral("/proc/none"), QStringLiteral("/proc")},
    };
    for (const Home& row : homes) {
        QTest::addRow("%s, client", row.tag) << row.home << row.directory << QStringList();
        QTest::addRow("%s, record", row.tag)
            << row.home << row.directory << QStringList{QStringLiteral("--print-record")};
        QTest::addRow("%s, pictures", row.tag)
            << row.home << row.directory
            << QStringList{QStringLiteral("--screenshots"), QStringLiteral("pictures")};
    }
}

void tst_ClientHome::unusableHomeIsTold()
{
    QFETCH(QString, home);
    QFETCH(const QString, directory);
    QFETCH(QStringList, arguments);
    home = QDir::isAbsolutePath(home) ? home : place(home);
    if (arguments.size() == 2)
        arguments[1] = place(arguments[1]);
    const QStringList before = snapshot(m_scratch->path());
    const Outcome outcome = run(arguments, home, directory);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(home.toUtf8()), outcome.errors.constData());
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(snapshot(m_scratch->path()), before);
}

void tst_ClientHome::helpSpeaksTheLanguageItFinds_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("config") << QStringLiteral("config/system_settings.ini");
    QTest::newRow("no config") << QStringLiteral("system_settings.ini");
}

void tst_ClientHome::helpSpeaksTheLanguageItFinds()
{
    QFETCH(const QString, file);
    writeFile(data(QStringLiteral("fresh")) + QLatin1Char('/') + file, "[UI]\nlanguage=en_US\n");
    const QStringList before = snapshot(m_scratch->path());
    const Outcome outcome = run({QStringLiteral("--help")}, place(QStringLiteral("fresh")));
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.output.contains("Print the trading parameters as JSON and quit."),
             outcome.output.constData());
    QCOMPARE(snapshot(m_scratch->path()), before);
}

void tst_ClientHome::picturesTakeTheirDirectoryAway_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<bool>("stays");
    QTest::newRow("fresh") << QStringLiteral("fresh") << false;
    QTest::newRow("empty data directory") << QStringLiteral("empty") << true;
}

void tst_ClientHome::picturesTakeTheirDirectoryAway()
{
    QFETCH(const QString, home);
    QFETCH(const bool, stays);
    const Outcome outcome
        = run({QStringLiteral("--screenshots"), place(QStringLiteral("pictures"))}, place(home));
    QVERIFY2(outcome.status == 0, outcome.errors.constData());
    QCOMPARE(outcome.output.count('\n'), 11); // ten pages and the client's window
    QVERIFY(QFileInfo(place(home)).isDir());
    QCOMPARE(QFileInfo::exists(data(home)), stays);
}

void tst_ClientHome::clientMakesItsDirectory()
{
    QProcess client;
    client.setProcessEnvironment(environment(place(QStringLiteral("missing/deep"))));
    client.start(QStringLiteral(CLIENT_PROGRAM), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(
        QFileInfo::exists(data(QStringLiteral("missing/deep")) + QStringLiteral("/restart")),
        patience);
    QCOMPARE(client.state(), QProcess::Running);
    client.terminate();
    QVERIFY(client.waitForFinished(patience));
}

void tst_ClientHome::readingLeavesNoTrace_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QByteArray>("told");
    const QStringList print{QStringLiteral("--print-record")};
    const QStringList draw{QStringLiteral("--screenshots"), QStringLiteral("pictures")};
    for (const QStringList& arguments : {print, draw}) {
        const auto row = [&arguments](const char* tag, const char* record, const char* told) {
            QTest::addRow("%s, %s", qPrintable(arguments.first()), tag)
                << arguments << QByteArray(record) << QByteArray(told);
        };
        row("right", R"({"lockMinutes": 7, "foreign": 1})", "");
        row("a wrong value", R"({"lockMinutes": 7, "splitMaxQty": "x"})", "splitMaxQty");
        row("no JSON", "lockMinutes = 7", "trade_parameters.json");
    }
}

void tst_ClientHome::readingLeavesNoTrace()
{
    QFETCH(QStringList, arguments);
    QFETCH(const QByteArray, record);
    QFETCH(const QByteArray, told);
    const bool prints = arguments.size() == 1;
    if (!prints)
        arguments[1] = place(arguments[1]);
    const QString home = QStringLiteral("empty");
    writeFile(data(home) + QStringLiteral("/config/trade_parameters.json"), record);
    writeFile(data(home) + QStringLiteral("/config/client.ini"), "[View]\nskin=dark\n");
    const QStringList before = snapshot(place(home));
    const Outcome outcome = run(arguments, place(home));
    QCOMPARE(outcome.status, told.isEmpty() ? 0 : 1);
    QVERIFY2(outcome.errors.contains(told), outcome.errors.constData());
    QVERIFY(outcome.output.count('\n') >= 10);
    if (prints) {
        const QJsonObject printed = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(printed.size(), 41);
        QCOMPARE(printed.value(QStringLiteral("lockMinutes")).toInt(),
                 record.startsWith('{') ? 7 : 30);
        QCOMPARE(printed.value(QStringLiteral("splitMaxQty")).toInt(), 50000);
        if (told.isEmpty())
            QCOMPARE(outcome.errors, QByteArray());
    }
    QCOMPARE(snapshot(place(home)), before);
}

void tst_ClientHome::readingBesideARunningClient()
{
    const QString home = QStringLiteral("empty");
    writeFile(data(home) + QStringLiteral("/config/trade_parameters.json"),
              R"({"lockMinutes": 7})");
    QProcess client;
    client.setProcessEnvironment(environment(place(home)));
    client.start(QStringLiteral(CLIENT_PROGRAM), QStringList());
    // The last file that it makes.
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(data(home) + QStringLiteral("/run/client.socket")),
                             patience);

    const QStringList before = snapshot(place(home));
    QCOMPARE(run({QStringLiteral("--print-record")}, place(home)).status, 0);
    QCOMPARE(run({QStringLiteral("--screenshots"), place(QStringLiteral("pictures"))}, place(home))
                 .status,
             0);
    QCOMPARE(snapshot(place(home)), before);
    QCOMPARE(client.state(), QProcess::Running);
    client.terminate();
    QVERIFY(client.waitForFinished(patience));
}

// Whoever opens a pipe waits until somebody writes into it.
void tst_ClientHome::waitsForNoPipe()
{
    const QString home = place(QStringLiteral("empty"));
    const QString config = data(QStringLiteral("empty")) + QStringLiteral("/config/");
    QVERIFY(QDir().mkpath(config));
    for (const char* const name : {"system_settings.ini", "client.ini", "trade_parameters.json"}) {
        const QByteArray pipe = QFile::encodeName(config + QLatin1String(name));
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    }
    QCOMPARE(run({QStringLiteral("--help")}, home).status, 0);
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--print-record")},
          QStringList{QStringLiteral("--screenshots"), place(QStringLiteral("pictures"))}}) {
        // The module reads its settings file as the toolkit does.
        QFile::remove(config + QStringLiteral("system_settings.ini"));
        const Outcome outcome = run(arguments, home);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(
            outcome.errors.contains((config + QStringLiteral("trade_parameters.json")).toUtf8()),
            outcome.errors.constData());
        QVERIFY(outcome.output.count('\n') >= 10);
    }
}

TRADECONFIG_TEST_MAIN(tst_ClientHome)
#include "tst_ClientHome.moc"
