#include "support/FakeTrade.h"
#include "support/KeyText.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/ModuleEntry.h"

#include <cstddef>
#include <memory>
#include <type_traits>
#include <typeinfo>

namespace {

struct Calls {
    int get = 0;
    int save = 0;
    int other = 0;
};

Calls calls;
TradeParm* handedOut = nullptr;

void otherEntry(void*) { ++calls.other; }
TradeParm* getEntry(void*)
{
    ++calls.get;
    return handedOut;
}
void saveEntry(void*) { ++calls.save; }

// A host's object as the module sees it: its first word points at the entries of a table, which
// two words of the platform's own precede.
class HandMadeTrade {
public:
    explicit HandMadeTrade(TradeParm* record)
    {
        calls = Calls();
        handedOut = record;
        m_table[0] = nullptr;
        m_table[1] = &typeid(KivoTrade::ITrade);
        for (int entry = 0; entry < 16; ++entry)
            m_table[2 + entry] = reinterpret_cast<const void*>(otherEntry);
        m_table[2 + 14] = reinterpret_cast<const void*>(getEntry);
        m_table[2 + 15] = reinterpret_cast<const void*>(saveEntry);
    }

    // Read back through a volatile, lest the compiler guess which class is behind it.
    KivoTrade::ITrade* trade()
    {
        void* volatile self = &m_entries;
        return static_cast<KivoTrade::ITrade*>(self);
    }

private:
    const void* m_table[18];
    const void* const* m_entries = m_table + 2;
};

struct Place {
    const char* field;
    std::size_t offset;
    std::size_t bytes;
    std::size_t whereLarge; // with strings of 32 bytes
    std::size_t whereSmall; // with strings of 24 bytes
};

#define PLACE(field, large, small)                                                                 \
    {                                                                                              \
#field, offsetof(TradeParm, field), sizeof(TradeParm::field), large, small                 \
    }

// clang-format off
const Place places[] = {
    PLACE(defaultBuyPrice, 0, 0),
    PLACE(defaultSellPrice, 4, 4),
    PLACE(defaultBuyQty, 8, 8),
    PLACE(defaultSellQty, 12, 12),
    PLACE(afterOrderForm, 16, 16),
    PLACE(clickBookQty, 20, 20),
    PLACE(inputBoxState, 24, 24),
    PLACE(confirmCancel, 28, 28),
    PLACE(confirmOrder, 32, 32),
    PLACE(orderSuccessDialog, 36, 36),
    PLACE(splitEnabled, 40, 40),
    PLACE(splitBaseQty, 44, 44),
    PLACE(splitStrategy, 48, 48),
    PLACE(splitMaxQty, 52, 52),
    PLACE(splitMinQty, 56, 56),
    PLACE(splitStepQty, 60, 60),
    PLACE(starSplitEnabled, 64, 64),
    PLACE(starSplitBaseQty, 68, 68),
    PLACE(starSplitStrategy, 72, 72),
    PLACE(starSplitMaxQty, 76, 76),
    PLACE(starSplitMinQty, 80, 80),
    PLACE(starSplitStepQty, 84, 84),
    PLACE(starBuyRiseIndex, 88, 88),
    PLACE(starSellRiseIndex, 92, 92),
    PLACE(starBuyRiseChoices, 96, 96),
    PLACE(starSellRiseChoices, 108, 108),
    PLACE(buyInputType, 120, 120),
    PLACE(sellInputType, 124, 124),
    PLACE(defaultPage, 128, 128),
    PLACE(lockMinutes, 160, 152),
    PLACE(defaultBuyMode, 164, 156),
    PLACE(defaultSellMode, 168, 160),
    PLACE(quoteFollowsOrder, 172, 164),
    PLACE(orderFollowsQuote, 176, 168),
    PLACE(fontSizeLevel, 180, 172),
    PLACE(languageIndex, 184, 176),
    PLACE(uiPageMode, 192, 184),
    PLACE(stockShortcuts, 268, 260),
    PLACE(creditShortcuts, 684, 572),
};
// clang-format on

} // namespace

class tst_RecordLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offsets_data();
    void offsets();
    void sizeAndAlignment();
    void integersAreSigned32Bit();
    void operationsAreEntries14And15();
    void moduleUsesTheTwoEntriesOnly();
};

void tst_RecordLayout::offsets_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(places)); ++row)
        QTest::newRow(places[row].field) << row;
}

void tst_RecordLayout::offsets()
{
    QFETCH(int, row);
    const Place& place = places[row];
    QCOMPARE(place.offset, sizeof(std::string) == 32 ? place.whereLarge : place.whereSmall);
}

void tst_RecordLayout::sizeAndAlignment()
{
    QVERIFY(sizeof(std::string) == 32 || sizeof(std::string) == 24);
    QCOMPARE(sizeof(TradeParm), size_t(sizeof(std::string) == 32 ? 1100 : 884));
    QCOMPARE(alignof(TradeParm), size_t(4));
    QCOMPARE(sizeof(TradeParm::stockShortcuts), 13 * sizeof(std::string));
    QCOMPARE(sizeof(TradeParm::creditShortcuts), 13 * sizeof(std::string));
}

void tst_RecordLayout::integersAreSigned32Bit()
{
    int integers = 0;
    for (const Place& place : places)
        integers += place.bytes == 4 ? 1 : 0;
    QCOMPARE(integers, 34);
    QVERIFY((std::is_same_v<decltype(TradeParm::starBuyRiseChoices), std::int32_t[3]>));
    QVERIFY((std::is_same_v<decltype(TradeParm::starSellRiseChoices), std::int32_t[3]>));
    QVERIFY((std::is_same_v<decltype(TradeParm::defaultBuyPrice), std::int32_t>));
    QVERIFY((std::is_same_v<decltype(TradeParm::uiPageMode), std::int32_t>));
}

void tst_RecordLayout::operationsAreEntries14And15()
{
    FakeTrade owner;
    HandMadeTrade host(&owner.parm());
    QCOMPARE(host.trade()->GetTradeParm(), &owner.parm());
    QCOMPARE(calls.get, 1);
    QCOMPARE(calls.save, 0);
    host.trade()->SaveTradeParm();
    QCOMPARE(calls.get, 1);
    QCOMPARE(calls.save, 1);
    QCOMPARE(calls.other, 0);
}

void tst_RecordLayout::moduleUsesTheTwoEntriesOnly()
{
    FakeTrade owner;
    owner.setDistinctShortcuts();
    owner.parm().defaultBuyPrice = 3;
    owner.parm().lockMinutes = 15;
    HandMadeTrade host(&owner.parm());

    const std::unique_ptr<QWidget> widget(static_cast<QWidget*>(CreateModuleWidget(host.trade())));
    auto* const dialog = qobject_cast<CTradeConfigWidget*>(widget.get());
    QVERIFY(dialog);
    QVERIFY(calls.get > 0);
    QCOMPARE(calls.save, 0);
    QCOMPARE(calls.other, 0);
    QCOMPARE(dialog->ui.comboBox_trade_buyPrice->currentIndex(), 3);

    dialog->show();
    dialog->ui.comboBox_trade_buyPrice->setCurrentIndex(6);
    dialog->ui.pushButton_confirm->click();
    QCOMPARE(calls.save, 1);
    QCOMPARE(calls.other, 0);
    QCOMPARE(owner.parm().defaultBuyPrice, 6);
    QCOMPARE(owner.parm().lockMinutes, 15);
    QCOMPARE(owner.text(&TradeParm::stockShortcuts, 5), keyText("Ctrl+F").toUtf8());
}

TRADECONFIG_TEST_MAIN(tst_RecordLayout)
#include "tst_RecordLayout.moc"
