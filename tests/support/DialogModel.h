#pragma once

#include "support/KeyText.h"
#include "tradeConfig/ITrade.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <array>

/**
 * What the dialog must show, store and refuse, in the plainest words. It shares no code with the
 * module: it keeps its own fields and rules, and a record of its own.
 */
namespace DialogModel {

constexpr const char* restartQuestion = "部分修改需要重启后生效，确定现在重启吗？";
constexpr const char* refusal
    = "存在不合理的修改参数\n请把红色标记的值修改为绿色标记后再次点击确定！";

enum FieldIndex { Base, Upper, Lower, Decrement, FieldCount };

constexpr const char* functions[13]
    = {"买入股票", "卖出股票", "撤单", "查询",   "持仓",          "成交",         "委托",
       "全撤",     "撤买",     "撤卖", "撤最后", "批量下单-买入", "批量下单-卖出"};

constexpr int rowOfEntry[13] = {0, 1, 4, 5, 6, 2, 3, 7, 8, 9, 10, 11, 12};

/// A check box or a choice, and where the record has it.
struct PlainField {
    const char* control;
    const char* name;
    std::int32_t TradeParm::*value;
    int items; ///< of a choice
};

constexpr PlainField boxes[] = {
    {"checkBox_trade_pk", "clickBookQty", &TradeParm::clickBookQty, 0},
    {"checkBox_trade_cancle", "confirmCancel", &TradeParm::confirmCancel, 0},
    {"checkBox_trade_wt", "confirmOrder", &TradeParm::confirmOrder, 0},
    {"checkBox_trade_wtDlg", "orderSuccessDialog", &TradeParm::orderSuccessDialog, 0},
};
constexpr int boxCount = int(std::size(boxes));

constexpr PlainField combos[] = {
    {"comboBox_system_buy_type", "buyInputType", &TradeParm::buyInputType, 2},
    {"comboBox_system_sell_type", "sellInputType", &TradeParm::sellInputType, 2},
    {"comboBox_system_buyType", "defaultBuyMode", &TradeParm::defaultBuyMode, 2},
    {"comboBox_system_sellType", "defaultSellMode", &TradeParm::defaultSellMode, 2},
    {"comboBox_system_hqLink", "quoteFollowsOrder", &TradeParm::quoteFollowsOrder, 2},
    {"comboBox_system_hqLink2", "orderFollowsQuote", &TradeParm::orderFollowsQuote, 2},
    {"comboBox_system_fontSize", "fontSizeLevel", &TradeParm::fontSizeLevel, 3},
    {"comboBox_trade_buyPrice", "defaultBuyPrice", &TradeParm::defaultBuyPrice, 7},
    {"comboBox_trade_buyCount", "defaultBuyQty", &TradeParm::defaultBuyQty, 6},
    {"comboBox_trade_sellPrice", "defaultSellPrice", &TradeParm::defaultSellPrice, 7},
    {"comboBox_trade_sellCount", "defaultSellQty", &TradeParm::defaultSellQty, 6},
    {"comboBox_trade_wt", "afterOrderForm", &TradeParm::afterOrderForm, 4},
    {"comboBox_trade_lineEdit", "inputBoxState", &TradeParm::inputBoxState, 2},
};
constexpr int comboCount = int(std::size(combos));

/// The record by its field names; an element of an array is "name[index]".
using Record = QMap<QString, QString>;

inline QString fieldName(const char* name) { return QString::fromLatin1(name); }

inline QString elementName(const char* name, int index)
{
    return QStringLiteral("%1[%2]").arg(QLatin1String(name)).arg(index);
}

// Verdicts: '-' never given, 'g' accepted, 'r' refused.

/// Automatic splitting, of stocks or of STAR-board stocks.
struct Group {
    bool star = false;
    bool enabled = false;
    int strategy = 0;
    std::array<QString, FieldCount> texts;
    std::array<char, FieldCount> marks = {'-', '-', '-', '-'};
    std::array<char, FieldCount> entries = {'-', '-', '-', '-'};
    bool lowerShown = false;
    bool decrementShown = false;

    int value(int field) const { return texts[std::size_t(field)].toInt(); }

    bool shown(int field) const
    {
        return field == Lower ? lowerShown : field == Decrement ? decrementShown : true;
    }

    void give(int field, char verdict)
    {
        marks[std::size_t(field)] = verdict;
        entries[std::size_t(field)] = verdict;
    }

    void clearIfRefused(int field)
    {
        if (entries[std::size_t(field)] == 'r')
            give(field, 'g');
    }

    /// The focus leaves a field. Returns the tip that it brings, or nothing.
    QString leave(int field)
    {
        QString tip;
        if (value(field) < 100) {
            tip = QStringLiteral("不能小于100股");
        } else if (field == Upper
                   && (value(Lower) > value(Upper) || value(Decrement) > value(Upper))) {
            tip = QStringLiteral("上限不能小于下限或递减数量");
            lowerShown = true;
            decrementShown = true;
        } else if ((field == Lower || field == Decrement) && value(field) > value(Upper)) {
            tip = QStringLiteral("不能大于上限");
        }
        give(field, tip.isEmpty() ? 'g' : 'r');
        if (!tip.isEmpty())
            return tip;
        if (field == Upper) {
            clearIfRefused(Lower);
            clearIfRefused(Decrement);
        }
        if (field == Lower && value(Decrement) <= value(Upper))
            clearIfRefused(Upper);
        if (field == Decrement && value(Lower) <= value(Upper))
            clearIfRefused(Upper);
        return tip;
    }

    void choose(int index)
    {
        strategy = index;
        lowerShown = index == (star ? 3 : 1);
        decrementShown = index == (star ? 4 : 2);
        if (star && index <= 2) {
            texts[Base] = QStringLiteral("10000");
            texts[Upper] = index == 1 ? QStringLiteral("50000") : QStringLiteral("100000");
        }
    }

    /// The names of the record's fields: enabled, strategy, and the four quantities.
    std::array<const char*, 2 + FieldCount> names() const
    {
        if (star)
            return {"starSplitEnabled", "starSplitStrategy", "starSplitBaseQty",
                    "starSplitMaxQty",  "starSplitMinQty",   "starSplitStepQty"};
        return {"splitEnabled", "splitStrategy", "splitBaseQty",
                "splitMaxQty",  "splitMinQty",   "splitStepQty"};
    }

    void load(const Record& record)
    {
        const auto stored = [&](std::size_t which) { return record[fieldName(names()[which])]; };
        enabled = stored(0) == QStringLiteral("1");
        texts[Base] = stored(2);
        choose(stored(1).toInt());
        for (const std::size_t field : {Upper, Lower, Decrement})
            texts[field] = stored(2 + field);
    }

    void store(Record& record) const
    {
        record[fieldName(names()[0])] = QString::number(enabled ? 1 : 0);
        record[fieldName(names()[1])] = QString::number(strategy);
        for (int field = 0; field < FieldCount; ++field)
            record[fieldName(names()[2 + std::size_t(field)])] = QString::number(value(field));
    }
};

/// The hotkeys, ordinary or credit.
struct Table {
    bool credit = false;
    std::array<QString, 13> cells;
    std::array<QString, 13> stored;
    std::array<char, 13> marks;
    std::array<QString, 13> statuses;
    int onlyRow = -1; ///< the row in error: the others take no keys
    char entry = '-';

    Table()
    {
        marks.fill('-');
        statuses.fill(QStringLiteral("正常"));
    }

    const char* name() const { return credit ? "creditShortcuts" : "stockShortcuts"; }

    bool takesKeys(int row) const { return onlyRow < 0 || onlyRow == row; }

    void refuse(std::size_t row, const QString& status)
    {
        marks[row] = 'r';
        statuses[row] = status;
        onlyRow = int(row);
        entry = 'r';
    }

    void capture(std::size_t row, const QString& text)
    {
        cells[row] = text;
        if (!credit && (text == QStringLiteral("F5") || text == QStringLiteral("F12"))) {
            refuse(row, text + QStringLiteral("为全局快捷键！"));
            return;
        }
        if (credit && stored[row] == text)
            return;
        stored[row] = text;
        for (std::size_t other = 0; other < 13; ++other) {
            if (other != row && stored[other] == text) {
                refuse(row,
                       QStringLiteral("与") + QString::fromUtf8(functions[other])
                           + QStringLiteral("重复"));
                return;
            }
        }
        marks[row] = 'g';
        statuses[row] = QStringLiteral("正常");
        onlyRow = -1;
        entry = 'g';
    }

    void load(const Record& record)
    {
        for (int entryIndex = 0; entryIndex < 13; ++entryIndex) {
            const auto row = std::size_t(rowOfEntry[entryIndex]);
            cells[row] = stored[row] = record[elementName(name(), entryIndex)];
        }
    }

    void store(Record& record) const
    {
        for (int entryIndex = 0; entryIndex < 13; ++entryIndex)
            record[elementName(name(), entryIndex)] = cells[std::size_t(rowOfEntry[entryIndex])];
    }
};

/// A protection price, for buying or for selling.
struct Rise {
    bool sell = false;
    std::array<QString, 3> items;
    int index = 0;

    const char* indexName() const { return sell ? "starSellRiseIndex" : "starBuyRiseIndex"; }
    const char* choicesName() const { return sell ? "starSellRiseChoices" : "starBuyRiseChoices"; }

    void load(const Record& record)
    {
        for (int item = 0; item < 3; ++item)
            items[std::size_t(item)] = record[elementName(choicesName(), item)];
        index = record[fieldName(indexName())].toInt();
    }

    void store(Record& record) const
    {
        record[fieldName(indexName())] = QString::number(index);
        for (int item = 0; item < 3; ++item)
            record[elementName(choicesName(), item)]
                = QString::number(items[std::size_t(item)].toInt());
    }
};

/// The settings file: what it says, or nothing.
struct File {
    QString language;
    QString scale;
};

/// The whole dialog on a record and a settings file, which outlive it.
struct Model {
    Record record; ///< as the core has it
    File file;
    int saves = 0;

    std::array<Group, 2> groups;
    std::array<Table, 2> tables;
    std::array<Rise, 2> rises;
    std::array<bool, boxCount> boxStates = {};
    std::array<int, comboCount> comboStates = {};
    int page = 0;
    int language = 0;
    int scale = 100;
    bool restartNeeded = false;
    QString lockTime;
    QString tip;

    /// A new dialog.
    void open()
    {
        Model fresh;
        fresh.record = record;
        fresh.file = file;
        fresh.saves = saves;
        for (const bool second : {false, true}) {
            fresh.groups[second].star = second;
            fresh.tables[second].credit = second;
            fresh.rises[second].sell = second;
            fresh.groups[second].load(record);
            fresh.tables[second].load(record);
            fresh.rises[second].load(record);
        }
        for (std::size_t box = 0; box < boxCount; ++box)
            fresh.boxStates[box] = record[fieldName(boxes[box].name)] == QStringLiteral("1");
        for (std::size_t combo = 0; combo < comboCount; ++combo)
            fresh.comboStates[combo] = record[fieldName(combos[combo].name)].toInt();
        const QString code = record[QStringLiteral("defaultPage")];
        fresh.page = code == QStringLiteral("ptmc") ? 1 : code == QStringLiteral("zjgp") ? 2 : 0;
        fresh.lockTime = record[QStringLiteral("lockMinutes")];
        fresh.language = file.language == QStringLiteral("en_US") ? 2
            : file.language == QStringLiteral("zh_TW")            ? 1
                                                                  : 0;
        fresh.scale = std::min(std::max(file.scale.toInt(), 100), 300);
        *this = fresh;
    }

    bool valid() const
    {
        for (const Group& group : groups) {
            for (const char entry : group.entries) {
                if (entry == 'r')
                    return false;
            }
        }
        return tables[0].entry != 'r' && tables[1].entry != 'r';
    }

    void saveFile()
    {
        constexpr const char* codes[] = {"zh_CN", "zh_TW", "en_US"};
        file.language = QString::fromLatin1(codes[language]);
        file.scale = QString::number(scale);
    }

    /// Another language is chosen. Returns the box that comes up.
    QString changeLanguage(int index)
    {
        if (language == index)
            return QString();
        language = index;
        record[QStringLiteral("languageIndex")] = QString::number(index);
        saveFile();
        return QString::fromUtf8(restartQuestion);
    }

    void changeScale(int percent)
    {
        restartNeeded = restartNeeded || scale != percent;
        scale = percent;
    }

    /// The confirm button. Returns the boxes that come up.
    QStringList confirm()
    {
        QStringList shown;
        if (restartNeeded) {
            saveFile();
            shown << QString::fromUtf8(restartQuestion);
        }
        if (!valid())
            return shown << QString::fromUtf8(refusal);
        for (const Group& group : groups)
            group.store(record);
        for (const Rise& rise : rises)
            rise.store(record);
        for (const Table& table : tables)
            table.store(record);
        for (std::size_t box = 0; box < boxCount; ++box)
            record[fieldName(boxes[box].name)] = QString::number(boxStates[box] ? 1 : 0);
        for (std::size_t combo = 0; combo < comboCount; ++combo)
            record[fieldName(combos[combo].name)] = QString::number(comboStates[combo]);
        constexpr const char* pages[] = {"ptmr", "ptmc", "zjgp"};
        record[QStringLiteral("defaultPage")] = QString::fromLatin1(pages[page]);
        record[QStringLiteral("lockMinutes")] = QString::number(lockTime.toInt());
        record[QStringLiteral("languageIndex")] = QString::number(language);
        ++saves;
        return shown;
    }
};

} // namespace DialogModel
