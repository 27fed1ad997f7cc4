#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/ModuleEntry.h"

#include <memory>

class tst_CTradeConfigWidget : public QObject {
    Q_OBJECT

private slots:
    void factoryMakesParentlessDialog();
    void savingWritesOnceAndKeepsReservedBytes();
};

void tst_CTradeConfigWidget::factoryMakesParentlessDialog()
{
    FakeTrade trade;
    trade.setDistinctShortcuts();
    const std::unique_ptr<QWidget> widget(static_cast<QWidget*>(CreateModuleWidget(&trade)));
    QVERIFY(qobject_cast<CTradeConfigWidget*>(widget.get()));
    QVERIFY(!widget->parentWidget());
    QCOMPARE(trade.saves, 0);
}

void tst_CTradeConfigWidget::savingWritesOnceAndKeepsReservedBytes()
{
    FakeTrade trade;
    trade.setDistinctShortcuts();
    const QByteArray reserved = trade.reservedBytes();
    CTradeConfigWidget dialog(&trade);
    dialog.show();
    dialog.ui.pushButton_confirm->click();
    QCOMPARE(trade.saves, 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(trade.reservedBytes(), reserved);
    QCOMPARE(trade.text(&TradeParm::stockShortcuts, 5), QByteArray("Ctrl+F"));
}

TRADECONFIG_TEST_MAIN(tst_CTradeConfigWidget)
#include "tst_CTradeConfigWidget.moc"
