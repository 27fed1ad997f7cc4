#include "tradeConfig/ChoiceLists.h"

#include "tradeConfig/CTradeConfigWidget.h"

#include <QStringList>

namespace {

struct Choice {
    const char* text = nullptr;
    bool translated = true;
};

constexpr int mostChoices = 7;

struct ChoiceList {
    QComboBox* Ui_CTradeConfigWidget::*combo;
    Choice choices[mostChoices];
};

constexpr Choice plain(const char* text) { return {text, false}; }

using Form = Ui_CTradeConfigWidget;

#define CHOICE(text)                                                                               \
    Choice { QT_TRANSLATE_NOOP("CTradeConfigWidget", text) }

// clang-format off
constexpr ChoiceList lists[] = {
    {&Form::comboBox_system_buy_type, {CHOICE("买入数量"), CHOICE("买入金额")}},
    {&Form::comboBox_system_sell_type, {CHOICE("卖出数量"), CHOICE("卖出金额")}},
    {&Form::comboBox_system_defaultView,
     {CHOICE("股票买入"), CHOICE("股票卖出"), CHOICE("资金股票")}},
    {&Form::comboBox_system_buyType, {CHOICE("限价买入"), CHOICE("市价买入")}},
    {&Form::comboBox_system_sellType, {CHOICE("限价卖出"), CHOICE("市价卖出")}},
    {&Form::comboBox_system_hqLink, {CHOICE("是"), CHOICE("否")}},
    {&Form::comboBox_system_hqLink2, {CHOICE("是"), CHOICE("否")}},
    {&Form::comboBox_system_fontSize, {CHOICE("正常字体"), CHOICE("大字体"), CHOICE("特大字体")}},
    {&Form::comboBox_system_language, {plain("简体"), plain("繁體"), plain("English")}},
    {&Form::comboBox_trade_buyPrice,
     {CHOICE("卖一"), CHOICE("卖二"), CHOICE("卖三"), CHOICE("卖四"), CHOICE("卖五"),
      CHOICE("最新价"), CHOICE("空")}},
    {&Form::comboBox_trade_buyCount,
     {CHOICE("空"), CHOICE("全仓"), plain("1/2"), plain("1/3"), plain("1/4"), plain("1/5")}},
    {&Form::comboBox_trade_sellPrice,
     {CHOICE("买一"), CHOICE("买二"), CHOICE("买三"), CHOICE("买四"), CHOICE("买五"),
      CHOICE("最新价"), CHOICE("空")}},
    {&Form::comboBox_trade_sellCount,
     {CHOICE("空"), CHOICE("全仓"), plain("1/2"), plain("1/3"), plain("1/4"), plain("1/5")}},
    {&Form::comboBox_trade_wt,
     {CHOICE("清空"), CHOICE("保留代码"), CHOICE("保留代码价格"), CHOICE("保留全部")}},
    {&Form::comboBox_trade_lineEdit, {CHOICE("光标在数字后"), CHOICE("全选数字")}},
    {&Form::comboBox_trade_split, {CHOICE("固定数量"), CHOICE("区间随机"), CHOICE("数量递减")}},
    // The first three are order types; random and decreasing sit at 3 and 4 here.
    {&Form::comboBox_trade_kc_split,
     {CHOICE("限价委托"), CHOICE("市价委托"), CHOICE("盘后定价"), CHOICE("区间随机"),
      CHOICE("数量递减")}},
};
// clang-format on

} // namespace

void ChoiceLists::fill(const Ui_CTradeConfigWidget& ui)
{
    for (const ChoiceList& list : lists) {
        QStringList items;
        items.reserve(mostChoices);
        for (const Choice& choice : list.choices) {
            if (!choice.text)
                break;
            items << (choice.translated ? CTradeConfigWidget::tr(choice.text)
                                        : QString::fromUtf8(choice.text));
        }
        (ui.*list.combo)->addItems(items);
    }
}
