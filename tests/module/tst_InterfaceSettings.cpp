#include "support/Files.h"
#include "support/ModalAnswer.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/InterfaceSettings.h"
#include "tradeConfig/platform/HostPlatform.h"

#include <QDirIterator>
#include <QSettings>
#include <QSignalSpy>

#include <csignal>
#include <sys/resource.h>

namespace {

const QString question = QStringLiteral("部分修改需要重启后生效，确定现在重启吗？");

QString homePath() { return QString::fromUtf8(ApplicationHomePath()); }

QString homeFile() { return homePath() + QStringLiteral("/system_settings.ini"); }

QString configPath() { return homePath() + QStringLiteral("/config"); }

QString configFile() { return configPath() + QStringLiteral("/system_settings.ini"); }

QVariant stored(const char* key)
{
    return QSettings(configFile(), QSettings::IniFormat).value(QString::fromLatin1(key));
}

/// Everything in the data directory, sorted.
QStringList listing()
{
    QStringList names;
    QDirIterator all(homePath(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        names << QDir(homePath()).relativeFilePath(all.next());
    names.sort();
    return names;
}

/// Lets no file of this process grow beyond a number of bytes, as a full disk would.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

/// Takes the place of the restarter: writes down how it was started.
void installRestarter()
{
    const QString program = homePath() + QStringLiteral("/restart");
    writeFile(program,
              "#!/bin/sh\n"
              "dir=$(dirname \"$0\")\n"
              "for argument in \"$@\"; do echo \"[$argument]\"; done > \"$dir/started.part\"\n"
              "mv \"$dir/started.part\" \"$dir/started\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray restarted() { return contentOf(homePath() + QStringLiteral("/started")); }

/// Runs the event loop; true if the application asked to quit with code 0.
bool quits()
{
    constexpr int gaveUp = 77;
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, qApp, [] { QCoreApplication::exit(gaveUp); });
    limit.start(200);
    return QCoreApplication::exec() == 0;
}

struct Dialog : TestDialog {
    Dialog()
        : TestDialog([](FakeTrade& core) {
            core.parm().uiPageMode = 2;
            core.parm().languageIndex = 55;
        })
    {
    }

    QComboBox& language() const { return *get()->ui.comboBox_system_language; }
    QSpinBox& scale() const { return *get()->ui.spinBox_scale; }
};

} // namespace

// The data directory is looked up once a process, so all cases share one and clean it first.
class tst_InterfaceSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void path();
    void directoryIsNeverCreated();
    void fallback();
    void configThatIsAFile();
    void reading_data();
    void reading();
    void writing_data();
    void writing();
    void keepsForeignKeys();
    void openedAnewEachTime();

    void badFiles_data();
    void badFiles();
    void goodFiles_data();
    void goodFiles();
    void linesThatAreNoSettings();
    void valuesThatAskForTooMuch_data();
    void valuesThatAskForTooMuch();
    void valueThatCannotBeMadeAText();
    void directoryInItsPlace();
    void unwritableDirectory();
    void fullDisk_data();
    void fullDisk();

    void loadingAsksNothing_data();
    void loadingAsksNothing();
    void loadLanguageIsSilent();
    void scaleShown_data();
    void scaleShown();

    void languageChangedWritesAtOnce_data();
    void languageChangedWritesAtOnce();
    void languageChangedStoresItsIndex_data();
    void languageChangedStoresItsIndex();
    void cancelKeepsTheLanguage();
    void restartQuestion();
    void restartOtherwise_data();
    void restartOtherwise();
    void restartYes();
    void restartMissingProgram();

    void scaleOnlySetsTheFlag();
    void confirmWithoutChangeAsksNothing();
    void confirmAsksBeforeValidating();
    void confirmNoStillSaves();
    void confirmYesSavesToo();
    void confirmYesWithBadInputDoesNotSave();
    void flagIsNeverCleared();
};

void tst_InterfaceSettings::init()
{
    QDir(homePath()).removeRecursively();
    QVERIFY(QDir().mkpath(configPath()));
}

void tst_InterfaceSettings::path()
{
    QVERIFY(homePath().endsWith(QStringLiteral("/.com.kivotrade.tradeclient")));
    QCOMPARE(InterfaceSettings::filePath(), configFile());
}

void tst_InterfaceSettings::directoryIsNeverCreated()
{
    QVERIFY(QDir(configPath()).removeRecursively());
    InterfaceSettings::languageIndex();
    InterfaceSettings::scale();
    QCOMPARE(listing(), QStringList());
    InterfaceSettings::save(1, 120);
    QCOMPARE(listing(), QStringList{QStringLiteral("system_settings.ini")});
}

void tst_InterfaceSettings::fallback()
{
    QVERIFY(QDir(configPath()).removeRecursively());
    QCOMPARE(InterfaceSettings::filePath(), homeFile());
    writeFile(homeFile(), "[UI]\nlanguage=en_US\nscale=150\n");
    QCOMPARE(InterfaceSettings::languageIndex(), 2);
    QCOMPARE(InterfaceSettings::scale(), 150);

    // Once the directory is there, so is the file that counts.
    QVERIFY(QDir().mkpath(configPath()));
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
}

void tst_InterfaceSettings::configThatIsAFile()
{
    QVERIFY(QDir(configPath()).removeRecursively());
    writeFile(configPath(), "no directory");
    QCOMPARE(InterfaceSettings::filePath(), homeFile());
    InterfaceSettings::save(2, 200);
    QCOMPARE(InterfaceSettings::languageIndex(), 2);
    QCOMPARE(contentOf(configPath()), QByteArray("no directory"));
}

void tst_InterfaceSettings::reading_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("scale");
    const auto row = [](const char* name, const char* content, int language, int scale) {
        QTest::newRow(name) << QByteArray(content) << language << scale;
    };
    row("empty", "", 0, 0);
    row("simplified", "[UI]\nlanguage=zh_CN\nscale=100\n", 0, 100);
    row("traditional", "[UI]\nlanguage=zh_TW\nscale=105\n", 1, 105);
    row("English", "[UI]\nlanguage=en_US\nscale=300\n", 2, 300);
    row("unknown", "[UI]\nlanguage=fr_FR\n", 0, 0);
    row("case", "[UI]\nlanguage=EN_us\n", 0, 0);
    row("empty code", "[UI]\nlanguage=\n", 0, 0);
    row("index for code", "[UI]\nlanguage=2\n", 0, 0);
    row("other section", "[Other]\nlanguage=en_US\nscale=200\n", 0, 0);
    row("no section", "language=en_US\nscale=200\n", 0, 0);
    row("scale only", "[UI]\nscale=250\n", 0, 250);
    row("scale is no number", "[UI]\nscale=big\n", 0, 0);
    row("scale is not clamped here", "[UI]\nscale=9999\n", 0, 9999);
    row("negative scale", "[UI]\nscale=-1\n", 0, -1);
}

void tst_InterfaceSettings::reading()
{
    QFETCH(QByteArray, content);
    writeFile(configFile(), content);
    QTEST(InterfaceSettings::languageIndex(), "language");
    QTEST(InterfaceSettings::scale(), "scale");
    QCOMPARE(contentOf(configFile()), content);
}

void tst_InterfaceSettings::writing_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("code");
    QTest::newRow("0") << 0 << "zh_CN";
    QTest::newRow("1") << 1 << "zh_TW";
    QTest::newRow("2") << 2 << "en_US";
    QTest::newRow("3") << 3 << "zh_CN";
    QTest::newRow("-1") << -1 << "zh_CN";
    QTest::newRow("100") << 100 << "zh_CN";
}

void tst_InterfaceSettings::writing()
{
    QFETCH(int, index);
    InterfaceSettings::save(index, 135);
    QTEST(stored("UI/language").toString(), "code");
    QCOMPARE(stored("UI/scale").toInt(), 135);
    QVERIFY(contentOf(configFile()).contains("[UI]\n"));
    QVERIFY(contentOf(configFile()).contains("scale=135\n"));
}

void tst_InterfaceSettings::keepsForeignKeys()
{
    writeFile(configFile(), "[Other]\nname=value\n[UI]\nfont=big\nscale=100\n");
    InterfaceSettings::save(1, 110);
    QCOMPARE(stored("Other/name").toString(), QStringLiteral("value"));
    QCOMPARE(stored("UI/font").toString(), QStringLiteral("big"));
    QCOMPARE(stored("UI/scale").toInt(), 110);
}

void tst_InterfaceSettings::openedAnewEachTime()
{
    writeFile(configFile(), "[UI]\nscale=100\n");
    QCOMPARE(InterfaceSettings::scale(), 100);
    writeFile(configFile(), "[UI]\nscale=1000\n");
    QCOMPARE(InterfaceSettings::scale(), 1000);
}

void tst_InterfaceSettings::goodFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::newRow("byte order mark")
        << QByteArray("\xEF\xBB\xBF[UI]\nscale=100\n[Other]\nname=value\n") << "value";
    QTest::newRow("continued") << QByteArray("[UI]\nscale=100\n[Other]\nname=val\\\nue\n")
                               << "value";
    QTest::newRow("continued twice")
        << QByteArray("[Other]\nname=val\\\nu\\\ne\n[UI]\nscale=100\n") << "value";
    QTest::newRow("continued, with carriage returns")
        << QByteArray("[UI]\r\nscale=100\r\n[Other]\r\nname=val\\\r\nue\r\n") << "value";
    QTest::newRow("comment") << QByteArray(";[UI\n[UI]\nscale=100\n[Other]\nname=value\n")
                             << "value";
}

void tst_InterfaceSettings::goodFiles()
{
    QFETCH(QByteArray, content);
    writeFile(configFile(), content);
    QCOMPARE(InterfaceSettings::scale(), 100);
    InterfaceSettings::save(2, 145);
    QCOMPARE(InterfaceSettings::scale(), 145);
    QTEST(stored("Other/name").toString(), "name");
}

void tst_InterfaceSettings::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray bytes;
    for (int value = 0; value < 20000; ++value)
        bytes.append(char((value * 7919) >> 3));
    QTest::newRow("bytes") << bytes;
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("open section") << QByteArray("[UI\nlanguage");
    QTest::newRow("no assignment") << QByteArray("[UI]\nlanguage\nscale\n");
    QTest::newRow("an escaped backslash continues nothing")
        << QByteArray("[UI]\nlanguage=a\\\\\nrubbish\n");
    QTest::newRow("rubbish is not continued") << QByteArray("[UI]\nrubbish\\\na=b\n");
    QTest::newRow("one long line") << QByteArray(1000000, 'x');
    QTest::newRow("bad escapes") << QByteArray("[UI]\nlanguage=\\x\nscale=@Variant(\\0\\0)\n");
}

void tst_InterfaceSettings::badFiles()
{
    QFETCH(QByteArray, content);
    writeFile(configFile(), content);
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
    {
        const Dialog dialog;
        QCOMPARE(dialog.language().currentIndex(), 0);
        QCOMPARE(dialog.scale().value(), 100);
    }
    QCOMPARE(contentOf(configFile()), content);
    const QStringList before = listing();
    InterfaceSettings::save(2, 145);
    QCOMPARE(InterfaceSettings::languageIndex(), 2);
    QCOMPARE(InterfaceSettings::scale(), 145);
    QCOMPARE(listing(), before);
}

// As the toolkit has it: what is no setting goes, whatever else the file holds stays.
void tst_InterfaceSettings::linesThatAreNoSettings()
{
    writeFile(configFile(),
              "rubbish\n[UI]\nlanguage=zh_TW\nmore rubbish\nscale=125\n[Other]\nname=value\n");
    const QStringList before = listing();
    QCOMPARE(InterfaceSettings::languageIndex(), 1);
    QCOMPARE(InterfaceSettings::scale(), 125);
    InterfaceSettings::save(2, 145);
    QCOMPARE(contentOf(configFile()),
             QByteArray("[Other]\nname=value\n\n[UI]\nlanguage=en_US\nscale=145\n"));
    QCOMPARE(listing(), before);
}

void tst_InterfaceSettings::valuesThatAskForTooMuch_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QByteArray>("saved");
    const QByteArray list("@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)");
    const QByteArray variants("@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xf0zz)");
    const QByteArray other("[Other]\nname=value\n\n");
    const QByteArray ours("[UI]\nlanguage=en_US\nscale=145\n");
    QTest::newRow("scale") << "[UI]\nlanguage=zh_TW\nscale=" + list + "\n" + other << 1 << 0
                           << other + ours;
    QTest::newRow("scale first") << "[UI]\nscale=" + list + "\nlanguage=zh_TW\n" + other << 1 << 0
                                 << other + ours;
    QTest::newRow("language") << "[UI]\nlanguage=" + variants + "\nscale=125\n" << 0 << 125 << ours;
    QTest::newRow("both") << "[UI]\nlanguage=" + list + "\nscale=" + variants + "\n"
                          << 0 << 0 << ours;
    QTest::newRow("in quotes") << "[UI]\nlanguage=zh_TW\nscale=\"" + list + "\"\n"
                               << 1 << 0 << ours;
    QTest::newRow("after spaces") << "[UI]\nlanguage=zh_TW\nscale = " + list + "\n"
                                  << 1 << 0 << ours;
    QTest::newRow("on two lines") << QByteArray(
        "[UI]\nlanguage=zh_TW\nscale=@Variant(\\0\\0\\0\\v\\x7f\\xff\\\n\\xff\\xf0zz)\n")
                                  << 1 << 0 << ours;
    // What others keep in the file stays there as a text, which the toolkit writes in its own way.
    QTest::newRow("beside ours") << "[UI]\nfont=" + list + "\nlanguage=zh_TW\nscale=125\n"
                                 << 1 << 125 << "[UI]\nfont=@String(" + list + ")" + ours.mid(4);
    QTest::newRow("in a list") << "[UI]\nfont=a, " + list + "\nlanguage=zh_TW\nscale=125\n"
                               << 1 << 125 << "[UI]\nfont=a, @String(" + list + ")" + ours.mid(4);
    QTest::newRow("in another section") << "[Other]\nfont=" + list + "\nname=value\n\n"
            + ours << 2 << 145 << "[Other]\nfont=@String(" + list + ")\nname=value\n\n" + ours;
}

void tst_InterfaceSettings::valuesThatAskForTooMuch()
{
    QFETCH(QByteArray, content);
    writeFile(configFile(), content);
    const QStringList before = listing();
    QTEST(InterfaceSettings::languageIndex(), "language");
    QTEST(InterfaceSettings::scale(), "scale");
    {
        const Dialog dialog;
        QTEST(dialog.language().currentIndex(), "language");
    }
    QCOMPARE(contentOf(configFile()), content);
    InterfaceSettings::save(2, 145);
    QTEST(contentOf(configFile()), "saved");
    QCOMPARE(listing(), before);
    QCOMPARE(InterfaceSettings::languageIndex(), 2);
    QCOMPARE(InterfaceSettings::scale(), 145);
}

// Its notation hides in escapes: what the toolkit can neither read nor write is left alone.
void tst_InterfaceSettings::valueThatCannotBeMadeAText()
{
    const QByteArray content
        = "[UI]\nlanguage=zh_TW\nscale=\\x40Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\n";
    writeFile(configFile(), content);
    const QStringList before = listing();
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
    InterfaceSettings::save(2, 145);
    QCOMPARE(contentOf(configFile()), content);
    QCOMPARE(listing(), before);
    // And no value is kept back that another writer of the file would find set.
    writeFile(configFile(), "[UI]\nscale=125\n");
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 125);
}

void tst_InterfaceSettings::directoryInItsPlace()
{
    QVERIFY(QDir().mkpath(configFile() + QStringLiteral("/inner")));
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
    const QStringList before = listing();
    InterfaceSettings::save(2, 145);
    QCOMPARE(listing(), before);
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
}

void tst_InterfaceSettings::unwritableDirectory()
{
    // A system directory in which not even root makes files.
#ifdef Q_OS_MACOS
    const QString system = QStringLiteral("/System");
#else
    const QString system = QStringLiteral("/proc/self");
#endif
    QVERIFY(QDir(configPath()).removeRecursively());
    QVERIFY(QFile::link(system, configPath()));
    QVERIFY(InterfaceSettings::filePath().startsWith(configPath()));
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    InterfaceSettings::save(2, 145);
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(listing().filter(QStringLiteral("settings")), QStringList());
}

void tst_InterfaceSettings::fullDisk_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("nothing fits") << 0;
    QTest::newRow("half of the file fits") << 2000;
}

void tst_InterfaceSettings::fullDisk()
{
    QFETCH(int, bytes);
    const QByteArray content
        = "[Other]\nfiller=" + QByteArray(4000, 'x') + "\n\n[UI]\nlanguage=zh_TW\nscale=125\n";
    writeFile(configFile(), content);
    const QStringList before = listing();
    {
        const FullDisk full{rlim_t(bytes)};
        InterfaceSettings::save(2, 300);
    }
    QCOMPARE(contentOf(configFile()), content);
    QCOMPARE(listing(), before);
    QCOMPARE(InterfaceSettings::languageIndex(), 1);
    QCOMPARE(InterfaceSettings::scale(), 125);
    // With room again it works.
    InterfaceSettings::save(2, 300);
    QCOMPARE(InterfaceSettings::scale(), 300);
    QCOMPARE(listing(), before);
}

void tst_InterfaceSettings::loadingAsksNothing_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<int>("index");
    QTest::newRow("zh_CN") << QByteArray("zh_CN") << 0;
    QTest::newRow("zh_TW") << QByteArray("zh_TW") << 1;
    QTest::newRow("en_US") << QByteArray("en_US") << 2;
}

void tst_InterfaceSettings::loadingAsksNothing()
{
    QFETCH(QByteArray, code);
    const QByteArray content = "[UI]\nlanguage=" + code + "\nscale=200\n";
    writeFile(configFile(), content);
    const Dialog dialog; // a question would block here for ever
    QTEST(dialog.language().currentIndex(), "index");
    QCOMPARE(dialog.scale().value(), 200);
    QVERIFY(!dialog->restartNeeded);
    QCOMPARE(const_cast<Dialog&>(dialog).trade.parm().languageIndex, 55);
    QCOMPARE(contentOf(configFile()), content);
}

void tst_InterfaceSettings::loadLanguageIsSilent()
{
    const Dialog dialog;
    const QSignalSpy changed(&dialog.language(),
                             QOverload<int>::of(&QComboBox::currentIndexChanged));
    writeFile(configFile(), "[UI]\nlanguage=zh_TW\n");
    dialog->loadLanguage();
    QCOMPARE(dialog.language().currentIndex(), 1);
    QCOMPARE(changed.size(), 0);
    QVERIFY(!dialog.language().signalsBlocked());
}

void tst_InterfaceSettings::scaleShown_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("shown");
    QTest::newRow("absent") << QByteArray("[UI]\n") << 100;
    QTest::newRow("below") << QByteArray("[UI]\nscale=99\n") << 100;
    QTest::newRow("between the steps") << QByteArray("[UI]\nscale=103\n") << 103;
    QTest::newRow("top") << QByteArray("[UI]\nscale=300\n") << 300;
    QTest::newRow("above") << QByteArray("[UI]\nscale=301\n") << 300;
}

void tst_InterfaceSettings::scaleShown()
{
    QFETCH(QByteArray, content);
    QFETCH(int, shown);
    writeFile(configFile(), content);
    const Dialog dialog;
    QCOMPARE(dialog.scale().value(), shown);
    dialog->saveUISettings();
    QCOMPARE(stored("UI/scale").toInt(), shown);
    QCOMPARE(stored("UI/language").toString(), QStringLiteral("zh_CN"));
}

void tst_InterfaceSettings::languageChangedWritesAtOnce_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("code");
    QTest::newRow("traditional") << 1 << "zh_TW";
    QTest::newRow("English") << 2 << "en_US";
}

void tst_InterfaceSettings::languageChangedWritesAtOnce()
{
    QFETCH(int, index);
    installRestarter();
    writeFile(configFile(), "[UI]\nlanguage=zh_CN\nscale=150\n");
    Dialog dialog;
    dialog.scale().setValue(160);
    int indexThen = -1;
    QString codeThen;
    {
        const ModalAnswer answer([&](QWidget* box) {
            // Both are written before the question comes.
            indexThen = dialog.trade.parm().languageIndex;
            codeThen = stored("UI/language").toString();
            box->close();
        });
        dialog.language().setCurrentIndex(index);
        QCOMPARE(answer.text(), question);
    }
    QCOMPARE(indexThen, index);
    QTEST(codeThen, "code");
    QCOMPARE(dialog.trade.parm().languageIndex, index);
    QCOMPARE(stored("UI/scale").toInt(), 160);
    QCOMPARE(dialog.trade.saves, 0);
    QVERIFY(!quits());
    QCOMPARE(restarted(), QByteArray());
}

void tst_InterfaceSettings::languageChangedStoresItsIndex_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {0, 2, -1, 77})
        QTest::newRow(qPrintable(QString::number(index))) << index;
}

// What it is told, which need not be what the combo shows; the file has the combo's.
void tst_InterfaceSettings::languageChangedStoresItsIndex()
{
    QFETCH(int, index);
    writeFile(configFile(), "[UI]\nlanguage=zh_TW\n");
    Dialog dialog;
    QCOMPARE(dialog.language().currentIndex(), 1);
    {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        dialog->languageChanged(index);
        QCOMPARE(answer.text(), question);
    }
    QCOMPARE(dialog.trade.parm().languageIndex, index);
    QCOMPARE(stored("UI/language").toString(), QStringLiteral("zh_TW"));
}

void tst_InterfaceSettings::cancelKeepsTheLanguage()
{
    Dialog dialog;
    dialog->show();
    {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        dialog.language().setCurrentIndex(2);
    }
    dialog->ui.pushButton_cancle->click();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog.trade.saves, 0);
    QCOMPARE(dialog.trade.parm().languageIndex, 2);
    QCOMPARE(stored("UI/language").toString(), QStringLiteral("en_US"));
}

void tst_InterfaceSettings::restartQuestion()
{
    const Dialog dialog;
    const ModalAnswer answer([&dialog](QWidget* box) {
        QCOMPARE(box->metaObject()->className(), "CMessageBox");
        QCOMPARE(box->parentWidget(), dialog.get());
        const auto* const icon = box->findChild<QLabel*>(QStringLiteral("icon"));
        QVERIFY(icon && icon->isVisible());
        const QImage warning
            = box->style()->standardPixmap(QStyle::SP_MessageBoxWarning, nullptr, box).toImage();
        QVERIFY(!warning.isNull());
        QCOMPARE(icon->pixmap(Qt::ReturnByValue).toImage(), warning);
        box->close();
    });
    dialog->restart();
    QCOMPARE(answer.text(), question);
}

void tst_InterfaceSettings::restartOtherwise_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("No") << QStringLiteral("否");
    QTest::newRow("closed") << QString();
}

void tst_InterfaceSettings::restartOtherwise()
{
    QFETCH(QString, how);
    installRestarter();
    const QStringList before = listing();
    const Dialog dialog;
    {
        const ModalAnswer answer = how.isEmpty() ? ModalAnswer([](QWidget* box) { box->close(); })
                                                 : ModalAnswer::clicking(how);
        dialog->restart();
    }
    QVERIFY(!quits());
    QCOMPARE(listing(), before);
}

void tst_InterfaceSettings::restartYes()
{
    installRestarter();
    const Dialog dialog;
    bool returned = false;
    bool quit = false;
    QTimer::singleShot(0, qApp, [&] {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("是"));
        dialog->restart();
        // The caller's remaining work still runs.
        returned = true;
    });
    quit = quits();
    QVERIFY(returned);
    QVERIFY(quit);
    QTRY_COMPARE(restarted(), QByteArray("[jy]\n"));
}

void tst_InterfaceSettings::restartMissingProgram()
{
    const Dialog dialog;
    bool returned = false;
    QTimer::singleShot(0, qApp, [&] {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("是"));
        dialog->restart();
        returned = true;
    });
    QVERIFY(quits());
    QVERIFY(returned);
}

void tst_InterfaceSettings::scaleOnlySetsTheFlag()
{
    const Dialog dialog;
    const QStringList before = listing();
    QVERIFY(!dialog->restartNeeded);
    dialog.scale().setValue(100);
    QVERIFY(!dialog->restartNeeded);
    dialog.scale().stepUp();
    QCOMPARE(dialog.scale().value(), 105);
    QVERIFY(dialog->restartNeeded);
    QCOMPARE(listing(), before);
}

void tst_InterfaceSettings::confirmWithoutChangeAsksNothing()
{
    const Dialog dialog;
    const QStringList before = listing();
    dialog.confirm();
    QCOMPARE(dialog.trade.saves, 1);
    QCOMPARE(listing(), before);
}

void tst_InterfaceSettings::confirmAsksBeforeValidating()
{
    Dialog dialog;
    dialog->show();
    dialog.scale().setValue(150);
    dialog->inputValidity.insert(QStringLiteral("lineEdit_trade_high"), false);
    QStringList texts;
    {
        const ModalAnswer first([&](QWidget* box) {
            texts << box->findChild<QLabel*>(QStringLiteral("msg"))->text();
            QCOMPARE(stored("UI/scale").toInt(), 150);
            // The second box comes while this one's answer returns.
            QTimer::singleShot(0, qApp, [&texts] {
                auto* const refused = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                QVERIFY(refused);
                texts << refused->windowTitle();
                refused->close();
            });
            box->close();
        });
        dialog.confirm();
    }
    QCOMPARE(texts, QStringList({question, QStringLiteral("提示")}));
    QCOMPARE(dialog.trade.saves, 0);
    QVERIFY(dialog->isVisible());
}

void tst_InterfaceSettings::confirmNoStillSaves()
{
    Dialog dialog;
    dialog->show();
    dialog.scale().setValue(150);
    dialog->ui.lineEdit_system_lockTime->setText(QStringLiteral("17"));
    int savesThen = -1;
    {
        const ModalAnswer answer([&](QWidget* box) {
            savesThen = dialog.trade.saves;
            box->close();
        });
        dialog.confirm();
    }
    QCOMPARE(savesThen, 0);
    QCOMPARE(dialog.trade.saves, 1);
    QCOMPARE(dialog.trade.parm().lockMinutes, 17);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(stored("UI/scale").toInt(), 150);
}

void tst_InterfaceSettings::confirmYesSavesToo()
{
    installRestarter();
    Dialog dialog;
    dialog->show();
    dialog.scale().setValue(150);
    dialog->ui.lineEdit_system_lockTime->setText(QStringLiteral("18"));
    QTimer::singleShot(0, qApp, [&] {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("是"));
        dialog.confirm();
    });
    QVERIFY(quits());
    QCOMPARE(dialog.trade.saves, 1);
    QCOMPARE(dialog.trade.parm().lockMinutes, 18);
    QVERIFY(!dialog->isVisible());
    QTRY_COMPARE(restarted(), QByteArray("[jy]\n"));
}

void tst_InterfaceSettings::confirmYesWithBadInputDoesNotSave()
{
    installRestarter();
    Dialog dialog;
    dialog->show();
    dialog.scale().setValue(150);
    dialog->inputValidity.insert(QStringLiteral("lineEdit_trade_high"), false);
    QTimer::singleShot(0, qApp, [&] {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("是"));
        dialog.confirm();
    });
    QVERIFY(quits());
    QCOMPARE(dialog.trade.saves, 0);
    QVERIFY(dialog->isVisible());
    QTRY_COMPARE(restarted(), QByteArray("[jy]\n"));
}

void tst_InterfaceSettings::flagIsNeverCleared()
{
    const Dialog dialog;
    dialog.scale().setValue(150);
    for (int attempt = 0; attempt < 2; ++attempt) {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        dialog->WriteAllParm();
        QCOMPARE(answer.text(), question);
        QVERIFY(dialog->restartNeeded);
    }
    QCOMPARE(dialog.trade.saves, 2);
}

TRADECONFIG_TEST_MAIN(tst_InterfaceSettings)
#include "tst_InterfaceSettings.moc"
