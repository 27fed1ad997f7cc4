#include "tradeConfig/dialog/ChoiceLists.h"

#include "tradeConfig/dialog/FormText.h"

#include "ui_CTradeConfigWidget.h"

#include <QStringList>

namespace {

struct Choice {
    constexpr Choice(const char* choiceText = nullptr, bool isTranslated = true)
        : text(choiceText)
        , translated(isTranslated)
    {
    }

    const char* text;
    bool translated;
};

constexpr int mostChoices = 7;

struct ChoiceList {
    QComboBox* Ui_CTradeConfigWidget::*combo;
    Choice choices[mostChoices];
};

constexpr Choice plain(const char* text) { return {text, false}; }

using Form = Ui_CTradeConfigWidget;

// clang-format off
constexpr ChoiceList lists[] = {
    {&Form::comboBox_system_buy_type,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "买入数量"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "买入金额")}},
    {&Form::comboBox_system_sell_type,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖出数量"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖出金额")}},
    {&Form::comboBox_system_defaultView,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "股票买入"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "股票卖出"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "资金股票")}},
    {&Form::comboBox_system_buyType,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "限价买入"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "市价买入")}},
    {&Form::comboBox_system_sellType,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "限价卖出"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "市价卖出")}},
    {&Form::comboBox_system_hqLink,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "是"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "否")}},
    {&Form::comboBox_system_hqLink2,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "是"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "否")}},
    {&Form::comboBox_system_fontSize,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "正常字体"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "大字体"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "特大字体")}},
    {&Form::comboBox_system_language,
     {plain("简体"),
      plain("繁體"),
      plain("English")}},
    {&Form::comboBox_trade_buyPrice,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖一"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖二"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖三"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖四"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖五"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "最新价"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "空")}},
    {&Form::comboBox_trade_buyCount,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "空"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "全仓"),
      plain("1/2"),
      plain("1/3"),
      plain("1/4"),
      plain("1/5")}},
    {&Form::comboBox_trade_sellPrice,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "买一"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "买二"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "买三"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "买四"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "买五"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "最新价"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "空")}},
    {&Form::comboBox_trade_sellCount,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "空"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "全仓"),
      plain("1/2"),
      plain("1/3"),
      plain("1/4"),
      plain("1/5")}},
    {&Form::comboBox_trade_wt,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "清空"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "保留代码"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "保留代码价格"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "保留全部")}},
    {&Form::comboBox_trade_lineEdit,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "光标在数字后"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "全选数字")}},
    {&Form::comboBox_trade_split,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "固定数量"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "区间随机"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "数量递减")}},
    // The first three are order types; random and decreasing sit at 3 and 4 here.
    {&Form::comboBox_trade_kc_split,
     {QT_TRANSLATE_NOOP("CTradeConfigWidget", "限价委托"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "市价委托"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "盘后定价"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "区间随机"),
      QT_TRANSLATE_NOOP("CTradeConfigWidget", "数量递减")}},
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
            items << (choice.translated ? FormText::tr(choice.text)
                                        : QString::fromUtf8(choice.text));
        }
        (ui.*list.combo)->addItems(items);
    }
}
