#include "support/KeyText.h"
#include "support/MessageCapture.h"
#include "support/ModalAnswer.h"
#include "support/Shorten.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"

#include <array>
#include <random>

// A user who does thousands of things to the dialog, beside a model that knows what each of them
// must change. The model shares no code with the module: it keeps its own fields and rules.

namespace {

enum FieldIndex { Base, Upper, Lower, Decrement, FieldCount };

struct Typed {
    const char* keys;
    const char* text; ///< what the field holds then
};

constexpr Typed quantities[] = {
    {"", ""},
    {"0", "0"},
    {"50", "50"},
    {"99", "99"},
    {"100", "100"},
    {"101", "101"},
    {"200", "200"},
    {"299", "299"},
    {"300", "300"},
    {"301", "301"},
    {"5000", "5000"},
    {"10000000", "10000000"},
    {"0100", "0100"},
    {"1x2y0", "120"},
    {"-250", "250"},
    {"99999999", "9999999"},
    {"1,000", "1000"},
    {"+77", "77"},
    {"10000001", "1000000"},
};

constexpr Typed minutes[] = {{"", ""}, {"60", "60"}, {"1000", "1000"}, {"1001", "100"}, {"a", ""}};

constexpr Typed percents[]
    = {{"", ""}, {"0", "0"}, {"1", "1"}, {"2", "2"}, {"100", "100"}, {"101", "10"}, {"-3", "3"}};

struct Chord {
    Qt::Key key;
    int modifiers;
    const char* text; ///< null: refused
};

// Few, so that they collide.
constexpr Chord chords[] = {
    {Qt::Key_F5, 0, "F5"},
    {Qt::Key_F12, 0, "F12"},
    {Qt::Key_F5, Qt::ShiftModifier, "Shift+F5"},
    {Qt::Key_A, 0, "A"},
    {Qt::Key_A, Qt::ControlModifier, "Ctrl+A"},
    {Qt::Key_B, Qt::ControlModifier, "Ctrl+B"},
    {Qt::Key_A, Qt::AltModifier, "Alt+A"},
    {Qt::Key_C, Qt::AltModifier, "Alt+C"},
    {Qt::Key_D, Qt::ControlModifier | Qt::AltModifier, "Ctrl+Alt+D"},
    {Qt::Key_Escape, 0, "Esc"},
    {Qt::Key_Return, 0, "Return"},
    {Qt::Key_Backspace, 0, "Backspace"},
    {Qt::Key_F1, 0, "F1"},
    {Qt::Key_F2, 0, "F2"},
    {Qt::Key_F3, 0, "F3"},
    {Qt::Key_F4, 0, "F4"},
    {Qt::Key_Shift, Qt::ShiftModifier, nullptr},
    {Qt::Key_A, Qt::MetaModifier, nullptr},
    {Qt::Key_unknown, 0, nullptr},
};

constexpr const char* functions[13]
    = {"买入股票", "卖出股票", "撤单", "查询",   "持仓",          "成交",         "委托",
       "全撤",     "撤买",     "撤卖", "撤最后", "批量下单-买入", "批量下单-卖出"};

constexpr int rowOfEntry[13] = {0, 1, 4, 5, 6, 2, 3, 7, 8, 9, 10, 11, 12};

struct GroupNames {
    std::array<const char*, FieldCount> edits;
    const char* lowerLabel;
    const char* decrementLabel;
    const char* strategy;
    const char* enabled;
    int strategies;
    int page;
};

constexpr GroupNames groupNames[2] = {
    {{"lineEdit_trade_baseCount", "lineEdit_trade_high", "lineEdit_trade_low",
      "lineEdit_trade_desc"},
     "label_trade_low",
     "label_trade_desc",
     "comboBox_trade_split",
     "checkBox_trade_fc",
     3,
     2},
    {{"lineEdit_trade_kc_baseCount", "lineEdit_trade_kc_high", "lineEdit_trade_kc_low",
      "lineEdit_trade_kc_desc"},
     "label_trade_kc_low",
     "label_trade_kc_desc",
     "comboBox_trade_kc_split",
     "checkBox_trade_kc_fc",
     5,
     3},
};

struct BoxField {
    const char* name;
    std::int32_t TradeParm::*value;
};

constexpr BoxField boxes[] = {
    {"checkBox_trade_pk", &TradeParm::clickBookQty},
    {"checkBox_trade_cancle", &TradeParm::confirmCancel},
    {"checkBox_trade_wt", &TradeParm::confirmOrder},
    {"checkBox_trade_wtDlg", &TradeParm::orderSuccessDialog},
};
constexpr int boxCount = int(std::size(boxes));

struct ComboField {
    const char* name;
    std::int32_t TradeParm::*value;
    int items;
};

constexpr ComboField combos[] = {
    {"comboBox_system_buy_type", &TradeParm::buyInputType, 2},
    {"comboBox_system_hqLink", &TradeParm::quoteFollowsOrder, 2},
    {"comboBox_trade_buyPrice", &TradeParm::defaultBuyPrice, 7},
    {"comboBox_trade_sellCount", &TradeParm::defaultSellQty, 6},
    {"comboBox_trade_wt", &TradeParm::afterOrderForm, 4},
};
constexpr int comboCount = int(std::size(combos));

enum class Kind {
    Quantity, ///< type a quantity and leave
    Visit, ///< pass through two quantities without typing
    Strategy,
    Enable,
    Box,
    Combo,
    LockTime,
    Rise,
    RiseChoice,
    Key,
    Confirm,
    Cancel,
    Sabotage, ///< changes a mark behind the model's back; never generated
};

struct Action {
    Kind kind;
    int a = 0;
    int b = 0;
    int c = 0;
};

using Actions = std::vector<Action>;

const char* const kindNames[]
    = {"Quantity", "Visit",      "Strategy", "Enable",  "Box",    "Combo",   "LockTime",
       "Rise",     "RiseChoice", "Key",      "Confirm", "Cancel", "Sabotage"};

QString describe(const Action& action)
{
    return QStringLiteral("{Kind::%1, %2, %3, %4}")
        .arg(QLatin1String(kindNames[int(action.kind)]))
        .arg(action.a)
        .arg(action.b)
        .arg(action.c);
}

// Verdicts: '-' never given, 'g' accepted, 'r' refused.

struct GroupModel {
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

    void leave(int field)
    {
        bool good = value(field) >= 100;
        if (good && field == Upper
            && (value(Lower) > value(Upper) || value(Decrement) > value(Upper))) {
            good = false;
            lowerShown = true;
            decrementShown = true;
        }
        if (good && (field == Lower || field == Decrement))
            good = value(field) <= value(Upper);
        if (good && field == Upper) {
            clearIfRefused(Lower);
            clearIfRefused(Decrement);
        }
        if (good && field == Lower && value(Decrement) <= value(Upper))
            clearIfRefused(Upper);
        if (good && field == Decrement && value(Lower) <= value(Upper))
            clearIfRefused(Upper);
        give(field, good ? 'g' : 'r');
    }

    void choose(bool star, int index)
    {
        strategy = index;
        lowerShown = index == (star ? 3 : 1);
        decrementShown = index == (star ? 4 : 2);
        if (star && index <= 2) {
            texts[Base] = QStringLiteral("10000");
            texts[Upper] = index == 1 ? QStringLiteral("50000") : QStringLiteral("100000");
        }
    }
};

struct TableModel {
    std::array<QString, 13> cells;
    std::array<QString, 13> stored;
    std::array<char, 13> marks;
    std::array<QString, 13> statuses;
    int onlyRow = -1; ///< the row in error: the others take no keys
    char entry = '-';

    TableModel()
    {
        marks.fill('-');
        statuses.fill(QStringLiteral("正常"));
    }

    void refuse(std::size_t row, const QString& status)
    {
        marks[row] = 'r';
        statuses[row] = status;
        onlyRow = int(row);
        entry = 'r';
    }

    void capture(bool credit, std::size_t row, const QString& text)
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
};

struct RiseModel {
    std::array<QString, 3> items;
    int index = 0;
};

/// What the record must hold, in a form that is easy to compare.
using Record = QStringList;

struct Model {
    std::array<GroupModel, 2> groups;
    std::array<TableModel, 2> tables;
    std::array<RiseModel, 2> rises;
    std::array<bool, boxCount> boxStates = {};
    std::array<int, comboCount> comboStates = {};
    QString lockTime;
    int saves = 0;
    Record record; ///< as last written

    bool valid() const
    {
        for (const GroupModel& group : groups) {
            for (const char entry : group.entries) {
                if (entry == 'r')
                    return false;
            }
        }
        return tables[0].entry != 'r' && tables[1].entry != 'r';
    }

    Record toRecord() const
    {
        Record fields;
        const auto number = [&fields](int value) { fields << QString::number(value); };
        for (const GroupModel& group : groups) {
            number(group.enabled ? 1 : 0);
            number(group.strategy);
            for (int field = 0; field < FieldCount; ++field)
                number(group.value(field));
        }
        for (const RiseModel& rise : rises) {
            number(rise.index);
            for (const QString& item : rise.items)
                number(item.toInt());
        }
        for (const bool checked : boxStates)
            number(checked ? 1 : 0);
        for (const int index : comboStates)
            number(index);
        number(lockTime.toInt());
        for (const TableModel& table : tables) {
            for (const int row : rowOfEntry)
                fields << table.cells[std::size_t(row)];
        }
        return fields;
    }
};

Record recordOf(FakeTrade& trade)
{
    Record fields;
    const TradeParm& parm = trade.parm();
    const auto numbers = [&fields](std::initializer_list<int> values) {
        for (const int value : values)
            fields << QString::number(value);
    };
    numbers({parm.splitEnabled, parm.splitStrategy, parm.splitBaseQty, parm.splitMaxQty,
             parm.splitMinQty, parm.splitStepQty});
    numbers({parm.starSplitEnabled, parm.starSplitStrategy, parm.starSplitBaseQty,
             parm.starSplitMaxQty, parm.starSplitMinQty, parm.starSplitStepQty});
    numbers({parm.starBuyRiseIndex, parm.starBuyRiseChoices[0], parm.starBuyRiseChoices[1],
             parm.starBuyRiseChoices[2]});
    numbers({parm.starSellRiseIndex, parm.starSellRiseChoices[0], parm.starSellRiseChoices[1],
             parm.starSellRiseChoices[2]});
    for (const BoxField& box : boxes)
        numbers({parm.*box.value});
    for (const ComboField& combo : combos)
        numbers({parm.*combo.value});
    numbers({parm.lockMinutes});
    for (int entry = 0; entry < 13; ++entry)
        fields << QString::fromUtf8(trade.text(&TradeParm::stockShortcuts, entry));
    for (int entry = 0; entry < 13; ++entry)
        fields << QString::fromUtf8(trade.text(&TradeParm::creditShortcuts, entry));
    return fields;
}

class Run {
public:
    explicit Run(quint32 seed)
        : m_dialog([this, seed](FakeTrade& trade) { makeRecord(trade, seed); })
    {
        show();
    }

    /// Does @p action; what went wrong, or nothing.
    QString apply(const Action& action)
    {
        perform(action);
        return compare();
    }

    QString compare();

private:
    void makeRecord(FakeTrade& trade, quint32 seed);
    void show();
    void perform(const Action& action);
    void perform(Kind kind, std::size_t a, int b, int c);
    void typeQuantity(std::size_t group, int field, const Typed& typed);
    void editRise(std::size_t price, const Typed& typed, bool withReturn);
    void confirm();
    bool reachable(std::size_t group, int field) const;

    template <typename Widget = QWidget> Widget& find(const char* name) const
    {
        return m_dialog.find<Widget>(name);
    }
    QLineEdit& edit(std::size_t group, int field) const
    {
        return find<QLineEdit>(groupNames[group].edits[std::size_t(field)]);
    }
    QTableWidget& table(std::size_t index) const
    {
        return find<QTableWidget>(index ? "tableWidget_credit" : "tableWidget_shortcut");
    }
    QComboBox& riseCombo(std::size_t price) const
    {
        return find<QComboBox>(price ? "comboBox_trade_kc_sellRise" : "comboBox_trade_kc_buyRise");
    }
    void showPage(std::size_t group) const
    {
        m_dialog->SetCurrentIndex(1);
        m_dialog->ui.stackedWidget_trade->setCurrentIndex(groupNames[group].page);
    }
    static void type(QWidget& field, const char* keys)
    {
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QString::fromLatin1(keys));
    }

    Model m_model;
    QByteArray m_reserved;
    TestDialog m_dialog;
};

void Run::makeRecord(FakeTrade& trade, quint32 seed)
{
    std::mt19937 random(seed);
    const auto pick = [&random](int count) { return int(random() % quint32(count)); };
    const int amounts[] = {0, 50, 99, 100, 101, 200, 300, 500, 10000000};
    TradeParm& parm = trade.parm();

    std::int32_t* const values[2][FieldCount]
        = {{&parm.splitBaseQty, &parm.splitMaxQty, &parm.splitMinQty, &parm.splitStepQty},
           {&parm.starSplitBaseQty, &parm.starSplitMaxQty, &parm.starSplitMinQty,
            &parm.starSplitStepQty}};
    parm.splitEnabled = pick(4) ? 1 : 2;
    parm.starSplitEnabled = pick(4) ? 1 : 0;
    parm.splitStrategy = pick(3);
    parm.starSplitStrategy = pick(5);
    for (auto& group : values) {
        for (std::int32_t* const value : group)
            *value = amounts[pick(int(std::size(amounts)))];
    }
    for (std::size_t g = 0; g < 2; ++g) {
        GroupModel& group = m_model.groups[g];
        group.enabled = (g ? parm.starSplitEnabled : parm.splitEnabled) == 1;
        group.choose(g == 1, g ? parm.starSplitStrategy : parm.splitStrategy);
        const bool preset = g == 1 && parm.starSplitStrategy <= 2;
        for (std::size_t field = preset ? Upper : Base; field < FieldCount; ++field)
            group.texts[field] = QString::number(*values[g][field]);
    }

    for (std::size_t item = 0; item < 3; ++item) {
        parm.starBuyRiseChoices[item] = pick(101);
        parm.starSellRiseChoices[item] = pick(101);
        m_model.rises[0].items[item] = QString::number(parm.starBuyRiseChoices[item]);
        m_model.rises[1].items[item] = QString::number(parm.starSellRiseChoices[item]);
    }
    m_model.rises[0].index = parm.starBuyRiseIndex = pick(3);
    m_model.rises[1].index = parm.starSellRiseIndex = pick(3);

    for (std::size_t box = 0; box < boxCount; ++box) {
        parm.*boxes[box].value = pick(3);
        m_model.boxStates[box] = parm.*boxes[box].value == 1;
    }
    for (std::size_t combo = 0; combo < comboCount; ++combo)
        m_model.comboStates[combo] = parm.*combos[combo].value = pick(combos[combo].items);
    parm.lockMinutes = pick(1001);
    m_model.lockTime = QString::number(parm.lockMinutes);

    for (int entry = 0; entry < 13; ++entry) {
        const auto row = std::size_t(rowOfEntry[entry]);
        const QChar letter = QLatin1Char(char('A' + entry));
        m_model.tables[0].cells[row] = m_model.tables[0].stored[row]
            = keyText(QStringLiteral("Ctrl+") + letter);
        // Keys that the user presses as well, so that some are pressed where they are already.
        const QString key = keyText(chords[row + 3].text);
        trade.setText(&TradeParm::creditShortcuts, entry, key.toUtf8());
        m_model.tables[1].cells[row] = m_model.tables[1].stored[row] = key;
    }
    m_model.record = recordOf(trade);
    m_reserved = trade.reservedBytes();
}

void Run::show()
{
    // What hiding left behind comes first: it would take the activation back.
    QCoreApplication::processEvents();
    m_dialog->show();
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(m_dialog.get());
    m_dialog.leaveField();
    if (!m_dialog->ui.pushButton_confirm->hasFocus())
        qFatal("the dialog did not become active");
}

bool Run::reachable(std::size_t group, int field) const
{
    return m_model.groups[group].enabled && m_model.groups[group].shown(field);
}

void Run::typeQuantity(std::size_t group, int field, const Typed& typed)
{
    if (!reachable(group, field))
        return;
    showPage(group);
    type(edit(group, field), typed.keys);
    m_dialog.leaveField();
    m_model.groups[group].texts[std::size_t(field)] = QString::fromLatin1(typed.text);
    m_model.groups[group].leave(field);
}

void Run::editRise(std::size_t price, const Typed& typed, bool withReturn)
{
    showPage(1);
    find<QPushButton>(price ? "pushButton_kc_sellRise" : "pushButton_kc_buyRise").click();
    type(riseCombo(price), typed.keys);
    if (withReturn)
        QTest::keyClick(&riseCombo(price), Qt::Key_Return);
    m_dialog.leaveField();
    RiseModel& rise = m_model.rises[price];
    rise.items[std::size_t(rise.index)] = QString::fromLatin1(typed.text);
}

void Run::confirm()
{
    if (m_model.valid()) {
        m_dialog.confirm();
        m_model.record = m_model.toRecord();
        ++m_model.saves;
        if (m_dialog->isVisible())
            QTest::qFail("a confirmed dialog stays open", __FILE__, __LINE__);
    } else {
        const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
        m_dialog.confirm();
        if (!m_dialog->isVisible())
            QTest::qFail("a refused dialog closes", __FILE__, __LINE__);
    }
    show();
}

void Run::perform(const Action& action)
{
    perform(action.kind, std::size_t(action.a), action.b, action.c);
}

void Run::perform(Kind kind, std::size_t a, int b, int c)
{
    switch (kind) {
    case Kind::Quantity:
        typeQuantity(a, b, quantities[c]);
        break;
    case Kind::Visit:
        if (!reachable(a, b) || !reachable(a, c) || b == c)
            break;
        showPage(a);
        edit(a, b).setFocus();
        edit(a, c).setFocus();
        m_dialog.leaveField();
        m_model.groups[a].leave(b);
        m_model.groups[a].leave(c);
        break;
    case Kind::Strategy: {
        GroupModel& group = m_model.groups[a];
        const int index = b % groupNames[a].strategies;
        if (!group.enabled)
            break;
        find<QComboBox>(groupNames[a].strategy).setCurrentIndex(index);
        if (index != group.strategy)
            group.choose(a == 1, index);
        break;
    }
    case Kind::Enable:
        find<QCheckBox>(groupNames[a].enabled).click();
        m_model.groups[a].enabled = !m_model.groups[a].enabled;
        break;
    case Kind::Box:
        find<QCheckBox>(boxes[a].name).click();
        m_model.boxStates[a] = !m_model.boxStates[a];
        break;
    case Kind::Combo:
        find<QComboBox>(combos[a].name).setCurrentIndex(b % combos[a].items);
        m_model.comboStates[a] = b % combos[a].items;
        break;
    case Kind::LockTime:
        m_dialog->SetCurrentIndex(0);
        type(*m_dialog->ui.lineEdit_system_lockTime, minutes[a].keys);
        m_dialog.leaveField();
        m_model.lockTime = QString::fromLatin1(minutes[a].text);
        break;
    case Kind::Rise:
        editRise(a, percents[b], c == 1);
        break;
    case Kind::RiseChoice:
        riseCombo(a).setCurrentIndex(b);
        m_model.rises[a].index = b;
        break;
    case Kind::Key: {
        const Chord& chord = chords[c];
        QWidget* const cell = table(a).cellWidget(b, 1);
        QKeyEvent press(QEvent::KeyPress, chord.key, Qt::KeyboardModifiers(chord.modifiers));
        QCoreApplication::sendEvent(cell, &press);
        const int onlyRow = m_model.tables[a].onlyRow;
        if (chord.text && (onlyRow < 0 || onlyRow == b))
            m_model.tables[a].capture(a == 1, std::size_t(b), keyText(chord.text));
        break;
    }
    case Kind::Confirm:
        confirm();
        break;
    case Kind::Cancel:
        m_dialog->ui.pushButton_cancle->click();
        if (m_dialog->isVisible())
            QTest::qFail("a cancelled dialog stays open", __FILE__, __LINE__);
        show();
        break;
    case Kind::Sabotage:
        edit(a, b).setStyleSheet(QStringLiteral("color:blue"));
        break;
    }
}

QString Run::compare()
{
    QStringList wrong;
    const auto same = [&wrong](const auto& actual, const auto& expected, const QString& what) {
        if (actual != expected)
            wrong << QStringLiteral("%1: %2, expected %3").arg(what).arg(actual).arg(expected);
    };
    const auto markOf = [](const QWidget& widget, const QString& plain) {
        const QString sheet = widget.styleSheet();
        return QString(sheet == plain                               ? u'-'
                           : sheet == QStringLiteral("color:green") ? u'g'
                           : sheet == QStringLiteral("color:red")   ? u'r'
                                                                    : u'?');
    };
    QMap<QString, bool> entries;
    const auto addEntry = [&entries](const char* key, char verdict) {
        if (verdict != '-')
            entries.insert(QString::fromLatin1(key), verdict == 'g');
    };

    for (std::size_t g = 0; g < 2; ++g) {
        const GroupModel& group = m_model.groups[g];
        const GroupNames& names = groupNames[g];
        for (std::size_t f = 0; f < FieldCount; ++f) {
            const QString name = QString::fromLatin1(names.edits[f]);
            const QLineEdit& field = edit(g, int(f));
            same(field.text(), group.texts[f], name);
            same(markOf(field, QString()), QString(QLatin1Char(group.marks[f])),
                 name + QStringLiteral(" mark"));
            same(!field.isHidden(), group.shown(int(f)), name + QStringLiteral(" shown"));
            same(field.isEnabled(), group.enabled, name + QStringLiteral(" enabled"));
            addEntry(names.edits[f], group.entries[f]);
        }
        same(!find(names.lowerLabel).isHidden(), group.lowerShown, QStringLiteral("lower label"));
        same(!find(names.decrementLabel).isHidden(), group.decrementShown,
             QStringLiteral("decrement label"));
        same(find<QComboBox>(names.strategy).currentIndex(), group.strategy,
             QStringLiteral("strategy"));
        same(find(names.strategy).isEnabled(), group.enabled, QStringLiteral("strategy enabled"));
    }
    for (std::size_t t = 0; t < 2; ++t) {
        const TableModel& expected = m_model.tables[t];
        const QStringList& stored
            = t ? m_dialog->creditShortcutTexts : m_dialog->stockShortcutTexts;
        for (int row = 0; row < 13; ++row) {
            const auto r = std::size_t(row);
            const QString what = QStringLiteral("table %1 row %2").arg(t).arg(row);
            const auto& cell = *qobject_cast<CTableLineEdit*>(table(t).cellWidget(row, 1));
            same(cell.text(), expected.cells[r], what);
            same(stored.at(row), expected.stored[r], what + QStringLiteral(" stored"));
            same(markOf(cell, QStringLiteral("border:0px;")),
                 QString(QLatin1Char(expected.marks[r])), what + QStringLiteral(" mark"));
            same(cell.isEnabled(), expected.onlyRow < 0 || expected.onlyRow == row,
                 what + QStringLiteral(" enabled"));
            const QTableWidgetItem& status = *table(t).item(row, 2);
            same(status.text(), expected.statuses[r], what + QStringLiteral(" status"));
            const QBrush brush = status.foreground();
            const QString colour = brush.style() == Qt::NoBrush ? QStringLiteral("-")
                : brush.color() == Qt::green                    ? QStringLiteral("g")
                                                                : QStringLiteral("r");
            same(colour, QString(QLatin1Char(expected.marks[r])), what + QStringLiteral(" colour"));
        }
        addEntry(t ? "creditShortcut" : "stcokShortcut", expected.entry);
    }
    for (std::size_t p = 0; p < 2; ++p) {
        const QComboBox& combo = riseCombo(p);
        const QString what = QStringLiteral("price %1").arg(p);
        same(combo.count(), 3, what);
        for (int item = 0; item < 3; ++item)
            same(combo.itemText(item), m_model.rises[p].items[std::size_t(item)], what);
        same(combo.currentIndex(), m_model.rises[p].index, what + QStringLiteral(" index"));
        same(combo.isEditable(), false, what + QStringLiteral(" editable"));
    }
    for (std::size_t box = 0; box < boxCount; ++box)
        same(find<QCheckBox>(boxes[box].name).isChecked(), m_model.boxStates[box],
             QString::fromLatin1(boxes[box].name));
    for (std::size_t combo = 0; combo < comboCount; ++combo)
        same(find<QComboBox>(combos[combo].name).currentIndex(), m_model.comboStates[combo],
             QString::fromLatin1(combos[combo].name));
    same(m_dialog->ui.lineEdit_system_lockTime->text(), m_model.lockTime,
         QStringLiteral("lock time"));
    if (m_dialog->inputValidity != entries)
        wrong << QStringLiteral("the validity entries differ");
    same(m_dialog.trade.saves, m_model.saves, QStringLiteral("saves"));
    same(recordOf(m_dialog.trade).join(u'|'), m_model.record.join(u'|'), QStringLiteral("record"));
    if (m_dialog.trade.reservedBytes() != m_reserved)
        wrong << QStringLiteral("the reserved bytes changed");
    return wrong.join(QStringLiteral("; "));
}

Actions makeActions(quint32 seed, int count)
{
    std::mt19937 random(seed ^ 0x5eedU);
    const auto pick = [&random](int below) { return int(random() % quint32(below)); };
    const Kind weighted[]
        = {Kind::Quantity, Kind::Quantity, Kind::Quantity, Kind::Quantity,   Kind::Quantity,
           Kind::Visit,    Kind::Strategy, Kind::Strategy, Kind::Enable,     Kind::Box,
           Kind::Combo,    Kind::LockTime, Kind::Rise,     Kind::RiseChoice, Kind::Key,
           Kind::Key,      Kind::Key,      Kind::Key,      Kind::Confirm,    Kind::Cancel};
    Actions actions;
    actions.reserve(std::size_t(count));
    while (int(actions.size()) < count) {
        const Kind kind = weighted[pick(int(std::size(weighted)))];
        switch (kind) {
        case Kind::Quantity:
            actions.push_back(Action{kind, pick(2), pick(4), pick(int(std::size(quantities)))});
            break;
        case Kind::Visit:
            actions.push_back(Action{kind, pick(2), pick(4), pick(4)});
            break;
        case Kind::Strategy:
            actions.push_back(Action{kind, pick(2), pick(15)});
            break;
        case Kind::Enable:
            // Twice in a row as a rule, so that the group is mostly enabled.
            actions.push_back(Action{kind, pick(2)});
            if (pick(4))
                actions.push_back(actions.back());
            break;
        case Kind::Box:
            actions.push_back(Action{kind, pick(boxCount)});
            break;
        case Kind::Combo:
            actions.push_back(Action{kind, pick(comboCount), pick(42)});
            break;
        case Kind::LockTime:
            actions.push_back(Action{kind, pick(int(std::size(minutes)))});
            break;
        case Kind::Rise:
            actions.push_back(Action{kind, pick(2), pick(int(std::size(percents))), pick(2)});
            break;
        case Kind::RiseChoice:
            actions.push_back(Action{kind, pick(2), pick(3)});
            break;
        case Kind::Key:
            actions.push_back(Action{kind, pick(2), pick(13), pick(int(std::size(chords)))});
            // The key that is there already has a rule of its own.
            if (!pick(4))
                actions.push_back(actions.back());
            break;
        case Kind::Confirm:
        case Kind::Cancel:
        case Kind::Sabotage:
            actions.push_back(Action{kind});
            break;
        }
    }
    return actions;
}

QString warningsOf(const MessageCapture& log)
{
    QStringList lines = log.texts(QtWarningMsg) + log.texts(QtCriticalMsg);
    lines.removeAll(QStringLiteral("This plugin does not support propagateSizeHints()"));
    return lines.join(QStringLiteral("; "));
}

/// The first thing that goes wrong, or nothing.
QString failureOf(quint32 seed, const Actions& actions)
{
    const MessageCapture log;
    Run run(seed);
    QString failure = run.compare();
    for (std::size_t index = 0; failure.isEmpty() && index < actions.size(); ++index) {
        failure = run.apply(actions.at(index));
        if (failure.isEmpty())
            failure = warningsOf(log);
        if (!failure.isEmpty())
            failure.prepend(QStringLiteral("after action %1: ").arg(index + 1));
    }
    return failure;
}

QString listOf(const Actions& actions)
{
    QStringList lines;
    for (const Action& action : actions)
        lines << describe(action);
    return lines.join(QStringLiteral(",\n    "));
}

} // namespace

class tst_DialogModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomUser_data();
    void randomUser();
    void noticesADifference();
    void shortensAFailure();
};

void tst_DialogModel::randomUser_data()
{
    QTest::addColumn<quint32>("seed");
    bool given = false;
    const quint32 fixed = qEnvironmentVariable("TRADECONFIG_SEED").toUInt(&given, 0);
    std::random_device device;
    for (int run = 0; run < (given ? 1 : 6); ++run) {
        const quint32 seed = given ? fixed : device();
        QTest::addRow("TRADECONFIG_SEED=%u", seed) << seed;
    }
}

void tst_DialogModel::randomUser()
{
    QFETCH(quint32, seed);
    qInfo("seed %u", seed);
    Actions actions = makeActions(seed, 700);
    QString failure = failureOf(seed, actions);
    if (failure.isEmpty())
        return;
    actions = shortened(actions,
                        [seed](const Actions& some) { return !failureOf(seed, some).isEmpty(); });
    failure = failureOf(seed, actions);
    QFAIL(
        qPrintable(QStringLiteral("seed %1: %2\n    %3").arg(seed).arg(failure, listOf(actions))));
}

void tst_DialogModel::noticesADifference()
{
    Actions actions = makeActions(1, 40);
    actions.insert(actions.begin() + 20, Action{Kind::Sabotage, 1, Lower});
    const auto fails = [](const Actions& some) { return !failureOf(1, some).isEmpty(); };
    QVERIFY(fails(actions));
    actions = shortened(actions, fails);
    QCOMPARE(listOf(actions), QStringLiteral("{Kind::Sabotage, 1, 2, 0}"));
}

void tst_DialogModel::shortensAFailure()
{
    std::vector<int> numbers;
    for (int number = 0; number < 300; ++number)
        numbers.push_back(number);
    int calls = 0;
    const auto fails = [&calls](const std::vector<int>& some) {
        ++calls;
        const auto has = [&some](int number) {
            return std::find(some.begin(), some.end(), number) != some.end();
        };
        return has(7) && has(150) && has(299);
    };
    QVERIFY(shortened(numbers, fails) == std::vector<int>({7, 150, 299}));
    QVERIFY(calls < 300);
    QCOMPARE(shortened(std::vector<int>{5}, [](const std::vector<int>&) { return true; }),
             std::vector<int>{});
}

TRADECONFIG_TEST_MAIN(tst_DialogModel)
#include "tst_DialogModel.moc"
