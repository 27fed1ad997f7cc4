#include "client/RecordTable.h"

#include "tradeConfig/ITrade.h"

#include <limits>

namespace RecordFields {
namespace {

constexpr Meaning askPrices[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖一")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖二")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖三")},
    {3, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖四")},
    {4, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖五")},
    {5, nullptr, QT_TRANSLATE_NOOP("RecordFields", "最新价")},
    {6, nullptr, QT_TRANSLATE_NOOP("RecordFields", "空")},
};
constexpr Meaning bidPrices[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买一")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买二")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买三")},
    {3, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买四")},
    {4, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买五")},
    {5, nullptr, QT_TRANSLATE_NOOP("RecordFields", "最新价")},
    {6, nullptr, QT_TRANSLATE_NOOP("RecordFields", "空")},
};
constexpr Meaning quantities[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "空")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "全仓")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "1/2")},
    {3, nullptr, QT_TRANSLATE_NOOP("RecordFields", "1/3")},
    {4, nullptr, QT_TRANSLATE_NOOP("RecordFields", "1/4")},
    {5, nullptr, QT_TRANSLATE_NOOP("RecordFields", "1/5")},
};
constexpr Meaning afterOrder[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "清空")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "保留代码")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "保留代码价格")},
    {3, nullptr, QT_TRANSLATE_NOOP("RecordFields", "保留全部")},
};
constexpr Meaning flags[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "关闭")},
                             {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "启用")}};
constexpr Meaning inputBox[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "光标在数字后")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "全选数字")},
};
constexpr Meaning strategies[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "固定数量")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "区间随机")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "数量递减")},
};
constexpr Meaning starStrategies[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "限价委托")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "市价委托")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "盘后定价")},
    {3, nullptr, QT_TRANSLATE_NOOP("RecordFields", "区间随机")},
    {4, nullptr, QT_TRANSLATE_NOOP("RecordFields", "数量递减")},
};
constexpr Meaning riseItems[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "第一项")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "第二项")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "第三项")},
};
constexpr const char* riseTitles[3] = {riseItems[0].text, riseItems[1].text, riseItems[2].text};
constexpr Meaning buyInput[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买入数量")},
                                {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "买入金额")}};
constexpr Meaning sellInput[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖出数量")},
                                 {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "卖出金额")}};
constexpr Meaning pages[] = {
    {0, "ptmr", QT_TRANSLATE_NOOP("RecordFields", "股票买入")},
    {0, "ptmc", QT_TRANSLATE_NOOP("RecordFields", "股票卖出")},
    {0, "zjgp", QT_TRANSLATE_NOOP("RecordFields", "资金股票")},
};
constexpr Meaning buyModes[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "限价买入")},
                                {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "市价买入")}};
constexpr Meaning sellModes[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "限价卖出")},
                                 {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "市价卖出")}};
constexpr Meaning yesNo[] = {{0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "是")},
                             {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "否")}};
constexpr Meaning fontSizes[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "正常字体")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "大字体")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "特大字体")},
};
constexpr Meaning languages[] = {
    {0, nullptr, QT_TRANSLATE_NOOP("RecordFields", "简体")},
    {1, nullptr, QT_TRANSLATE_NOOP("RecordFields", "繁體")},
    {2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "English")},
};

constexpr Meaning pageModes[] = {{2, nullptr, QT_TRANSLATE_NOOP("RecordFields", "显示")}};
constexpr const char* otherPageMode = QT_TRANSLATE_NOOP("RecordFields", "隐藏");

constexpr const char* shares = QT_TRANSLATE_NOOP("RecordFields", "%1 股");
constexpr const char* percent = QT_TRANSLATE_NOOP("RecordFields", "上浮 %1%");
constexpr const char* minutes = QT_TRANSLATE_NOOP("RecordFields", "%1 分钟");

constexpr int zero[] = {0};
constexpr int one[] = {1};
constexpr int two[] = {2};
constexpr int hundred[] = {100};
constexpr int twoHundred[] = {200};
constexpr int tenThousand[] = {10000};
constexpr int fiftyThousand[] = {50000};
constexpr int halfAnHour[] = {30};
constexpr int riseDefaults[] = {1, 2, 5};

constexpr const char* startPage[] = {"ptmr"};

// In the record's order of functions; neither table uses the global keys F5 and F12.
constexpr const char* stockKeys[13] = {
    "Ctrl+B", "Ctrl+S",       "Ctrl+H",       "Ctrl+D", "Ctrl+O",     "Ctrl+R",     "Ctrl+F",
    "Ctrl+Q", "Ctrl+Shift+B", "Ctrl+Shift+S", "Ctrl+L", "Ctrl+Alt+B", "Ctrl+Alt+S",
};
constexpr const char* creditKeys[13] = {
    "Alt+B", "Alt+S",       "Alt+H",       "Alt+D", "Alt+O", "Alt+R", "Alt+F",
    "Alt+Q", "Alt+Shift+B", "Alt+Shift+S", "Alt+L", "Alt+1", "Alt+2",
};
constexpr const char* keyFunctions[13] = {
    QT_TRANSLATE_NOOP("RecordFields", "买入股票"),
    QT_TRANSLATE_NOOP("RecordFields", "卖出股票"),
    QT_TRANSLATE_NOOP("RecordFields", "持仓"),
    QT_TRANSLATE_NOOP("RecordFields", "成交"),
    QT_TRANSLATE_NOOP("RecordFields", "委托"),
    QT_TRANSLATE_NOOP("RecordFields", "撤单"),
    QT_TRANSLATE_NOOP("RecordFields", "查询"),
    QT_TRANSLATE_NOOP("RecordFields", "全撤"),
    QT_TRANSLATE_NOOP("RecordFields", "撤买"),
    QT_TRANSLATE_NOOP("RecordFields", "撤卖"),
    QT_TRANSLATE_NOOP("RecordFields", "撤最后"),
    QT_TRANSLATE_NOOP("RecordFields", "批量下单-买入"),
    QT_TRANSLATE_NOOP("RecordFields", "批量下单-卖出"),
};

Field named(const char* name, std::size_t offset, const char* title)
{
    Field field;
    field.name = name;
    field.title = title;
    field.offset = offset;
    return field;
}

// The meanings' numbers run from 0 without a gap.
template <std::size_t size>
Field choice(const char* name, std::size_t offset, const char* title,
             const Meaning (&meanings)[size], const int* preset = zero)
{
    Field field = named(name, offset, title);
    field.maximum = static_cast<int>(size) - 1;
    field.meanings = meanings;
    field.meaningCount = static_cast<int>(size);
    field.defaults = preset;
    return field;
}

Field number(const char* name, std::size_t offset, const char* title, int maximum, const char* unit,
             const int* preset)
{
    Field field = named(name, offset, title);
    field.maximum = maximum;
    field.unit = unit;
    field.defaults = preset;
    return field;
}

Field percentages(const char* name, std::size_t offset, const char* title)
{
    Field field = number(name, offset, title, 100, percent, riseDefaults);
    field.count = 3;
    field.isArray = true;
    field.elementTitles = riseTitles;
    return field;
}

template <std::size_t size>
Field code(const char* name, std::size_t offset, const char* title, const Meaning (&meanings)[size],
           const char* const* preset)
{
    Field field = named(name, offset, title);
    field.kind = Kind::Text;
    field.meanings = meanings;
    field.meaningCount = static_cast<int>(size);
    field.textDefaults = preset;
    return field;
}

Field keys(const char* name, std::size_t offset, const char* title, const char* const* presets)
{
    Field field = named(name, offset, title);
    field.kind = Kind::Text;
    field.count = 13;
    field.isArray = true;
    field.textDefaults = presets;
    field.elementTitles = keyFunctions;
    field.isKeys = true;
    return field;
}

Field reserved(const char* name, std::size_t offset, int size)
{
    Field field = named(name, offset, QT_TRANSLATE_NOOP("RecordFields", "保留字段"));
    field.kind = Kind::Bytes;
    field.count = size;
    return field;
}

// Only 2 shows the page, but every number is allowed.
Field pageMode(const char* name, std::size_t offset, const char* title)
{
    Field field = choice(name, offset, title, pageModes, two);
    field.minimum = std::numeric_limits<int>::min();
    field.maximum = std::numeric_limits<int>::max();
    field.otherMeaning = otherPageMode;
    return field;
}

#define FIELD(field) #field, offsetof(TradeParm, field)

QVector<Field> makeTable()
{
    constexpr int maximumQuantity = 10000000;
    constexpr int maximumMinutes = 1000;
    return {
        choice(FIELD(defaultBuyPrice), QT_TRANSLATE_NOOP("RecordFields", "默认买入价格"),
               askPrices),
        choice(FIELD(defaultSellPrice), QT_TRANSLATE_NOOP("RecordFields", "默认卖出价格"),
               bidPrices),
        choice(FIELD(defaultBuyQty), QT_TRANSLATE_NOOP("RecordFields", "默认买入数量"), quantities),
        choice(FIELD(defaultSellQty), QT_TRANSLATE_NOOP("RecordFields", "默认卖出数量"),
               quantities),
        choice(FIELD(afterOrderForm), QT_TRANSLATE_NOOP("RecordFields", "买卖后界面设置"),
               afterOrder),
        choice(FIELD(clickBookQty), QT_TRANSLATE_NOOP("RecordFields", "响应点击买卖盘数量"), flags,
               one),
        choice(FIELD(inputBoxState), QT_TRANSLATE_NOOP("RecordFields", "买卖页面输入框默认状态"),
               inputBox, one),
        choice(FIELD(confirmCancel), QT_TRANSLATE_NOOP("RecordFields", "撤单前需要确认"), flags,
               one),
        choice(FIELD(confirmOrder), QT_TRANSLATE_NOOP("RecordFields", "委托前需要确认"), flags,
               one),
        choice(FIELD(orderSuccessDialog),
               QT_TRANSLATE_NOOP("RecordFields", "委托成功后弹出提示对话框"), flags, one),

        choice(FIELD(splitEnabled), QT_TRANSLATE_NOOP("RecordFields", "启用股票自动分仓"), flags),
        number(FIELD(splitBaseQty), QT_TRANSLATE_NOOP("RecordFields", "分仓基量"), maximumQuantity,
               shares, tenThousand),
        choice(FIELD(splitStrategy), QT_TRANSLATE_NOOP("RecordFields", "分仓拆单策略"), strategies),
        number(FIELD(splitMaxQty), QT_TRANSLATE_NOOP("RecordFields", "分仓单笔上限"),
               maximumQuantity, shares, fiftyThousand),
        number(FIELD(splitMinQty), QT_TRANSLATE_NOOP("RecordFields", "分仓单笔下限"),
               maximumQuantity, shares, hundred),
        number(FIELD(splitStepQty), QT_TRANSLATE_NOOP("RecordFields", "分仓递减数量"),
               maximumQuantity, shares, hundred),

        choice(FIELD(starSplitEnabled), QT_TRANSLATE_NOOP("RecordFields", "启用科创板股票自动分仓"),
               flags),
        number(FIELD(starSplitBaseQty), QT_TRANSLATE_NOOP("RecordFields", "科创板分仓基量"),
               maximumQuantity, shares, tenThousand),
        choice(FIELD(starSplitStrategy), QT_TRANSLATE_NOOP("RecordFields", "科创板拆单策略"),
               starStrategies),
        number(FIELD(starSplitMaxQty), QT_TRANSLATE_NOOP("RecordFields", "科创板单笔上限"),
               maximumQuantity, shares, fiftyThousand),
        number(FIELD(starSplitMinQty), QT_TRANSLATE_NOOP("RecordFields", "科创板单笔下限"),
               maximumQuantity, shares, twoHundred),
        number(FIELD(starSplitStepQty), QT_TRANSLATE_NOOP("RecordFields", "科创板递减数量"),
               maximumQuantity, shares, twoHundred),

        choice(FIELD(starBuyRiseIndex), QT_TRANSLATE_NOOP("RecordFields", "科创板买入保护价选项"),
               riseItems),
        choice(FIELD(starSellRiseIndex), QT_TRANSLATE_NOOP("RecordFields", "科创板卖出保护价选项"),
               riseItems),
        percentages(FIELD(starBuyRiseChoices),
                    QT_TRANSLATE_NOOP("RecordFields", "科创板买入保护价")),
        percentages(FIELD(starSellRiseChoices),
                    QT_TRANSLATE_NOOP("RecordFields", "科创板卖出保护价")),

        choice(FIELD(buyInputType), QT_TRANSLATE_NOOP("RecordFields", "买入时委托输入"), buyInput),
        choice(FIELD(sellInputType), QT_TRANSLATE_NOOP("RecordFields", "卖出时委托输入"),
               sellInput),
        code(FIELD(defaultPage), QT_TRANSLATE_NOOP("RecordFields", "登录后默认页面"), pages,
             startPage),
        number(FIELD(lockMinutes), QT_TRANSLATE_NOOP("RecordFields", "界面不操作超过多久锁屏"),
               maximumMinutes, minutes, halfAnHour),
        choice(FIELD(defaultBuyMode), QT_TRANSLATE_NOOP("RecordFields", "默认买入方式"), buyModes),
        choice(FIELD(defaultSellMode), QT_TRANSLATE_NOOP("RecordFields", "默认卖出方式"),
               sellModes),
        choice(FIELD(quoteFollowsOrder), QT_TRANSLATE_NOOP("RecordFields", "行情代码跟随委托代码"),
               yesNo),
        choice(FIELD(orderFollowsQuote), QT_TRANSLATE_NOOP("RecordFields", "委托代码跟随行情代码"),
               yesNo),
        choice(FIELD(fontSizeLevel), QT_TRANSLATE_NOOP("RecordFields", "行情交易界面字体"),
               fontSizes),
        choice(FIELD(languageIndex), QT_TRANSLATE_NOOP("RecordFields", "行情交易界面语言"),
               languages),
        reserved(FIELD(reservedA), 4),
        pageMode(FIELD(uiPageMode), QT_TRANSLATE_NOOP("RecordFields", "界面设置页")),
        reserved(FIELD(reservedB), 72),
        keys(FIELD(stockShortcuts), QT_TRANSLATE_NOOP("RecordFields", "普通交易快捷键"), stockKeys),
        keys(FIELD(creditShortcuts), QT_TRANSLATE_NOOP("RecordFields", "信用交易快捷键"),
             creditKeys),
    };
#undef FIELD
}

} // namespace

const QVector<Field>& all()
{
    static const QVector<Field> table = makeTable();
    return table;
}

const Field* find(const QString& name)
{
    for (const Field& field : all()) {
        if (name == QLatin1String(field.name))
            return &field;
    }
    return nullptr;
}

} // namespace RecordFields
