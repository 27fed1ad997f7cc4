#include "tradeConfig/dialog/RisePrice.h"

#include "tradeConfig/ITrade.h"
#include "tradeConfig/dialog/AccessibleNames.h"
#include "tradeConfig/dialog/QuantityValidator.h"

#include "ui_CTradeConfigWidget.h"

namespace {

constexpr int largestPercent = 100;

} // namespace

const RisePrice RisePrice::buy
    = {&Form::comboBox_trade_kc_buyRise, &Form::label_40, &Form::pushButton_kc_buyRise,
       &TradeParm::starBuyRiseIndex, &TradeParm::starBuyRiseChoices};

const RisePrice RisePrice::sell
    = {&Form::comboBox_trade_kc_sellRise, &Form::label_41, &Form::pushButton_kc_sellRise,
       &TradeParm::starSellRiseIndex, &TradeParm::starSellRiseChoices};

void RisePrice::load(const TradeParm& parm, const Form& ui) const
{
    QStringList items;
    items.reserve(choiceCount);
    for (const std::int32_t percent : parm.*choices)
        items << QString::number(percent);
    (ui.*combo)->addItems(items);
    (ui.*combo)->setCurrentIndex(parm.*index);
}

void RisePrice::store(TradeParm& parm, const Form& ui) const
{
    parm.*index = (ui.*combo)->currentIndex();
    for (int item = 0; item < choiceCount; ++item)
        (parm.*choices)[item] = (ui.*combo)->itemText(item).toInt();
}

QString RisePrice::beginEdit(const Form& ui, QObject* owner) const
{
    QComboBox& edited = *(ui.*combo);
    edited.setEditable(true);
    edited.lineEdit()->setAccessibleName(AccessibleNames::of(*(ui.*label)));
    // A percentage that nobody typed must not be stored.
    edited.setCompleter(nullptr);
    // Nor must Return move to another entry that already holds the percentage typed.
    QObject::disconnect(edited.lineEdit(), &QLineEdit::editingFinished, &edited, nullptr);
    // A menu takes the focus, which ends the editing, while the combo box still uses its editor.
    edited.setContextMenuPolicy(Qt::NoContextMenu);
    // Before the button is disabled: a disabled button hands its focus to the next widget, and
    // a field that is only passed by would be checked when it loses it again.
    edited.setFocus();
    (ui.*editButton)->setEnabled(false);
    (new QuantityValidator(0, largestPercent, owner))->guard(*edited.lineEdit());
    return edited.currentText();
}

void RisePrice::endEdit(const Form& ui, const QString& text) const
{
    QComboBox& edited = *(ui.*combo);
    if (!edited.isEditable())
        return;
    edited.setEditable(false);
    (ui.*editButton)->setEnabled(true);
    edited.setItemText(edited.currentIndex(), text);
}
