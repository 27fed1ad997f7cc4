#include "bench/BenchRecord.h"

BenchTrade::BenchTrade()
    : m_parm(std::make_unique<TradeParm>())
{
    TradeParm& parm = *m_parm;
    parm.defaultBuyPrice = 5;
    parm.defaultSellPrice = 5;
    parm.defaultBuyQty = 2;
    parm.defaultSellQty = 1;
    parm.afterOrderForm = 3;
    parm.clickBookQty = 1;
    parm.inputBoxState = 1;
    parm.confirmCancel = 1;
    parm.confirmOrder = 1;
    parm.orderSuccessDialog = 1;
    parm.splitEnabled = 1;
    parm.splitBaseQty = 1000;
    parm.splitStrategy = 1;
    parm.splitMaxQty = 5000;
    parm.splitMinQty = 200;
    parm.splitStepQty = 300;
    parm.starSplitEnabled = 1;
    parm.starSplitBaseQty = 2000;
    parm.starSplitStrategy = 4;
    parm.starSplitMaxQty = 6000;
    parm.starSplitMinQty = 400;
    parm.starSplitStepQty = 500;
    parm.starBuyRiseIndex = 1;
    parm.starSellRiseIndex = 2;
    for (int index = 0; index < 3; ++index) {
        parm.starBuyRiseChoices[index] = index + 1;
        parm.starSellRiseChoices[index] = index + 4;
    }
    parm.buyInputType = 1;
    parm.sellInputType = 1;
    parm.defaultPage = "zjgp";
    parm.lockMinutes = 30;
    parm.defaultBuyMode = 1;
    parm.defaultSellMode = 1;
    parm.quoteFollowsOrder = 1;
    parm.orderFollowsQuote = 1;
    parm.fontSizeLevel = 1;
    parm.uiPageMode = 2;
    for (int entry = 0; entry < 13; ++entry) {
        const char letter = char('A' + entry);
        parm.stockShortcuts[entry] = std::string("Ctrl+") + letter;
        parm.creditShortcuts[entry] = std::string("Alt+") + letter;
    }
}

BenchTrade::~BenchTrade() = default;
