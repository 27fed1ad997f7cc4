#include "tradeConfig/ModuleEntry.h"

#include "tradeConfig/CTradeConfigWidget.h"

void* CreateModuleWidget(KivoTrade::ITrade* trade)
{
    return static_cast<QWidget*>(new CTradeConfigWidget(trade, nullptr));
}
