#include "support/FakeTrade.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QLibrary>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>

#include <memory>

namespace {

QString modulePath() { return QString::fromUtf8(MODULE_PATH); }

// On macOS every symbol of C has an underscore before it.
#ifdef Q_OS_MACOS
const QString symbolPrefix = QStringLiteral("_");
const QStringList listDefined{QStringLiteral("-g"), QStringLiteral("-U"), QStringLiteral("-P")};
#else
const QString symbolPrefix;
const QStringList listDefined{QStringLiteral("-D"), QStringLiteral("--defined-only"),
                              QStringLiteral("--format=posix")};
#endif

} // namespace

class tst_ModuleExports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settingsOutliveTheLibrary(); // first: the others leave the library loaded
    void exactlySevenSymbols();
    void listForTheLinkerOfMacOs();
    void loadsAndMakesTheDialog();
    void namesAreUnmangled_data();
    void namesAreUnmangled();
};

// The toolkit keeps what it knows of a settings file as long as the process lives.
void tst_ModuleExports::settingsOutliveTheLibrary()
{
    QLibrary module(modulePath());
    const auto home = reinterpret_cast<const char* (*)()>(module.resolve("ApplicationHomePath"));
    const QString file = QString::fromUtf8(home()) + QStringLiteral("/system_settings.ini");
    const auto create
        = reinterpret_cast<void* (*)(KivoTrade::ITrade*)>(module.resolve("CreateModuleWidget"));
    FakeTrade trade;
    std::unique_ptr<QWidget> dialog(static_cast<QWidget*>(create(&trade)));
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "saveUISettings"));
    QVERIFY(QFile::exists(file));
    dialog.reset();
    QVERIFY(module.unload());

    writeFile(file, "[UI]\nscale=1000\n");
    const QSettings settings(file, QSettings::IniFormat);
    QCOMPARE(settings.allKeys(), QStringList{QStringLiteral("UI/scale")});
    QCOMPARE(settings.value(QStringLiteral("UI/scale")).toInt(), 1000);
}

void tst_ModuleExports::exactlySevenSymbols()
{
    QProcess lister;
    lister.start(QStringLiteral("nm"), listDefined + QStringList{modulePath()});
    QVERIFY2(lister.waitForFinished(), qPrintable(lister.errorString()));
    QCOMPARE(lister.exitCode(), 0);
    QStringList names;
    const QList<QByteArray> lines = lister.readAllStandardOutput().split('\n');
    for (const QByteArray& line : lines) {
        if (line.isEmpty())
            continue;
        const QList<QByteArray> columns = line.split(' ');
        const QString name = QString::fromLatin1(columns.at(0));
        QVERIFY2(name.startsWith(symbolPrefix), qPrintable(name));
        names << name.mid(symbolPrefix.size());
        QCOMPARE(columns.at(1), QByteArray("T")); // functions, all of them
    }
    names.sort();
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("ApplicationHomePath CreateModuleWidget GetDiskId "
                            "GetMainExecutableVersion GetMainExecutableVersionNum GetSystemUuid "
                            "hideWindowCaptionBar"));
}

void tst_ModuleExports::listForTheLinkerOfMacOs()
{
    QCOMPARE(contentOf(QStringLiteral(EXPORTS_LIST)),
             QByteArray("_CreateModuleWidget\n_ApplicationHomePath\n"
                        "_hideWindowCaptionBar\n_GetMainExecutableVersion\n"
                        "_GetMainExecutableVersionNum\n_GetDiskId\n"
                        "_GetSystemUuid\n"));
}

void tst_ModuleExports::loadsAndMakesTheDialog()
{
    QLibrary module(modulePath());
    QVERIFY2(module.load(), qPrintable(module.errorString()));
    using Factory = void* (*)(KivoTrade::ITrade*);
    const auto create = reinterpret_cast<Factory>(module.resolve("CreateModuleWidget"));
    QVERIFY(create);
    FakeTrade trade;
    trade.setDistinctShortcuts();
    trade.parm().lockMinutes = 17;
    const std::unique_ptr<QWidget> dialog(static_cast<QWidget*>(create(&trade)));
    QCOMPARE(dialog->metaObject()->className(), "CTradeConfigWidget");
    QVERIFY(!dialog->parentWidget());
    const auto* const lockTime
        = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit_system_lockTime"));
    QCOMPARE(lockTime->text(), QStringLiteral("17"));
    dialog->show();
    QVERIFY(!dialog->grab().isNull());
    dialog->findChild<QPushButton*>(QStringLiteral("pushButton_confirm"))->click();
    QCOMPARE(trade.saves, 1);
    QCOMPARE(trade.foreignCalls, 0);
    QVERIFY(!dialog->isVisible());
}

void tst_ModuleExports::namesAreUnmangled_data()
{
    QTest::addColumn<QByteArray>("symbol");
    for (const char* const name :
         {"CreateModuleWidget", "ApplicationHomePath", "hideWindowCaptionBar",
          "GetMainExecutableVersion", "GetMainExecutableVersionNum", "GetDiskId", "GetSystemUuid"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_ModuleExports::namesAreUnmangled()
{
    QFETCH(QByteArray, symbol);
    QLibrary module(modulePath());
    QVERIFY(module.resolve(symbol.constData()));
}

TRADECONFIG_TEST_MAIN(tst_ModuleExports)
#include "tst_ModuleExports.moc"
