#pragma once

#include "tradeConfig/ITrade.h"

#include <QStringList>

class Ui_CTradeConfigWidget;

/**
 * Which record field belongs to which control, in both directions.
 *
 * Plain fields stand in one table that loading and saving both walk; page codes and hotkeys have
 * functions of their own beside it, splitting groups and protection prices units of their own. A
 * choice is the combo's current index, a check box 1 or 0 (only 1 reads as checked), a line edit
 * its decimal value (a text that is no number stores 0).
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

/// The thirteen key texts in table-row order.
QStringList loadShortcuts(const TradeParm& parm, Shortcuts shortcuts);
void storeShortcuts(TradeParm& parm, Shortcuts shortcuts, const QStringList& textsByRow);

} // namespace ParmBinding
