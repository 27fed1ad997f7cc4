#include "support/RecordingSkin.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"

#include <QPixmap>
#include <QStackedWidget>

namespace {

constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

void clickAndLeave(QWidget& widget, const QPoint& at)
{
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&widget, &leave);
}

struct Fixture {
    explicit Fixture(int pageMode = 2)
        : dialog([pageMode](FakeTrade& trade) { trade.parm().uiPageMode = pageMode; })
    {
        dialog->show();
        shown = QTest::qWaitForWindowActive(dialog.get());
    }

    void key(Qt::Key which, Qt::KeyboardModifiers modifiers) const
    {
        QTest::keyClick(QApplication::focusWidget(), which, modifiers);
    }

    void chooseGroup(int group) const
    {
        clickAndLeave(*dialog->switchBar, QPoint(219 * group + 100, 30));
    }

    QStackedWidget& top() const { return *dialog->ui.stackedWidget; }
    CNavWidget& list(int group) const
    {
        CNavWidget* const lists[]
            = {dialog->ui.widget_system, dialog->ui.widget_trade, dialog->ui.widget_shortcut};
        return *lists[group];
    }
    QStackedWidget& stack(int group) const
    {
        QStackedWidget* const stacks[]
            = {dialog->ui.stackedWidget_system, dialog->ui.stackedWidget_trade,
               dialog->ui.stackedWidget_shortcut};
        return *stacks[group];
    }
    CTableLineEdit& cell(int row) const
    {
        return *qobject_cast<CTableLineEdit*>(dialog->ui.tableWidget_shortcut->cellWidget(row, 1));
    }
    QString selectedGroup() const
    {
        QString label;
        dialog->switchBar->GetCurSel(label);
        return label;
    }

    TestDialog dialog;
    bool shown = false;
};

QStringList painted(QWidget& widget)
{
    RecordingSkin::takeCalls();
    QPixmap target(widget.size());
    widget.render(&target);
    return RecordingSkin::takeCalls();
}

} // namespace

class tst_PageKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void turnsGroups_data();
    void turnsGroups();
    void turnsPages_data();
    void turnsPages();
    void showsAGroupAsAfterAClick();
    void showsAnEntryAsAfterAClick();
    void turnsFromEveryField_data();
    void turnsFromEveryField();
    void leavesTheKeysToAHotkeyCell_data();
    void leavesTheKeysToAHotkeyCell();
    void putsTheFocusIntoNoCell_data();
    void putsTheFocusIntoNoCell();
    void keepsTheFocusOfOtherPages();
};

void tst_PageKeys::init() { RecordingSkin::reset(); }

void tst_PageKeys::turnsGroups_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("label");
    const QString system = QStringLiteral("系统设置");
    const QString trade = QStringLiteral("交易设置");
    const QString shortcut = QStringLiteral("快捷键设置");
    QTest::newRow("first to second") << 0 << int(Qt::Key_Tab) << int(ctrl) << 1 << trade;
    QTest::newRow("second to third") << 1 << int(Qt::Key_Tab) << int(ctrl) << 2 << shortcut;
    QTest::newRow("third to first") << 2 << int(Qt::Key_Tab) << int(ctrl) << 0 << system;
    QTest::newRow("back to third") << 0 << int(Qt::Key_Backtab) << int(ctrlShift) << 2 << shortcut;
    QTest::newRow("back to second") << 2 << int(Qt::Key_Backtab) << int(ctrlShift) << 1 << trade;
    QTest::newRow("back to first") << 1 << int(Qt::Key_Backtab) << int(ctrlShift) << 0 << system;
}

void tst_PageKeys::turnsGroups()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, to);
    QFETCH(QString, label);
    Fixture fixture;
    QVERIFY(fixture.shown);
    fixture.chooseGroup(from);
    QCOMPARE(fixture.top().currentIndex(), from);

    fixture.key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(fixture.top().currentIndex(), to);
    QCOMPARE(fixture.selectedGroup(), label);
    for (int group = 0; group < 3; ++group)
        QCOMPARE(fixture.stack(group).currentIndex(), 0);
}

void tst_PageKeys::turnsPages_data()
{
    QTest::addColumn<int>("pageMode");
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("key");
    QTest::addColumn<QVector<int>>("visited");
    const int down = Qt::Key_PageDown;
    const int up = Qt::Key_PageUp;
    QTest::newRow("system, down") << 2 << 0 << down << QVector<int>{1, 2, 0, 1};
    QTest::newRow("system, up") << 2 << 0 << up << QVector<int>{2, 1, 0, 2};
    QTest::newRow("system without the third") << 0 << 0 << down << QVector<int>{1, 0, 1};
    QTest::newRow("trade: the listed two") << 2 << 1 << down << QVector<int>{1, 0, 1};
    QTest::newRow("trade, up") << 2 << 1 << up << QVector<int>{1, 0, 1};
    QTest::newRow("shortcuts, down") << 2 << 2 << down << QVector<int>{1, 2, 0};
    QTest::newRow("shortcuts, up") << 2 << 2 << up << QVector<int>{2, 1, 0};
}

void tst_PageKeys::turnsPages()
{
    QFETCH(int, pageMode);
    QFETCH(int, group);
    QFETCH(int, key);
    QFETCH(QVector<int>, visited);
    Fixture fixture(pageMode);
    QVERIFY(fixture.shown);
    fixture.chooseGroup(group);
    for (const int page : visited) {
        fixture.key(Qt::Key(key), ctrl);
        QCOMPARE(fixture.stack(group).currentIndex(), page);
        QCOMPARE(fixture.list(group).selected, page);
        QCOMPARE(fixture.top().currentIndex(), group);
        // The groups that are not shown stay where they are.
        for (int other = 0; other < 3; ++other) {
            if (other != group)
                QCOMPARE(fixture.list(other).selected, 0);
        }
    }
}

void tst_PageKeys::showsAGroupAsAfterAClick()
{
    Fixture byKey;
    Fixture byMouse;
    byMouse.chooseGroup(1);
    byKey.dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(byKey.dialog.get()));
    const QStringList before = painted(*byKey.dialog->switchBar);
    byKey.key(Qt::Key_Tab, ctrl);
    QVERIFY(painted(*byKey.dialog->switchBar) != before);
    QCOMPARE(painted(*byKey.dialog->switchBar), painted(*byMouse.dialog->switchBar));
}

void tst_PageKeys::showsAnEntryAsAfterAClick()
{
    Fixture byKey;
    Fixture byMouse;
    clickAndLeave(byMouse.list(0), QPoint(60, 75));
    byKey.dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(byKey.dialog.get()));
    const QStringList before = painted(byKey.list(0));
    byKey.key(Qt::Key_PageDown, ctrl);
    QVERIFY(painted(byKey.list(0)) != before);
    QCOMPARE(painted(byKey.list(0)), painted(byMouse.list(0)));
}

void tst_PageKeys::turnsFromEveryField_data()
{
    QTest::addColumn<QString>("field");
    for (const char* const name : {"comboBox_system_buy_type", "lineEdit_system_lockTime",
                                   "pushButton_cancle", "pushButton_confirm"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_PageKeys::turnsFromEveryField()
{
    QFETCH(QString, field);
    Fixture fixture;
    QVERIFY(fixture.shown);
    QWidget* const widget = fixture.dialog->findChild<QWidget*>(field);
    widget->setFocus();
    QCOMPARE(QApplication::focusWidget(), widget);
    fixture.key(Qt::Key_PageDown, ctrl);
    QCOMPARE(fixture.stack(0).currentIndex(), 1);
    fixture.key(Qt::Key_Tab, ctrl);
    QCOMPARE(fixture.top().currentIndex(), 1);
    QCOMPARE(fixture.dialog.trade.saves, 0);
}

void tst_PageKeys::leavesTheKeysToAHotkeyCell_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("next child") << int(Qt::Key_Tab) << int(ctrl) << QStringLiteral("Ctrl+Tab");
    QTest::newRow("page down") << int(Qt::Key_PageDown) << int(ctrl)
                               << QStringLiteral("Ctrl+PgDown");
    QTest::newRow("page up") << int(Qt::Key_PageUp) << int(ctrl) << QStringLiteral("Ctrl+PgUp");
}

void tst_PageKeys::leavesTheKeysToAHotkeyCell()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    Fixture fixture;
    QVERIFY(fixture.shown);
    fixture.chooseGroup(2);
    CTableLineEdit& cell = fixture.cell(3);
    cell.setFocus();
    fixture.key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(cell.text(), text);
    QCOMPARE(fixture.top().currentIndex(), 2);
    QCOMPARE(fixture.stack(2).currentIndex(), 0);
    QVERIFY(cell.hasFocus());
}

void tst_PageKeys::putsTheFocusIntoNoCell_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("turned by keys") << false;
    QTest::newRow("turned by clicks") << true;
}

void tst_PageKeys::putsTheFocusIntoNoCell()
{
    QFETCH(bool, byMouse);
    Fixture fixture;
    QVERIFY(fixture.shown);
    const QVector<QByteArray> stored{fixture.dialog.trade.text(&TradeParm::stockShortcuts, 0),
                                     fixture.dialog.trade.text(&TradeParm::creditShortcuts, 0)};
    // The focus is in the page that goes away, then in the one that comes.
    QVERIFY(fixture.dialog->ui.page->isAncestorOf(QApplication::focusWidget()));
    if (byMouse)
        fixture.chooseGroup(2);
    else
        fixture.key(Qt::Key_Backtab, ctrlShift);
    QCOMPARE(fixture.top().currentIndex(), 2);
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(fixture.stack(2).currentIndex(), page);
        QVERIFY(!qobject_cast<CTableLineEdit*>(QApplication::focusWidget()));
        fixture.key(Qt::Key_X, Qt::NoModifier);
        // From there Tab goes to the first cell, and the keys turn on.
        fixture.key(Qt::Key_Tab, Qt::NoModifier);
        const auto* const cell = qobject_cast<CTableLineEdit*>(QApplication::focusWidget());
        if (page < 2) {
            QVERIFY(cell);
            QCOMPARE(cell->row, 0);
            QCOMPARE(cell->text().toLocal8Bit(), stored.at(page));
        }
        if (byMouse) {
            clickAndLeave(fixture.list(2), QPoint(60, 50 * (page + 1) + 25));
        } else {
            fixture.stack(2).currentWidget()->setFocus();
            fixture.key(Qt::Key_PageDown, ctrl);
        }
    }
}

void tst_PageKeys::keepsTheFocusOfOtherPages()
{
    Fixture fixture;
    QVERIFY(fixture.shown);
    fixture.key(Qt::Key_Tab, ctrl);
    // The toolkit puts it into the page that comes.
    QVERIFY(fixture.dialog->ui.page_6->isAncestorOf(QApplication::focusWidget()));
}

TRADECONFIG_TEST_MAIN(tst_PageKeys)
#include "tst_PageKeys.moc"
