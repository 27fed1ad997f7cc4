#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/ModuleEntry.h"

#include <QPixmapCache>

#include <malloc.h>
#include <memory>
#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // its header is not installed
#endif

namespace {

qint64 bytesInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#endif
}

void openEditConfirmDestroy(FakeTrade& trade, int round)
{
    const std::unique_ptr<QWidget> widget(static_cast<QWidget*>(CreateModuleWidget(&trade)));
    auto& dialog = *qobject_cast<CTradeConfigWidget*>(widget.get());
    dialog.show();
    const Ui_CTradeConfigWidget& ui = dialog.ui;
    for (int page = 2; page >= 0; --page)
        dialog.SetCurrentIndex(page);
    ui.comboBox_trade_buyPrice->setCurrentIndex(round % 7);
    ui.comboBox_trade_kc_split->setCurrentIndex(round % 5);
    ui.lineEdit_system_lockTime->setText(QString::number(round));
    ui.checkBox_trade_fc->setChecked(true);
    ui.lineEdit_trade_high->setText(QStringLiteral("500"));
    ui.lineEdit_trade_low->setText(QStringLiteral("50"));
    QFocusEvent leave(QEvent::FocusOut);
    QCoreApplication::sendEvent(ui.lineEdit_trade_low, &leave); // red, with a tip
    ui.lineEdit_trade_low->setText(QStringLiteral("200"));
    QCoreApplication::sendEvent(ui.lineEdit_trade_low, &leave); // green again
    ui.pushButton_kc_buyRise->click();
    ui.comboBox_trade_kc_buyRise->setEditText(QString::number(round % 100));
    QCoreApplication::sendEvent(ui.comboBox_trade_kc_buyRise, &leave);
    QTest::keyClick(ui.tableWidget_shortcut->cellWidget(0, 1), Qt::Key(Qt::Key_A + round % 26),
                    Qt::AltModifier);
    ui.pushButton_confirm->click();
}

} // namespace

class tst_DialogCycles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void memoryDoesNotGrow();
};

void tst_DialogCycles::memoryDoesNotGrow()
{
    QPixmapCache::setCacheLimit(0);
    FakeTrade trade;
    trade.setDistinctShortcuts();
    // The allocator's own small caches take a while to fill.
    constexpr int warmUp = 200;
    constexpr int rounds = 200;
    int round = 0;
    for (; round < warmUp; ++round)
        openEditConfirmDestroy(trade, round);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qint64 before = bytesInUse();
    const int widgets = QApplication::allWidgets().size();
    for (; round < warmUp + rounds; ++round)
        openEditConfirmDestroy(trade, round);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qint64 growth = bytesInUse() - before;
    QCOMPARE(trade.saves, warmUp + rounds);
    QCOMPARE(trade.parm().lockMinutes, warmUp + rounds - 1);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    // One forgotten object of 200 bytes a round would show.
    QVERIFY2(growth < rounds * 100, qPrintable(QString::number(growth)));
}

TRADECONFIG_TEST_MAIN(tst_DialogCycles)
#include "tst_DialogCycles.moc"
