#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr int notch = 120; // eighths of a degree

/// The settings in a scroll area that is too low for them.
struct Fixture {
    Fixture()
    {
        trade.parm().uiPageMode = 2;
        trade.parm().defaultBuyPrice = 3;
        settings = new CTradeConfigWidget(&trade);
        settings->setMinimumSize(settings->size());
        area.setWidget(settings);
        area.resize(700, 300);
        area.show();
        shown = QTest::qWaitForWindowActive(&area);
    }

    FakeTrade trade;
    QScrollArea area;
    CTradeConfigWidget* settings;
    bool shown = false;
};

/// One turn towards the user, as the window system sends it: from the widget under the pointer
/// outwards until somebody takes it.
void turnWheel(QWidget& widget)
{
    const QPoint at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(0, -notch), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event); // sending it would take the mark away
}

} // namespace

class tst_WheelGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesUnfocusedControlsAlone_data();
    void leavesUnfocusedControlsAlone();
    void turnsTheFocusedControl_data();
    void turnsTheFocusedControl();
    void guardsEveryControl();
};

void tst_WheelGuard::leavesUnfocusedControlsAlone_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("control");
    QTest::addColumn<bool>("inner");
    QTest::newRow("combo box") << 1 << 0 << QStringLiteral("comboBox_trade_buyPrice") << false;
    QTest::newRow("spin box") << 0 << 2 << QStringLiteral("spinBox_scale") << false;
    QTest::newRow("spin box, on its editor") << 0 << 2 << QStringLiteral("spinBox_scale") << true;
}

void tst_WheelGuard::leavesUnfocusedControlsAlone()
{
    QFETCH(int, group);
    QFETCH(int, page);
    QFETCH(QString, control);
    QFETCH(bool, inner);
    Fixture fixture;
    QVERIFY(fixture.shown);
    fixture.settings->ui.stackedWidget->setCurrentIndex(group);
    fixture.settings->ui.stackedWidget_system->setCurrentIndex(group == 0 ? page : 0);
    fixture.settings->ui.stackedWidget_trade->setCurrentIndex(group == 1 ? page : 0);
    fixture.settings->ui.pushButton_cancle->setFocus();

    auto* const widget = fixture.settings->findChild<QWidget*>(control);
    QWidget* const under = inner ? widget->findChild<QLineEdit*>() : widget;
    QVERIFY(under);
    QScrollBar& bar = *fixture.area.verticalScrollBar();
    QVERIFY(bar.maximum() > 0);
    bar.setValue(0);
    turnWheel(*under);
    QCOMPARE(fixture.settings->ui.comboBox_trade_buyPrice->currentIndex(), 3);
    QCOMPARE(fixture.settings->ui.spinBox_scale->value(), 100);
    QVERIFY(!fixture.settings->restartNeeded);
    QCOMPARE(QApplication::focusWidget(), fixture.settings->ui.pushButton_cancle);
    QVERIFY(bar.value() > 0);
}

void tst_WheelGuard::turnsTheFocusedControl_data() { leavesUnfocusedControlsAlone_data(); }

void tst_WheelGuard::turnsTheFocusedControl()
{
    QFETCH(int, group);
    QFETCH(int, page);
    QFETCH(QString, control);
    QFETCH(bool, inner);
    Fixture fixture;
    QVERIFY(fixture.shown);
    fixture.settings->ui.stackedWidget->setCurrentIndex(group);
    fixture.settings->ui.stackedWidget_system->setCurrentIndex(group == 0 ? page : 0);
    fixture.settings->ui.stackedWidget_trade->setCurrentIndex(group == 1 ? page : 0);
    fixture.settings->ui.spinBox_scale->setValue(150);
    auto* const widget = fixture.settings->findChild<QWidget*>(control);
    widget->setFocus();
    const int before = fixture.area.verticalScrollBar()->value();
    turnWheel(inner ? *widget->findChild<QLineEdit*>() : *widget);
    const bool combo = group == 1;
    QCOMPARE(fixture.settings->ui.comboBox_trade_buyPrice->currentIndex(), combo ? 4 : 3);
    QCOMPARE(fixture.settings->ui.spinBox_scale->value(), combo ? 150 : 145);
    QCOMPARE(fixture.area.verticalScrollBar()->value(), before);
}

void tst_WheelGuard::guardsEveryControl()
{
    const Fixture fixture;
    int guarded = 0;
    const auto controls = fixture.settings->findChildren<QWidget*>();
    for (const QWidget* const control : controls) {
        if (control->inherits("QComboBox") || control->inherits("QAbstractSpinBox")) {
            QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
            ++guarded;
        }
    }
    QCOMPARE(guarded, 20); // nineteen combo boxes and the scale
}

TRADECONFIG_TEST_MAIN(tst_WheelGuard)
#include "tst_WheelGuard.moc"
