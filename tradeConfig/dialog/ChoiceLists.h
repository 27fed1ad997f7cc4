#pragma once

class Ui_CTradeConfigWidget;

/**
 * The fixed choices of the dialog's combo boxes.
 *
 * A choice is stored in the record as its index, so the order of the items is their meaning.
 */
namespace ChoiceLists {

/// Appends the items of all seventeen lists to their combo boxes.
void fill(const Ui_CTradeConfigWidget& ui);

} // namespace ChoiceLists
