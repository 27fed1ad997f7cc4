#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"
#include "x11/Xdotool.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// A window with a field and a hotkey cell that has the focus.
class Cells : public QWidget {
public:
    Cells()
        : field(new QLineEdit(this))
        , cell(new CTableLineEdit(0, this))
    {
        auto* const column = new QVBoxLayout(this);
        column->addWidget(field);
        column->addWidget(cell);
        show();
        exposed = QTest::qWaitForWindowExposed(this);
        activate(*this);
        cell->setFocus();
    }
    ~Cells() override
    {
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
    }

    QLineEdit* field;
    CTableLineEdit* cell;
    bool exposed = false;
};

/// A key that the user holds down.
class Held {
public:
    explicit Held(const QString& key)
        : m_key(key)
    {
        xdotool({QStringLiteral("keydown"), m_key});
    }
    ~Held() { release(); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    void release()
    {
        if (!m_key.isEmpty())
            xdotool({QStringLiteral("keyup"), m_key});
        m_key.clear();
    }

private:
    QString m_key;
};

} // namespace

/// The widget kit under the keys and the mouse of a real window system.
class tst_KitOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keysThatOthersWouldTake_data();
    void keysThatOthersWouldTake();
    void rightClickPastesNothing();
    void keyHeldInTheCell();
    void keyHeldSinceElsewhere();
};

void tst_KitOnScreen::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void tst_KitOnScreen::keysThatOthersWouldTake_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* key, const char* text) {
        QTest::newRow(text) << QString::fromLatin1(key) << QString::fromLatin1(text);
    };
    row("Menu", "Menu");
    row("ctrl+Menu", "Ctrl+Menu");
    row("shift+Menu", "Shift+Menu");
    row("alt+Menu", "Alt+Menu");
    row("ctrl+shift+Menu", "Ctrl+Shift+Menu");
    row("F10", "F10");
    row("shift+F10", "Shift+F10");
    row("F1", "F1");
    row("shift+F1", "Shift+F1");
    row("146", "Help"); // by its code: "Help" is a command of the program that presses it
    row("shift+146", "Shift+Help");
    row("alt+f", "Alt+F");
    row("ctrl+Tab", "Ctrl+Tab");
    row("XF86Back", "Back");
    row("XF86Copy", "Copy");
    row("XF86Paste", "Paste");
    row("XF86AudioRaiseVolume", "Volume Up");
    row("XF86AudioPlay", "Media Play");
}

void tst_KitOnScreen::keysThatOthersWouldTake()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    Cells window;
    QVERIFY(window.exposed);
    QTRY_VERIFY_WITH_TIMEOUT(window.cell->hasFocus(), patience);
    const QSignalSpy reported(window.cell, &CTableLineEdit::signal_editFinished);
    press({key});
    QTRY_COMPARE_WITH_TIMEOUT(window.cell->text(), text, patience);
    QCOMPARE(reported.size(), 1);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(window.cell->hasFocus());
}

void tst_KitOnScreen::rightClickPastesNothing()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    Cells window;
    QVERIFY(window.exposed);
    window.cell->setText(QStringLiteral("F8"));
    click(*window.cell);
    QStringList rightClick = clickAt(*window.cell, window.cell->rect().center());
    rightClick.last() = QStringLiteral("3");
    xdotool(rightClick);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget(), patience);
    // Its keys are the menu's: the letter of "Paste" and Return do nothing to the cell.
    press({QStringLiteral("p"), QStringLiteral("Return"), QStringLiteral("Escape")});
    QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), patience);
    QCOMPARE(window.cell->text(), QStringLiteral("F8"));
}

void tst_KitOnScreen::keyHeldInTheCell()
{
    Cells window;
    QVERIFY(window.exposed);
    QTRY_VERIFY_WITH_TIMEOUT(window.cell->hasFocus(), patience);
    const QSignalSpy reported(window.cell, &CTableLineEdit::signal_editFinished);
    Held one(QStringLiteral("1"));
    QTRY_VERIFY_WITH_TIMEOUT(reported.size() >= 3, patience);
    QCOMPARE(window.cell->text(), QStringLiteral("1"));
    // The same key goes on, as another character.
    const Held shift(QStringLiteral("Shift_L"));
    QTRY_COMPARE_WITH_TIMEOUT(window.cell->text(), QStringLiteral("Shift+!"), patience);
}

void tst_KitOnScreen::keyHeldSinceElsewhere()
{
    Cells window;
    QVERIFY(window.exposed);
    window.cell->setText(QStringLiteral("F8"));
    window.field->setFocus();
    QTRY_VERIFY_WITH_TIMEOUT(window.field->hasFocus(), patience);
    const QSignalSpy reported(window.cell, &CTableLineEdit::signal_editFinished);
    Held held(QStringLiteral("q"));
    QTRY_VERIFY_WITH_TIMEOUT(window.field->text().size() >= 3, patience);
    window.cell->setFocus();
    // It repeats itself every 40 ms.
    QTest::qWait(200);
    {
        const Held shift(QStringLiteral("Shift_L"));
        QTest::qWait(200);
    }
    QCOMPARE(window.cell->text(), QStringLiteral("F8"));
    QCOMPARE(reported.size(), 0);
    // Pressed anew it counts.
    held.release();
    press({QStringLiteral("q")});
    QTRY_COMPARE_WITH_TIMEOUT(window.cell->text(), QStringLiteral("Q"), patience);
    QCOMPARE(reported.size(), 1);
}

TRADECONFIG_TEST_MAIN(tst_KitOnScreen)
#include "tst_KitOnScreen.moc"
