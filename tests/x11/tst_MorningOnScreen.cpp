#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "client/DataDirectory.h"
#include "client/Instance.h"
#include "client/TradeCore.h"
#include "libskin/SkinLibrary.h"
#include "support/Files.h"
#include "support/TestMain.h"
#include "support/TextInk.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "x11/OtherWindows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QSettings>

namespace {

const QString mainTitle = QStringLiteral("交易客户端");
const QString settingsTitle = QStringLiteral("设置");
const QString refusalTitle = QStringLiteral("提示");
const QString questionTitle = QStringLiteral("tradeclient");

QStringList times(int count, const char* key)
{
    return QVector<QString>(count, QString::fromLatin1(key)).toList();
}

void type(const char* digits)
{
    QStringList keys{QStringLiteral("ctrl+a")};
    for (const char* digit = digits; *digit; ++digit)
        keys << QString(QLatin1Char(*digit));
    press(keys);
}

} // namespace

/// A trader at his client with nothing but the keyboard: he changes what he wants otherwise, has a
/// hotkey refused, starts the client again, and finds everything as he left it.
class tst_MorningOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void changesHisSettings();

private:
    QString data(const QString& name) const;
    bool shows(const QByteArray& window, const QWidget& control) const;

    const QTemporaryDir m_home;
};

QString tst_MorningOnScreen::data(const QString& name) const
{
    return m_home.filePath(QStringLiteral(".com.kivotrade.tradeclient/") + name);
}

/// Whether @p window shows what @p control of a dialog of the test's own does, twice as large.
bool tst_MorningOnScreen::shows(const QByteArray& window, const QWidget& control) const
{
    constexpr int scale = 2;
    QWidget& dialog = *control.window();
    const QImage seen = QGuiApplication::primaryScreen()
                            ->grabWindow(window.toULongLong())
                            .toImage()
                            .convertToFormat(QImage::Format_RGB32);
    const QImage wanted = renderedAt(dialog, scale);
    // The text, without the frame, on which the focus is, and the arrows.
    const QRect inside = control.rect().adjusted(4, 4, -24, -4);
    const QRect place(control.mapTo(&dialog, inside.topLeft()) * scale, inside.size() * scale);
    int different = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            different += qAbs(qGray(seen.pixel(x, y)) - qGray(wanted.pixel(x, y))) > 60 ? 1 : 0;
    }
    // A stroke of a glyph is more than half a percent.
    return seen.rect().contains(place) && different * 200 < place.width() * place.height();
}

void tst_MorningOnScreen::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void tst_MorningOnScreen::changesHisSettings()
{
    writeFile(data(QStringLiteral("config/system_settings.ini")),
              "[UI]\nlanguage=zh_CN\nscale=100\n");
    QProcess client;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home.path());
    client.setProcessEnvironment(environment);
    client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    client.start(QStringLiteral(CLIENT_PROGRAM),
                 {QStringLiteral("--skin"), QStringLiteral("light")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(mainTitle).isEmpty(), patience);
    QCOMPARE(geometryOf(activeWindowNamed(mainTitle)).size(), QSize(980, 680));

    // How long until the screen is locked: the fourth field of the first page.
    press({QStringLiteral("ctrl+comma")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(settingsTitle).isEmpty(), patience);
    const QByteArray settings = activeWindowNamed(settingsTitle);
    press(times(3, "Tab"));
    type("45");

    // The price to buy at: the first field of the next group, third choice.
    press({QStringLiteral("ctrl+Tab"), QStringLiteral("Down"), QStringLiteral("Down")});

    // The key for buying, which is that for selling: what he tries to confirm is refused.
    press({QStringLiteral("ctrl+Tab"), QStringLiteral("Tab"), QStringLiteral("ctrl+s")});
    press({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Return")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(refusalTitle).isEmpty(), patience);
    QVERIFY(!QFileInfo::exists(data(QStringLiteral("config/trade_parameters.json"))));
    press({QStringLiteral("Return")});
    QTRY_COMPARE_WITH_TIMEOUT(activeWindow(), settings, patience);
    press({QStringLiteral("shift+Tab"), QStringLiteral("shift+Tab"), QStringLiteral("ctrl+alt+j")});

    // The scale: from the button before the first cell to the third page of the first group.
    press({QStringLiteral("shift+Tab"), QStringLiteral("ctrl+Tab"),
           QStringLiteral("ctrl+Page_Down"), QStringLiteral("ctrl+Page_Down"),
           QStringLiteral("Tab")});
    type("200");
    press({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Return")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(questionTitle).isEmpty(), patience);
    press({QStringLiteral("Return")});

    // It comes back twice as large.
    QVERIFY(client.waitForFinished(patience));
    QCOMPARE(client.exitStatus(), QProcess::NormalExit);
    QCOMPARE(client.exitCode(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(mainTitle).isEmpty(), patience);
    QTRY_COMPARE_WITH_TIMEOUT(geometryOf(activeWindowNamed(mainTitle)).size(), QSize(1960, 1360),
                              patience);

    const QSettings stored(data(QStringLiteral("config/system_settings.ini")),
                           QSettings::IniFormat);
    QCOMPARE(stored.value(QStringLiteral("UI/scale")).toInt(), 200);
    const QJsonObject record
        = QJsonDocument::fromJson(contentOf(data(QStringLiteral("config/trade_parameters.json"))))
              .object();
    QCOMPARE(record.value(QStringLiteral("defaultBuyPrice")).toInt(), 2);
    QCOMPARE(record.value(QStringLiteral("lockMinutes")).toInt(), 45);
    const QJsonArray keys = record.value(QStringLiteral("stockShortcuts")).toArray();
    QCOMPARE(keys.at(0).toString(), QStringLiteral("Ctrl+Alt+J"));
    QCOMPARE(keys.at(1).toString(), QStringLiteral("Ctrl+S"));

    // And on the screen, where a dialog of the test's own says what is to be seen.
    QApplication::setStyle(new SkinStyle);
    QVERIFY(CorvelSkin::SkinLibrary::instance()->load(QStringLiteral("light")));
    const SkinSwitcher skins;
    const DataDirectory scratch(m_home.filePath(QStringLiteral("scratch")));
    TradeCore core(scratch);
    core.load();
    CTradeConfigWidget wanted(&core);
    Ui_CTradeConfigWidget& ui = wanted.ui;
    ui.lineEdit_system_lockTime->setText(QStringLiteral("45"));
    ui.comboBox_trade_buyPrice->setCurrentIndex(2);
    ui.spinBox_scale->setValue(200);
    auto& key = *qobject_cast<QLineEdit*>(ui.tableWidget_shortcut->cellWidget(0, 1));
    key.setText(QStringLiteral("Ctrl+Alt+J"));
    wanted.setAttribute(Qt::WA_DontShowOnScreen); // laid out, but in nobody's way
    wanted.show();

    press({QStringLiteral("ctrl+comma")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(settingsTitle).isEmpty(), patience);
    const QByteArray again = activeWindowNamed(settingsTitle);
    QTRY_COMPARE_WITH_TIMEOUT(geometryOf(again).size(), QSize(1318, 1282), patience);
    QTRY_VERIFY_WITH_TIMEOUT(shows(again, *ui.lineEdit_system_lockTime), patience);
    // On to a button, since a field with the focus has a cursor that comes and goes.
    press({QStringLiteral("ctrl+Page_Down"), QStringLiteral("ctrl+Page_Down"),
           QStringLiteral("Tab")});
    ui.stackedWidget_system->setCurrentWidget(ui.page_5);
    QTRY_VERIFY_WITH_TIMEOUT(shows(again, *ui.spinBox_scale), patience);
    press({QStringLiteral("ctrl+Tab")});
    wanted.SetCurrentIndex(1);
    QTRY_VERIFY_WITH_TIMEOUT(shows(again, *ui.comboBox_trade_buyPrice), patience);
    ui.comboBox_trade_buyPrice->setCurrentIndex(0);
    QVERIFY2(!shows(again, *ui.comboBox_trade_buyPrice), "what it was before is told apart");
    press({QStringLiteral("ctrl+Tab")});
    wanted.SetCurrentIndex(2);
    QTRY_VERIFY_WITH_TIMEOUT(shows(again, key), patience);
    key.setText(QStringLiteral("Ctrl+B"));
    QVERIFY(!shows(again, key));

    // He leaves everything as it is, and then the client.
    press({QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!activeWindowNamed(mainTitle).isEmpty(), patience);
    press({QStringLiteral("ctrl+q")});
    QTRY_VERIFY_WITH_TIMEOUT(windowsNamed(mainTitle).isEmpty(), patience);
    const DataDirectory directory(data(QString()));
    Instance successor(directory);
    QTRY_COMPARE_WITH_TIMEOUT(successor.claim(), QString(), patience);
}

TRADECONFIG_TEST_MAIN(tst_MorningOnScreen)
#include "tst_MorningOnScreen.moc"
