#pragma once

#include "tradeConfig/dialog/SplitRules.h"

#include <cstdint>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class Ui_CTradeConfigWidget;
struct TradeParm;

/**
 * One group of order-splitting settings: its controls, its record members, its strategies.
 *
 * The stock and the STAR group are two values of this type.
 */
struct SplitGroup {
    using Form = Ui_CTradeConfigWidget;
    using Value = std::int32_t TradeParm::*;

    struct Quantity {
        QLineEdit* Form::*edit;
        Value value;
    };

    /// What choosing a strategy shows and, where not null, which texts it writes.
    struct Strategy {
        bool showsLowerLimit;
        bool showsDecrement;
        const char* baseQuantity = nullptr;
        const char* upperLimit = nullptr;
    };

    QCheckBox* Form::*enabled;
    Value enabledValue;
    QComboBox* Form::*strategy;
    Value strategyValue;
    Quantity quantityFields[SplitRules::allFields.size()]; ///< by SplitRules::Field
    QLabel* Form::*lowerLimitLabel;
    QLabel* Form::*decrementLabel;

    const Strategy* strategies; ///< by strategy index
    int strategyCount;
    const Strategy* otherStrategy; ///< for any other index; null: nothing changes

    QLineEdit* edit(const Form& ui, SplitRules::Field field) const;

    /// The current texts as numbers; an empty text counts as 0.
    SplitRules::Quantities quantities(const Form& ui) const;

    /// Fills the controls and brings what depends on them into step, also where a control that
    /// already shows its value emits no signal. A strategy with preset texts replaces the base
    /// quantity of the record; the limits stay as recorded.
    void load(const TradeParm& parm, const Form& ui) const;

    void store(TradeParm& parm, const Form& ui) const;

    /// Enables or disables the five inputs.
    void setInputsEnabled(const Form& ui, bool enable) const;

    void setLowerLimitVisible(const Form& ui, bool visible) const;
    void setDecrementVisible(const Form& ui, bool visible) const;

    /// Shows the rows of the strategy @p index and writes its preset texts.
    void select(const Form& ui, int index) const;

    static const SplitGroup stock;
    static const SplitGroup star;
};
