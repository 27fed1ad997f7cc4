#include "support/KeyText.h"
#include "support/MessageCapture.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// A dialog with buttons and a table that holds one key-capture editor with the focus.
class Host : public QDialog {
public:
    Host()
        : other(new QLineEdit(this))
        , table(new QTableWidget(3, 3, this))
        , button(new QPushButton(QStringLiteral("&Do"), this))
        , editor(new CTableLineEdit(1))
    {
        auto* const column = new QVBoxLayout(this);
        column->addWidget(other);
        column->addWidget(table);
        column->addWidget(button);
        button->setDefault(true);
        connect(button, &QPushButton::clicked, this, [this] { ++buttonClicks; });
        connect(this, &QDialog::finished, this, [this] { ++ends; });
        table->setCellWidget(1, 1, editor);
        table->setCurrentCell(1, 1);
        show();
        activateWindow();
        active = QTest::qWaitForWindowActive(this);
        editor->setFocus();
    }

    QLineEdit* other;
    QTableWidget* table;
    QPushButton* button;
    CTableLineEdit* editor;
    bool active = false;
    int buttonClicks = 0;
    int ends = 0;
};

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

enum class Strike { Press, Repeat, Release };

// What a window system sends; most of the codes stay zero in events that are made by hand.
void strike(QWidget* widget, Strike how, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
            quint32 scanCode = 0, quint32 virtualKey = 0)
{
    QKeyEvent event(how == Strike::Release ? QEvent::KeyRelease : QEvent::KeyPress, key, modifiers,
                    scanCode, virtualKey, 0, QString(), how == Strike::Repeat);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class tst_TableLineEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void modifiers_data();
    void modifiers();
    void namedKeys_data();
    void namedKeys();
    void bareModifiers_data();
    void bareModifiers();
    void metaIsRefused_data();
    void metaIsRefused();
    void keypadIsIgnored_data();
    void keypadIsIgnored();
    void unknownKey();
    void keyZero();
    void theTextOfTheEventDoesNotMatter();
    void repeatedPress();
    void heldKeyRepeatsItself();
    void heldKeyChangesWithShift_data();
    void heldKeyChangesWithShift();
    void keyHeldSinceElsewhere_data();
    void keyHeldSinceElsewhere();
    void keyHeldSinceElsewhereInHalves();
    void keyHeldWhileTheFocusLeft();
    void disabledTakesNoKeys();

    void windowShortcuts_data();
    void windowShortcuts();
    void keysOfDialogAndTable_data();
    void keysOfDialogAndTable();
    void tabMovesTheFocus_data();
    void tabMovesTheFocus();
    void shortcutsWorkWithoutTheFocus();

    void noInputMethod();
    void noPaste();
    void noDrop();
    void noMiddleButton();
    void noMenuByKey();
    void menuByMouse();
    void isAReadOnlyTextToAssistiveTechnology();
    void assistiveTechnologyCannotType_data();
    void assistiveTechnologyCannotType();
    void assistiveTechnologyReadsTheText();
    void assistiveTechnologyReadsWords_data();
    void assistiveTechnologyReadsWords();
    void assistiveTechnologySelectsText();
    void editFinishedReportsNothing();
    void editFinishedIsConnected();
};

void tst_TableLineEdit::construction()
{
    QWidget parent;
    const auto* const editor = new CTableLineEdit(9, &parent);
    QCOMPARE(editor->parentWidget(), &parent);
    QCOMPARE(editor->row, 9);
    QCOMPARE(editor->font().pointSize(), 11);
    QCOMPARE(editor->text(), QString());
    const CTableLineEdit alone(0);
    QVERIFY(!alone.parentWidget());
}

void tst_TableLineEdit::modifiers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");

    const int shift = Qt::ShiftModifier;
    const int control = Qt::ControlModifier;
    const int alt = Qt::AltModifier;
    const auto row = [](int key, int modifiers, const char* text) {
        QTest::newRow(text) << key << modifiers << keyText(text);
    };
    row(Qt::Key_A, 0, "A");
    row(Qt::Key_A, shift, "Shift+A");
    row(Qt::Key_A, control, "Ctrl+A");
    row(Qt::Key_A, alt, "Alt+A");
    row(Qt::Key_A, control | shift, "Ctrl+Shift+A");
    row(Qt::Key_A, alt | shift, "Alt+Shift+A");
    row(Qt::Key_A, control | alt, "Ctrl+Alt+A");
    row(Qt::Key_A, control | alt | shift, "Ctrl+Alt+Shift+A");
    row(Qt::Key_F5, 0, "F5");
    row(Qt::Key_F12, shift, "Shift+F12");
    row(Qt::Key_F35, control | alt | shift, "Ctrl+Alt+Shift+F35");
    row(Qt::Key_7, alt, "Alt+7");
    row(Qt::Key_Plus, control, "Ctrl++");
    row(Qt::Key_Comma, control | shift, "Ctrl+Shift+,");
    row(Qt::Key_Delete, control | alt, "Ctrl+Alt+Del");
}

void tst_TableLineEdit::modifiers()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    CTableLineEdit editor(3);
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    QTest::keyPress(&editor, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(editor.text(), text);
    QCOMPARE(reported.size(), 1);
    QCOMPARE(reported.at(0).at(0).toInt(), 3);
    QCOMPARE(reported.at(0).at(1).toString(), text);
    QTest::keyRelease(&editor, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(reported.size(), 1);
}

void tst_TableLineEdit::namedKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    const auto row = [](int key, const char* text) { QTest::newRow(text) << key << keyText(text); };
    row(Qt::Key_Backspace, "Backspace");
    row(Qt::Key_Delete, "Del");
    row(Qt::Key_Insert, "Ins");
    row(Qt::Key_Escape, "Esc");
    row(Qt::Key_Return, "Return");
    row(Qt::Key_Enter, "Enter");
    row(Qt::Key_Space, "Space");
    row(Qt::Key_Home, "Home");
    row(Qt::Key_End, "End");
    row(Qt::Key_Left, "Left");
    row(Qt::Key_Right, "Right");
    row(Qt::Key_Up, "Up");
    row(Qt::Key_Down, "Down");
    row(Qt::Key_PageUp, "PgUp");
    row(Qt::Key_PageDown, "PgDown");
    row(Qt::Key_CapsLock, "CapsLock");
    row(Qt::Key_Print, "Print");
    row(Qt::Key_Pause, "Pause");
    row(Qt::Key_F1, "F1");
    row(Qt::Key_VolumeUp, "Volume Up");
}

void tst_TableLineEdit::namedKeys()
{
    QFETCH(int, key);
    CTableLineEdit editor(0);
    editor.setText(QStringLiteral("Ctrl+X"));
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    QTest::keyClick(&editor, Qt::Key(key));
    QTEST(editor.text(), "text");
    QCOMPARE(reported.size(), 1);
}

void tst_TableLineEdit::bareModifiers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    for (const bool held : {false, true}) {
        const char* const how = held ? "held" : "fresh";
        QTest::addRow("Shift %s", how) << int(Qt::Key_Shift) << (held ? int(Qt::ShiftModifier) : 0);
        QTest::addRow("Control %s", how)
            << int(Qt::Key_Control) << (held ? int(Qt::ControlModifier) : 0);
        QTest::addRow("Alt %s", how) << int(Qt::Key_Alt) << (held ? int(Qt::AltModifier) : 0);
        QTest::addRow("Meta %s", how) << int(Qt::Key_Meta) << (held ? int(Qt::MetaModifier) : 0);
    }
    QTest::newRow("Shift with Control")
        << int(Qt::Key_Shift) << int(Qt::ControlModifier | Qt::ShiftModifier);
}

void tst_TableLineEdit::bareModifiers()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    CTableLineEdit editor(0);
    editor.setText(QStringLiteral("F8"));
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    QTest::keyPress(&editor, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(editor.text(), QStringLiteral("F8"));
    QCOMPARE(reported.size(), 0);
    QTest::keyClick(&editor, Qt::Key_A, Qt::ShiftModifier);
    QCOMPARE(editor.text(), keyText("Shift+A"));
    QCOMPARE(reported.size(), 1);
}

void tst_TableLineEdit::metaIsRefused_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    for (const int key : {int(Qt::Key_A), int(Qt::Key_F5), int(Qt::Key_Backspace)}) {
        for (int mix = 0; mix < 16; ++mix) {
            int modifiers = Qt::MetaModifier;
            modifiers |= mix & 1 ? int(Qt::ShiftModifier) : 0;
            modifiers |= mix & 2 ? int(Qt::ControlModifier) : 0;
            modifiers |= mix & 4 ? int(Qt::AltModifier) : 0;
            modifiers |= mix & 8 ? int(Qt::KeypadModifier) : 0;
            QTest::addRow("%x %x", unsigned(key), unsigned(modifiers)) << key << modifiers;
        }
    }
}

void tst_TableLineEdit::metaIsRefused()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    CTableLineEdit editor(0);
    editor.setText(QStringLiteral("F8"));
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    QTest::keyClick(&editor, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(editor.text(), QStringLiteral("F8"));
    QCOMPARE(reported.size(), 0);
}

void tst_TableLineEdit::keypadIsIgnored_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("5") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "5";
    QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << keyText("Enter");
    QTest::newRow("Ctrl+5") << int(Qt::Key_5) << int(Qt::KeypadModifier | Qt::ControlModifier)
                            << keyText("Ctrl+5");
    QTest::newRow("group switch") << int(Qt::Key_A) << int(Qt::GroupSwitchModifier) << "A";
}

void tst_TableLineEdit::keypadIsIgnored()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    CTableLineEdit editor(0);
    QTest::keyClick(&editor, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(editor.text(), "text");
}

void tst_TableLineEdit::unknownKey()
{
    CTableLineEdit editor(0);
    editor.setText(QStringLiteral("F8"));
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    const MessageCapture log;
    for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier, Qt::MetaModifier}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, modifiers, QStringLiteral("x"));
        QCoreApplication::sendEvent(&editor, &press);
    }
    QCOMPARE(
        log.texts(),
        QStringList(
            QVector<QString>(3, QStringLiteral("Unknown key from a macro probably")).toList()));
    QCOMPARE(editor.text(), QStringLiteral("F8"));
    QCOMPARE(reported.size(), 0);

    // No other key writes the line.
    QTest::keyClick(&editor, Qt::Key_Shift);
    QTest::keyClick(&editor, Qt::Key_A);
    QCOMPARE(log.lines().size(), 3);
}

// A key that the platform has no code for is no unknown key: its sequence is empty.
void tst_TableLineEdit::keyZero()
{
    Host host;
    host.editor->setText(QStringLiteral("F8"));
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier);
    QCoreApplication::sendEvent(host.editor, &press);
    QCOMPARE(host.editor->text(), QString());
    QCOMPARE(reported.size(), 1);
    QCOMPARE(reported.constFirst(), QVariantList({1, QString()}));
}

void tst_TableLineEdit::theTextOfTheEventDoesNotMatter()
{
    CTableLineEdit editor(0);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Q, Qt::NoModifier, QStringLiteral("中文"));
    QCoreApplication::sendEvent(&editor, &press);
    QCOMPARE(editor.text(), QStringLiteral("Q"));
    QVERIFY(press.isAccepted());
}

void tst_TableLineEdit::repeatedPress()
{
    CTableLineEdit editor(0);
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    for (int press = 0; press < 3; ++press)
        QTest::keyClick(&editor, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(editor.text(), keyText("Ctrl+A"));
    QCOMPARE(reported.size(), 3);
    QCOMPARE(reported.at(2).at(1).toString(), keyText("Ctrl+A"));
    // One chord only, never a sequence.
    QTest::keyClick(&editor, Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(editor.text(), keyText("Ctrl+B"));
}

void tst_TableLineEdit::heldKeyRepeatsItself()
{
    CTableLineEdit editor(4);
    const QSignalSpy reported(&editor, &CTableLineEdit::signal_editFinished);
    strike(&editor, Strike::Press, Qt::Key_A, Qt::ControlModifier);
    for (int repeats = 1; repeats <= 3; ++repeats) {
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::ControlModifier, QString(), true);
        QCoreApplication::sendEvent(&editor, &release);
        strike(&editor, Strike::Repeat, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(reported.size(), 1 + repeats);
        QCOMPARE(reported.last(), QVariantList({4, keyText("Ctrl+A")}));
    }
    // A key that does not repeat itself, pressed meanwhile, does not end it.
    strike(&editor, Strike::Press, Qt::Key_CapsLock, Qt::ControlModifier);
    QCOMPARE(editor.text(), keyText("Ctrl+CapsLock"));
    strike(&editor, Strike::Repeat, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(editor.text(), keyText("Ctrl+A"));
}

void tst_TableLineEdit::heldKeyChangesWithShift_data()
{
    QTest::addColumn<int>("scanCode");
    QTest::addColumn<int>("virtualKeyFirst");
    QTest::addColumn<int>("virtualKeyThen");
    QTest::newRow("X11") << 10 << int('1') << int('!');
    QTest::newRow("macOS") << 0 << 18 << 18;
}

void tst_TableLineEdit::heldKeyChangesWithShift()
{
    QFETCH(int, scanCode);
    QFETCH(int, virtualKeyFirst);
    QFETCH(int, virtualKeyThen);
    CTableLineEdit editor(0);
    strike(&editor, Strike::Press, Qt::Key_1, Qt::NoModifier, quint32(scanCode),
           quint32(virtualKeyFirst));
    QCOMPARE(editor.text(), QStringLiteral("1"));
    strike(&editor, Strike::Press, Qt::Key_Shift, Qt::ShiftModifier);
    strike(&editor, Strike::Repeat, Qt::Key_Exclam, Qt::ShiftModifier, quint32(scanCode),
           quint32(virtualKeyThen));
    QCOMPARE(editor.text(), keyText("Shift+!"));
}

void tst_TableLineEdit::keyHeldSinceElsewhere_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("A") << int(Qt::Key_A) << 0;
    QTest::newRow("F8") << int(Qt::Key_F8) << 0;
    QTest::newRow("Ctrl+S") << int(Qt::Key_S) << int(Qt::ControlModifier);
    QTest::newRow("Return") << int(Qt::Key_Return) << 0;
    QTest::newRow("Down") << int(Qt::Key_Down) << 0;
    QTest::newRow("Menu") << int(Qt::Key_Menu) << 0;
}

void tst_TableLineEdit::keyHeldSinceElsewhere()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    const Qt::KeyboardModifiers held(modifiers);
    Host host;
    QVERIFY(host.active);
    host.editor->setText(QStringLiteral("F9"));
    host.other->setFocus();
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    strike(host.other, Strike::Press, Qt::Key(key), held);
    host.editor->setFocus();
    for (int repeats = 0; repeats < 3; ++repeats)
        strike(host.editor, Strike::Repeat, Qt::Key(key), held);
    // Neither a modifier nor another key makes it a key of this cell.
    strike(host.editor, Strike::Press, Qt::Key_Shift, held | Qt::ShiftModifier);
    strike(host.editor, Strike::Repeat, Qt::Key(key), held | Qt::ShiftModifier);
    QCOMPARE(host.editor->text(), QStringLiteral("F9"));
    QCOMPARE(reported.size(), 0);
    strike(host.editor, Strike::Press, Qt::Key_B);
    strike(host.editor, Strike::Repeat, Qt::Key(key), held);
    QCOMPARE(host.editor->text(), QStringLiteral("B"));
    QCOMPARE(reported.size(), 1);
    // The cell keeps the repeats for itself all the same.
    QCOMPARE(host.table->currentRow(), 1);
    QCOMPARE(host.ends, 0);

    strike(host.editor, Strike::Release, Qt::Key(key), held);
    strike(host.editor, Strike::Press, Qt::Key(key), held);
    QCOMPARE(host.editor->text(), keyText(QTest::currentDataTag()));
    QCOMPARE(reported.size(), 2);
}

// X11 sends a repeat as a release and a press of one time. The toolkit joins them when it has
// both at once; otherwise they look like the user's.
void tst_TableLineEdit::keyHeldSinceElsewhereInHalves()
{
    const auto send = [](QWidget* widget, QEvent::Type type, ulong time, quint32 scanCode = 24) {
        QKeyEvent event(type, Qt::Key_Q, Qt::NoModifier, scanCode, 'q', 0);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget, &event);
    };
    CTableLineEdit cell(0);
    cell.setText(QStringLiteral("F9"));
    const QSignalSpy reported(&cell, &CTableLineEdit::signal_editFinished);
    for (const ulong time : {5000UL, 5040UL}) {
        send(&cell, QEvent::KeyRelease, time);
        send(&cell, QEvent::KeyPress, time);
    }
    strike(&cell, Strike::Repeat, Qt::Key_Q, Qt::NoModifier, 24, 'q');
    QCOMPARE(cell.text(), QStringLiteral("F9"));
    QCOMPARE(reported.size(), 0);
    // Another key at that time is not the one that is held.
    send(&cell, QEvent::KeyRelease, 5080);
    send(&cell, QEvent::KeyPress, 5080, 25);
    QCOMPARE(reported.size(), 1);
    // Released, and pressed again by the user.
    send(&cell, QEvent::KeyRelease, 5100);
    send(&cell, QEvent::KeyPress, 5101);
    QCOMPARE(reported.size(), 2);
    // From now on it is a key of this cell.
    send(&cell, QEvent::KeyRelease, 5600);
    send(&cell, QEvent::KeyPress, 5600);
    QCOMPARE(reported.size(), 3);
    // A program that presses keys gives no codes, and may do all of it at one time.
    CTableLineEdit other(0);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, Qt::Key_Q, Qt::NoModifier);
        event.setTimestamp(5000);
        QCoreApplication::sendEvent(&other, &event);
    }
    QCOMPARE(other.text(), QStringLiteral("Q"));
}

void tst_TableLineEdit::keyHeldWhileTheFocusLeft()
{
    Host host;
    QVERIFY(host.active);
    strike(host.editor, Strike::Press, Qt::Key_A);
    host.other->setFocus();
    strike(host.other, Strike::Release, Qt::Key_A);
    strike(host.other, Strike::Press, Qt::Key_A);
    host.editor->setFocus();
    host.editor->setText(QStringLiteral("F9"));
    strike(host.editor, Strike::Repeat, Qt::Key_A);
    QCOMPARE(host.editor->text(), QStringLiteral("F9"));
}

void tst_TableLineEdit::disabledTakesNoKeys()
{
    Host host;
    QVERIFY(host.active);
    host.editor->setEnabled(false);
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    QTest::keyClick(host.windowHandle(), Qt::Key_A);
    QTest::mouseClick(host.editor, Qt::LeftButton);
    QTest::keyClick(host.windowHandle(), Qt::Key_B);
    QCOMPARE(host.editor->text(), QString());
    QCOMPARE(reported.size(), 0);
}

void tst_TableLineEdit::windowShortcuts_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](int key, int modifiers, const char* text) {
        QTest::newRow(text) << key << modifiers << keyText(text);
    };
    row(Qt::Key_F5, 0, "F5");
    row(Qt::Key_Escape, 0, "Esc");
    row(Qt::Key_Return, 0, "Return");
    row(Qt::Key_Space, 0, "Space");
    row(Qt::Key_A, 0, "A");
    row(Qt::Key_A, Qt::ControlModifier, "Ctrl+A");
    row(Qt::Key_C, Qt::ControlModifier, "Ctrl+C");
    row(Qt::Key_V, Qt::ControlModifier, "Ctrl+V");
    row(Qt::Key_Z, Qt::ControlModifier, "Ctrl+Z");
    row(Qt::Key_Q, Qt::ControlModifier | Qt::ShiftModifier, "Ctrl+Shift+Q");
    row(Qt::Key_F4, Qt::AltModifier, "Alt+F4");
    row(Qt::Key_D, Qt::AltModifier, "Alt+D"); // the button's mnemonic
    row(Qt::Key_Tab, Qt::ControlModifier, "Ctrl+Tab");
}

void tst_TableLineEdit::windowShortcuts()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    Host host;
    QVERIFY(host.active);
    QShortcut shortcut(QKeySequence(key | modifiers), &host, nullptr, nullptr,
                       Qt::ApplicationShortcut);
    const QSignalSpy taken(&shortcut, &QShortcut::activated);
    const QSignalSpy ambiguous(&shortcut, &QShortcut::activatedAmbiguously);
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    QTest::keyClick(host.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(host.editor->text(), "text");
    QCOMPARE(reported.size(), 1);
    QCOMPARE(taken.size() + ambiguous.size(), 0);
    QCOMPARE(host.buttonClicks, 0);
    QVERIFY(host.editor->hasFocus());
}

void tst_TableLineEdit::keysOfDialogAndTable_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](int key, int modifiers, const char* text) {
        QTest::newRow(text) << key << modifiers << keyText(text);
    };
    row(Qt::Key_Escape, 0, "Esc");
    row(Qt::Key_Return, 0, "Return");
    row(Qt::Key_Enter, Qt::KeypadModifier, "Enter");
    row(Qt::Key_Up, 0, "Up");
    row(Qt::Key_Down, 0, "Down");
    row(Qt::Key_Left, 0, "Left");
    row(Qt::Key_Right, 0, "Right");
    row(Qt::Key_Home, 0, "Home");
    row(Qt::Key_End, Qt::ControlModifier, "Ctrl+End");
    row(Qt::Key_PageUp, 0, "PgUp");
    row(Qt::Key_PageDown, 0, "PgDown");
    row(Qt::Key_F2, 0, "F2");
    row(Qt::Key_Space, 0, "Space");
    row(Qt::Key_A, Qt::ControlModifier, "Ctrl+A");
    row(Qt::Key_Delete, 0, "Del");
    row(Qt::Key_Menu, 0, "Menu");
    row(Qt::Key_F10, Qt::ShiftModifier, "Shift+F10");
}

void tst_TableLineEdit::keysOfDialogAndTable()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    Host host;
    QVERIFY(host.active);
    QTest::keyClick(host.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(host.editor->text(), "text");
    QVERIFY(host.isVisible());
    QCOMPARE(host.ends, 0);
    QCOMPARE(host.buttonClicks, 0);
    QCOMPARE(host.table->currentRow(), 1);
    QCOMPARE(host.table->currentColumn(), 1);
    QVERIFY(host.editor->hasFocus());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_TableLineEdit::tabMovesTheFocus_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 0;
    QTest::newRow("Shift+Tab") << int(Qt::Key_Tab) << int(Qt::ShiftModifier);
    QTest::newRow("Backtab") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier);
}

void tst_TableLineEdit::tabMovesTheFocus()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    Host host;
    QVERIFY(host.active);
    QTest::keyClick(host.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(host.editor->text(), QString());
    QVERIFY(!host.editor->hasFocus());
}

void tst_TableLineEdit::shortcutsWorkWithoutTheFocus()
{
    Host host;
    QVERIFY(host.active);
    QShortcut shortcut(QKeySequence(Qt::Key_F5), &host);
    const QSignalSpy taken(&shortcut, &QShortcut::activated);
    host.other->setFocus();
    QTest::keyClick(host.windowHandle(), Qt::Key_F5);
    QCOMPARE(taken.size(), 1);
    QCOMPARE(host.editor->text(), QString());
}

void tst_TableLineEdit::noInputMethod()
{
    Host host;
    QVERIFY(host.active);
    // Not even asked for: an input method would keep the keys for itself.
    QVERIFY(!host.editor->testAttribute(Qt::WA_InputMethodEnabled));
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    QInputMethodEvent preedit(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(host.editor, &preedit);
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("你"));
    QCoreApplication::sendEvent(host.editor, &commit);
    QCOMPARE(host.editor->text(), QString());
    QCOMPARE(host.editor->displayText(), QString());
    QCOMPARE(reported.size(), 0);
}

void tst_TableLineEdit::noPaste()
{
    Host host;
    QVERIFY(host.active);
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    host.editor->setText(QStringLiteral("F8"));
    const QScopedPointer<QMenu> menu(host.editor->createStandardContextMenu());
    if (menu) {
        for (QAction* const action : menu->actions())
            action->trigger();
    }
    QCOMPARE(host.editor->text(), QStringLiteral("F8"));

    QTest::keyClick(host.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(host.editor->text(), keyText("Ctrl+V"));
    QTest::keyClick(host.windowHandle(), Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(host.editor->text(), keyText("Shift+Ins"));
}

void tst_TableLineEdit::noDrop()
{
    Host host;
    QVERIFY(host.active);
    QMimeData data;
    data.setText(QStringLiteral("dropped"));
    const QPoint middle = host.editor->rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(host.editor, &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(host.editor, &drop);
    QCOMPARE(host.editor->text(), QString());
}

void tst_TableLineEdit::noMiddleButton()
{
    Host host;
    QVERIFY(host.active);
    QClipboard* const clipboard = QGuiApplication::clipboard();
    clipboard->setText(QStringLiteral("pasted"));
    if (clipboard->supportsSelection())
        clipboard->setText(QStringLiteral("selected"), QClipboard::Selection);
    QTest::mouseClick(host.editor, Qt::MiddleButton);
    QCOMPARE(host.editor->text(), QString());
}

// The window system asks for a menu before it sends the Menu key.
void tst_TableLineEdit::noMenuByKey()
{
    Host host;
    QVERIFY(host.active);
    host.table->setContextMenuPolicy(Qt::CustomContextMenu);
    const QSignalSpy asked(host.table, &QWidget::customContextMenuRequested);
    const QPoint middle = host.editor->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, host.editor->mapToGlobal(middle));
    QCoreApplication::sendEvent(host.editor, &event);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(asked.size(), 0);
    QTest::keyClick(host.windowHandle(), Qt::Key_Menu, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(host.editor->text(), keyText("Ctrl+Shift+Menu"));
}

void tst_TableLineEdit::menuByMouse()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    Host host;
    QVERIFY(host.active);
    host.editor->setText(QStringLiteral("F8"));
    const QPoint middle = host.editor->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, host.editor->mapToGlobal(middle));
    QCoreApplication::sendEvent(host.editor, &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    for (QAction* const action : menu->actions())
        action->trigger();
    menu->close();
    QCOMPARE(host.editor->text(), QStringLiteral("F8"));
    // Select all, then copy, which is what such a menu is for.
    host.editor->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("F8"));
}

void tst_TableLineEdit::isAReadOnlyTextToAssistiveTechnology()
{
    class Derived : public CTableLineEdit {
    public:
        using CTableLineEdit::CTableLineEdit;
    };
    Host host;
    QVERIFY(host.active);
    const Derived derived(0);
    for (CTableLineEdit* const cell :
         {host.editor, static_cast<CTableLineEdit*>(const_cast<Derived*>(&derived))}) {
        QAccessibleInterface* const seen = accessible(cell);
        QVERIFY(seen);
        QCOMPARE(seen->object(), cell);
        QCOMPARE(seen->role(), QAccessible::EditableText);
        QVERIFY(seen->state().readOnly);
        QVERIFY(!seen->state().editable);
        QVERIFY(seen->state().focusable);
        QCOMPARE(bool(seen->state().focused), cell == host.editor);
        QCOMPARE(seen->text(QAccessible::Value), QString());
        QTest::keyClick(cell, Qt::Key_F7, Qt::ControlModifier);
        QCOMPARE(seen->text(QAccessible::Value), keyText("Ctrl+F7"));
        cell->setText(QStringLiteral("空"));
        QCOMPARE(seen->text(QAccessible::Value), QStringLiteral("空"));
        cell->setAccessibleName(QStringLiteral("买入股票"));
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("买入股票"));
        cell->setEnabled(false);
        QVERIFY(seen->state().disabled);
    }
    // An ordinary line edit is left to the toolkit.
    QVERIFY(accessible(host.other)->state().editable);
}

void tst_TableLineEdit::assistiveTechnologyCannotType_data()
{
    QTest::addColumn<QString>("text");
    // Digits would pass the validator that the dialog gives to every line edit.
    for (const char* const text : {"5", "100", "x", "F7", ""})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_TableLineEdit::assistiveTechnologyCannotType()
{
    QFETCH(QString, text);
    const TestDialog dialog;
    auto* const cell
        = qobject_cast<CTableLineEdit*>(dialog->ui.tableWidget_shortcut->cellWidget(3, 1));
    cell->setText(QStringLiteral("F8"));
    const QSignalSpy reported(cell, &CTableLineEdit::signal_editFinished);
    QAccessibleInterface* const seen = accessible(cell);
    QVERIFY(!seen->editableTextInterface());
    QVERIFY(!seen->valueInterface());
    for (const auto what : {QAccessible::Value, QAccessible::Name, QAccessible::Description})
        seen->setText(what, text);
    const QStringList actions = seen->actionInterface()->actionNames();
    for (const QString& action : actions)
        seen->actionInterface()->doAction(action);
    QCOMPARE(cell->text(), QStringLiteral("F8"));
    QCOMPARE(reported.size(), 0);
}

void tst_TableLineEdit::assistiveTechnologyReadsTheText()
{
    Host host;
    QVERIFY(host.active);
    host.editor->setText(QStringLiteral("Ctrl+W"));
    QAccessibleTextInterface* const read = accessible(host.editor)->textInterface();
    QVERIFY(read);
    QCOMPARE(read->characterCount(), 6);
    QCOMPARE(read->text(0, 6), QStringLiteral("Ctrl+W"));
    QCOMPARE(read->text(5, 6), QStringLiteral("W"));
    int start = -1;
    int end = -1;
    QCOMPARE(read->textAtOffset(2, QAccessible::CharBoundary, &start, &end), QStringLiteral("r"));
    QCOMPARE(start, 2);
    QCOMPARE(end, 3);
    QCOMPARE(read->attributes(3, &start, &end), QString());
    QCOMPARE(start, 0);
    QCOMPARE(end, 6);

    // Side by side, each as wide as it is drawn, all inside the cell; wherever the cursor stands.
    const QRect cell(host.editor->mapToGlobal(QPoint(0, 0)), host.editor->size());
    for (const int cursor : {0, 3, 6}) {
        read->setCursorPosition(cursor);
        QCOMPARE(read->cursorPosition(), cursor);
        for (int offset = 0; offset < 6; ++offset) {
            const QRect place = read->characterRect(offset);
            QVERIFY(cell.contains(place));
            QVERIFY(place.width() > 1);
            if (offset > 0)
                QCOMPARE(place.left(), read->characterRect(offset - 1).right() + 1);
            QCOMPARE(read->offsetAtPoint(place.topLeft() + QPoint(1, place.height() / 2)), offset);
        }
    }
    read->scrollToSubstring(2, 4);
    QCOMPARE(host.editor->text(), QStringLiteral("Ctrl+W"));
}

void tst_TableLineEdit::assistiveTechnologyReadsWords_data()
{
    QTest::addColumn<QString>("chord");
    for (const char* const chord : {"Ctrl+W", "+", "-", "空", "Ctrl+ "})
        QTest::newRow(chord) << QString::fromUtf8(chord);
}

// A chord is one word and one line. Asked about the place behind it, or about one that is no word,
// the toolkit's own line edits never answer.
void tst_TableLineEdit::assistiveTechnologyReadsWords()
{
    QFETCH(QString, chord);
    CTableLineEdit editor(0);
    editor.setText(chord);
    const QAccessibleTextInterface& read = *accessible(&editor)->textInterface();
    for (const auto boundary :
         {QAccessible::WordBoundary, QAccessible::SentenceBoundary, QAccessible::LineBoundary}) {
        for (int offset = -1; offset <= chord.size(); ++offset) {
            int start = -1;
            int end = -1;
            QCOMPARE(read.textAtOffset(offset, boundary, &start, &end), chord);
            QCOMPARE(start, 0);
            QCOMPARE(end, chord.size());
        }
        for (const int outside : {-2, chord.size() + 1}) {
            int start = 0;
            int end = 0;
            QCOMPARE(read.textAtOffset(outside, boundary, &start, &end), QString());
            QCOMPARE(start, -1);
            QCOMPARE(end, -1);
        }
    }
    int start = -1;
    int end = -1;
    QCOMPARE(read.textAtOffset(0, QAccessible::CharBoundary, &start, &end), chord.left(1));
    editor.clear();
    QCOMPARE(read.textAtOffset(0, QAccessible::WordBoundary, &start, &end), QString());
}

void tst_TableLineEdit::assistiveTechnologySelectsText()
{
    CTableLineEdit editor(0);
    editor.setText(QStringLiteral("Ctrl+W"));
    QAccessibleTextInterface* const read = accessible(&editor)->textInterface();
    int start = -1;
    int end = -1;
    QCOMPARE(read->selectionCount(), 0);
    read->selection(0, &start, &end);
    QCOMPARE(start, 0);
    QCOMPARE(end, 0);
    read->addSelection(1, 4);
    QCOMPARE(read->selectionCount(), 1);
    read->selection(0, &start, &end);
    QCOMPARE(start, 1);
    QCOMPARE(end, 4);
    read->setSelection(1, 0, 2); // there is one selection only
    read->removeSelection(1);
    QCOMPARE(editor.selectedText(), QStringLiteral("trl"));
    read->setSelection(0, 4, 6);
    QCOMPARE(editor.selectedText(), QStringLiteral("+W"));
    read->removeSelection(0);
    QCOMPARE(editor.selectedText(), QString());
    QCOMPARE(editor.text(), QStringLiteral("Ctrl+W"));
}

void tst_TableLineEdit::editFinishedReportsNothing()
{
    Host host;
    QVERIFY(host.active);
    host.editor->setText(QStringLiteral("F8"));
    const QSignalSpy reported(host.editor, &CTableLineEdit::signal_editFinished);
    host.editor->EditFinished();
    Q_EMIT host.editor->editingFinished();
    host.other->setFocus();
    QVERIFY(!host.editor->hasFocus());
    QCOMPARE(reported.size(), 0);
    QCOMPARE(host.editor->text(), QStringLiteral("F8"));
}

void tst_TableLineEdit::editFinishedIsConnected()
{
    CTableLineEdit editor(0);
    QVERIFY(QObject::disconnect(&editor, &QLineEdit::editingFinished, &editor,
                                &CTableLineEdit::EditFinished));
    QVERIFY(!QObject::disconnect(&editor, &QLineEdit::editingFinished, &editor,
                                 &CTableLineEdit::EditFinished));
}

TRADECONFIG_TEST_MAIN(tst_TableLineEdit)
#include "tst_TableLineEdit.moc"
