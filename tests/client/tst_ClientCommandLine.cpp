#include "support/Files.h"
#include "support/TestMain.h"

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <csignal>
#include <memory>

namespace {

struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

/// The program as a user runs it, without a display.
class tst_ClientCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void help();
    void version();
    void refusesWhatItDoesNotKnow_data();
    void refusesWhatItDoesNotKnow();
    void missingModule();
    void missingModuleBesideTheProgram();
    void moduleThatIsNoLibrary();
    void moduleWithoutTheSymbol();
    void withoutADisplay();
    void speaksTheChosenLanguage_data();
    void speaksTheChosenLanguage();
    void helpSpeaksTheChosenLanguage_data();
    void helpSpeaksTheChosenLanguage();
    void settingThatAsksForTooMuch();

    void printsTheDefaults();
    void printsTheStoredRecord();
    void printRecordTellsOfAWrongValue();
    void outputThatCannotBeWritten();
    void screenshots_data();
    void screenshots();
    void screenshotsShowWhatIsSelected();
    void screenshotsIntoAFile();
    void galleryScreenshots();
    void skinThatCannotBeUsed_data();
    void skinThatCannotBeUsed();
    void skinOfTheUsersOwn();
    void checksASkin();

    void secondInstance();
    void secondInstanceWithoutAnAnswer();
    void comesBackAfterAKill();

private:
    QProcessEnvironment environment(const QString& platform = {}) const;
    Outcome run(const QStringList& arguments,
                const QString& program = QStringLiteral(CLIENT_PROGRAM),
                const QString& platform = {}) const;
    std::unique_ptr<QProcess> startClient() const;
    QString data(const QString& name) const
    {
        return m_home->filePath(QStringLiteral(".com.kivotrade.tradeclient/") + name);
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

void tst_ClientCommandLine::init() { m_home = std::make_unique<QTemporaryDir>(); }

QProcessEnvironment tst_ClientCommandLine::environment(const QString& platform) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home->path());
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    if (!platform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
#ifdef Q_OS_MACOS
    environment.insert(QStringLiteral("CFFIXED_USER_HOME"), m_home->path());
    // There is always a display: boxes would wait for somebody.
    if (platform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
#endif
    return environment;
}

Outcome tst_ClientCommandLine::run(const QStringList& arguments, const QString& program,
                                   const QString& platform) const
{
    QProcess process;
    process.setProcessEnvironment(environment(platform));
    process.start(program, arguments);
    Outcome outcome;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        outcome.status = process.exitCode();
    outcome.output = process.readAllStandardOutput();
    outcome.errors = process.readAllStandardError();
    return outcome;
}

void tst_ClientCommandLine::help()
{
    const Outcome outcome = run({QStringLiteral("--help")});
    QCOMPARE(outcome.status, 0);
    for (const char* const option : {"--help", "--version", "--screenshots", "--print-record"})
        QVERIFY2(outcome.output.contains(option), option);
    QVERIFY2(QDir(m_home->path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             "asking for help leaves nothing behind");
}

void tst_ClientCommandLine::version()
{
    const Outcome outcome = run({QStringLiteral("--version")});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QByteArray("tradeclient " CLIENT_VERSION "\n"));
}

void tst_ClientCommandLine::refusesWhatItDoesNotKnow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("option") << QStringList{QStringLiteral("--no-such-option")};
    QTest::newRow("argument") << QStringList{QStringLiteral("something")};
    QTest::newRow("no directory") << QStringList{QStringLiteral("--screenshots")};
    QTest::newRow("empty directory") << QStringList{QStringLiteral("--screenshots=")};
    const auto scaled = [](const char* scale) {
        return QStringList{QStringLiteral("--gallery"), QStringLiteral("--scale"),
                           QString::fromLatin1(scale)};
    };
    QTest::newRow("scale too small") << scaled("99");
    QTest::newRow("scale too large") << scaled("301");
    QTest::newRow("scale no number") << scaled("large");
    QTest::newRow("scale of the client")
        << QStringList{QStringLiteral("--scale"), QStringLiteral("150")};
}

void tst_ClientCommandLine::refusesWhatItDoesNotKnow()
{
    QFETCH(QStringList, arguments);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.status, 1);
    QVERIFY(!outcome.errors.isEmpty());
    QVERIFY(outcome.output.isEmpty());
}

void tst_ClientCommandLine::missingModule()
{
    const QString file = m_home->filePath(QStringLiteral("libnothing.so"));
    for (const QString& action : {QString(), QStringLiteral("--print-record")}) {
        QStringList arguments{QStringLiteral("--module"), file};
        if (!action.isEmpty())
            arguments += action;
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(file.toUtf8()), outcome.errors.constData());
        QVERIFY(outcome.errors.contains("文件不存在"));
        QVERIFY(outcome.output.isEmpty());
    }
}

void tst_ClientCommandLine::missingModuleBesideTheProgram()
{
    const QString program = m_home->filePath(QStringLiteral("bin/tradeclient"));
    QVERIFY(QDir().mkpath(m_home->filePath(QStringLiteral("bin"))));
    QVERIFY(QFile::copy(QStringLiteral(CLIENT_PROGRAM), program));
    QVERIFY(QDir().mkpath(m_home->filePath(QStringLiteral("lib"))));
    const QString skin = QStringLiteral(SKIN_LIBRARY);
    QVERIFY(
        QFile::copy(skin, m_home->filePath(QStringLiteral("lib/") + QFileInfo(skin).fileName())));
    const Outcome outcome = run({}, program, QStringLiteral("offscreen"));
    QCOMPARE(outcome.status, 1);
    const QString expected = m_home->filePath(QStringLiteral("lib/" MODULE_NAME));
    QVERIFY2(outcome.errors.contains(expected.toUtf8()), outcome.errors.constData());
}

void tst_ClientCommandLine::moduleThatIsNoLibrary()
{
    const QString file = m_home->filePath(QStringLiteral("libtext.so"));
    writeFile(file, "no library");
    const Outcome outcome = run({QStringLiteral("--module"), file});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(file.toUtf8() + "：无法加载库"), outcome.errors.constData());
}

void tst_ClientCommandLine::moduleWithoutTheSymbol()
{
    const Outcome outcome
        = run({QStringLiteral("--module"), QStringLiteral(LIBRARY_WITHOUT_FACTORY)});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(LIBRARY_WITHOUT_FACTORY), outcome.errors.constData());
    QVERIFY(outcome.errors.contains("CreateModuleWidget"));
}

void tst_ClientCommandLine::withoutADisplay()
{
#ifdef Q_OS_MACOS
    TEST_SKIP("There is always a display");
#endif
    const Outcome outcome = run({});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains("--screenshots"), outcome.errors.constData());
}

void tst_ClientCommandLine::speaksTheChosenLanguage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* tag, const QStringList& arguments, const char* expected) {
        QTest::newRow(tag) << arguments << QByteArray(expected);
    };
    const QString module = QStringLiteral("--module");
    row("help", {QStringLiteral("--help")}, "Print the trading parameters as JSON and quit.");
    row("surplus argument", {QStringLiteral("something")}, "Unexpected argument: something");
    row("missing module", {module, QStringLiteral("/no/such.so")}, "the file does not exist");
    row("module without the symbol", {module, QStringLiteral(LIBRARY_WITHOUT_FACTORY)},
        "it lacks the symbol CreateModuleWidget");
#ifndef Q_OS_MACOS
    row("no display", {}, "There is no display.");
#endif
    row("wrong value", {QStringLiteral("--print-record")},
        "lockMinutes holds -5, which is not valid (expected an integer from 0 to 1000)");
}

void tst_ClientCommandLine::speaksTheChosenLanguage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, expected);
    writeFile(data(QStringLiteral("config/system_settings.ini")), "[UI]\nlanguage=en_US\n");
    writeFile(data(QStringLiteral("config/trade_parameters.json")), R"({"lockMinutes": -5})");
    const Outcome outcome = run(arguments);
    const QByteArray said = outcome.output + outcome.errors;
    QVERIFY2(said.contains(expected), said.constData());
}

void tst_ClientCommandLine::helpSpeaksTheChosenLanguage_data()
{
    QTest::addColumn<QByteArray>("usage");
    QTest::addColumn<QByteArray>("options");
    QTest::newRow("zh_CN") << QByteArray("用法：") << QByteArray("选项：");
    QTest::newRow("zh_TW") << QByteArray("用法：") << QByteArray("選項：");
    QTest::newRow("en_US") << QByteArray("Usage: ") << QByteArray("Options:");
}

void tst_ClientCommandLine::helpSpeaksTheChosenLanguage()
{
    QFETCH(const QByteArray, usage);
    QFETCH(const QByteArray, options);
    writeFile(data(QStringLiteral("config/system_settings.ini")),
              QByteArray("[UI]\nlanguage=") + QTest::currentDataTag() + '\n');
    const Outcome outcome = run({QStringLiteral("--help")});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.output.startsWith(usage), outcome.output.constData());
    QVERIFY2(outcome.output.contains('\n' + options + '\n'), outcome.output.constData());
}

// It counts as absent, for the client when it starts and for the module when it shows its dialog.
void tst_ClientCommandLine::settingThatAsksForTooMuch()
{
    writeFile(data(QStringLiteral("config/system_settings.ini")),
              "[UI]\nscale=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\n");
    const Outcome printed = run({QStringLiteral("--print-record")});
    QVERIFY2(printed.status == 0, printed.errors.constData());
    const Outcome pictures
        = run({QStringLiteral("--screenshots"), m_home->filePath(QStringLiteral("pictures"))});
    QVERIFY2(pictures.status == 0, pictures.errors.constData());
}

void tst_ClientCommandLine::printsTheDefaults()
{
    const Outcome outcome = run({QStringLiteral("--print-record")});
    QCOMPARE(outcome.status, 0);
    const QJsonObject record = QJsonDocument::fromJson(outcome.output).object();
    QCOMPARE(record.size(), 41);
    QCOMPARE(record.value(QStringLiteral("uiPageMode")).toInt(), 2);
    QCOMPARE(record.value(QStringLiteral("lockMinutes")).toInt(), 30);
    QVERIFY2(!QFileInfo::exists(data(QStringLiteral("config"))), "printing stores nothing");
}

void tst_ClientCommandLine::printsTheStoredRecord()
{
    writeFile(data(QStringLiteral("config/trade_parameters.json")),
              R"({"lockMinutes": 77, "defaultPage": "zjgp", "foreign": true})");
    const Outcome outcome = run({QStringLiteral("--print-record")});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QByteArray());
    const QJsonObject record = QJsonDocument::fromJson(outcome.output).object();
    QCOMPARE(record.value(QStringLiteral("lockMinutes")).toInt(), 77);
    QCOMPARE(record.value(QStringLiteral("defaultPage")).toString(), QStringLiteral("zjgp"));
    QCOMPARE(record.value(QStringLiteral("splitMinQty")).toInt(), 100);
}

void tst_ClientCommandLine::printRecordTellsOfAWrongValue()
{
    writeFile(data(QStringLiteral("config/trade_parameters.json")), R"({"lockMinutes": -5})");
    const Outcome outcome = run({QStringLiteral("--print-record")});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains("lockMinutes"), outcome.errors.constData());
    QVERIFY(outcome.errors.contains("-5"));
    const QStringList files = QDir(data(QStringLiteral("config"))).entryList(QDir::Files);
    QCOMPARE(files, QStringList{QStringLiteral("trade_parameters.json")});
    QVERIFY(outcome.errors.contains(data(QStringLiteral("config/") + files.first()).toUtf8()));
    QCOMPARE(QJsonDocument::fromJson(outcome.output)
                 .object()
                 .value(QStringLiteral("lockMinutes"))
                 .toInt(),
             30);
}

void tst_ClientCommandLine::outputThatCannotBeWritten()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFileInfo::exists(full))
        TEST_SKIP("There is no such device");
    QProcess process;
    process.setProcessEnvironment(environment());
    process.setStandardOutputFile(full);
    process.start(QStringLiteral(CLIENT_PROGRAM), {QStringLiteral("--print-record")});
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains("No space left on device"), errors.constData());
}

void tst_ClientCommandLine::screenshots_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QByteArray() << QSize(659, 641);
    QTest::newRow("100") << QByteArray("100") << QSize(659, 641);
    QTest::newRow("150") << QByteArray("150") << QSize(989, 962);
    QTest::newRow("200") << QByteArray("200") << QSize(1318, 1282);
    QTest::newRow("300") << QByteArray("300") << QSize(1977, 1923);
    QTest::newRow("too large") << QByteArray("1000") << QSize(1977, 1923);
    QTest::newRow("too small") << QByteArray("50") << QSize(659, 641);
    QTest::newRow("no number") << QByteArray("large") << QSize(659, 641);
}

void tst_ClientCommandLine::screenshots()
{
    QFETCH(QByteArray, scale);
    QFETCH(QSize, size);
    if (!scale.isEmpty())
        writeFile(data(QStringLiteral("config/system_settings.ini")),
                  "[UI]\nscale=" + scale + "\n");
    const QString target = m_home->filePath(QStringLiteral("new/pictures"));
    const Outcome outcome = run({QStringLiteral("--screenshots"), target});
    QVERIFY2(outcome.status == 0, outcome.errors.constData());
    const QList<QByteArray> files = outcome.output.trimmed().split('\n');
    QCOMPARE(files.size(), 11);
    QSet<QByteArray> different;
    const double ratio = size.width() / 659.0;
    for (const QByteArray& file : files) {
        const QString name = QString::fromUtf8(file);
        QCOMPARE(QFileInfo(name).path(), target);
        const QImage image(name);
        QVERIFY2(!image.isNull(), file.constData());
        const bool isWindow = QFileInfo(name).baseName() == QLatin1String("client");
        const QSize expected = isWindow ? QSize(980, 680) * ratio : size;
        // A fraction of a pixel may be rounded either way.
        QVERIFY2(qAbs(image.width() - expected.width()) <= 1, file.constData());
        QVERIFY2(qAbs(image.height() - expected.height()) <= 1, file.constData());
        different.insert(contentOf(name));
    }
    QCOMPARE(different.size(), 11);
    QVERIFY2(!QFileInfo::exists(data(QStringLiteral("config/trade_parameters.json"))),
             "taking pictures stores nothing");
}

void tst_ClientCommandLine::screenshotsShowWhatIsSelected()
{
    const Outcome outcome
        = run({QStringLiteral("--screenshots"), m_home->filePath(QStringLiteral("pictures"))});
    QHash<QString, QImage> pages;
    for (const QByteArray& file : outcome.output.trimmed().split('\n'))
        pages.insert(QFileInfo(QString::fromUtf8(file)).baseName(),
                     QImage(QString::fromUtf8(file)));
    const auto list = [&pages](const char* page) {
        return pages.value(QLatin1String(page)).copy(0, 62, 120, 400);
    };
    const auto bar = [&pages](const char* page) {
        return pages.value(QLatin1String(page)).copy(0, 0, 659, 60);
    };
    QVERIFY(!list("system-1-page_3").isNull());
    QVERIFY(list("system-1-page_3") != list("system-2-page_4"));
    QVERIFY(bar("system-1-page_3") == bar("system-2-page_4"));
    QVERIFY(bar("system-1-page_3") != bar("trade-1-page_6"));
}

void tst_ClientCommandLine::galleryScreenshots()
{
    writeFile(data(QStringLiteral("config/system_settings.ini")), "[UI]\nscale=150\n");
    const auto widths = [this](const QStringList& scale) {
        const QString target = m_home->filePath(QStringLiteral("gallery"));
        const Outcome outcome
            = run(QStringList{QStringLiteral("--gallery"), QStringLiteral("--screenshots"), target}
                  + scale);
        QVector<int> result;
        for (const QByteArray& file : outcome.output.trimmed().split('\n'))
            result += QImage(QString::fromUtf8(file)).width();
        return result;
    };
    const QVector<int> plain = widths({QStringLiteral("--scale"), QStringLiteral("100")});
    QCOMPARE(plain.size(), 8);
    const QVector<int> fromSettings = widths({});
    const QVector<int> twice = widths({QStringLiteral("--scale"), QStringLiteral("200")});
    for (int page = 0; page < plain.size(); ++page) {
        // Texts are not exactly twice as wide.
        QVERIFY(plain[page] > 400);
        QVERIFY(qAbs(fromSettings[page] - plain[page] * 1.5) < plain[page] * 0.05);
        QVERIFY(qAbs(twice[page] - plain[page] * 2) < plain[page] * 0.05);
    }
    QVERIFY2(!QFileInfo::exists(data(QStringLiteral("config/trade_parameters.json"))),
             "the gallery stores nothing");
}

void tst_ClientCommandLine::skinThatCannotBeUsed_data()
{
    QTest::addColumn<bool>("hasTable");
    QTest::newRow("no such folder") << false;
    QTest::newRow("broken table") << true;
}

void tst_ClientCommandLine::skinThatCannotBeUsed()
{
    QFETCH(bool, hasTable);
    const QString skin = data(QStringLiteral("skin"));
    if (hasTable)
        writeFile(data(QStringLiteral("skin/skin.json")), "{");
    const auto firstPage = [this](const QString& name, const QString& target) {
        const Outcome outcome = run({QStringLiteral("--skin"), name,
                                     QStringLiteral("--screenshots"), m_home->filePath(target)});
        QImage image;
        if (outcome.status == 0)
            image.load(QString::fromUtf8(outcome.output.split('\n').first()));
        return qMakePair(image, outcome.errors);
    };
    const auto substitute = firstPage(skin, QStringLiteral("substitute"));
    QVERIFY2(substitute.second.contains(("无法使用皮肤 " + skin.toUtf8()).constData()),
             substitute.second.constData());
    const QByteArray reason = skin.toUtf8()
        + (hasTable ? QByteArray("/skin.json: 不是 JSON 表") : QByteArray(": 文件夹不存在"));
    QVERIFY2(substitute.second.contains(reason), substitute.second.constData());
    const auto light = firstPage(QStringLiteral("light"), QStringLiteral("light"));
    QVERIFY(!light.first.isNull());
    QCOMPARE(substitute.first, light.first);
}

void tst_ClientCommandLine::skinOfTheUsersOwn()
{
    writeFile(data(QStringLiteral("skins/mine/skin.json")),
              R"({"palette": {"Window": "#102030"}})");
    const Outcome outcome
        = run({QStringLiteral("--skin"), QStringLiteral("mine"), QStringLiteral("--screenshots"),
               m_home->filePath(QStringLiteral("pages"))});
    QVERIFY2(!outcome.errors.contains("无法使用皮肤"), outcome.errors.constData());
    const QImage page(QString::fromUtf8(outcome.output.split('\n').first()));
    QCOMPARE(page.pixelColor(page.width() - 3, page.height() - 3), QColor(0x10, 0x20, 0x30));
}

void tst_ClientCommandLine::checksASkin()
{
    const auto check = [this](const QString& folder) {
        return run({QStringLiteral("--check-skin"), folder});
    };
    const QString skin = m_home->filePath(QStringLiteral("skin"));
    const Outcome missing = check(skin);
    QCOMPARE(missing.status, 1);
    QCOMPARE(missing.output, skin.toUtf8() + ": 文件夹不存在\n");

    writeFile(skin + QStringLiteral("/skin.json"),
              R"({"colours": {"PopupClient": "blue", "PopupCleint": "#112233"}, "colors": {}})");
    const Outcome faulty = check(skin);
    QCOMPARE(faulty.status, 1);
    const QByteArray table = skin.toUtf8() + "/skin.json: ";
    const QList<QByteArray> lines = faulty.output.split('\n');
    for (const char* const line :
         {"PopupClient: 颜色必须是文本 #RRGGBB 或 #AARRGGBB", "PopupCleint: 没有这个键",
          "colors: 没有这一节", "logo: 缺少该键（image）"})
        QVERIFY2(lines.contains(table + line), faulty.output.constData());
    QVERIFY2(QDir(m_home->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                 == QStringList{QStringLiteral("skin")},
             "looking leaves nothing behind");

    const Outcome clean = check(QFileInfo(QStringLiteral(CLIENT_PROGRAM)).path()
                                + QStringLiteral("/../share/tradeConfig/skins/dark"));
    QVERIFY2(clean.status == 0, clean.output.constData());
}

void tst_ClientCommandLine::screenshotsIntoAFile()
{
    const QString target = m_home->filePath(QStringLiteral("file"));
    writeFile(target, "in the way");
    const Outcome outcome = run({QStringLiteral("--screenshots"), target});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(target.toUtf8()), outcome.errors.constData());
}

std::unique_ptr<QProcess> tst_ClientCommandLine::startClient() const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment(QStringLiteral("offscreen")));
    process->setWorkingDirectory(m_home->path());
    process->start(QStringLiteral(CLIENT_PROGRAM), QStringList());
    return process;
}

void tst_ClientCommandLine::secondInstance()
{
    const auto first = startClient();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(data(QStringLiteral("restart"))), 20000);
    QVERIFY(QFileInfo(data(QStringLiteral("restart"))).isExecutable());
    QVERIFY(QFileInfo(data(QStringLiteral("config"))).isDir());
    QCOMPARE(contentOf(data(QStringLiteral("run/client.start"))),
             m_home->path().toUtf8() + '\0' + CLIENT_PROGRAM + '\0');

    const Outcome second = run({}, QStringLiteral(CLIENT_PROGRAM), QStringLiteral("offscreen"));
    QCOMPARE(second.status, 0);
    QVERIFY2(!second.errors.contains("tradeclient:"), second.errors.constData());
    QCOMPARE(second.output, QByteArray());
    QCOMPARE(first->state(), QProcess::Running);
    // Reading is no second client.
    QCOMPARE(run({QStringLiteral("--print-record")}).status, 0);
    first->kill();
    QVERIFY(first->waitForFinished(20000));
}

void tst_ClientCommandLine::secondInstanceWithoutAnAnswer()
{
    const auto first = startClient();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(data(QStringLiteral("run/client.socket"))), 20000);
    QCOMPARE(::kill(pid_t(first->processId()), SIGSTOP), 0);
    const Outcome second = run({}, QStringLiteral(CLIENT_PROGRAM), QStringLiteral("offscreen"));
    QCOMPARE(::kill(pid_t(first->processId()), SIGCONT), 0);
    QCOMPARE(second.status, 1);
    QVERIFY2(second.errors.contains("已在运行"), second.errors.constData());
    QVERIFY(second.errors.contains(data(QString()).chopped(1).toUtf8()));

    // It answers again, and the one who gave up has done it no harm.
    QCOMPARE(run({}, QStringLiteral(CLIENT_PROGRAM), QStringLiteral("offscreen")).status, 0);
    QCOMPARE(first->state(), QProcess::Running);
    first->terminate();
    QVERIFY(first->waitForFinished(20000));
}

void tst_ClientCommandLine::comesBackAfterAKill()
{
    const auto first = startClient();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(data(QStringLiteral("restart"))), 20000);
    first->kill();
    QVERIFY(first->waitForFinished(20000));
    QVERIFY2(QFileInfo::exists(data(QStringLiteral("run/client.lock"))), "left behind");

    QVERIFY(QFile::remove(data(QStringLiteral("restart"))));
    const auto next = startClient();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(data(QStringLiteral("restart"))), 20000);
    QCOMPARE(next->state(), QProcess::Running);
    next->terminate();
    QVERIFY(next->waitForFinished(20000));
}

TRADECONFIG_TEST_MAIN(tst_ClientCommandLine)
#include "tst_ClientCommandLine.moc"
