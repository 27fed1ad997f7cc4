#include "support/BareForm.h"
#include "support/KeyText.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"

#include <QMap>
#include <QSet>
#include <QTextCodec>

#include <climits>
#include <cstring>

namespace {

using Member = std::int32_t TradeParm::*;

enum class Kind { Choice, Flag, Number };

struct Field {
    const char* name;
    Member member;
    const char* control;
    Kind kind;
    int choices = 0;
};

// clang-format off
const Field fields[] = {
    {"defaultBuyPrice", &TradeParm::defaultBuyPrice, "comboBox_trade_buyPrice", Kind::Choice, 7},
    {"defaultSellPrice", &TradeParm::defaultSellPrice, "comboBox_trade_sellPrice", Kind::Choice, 7},
    {"defaultBuyQty", &TradeParm::defaultBuyQty, "comboBox_trade_buyCount", Kind::Choice, 6},
    {"defaultSellQty", &TradeParm::defaultSellQty, "comboBox_trade_sellCount", Kind::Choice, 6},
    {"afterOrderForm", &TradeParm::afterOrderForm, "comboBox_trade_wt", Kind::Choice, 4},
    {"clickBookQty", &TradeParm::clickBookQty, "checkBox_trade_pk", Kind::Flag},
    {"inputBoxState", &TradeParm::inputBoxState, "comboBox_trade_lineEdit", Kind::Choice, 2},
    {"confirmCancel", &TradeParm::confirmCancel, "checkBox_trade_cancle", Kind::Flag},
    {"confirmOrder", &TradeParm::confirmOrder, "checkBox_trade_wt", Kind::Flag},
    {"orderSuccessDialog", &TradeParm::orderSuccessDialog, "checkBox_trade_wtDlg", Kind::Flag},
    {"splitEnabled", &TradeParm::splitEnabled, "checkBox_trade_fc", Kind::Flag},
    {"splitBaseQty", &TradeParm::splitBaseQty, "lineEdit_trade_baseCount", Kind::Number},
    {"splitStrategy", &TradeParm::splitStrategy, "comboBox_trade_split", Kind::Choice, 3},
    {"splitMaxQty", &TradeParm::splitMaxQty, "lineEdit_trade_high", Kind::Number},
    {"splitMinQty", &TradeParm::splitMinQty, "lineEdit_trade_low", Kind::Number},
    {"splitStepQty", &TradeParm::splitStepQty, "lineEdit_trade_desc", Kind::Number},
    {"starSplitEnabled", &TradeParm::starSplitEnabled, "checkBox_trade_kc_fc", Kind::Flag},
    {"starSplitBaseQty", &TradeParm::starSplitBaseQty, "lineEdit_trade_kc_baseCount", Kind::Number},
    {"starSplitStrategy", &TradeParm::starSplitStrategy, "comboBox_trade_kc_split", Kind::Choice, 5},
    {"starSplitMaxQty", &TradeParm::starSplitMaxQty, "lineEdit_trade_kc_high", Kind::Number},
    {"starSplitMinQty", &TradeParm::starSplitMinQty, "lineEdit_trade_kc_low", Kind::Number},
    {"starSplitStepQty", &TradeParm::starSplitStepQty, "lineEdit_trade_kc_desc", Kind::Number},
    {"starBuyRiseIndex", &TradeParm::starBuyRiseIndex, "comboBox_trade_kc_buyRise", Kind::Choice, 3},
    {"starSellRiseIndex", &TradeParm::starSellRiseIndex, "comboBox_trade_kc_sellRise", Kind::Choice, 3},
    {"buyInputType", &TradeParm::buyInputType, "comboBox_system_buy_type", Kind::Choice, 2},
    {"sellInputType", &TradeParm::sellInputType, "comboBox_system_sell_type", Kind::Choice, 2},
    {"lockMinutes", &TradeParm::lockMinutes, "lineEdit_system_lockTime", Kind::Number},
    {"defaultBuyMode", &TradeParm::defaultBuyMode, "comboBox_system_buyType", Kind::Choice, 2},
    {"defaultSellMode", &TradeParm::defaultSellMode, "comboBox_system_sellType", Kind::Choice, 2},
    {"quoteFollowsOrder", &TradeParm::quoteFollowsOrder, "comboBox_system_hqLink", Kind::Choice, 2},
    {"orderFollowsQuote", &TradeParm::orderFollowsQuote, "comboBox_system_hqLink2", Kind::Choice, 2},
    {"fontSizeLevel", &TradeParm::fontSizeLevel, "comboBox_system_fontSize", Kind::Choice, 3},
};

// Every 32-bit word of the record outside its strings, by the offset that it has with strings
// of 32 bytes; the control that shows it, or nothing.
struct Word {
    int offset;
    const char* shownBy;
};

const Word words[] = {
    {0, "comboBox_trade_buyPrice"}, {4, "comboBox_trade_sellPrice"},
    {8, "comboBox_trade_buyCount"}, {12, "comboBox_trade_sellCount"},
    {16, "comboBox_trade_wt"}, {20, "checkBox_trade_pk"}, {24, "comboBox_trade_lineEdit"},
    {28, "checkBox_trade_cancle"}, {32, "checkBox_trade_wt"}, {36, "checkBox_trade_wtDlg"},
    {40, "checkBox_trade_fc"}, {44, "lineEdit_trade_baseCount"}, {48, "comboBox_trade_split"},
    {52, "lineEdit_trade_high"}, {56, "lineEdit_trade_low"}, {60, "lineEdit_trade_desc"},
    {64, "checkBox_trade_kc_fc"}, {68, "lineEdit_trade_kc_baseCount"},
    {72, "comboBox_trade_kc_split"}, {76, "lineEdit_trade_kc_high"},
    {80, "lineEdit_trade_kc_low"}, {84, "lineEdit_trade_kc_desc"},
    {88, "comboBox_trade_kc_buyRise"}, {92, "comboBox_trade_kc_sellRise"},
    {96, "comboBox_trade_kc_buyRise item 0"}, {100, "comboBox_trade_kc_buyRise item 1"},
    {104, "comboBox_trade_kc_buyRise item 2"}, {108, "comboBox_trade_kc_sellRise item 0"},
    {112, "comboBox_trade_kc_sellRise item 1"}, {116, "comboBox_trade_kc_sellRise item 2"},
    {120, "comboBox_system_buy_type"}, {124, "comboBox_system_sell_type"},
    {160, "lineEdit_system_lockTime"}, {164, "comboBox_system_buyType"},
    {168, "comboBox_system_sellType"}, {172, "comboBox_system_hqLink"},
    {176, "comboBox_system_hqLink2"}, {180, "comboBox_system_fontSize"},
    {184, ""}, // the language: the combo follows the settings file
    {188, ""}, // reserved
    {192, "widget_system"},
    {196, ""}, {200, ""}, {204, ""}, {208, ""}, {212, ""}, {216, ""}, // reserved
    {220, ""}, {224, ""}, {228, ""}, {232, ""}, {236, ""}, {240, ""},
    {244, ""}, {248, ""}, {252, ""}, {256, ""}, {260, ""}, {264, ""},
};
// clang-format on

std::size_t placeOf(int offset)
{
    return std::size_t(offset) - (offset < 160 ? 0 : 32 - sizeof(std::string));
}

std::int32_t wordAt(FakeTrade& trade, int offset)
{
    std::int32_t value = 0;
    const auto* const record = reinterpret_cast<const char*>(&trade.parm());
    std::memcpy(&value, record + placeOf(offset), sizeof value);
    return value;
}

void setWord(FakeTrade& trade, int offset, std::int32_t value)
{
    std::memcpy(reinterpret_cast<char*>(&trade.parm()) + placeOf(offset), &value, sizeof value);
}

using Snapshot = QMap<QString, QString>;

// What every input shows, each under its own name; the items of a protection price singly.
Snapshot shown(const CTradeConfigWidget& dialog)
{
    Snapshot all;
    for (const QComboBox* const combo : dialog.findChildren<QComboBox*>()) {
        all.insert(combo->objectName(), QString::number(combo->currentIndex()));
        for (int item = 0; item < combo->count(); ++item)
            all.insert(QStringLiteral("%1 item %2").arg(combo->objectName()).arg(item),
                       combo->itemText(item));
    }
    for (const QCheckBox* const box : dialog.findChildren<QCheckBox*>())
        all.insert(box->objectName(), QString::number(box->checkState()));
    for (const QLineEdit* const edit : dialog.findChildren<QLineEdit*>()) {
        if (!edit->objectName().isEmpty())
            all.insert(edit->objectName(), edit->text());
    }
    for (const QTableWidget* const table : dialog.findChildren<QTableWidget*>()) {
        for (int row = 0; row < table->rowCount(); ++row) {
            const QString cell = QStringLiteral("%1 row %2").arg(table->objectName()).arg(row);
            all.insert(cell, qobject_cast<QLineEdit*>(table->cellWidget(row, 1))->text());
        }
    }
    for (const CNavWidget* const list : dialog.findChildren<CNavWidget*>())
        all.insert(list->objectName(), list->items.join(QLatin1Char('|')));
    return all;
}

QStringList differences(const Snapshot& before, const Snapshot& after)
{
    QStringList names;
    QSet<QString> keys;
    for (const Snapshot* const side : {&before, &after}) {
        for (const QString& key : side->keys())
            keys << key;
    }
    for (const QString& key : qAsConst(keys)) {
        if (before.value(key, QStringLiteral("absent"))
            != after.value(key, QStringLiteral("absent")))
            names << key;
    }
    names.sort();
    return names;
}

// On a record that comes back as it was: no preset interferes, every value has its control.
struct PlainDialog : TestDialog {
    explicit PlainDialog(const std::function<void(FakeTrade& trade)>& prepare = [](FakeTrade&) {})
        : TestDialog([&prepare](FakeTrade& core) {
            core.setDefaultPage("ptmr");
            core.parm().starSplitStrategy = 3;
            core.parm().uiPageMode = 1;
            prepare(core);
        })
    {
    }
};

QString latin(const char* text) { return QString::fromLatin1(text); }

} // namespace

class tst_RecordRoundTrip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyMeaning_data();
    void everyMeaning();
    void editedNumbers_data();
    void editedNumbers();
    void wordByWord_data();
    void wordByWord();
    void controlByControl_data();
    void controlByControl();
    void everyInputIsCovered();
    void pageCodes_data();
    void pageCodes();
    void pageChosen_data();
    void pageChosen();
    void starPreset_data();
    void starPreset();
    void strategySlotsRunWhileLoading();
    void risePriceItems_data();
    void risePriceItems();
    void thirdPercentageChosen();
    void editedRisePrices_data();
    void editedRisePrices();
    void hotkeysByRow_data();
    void hotkeysByRow();
    void hotkeyEditedInRow_data();
    void hotkeyEditedInRow();
    void keyTextsInLocalEncoding_data();
    void keyTextsInLocalEncoding();
    void keyTextsInAnotherEncoding();
    void globalHotkeysStayOut();
    void reservedBytesStay();
    void pageModeStays();
    void languageIsWrittenNeverRead();
    void loadingAsksTwiceAndSavesNever();
};

void tst_RecordRoundTrip::everyMeaning_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("shownAs");
    QTest::addColumn<int>("savedAs");
    for (int row = 0; row < int(std::size(fields)); ++row) {
        const Field& field = fields[row];
        const auto add = [row, &field](int stored, const QString& shownAs, int savedAs) {
            QTest::addRow("%s %d", field.name, stored) << row << stored << shownAs << savedAs;
        };
        switch (field.kind) {
        case Kind::Choice:
            for (int choice = 0; choice < field.choices; ++choice)
                add(choice, QString::number(choice), choice);
            for (const int outside : {-1, -2, INT_MIN, INT_MAX})
                add(outside, QStringLiteral("-1"), -1);
            add(field.choices, QStringLiteral("-1"), -1);
            break;
        case Kind::Flag:
            add(1, QStringLiteral("2"), 1); // Qt::Checked
            for (const int off : {0, 2, -1, 3, 256, INT_MIN, INT_MAX})
                add(off, QStringLiteral("0"), 0);
            break;
        case Kind::Number:
            add(0, QStringLiteral("0"), 0);
            add(7, QStringLiteral("7"), 7);
            add(100, QStringLiteral("100"), 100);
            add(1001, QStringLiteral("1001"), 1001);
            add(1234567, QStringLiteral("1234567"), 1234567);
            add(10000000, QStringLiteral("10000000"), 10000000);
            add(10000001, QStringLiteral("10000001"), 10000001);
            add(-1, QStringLiteral("-1"), -1);
            add(INT_MAX, QStringLiteral("2147483647"), INT_MAX);
            add(INT_MIN, QStringLiteral("-2147483648"), INT_MIN);
            break;
        }
    }
}

void tst_RecordRoundTrip::everyMeaning()
{
    QFETCH(int, row);
    QFETCH(int, stored);
    QFETCH(QString, shownAs);
    QFETCH(int, savedAs);
    const Field& field = fields[row];
    PlainDialog dialog([&](FakeTrade& trade) { trade.parm().*field.member = stored; });
    QCOMPARE(dialog.trade.parm().*field.member, stored);
    QCOMPARE(shown(*dialog).value(latin(field.control)), shownAs);

    // What is not shown must come from the control, not from what was left in the record.
    dialog.trade.parm().*field.member = 4711;
    dialog.confirm();
    QCOMPARE(dialog.trade.parm().*field.member, savedAs);
}

void tst_RecordRoundTrip::editedNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("saved");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("words") << QStringLiteral("abc") << 0;
    QTest::newRow("number with a tail") << QStringLiteral("12a") << 0;
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 0;
    QTest::newRow("grouped") << QStringLiteral("1,000") << 0;
    QTest::newRow("decimal point") << QStringLiteral("1.5") << 0;
    QTest::newRow("above 32 bits") << QStringLiteral("2147483648") << 0;
    QTest::newRow("leading zeros are decimal") << QStringLiteral("0100") << 100;
    QTest::newRow("plain") << QStringLiteral("200") << 200;
    QTest::newRow("beyond the validator") << QStringLiteral("99999999") << 99999999;
}

void tst_RecordRoundTrip::editedNumbers()
{
    QFETCH(QString, text);
    QFETCH(int, saved);
    for (const Field& field : fields) {
        if (field.kind != Kind::Number)
            continue;
        PlainDialog dialog([&](FakeTrade& trade) { trade.parm().*field.member = 55; });
        dialog->findChild<QLineEdit*>(latin(field.control))->setText(text);
        dialog.confirm();
        QVERIFY2(dialog.trade.parm().*field.member == saved, field.name);
        QCOMPARE(dialog.trade.saves, 1);
    }
}

void tst_RecordRoundTrip::wordByWord_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("control");
    for (const Word& word : words)
        QTest::addRow("offset %d", word.offset) << word.offset << latin(word.shownBy);
    QCOMPARE(int(std::size(words)), 59);
}

void tst_RecordRoundTrip::wordByWord()
{
    QFETCH(int, offset);
    QFETCH(QString, control);
    PlainDialog before;
    setWord(before.trade, offset, wordAt(before.trade, offset) + 1);
    const CTradeConfigWidget after(&before.trade);
    QCOMPARE(differences(shown(*before), shown(after)),
             control.isEmpty() ? QStringList() : QStringList(control));
}

void tst_RecordRoundTrip::controlByControl_data()
{
    QTest::addColumn<int>("offset");
    for (const Word& word : words) {
        const QString name = latin(word.shownBy);
        if (!name.isEmpty() && !name.contains(QLatin1Char(' ')) && name != latin("widget_system"))
            QTest::newRow(word.shownBy) << word.offset;
    }
    QTest::newRow("comboBox_system_language") << 184;
    QTest::newRow("comboBox_system_defaultView") << -1;
    QTest::newRow("spinBox_scale") << -1;
}

// Changes one control and sees exactly one word of the saved record change.
void tst_RecordRoundTrip::controlByControl()
{
    QFETCH(int, offset);
    PlainDialog dialog;
    QMap<int, std::int32_t> before;
    for (const Word& word : words)
        before.insert(word.offset, wordAt(dialog.trade, word.offset));
    const QByteArray page = dialog.trade.defaultPage();

    QWidget* const control = dialog->findChild<QWidget*>(latin(QTest::currentDataTag()));
    QVERIFY(control);
    if (auto* const combo = qobject_cast<QComboBox*>(control)) {
        const QSignalBlocker quiet(combo); // presets and questions are not meant here
        combo->setCurrentIndex(combo->currentIndex() == 1 ? 0 : 1);
    } else if (auto* const box = qobject_cast<QCheckBox*>(control)) {
        box->toggle();
    } else if (auto* const edit = qobject_cast<QLineEdit*>(control)) {
        edit->setText(QStringLiteral("321"));
    } else {
        const QSignalBlocker quiet(control);
        qobject_cast<QSpinBox*>(control)->setValue(200);
    }
    dialog.confirm();

    QStringList changed;
    for (const Word& word : words) {
        if (wordAt(dialog.trade, word.offset) != before.value(word.offset))
            changed << QString::number(word.offset);
    }
    QCOMPARE(changed, offset < 0 ? QStringList() : QStringList(QString::number(offset)));
    const bool pageCombo = control == dialog->ui.comboBox_system_defaultView;
    QCOMPARE(dialog.trade.defaultPage(), pageCombo ? QByteArray("ptmc") : page);
    QCOMPARE(dialog.trade.saves, 1);
    for (int entry = 0; entry < 13; ++entry) {
        const QLatin1Char letter(char('A' + entry));
        QCOMPARE(dialog.trade.text(&TradeParm::stockShortcuts, entry),
                 keyText(QStringLiteral("Ctrl+") + letter).toUtf8());
        QCOMPARE(dialog.trade.text(&TradeParm::creditShortcuts, entry),
                 keyText(QStringLiteral("Alt+") + letter).toUtf8());
    }
}

// An input added to the form without a word of the record behind it must not go unnoticed.
void tst_RecordRoundTrip::everyInputIsCovered()
{
    QSet<QString> covered{latin("comboBox_system_language"), latin("comboBox_system_defaultView"),
                          latin("spinBox_scale")};
    for (const Word& word : words)
        covered << latin(word.shownBy);
    const BareForm form;
    QStringList uncovered;
    int inputs = 0;
    const auto look = [&](const auto& controls) {
        for (const QWidget* const control : controls) {
            if (control->objectName().startsWith(QLatin1String("qt_")))
                continue;
            ++inputs;
            if (!covered.contains(control->objectName()))
                uncovered << control->objectName();
        }
    };
    look(form.widget.findChildren<QComboBox*>());
    look(form.widget.findChildren<QAbstractSpinBox*>());
    look(form.widget.findChildren<QCheckBox*>());
    look(form.widget.findChildren<QLineEdit*>());
    QCOMPARE(uncovered, QStringList());
    QCOMPARE(inputs, 35);
}

void tst_RecordRoundTrip::pageCodes_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("saved");
    const auto row = [](const char* code, int index, const char* saved) {
        QTest::addRow("'%s'", code) << QByteArray(code) << index << QByteArray(saved);
    };
    row("ptmr", 0, "ptmr");
    row("ptmc", 1, "ptmc");
    row("zjgp", 2, "zjgp");
    row("", 0, "ptmr");
    row("PTMC", 0, "ptmr");
    row("ptmc ", 0, "ptmr");
    row(" zjgp", 0, "ptmr");
    row("ptm", 0, "ptmr");
    row("1", 0, "ptmr");
    row("资金", 0, "ptmr");
    row("\xff\xfe", 0, "ptmr");
    row("a page code much longer than any string keeps inside itself", 0, "ptmr");
}

void tst_RecordRoundTrip::pageCodes()
{
    QFETCH(QByteArray, code);
    QFETCH(int, index);
    QFETCH(QByteArray, saved);
    PlainDialog dialog([&](FakeTrade& trade) { trade.setDefaultPage(code); });
    QCOMPARE(dialog->ui.comboBox_system_defaultView->currentIndex(), index);
    QCOMPARE(dialog.trade.defaultPage(), code);
    dialog.confirm();
    QCOMPARE(dialog.trade.defaultPage(), saved);
}

void tst_RecordRoundTrip::pageChosen_data()
{
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("0") << QByteArray("ptmr");
    QTest::newRow("1") << QByteArray("ptmc");
    QTest::newRow("2") << QByteArray("zjgp");
    QTest::newRow("-1") << QByteArray("ptmr");
}

void tst_RecordRoundTrip::pageChosen()
{
    QFETCH(QByteArray, saved);
    PlainDialog dialog([](FakeTrade& trade) { trade.setDefaultPage("zjgp"); });
    dialog->ui.comboBox_system_defaultView->setCurrentIndex(
        QByteArray(QTest::currentDataTag()).toInt());
    dialog.confirm();
    QCOMPARE(dialog.trade.defaultPage(), saved);
}

void tst_RecordRoundTrip::starPreset_data()
{
    QTest::addColumn<int>("strategy");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("shownBase");
    for (const int preset : {0, 1, 2}) {
        QTest::addRow("preset %d", preset) << preset << 4200 << QStringLiteral("10000");
        QTest::addRow("preset %d over the extreme", preset)
            << preset << INT_MIN << QStringLiteral("10000");
    }
    for (const int other : {3, 4, 5, -1, INT_MIN, INT_MAX})
        QTest::addRow("kept %d", other) << other << 4200 << QStringLiteral("4200");
}

void tst_RecordRoundTrip::starPreset()
{
    QFETCH(int, strategy);
    QFETCH(int, base);
    QFETCH(QString, shownBase);
    PlainDialog dialog([&](FakeTrade& trade) {
        trade.parm().starSplitStrategy = strategy;
        trade.parm().starSplitBaseQty = base;
        trade.parm().starSplitMaxQty = 777;
        trade.parm().starSplitMinQty = 666;
        trade.parm().starSplitStepQty = 555;
    });
    QCOMPARE(dialog->ui.lineEdit_trade_kc_baseCount->text(), shownBase);
    QCOMPARE(dialog->ui.lineEdit_trade_kc_high->text(), QStringLiteral("777"));
    QCOMPARE(dialog->ui.lineEdit_trade_kc_low->text(), QStringLiteral("666"));
    QCOMPARE(dialog->ui.lineEdit_trade_kc_desc->text(), QStringLiteral("555"));
    const TradeParm& parm = dialog.trade.parm();
    QCOMPARE(parm.starSplitBaseQty, base);
    dialog.confirm();
    QCOMPARE(parm.starSplitBaseQty, shownBase.toInt());
    QCOMPARE(parm.starSplitMaxQty, 777);
    QCOMPARE(parm.starSplitMinQty, 666);
    QCOMPARE(parm.starSplitStepQty, 555);
}

// Strategy 0 leaves the combo as it is, so nothing but the call by hand hides the rows.
void tst_RecordRoundTrip::strategySlotsRunWhileLoading()
{
    struct Row {
        int stock;
        int star;
        bool stockLow, stockDesc, starLow, starDesc;
    };
    const Row rows[] = {
        {0, 0, false, false, false, false},
        {1, 1, true, false, false, false},
        {2, 2, false, true, false, false},
        {0, 3, false, false, true, false},
        {0, 4, false, false, false, true},
        {9, 9, true, true, false, false}, // unknown: the stock rows stay, the STAR rows go
    };
    for (const Row& row : rows) {
        const PlainDialog dialog([&](FakeTrade& trade) {
            trade.parm().splitStrategy = row.stock;
            trade.parm().starSplitStrategy = row.star;
        });
        QCOMPARE(!dialog->ui.lineEdit_trade_low->isHidden(), row.stockLow);
        QCOMPARE(!dialog->ui.label_trade_low->isHidden(), row.stockLow);
        QCOMPARE(!dialog->ui.lineEdit_trade_desc->isHidden(), row.stockDesc);
        QCOMPARE(!dialog->ui.label_trade_desc->isHidden(), row.stockDesc);
        QCOMPARE(!dialog->ui.lineEdit_trade_kc_low->isHidden(), row.starLow);
        QCOMPARE(!dialog->ui.label_trade_kc_low->isHidden(), row.starLow);
        QCOMPARE(!dialog->ui.lineEdit_trade_kc_desc->isHidden(), row.starDesc);
        QCOMPARE(!dialog->ui.label_trade_kc_desc->isHidden(), row.starDesc);
    }
    // The same for the boxes: unticked is what they already were.
    for (const int flag : {0, 1, 2}) {
        const PlainDialog dialog([&](FakeTrade& trade) {
            trade.parm().splitEnabled = flag;
            trade.parm().starSplitEnabled = flag;
        });
        for (const QWidget* const input : std::initializer_list<QWidget*>{
                 dialog->ui.lineEdit_trade_baseCount, dialog->ui.comboBox_trade_split,
                 dialog->ui.lineEdit_trade_high, dialog->ui.lineEdit_trade_low,
                 dialog->ui.lineEdit_trade_desc, dialog->ui.lineEdit_trade_kc_baseCount,
                 dialog->ui.comboBox_trade_kc_split, dialog->ui.lineEdit_trade_kc_high,
                 dialog->ui.lineEdit_trade_kc_low, dialog->ui.lineEdit_trade_kc_desc})
            QCOMPARE(input->isEnabledTo(dialog.get()), flag == 1);
    }
}

void tst_RecordRoundTrip::risePriceItems_data()
{
    QTest::addColumn<QVector<int>>("percentages");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("plain") << QVector<int>{1, 2, 3}
                           << QStringList{latin("1"), latin("2"), latin("3")};
    QTest::newRow("equal") << QVector<int>{5, 5, 5}
                           << QStringList{latin("5"), latin("5"), latin("5")};
    QTest::newRow("not in order") << QVector<int>{100, 0, 50}
                                  << QStringList{latin("100"), latin("0"), latin("50")};
    QTest::newRow("out of range") << QVector<int>{-1, 101, 12345}
                                  << QStringList{latin("-1"), latin("101"), latin("12345")};
    QTest::newRow("extreme") << QVector<int>{INT_MIN, INT_MAX, -1}
                             << QStringList{latin("-2147483648"), latin("2147483647"), latin("-1")};
}

void tst_RecordRoundTrip::risePriceItems()
{
    QFETCH(QVector<int>, percentages);
    QFETCH(QStringList, items);
    using Choices = std::int32_t(TradeParm::*)[3];
    const std::pair<Choices, const char*> sides[]
        = {{&TradeParm::starBuyRiseChoices, "comboBox_trade_kc_buyRise"},
           {&TradeParm::starSellRiseChoices, "comboBox_trade_kc_sellRise"}};
    for (const auto& [choices, name] : sides) {
        PlainDialog dialog([&, member = choices](FakeTrade& trade) {
            for (int item = 0; item < 3; ++item)
                (trade.parm().*member)[item] = percentages.at(item);
        });
        const auto* const combo = dialog->findChild<QComboBox*>(latin(name));
        QCOMPARE(combo->count(), 3);
        for (int item = 0; item < 3; ++item) {
            QCOMPARE(combo->itemText(item), items.at(item));
            (dialog.trade.parm().*choices)[item] = 4711;
        }
        dialog.confirm();
        for (int item = 0; item < 3; ++item)
            QCOMPARE((dialog.trade.parm().*choices)[item], percentages.at(item));
    }
}

void tst_RecordRoundTrip::thirdPercentageChosen()
{
    PlainDialog dialog([&](FakeTrade& trade) {
        for (int item = 0; item < 3; ++item)
            trade.parm().starBuyRiseChoices[item] = item + 1;
    });
    QCOMPARE(dialog->ui.comboBox_trade_kc_buyRise->currentText(), QStringLiteral("1"));
    dialog->ui.comboBox_trade_kc_buyRise->setCurrentIndex(2);
    dialog.confirm();
    QCOMPARE(dialog.trade.parm().starBuyRiseIndex, 2);
    QCOMPARE(dialog.trade.parm().starSellRiseIndex, 0);
    QCOMPARE(dialog.trade.parm().starBuyRiseChoices[2], 3);
}

void tst_RecordRoundTrip::editedRisePrices_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("saved");
    QTest::newRow("number") << QStringLiteral("42") << 42;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("words") << QStringLiteral("many") << 0;
    QTest::newRow("with percent") << QStringLiteral("42%") << 0;
}

void tst_RecordRoundTrip::editedRisePrices()
{
    QFETCH(QString, text);
    QFETCH(int, saved);
    PlainDialog dialog([&](FakeTrade& trade) {
        for (int item = 0; item < 3; ++item) {
            trade.parm().starBuyRiseChoices[item] = 10 + item;
            trade.parm().starSellRiseChoices[item] = 20 + item;
        }
        trade.parm().starBuyRiseIndex = 1;
    });
    dialog->ui.comboBox_trade_kc_buyRise->setItemText(0, text);
    dialog->ui.comboBox_trade_kc_sellRise->setItemText(2, text);
    dialog.confirm();
    QCOMPARE(dialog.trade.parm().starBuyRiseChoices[0], saved);
    QCOMPARE(dialog.trade.parm().starBuyRiseChoices[1], 11);
    QCOMPARE(dialog.trade.parm().starBuyRiseChoices[2], 12);
    QCOMPARE(dialog.trade.parm().starSellRiseChoices[0], 20);
    QCOMPARE(dialog.trade.parm().starSellRiseChoices[1], 21);
    QCOMPARE(dialog.trade.parm().starSellRiseChoices[2], saved);
    QCOMPARE(dialog.trade.parm().starBuyRiseIndex, 1);
}

void tst_RecordRoundTrip::hotkeysByRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("entry");
    const int entries[] = {0, 1, 5, 6, 2, 3, 4, 7, 8, 9, 10, 11, 12};
    for (int row = 0; row < 13; ++row)
        QTest::addRow("row %d", row) << row << entries[row];
}

void tst_RecordRoundTrip::hotkeysByRow()
{
    QFETCH(int, row);
    QFETCH(int, entry);
    const TestDialog dialog;
    const QLatin1Char letter(char('A' + entry));
    const QString stock = keyText(QStringLiteral("Ctrl+") + letter);
    const QString credit = keyText(QStringLiteral("Alt+") + letter);
    const auto cell = [row](const QTableWidget* table) {
        return qobject_cast<CTableLineEdit*>(table->cellWidget(row, 1))->text();
    };
    QCOMPARE(cell(dialog->ui.tableWidget_shortcut), stock);
    QCOMPARE(cell(dialog->ui.tableWidget_credit), credit);
    QCOMPARE(dialog->stockShortcutTexts.size(), 13);
    QCOMPARE(dialog->creditShortcutTexts.size(), 13);
    QCOMPARE(dialog->stockShortcutTexts.at(row), stock);
    QCOMPARE(dialog->creditShortcutTexts.at(row), credit);
}

void tst_RecordRoundTrip::hotkeyEditedInRow_data() { hotkeysByRow_data(); }

void tst_RecordRoundTrip::hotkeyEditedInRow()
{
    QFETCH(int, row);
    QFETCH(int, entry);
    TestDialog dialog;
    const auto press = [row](const QTableWidget* table) {
        QTest::keyClick(table->cellWidget(row, 1), Qt::Key_Z, Qt::ControlModifier);
    };
    press(dialog->ui.tableWidget_shortcut);
    press(dialog->ui.tableWidget_credit);
    dialog.confirm();
    QCOMPARE(dialog.trade.saves, 1);
    for (int other = 0; other < 13; ++other) {
        const QLatin1Char letter(char('A' + other));
        const bool edited = other == entry;
        QCOMPARE(
            dialog.trade.text(&TradeParm::stockShortcuts, other),
            keyText(edited ? QStringLiteral("Ctrl+Z") : QStringLiteral("Ctrl+") + letter).toUtf8());
        QCOMPARE(
            dialog.trade.text(&TradeParm::creditShortcuts, other),
            keyText(edited ? QStringLiteral("Ctrl+Z") : QStringLiteral("Alt+") + letter).toUtf8());
    }
}

void tst_RecordRoundTrip::keyTextsInLocalEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("plain") << QByteArray("F1") << QStringLiteral("F1");
    QTest::newRow("symbols of one platform") << QByteArray("\xe2\x87\xa7\xe2\x8c\x98"
                                                           "A")
                                             << QString::fromUtf8("⇧⌘A");
    QTest::newRow("Chinese") << QByteArray("\xe7\xa9\xba") << QString::fromUtf8("空");
    QTest::newRow("accented") << QByteArray("Ctrl+\xc3\x89") << QString::fromUtf8("Ctrl+É");
    QTest::newRow("longer than a string keeps inside")
        << QByteArray("Ctrl+Shift+Alt+Backspace and much more \xe7\xa9\xba")
        << QString::fromUtf8("Ctrl+Shift+Alt+Backspace and much more 空");
}

void tst_RecordRoundTrip::keyTextsInLocalEncoding()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    TestDialog dialog([&](FakeTrade& trade) {
        trade.setText(&TradeParm::stockShortcuts, 5, bytes);
        trade.setText(&TradeParm::creditShortcuts, 12, bytes);
    });
    QCOMPARE(dialog->stockShortcutTexts.at(2), text);
    QCOMPARE(dialog->creditShortcutTexts.at(12), text);
    dialog.trade.setText(&TradeParm::stockShortcuts, 5, "other");
    dialog.trade.setText(&TradeParm::creditShortcuts, 12, "other");
    dialog.confirm();
    QCOMPARE(dialog.trade.text(&TradeParm::stockShortcuts, 5), bytes);
    QCOMPARE(dialog.trade.text(&TradeParm::creditShortcuts, 12), bytes);
}

// The local encoding, whatever it is: here one in which the same bytes are no UTF-8.
void tst_RecordRoundTrip::keyTextsInAnotherEncoding()
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    QTextCodec* const codec = QTextCodec::codecForName("GB18030");
    QVERIFY(codec);
    QTextCodec::setCodecForLocale(codec);
    TestDialog dialog([](FakeTrade& trade) {
        trade.setText(&TradeParm::stockShortcuts, 0, "\xbf\xd5");
        trade.setText(&TradeParm::creditShortcuts, 5, "Ctrl+\xbf\xd5");
    });
    const QString stock = dialog->stockShortcutTexts.at(0);
    const QString credit = dialog->creditShortcutTexts.at(2);
    dialog.trade.setText(&TradeParm::stockShortcuts, 0, "other");
    dialog.trade.setText(&TradeParm::creditShortcuts, 5, "other");
    dialog.confirm();
    QTextCodec::setCodecForLocale(before);
    QCOMPARE(stock, QStringLiteral("空"));
    QCOMPARE(credit, QStringLiteral("Ctrl+空"));
    QCOMPARE(dialog.trade.text(&TradeParm::stockShortcuts, 0), QByteArray("\xbf\xd5"));
    QCOMPARE(dialog.trade.text(&TradeParm::creditShortcuts, 5), QByteArray("Ctrl+\xbf\xd5"));
}

void tst_RecordRoundTrip::globalHotkeysStayOut()
{
    PlainDialog dialog;
    auto* const cell = qobject_cast<QLineEdit*>(dialog->ui.tableWidget_whole->cellWidget(0, 1));
    QCOMPARE(cell->text(), QStringLiteral("F5"));
    cell->setText(QStringLiteral("F6"));
    dialog.confirm();
    for (int entry = 0; entry < 13; ++entry) {
        QVERIFY(!dialog.trade.text(&TradeParm::stockShortcuts, entry).contains("F6"));
        QVERIFY(!dialog.trade.text(&TradeParm::creditShortcuts, entry).contains("F6"));
    }
}

void tst_RecordRoundTrip::reservedBytesStay()
{
    QByteArray pattern;
    for (int index = 0; index < 76; ++index)
        pattern.append(char(index * 37 + 11));
    PlainDialog dialog([&](FakeTrade& trade) {
        std::memcpy(trade.parm().reservedA, pattern.constData(), 4);
        std::memcpy(trade.parm().reservedB, pattern.constData() + 4, 72);
    });
    QCOMPARE(dialog.trade.reservedBytes(), pattern);
    for (QComboBox* const combo : dialog->findChildren<QComboBox*>()) {
        const QSignalBlocker quiet(combo);
        combo->setCurrentIndex(combo->count() - 1);
    }
    for (QCheckBox* const box : dialog->findChildren<QCheckBox*>())
        box->toggle();
    dialog.confirm();
    QCOMPARE(dialog.trade.saves, 1);
    QCOMPARE(dialog.trade.reservedBytes(), pattern);
}

void tst_RecordRoundTrip::pageModeStays()
{
    for (const int mode : {0, 1, 2, -7, INT_MAX}) {
        PlainDialog dialog([&](FakeTrade& trade) { trade.parm().uiPageMode = mode; });
        dialog.confirm();
        QCOMPARE(dialog.trade.parm().uiPageMode, mode);
    }
}

void tst_RecordRoundTrip::languageIsWrittenNeverRead()
{
    for (const int language : {0, 1, 2, 3, -1}) {
        PlainDialog dialog([&](FakeTrade& trade) { trade.parm().languageIndex = language; });
        QCOMPARE(dialog->ui.comboBox_system_language->currentIndex(), 0); // no settings file
        QCOMPARE(dialog.trade.parm().languageIndex, language);
        dialog.confirm();
        QCOMPARE(dialog.trade.parm().languageIndex, 0);
    }
}

void tst_RecordRoundTrip::loadingAsksTwiceAndSavesNever()
{
    PlainDialog dialog;
    QCOMPARE(dialog.trade.gets, 2);
    QCOMPARE(dialog.trade.saves, 0);
    dialog.confirm();
    QCOMPARE(dialog.trade.gets, 3);
    QCOMPARE(dialog.trade.saves, 1);
    QCOMPARE(dialog.trade.foreignCalls, 0);
}

TRADECONFIG_TEST_MAIN(tst_RecordRoundTrip)
#include "tst_RecordRoundTrip.moc"
