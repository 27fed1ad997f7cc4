#include "client/DataDirectory.h"
#include "client/Instance.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "x11/OtherWindows.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace {

void click(const QPoint& position)
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()),
             QString::number(position.y()), QStringLiteral("click"), QStringLiteral("1")});
}

} // namespace

/// The client in real windows: a change of the scale, Yes, and it comes back in the new scale.
/// The test itself stays off the screen; it knows the places of the controls from dialogs of
/// its own, which have the same layout.
class tst_RestartOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackInTheNewScale();

private:
    QString data(const QString& name) const;
    QByteArray start() const;

    const QTemporaryDir m_home;
};

QString tst_RestartOnScreen::data(const QString& name) const
{
    return m_home.filePath(QStringLiteral(".com.kivotrade.tradeclient/") + name);
}

QByteArray tst_RestartOnScreen::start() const
{
    return contentOf(data(QStringLiteral("run/client.start")));
}

void tst_RestartOnScreen::comesBackInTheNewScale()
{
    const QString mainTitle = QStringLiteral("交易客户端");
    const QString settingsTitle = QStringLiteral("设置");
    const QString boxTitle = QStringLiteral("tradeclient");

    // Where the controls are.
    const DataDirectory scratch(m_home.filePath(QStringLiteral("scratch")));
    TradeCore core(scratch);
    core.load();
    CTradeConfigWidget layout(&core, nullptr);
    layout.ui.stackedWidget_system->setCurrentIndex(2);
    layout.show();
    QVERIFY(QTest::qWaitForWindowExposed(&layout));
    const auto centre = [&layout](const QWidget* control) {
        return control->mapTo(&layout, control->rect().center());
    };
    const QPoint scaleAt = centre(layout.ui.spinBox_scale) - QPoint(20, 0);
    const QPoint confirmAt = centre(layout.ui.pushButton_confirm);
    const QPoint interfacePageAt = layout.ui.widget_system->mapTo(&layout, QPoint(60, 2 * 50 + 25));

    // A user who works in 100 %.
    writeFile(data(QStringLiteral("config/system_settings.ini")),
              "[UI]\nlanguage=zh_CN\nscale=100\n");
    QProcess client;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    client.setProcessEnvironment(environment);
    client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    client.start(QStringLiteral(CLIENT_PROGRAM),
                 {QStringLiteral("--skin"), QStringLiteral("light")});
    QTRY_COMPARE_WITH_TIMEOUT(windowsNamed(mainTitle).size(), 1, patience);
    const QByteArray window = windowsNamed(mainTitle).first();
    QTRY_COMPARE_WITH_TIMEOUT(geometryOf(window).size(), QSize(980, 680), patience);
    activate(window);

    // Opens the settings, turns to the scale, steps it up and confirms.
    QElapsedTimer timer;
    timer.start();
    while (windowsNamed(settingsTitle).isEmpty() && timer.elapsed() < patience) {
        press({QStringLiteral("ctrl+comma")});
        QTest::qWait(300); // for its answer, before the keys are sent again
    }
    QCOMPARE(windowsNamed(settingsTitle).size(), 1);
    const QByteArray dialog = windowsNamed(settingsTitle).first();
    QTRY_COMPARE_WITH_TIMEOUT(geometryOf(dialog).size(), QSize(659, 641), patience);
    activate(dialog);
    const QPoint corner = geometryOf(dialog).topLeft();
    click(corner + interfacePageAt);
    click(corner + scaleAt);
    // Ten steps of five percent.
    QStringList steps;
    for (int i = 0; i < 10; ++i)
        steps += QStringLiteral("Up");
    press(steps);
    click(corner + confirmAt);

    // Yes, the default button.
    QTRY_COMPARE_WITH_TIMEOUT(windowsNamed(boxTitle).size(), 1, patience);
    activate(windowsNamed(boxTitle).first());
    press({QStringLiteral("Return")});

    // The old one ends, the new one comes with what it was started with.
    QVERIFY(client.waitForFinished(patience));
    QCOMPARE(client.exitStatus(), QProcess::NormalExit);
    QCOMPARE(client.exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(windowsNamed(mainTitle).size(), 1, patience);
    const QByteArray next = windowsNamed(mainTitle).first();
    QTRY_COMPARE_WITH_TIMEOUT(geometryOf(next).size(), QSize(1470, 1020), patience);
    QVERIFY(start().endsWith(QByteArray("\0--skin\0light\0", 14)));
    QVERIFY(!QFileInfo::exists(data(QStringLiteral("run/restart.log"))));

    const QSettings stored(data(QStringLiteral("config/system_settings.ini")),
                           QSettings::IniFormat);
    QCOMPARE(stored.value(QStringLiteral("UI/scale")).toInt(), 150);
    const QByteArray record = contentOf(data(QStringLiteral("config/trade_parameters.json")));
    QVERIFY2(!record.isEmpty(), "the record was saved as well");
    QCOMPARE(QJsonDocument::fromJson(record).object().value(QStringLiteral("lockMinutes")).toInt(),
             30);

    // And it is a client like any other: it ends when its user wants it.
    timer.start();
    while (!windowsNamed(mainTitle).isEmpty() && timer.elapsed() < patience) {
        activate(windowsNamed(mainTitle).first());
        press({QStringLiteral("ctrl+q")});
        QTest::qWait(300); // for its end, before the keys are sent again
    }
    const DataDirectory directory(data(QString()));
    Instance successor(directory);
    QTRY_COMPARE_WITH_TIMEOUT(successor.claim(), QString(), patience);
}

TRADECONFIG_TEST_MAIN(tst_RestartOnScreen)
#include "tst_RestartOnScreen.moc"
