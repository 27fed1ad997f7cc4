#include "support/TestMain.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/MessageBox.h"
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
        exposed = QTest::qWaitForWindowExposed(this, patience);
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

/// Where the window really is, whatever the toolkit believes.
QPoint placeOf(const QWidget& window)
{
    QProcess process;
    process.start(QStringLiteral("xwininfo"),
                  {QStringLiteral("-id"), QString::number(window.winId())});
    process.waitForFinished(patience);
    const QString told = QString::fromLatin1(process.readAllStandardOutput());
    const auto value = [&told](const QString& label) {
        return told.section(label, 1).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
    };
    return {value(QStringLiteral("Absolute upper-left X:")),
            value(QStringLiteral("Absolute upper-left Y:"))};
}

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
    void boxDraggedAsSoonAsItIsShown_data();
    void boxDraggedAsSoonAsItIsShown();
    void boxNarrowedByTheWindowManager();
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

void tst_KitOnScreen::boxDraggedAsSoonAsItIsShown_data()
{
    QTest::addColumn<bool>("atOnce"); // or step by step
    for (int round = 1; round <= 10; ++round) {
        QTest::addRow("at once %d", round) << true;
        QTest::addRow("in steps %d", round) << false;
    }
}

void tst_KitOnScreen::boxDraggedAsSoonAsItIsShown()
{
    QFETCH(bool, atOnce);
    CMessageBox box(nullptr, QMessageBox::Question,
                    QStringLiteral("部分修改需要重启后生效，确定现在重启吗？"),
                    QStringLiteral("tradeclient"), QMessageBox::Yes | QMessageBox::No, -1);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box, patience));
    const QPoint before = placeOf(box);
    QVERIFY(before.x() > 100 && before.y() > 100); // the window manager's choice, not the corner
    const QPoint grip = before + box.caption->mapTo(&box, box.caption->rect().center());
    const QStringList take{QStringLiteral("mousemove"), QString::number(grip.x()),
                           QString::number(grip.y()), QStringLiteral("mousedown"),
                           QStringLiteral("1")};
    const QStringList step{QStringLiteral("mousemove_relative"), QStringLiteral("20"),
                           QStringLiteral("10")};
    const QStringList leave{QStringLiteral("mouseup"), QStringLiteral("1")};
    if (atOnce) {
        xdotool(take + step + step + step + leave);
    } else {
        for (const QStringList& part : {take, step, step, step, leave}) {
            xdotool(part);
            QCoreApplication::processEvents();
        }
    }
    const auto isThere = [&] {
        const QPoint off = placeOf(box) - before - QPoint(60, 30);
        return qMax(qAbs(off.x()), qAbs(off.y())) <= 2;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isThere(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(box.caption->dragOffset.isNull(), patience);
    QVERIFY(isThere());
}

void tst_KitOnScreen::boxNarrowedByTheWindowManager()
{
    CMessageBox box(nullptr, QMessageBox::Question,
                    QStringLiteral("Some changes need a restart. ").repeated(5),
                    QStringLiteral("tradeclient"), QMessageBox::Yes | QMessageBox::No, -1);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box, patience));
    const QSize narrow(box.minimumWidth() + 20, 500);
    QVERIFY(narrow.width() < box.width() - 100);
    xdotool({QStringLiteral("windowsize"), QString::number(box.winId()),
             QString::number(narrow.width()), QString::number(narrow.height())});
    QTRY_COMPARE_WITH_TIMEOUT(box.size(), narrow, patience);
    const int needed = box.msg->heightForWidth(box.msg->width());
    QVERIFY(needed > 70 && needed < 400);
    QVERIFY(box.msg->height() >= needed);
}

TRADECONFIG_TEST_MAIN(tst_KitOnScreen)
#include "tst_KitOnScreen.moc"
