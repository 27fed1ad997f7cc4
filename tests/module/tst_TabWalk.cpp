#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"

#include <QStackedWidget>

namespace {

const QStringList buttons{QStringLiteral("pushButton_cancle"),
                          QStringLiteral("pushButton_confirm")};

QString nameOf(const QWidget* widget)
{
    const auto* const cell = qobject_cast<const CTableLineEdit*>(widget);
    if (cell)
        return QStringLiteral("cell %1").arg(cell->row);
    return widget ? widget->objectName() : QStringLiteral("nothing");
}

QStringList names(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* const name : list)
        result << QString::fromLatin1(name);
    return result;
}

QStringList cells(const QVector<int>& rows)
{
    QStringList result;
    for (const int row : rows)
        result << QStringLiteral("cell %1").arg(row);
    return result;
}

struct Fixture {
    Fixture(int group, int page)
        : dialog([](FakeTrade& trade) {
            trade.parm().uiPageMode = 2;
            trade.parm().splitEnabled = 1;
            trade.parm().splitStrategy = 1;
            trade.parm().starSplitEnabled = 1;
            trade.parm().starSplitStrategy = 4;
        })
    {
        QStackedWidget* const stacks[]
            = {dialog->ui.stackedWidget_system, dialog->ui.stackedWidget_trade,
               dialog->ui.stackedWidget_shortcut};
        dialog->ui.stackedWidget->setCurrentIndex(group);
        stacks[group]->setCurrentIndex(page);
        dialog->show();
        shown = QTest::qWaitForWindowActive(dialog.get());
        dialog.leaveField();
    }

    /// The next so many stops.
    QStringList walk(Qt::Key key, int stops) const
    {
        QStringList met;
        for (int stop = 0; stop < stops; ++stop) {
            QTest::keyClick(QApplication::focusWidget(), key,
                            key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            met << nameOf(QApplication::focusWidget());
        }
        return met;
    }

    TestDialog dialog;
    bool shown = false;
};

} // namespace

class tst_TabWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesRound_data();
    void comesRound();
    void skipsDisabledCells();
    void capturesNothingOnTheWay();
};

void tst_TabWalk::comesRound_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("basic settings")
        << 0 << 0
        << names({"comboBox_system_buy_type", "comboBox_system_sell_type",
                  "comboBox_system_defaultView", "lineEdit_system_lockTime"});
    QTest::newRow("linkage") << 0 << 1 << names({"comboBox_system_hqLink"});
    QTest::newRow("interface") << 0 << 2 << names({"spinBox_scale"});
    QTest::newRow("trade defaults")
        << 1 << 0
        << names({"comboBox_trade_buyPrice", "comboBox_trade_buyCount", "comboBox_trade_sellPrice",
                  "comboBox_trade_sellCount", "comboBox_trade_wt", "checkBox_trade_pk",
                  "comboBox_trade_lineEdit"});
    QTest::newRow("prompts") << 1 << 1
                             << names({"checkBox_trade_cancle", "checkBox_trade_wt",
                                       "checkBox_trade_wtDlg"});
    QTest::newRow("splitting") << 1 << 2
                               << names({"checkBox_trade_fc", "lineEdit_trade_baseCount",
                                         "comboBox_trade_split", "lineEdit_trade_high",
                                         "lineEdit_trade_low"});
    QTest::newRow("STAR splitting")
        << 1 << 3
        << names({"checkBox_trade_kc_fc", "lineEdit_trade_kc_baseCount", "comboBox_trade_kc_split",
                  "lineEdit_trade_kc_high", "lineEdit_trade_kc_desc", "comboBox_trade_kc_buyRise",
                  "pushButton_kc_buyRise", "comboBox_trade_kc_sellRise", "pushButton_kc_sellRise"});
    const QStringList everyCell = cells({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    QTest::newRow("stock hotkeys") << 2 << 0 << everyCell;
    QTest::newRow("credit hotkeys") << 2 << 1 << everyCell;
    QTest::newRow("global hotkeys, all disabled") << 2 << 2 << QStringList();
}

void tst_TabWalk::comesRound()
{
    QFETCH(int, group);
    QFETCH(int, page);
    QFETCH(QStringList, stops);
    Fixture fixture(group, page);
    QVERIFY(fixture.shown);

    const QStringList round = stops + buttons;
    QCOMPARE(fixture.walk(Qt::Key_Tab, round.size()), round);
    QStringList back = stops + buttons.mid(0, 1);
    std::reverse(back.begin(), back.end());
    back << buttons.at(1);
    QCOMPARE(fixture.walk(Qt::Key_Backtab, back.size()), back);
}

void tst_TabWalk::skipsDisabledCells()
{
    Fixture fixture(2, 0);
    QVERIFY(fixture.shown);
    for (const int row : {0, 4, 5, 12})
        fixture.dialog->ui.tableWidget_shortcut->cellWidget(row, 1)->setEnabled(false);
    const QStringList round = cells({1, 2, 3, 6, 7, 8, 9, 10, 11}) + buttons;
    QCOMPARE(fixture.walk(Qt::Key_Tab, round.size()), round);
}

void tst_TabWalk::capturesNothingOnTheWay()
{
    Fixture fixture(2, 0);
    QVERIFY(fixture.shown);
    const QStringList before = fixture.dialog->stockShortcutTexts;
    fixture.walk(Qt::Key_Tab, 15);
    fixture.walk(Qt::Key_Backtab, 15);
    QCOMPARE(fixture.dialog->stockShortcutTexts, before);
    QVERIFY(fixture.dialog->inputValidity.isEmpty());
}

TRADECONFIG_TEST_MAIN(tst_TabWalk)
#include "tst_TabWalk.moc"
