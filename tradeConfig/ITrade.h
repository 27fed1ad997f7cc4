#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/**
 * The trading core's configuration record, shared in place across the module boundary.
 *
 * The host owns it; the module reads and writes its fields directly and never copies or frees
 * it. The layout is a contract: 4-byte packing, signed 32-bit integers, the host toolchain's
 * std::string (text in the local 8-bit encoding). Flags hold 1 (on) or 0 (off), and only 1
 * reads as on. Choices hold the index of the item in their combo box.
 */
#pragma pack(push, 4)
struct TradeParm {
    std::int32_t defaultBuyPrice; ///< 0..4 ask level 1..5, 5 last price, 6 empty
    std::int32_t defaultSellPrice; ///< 0..4 bid level 1..5, 5 last price, 6 empty
    std::int32_t defaultBuyQty; ///< 0 empty, 1 full position, 2..5 one half .. one fifth
    std::int32_t defaultSellQty; ///< the same scale
    std::int32_t afterOrderForm; ///< 0 clear, 1 keep code, 2 code and price, 3 everything
    std::int32_t clickBookQty; ///< flag: clicks on order-book quantities are answered
    std::int32_t inputBoxState; ///< 0 caret after the digits, 1 digits selected
    std::int32_t confirmCancel; ///< flag: confirm before cancelling an order
    std::int32_t confirmOrder; ///< flag: confirm before placing an order
    std::int32_t orderSuccessDialog; ///< flag: dialog after a successful order

    std::int32_t splitEnabled; ///< flag: split large stock orders
    std::int32_t splitBaseQty; ///< shares
    std::int32_t splitStrategy; ///< 0 fixed quantity, 1 random in a range, 2 decreasing
    std::int32_t splitMaxQty; ///< shares, upper limit of one child order
    std::int32_t splitMinQty; ///< shares, lower limit of one child order
    std::int32_t splitStepQty; ///< shares, decrement between child orders

    std::int32_t starSplitEnabled; ///< the same for STAR-market stocks
    std::int32_t starSplitBaseQty; ///< shares
    std::int32_t starSplitStrategy; ///< 0 limit, 1 market, 2 after hours, 3 random, 4 decreasing
    std::int32_t starSplitMaxQty; ///< shares
    std::int32_t starSplitMinQty; ///< shares
    std::int32_t starSplitStepQty; ///< shares

    std::int32_t starBuyRiseIndex; ///< 0..2, the chosen buy protection price
    std::int32_t starSellRiseIndex; ///< 0..2, the chosen sell protection price
    std::int32_t starBuyRiseChoices[3]; ///< whole percent above the last price
    std::int32_t starSellRiseChoices[3]; ///< whole percent above the last price

    std::int32_t buyInputType; ///< 0 by quantity, 1 by amount
    std::int32_t sellInputType; ///< 0 by quantity, 1 by amount

    std::string defaultPage; ///< "ptmr" stock buy, "ptmc" stock sell, "zjgp" funds and holdings

    std::int32_t lockMinutes; ///< idle minutes before the screen locks
    std::int32_t defaultBuyMode; ///< 0 limit, 1 market
    std::int32_t defaultSellMode; ///< 0 limit, 1 market
    std::int32_t quoteFollowsOrder; ///< 0 yes, 1 no: the combo index, not a flag
    std::int32_t orderFollowsQuote; ///< 0 yes, 1 no: the combo index, not a flag
    std::int32_t fontSizeLevel; ///< 0 normal, 1 large, 2 extra large
    std::int32_t languageIndex; ///< 0 simplified, 1 traditional Chinese, 2 English

    char reservedA[4]; ///< the host's own; never touched by the module

    std::int32_t uiPageMode; ///< 2 shows the interface-settings page, anything else hides it

    char reservedB[72]; ///< the host's own; never touched by the module

    /// Key texts in the record's own order of functions, which is not the tables' row order.
    std::string stockShortcuts[13];
    std::string creditShortcuts[13];
};
#pragma pack(pop)

namespace KivoTrade {

/**
 * The trading core as the module sees it: two operations at entries 14 and 15 of the virtual
 * function table. The fourteen entries before them belong to the host; the placeholders keep
 * them in place. The host owns the object; it outlives every dialog made with it.
 */
class ITrade {
public:
    virtual void Placeholder0() = 0;
    virtual void Placeholder1() = 0;
    virtual void Placeholder2() = 0;
    virtual void Placeholder3() = 0;
    virtual void Placeholder4() = 0;
    virtual void Placeholder5() = 0;
    virtual void Placeholder6() = 0;
    virtual void Placeholder7() = 0;
    virtual void Placeholder8() = 0;
    virtual void Placeholder9() = 0;
    virtual void Placeholder10() = 0;
    virtual void Placeholder11() = 0;
    virtual void Placeholder12() = 0;
    virtual void Placeholder13() = 0;

    /// The live record. Owned by the core; valid for the duration of the caller's own call.
    virtual TradeParm* GetTradeParm() = 0;

    /// Called after the record was changed: the core applies and stores it.
    virtual void SaveTradeParm() = 0;
};

} // namespace KivoTrade

namespace TradeParmLayout {

// std::string takes 32 bytes in libstdc++ and 24 in libc++; everything behind the first string
// shifts with it.
constexpr std::size_t textBytes = sizeof(std::string);
constexpr std::size_t textEnd = 128 + textBytes;
constexpr std::size_t stockStart = textEnd + 108;

static_assert(textBytes == 32 || textBytes == 24, "unknown std::string layout");
static_assert(stockStart == (textBytes == 32 ? 268 : 260));
static_assert(sizeof(TradeParm) == (textBytes == 32 ? 1100 : 884));
static_assert(alignof(TradeParm) == 4);

#define TRADE_PARM_AT(field, offset)                                                               \
    static_assert(offsetof(TradeParm, field) == (offset), #field " moved")

TRADE_PARM_AT(defaultBuyPrice, 0);
TRADE_PARM_AT(defaultSellPrice, 4);
TRADE_PARM_AT(defaultBuyQty, 8);
TRADE_PARM_AT(defaultSellQty, 12);
TRADE_PARM_AT(afterOrderForm, 16);
TRADE_PARM_AT(clickBookQty, 20);
TRADE_PARM_AT(inputBoxState, 24);
TRADE_PARM_AT(confirmCancel, 28);
TRADE_PARM_AT(confirmOrder, 32);
TRADE_PARM_AT(orderSuccessDialog, 36);
TRADE_PARM_AT(splitEnabled, 40);
TRADE_PARM_AT(splitBaseQty, 44);
TRADE_PARM_AT(splitStrategy, 48);
TRADE_PARM_AT(splitMaxQty, 52);
TRADE_PARM_AT(splitMinQty, 56);
TRADE_PARM_AT(splitStepQty, 60);
TRADE_PARM_AT(starSplitEnabled, 64);
TRADE_PARM_AT(starSplitBaseQty, 68);
TRADE_PARM_AT(starSplitStrategy, 72);
TRADE_PARM_AT(starSplitMaxQty, 76);
TRADE_PARM_AT(starSplitMinQty, 80);
TRADE_PARM_AT(starSplitStepQty, 84);
TRADE_PARM_AT(starBuyRiseIndex, 88);
TRADE_PARM_AT(starSellRiseIndex, 92);
TRADE_PARM_AT(starBuyRiseChoices, 96);
TRADE_PARM_AT(starSellRiseChoices, 108);
TRADE_PARM_AT(buyInputType, 120);
TRADE_PARM_AT(sellInputType, 124);
TRADE_PARM_AT(defaultPage, 128);
TRADE_PARM_AT(lockMinutes, textEnd);
TRADE_PARM_AT(defaultBuyMode, textEnd + 4);
TRADE_PARM_AT(defaultSellMode, textEnd + 8);
TRADE_PARM_AT(quoteFollowsOrder, textEnd + 12);
TRADE_PARM_AT(orderFollowsQuote, textEnd + 16);
TRADE_PARM_AT(fontSizeLevel, textEnd + 20);
TRADE_PARM_AT(languageIndex, textEnd + 24);
TRADE_PARM_AT(reservedA, textEnd + 28);
TRADE_PARM_AT(uiPageMode, textEnd + 32);
TRADE_PARM_AT(reservedB, textEnd + 36);
TRADE_PARM_AT(stockShortcuts, stockStart);
TRADE_PARM_AT(creditShortcuts, stockStart + 13 * textBytes);

#undef TRADE_PARM_AT

} // namespace TradeParmLayout
