#include "tradeConfig/dialog/SplitGroup.h"

#include "tradeConfig/ITrade.h"

#include "ui_CTradeConfigWidget.h"

using SplitRules::Field;

namespace {

constexpr SplitGroup::Strategy stockStrategies[] = {
    {false, false}, // fixed quantity
    {true, false}, // random within a range
    {false, true}, // decreasing quantity
};

constexpr SplitGroup::Strategy starStrategies[] = {
    {false, false, "10000", "100000"}, // limit order
    {false, false, "10000", "50000"}, // market order
    {false, false, "10000", "100000"}, // after-hours fixed price
    {true, false}, // random within a range
    {false, true}, // decreasing quantity
};

constexpr SplitGroup::Strategy hideBoth = {false, false};

// The fields that follow the strategy in the form, in order.
constexpr Field limits[] = {Field::UpperLimit, Field::LowerLimit, Field::Decrement};

} // namespace

const SplitGroup SplitGroup::stock = {
    &Form::checkBox_trade_fc,
    &TradeParm::splitEnabled,
    &Form::comboBox_trade_split,
    &TradeParm::splitStrategy,
    {{&Form::lineEdit_trade_baseCount, &TradeParm::splitBaseQty},
     {&Form::lineEdit_trade_high, &TradeParm::splitMaxQty},
     {&Form::lineEdit_trade_low, &TradeParm::splitMinQty},
     {&Form::lineEdit_trade_desc, &TradeParm::splitStepQty}},
    &Form::label_trade_low,
    &Form::label_trade_desc,
    stockStrategies,
    int(std::size(stockStrategies)),
    nullptr,
};

const SplitGroup SplitGroup::star = {
    &Form::checkBox_trade_kc_fc,
    &TradeParm::starSplitEnabled,
    &Form::comboBox_trade_kc_split,
    &TradeParm::starSplitStrategy,
    {{&Form::lineEdit_trade_kc_baseCount, &TradeParm::starSplitBaseQty},
     {&Form::lineEdit_trade_kc_high, &TradeParm::starSplitMaxQty},
     {&Form::lineEdit_trade_kc_low, &TradeParm::starSplitMinQty},
     {&Form::lineEdit_trade_kc_desc, &TradeParm::starSplitStepQty}},
    &Form::label_trade_kc_low,
    &Form::label_trade_kc_desc,
    starStrategies,
    int(std::size(starStrategies)),
    &hideBoth,
};

QLineEdit* SplitGroup::edit(const Form& ui, Field field) const
{
    return ui.*quantityFields[int(field)].edit;
}

SplitRules::Quantities SplitGroup::quantities(const Form& ui) const
{
    const auto number = [&](Field field) { return edit(ui, field)->text().toInt(); };
    return {number(Field::BaseQuantity), number(Field::UpperLimit), number(Field::LowerLimit),
            number(Field::Decrement)};
}

void SplitGroup::load(const TradeParm& parm, const Form& ui) const
{
    const auto show = [&](Field field) {
        edit(ui, field)->setText(QString::number(parm.*quantityFields[int(field)].value));
    };
    const bool isEnabled = parm.*enabledValue == 1;
    (ui.*enabled)->setChecked(isEnabled);
    setInputsEnabled(ui, isEnabled);
    show(Field::BaseQuantity);

    const int index = parm.*strategyValue;
    (ui.*strategy)->setCurrentIndex(index);
    if (index == 0)
        select(ui, index);

    for (const Field field : limits)
        show(field);
}

void SplitGroup::store(TradeParm& parm, const Form& ui) const
{
    parm.*enabledValue = (ui.*enabled)->isChecked() ? 1 : 0;
    parm.*strategyValue = (ui.*strategy)->currentIndex();
    for (const Quantity& quantity : quantityFields)
        parm.*quantity.value = (ui.*quantity.edit)->text().toInt();
}

void SplitGroup::setInputsEnabled(const Form& ui, bool enable) const
{
    edit(ui, Field::BaseQuantity)->setEnabled(enable);
    (ui.*strategy)->setEnabled(enable);
    for (const Field field : limits)
        edit(ui, field)->setEnabled(enable);
}

void SplitGroup::setLowerLimitVisible(const Form& ui, bool visible) const
{
    edit(ui, Field::LowerLimit)->setVisible(visible);
    (ui.*lowerLimitLabel)->setVisible(visible);
}

void SplitGroup::setDecrementVisible(const Form& ui, bool visible) const
{
    edit(ui, Field::Decrement)->setVisible(visible);
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
        edit(ui, Field::BaseQuantity)->setText(QLatin1String(chosen->baseQuantity));
    if (chosen->upperLimit)
        edit(ui, Field::UpperLimit)->setText(QLatin1String(chosen->upperLimit));
}
