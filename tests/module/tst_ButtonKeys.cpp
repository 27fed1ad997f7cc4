#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <QDialog>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

/// The settings in a plain window or in a dialog of the host's, where the toolkit presses default
/// buttons by itself.
struct Fixture {
    explicit Fixture(bool inDialog)
    {
        trade.parm().uiPageMode = 2;
        if (inDialog)
            host = std::make_unique<QDialog>();
        else
            host = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(host.get());
        settings = new CTradeConfigWidget(&trade);
        layout->addWidget(settings);
        host->show();
        shown = QTest::qWaitForWindowActive(host.get());
    }

    FakeTrade trade;
    std::unique_ptr<QWidget> host;
    CTradeConfigWidget* settings;
    bool shown = false;
};

} // namespace

class tst_ButtonKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pressTheFocusedButton_data();
    void pressTheFocusedButton();
    void confirmNothingElsewhere_data();
    void confirmNothingElsewhere();
    void pressOnceWhileHeld();
    void beginTheEditingOfAProtectionPrice();
};

void tst_ButtonKeys::pressTheFocusedButton_data()
{
    QTest::addColumn<bool>("inDialog");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("saves");
    const QString confirm = QStringLiteral("pushButton_confirm");
    const QString cancel = QStringLiteral("pushButton_cancle");
    for (const bool inDialog : {false, true}) {
        const QByteArray host = inDialog ? "in a dialog: " : "in a window: ";
        QTest::newRow((host + "confirm, Return").constData())
            << inDialog << confirm << int(Qt::Key_Return) << 1;
        QTest::newRow((host + "confirm, Enter").constData())
            << inDialog << confirm << int(Qt::Key_Enter) << 1;
        QTest::newRow((host + "confirm, Space").constData())
            << inDialog << confirm << int(Qt::Key_Space) << 1;
        QTest::newRow((host + "cancel, Return").constData())
            << inDialog << cancel << int(Qt::Key_Return) << 0;
        QTest::newRow((host + "cancel, Enter").constData())
            << inDialog << cancel << int(Qt::Key_Enter) << 0;
    }
}

void tst_ButtonKeys::pressTheFocusedButton()
{
    QFETCH(bool, inDialog);
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(int, saves);
    const Fixture fixture(inDialog);
    QVERIFY(fixture.shown);
    auto* const widget = fixture.settings->findChild<QWidget*>(button);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key(key));
    QCOMPARE(fixture.trade.saves, saves);
    QVERIFY(!fixture.host->isVisible());
}

void tst_ButtonKeys::confirmNothingElsewhere_data()
{
    QTest::addColumn<bool>("inDialog");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("field");
    for (const bool inDialog : {false, true}) {
        const QByteArray host = inDialog ? "in a dialog: " : "in a window: ";
        QTest::newRow((host + "line edit").constData())
            << inDialog << 0 << QStringLiteral("lineEdit_system_lockTime");
        QTest::newRow((host + "combo box").constData())
            << inDialog << 0 << QStringLiteral("comboBox_system_buy_type");
        QTest::newRow((host + "spin box").constData())
            << inDialog << 2 << QStringLiteral("spinBox_scale");
    }
}

void tst_ButtonKeys::confirmNothingElsewhere()
{
    QFETCH(bool, inDialog);
    QFETCH(int, page);
    QFETCH(QString, field);
    const Fixture fixture(inDialog);
    QVERIFY(fixture.shown);
    fixture.settings->ui.stackedWidget_system->setCurrentIndex(page);
    auto* const widget = fixture.settings->findChild<QWidget*>(field);
    widget->setFocus();
    QCOMPARE(QApplication::focusWidget(), widget);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(widget, key);
    QCOMPARE(fixture.trade.saves, 0);
    QVERIFY(fixture.host->isVisible());
}

void tst_ButtonKeys::pressOnceWhileHeld()
{
    const Fixture fixture(false);
    QVERIFY(fixture.shown);
    QPushButton& confirm = *fixture.settings->ui.pushButton_confirm;
    confirm.setFocus();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&confirm, &repeat);
    QCOMPARE(fixture.trade.saves, 0);
    QVERIFY(fixture.host->isVisible());
}

void tst_ButtonKeys::beginTheEditingOfAProtectionPrice()
{
    const Fixture fixture(true);
    QVERIFY(fixture.shown);
    const auto& ui = fixture.settings->ui;
    ui.stackedWidget->setCurrentIndex(1);
    ui.stackedWidget_trade->setCurrentIndex(3);
    ui.pushButton_kc_sellRise->setFocus();
    QTest::keyClick(ui.pushButton_kc_sellRise, Qt::Key_Return);
    QVERIFY(ui.comboBox_trade_kc_sellRise->isEditable());
    QVERIFY(!ui.comboBox_trade_kc_buyRise->isEditable());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(fixture.trade.saves, 0);
    QVERIFY(fixture.host->isVisible());
}

TRADECONFIG_TEST_MAIN(tst_ButtonKeys)
#include "tst_ButtonKeys.moc"
