#include "client/SettingsWindow.h"
#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/TableLineEdit.h"
#include "x11/Xdotool.h"

#include <QPointer>

namespace {

QStringList names(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* const name : list)
        result << QString::fromLatin1(name);
    return result;
}

QString nameOf(const QWidget* widget)
{
    const auto* const cell = qobject_cast<const CTableLineEdit*>(widget);
    return cell ? QStringLiteral("cell %1").arg(cell->row) : widget->objectName();
}

/// The settings in their window, which the user works in.
struct Settings {
    Settings()
    {
        trade.setDistinctShortcuts();
        trade.parm().uiPageMode = 2;
        dialog = new CTradeConfigWidget(&trade);
        window = new SettingsWindow(dialog, nullptr);
        ui = &dialog->ui;
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window, patience));
        activate(*window);
        QTRY_VERIFY_WITH_TIMEOUT(window->isActiveWindow(), patience);
    }
    ~Settings() { delete window; }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    void turnTo(int group, int page) const
    {
        QStackedWidget* const stacks[]
            = {ui->stackedWidget_system, ui->stackedWidget_trade, ui->stackedWidget_shortcut};
        stacks[group]->setCurrentIndex(page);
        dialog->SetCurrentIndex(group);
    }

    FakeTrade trade;
    QPointer<CTradeConfigWidget> dialog;
    QPointer<SettingsWindow> window;
    Ui_CTradeConfigWidget* ui = nullptr;
};

/// Where the focus goes, in order.
class FocusTrail {
public:
    FocusTrail()
    {
        QObject::connect(qApp, &QApplication::focusChanged, &m_context,
                         [this](QWidget*, const QWidget* now) {
                             if (now)
                                 stops << nameOf(now);
                         });
    }

    QStringList stops;

private:
    QObject m_context;
};

/// Counts the repeats of a key that is held down.
class Repeats : public QObject {
public:
    Repeats() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()
            ? 1
            : 0;
        return false;
    }

    int count = 0;
};

} // namespace

/// The client's settings window under the keys of a real window system.
class tst_SettingsOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tabWalksTheControlsOnly_data();
    void tabWalksTheControlsOnly();
    void ctrlTabTurnsTheGroups();
    void ctrlPageKeysTurnThePages();
    void cellsKeepTheKeys();
    void escCancels_data();
    void escCancels();
    void escClosesTheListFirst();
    void heldEscClosesNothingMore();
};

void tst_SettingsOnScreen::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void tst_SettingsOnScreen::tabWalksTheControlsOnly_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("basic settings")
        << 0 << 0
        << names({"comboBox_system_buy_type", "comboBox_system_sell_type",
                  "comboBox_system_defaultView", "lineEdit_system_lockTime"});
    QTest::newRow("linkage") << 0 << 1 << names({"comboBox_system_hqLink"});
    QTest::newRow("interface") << 0 << 2 << names({"spinBox_scale"});
    QTest::newRow("trade defaults")
        << 1 << 0
        << names({"comboBox_trade_buyPrice", "comboBox_trade_buyCount", "comboBox_trade_sellPrice",
                  "comboBox_trade_sellCount", "comboBox_trade_wt", "checkBox_trade_pk",
                  "comboBox_trade_lineEdit"});
    QTest::newRow("prompts") << 1 << 1
                             << names({"checkBox_trade_cancle", "checkBox_trade_wt",
                                       "checkBox_trade_wtDlg"});
    const QStringList cells
        = names({"cell 0", "cell 1", "cell 2", "cell 3", "cell 4", "cell 5", "cell 6", "cell 7",
                 "cell 8", "cell 9", "cell 10", "cell 11", "cell 12"});
    QTest::newRow("stock hotkeys") << 2 << 0 << cells;
    QTest::newRow("credit hotkeys") << 2 << 1 << cells;
    QTest::newRow("global hotkeys") << 2 << 2 << QStringList();
}

void tst_SettingsOnScreen::tabWalksTheControlsOnly()
{
    QFETCH(const int, group);
    QFETCH(const int, page);
    QFETCH(const QStringList, stops);
    const Settings settings;
    QVERIFY(settings.window);
    // What has the focus first is what Tab would come to first.
    QTRY_COMPARE_WITH_TIMEOUT(QApplication::focusWidget(), settings.ui->comboBox_system_buy_type,
                              patience);
    settings.turnTo(group, page);
    settings.ui->pushButton_confirm->setFocus();

    QStringList round = stops + names({"pushButton_cancle", "pushButton_confirm"});
    FocusTrail trail;
    press(QVector<QString>(round.size(), QStringLiteral("Tab")).toList());
    QTRY_COMPARE_WITH_TIMEOUT(trail.stops.size(), round.size(), patience);
    QCOMPARE(trail.stops, round);

    std::reverse(round.begin(), round.end());
    round << round.takeFirst();
    trail.stops.clear();
    press(QVector<QString>(round.size(), QStringLiteral("shift+Tab")).toList());
    QTRY_COMPARE_WITH_TIMEOUT(trail.stops.size(), round.size(), patience);
    QCOMPARE(trail.stops, round);
}

void tst_SettingsOnScreen::ctrlTabTurnsTheGroups()
{
    const Settings settings;
    QVERIFY(settings.window);
    const QStackedWidget& groups = *settings.ui->stackedWidget;
    for (const int expected : {1, 2, 0, 1}) {
        press({QStringLiteral("ctrl+Tab")});
        QTRY_COMPARE_WITH_TIMEOUT(groups.currentIndex(), expected, patience);
    }
    for (const int expected : {0, 2, 1, 0}) {
        press({QStringLiteral("ctrl+shift+Tab")});
        QTRY_COMPARE_WITH_TIMEOUT(groups.currentIndex(), expected, patience);
    }
}

void tst_SettingsOnScreen::ctrlPageKeysTurnThePages()
{
    const Settings settings;
    QVERIFY(settings.window);
    const QStackedWidget& pages = *settings.ui->stackedWidget_system;
    for (const int expected : {1, 2, 0}) {
        press({QStringLiteral("ctrl+Page_Down")});
        QTRY_COMPARE_WITH_TIMEOUT(pages.currentIndex(), expected, patience);
    }
    for (const int expected : {2, 1, 0}) {
        press({QStringLiteral("ctrl+Page_Up")});
        QTRY_COMPARE_WITH_TIMEOUT(pages.currentIndex(), expected, patience);
    }
}

void tst_SettingsOnScreen::cellsKeepTheKeys()
{
    const Settings settings;
    QVERIFY(settings.window);
    settings.turnTo(2, 0);
    auto& cell = *qobject_cast<QLineEdit*>(settings.ui->tableWidget_shortcut->cellWidget(3, 1));
    click(cell);
    QTRY_VERIFY_WITH_TIMEOUT(cell.hasFocus(), patience);
    const QPair<const char*, const char*> keys[] = {{"ctrl+Tab", "Ctrl+Tab"},
                                                    {"ctrl+shift+Tab", "Ctrl+Shift+Backtab"},
                                                    {"ctrl+Page_Down", "Ctrl+PgDown"},
                                                    {"Return", "Return"},
                                                    {"Escape", "Esc"}};
    for (const auto& [key, text] : keys) {
        press({QString::fromLatin1(key)});
        QTRY_COMPARE_WITH_TIMEOUT(cell.text(), QString::fromLatin1(text), patience);
    }
    QVERIFY(settings.window && settings.window->isVisible());
    QCOMPARE(settings.ui->stackedWidget->currentIndex(), 2);
    QCOMPARE(settings.trade.saves, 0);
}

void tst_SettingsOnScreen::escCancels_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("name");
    QTest::newRow("choice") << 0 << 0 << QStringLiteral("comboBox_system_buy_type");
    QTest::newRow("field") << 0 << 0 << QStringLiteral("lineEdit_system_lockTime");
    QTest::newRow("scale") << 0 << 2 << QStringLiteral("spinBox_scale");
    QTest::newRow("check box") << 1 << 1 << QStringLiteral("checkBox_trade_wt");
    QTest::newRow("table") << 2 << 0 << QStringLiteral("tableWidget_shortcut");
    QTest::newRow("confirm") << 0 << 0 << QStringLiteral("pushButton_confirm");
}

void tst_SettingsOnScreen::escCancels()
{
    QFETCH(const int, group);
    QFETCH(const int, page);
    QFETCH(const QString, name);
    Settings settings;
    QVERIFY(settings.window);
    settings.turnTo(group, page);
    settings.ui->lineEdit_system_lockTime->setText(QStringLiteral("77"));
    auto* const control = settings.dialog->findChild<QWidget*>(name);
    QVERIFY(control);
    control->setFocus();
    QVERIFY(control->hasFocus());
    const QSignalSpy closed(settings.window.data(), &SettingsWindow::closed);
    press({QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!settings.window, patience);
    QVERIFY(!settings.dialog);
    QCOMPARE(closed.size(), 1);
    QCOMPARE(settings.trade.saves, 0);
    QCOMPARE(settings.trade.parm().lockMinutes, 0);
}

void tst_SettingsOnScreen::escClosesTheListFirst()
{
    const Settings settings;
    QVERIFY(settings.window);
    QTRY_VERIFY_WITH_TIMEOUT(settings.ui->comboBox_system_buy_type->hasFocus(), patience);
    press({QStringLiteral("alt+Down")});
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget(), patience);
    press({QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(settings.ui->comboBox_system_buy_type->hasFocus(), patience);
    QVERIFY(settings.window && settings.window->isVisible());
    press({QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!settings.window, patience);
}

void tst_SettingsOnScreen::heldEscClosesNothingMore()
{
    const Settings settings;
    QVERIFY(settings.window);
    QTRY_VERIFY_WITH_TIMEOUT(settings.ui->comboBox_system_buy_type->hasFocus(), patience);
    press({QStringLiteral("alt+Down")});
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget(), patience);
    const Repeats repeats;
    xdotool({QStringLiteral("keydown"), QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(repeats.count > 3, patience);
    xdotool({QStringLiteral("keyup"), QStringLiteral("Escape")});
    QVERIFY(settings.window && settings.window->isVisible());
}

TRADECONFIG_TEST_MAIN(tst_SettingsOnScreen)
#include "tst_SettingsOnScreen.moc"
