#include "tradeConfig/dialog/ParmBinding.h"

#include "tradeConfig/PackedText.h"
#include "tradeConfig/dialog/CodeList.h"

#include "ui_CTradeConfigWidget.h"

#include <variant>

namespace {

using Form = Ui_CTradeConfigWidget;
using ParmBinding::Section;

using Control = std::variant<QComboBox * Form::*, QCheckBox * Form::*, QLineEdit * Form::*>;

struct Field {
    Section section;
    std::int32_t TradeParm::*value;
    Control control;
    bool loaded = true;
};

constexpr Field fields[] = {
    {Section::OrderEntry, &TradeParm::buyInputType, &Form::comboBox_system_buy_type},
    {Section::OrderEntry, &TradeParm::sellInputType, &Form::comboBox_system_sell_type},

    {Section::Session, &TradeParm::lockMinutes, &Form::lineEdit_system_lockTime},
    {Section::Session, &TradeParm::defaultBuyMode, &Form::comboBox_system_buyType},
    {Section::Session, &TradeParm::defaultSellMode, &Form::comboBox_system_sellType},
    {Section::Session, &TradeParm::quoteFollowsOrder, &Form::comboBox_system_hqLink},
    {Section::Session, &TradeParm::orderFollowsQuote, &Form::comboBox_system_hqLink2},
    {Section::Session, &TradeParm::fontSizeLevel, &Form::comboBox_system_fontSize},
    // The combo follows the interface settings file instead.
    {Section::Session, &TradeParm::languageIndex, &Form::comboBox_system_language, false},

    {Section::Trading, &TradeParm::defaultBuyPrice, &Form::comboBox_trade_buyPrice},
    {Section::Trading, &TradeParm::defaultBuyQty, &Form::comboBox_trade_buyCount},
    {Section::Trading, &TradeParm::defaultSellPrice, &Form::comboBox_trade_sellPrice},
    {Section::Trading, &TradeParm::defaultSellQty, &Form::comboBox_trade_sellCount},
    {Section::Trading, &TradeParm::afterOrderForm, &Form::comboBox_trade_wt},
    {Section::Trading, &TradeParm::clickBookQty, &Form::checkBox_trade_pk},
    {Section::Trading, &TradeParm::inputBoxState, &Form::comboBox_trade_lineEdit},
    {Section::Trading, &TradeParm::confirmCancel, &Form::checkBox_trade_cancle},
    {Section::Trading, &TradeParm::confirmOrder, &Form::checkBox_trade_wt},
    {Section::Trading, &TradeParm::orderSuccessDialog, &Form::checkBox_trade_wtDlg},
};

constexpr CodeList pageCodes = {{"ptmr", "ptmc", "zjgp"}};

// The record keeps an older order of the functions than the tables show.
constexpr int entryOfRow[] = {0, 1, 5, 6, 2, 3, 4, 7, 8, 9, 10, 11, 12};

void show(QComboBox& combo, std::int32_t value) { combo.setCurrentIndex(value); }

void show(QCheckBox& box, std::int32_t value) { box.setChecked(value == 1); }

void show(QLineEdit& edit, std::int32_t value) { edit.setText(QString::number(value)); }

std::int32_t valueOf(const QComboBox& combo) { return combo.currentIndex(); }

std::int32_t valueOf(const QCheckBox& box) { return box.isChecked() ? 1 : 0; }

std::int32_t valueOf(const QLineEdit& edit) { return edit.text().toInt(); }

TOUCHES_PACKED_TEXT QString pageCode(const TradeParm& parm)
{
    return QString::fromLocal8Bit(parm.defaultPage.data(), int(parm.defaultPage.size()));
}

TOUCHES_PACKED_TEXT void setPageCode(TradeParm& parm, const char* code)
{
    parm.defaultPage.assign(code);
}

TOUCHES_PACKED_TEXT QString keyText(const TradeParm& parm, ParmBinding::Shortcuts shortcuts,
                                    int entry)
{
    const std::string& text = (parm.*shortcuts)[entry];
    return QString::fromLocal8Bit(text.data(), int(text.size()));
}

TOUCHES_PACKED_TEXT void setKeyText(TradeParm& parm, ParmBinding::Shortcuts shortcuts, int entry,
                                    const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    (parm.*shortcuts)[entry].assign(bytes.constData(), std::size_t(bytes.size()));
}

} // namespace

namespace ParmBinding {

void load(Section section, const TradeParm& parm, const Form& ui)
{
    for (const Field& field : fields) {
        if (field.section != section || !field.loaded)
            continue;
        std::visit([&](auto control) { show(*(ui.*control), parm.*field.value); }, field.control);
    }
}

void store(TradeParm& parm, const Form& ui)
{
    for (const Field& field : fields) {
        parm.*field.value
            = std::visit([&](auto control) { return valueOf(*(ui.*control)); }, field.control);
    }
}

void loadDefaultPage(const TradeParm& parm, const Form& ui)
{
    ui.comboBox_system_defaultView->setCurrentIndex(pageCodes.indexOf(pageCode(parm)));
}

void storeDefaultPage(TradeParm& parm, const Form& ui)
{
    setPageCode(parm, pageCodes.at(ui.comboBox_system_defaultView->currentIndex()));
}

QStringList loadShortcuts(const TradeParm& parm, Shortcuts shortcuts)
{
    QStringList texts;
    texts.reserve(int(std::size(entryOfRow)));
    for (const int entry : entryOfRow)
        texts << keyText(parm, shortcuts, entry);
    return texts;
}

void storeShortcuts(TradeParm& parm, Shortcuts shortcuts, const QStringList& textsByRow)
{
    for (int row = 0; row < int(std::size(entryOfRow)); ++row)
        setKeyText(parm, shortcuts, entryOfRow[row], textsByRow.value(row));
}

} // namespace ParmBinding
