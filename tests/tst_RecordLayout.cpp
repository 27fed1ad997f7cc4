#include "support/TestMain.h"
#include "tradeConfig/ITrade.h"

#include <cstddef>

namespace {

struct Calls {
    int get = 0;
    int save = 0;
    int other = 0;
};

Calls calls;
int recordStandIn;

// What the host's object looks like to the module: a pointer to sixteen entries.
struct HandMadeTrade {
    const void* const* table;
};

void otherEntry(void*) { ++calls.other; }
void* getEntry(void*)
{
    ++calls.get;
    return &recordStandIn;
}
void saveEntry(void*) { ++calls.save; }

} // namespace

class tst_RecordLayout : public QObject {
    Q_OBJECT

private slots:
    void sizesInNumbers();
    void operationsAreEntries14And15();
};

void tst_RecordLayout::sizesInNumbers()
{
    if (sizeof(std::string) != 32)
        QSKIP("the numbers below are those of a 32-byte string");
    QCOMPARE(offsetof(TradeParm, starBuyRiseChoices), size_t(96));
    QCOMPARE(offsetof(TradeParm, defaultPage), size_t(128));
    QCOMPARE(offsetof(TradeParm, lockMinutes), size_t(160));
    QCOMPARE(offsetof(TradeParm, languageIndex), size_t(184));
    QCOMPARE(offsetof(TradeParm, uiPageMode), size_t(192));
    QCOMPARE(offsetof(TradeParm, stockShortcuts), size_t(268));
    QCOMPARE(offsetof(TradeParm, creditShortcuts), size_t(684));
    QCOMPARE(sizeof(TradeParm), size_t(1100));
}

void tst_RecordLayout::operationsAreEntries14And15()
{
    const void* table[16];
    for (const void*& entry : table)
        entry = reinterpret_cast<const void*>(otherEntry);
    table[14] = reinterpret_cast<const void*>(getEntry);
    table[15] = reinterpret_cast<const void*>(saveEntry);
    HandMadeTrade host{table};
    auto* const trade = reinterpret_cast<KivoTrade::ITrade*>(&host);

    calls = Calls();
    QCOMPARE(static_cast<void*>(trade->GetTradeParm()), static_cast<void*>(&recordStandIn));
    trade->SaveTradeParm();
    QCOMPARE(calls.get, 1);
    QCOMPARE(calls.save, 1);
    QCOMPARE(calls.other, 0);
}

TRADECONFIG_TEST_MAIN(tst_RecordLayout)
#include "tst_RecordLayout.moc"
