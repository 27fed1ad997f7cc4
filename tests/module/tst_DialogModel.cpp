#include "support/DialogModel.h"
#include "support/Files.h"
#include "support/KeyText.h"
#include "support/MessageCapture.h"
#include "support/Shorten.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QLabel>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>

#include <array>
#include <random>

// A user who does thousands of things to the dialog, beside a model that knows what each of them
// must change.

namespace {

using namespace DialogModel;

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
    Page,
    Language,
    Scale,
    Confirm,
    Cancel,
    Reopen, ///< a new dialog on the same record and settings
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
    = {"Quantity", "Visit",   "Strategy",   "Enable", "Box",     "Combo",
       "LockTime", "Rise",    "RiseChoice", "Key",    "Page",    "Language",
       "Scale",    "Confirm", "Cancel",     "Reopen", "Sabotage"};

QString describe(const Action& action)
{
    return QStringLiteral("{Kind::%1, %2, %3, %4}")
        .arg(QLatin1String(kindNames[int(action.kind)]))
        .arg(action.a)
        .arg(action.b)
        .arg(action.c);
}

Record recordOf(FakeTrade& trade)
{
    Record record;
    const TradeParm& parm = trade.parm();
    const auto number
        = [&record](const QString& name, int value) { record[name] = QString::number(value); };
    const std::pair<const char*, int> numbers[] = {
        {"splitEnabled", parm.splitEnabled},
        {"splitStrategy", parm.splitStrategy},
        {"splitBaseQty", parm.splitBaseQty},
        {"splitMaxQty", parm.splitMaxQty},
        {"splitMinQty", parm.splitMinQty},
        {"splitStepQty", parm.splitStepQty},
        {"starSplitEnabled", parm.starSplitEnabled},
        {"starSplitStrategy", parm.starSplitStrategy},
        {"starSplitBaseQty", parm.starSplitBaseQty},
        {"starSplitMaxQty", parm.starSplitMaxQty},
        {"starSplitMinQty", parm.starSplitMinQty},
        {"starSplitStepQty", parm.starSplitStepQty},
        {"starBuyRiseIndex", parm.starBuyRiseIndex},
        {"starSellRiseIndex", parm.starSellRiseIndex},
        {"lockMinutes", parm.lockMinutes},
        {"languageIndex", parm.languageIndex},
        {"uiPageMode", parm.uiPageMode},
    };
    for (const auto& [name, value] : numbers)
        number(fieldName(name), value);
    for (const PlainField& box : boxes)
        number(fieldName(box.name), parm.*box.value);
    for (const PlainField& combo : combos)
        number(fieldName(combo.name), parm.*combo.value);
    for (int item = 0; item < 3; ++item) {
        number(elementName("starBuyRiseChoices", item), parm.starBuyRiseChoices[item]);
        number(elementName("starSellRiseChoices", item), parm.starSellRiseChoices[item]);
    }
    record[fieldName("defaultPage")] = QString::fromUtf8(trade.defaultPage());
    for (int entry = 0; entry < 13; ++entry) {
        record[elementName("stockShortcuts", entry)]
            = QString::fromUtf8(trade.text(&TradeParm::stockShortcuts, entry));
        record[elementName("creditShortcuts", entry)]
            = QString::fromUtf8(trade.text(&TradeParm::creditShortcuts, entry));
    }
    return record;
}

/// Answers every box that comes up, with no where there is a choice, and keeps their texts.
class Boxes {
public:
    Boxes()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(0);
    }

    QStringList shown() const { return m_shown; }

private:
    void answer()
    {
        QWidget* const window = QApplication::activeModalWidget();
        if (!window || !window->isVisible())
            return;
        if (auto* const box = qobject_cast<QMessageBox*>(window)) {
            m_shown << box->text();
            box->button(QMessageBox::Ok)->click();
            return;
        }
        m_shown << window->findChild<QLabel*>(QStringLiteral("msg"))->text();
        for (auto* const button : window->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && button->text() == QStringLiteral("否")) {
                button->click();
                return;
            }
        }
        window->close();
    }

    QTimer m_timer;
    QStringList m_shown;
};

class Run {
public:
    explicit Run(quint32 seed)
        : m_dialog([this, seed](FakeTrade& trade) { makeRecord(trade, seed); })
    {
        m_model.open();
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
    void reopen();
    void leave(std::size_t group, int field);
    void expectBoxes(const QStringList& expected, const Boxes& boxes);
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
    QStringList m_wrong; ///< what was seen besides the state
    TestDialog m_dialog;
};

void Run::makeRecord(FakeTrade& trade, quint32 seed)
{
    std::mt19937 random(seed);
    const auto pick = [&random](int count) { return int(random() % quint32(count)); };
    const int amounts[] = {0, 50, 99, 100, 101, 200, 300, 500, 10000000, -7};
    const auto amount = [&] { return amounts[pick(int(std::size(amounts)))]; };
    TradeParm& parm = trade.parm();

    parm.splitEnabled = pick(4) ? 1 : 2;
    parm.starSplitEnabled = pick(4) ? 1 : 0;
    parm.splitStrategy = pick(3);
    parm.starSplitStrategy = pick(5);
    for (std::int32_t* const value :
         {&parm.splitBaseQty, &parm.splitMaxQty, &parm.splitMinQty, &parm.splitStepQty,
          &parm.starSplitBaseQty, &parm.starSplitMaxQty, &parm.starSplitMinQty,
          &parm.starSplitStepQty})
        *value = amount();
    for (std::size_t item = 0; item < 3; ++item) {
        parm.starBuyRiseChoices[item] = pick(101);
        parm.starSellRiseChoices[item] = pick(101);
    }
    parm.starBuyRiseIndex = pick(3);
    parm.starSellRiseIndex = pick(3);
    for (const PlainField& box : boxes)
        parm.*box.value = pick(4) - 1;
    for (const PlainField& combo : combos)
        parm.*combo.value = pick(combo.items);
    parm.lockMinutes = pick(1001);
    parm.languageIndex = pick(3);
    parm.uiPageMode = pick(3);
    constexpr const char* pages[] = {"ptmr", "ptmc", "zjgp", "", "ptm"};
    trade.setDefaultPage(pages[pick(int(std::size(pages)))]);

    for (int entry = 0; entry < 13; ++entry) {
        // Keys that the user presses as well, so that some are pressed where they are already.
        const QString key = keyText(chords[rowOfEntry[entry] + 3].text);
        trade.setText(&TradeParm::creditShortcuts, entry, key.toUtf8());
        // Nothing keeps a core from storing the same key twice, or none.
        if (!pick(8))
            trade.setText(&TradeParm::stockShortcuts, entry,
                          pick(2) ? QByteArray() : keyText("Ctrl+A").toUtf8());
    }
    m_model.record = recordOf(trade);
    m_reserved = trade.reservedBytes();

    constexpr const char* languages[] = {"zh_CN", "zh_TW", "en_US", "fr_FR"};
    m_model.file.language = QString::fromLatin1(languages[pick(int(std::size(languages)))]);
    m_model.file.scale = QString::number(95 + 5 * pick(45));
    writeFile(InterfaceSettings::filePath(),
              QStringLiteral("[UI]\nlanguage=%1\nscale=%2\n")
                  .arg(m_model.file.language, m_model.file.scale)
                  .toUtf8());
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
    leave(group, field);
}

void Run::leave(std::size_t group, int field)
{
    const QString tip = m_model.groups[group].leave(field);
    if (!tip.isEmpty())
        m_model.tip = tip;
}

void Run::editRise(std::size_t price, const Typed& typed, bool withReturn)
{
    showPage(1);
    find<QPushButton>(price ? "pushButton_kc_sellRise" : "pushButton_kc_buyRise").click();
    type(riseCombo(price), typed.keys);
    if (withReturn)
        QTest::keyClick(&riseCombo(price), Qt::Key_Return);
    m_dialog.leaveField();
    Rise& rise = m_model.rises[price];
    rise.items[std::size_t(rise.index)] = QString::fromLatin1(typed.text);
}

void Run::expectBoxes(const QStringList& expected, const Boxes& boxes)
{
    if (boxes.shown() != expected)
        m_wrong << QStringLiteral("boxes: %1, expected %2")
                       .arg(boxes.shown().join(u'|'), expected.join(u'|'));
}

void Run::confirm()
{
    const bool valid = m_model.valid();
    const Boxes boxes;
    m_dialog.confirm();
    expectBoxes(m_model.confirm(), boxes);
    if (m_dialog->isVisible() == valid)
        m_wrong << (valid ? QStringLiteral("a confirmed dialog stays open")
                          : QStringLiteral("a refused dialog closes"));
    show();
}

void Run::reopen()
{
    m_dialog.reopen();
    m_model.open();
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
        leave(a, b);
        leave(a, c);
        break;
    case Kind::Strategy: {
        Group& group = m_model.groups[a];
        const int index = b % groupNames[a].strategies;
        if (!group.enabled)
            break;
        find<QComboBox>(groupNames[a].strategy).setCurrentIndex(index);
        if (index != group.strategy)
            group.choose(index);
        break;
    }
    case Kind::Enable:
        find<QCheckBox>(groupNames[a].enabled).click();
        m_model.groups[a].enabled = !m_model.groups[a].enabled;
        break;
    case Kind::Box:
        find<QCheckBox>(boxes[a].control).click();
        m_model.boxStates[a] = !m_model.boxStates[a];
        break;
    case Kind::Combo:
        find<QComboBox>(combos[a].control).setCurrentIndex(b % combos[a].items);
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
        if (chord.text && m_model.tables[a].takesKeys(b))
            m_model.tables[a].capture(std::size_t(b), keyText(chord.text));
        break;
    }
    case Kind::Page:
        m_dialog->ui.comboBox_system_defaultView->setCurrentIndex(int(a));
        m_model.page = int(a);
        break;
    case Kind::Language: {
        const Boxes boxes;
        m_dialog->ui.comboBox_system_language->setCurrentIndex(int(a));
        const QString box = m_model.changeLanguage(int(a));
        expectBoxes(box.isEmpty() ? QStringList() : QStringList(box), boxes);
        show();
        break;
    }
    case Kind::Scale:
        m_dialog->ui.spinBox_scale->setValue(b);
        m_model.changeScale(b);
        break;
    case Kind::Confirm:
        confirm();
        break;
    case Kind::Cancel:
        m_dialog->ui.pushButton_cancle->click();
        if (m_dialog->isVisible())
            m_wrong << QStringLiteral("a cancelled dialog stays open");
        show();
        break;
    case Kind::Reopen:
        reopen();
        break;
    case Kind::Sabotage:
        edit(a, b).setStyleSheet(QStringLiteral("color:blue"));
        break;
    }
}

QString Run::compare()
{
    QStringList wrong = m_wrong;
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
        const Group& group = m_model.groups[g];
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
        const Table& expected = m_model.tables[t];
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
        same(find<QCheckBox>(boxes[box].control).isChecked(), m_model.boxStates[box],
             QString::fromLatin1(boxes[box].name));
    for (std::size_t combo = 0; combo < comboCount; ++combo)
        same(find<QComboBox>(combos[combo].control).currentIndex(), m_model.comboStates[combo],
             QString::fromLatin1(combos[combo].name));
    same(m_dialog->ui.lineEdit_system_lockTime->text(), m_model.lockTime,
         QStringLiteral("lock time"));
    const Ui_CTradeConfigWidget& ui = m_dialog->ui;
    same(ui.comboBox_system_defaultView->currentIndex(), m_model.page, QStringLiteral("page"));
    same(ui.comboBox_system_language->currentIndex(), m_model.language, QStringLiteral("language"));
    same(ui.spinBox_scale->value(), m_model.scale, QStringLiteral("scale"));
    same(m_dialog->restartNeeded, m_model.restartNeeded, QStringLiteral("restart needed"));
    same(m_dialog->tipLabel->text(), m_model.tip, QStringLiteral("tip"));
    const QSettings file(InterfaceSettings::filePath(), QSettings::IniFormat);
    same(file.value(QStringLiteral("UI/language")).toString(), m_model.file.language,
         QStringLiteral("language in the file"));
    same(file.value(QStringLiteral("UI/scale")).toString(), m_model.file.scale,
         QStringLiteral("scale in the file"));
    if (m_dialog->inputValidity != entries)
        wrong << QStringLiteral("the validity entries differ");
    same(m_dialog.trade.saves, m_model.saves, QStringLiteral("saves"));
    const Record record = recordOf(m_dialog.trade);
    if (record.size() != m_model.record.size())
        wrong << QStringLiteral("other fields in the record");
    for (auto field = record.cbegin(); field != record.cend(); ++field)
        same(field.value(), m_model.record.value(field.key()), field.key());
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
           Kind::Key,      Kind::Key,      Kind::Key,      Kind::Confirm,    Kind::Cancel,
           Kind::Combo,    Kind::Page,     Kind::Language, Kind::Scale,      Kind::Reopen};
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
        case Kind::Page:
        case Kind::Language:
            actions.push_back(Action{kind, pick(3)});
            break;
        case Kind::Scale:
            actions.push_back(Action{kind, 0, 100 + 5 * pick(41)});
            break;
        case Kind::Confirm:
        case Kind::Cancel:
        case Kind::Reopen:
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
    QTest::addColumn<int>("steps");
    bool given = false;
    quint32 seed = qEnvironmentVariable("TRADECONFIG_SEED").toUInt(&given, 0);
    const int wanted = qEnvironmentVariableIntValue("TRADECONFIG_STEPS");
    constexpr int usualSteps = 500;
    std::random_device device;
    for (int left = wanted > 0 ? wanted : (given ? 1 : 6) * usualSteps; left > 0;
         left -= usualSteps) {
        seed = given ? seed : device();
        QTest::addRow("TRADECONFIG_SEED=%u", seed) << seed << std::min(left, usualSteps);
        ++seed;
    }
}

void tst_DialogModel::randomUser()
{
    QFETCH(quint32, seed);
    QFETCH(int, steps);
    qInfo("seed %u", seed);
    Actions actions = makeActions(seed, steps);
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
