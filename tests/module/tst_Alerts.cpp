#include "support/KeyText.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"

#include <QAccessible>

// What assistive technology is told while marks come and go.
class tst_Alerts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aConflictIsAnnounced_data();
    void aConflictIsAnnounced();
    void globalHotkey();
    void nothingChanged();
    void refusedQuantity_data();
    void refusedQuantity();
    void acceptedQuantity();
    void aCompanionThatIsClearedIsExplainedNoMore();
    void theTipIsAnAlert();
    void nobodyListens();
};

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

bool someoneListens = true;

// One line an alert or a changed description of a cell: the event's name, the name and the
// description of what it is about.
QStringList& told()
{
    static QStringList lines;
    return lines;
}

QStringList takeTold() { return std::exchange(told(), {}); }

void capture(const QTableWidget& table, int row, const QString& key)
{
    auto* const editor = qobject_cast<CTableLineEdit*>(table.cellWidget(row, 1));
    QVERIFY(editor);
    editor->setText(key);
    told().clear();
    Q_EMIT editor->signal_editFinished(row, key);
}

QString keyOf(const QTableWidget& table, int row)
{
    return qobject_cast<QLineEdit*>(table.cellWidget(row, 1))->text();
}

void enter(QLineEdit& field, const char* number)
{
    field.setText(text(number));
    QFocusEvent leave(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field, &leave);
}

} // namespace

// No platform plugin of a test run can be told that someone listens: these stand in for the
// toolkit's own. Like them, they look the interface up that an event is about.
bool QAccessible::isActive() { return someoneListens; }

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    const bool ofCell = qobject_cast<CTableLineEdit*>(event->object());
    if (event->type() != QAccessible::Alert
        && (event->type() != QAccessible::DescriptionChanged || !ofCell))
        return;
    const QAccessibleInterface* const about = event->accessibleInterface();
    QVERIFY(about && about->isValid());
    QStringList line{QLatin1String(qAccessibleEventString(event->type())),
                     about->text(QAccessible::Name), about->text(QAccessible::Description)};
    line.removeAll(QString());
    told() << line.join(QLatin1Char(' '));
}

void tst_Alerts::init()
{
    someoneListens = true;
    told().clear();
}

void tst_Alerts::aConflictIsAnnounced_data()
{
    QTest::addColumn<bool>("credit");
    QTest::newRow("ordinary") << false;
    QTest::newRow("credit") << true;
}

void tst_Alerts::aConflictIsAnnounced()
{
    QFETCH(bool, credit);
    const TestDialog dialog;
    QTableWidget& table
        = credit ? *dialog->ui.tableWidget_credit : *dialog->ui.tableWidget_shortcut;
    const QString own = keyOf(table, 0);
    capture(table, 0, keyOf(table, 1));
    QCOMPARE(takeTold(),
             (QStringList{text("DescriptionChanged 买入股票 与卖出股票重复"),
                          text("Alert 买入股票 与卖出股票重复")}));
    // Another one in its place.
    capture(table, 0, keyOf(table, 2));
    QCOMPARE(takeTold(),
             (QStringList{text("DescriptionChanged 买入股票 与撤单重复"),
                          text("Alert 买入股票 与撤单重复")}));
    capture(table, 0, own);
    QCOMPARE(takeTold(), QStringList{text("DescriptionChanged 买入股票 正常")});
}

void tst_Alerts::globalHotkey()
{
    const TestDialog dialog;
    capture(*dialog->ui.tableWidget_shortcut, 3, text("F5"));
    QCOMPARE(takeTold(),
             (QStringList{text("DescriptionChanged 查询 F5为全局快捷键！"),
                          text("Alert 查询 F5为全局快捷键！")}));
}

void tst_Alerts::nothingChanged()
{
    const TestDialog dialog;
    QTableWidget& table = *dialog->ui.tableWidget_shortcut;
    capture(table, 0, keyText("Ctrl+Alt+J"));
    QCOMPARE(takeTold(), QStringList());
    const QString taken = keyOf(table, 1);
    capture(table, 0, taken);
    QCOMPARE(takeTold().size(), 2);
    capture(table, 0, taken);
    QCOMPARE(takeTold(), QStringList());
    capture(*dialog->ui.tableWidget_credit, 4, QString());
    QCOMPARE(takeTold(), QStringList());
}

void tst_Alerts::refusedQuantity_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* field, const char* number, const char* reason) {
        QTest::newRow(field) << text(field) << text(number) << text(reason);
    };
    row("lineEdit_trade_baseCount", "50", "不能小于100股");
    row("lineEdit_trade_high", "150", "上限不能小于下限或递减数量");
    row("lineEdit_trade_low", "2000", "不能大于上限");
    row("lineEdit_trade_kc_baseCount", "99", "不能小于100股");
    row("lineEdit_trade_kc_low", "2000", "不能大于上限");
}

void tst_Alerts::refusedQuantity()
{
    QFETCH(QString, field);
    QFETCH(QString, number);
    QFETCH(QString, reason);
    const TestDialog dialog([](FakeTrade& trade) {
        TradeParm& parm = trade.parm();
        parm.splitMaxQty = parm.starSplitMaxQty = 1000;
        parm.splitMinQty = parm.starSplitMinQty = 200;
        parm.splitStepQty = parm.starSplitStepQty = 200;
        parm.starSplitStrategy = 3;
    });
    auto& edit = dialog.find<QLineEdit>(qPrintable(field));
    told().clear();
    for (int times = 0; times < 2; ++times) {
        // The tip comes up anew each time.
        enter(edit, qPrintable(number));
        QCOMPARE(takeTold(), QStringList{text("Alert ") + reason});
        QCOMPARE(edit.accessibleDescription(), reason);
    }
    enter(edit, "1000");
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(edit.accessibleDescription(), QString());
}

void tst_Alerts::acceptedQuantity()
{
    const TestDialog dialog;
    QLineEdit& edit = *dialog->ui.lineEdit_trade_baseCount;
    enter(edit, "500");
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(edit.accessibleDescription(), QString());
}

void tst_Alerts::aCompanionThatIsClearedIsExplainedNoMore()
{
    const TestDialog dialog([](FakeTrade& trade) { trade.parm().splitMaxQty = 1000; });
    QLineEdit& lower = *dialog->ui.lineEdit_trade_low;
    enter(lower, "2000");
    QCOMPARE(lower.accessibleDescription(), text("不能大于上限"));
    enter(*dialog->ui.lineEdit_trade_high, "3000");
    QCOMPARE(lower.styleSheet(), text("color:green"));
    QCOMPARE(lower.accessibleDescription(), QString());
}

void tst_Alerts::theTipIsAnAlert()
{
    CTipLabel tip(text("first"), true, nullptr);
    const QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(&tip);
    QCOMPARE(known->role(), QAccessible::AlertMessage);
    QCOMPARE(known->text(QAccessible::Name), text("first"));
    QCOMPARE(known->text(QAccessible::Description), QString());
    tip.SetMessageLabel(text("second"));
    QCOMPARE(known->text(QAccessible::Name), text("second"));
    tip.setAccessibleName(text("own"));
    QCOMPARE(known->text(QAccessible::Name), text("own"));
}

void tst_Alerts::nobodyListens()
{
    someoneListens = false;
    const TestDialog dialog;
    QTableWidget& table = *dialog->ui.tableWidget_shortcut;
    capture(table, 0, keyOf(table, 1));
    enter(*dialog->ui.lineEdit_trade_baseCount, "50");
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(dialog->ui.lineEdit_trade_baseCount->accessibleDescription(), text("不能小于100股"));
}

TRADECONFIG_TEST_MAIN(tst_Alerts)
#include "tst_Alerts.moc"
