#pragma once

#include "tradeConfig/ITrade.h"
#include "tradeConfig/dialog/RisePrice.h"
#include "tradeConfig/dialog/SplitGroup.h"

#include <QStringList>

class Ui_CTradeConfigWidget;

/**
 * Which record field belongs to which control, in both directions.
 *
 * Plain fields stand in one table that loading and saving both walk; page codes, splitting
 * groups, protection prices and hotkeys have functions of their own beside it. A choice is the
 * combo's current index, a check box 1 or 0 (only 1 reads as checked), a line edit its decimal
 * value (a text that is no number stores 0).
 */
namespace ParmBinding {

/// Loading goes section by section, because other steps lie between them.
enum class Section { OrderEntry, Session, Trading };

using Shortcuts = std::string (TradeParm::*)[13];

/// Fills the controls of one section.
void load(Section section, const TradeParm& parm, const Ui_CTradeConfigWidget& ui);

/// Writes every plain field; "languageIndex" included, which is never loaded.
void store(TradeParm& parm, const Ui_CTradeConfigWidget& ui);

void loadDefaultPage(const TradeParm& parm, const Ui_CTradeConfigWidget& ui);
void storeDefaultPage(TradeParm& parm, const Ui_CTradeConfigWidget& ui);

void storeSplitGroup(TradeParm& parm, const Ui_CTradeConfigWidget& ui, const SplitGroup& group);

/// Appends the three percentages as items.
void loadRiseChoices(const TradeParm& parm, const Ui_CTradeConfigWidget& ui,
                     const RisePrice& price);
void loadRiseIndex(const TradeParm& parm, const Ui_CTradeConfigWidget& ui, const RisePrice& price);
void storeRiseIndex(TradeParm& parm, const Ui_CTradeConfigWidget& ui, const RisePrice& price);
void storeRiseChoices(TradeParm& parm, const Ui_CTradeConfigWidget& ui, const RisePrice& price);

/// The thirteen key texts in table-row order.
QStringList loadShortcuts(const TradeParm& parm, Shortcuts shortcuts);
void storeShortcuts(TradeParm& parm, Shortcuts shortcuts, const QStringList& textsByRow);

} // namespace ParmBinding
