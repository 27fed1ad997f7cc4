#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/QuantityValidator.h"

#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

class tst_QuantityValidator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void typing_data();
    void typing();
    void pasting_data();
    void pasting();
    void textSetByTheProgramStays_data();
    void textSetByTheProgramStays();
    void neverMendsATextOnLeaving();
    void leavesTextAndCursorAlone();
    void judgesTheTextThatIsThere();

    void onlyTowardsANumber_data();
    void onlyTowardsANumber();
    void nothingElseGetsIn_data();
    void nothingElseGetsIn();
    void composing();
    void undoGoesBackToWhatWasSet();
    void theProgramMaySetAnyText();
    void fieldsOfTheDialog_data();
    void fieldsOfTheDialog();
    void percentagesOfTheDialog_data();
    void percentagesOfTheDialog();
    void typingTheScale_data();
    void typingTheScale();
    void pastingTheScale();
    void selectionOfTheScaleStays();
    void unitOfTheFocusedSpinBoxOnly();
};

namespace {

// A field 0..1000 that shows what the program set.
class Field : public QLineEdit {
public:
    explicit Field(const QString& text)
        : m_validator(0, 1000, nullptr)
    {
        m_validator.guard(*this);
        setText(text);
        show();
    }

private:
    const QuantityValidator m_validator;
};

void commit(QWidget& widget, const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&widget, &event);
}

// Keys by their characters; "<" Backspace, ">" Delete, "[" Home, "]" End, "*" select all.
void type(QWidget& widget, const QString& keys)
{
    for (const QChar key : keys) {
        switch (key.unicode()) {
        case '<':
            QTest::keyClick(&widget, Qt::Key_Backspace);
            break;
        case '>':
            QTest::keyClick(&widget, Qt::Key_Delete);
            break;
        case '[':
            QTest::keyClick(&widget, Qt::Key_Home);
            break;
        case ']':
            QTest::keyClick(&widget, Qt::Key_End);
            break;
        case '*':
            QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
            break;
        default:
            QTest::keyClick(&widget, key.toLatin1());
        }
    }
}

} // namespace

void tst_QuantityValidator::states_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    const int invalid = QValidator::Invalid;
    const int intermediate = QValidator::Intermediate;
    const int acceptable = QValidator::Acceptable;
    const auto row = [](int bottom, int top, const char* text, int state) {
        QTest::addRow("%d..%d '%s'", bottom, top, text)
            << bottom << top << QString::fromUtf8(text) << state;
    };
    row(0, 1000, "", intermediate);
    row(0, 1000, "0", acceptable);
    row(0, 1000, "00", acceptable);
    row(0, 1000, "007", acceptable);
    row(0, 1000, "999", acceptable);
    row(0, 1000, "1000", acceptable);
    row(0, 1000, "1001", invalid);
    row(0, 1000, "9999", invalid);
    row(0, 1000, "10000", invalid);
    row(0, 1000, "-1", invalid);
    row(0, 1000, "-", invalid);
    row(0, 1000, "+5", invalid);
    row(0, 1000, "1,000", invalid);
    row(0, 1000, " 5", invalid);
    row(0, 1000, "5 ", invalid);
    row(0, 1000, "5.0", invalid);
    row(0, 1000, "1e2", invalid);
    row(0, 1000, "0x10", invalid);
    row(0, 1000, "五", invalid);
    row(0, 1000, "５", invalid); // full width
    row(0, 1000, "٥", invalid); // another script's digit five
    row(0, 1000, "100%", invalid);
    row(0, 10000000, "10000000", acceptable);
    row(0, 10000000, "010000000", acceptable);
    row(0, 10000000, "10000001", invalid);
    row(0, 10000000, "99999999", invalid);
    row(0, 10000000, "4294967296", invalid);
    row(0, 10000000, "18446744073709551617", invalid);
    row(0, 10000000, "99999999999999999999999999999999999999", invalid);
    row(0, 2147483647, "2147483647", acceptable);
    row(0, 2147483647, "2147483648", invalid);
    row(100, 1000, "", intermediate);
    row(100, 1000, "5", intermediate);
    row(100, 1000, "99", intermediate);
    row(100, 1000, "100", acceptable);
}

void tst_QuantityValidator::states()
{
    QFETCH(int, bottom);
    QFETCH(int, top);
    QFETCH(QString, text);
    QFETCH(int, state);
    const QuantityValidator validator(bottom, top, nullptr);
    int cursor = 0;
    QCOMPARE(int(validator.validate(text, cursor)), state);
    QCOMPARE(validator.bottom(), bottom);
    QCOMPARE(validator.top(), top);
}

void tst_QuantityValidator::typing_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](int top, const char* typed, const char* shown) {
        QTest::addRow("%d '%s'", top, typed)
            << top << QString::fromLatin1(typed) << QString::fromLatin1(shown);
    };
    row(1000, "30", "30");
    row(1000, "1000", "1000");
    row(1000, "1001", "100");
    row(1000, "9999", "999");
    row(1000, "10000", "1000");
    row(1000, "-5", "5");
    row(1000, "+5", "5");
    row(1000, "1,000", "1000");
    row(1000, "1 0 0", "100");
    row(1000, "abc12", "12");
    row(1000, "0000", "0000");
    row(10000000, "10000000", "10000000");
    row(10000000, "10000001", "1000000");
    row(10000000, "99999999", "9999999");
    row(10000000, "12345678901234567890", "1234567");
}

void tst_QuantityValidator::typing()
{
    QFETCH(int, top);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    const QuantityValidator validator(0, top, nullptr);
    QLineEdit edit;
    edit.setValidator(&validator);
    edit.show();
    QTest::keyClicks(&edit, typed);
    QCOMPARE(edit.text(), shown);
}

void tst_QuantityValidator::pasting_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a number") << QStringLiteral("25") << QStringLiteral("125");
    QTest::newRow("too large") << QStringLiteral("2500") << QStringLiteral("1");
    QTest::newRow("grouped") << QStringLiteral("2,5") << QStringLiteral("1");
    QTest::newRow("signed") << QStringLiteral("-2") << QStringLiteral("1");
    QTest::newRow("words") << QStringLiteral("many") << QStringLiteral("1");
}

void tst_QuantityValidator::pasting()
{
    QFETCH(QString, pasted);
    QFETCH(QString, shown);
    const QuantityValidator validator(0, 1000, nullptr);
    QLineEdit edit;
    edit.setValidator(&validator);
    edit.setText(QStringLiteral("1"));
    QGuiApplication::clipboard()->setText(pasted);
    edit.paste();
    QCOMPARE(edit.text(), shown);
}

void tst_QuantityValidator::textSetByTheProgramStays_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text : {"5000", "-5", "2147483647", "-2147483648", "Ctrl+A", ""})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_QuantityValidator::textSetByTheProgramStays()
{
    QFETCH(QString, text);
    const QuantityValidator validator(0, 1000, nullptr);
    QLineEdit edit;
    edit.setValidator(&validator);
    edit.setText(text);
    QCOMPARE(edit.text(), text);
}

// The base class would rewrite a text with the locale's group separators.
void tst_QuantityValidator::neverMendsATextOnLeaving()
{
    for (const char* const text : {"", "5000", "-5", "12"}) {
        QuantityValidator validator(0, 1000, nullptr);
        validator.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
        QWidget window;
        QLineEdit edit(&window);
        QLineEdit other(&window);
        edit.setValidator(&validator);
        edit.setText(QString::fromLatin1(text));
        window.show();
        edit.setFocus();
        other.setFocus();
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.text(), QString::fromLatin1(text));
    }
}

void tst_QuantityValidator::leavesTextAndCursorAlone()
{
    const QuantityValidator validator(0, 1000, nullptr);
    QString text = QStringLiteral("12x");
    int cursor = 2;
    QCOMPARE(validator.validate(text, cursor), QValidator::Invalid);
    QCOMPARE(text, QStringLiteral("12x"));
    QCOMPARE(cursor, 2);
}

// A line edit that gets a validator would hold the text that it has for valid.
void tst_QuantityValidator::judgesTheTextThatIsThere()
{
    const QuantityValidator validator(0, 1000, nullptr);
    QLineEdit edit(QStringLiteral("50000"));
    edit.setCursorPosition(1);
    const QSignalSpy changed(&edit, &QLineEdit::textChanged);
    validator.install(edit);
    QCOMPARE(edit.validator(), &validator);
    QCOMPARE(edit.text(), QStringLiteral("50000"));
    QCOMPARE(edit.cursorPosition(), 1);
    QCOMPARE(changed.size(), 0);
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), QStringLiteral("5000"));
}

void tst_QuantityValidator::onlyTowardsANumber_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* set, const char* typed, const char* shown) {
        QTest::addRow("%s %s", set, typed)
            << QString::fromLatin1(set) << QString::fromLatin1(typed) << QString::fromLatin1(shown);
    };
    row("-1", "ab1", "-1");
    row("-1", "[ab1", "-1");
    row("-1", "-", "-1");
    row("-1", "[-", "-1");
    row("-1", "*a", "-1");
    row("-1", "*5", "5");
    row("-1", "*+", "-1");
    row("-1", "*1234", "123");
    row("-1", "*12ab", "12");
    row("-1", "[>", "1");
    row("-1", "[>ab23", "231");
    row("-1", "<", "-");
    row("-1", "<5", "-");
    row("-1", "<a", "-");
    row("-1", "<<", "");
    row("-1", "<<-5", "5");
    row("5000", "1", "5000");
    row("5000", "x", "5000");
    row("5000", "[1", "5000");
    row("5000", "<", "500");
    row("5000", "<5", "500");
    row("5000", "<<5x", "505");
    row("20000000", "0", "20000000");
    row("20000000", "<", "2000000");
    row("20000000", "<1", "2000000");
    row("20000000", "<x<x<x<x", "2000");
    row("20000000", "<<<<<", "200");
    row("20000000", "<<<<<7", "200");
    row("-2147483648", "<e<e", "-21474836");
    row("-2147483648", "[>x", "2147483648");
    row("-2147483648", "[>]<<<<<<<x", "214");
    row("2147483647", "*>12", "12");
}

void tst_QuantityValidator::onlyTowardsANumber()
{
    QFETCH(QString, set);
    QFETCH(QString, typed);
    Field field(set);
    QCOMPARE(field.text(), set);
    type(field, typed);
    QTEST(field.text(), "shown");
}

void tst_QuantityValidator::nothingElseGetsIn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("replaces"); // all that is there
    QTest::addColumn<QString>("shown");
    const QString set = QStringLiteral("-1");
    QTest::newRow("letters") << QStringLiteral("ab") << false << set;
    QTest::newRow("letter and digit") << QStringLiteral("1a") << false << set;
    QTest::newRow("digits") << QStringLiteral("12") << false << set;
    QTest::newRow("Chinese") << QStringLiteral("一") << false << set;
    QTest::newRow("letters for all") << QStringLiteral("ab") << true << set;
    QTest::newRow("too large for all") << QStringLiteral("1001") << true << set;
    QTest::newRow("grouped for all") << QStringLiteral("1,0") << true << set;
    QTest::newRow("full width for all") << QStringLiteral("５") << true << set;
    QTest::newRow("number for all") << QStringLiteral("100") << true << QStringLiteral("100");
}

void tst_QuantityValidator::nothingElseGetsIn()
{
    QFETCH(QString, text);
    QFETCH(bool, replaces);
    QGuiApplication::clipboard()->setText(text);
    const std::function<void(QLineEdit&)> ways[] = {
        [](QLineEdit& field) { field.paste(); },
        [](QLineEdit& field) { QTest::keySequence(&field, QKeySequence::Paste); },
        [](QLineEdit& field) {
            const QScopedPointer<QMenu> menu(field.createStandardContextMenu());
            for (QAction* const action : menu->actions()) {
                if (action->text().startsWith(QStringLiteral("&Paste")))
                    action->trigger();
            }
        },
        [&text](QLineEdit& field) { commit(field, text); },
    };
    for (const auto& way : ways) {
        Field field(QStringLiteral("-1"));
        if (replaces)
            field.selectAll();
        way(field);
        QTEST(field.text(), "shown");
        QCOMPARE(field.displayText(), field.text());
    }

    Field field(QStringLiteral("-1"));
    QMimeData data;
    data.setText(text);
    QDropEvent drop(field.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &drop);
    QCOMPARE(field.text(), QStringLiteral("-1"));
}

// Composing takes away what is selected, as it does anywhere; the text that comes is refused.
void tst_QuantityValidator::composing()
{
    Field field(QStringLiteral("-1"));
    QInputMethodEvent compose(QStringLiteral("er"), {});
    QCoreApplication::sendEvent(&field, &compose);
    QCOMPARE(field.text(), QStringLiteral("-1"));
    commit(field, QStringLiteral("二"));
    QCOMPARE(field.displayText(), QStringLiteral("-1"));
    field.selectAll();
    QCoreApplication::sendEvent(&field, &compose);
    commit(field, QStringLiteral("二"));
    QCOMPARE(field.displayText(), QString());
    QCoreApplication::sendEvent(&field, &compose);
    commit(field, QStringLiteral("2"));
    QCOMPARE(field.displayText(), QStringLiteral("2"));
}

void tst_QuantityValidator::undoGoesBackToWhatWasSet()
{
    Field field(QStringLiteral("5000"));
    type(field, QStringLiteral("x<"));
    QCOMPARE(field.text(), QStringLiteral("500"));
    field.undo();
    QCOMPARE(field.text(), QStringLiteral("5000"));
    type(field, QStringLiteral("x"));
    QCOMPARE(field.text(), QStringLiteral("5000"));
    // Nothing that was refused comes back.
    field.redo();
    QCOMPARE(field.text(), QStringLiteral("5000"));
    field.undo();
    QCOMPARE(field.text(), QStringLiteral("5000"));
    // What is refused leaves the cursor and the selection where they were.
    field.setCursorPosition(2);
    type(field, QStringLiteral("x"));
    QCOMPARE(field.cursorPosition(), 2);
    field.setSelection(1, 2);
    type(field, QStringLiteral("x"));
    QCOMPARE(field.selectedText(), QStringLiteral("00"));
}

void tst_QuantityValidator::theProgramMaySetAnyText()
{
    Field field(QStringLiteral("30"));
    for (const char* const text : {"5000", "-5", "abc", "20000000", "7", ""}) {
        field.setText(QString::fromLatin1(text));
        QCOMPARE(field.text(), QString::fromLatin1(text));
        type(field, QStringLiteral("q"));
        QCOMPARE(field.text(), QString::fromLatin1(text));
    }
}

void tst_QuantityValidator::fieldsOfTheDialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("stored");
    for (const char* const name :
         {"lineEdit_system_lockTime", "lineEdit_trade_baseCount", "lineEdit_trade_high",
          "lineEdit_trade_low", "lineEdit_trade_desc", "lineEdit_trade_kc_baseCount",
          "lineEdit_trade_kc_high", "lineEdit_trade_kc_low", "lineEdit_trade_kc_desc"}) {
        for (const int stored : {-1, 20000000, INT_MIN, INT_MAX})
            QTest::addRow("%s %d", name, stored) << QString::fromLatin1(name) << stored;
    }
}

void tst_QuantityValidator::fieldsOfTheDialog()
{
    QFETCH(QString, name);
    QFETCH(int, stored);
    constexpr std::int32_t TradeParm::*members[] = {
        &TradeParm::lockMinutes,     &TradeParm::splitBaseQty,    &TradeParm::splitMaxQty,
        &TradeParm::splitMinQty,     &TradeParm::splitStepQty,    &TradeParm::starSplitBaseQty,
        &TradeParm::starSplitMaxQty, &TradeParm::starSplitMinQty, &TradeParm::starSplitStepQty,
    };
    TestDialog dialog([stored, &members](FakeTrade& trade) {
        TradeParm& parm = trade.parm();
        parm.splitEnabled = 1;
        parm.starSplitEnabled = 1;
        parm.starSplitStrategy = 3; // one that leaves the base quantity as it is stored
        for (const auto member : members)
            parm.*member = stored;
    });
    auto& edit = dialog.find<QLineEdit>(qPrintable(name));
    const QString shown = QString::number(stored);
    QCOMPARE(edit.text(), shown);
    type(edit, QStringLiteral("ab1"));
    QGuiApplication::clipboard()->setText(QStringLiteral("1a"));
    edit.paste();
    commit(edit, QStringLiteral("二"));
    QCOMPARE(edit.text(), shown);

    // As good as untouched, and saved as it was.
    dialog.confirm();
    QCOMPARE(dialog.trade.saves, 1);
    for (const auto member : members)
        QCOMPARE(dialog.trade.parm().*member, stored);

    type(edit, QStringLiteral("*300q"));
    QCOMPARE(edit.text(), QStringLiteral("300"));
}

void tst_QuantityValidator::percentagesOfTheDialog_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](int stored, const char* typed, const char* shown) {
        QTest::addRow("%d %s", stored, typed)
            << stored << QString::fromLatin1(typed) << QString::fromLatin1(shown);
    };
    row(250, "", "250");
    row(250, "ab1", "250");
    row(250, "<", "25");
    row(250, "<x", "25");
    row(250, "*30", "30");
    row(250, "*a", "250");
    row(-1, "ab1", "-1");
    row(-1, "[>", "1");
    row(-1, "<<7", "7");
    row(50000, "<x", "5000");
    row(50000, "<x<x<x", "50");
    row(20, "x0", "20");
}

void tst_QuantityValidator::percentagesOfTheDialog()
{
    QFETCH(int, stored);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    for (const bool buys : {true, false}) {
        const TestDialog dialog([stored](FakeTrade& trade) {
            trade.parm().starBuyRiseChoices[1] = stored;
            trade.parm().starBuyRiseIndex = 1;
            trade.parm().starSellRiseChoices[1] = stored;
            trade.parm().starSellRiseIndex = 1;
        });
        QComboBox& combo
            = buys ? *dialog->ui.comboBox_trade_kc_buyRise : *dialog->ui.comboBox_trade_kc_sellRise;
        (buys ? dialog->ui.pushButton_kc_buyRise : dialog->ui.pushButton_kc_sellRise)->click();
        const QString& kept = buys ? dialog->starBuyRiseText : dialog->starSellRiseText;
        QCOMPARE(kept, QString::number(stored));
        type(*combo.lineEdit(), typed);
        QCOMPARE(combo.lineEdit()->text(), shown);
        QCOMPARE(kept, shown);
        QFocusEvent leave(QEvent::FocusOut);
        QCoreApplication::sendEvent(&combo, &leave);
        QCOMPARE(combo.currentText(), shown);
        QCOMPARE(combo.count(), 3);
    }
}

void tst_QuantityValidator::typingTheScale_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("value"); // after Return
    const auto row = [](int before, const char* typed, const char* shown, int value) {
        QTest::addRow("%d %s", before, typed)
            << before << QString::fromLatin1(typed) << QString::fromLatin1(shown) << value;
    };
    row(100, "*200", "200%", 200);
    row(125, "*200", "200%", 200);
    row(100, "*103", "103%", 103); // between the steps
    row(100, "*300", "300%", 300);
    row(150, "[>2", "250%", 250);
    row(150, "]<", "150%", 150); // over the unit, behind which End goes
    row(150, "]<<<05", "105%", 105);
    row(150, "]<<", "15%", 150);
    row(150, "]<<<<", "%", 150);
    row(150, "]<<<<275", "275%", 275);
    row(150, "[>>>>2", "2%", 150);
    row(150, "*>", "%", 150);
    row(150, "*<<<", "%", 150);
    // Refused while typing.
    row(150, "a", "150%", 150);
    row(150, "*a", "150%", 150);
    row(150, "]a", "150%", 150);
    row(100, "*1a7b5c", "175%", 175);
    row(100, "*+150", "150%", 150);
    row(100, "*-150", "150%", 150);
    row(100, "*1,5 0.", "150%", 150);
    row(100, "*200%", "200%", 200);
    row(150, "]0", "150%", 150);
    row(150, "[9", "150%", 150);
    row(100, "*301", "30%", 100);
    row(100, "*999", "99%", 100);
    // Brought into the range on leaving.
    row(150, "*99", "99%", 150);
    row(150, "*2", "2%", 150);
    row(150, "*0", "0%", 150);
}

// Its editor has the validator of the others, and shows a unit that is no part of a number.
void tst_QuantityValidator::typingTheScale()
{
    QFETCH(const int, before);
    QFETCH(const QString, typed);
    QFETCH(const int, value);
    const TestDialog dialog([](FakeTrade& trade) { trade.parm().uiPageMode = 2; });
    QSpinBox& scale = *dialog->ui.spinBox_scale;
    scale.setValue(before);
    dialog->ui.stackedWidget_system->setCurrentIndex(2);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    for (int time = 0; time < 2; ++time) {
        dialog.leaveField();
        scale.setValue(before);
        scale.setFocus();
        QCOMPARE(scale.text(), QString::number(before) + QLatin1Char('%'));
        type(scale, typed);
        QTEST(scale.text(), "shown");
        QTest::keyClick(&scale, Qt::Key_Return);
        QCOMPARE(scale.value(), value);
        QCOMPARE(scale.text(), QString::number(value) + QLatin1Char('%'));
    }
}

void tst_QuantityValidator::pastingTheScale()
{
    const TestDialog dialog([](FakeTrade& trade) { trade.parm().uiPageMode = 2; });
    QSpinBox& scale = *dialog->ui.spinBox_scale;
    auto& editor = *scale.findChild<QLineEdit*>();
    dialog->ui.stackedWidget_system->setCurrentIndex(2);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    scale.setFocus();
    const std::pair<const char*, const char*> pastes[]
        = {{"abc", "100%"}, {"2x0", "100%"}, {"二百", "100%"}, {"400", "100%"}, {"250", "250%"}};
    for (const auto& [pasted, shown] : pastes) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(pasted));
        scale.selectAll();
        editor.paste();
        QCOMPARE(scale.text(), QString::fromUtf8(shown));
    }
    scale.selectAll();
    commit(scale, QStringLiteral("三"));
    QCOMPARE(scale.text(), QStringLiteral("250%"));
    QCOMPARE(scale.value(), 250);
}

// Coming back to the window changes nothing of what is selected there.
void tst_QuantityValidator::selectionOfTheScaleStays()
{
    const TestDialog dialog([](FakeTrade& trade) { trade.parm().uiPageMode = 2; });
    QSpinBox& scale = *dialog->ui.spinBox_scale;
    auto& editor = *scale.findChild<QLineEdit*>();
    scale.setValue(275);
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    editor.setSelection(1, 2);
    QCoreApplication::sendEvent(&scale, &back);
    QCOMPARE(editor.selectedText(), QStringLiteral("75"));
    editor.setCursorPosition(1);
    QCoreApplication::sendEvent(&scale, &back);
    QCOMPARE(editor.cursorPosition(), 1);
    QCOMPARE(scale.value(), 275);
}

void tst_QuantityValidator::unitOfTheFocusedSpinBoxOnly()
{
    const QuantityValidator validator(0, 10000000, nullptr);
    QWidget window;
    QLineEdit field(&window);
    QSpinBox box(&window);
    box.setRange(100, 300);
    box.setSuffix(QStringLiteral("%"));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto stateOf = [&validator](const char* text) {
        QString copy = QString::fromLatin1(text);
        int cursor = 0;
        return validator.validate(copy, cursor);
    };
    field.setFocus();
    QCOMPARE(stateOf("150%"), QValidator::Invalid);
    QCOMPARE(stateOf("500"), QValidator::Acceptable);
    box.setFocus();
    QCOMPARE(stateOf("150%"), QValidator::Acceptable);
    QCOMPARE(stateOf("150"), QValidator::Acceptable);
    QCOMPARE(stateOf("15%"), QValidator::Intermediate);
    QCOMPARE(stateOf("%"), QValidator::Intermediate);
    for (const char* const text : {"500%", "500", "150%%", "1%50", "150 %", "+150%", "a%", "150px"})
        QCOMPARE(stateOf(text), QValidator::Invalid);
    QString completed = QStringLiteral("150");
    int cursor = 3;
    validator.validate(completed, cursor);
    QCOMPARE(completed, QStringLiteral("150%"));
    QCOMPARE(cursor, 3);
    field.setFocus();
    QCOMPARE(stateOf("150%"), QValidator::Invalid);
}

TRADECONFIG_TEST_MAIN(tst_QuantityValidator)
#include "tst_QuantityValidator.moc"
