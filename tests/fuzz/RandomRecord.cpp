#include "fuzz/RandomRecord.h"

#include "client/RecordFields.h"
#include "fuzz/FuzzInput.h"
#include "support/FakeTrade.h"

using RecordFields::Field;
using RecordFields::Kind;

QByteArray RandomRecord::someKeys(FuzzInput& input)
{
    constexpr const char* known[] = {"", "F5", "F12", "Ctrl+A", "Alt+B", "Ctrl+Shift+F1", "空"};
    const int choice = input.below(int(std::size(known)) + 1);
    return choice < int(std::size(known)) ? QByteArray(known[choice]) : input.bytes(20);
}

void RandomRecord::fill(FakeTrade& trade, FuzzInput& input)
{
    constexpr const char* pages[] = {"", "ptmr", "ptmc", "zjgp", "ptm", "zjgp "};
    for (const Field& field : RecordFields::all()) {
        for (int i = 0; field.kind == Kind::Integer && i < field.count; ++i)
            RecordFields::setInteger(trade.parm(), field, i, input.integer());
    }
    const int page = input.below(int(std::size(pages)) + 1);
    trade.setDefaultPage(page < int(std::size(pages)) ? QByteArray(pages[page]) : input.bytes(20));
    for (int entry = 0; entry < 13; ++entry) {
        trade.setText(&TradeParm::stockShortcuts, entry, someKeys(input));
        trade.setText(&TradeParm::creditShortcuts, entry, someKeys(input));
    }
}
