#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/QuantityValidator.h"

#include <QClipboard>
#include <QLineEdit>

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

    void theScaleIsStillTyped_data();
    void theScaleIsStillTyped();
};

namespace {

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

void tst_QuantityValidator::theScaleIsStillTyped_data()
{
    QTest::addColumn<int>("before");
    QTest::newRow("100, as designed") << 100;
    QTest::newRow("125") << 125;
}

// Its editor has the same validator but shows a unit that is no part of a number.
void tst_QuantityValidator::theScaleIsStillTyped()
{
    QFETCH(int, before);
    const TestDialog dialog;
    QSpinBox& scale = *dialog->ui.spinBox_scale;
    scale.setValue(before);
    QCOMPARE(scale.text(), QStringLiteral("%1%").arg(before));
    type(scale, QStringLiteral("*150"));
    QCOMPARE(scale.value(), 150);
    type(scale, QStringLiteral("]<<<<275")); // the end is behind the unit
    QTest::keyClick(&scale, Qt::Key_Return);
    QCOMPARE(scale.value(), 275);
    QCOMPARE(scale.text(), QStringLiteral("275%"));
}

TRADECONFIG_TEST_MAIN(tst_QuantityValidator)
#include "tst_QuantityValidator.moc"
