#include "tradeConfig/ITrade.h"
