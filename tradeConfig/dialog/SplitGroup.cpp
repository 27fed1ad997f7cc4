#include "tradeConfig/dialog/SplitGroup.h"

#include "tradeConfig/ITrade.h"

#include "ui_CTradeConfigWidget.h"

namespace {

constexpr SplitGroup::Strategy stockStrategies[] = {
    {false, false, nullptr, nullptr}, // fixed quantity
    {true, false, nullptr, nullptr}, // random within a range
    {false, true, nullptr, nullptr}, // decreasing quantity
};

constexpr SplitGroup::Strategy starStrategies[] = {
    {false, false, "10000", "100000"}, // limit order
    {false, false, "10000", "50000"}, // market order
    {false, false, "10000", "100000"}, // after-hours fixed price
    {true, false, nullptr, nullptr}, // random within a range
    {false, true, nullptr, nullptr}, // decreasing quantity
};

constexpr SplitGroup::Strategy hideBoth = {false, false, nullptr, nullptr};

} // namespace

const SplitGroup SplitGroup::stock = {
    &Form::checkBox_trade_fc,
    &Form::lineEdit_trade_baseCount,
    &Form::comboBox_trade_split,
    &Form::lineEdit_trade_high,
    &Form::lineEdit_trade_low,
    &Form::lineEdit_trade_desc,
    &Form::label_trade_low,
    &Form::label_trade_desc,
    &TradeParm::splitEnabled,
    &TradeParm::splitBaseQty,
    &TradeParm::splitStrategy,
    &TradeParm::splitMaxQty,
    &TradeParm::splitMinQty,
    &TradeParm::splitStepQty,
    stockStrategies,
    int(std::size(stockStrategies)),
    nullptr,
};

const SplitGroup SplitGroup::star = {
    &Form::checkBox_trade_kc_fc,
    &Form::lineEdit_trade_kc_baseCount,
    &Form::comboBox_trade_kc_split,
    &Form::lineEdit_trade_kc_high,
    &Form::lineEdit_trade_kc_low,
    &Form::lineEdit_trade_kc_desc,
    &Form::label_trade_kc_low,
    &Form::label_trade_kc_desc,
    &TradeParm::starSplitEnabled,
    &TradeParm::starSplitBaseQty,
    &TradeParm::starSplitStrategy,
    &TradeParm::starSplitMaxQty,
    &TradeParm::starSplitMinQty,
    &TradeParm::starSplitStepQty,
    starStrategies,
    int(std::size(starStrategies)),
    &hideBoth,
};

QLineEdit* SplitGroup::edit(const Form& ui, SplitRules::Field field) const
{
    switch (field) {
    case SplitRules::Field::BaseQuantity:
        return ui.*baseQuantity;
    case SplitRules::Field::UpperLimit:
        return ui.*upperLimit;
    case SplitRules::Field::LowerLimit:
        return ui.*lowerLimit;
    case SplitRules::Field::Decrement:
        break;
    }
    return ui.*decrement;
}

SplitRules::Quantities SplitGroup::quantities(const Form& ui) const
{
    return {(ui.*baseQuantity)->text().toInt(), (ui.*upperLimit)->text().toInt(),
            (ui.*lowerLimit)->text().toInt(), (ui.*decrement)->text().toInt()};
}

void SplitGroup::setInputsEnabled(const Form& ui, bool enable) const
{
    (ui.*baseQuantity)->setEnabled(enable);
    (ui.*strategy)->setEnabled(enable);
    (ui.*upperLimit)->setEnabled(enable);
    (ui.*lowerLimit)->setEnabled(enable);
    (ui.*decrement)->setEnabled(enable);
}

void SplitGroup::setLowerLimitVisible(const Form& ui, bool visible) const
{
    (ui.*lowerLimit)->setVisible(visible);
    (ui.*lowerLimitLabel)->setVisible(visible);
}

void SplitGroup::setDecrementVisible(const Form& ui, bool visible) const
{
    (ui.*decrement)->setVisible(visible);
    (ui.*decrementLabel)->setVisible(visible);
}

void SplitGroup::select(const Form& ui, int index) const
{
    const bool known = index >= 0 && index < strategyCount;
    const Strategy* const chosen = known ? &strategies[index] : otherStrategy;
    if (!chosen)
        return;
    setLowerLimitVisible(ui, chosen->showsLowerLimit);
    setDecrementVisible(ui, chosen->showsDecrement);
    if (chosen->baseQuantity)
        (ui.*baseQuantity)->setText(QLatin1String(chosen->baseQuantity));
    if (chosen->upperLimit)
        (ui.*upperLimit)->setText(QLatin1String(chosen->upperLimit));
}
