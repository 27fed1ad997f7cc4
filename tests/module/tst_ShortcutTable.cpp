#include "support/Contrast.h"
#include "support/KeyText.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCapture.h"
#include "support/ModalAnswer.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/dialog/ShortcutTable.h"

#include <QHeaderView>
#include <QStyleFactory>

namespace {

const QString red = QStringLiteral("color:red");
const QString green = QStringLiteral("color:green");
const QString normal = QStringLiteral("正常");

const QStringList functions
    = {QStringLiteral("买入股票"),     QStringLiteral("卖出股票"), QStringLiteral("撤单"),
       QStringLiteral("查询"),         QStringLiteral("持仓"),     QStringLiteral("成交"),
       QStringLiteral("委托"),         QStringLiteral("全撤"),     QStringLiteral("撤买"),
       QStringLiteral("撤卖"),         QStringLiteral("撤最后"),   QStringLiteral("批量下单-买入"),
       QStringLiteral("批量下单-卖出")};

// The keys of the record by table row, as FakeTrade::setDistinctShortcuts spreads them.
const QString lettersByRow = QStringLiteral("ABFGCDEHIJKLM");

/// One of the two tables that can be edited, and what the dialog keeps for it.
struct Side {
    explicit Side(bool isCredit)
        : credit(isCredit)
        , table(dialog.find<QTableWidget>(isCredit ? "tableWidget_credit" : "tableWidget_shortcut"))
        , texts(isCredit ? dialog->creditShortcutTexts : dialog->stockShortcutTexts)
        , modifier(isCredit ? Qt::AltModifier : Qt::ControlModifier)
        , key(isCredit ? QStringLiteral("creditShortcut") : QStringLiteral("stcokShortcut"))
        , otherKey(isCredit ? QStringLiteral("stcokShortcut") : QStringLiteral("creditShortcut"))
    {
    }

    CTableLineEdit& editor(int row) const
    {
        return *qobject_cast<CTableLineEdit*>(table.cellWidget(row, 1));
    }

    void capture(int row, Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(&editor(row), pressed, modifiers);
    }

    /// Calls the slot of the dialog that the editors are connected to.
    void finish(int row, const QString& text) const
    {
        if (credit)
            dialog->CellEditFinished2(row, text);
        else
            dialog->CellEditFinished(row, text);
    }

    QString status(int row) const { return table.item(row, 2)->text(); }
    QBrush statusBrush(int row) const { return table.item(row, 2)->foreground(); }
    bool hasEntry() const { return dialog->inputValidity.contains(key); }
    bool entry() const { return dialog->inputValidity.value(key, false); }

    /// The rows whose editors take keys.
    QList<int> enabledRows() const
    {
        QList<int> rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            if (editor(row).isEnabled())
                rows << row;
        }
        return rows;
    }

    TestDialog dialog;
    bool credit;
    QTableWidget& table;
    QStringList& texts;
    Qt::KeyboardModifier modifier; ///< that of all its keys in the record
    QString key;
    QString otherKey;
};

QList<int> allRows() { return {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}; }

} // namespace

class tst_ShortcutTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setUp_data();
    void setUp();
    void globalTableIsFixed();
    void headerIsReadable_data();
    void headerIsReadable();
    void headerFollowsThePalette();

    void firstDuplicate_data();
    void firstDuplicate();

    void noKeyNoEntry();
    void freeKeyIsAccepted_data();
    void freeKeyIsAccepted();
    void everyRowStoresItsOwnKey_data();
    void everyRowStoresItsOwnKey();
    void duplicateIsRefused_data();
    void duplicateIsRefused();
    void duplicatesAreFoundInAscendingOrder_data();
    void duplicatesAreFoundInAscendingOrder();
    void duplicateStaysStored_data();
    void duplicateStaysStored();
    void correctionEnablesAllAgain_data();
    void correctionEnablesAllAgain();
    void comparisonIsExact_data();
    void comparisonIsExact();
    void emptyTextShowsEmpty_data();
    void emptyTextShowsEmpty();
    void emptyTextKeepsAnError_data();
    void emptyTextKeepsAnError();
    void tablesAreNotCompared_data();
    void tablesAreNotCompared();
    void confirmRefusesAnError_data();
    void confirmRefusesAnError();

    void stockRefusesGlobalHotkeys_data();
    void stockRefusesGlobalHotkeys();
    void globalHotkeysAreExact();
    void globalHotkeyComesBeforeTheDuplicate();
    void creditTakesGlobalHotkeys();
    void stockChecksItsOwnKeyAgain();
    void creditIgnoresItsOwnKey();
    void creditAloneWritesTheList();

    void sendingEditorIsMarked_data();
    void sendingEditorIsMarked();
    void slotMarksItsRow_data();
    void slotMarksItsRow();

    void setLineEditEnableLeavesTheRow();

    void textsAreTranslated();
    void everyRowOfTheTableIsFilled_data();
    void everyRowOfTheTableIsFilled();
    void theCellIsStored_data();
    void theCellIsStored();
    void anotherCellIsStored_data();
    void anotherCellIsStored();
    void rowsOutsideTheTable_data();
    void rowsOutsideTheTable();
    void listShorterThanTheTable();
    void missingPartsAreLeftOut_data();
    void missingPartsAreLeftOut();
    void marksKeepTheFont();

private:
    static void bothTables();
};

void tst_ShortcutTable::bothTables()
{
    QTest::addColumn<bool>("credit");
    QTest::newRow("stock") << false;
    QTest::newRow("credit") << true;
}

void tst_ShortcutTable::setUp_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("rows");
    QTest::newRow("stock") << "tableWidget_shortcut" << 13;
    QTest::newRow("credit") << "tableWidget_credit" << 13;
    QTest::newRow("global") << "tableWidget_whole" << 2;
}

void tst_ShortcutTable::setUp()
{
    QFETCH(QString, name);
    QFETCH(int, rows);
    const TestDialog dialog;
    const QTableWidget& table = dialog.find<QTableWidget>(qPrintable(name));

    QCOMPARE(table.frameShape(), QFrame::NoFrame);
    const QHeaderView& header = *table.horizontalHeader();
    QVERIFY(!header.isEnabled());
    QCOMPARE(header.defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(header.styleSheet(),
             QStringLiteral("background-color:rgba(235,235,235,0.28);font:18px;"
                            "QHeaderView::section{font:18px '宋体'; padding-left:2px; }"));
    QCOMPARE(header.minimumHeight(), 37);
    QCOMPARE(header.maximumHeight(), 37);
    QVERIFY(table.verticalHeader()->isHidden());
    QCOMPARE(table.verticalHeader()->defaultSectionSize(), 37);
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);

    QCOMPARE(table.columnCount(), 3);
    const QStringList titles
        = {QStringLiteral("功能说明"), QStringLiteral("键位设定"), QStringLiteral("设置说明")};
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(header.sectionResizeMode(column), QHeaderView::Stretch);
        QCOMPARE(table.horizontalHeaderItem(column)->text(), titles.at(column));
        QCOMPARE(table.model()->headerData(column, Qt::Horizontal).toString(), titles.at(column));
    }

    QCOMPARE(table.rowCount(), rows);
    for (int row = 0; row < rows; ++row) {
        QCOMPARE(table.rowHeight(row), 37);
        QVERIFY(!(table.item(row, 0)->flags() & Qt::ItemIsEditable));
        QVERIFY(!(table.item(row, 2)->flags() & Qt::ItemIsEditable));
        QVERIFY(table.item(row, 0)->flags() & Qt::ItemIsEnabled);
        QCOMPARE(table.item(row, 2)->text(), normal);
        QCOMPARE(table.item(row, 2)->foreground().style(), Qt::NoBrush);
        const auto* const editor = qobject_cast<CTableLineEdit*>(table.cellWidget(row, 1));
        QVERIFY(editor);
        QCOMPARE(editor->row, row);
        QCOMPARE(editor->styleSheet(), QStringLiteral("border:0px;"));
        QCOMPARE(editor->font().pointSize(), 11);
        QCOMPARE(editor->isEnabled(), rows == 13);
        if (rows == 13)
            QCOMPARE(table.item(row, 0)->text(), functions.at(row));
    }
}

void tst_ShortcutTable::globalTableIsFixed()
{
    const TestDialog dialog;
    const QTableWidget& table = *dialog->ui.tableWidget_whole;
    QCOMPARE(table.item(0, 0)->text(), QStringLiteral("刷新"));
    QCOMPARE(table.item(1, 0)->text(), QStringLiteral("显示/隐藏交易模块"));
    auto* const refresh = qobject_cast<CTableLineEdit*>(table.cellWidget(0, 1));
    auto* const showHide = qobject_cast<CTableLineEdit*>(table.cellWidget(1, 1));
    QCOMPARE(refresh->text(), QStringLiteral("F5"));
    QCOMPARE(showHide->text(), QStringLiteral("F12"));

    // Nobody listens to these editors.
    Q_EMIT refresh->signal_editFinished(0, QStringLiteral("Ctrl+A"));
    QVERIFY(dialog->inputValidity.isEmpty());
    QCOMPARE(dialog->stockShortcutTexts.at(0), keyText("Ctrl+A"));
    QCOMPARE(table.item(0, 2)->text(), normal);
    QCOMPARE(table.item(0, 2)->foreground().style(), Qt::NoBrush);
}

void tst_ShortcutTable::headerIsReadable_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QString>("name");
    for (const char* const style : {"Fusion", "Windows"}) {
        for (const char* const name :
             {"tableWidget_shortcut", "tableWidget_credit", "tableWidget_whole"}) {
            for (const bool dark : {false, true})
                QTest::addRow("%s %s %s", style, dark ? "dark" : "light", name)
                    << QString::fromLatin1(style) << dark << QString::fromLatin1(name);
        }
    }
}

void tst_ShortcutTable::headerIsReadable()
{
    QFETCH(QString, style);
    QFETCH(bool, dark);
    QFETCH(QString, name);
    const QString styleBefore = QApplication::style()->objectName();
    const QPalette paletteBefore = QApplication::palette();
    QApplication::setStyle(QStyleFactory::create(style));
    if (dark) {
        QPalette palette(QColor(53, 53, 53), QColor(40, 40, 43));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, QColor(230, 230, 230));
        palette.setColor(QPalette::Base, QColor(30, 30, 30));
        QApplication::setPalette(palette);
    }

    {
        const TestDialog dialog;
        QTableWidget& table = dialog.find<QTableWidget>(qPrintable(name));
        dialog->show();
        dialog->SetCurrentIndex(2);
        auto* const pages = qobject_cast<QStackedWidget*>(table.parentWidget()->parentWidget());
        QVERIFY(pages);
        pages->setCurrentWidget(table.parentWidget());
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));

        const QHeaderView& header = *table.horizontalHeader();
        const QImage window = dialog->grab().toImage();
        const QPoint origin = header.mapTo(dialog.get(), QPoint());
        for (int column = 0; column < 3; ++column) {
            // Inside the section's borders.
            const QRect section(origin + QPoint(header.sectionViewportPosition(column) + 2, 3),
                                QSize(header.sectionSize(column) - 4, 31));
            const QRgb ground = window.pixel(section.right() - 4, section.center().y());
            QCOMPARE(luminance(ground) < 0.2, dark);
            int readable = 0;
            for (int y = section.top(); y <= section.bottom(); ++y) {
                for (int x = section.left(); x <= section.right(); ++x) {
                    if (contrast(window.pixel(x, y), ground) >= 4.5)
                        ++readable;
                }
            }
            // Four characters of 18 pixels leave some hundred pixels of strokes.
            QVERIFY2(readable > 150, qPrintable(QString::number(readable)));
            QVERIFY2(readable < section.width() * section.height() / 3,
                     qPrintable(QString::number(readable)));
        }
    }
    QApplication::setPalette(paletteBefore);
    QApplication::setStyle(QStyleFactory::create(styleBefore));
}

void tst_ShortcutTable::headerFollowsThePalette()
{
    const TestDialog dialog;
    const QTableWidget& table = *dialog->ui.tableWidget_shortcut;
    QPalette palette = dialog->palette();
    palette.setColor(QPalette::Button, QColor(1, 2, 3));
    palette.setColor(QPalette::ButtonText, QColor(250, 251, 252));
    dialog->setPalette(palette);
    const auto brush = [&table](int role) {
        return table.model()->headerData(0, Qt::Horizontal, role).value<QBrush>().color();
    };
    QCOMPARE(brush(Qt::BackgroundRole), QColor(1, 2, 3));
    QCOMPARE(brush(Qt::ForegroundRole), QColor(250, 251, 252));
}

void tst_ShortcutTable::firstDuplicate_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("found");

    const auto list
        = [](const char* texts) { return QString::fromLatin1(texts).split(QLatin1Char(' ')); };
    QTest::newRow("none") << list("A B C") << 0 << "D" << -1;
    QTest::newRow("only itself") << list("A B C") << 1 << "B" << -1;
    QTest::newRow("before") << list("A B C") << 2 << "A" << 0;
    QTest::newRow("after") << list("A B C") << 0 << "C" << 2;
    QTest::newRow("first of two") << list("A B B") << 0 << "B" << 1;
    QTest::newRow("first of two, around") << list("B A B") << 1 << "B" << 0;
    QTest::newRow("itself is skipped, not the next") << list("B B C") << 0 << "B" << 1;
    QTest::newRow("case matters") << list("F5 a") << 1 << "f5" << -1;
    QTest::newRow("no trimming") << list("F5 F1") << 1 << "F5 " << -1;
    QTest::newRow("row outside") << list("A B") << 7 << "B" << 1;
    QTest::newRow("no rows") << QStringList() << 0 << "A" << -1;
}

void tst_ShortcutTable::firstDuplicate()
{
    QFETCH(QStringList, texts);
    QFETCH(int, row);
    QFETCH(QString, text);
    QTEST(ShortcutTable::firstDuplicate(texts, row, text), "found");
}

void tst_ShortcutTable::noKeyNoEntry()
{
    const TestDialog dialog;
    QVERIFY(dialog->inputValidity.isEmpty());
    dialog->show();
    // Visiting a cell without pressing a key is no edit.
    auto* const editor = dialog->ui.tableWidget_shortcut->cellWidget(3, 1);
    editor->setFocus();
    dialog.leaveField();
    QVERIFY(dialog->inputValidity.isEmpty());
    QCOMPARE(editor->styleSheet(), QStringLiteral("border:0px;"));
}

void tst_ShortcutTable::freeKeyIsAccepted_data() { bothTables(); }

void tst_ShortcutTable::freeKeyIsAccepted()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.capture(4, Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(side.editor(4).text(), keyText("Ctrl+Shift+X"));
    QCOMPARE(side.texts.at(4), keyText("Ctrl+Shift+X"));
    QCOMPARE(side.editor(4).styleSheet(), green);
    QCOMPARE(side.status(4), normal);
    QCOMPARE(side.statusBrush(4), QBrush(QColor(0, 255, 0)));
    QVERIFY(side.hasEntry());
    QVERIFY(side.entry());
    QVERIFY(!side.dialog->inputValidity.contains(side.otherKey));
    QCOMPARE(side.dialog->inputValidity.size(), 1);
    QCOMPARE(side.enabledRows(), allRows());
    // No other row is touched.
    for (int row = 0; row < 13; ++row) {
        if (row == 4)
            continue;
        QCOMPARE(side.editor(row).styleSheet(), QStringLiteral("border:0px;"));
        QCOMPARE(side.statusBrush(row).style(), Qt::NoBrush);
        QCOMPARE(side.texts.at(row),
                 keyText((credit ? QStringLiteral("Alt+") : QStringLiteral("Ctrl+"))
                         + lettersByRow[row]));
    }
}

void tst_ShortcutTable::everyRowStoresItsOwnKey_data() { bothTables(); }

void tst_ShortcutTable::everyRowStoresItsOwnKey()
{
    QFETCH(bool, credit);
    const Side side(credit);
    for (int row = 0; row < 13; ++row)
        side.capture(row, Qt::Key(Qt::Key_A + row), Qt::ControlModifier | Qt::AltModifier);
    for (int row = 0; row < 13; ++row)
        QCOMPARE(side.texts.at(row),
                 keyText(QStringLiteral("Ctrl+Alt+") + QLatin1Char(char('A' + row))));
    side.dialog->WriteAllParm();
    QCOMPARE(side.dialog.trade.saves, 1);
    // By record entry: the record keeps another order of the functions than the tables.
    const QString lettersByEntry = QStringLiteral("ABEFGCDHIJKLM");
    const auto texts = credit ? &TradeParm::creditShortcuts : &TradeParm::stockShortcuts;
    for (int entry = 0; entry < 13; ++entry)
        QCOMPARE(side.dialog.trade.text(texts, entry),
                 keyText(QStringLiteral("Ctrl+Alt+") + lettersByEntry.at(entry)).toUtf8());
}

void tst_ShortcutTable::duplicateIsRefused_data() { bothTables(); }

void tst_ShortcutTable::duplicateIsRefused()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.capture(4, Qt::Key_A, side.modifier);
    QCOMPARE(side.editor(4).styleSheet(), red);
    QCOMPARE(side.status(4), QStringLiteral("与买入股票重复"));
    QCOMPARE(side.statusBrush(4), QBrush(QColor(255, 0, 0)));
    QVERIFY(side.hasEntry());
    QVERIFY(!side.entry());
    QVERIFY(!side.dialog->inputValidity.contains(side.otherKey));
    QCOMPARE(side.enabledRows(), QList<int>{4});
    // The row that had the key first is not marked.
    QCOMPARE(side.editor(0).styleSheet(), QStringLiteral("border:0px;"));
    QCOMPARE(side.status(0), normal);
    // The cells of the other table are not disabled.
    const Ui_CTradeConfigWidget& ui = side.dialog->ui;
    const QTableWidget* const other = credit ? ui.tableWidget_shortcut : ui.tableWidget_credit;
    QVERIFY(other->cellWidget(0, 1)->isEnabled());
}

void tst_ShortcutTable::duplicatesAreFoundInAscendingOrder_data() { bothTables(); }

void tst_ShortcutTable::duplicatesAreFoundInAscendingOrder()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.texts[9] = keyText("Ctrl+Alt+Q");
    side.texts[6] = keyText("Ctrl+Alt+Q");
    side.capture(12, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(side.status(12), QStringLiteral("与委托重复"));
    side.capture(2, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(side.status(2), normal); // disabled: no key reaches it
    side.editor(2).setEnabled(true);
    side.capture(2, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(side.status(2), QStringLiteral("与委托重复"));
}

void tst_ShortcutTable::duplicateStaysStored_data() { bothTables(); }

void tst_ShortcutTable::duplicateStaysStored()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.capture(4, Qt::Key_A, side.modifier);
    QCOMPARE(side.texts.at(4), keyText(credit ? "Alt+A" : "Ctrl+A"));
    QCOMPARE(side.editor(4).text(), side.texts.at(4));
}

void tst_ShortcutTable::correctionEnablesAllAgain_data() { bothTables(); }

void tst_ShortcutTable::correctionEnablesAllAgain()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.capture(4, Qt::Key_A, side.modifier);
    QCOMPARE(side.enabledRows(), QList<int>{4});
    // Another duplicate keeps the error and names the other row.
    side.capture(4, Qt::Key_B, side.modifier);
    QCOMPARE(side.status(4), QStringLiteral("与卖出股票重复"));
    QCOMPARE(side.enabledRows(), QList<int>{4});
    side.capture(4, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(side.editor(4).styleSheet(), green);
    QCOMPARE(side.status(4), normal);
    QCOMPARE(side.statusBrush(4), QBrush(QColor(0, 255, 0)));
    QVERIFY(side.entry());
    QCOMPARE(side.enabledRows(), allRows());
}

void tst_ShortcutTable::comparisonIsExact_data() { bothTables(); }

void tst_ShortcutTable::comparisonIsExact()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.texts[0] = QStringLiteral("f7");
    side.texts[1] = QStringLiteral("F7 ");
    side.capture(4, Qt::Key_F7);
    QCOMPARE(side.status(4), normal);
    QVERIFY(side.entry());
    side.texts[1] = QStringLiteral("F7");
    side.capture(5, Qt::Key_F7);
    QCOMPARE(side.status(5), QStringLiteral("与卖出股票重复"));
}

void tst_ShortcutTable::emptyTextShowsEmpty_data() { bothTables(); }

void tst_ShortcutTable::emptyTextShowsEmpty()
{
    QFETCH(bool, credit);
    const Side side(credit);
    Q_EMIT side.editor(4).signal_editFinished(4, QString());
    QCOMPARE(side.editor(4).text(), QStringLiteral("空"));
    QCOMPARE(side.texts.at(4), QString());
    QCOMPARE(side.editor(4).styleSheet(), QStringLiteral("border:0px;"));
    QCOMPARE(side.status(4), normal);
    QCOMPARE(side.statusBrush(4).style(), Qt::NoBrush);
    QVERIFY(!side.hasEntry());
    QCOMPARE(side.enabledRows(), allRows());
    // Two empty keys are no duplicates.
    Q_EMIT side.editor(5).signal_editFinished(5, QString());
    QVERIFY(!side.hasEntry());
    QCOMPARE(side.editor(5).text(), QStringLiteral("空"));
}

void tst_ShortcutTable::emptyTextKeepsAnError_data() { bothTables(); }

void tst_ShortcutTable::emptyTextKeepsAnError()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.capture(4, Qt::Key_A, side.modifier);
    Q_EMIT side.editor(4).signal_editFinished(4, QString());
    QCOMPARE(side.editor(4).text(), QStringLiteral("空"));
    QCOMPARE(side.editor(4).styleSheet(), red);
    QCOMPARE(side.status(4), QStringLiteral("与买入股票重复"));
    QCOMPARE(side.statusBrush(4), QBrush(QColor(255, 0, 0)));
    QVERIFY(!side.entry());
    QCOMPARE(side.enabledRows(), QList<int>{4});
}

void tst_ShortcutTable::tablesAreNotCompared_data() { bothTables(); }

void tst_ShortcutTable::tablesAreNotCompared()
{
    QFETCH(bool, credit);
    const Side side(credit);
    // The key that the other table has in row 0.
    side.capture(4, Qt::Key_A, credit ? Qt::ControlModifier : Qt::AltModifier);
    QCOMPARE(side.editor(4).styleSheet(), green);
    QVERIFY(side.entry());
}

void tst_ShortcutTable::confirmRefusesAnError_data() { bothTables(); }

void tst_ShortcutTable::confirmRefusesAnError()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.dialog->show();
    side.capture(4, Qt::Key_A, side.modifier);
    {
        const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
        side.dialog.confirm();
        QCOMPARE(answer.title(), QStringLiteral("提示"));
    }
    QCOMPARE(side.dialog.trade.saves, 0);
    QVERIFY(side.dialog->isVisible());
    side.capture(4, Qt::Key_Y, Qt::ControlModifier);
    side.dialog.confirm();
    QCOMPARE(side.dialog.trade.saves, 1);
    QVERIFY(!side.dialog->isVisible());
}

void tst_ShortcutTable::stockRefusesGlobalHotkeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("status");
    QTest::newRow("F5") << int(Qt::Key_F5) << QStringLiteral("F5为全局快捷键！");
    QTest::newRow("F12") << int(Qt::Key_F12) << QStringLiteral("F12为全局快捷键！");
}

void tst_ShortcutTable::stockRefusesGlobalHotkeys()
{
    QFETCH(int, key);
    const Side side(false);
    const QStringList before = side.texts;
    side.capture(7, Qt::Key(key));
    QCOMPARE(side.editor(7).styleSheet(), red);
    QTEST(side.status(7), "status");
    QCOMPARE(side.statusBrush(7), QBrush(QColor(255, 0, 0)));
    QCOMPARE(side.enabledRows(), QList<int>{7});
    QVERIFY(side.hasEntry());
    QVERIFY(!side.entry());
    // The row keeps its previous key in the list, though the cell shows the new one.
    QCOMPARE(side.texts, before);

    // The key that was there before is free still, and it mends the row.
    side.capture(7, Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(side.status(7), normal);
    QVERIFY(side.entry());
    QCOMPARE(side.enabledRows(), allRows());
}

void tst_ShortcutTable::globalHotkeysAreExact()
{
    const Side side(false);
    side.capture(7, Qt::Key_F5, Qt::ShiftModifier);
    QCOMPARE(side.texts.at(7), keyText("Shift+F5"));
    QVERIFY(side.entry());
    Q_EMIT side.editor(7).signal_editFinished(7, QStringLiteral("f5"));
    QVERIFY(side.entry());
    Q_EMIT side.editor(7).signal_editFinished(7, QStringLiteral("F1"));
    QVERIFY(side.entry());
    Q_EMIT side.editor(7).signal_editFinished(7, QStringLiteral("F5"));
    QVERIFY(!side.entry());
}

void tst_ShortcutTable::globalHotkeyComesBeforeTheDuplicate()
{
    Side side(false);
    side.texts[0] = QStringLiteral("F5");
    side.capture(7, Qt::Key_F5);
    QCOMPARE(side.status(7), QStringLiteral("F5为全局快捷键！"));
    QCOMPARE(side.texts.at(7), keyText("Ctrl+H"));
}

void tst_ShortcutTable::creditTakesGlobalHotkeys()
{
    const Side side(true);
    side.capture(7, Qt::Key_F5);
    QCOMPARE(side.texts.at(7), QStringLiteral("F5"));
    QCOMPARE(side.editor(7).styleSheet(), green);
    QCOMPARE(side.status(7), normal);
    QVERIFY(side.entry());
    side.capture(8, Qt::Key_F5);
    QCOMPARE(side.status(8), QStringLiteral("与全撤重复"));
    QVERIFY(!side.entry());
}

void tst_ShortcutTable::stockChecksItsOwnKeyAgain()
{
    const Side side(false);
    side.capture(0, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(side.editor(0).styleSheet(), green);
    QCOMPARE(side.status(0), normal);
    QCOMPARE(side.statusBrush(0), QBrush(QColor(0, 255, 0)));
    QVERIFY(side.hasEntry());
    QVERIFY(side.entry());
}

void tst_ShortcutTable::creditIgnoresItsOwnKey()
{
    const Side side(true);
    side.capture(0, Qt::Key_A, Qt::AltModifier);
    QCOMPARE(side.editor(0).styleSheet(), QStringLiteral("border:0px;"));
    QCOMPARE(side.statusBrush(0).style(), Qt::NoBrush);
    QVERIFY(!side.hasEntry());

    // Also in error: repeating the refused key changes nothing, not even a mended enabling.
    side.capture(4, Qt::Key_A, Qt::AltModifier);
    QVERIFY(!side.entry());
    side.editor(0).setEnabled(true);
    side.capture(4, Qt::Key_A, Qt::AltModifier);
    QVERIFY(side.editor(0).isEnabled());
    QVERIFY(!side.entry());

    // And an empty cell that captures nothing keeps what it shows.
    Side empty(true);
    empty.texts[3].clear();
    empty.editor(3).setText(QStringLiteral("x"));
    Q_EMIT empty.editor(3).signal_editFinished(3, QString());
    QCOMPARE(empty.editor(3).text(), QStringLiteral("x"));
}

void tst_ShortcutTable::creditAloneWritesTheList()
{
    const Side stock(false);
    const Side credit(true);
    const MessageCapture log;
    stock.capture(4, Qt::Key_Y, Qt::ControlModifier);
    stock.capture(5, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(log.count(QStringLiteral("edit m_shortCutList2 ")), 0);

    credit.capture(4, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(log.count(QStringLiteral("edit m_shortCutList2 ")), 1);
    QStringList listed;
    for (const char* const key : {"Alt+A", "Alt+B", "Alt+F", "Alt+G", "Ctrl+Y", "Alt+D", "Alt+E",
                                  "Alt+H", "Alt+I", "Alt+J", "Alt+K", "Alt+L", "Alt+M"})
        listed << QLatin1Char('"') + keyText(key) + QLatin1Char('"');
    QCOMPARE(log.texts().constLast(),
             QStringLiteral("edit m_shortCutList2  (") + listed.join(QStringLiteral(", "))
                 + QLatin1Char(')'));
    credit.capture(5, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(log.count(QStringLiteral("edit m_shortCutList2 ")), 2);
    // Neither an unchanged nor an empty key writes it.
    credit.capture(5, Qt::Key_Y, Qt::ControlModifier);
    Q_EMIT credit.editor(5).signal_editFinished(5, QString());
    QCOMPARE(log.count(QStringLiteral("edit m_shortCutList2 ")), 2);
}

void tst_ShortcutTable::sendingEditorIsMarked_data() { bothTables(); }

void tst_ShortcutTable::sendingEditorIsMarked()
{
    QFETCH(bool, credit);
    const Side side(credit);
    Q_EMIT side.editor(3).signal_editFinished(5, side.texts.at(0));
    QCOMPARE(side.editor(3).styleSheet(), red);
    QCOMPARE(side.editor(5).styleSheet(), QStringLiteral("border:0px;"));
    QCOMPARE(side.status(5), QStringLiteral("与买入股票重复"));
    QCOMPARE(side.status(3), normal);
    QVERIFY(!side.entry());
    Q_EMIT side.editor(3).signal_editFinished(5, QString());
    QCOMPARE(side.editor(3).text(), QStringLiteral("空"));
    QVERIFY(side.editor(5).text() != QStringLiteral("空"));
}

void tst_ShortcutTable::slotMarksItsRow_data() { bothTables(); }

void tst_ShortcutTable::slotMarksItsRow()
{
    QFETCH(bool, credit);
    const Side side(credit);
    side.finish(5, QStringLiteral("Ctrl+7"));
    QCOMPARE(side.editor(5).styleSheet(), green);
    QVERIFY(side.entry());
}

void tst_ShortcutTable::setLineEditEnableLeavesTheRow()
{
    const Side stock(false);
    stock.dialog->SetLineEditEnable(3, false);
    QCOMPARE(stock.enabledRows(), QList<int>{3});
    // The named row stays as it is, whatever that is.
    stock.dialog->SetLineEditEnable(5, true);
    QList<int> butFive = allRows();
    butFive.removeAt(5);
    QCOMPARE(stock.enabledRows(), butFive);

    const Side credit(true);
    credit.dialog->SetLineEditEnable2(12, false);
    QCOMPARE(credit.enabledRows(), QList<int>{12});
    credit.dialog->SetLineEditEnable2(12, true);
    QCOMPARE(credit.enabledRows(), allRows());
}

void tst_ShortcutTable::textsAreTranslated()
{
    const MarkingTranslator translator;
    const Side side(false);
    for (const char* const name :
         {"tableWidget_shortcut", "tableWidget_credit", "tableWidget_whole"}) {
        const QTableWidget& table = side.dialog.find<QTableWidget>(name);
        QCOMPARE(table.horizontalHeaderItem(0)->text(), QStringLiteral("T:功能说明"));
        QCOMPARE(table.horizontalHeaderItem(1)->text(), QStringLiteral("T:键位设定"));
        QCOMPARE(table.horizontalHeaderItem(2)->text(), QStringLiteral("T:设置说明"));
        for (int row = 0; row < table.rowCount(); ++row) {
            QCOMPARE(table.item(row, 2)->text(), QStringLiteral("T:正常"));
            if (table.rowCount() == 13)
                QCOMPARE(table.item(row, 0)->text(), QStringLiteral("T:") + functions.at(row));
        }
    }
    const QTableWidget& whole = *side.dialog->ui.tableWidget_whole;
    QCOMPARE(whole.item(0, 0)->text(), QStringLiteral("T:刷新"));
    QCOMPARE(whole.item(1, 0)->text(), QStringLiteral("T:显示/隐藏交易模块"));

    side.capture(4, Qt::Key_F5);
    QCOMPARE(side.status(4), QStringLiteral("T:F5为全局快捷键！"));
    side.capture(4, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(side.status(4), QStringLiteral("T:与T:买入股票重复"));
    side.capture(4, Qt::Key_F7);
    QCOMPARE(side.status(4), QStringLiteral("T:正常"));
    Q_EMIT side.editor(4).signal_editFinished(4, QString());
    QCOMPARE(side.editor(4).text(), QStringLiteral("T:空"));
}

void tst_ShortcutTable::everyRowOfTheTableIsFilled_data() { bothTables(); }

void tst_ShortcutTable::everyRowOfTheTableIsFilled()
{
    QFETCH(bool, credit);
    const QString first = keyText(credit ? "Alt+A" : "Ctrl+A");
    const QString last = keyText(credit ? "Alt+M" : "Ctrl+M");
    {
        // A row more than there are keys, with a plain editor.
        const Side side(credit);
        side.table.setRowCount(14);
        auto* const added = new QLineEdit(QStringLiteral("old"));
        side.table.setCellWidget(13, 1, added);
        side.table.setCellWidget(5, 1, new QLabel);
        side.editor(0).setText(QStringLiteral("old"));
        side.dialog->ReadAllParm();
        QCOMPARE(side.editor(0).text(), first);
        QCOMPARE(side.editor(12).text(), last);
        QCOMPARE(added->text(), QString());
    }
    {
        // Fewer rows than keys.
        const Side side(credit);
        side.table.setRowCount(2);
        side.editor(1).setText(QStringLiteral("old"));
        side.dialog->ReadAllParm();
        QCOMPARE(side.editor(0).text(), first);
        QCOMPARE(side.editor(1).text(), keyText(credit ? "Alt+B" : "Ctrl+B"));
        QCOMPARE(side.texts.size(), 13);
    }
}

void tst_ShortcutTable::theCellIsStored_data() { bothTables(); }

void tst_ShortcutTable::theCellIsStored()
{
    QFETCH(bool, credit);
    Side side(credit);
    const auto keys = credit ? &TradeParm::creditShortcuts : &TradeParm::stockShortcuts;
    Q_EMIT side.editor(0).signal_editFinished(0, QString());
    side.editor(7).setText(QStringLiteral("F7"));
    side.dialog->WriteAllParm();
    QCOMPARE(side.texts.at(0), QString());
    QCOMPARE(side.dialog.trade.text(keys, 0), QByteArray("空"));
    QVERIFY(side.texts.at(7) != QStringLiteral("F7"));
    QCOMPARE(side.dialog.trade.text(keys, 7), QByteArray("F7"));
}

void tst_ShortcutTable::anotherCellIsStored_data() { bothTables(); }

void tst_ShortcutTable::anotherCellIsStored()
{
    QFETCH(bool, credit);
    Side side(credit);
    const auto keys = credit ? &TradeParm::creditShortcuts : &TradeParm::stockShortcuts;
    side.table.setCellWidget(8, 1, new QLineEdit(QStringLiteral("F8")));
    side.dialog->WriteAllParm();
    QCOMPARE(side.dialog.trade.text(keys, 8), QByteArray("F8"));
    QCOMPARE(side.dialog.trade.text(keys, 9), keyText(credit ? "Alt+J" : "Ctrl+J").toUtf8());

    // The same when the one that stood there is gone at last.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    side.dialog->WriteAllParm();
    QCOMPARE(side.dialog.trade.text(keys, 8), QByteArray("F8"));

    delete side.table.cellWidget(9, 1);
    side.dialog->WriteAllParm();
    QCOMPARE(side.dialog.trade.text(keys, 9), QByteArray());
    side.table.setRowCount(3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    side.dialog->WriteAllParm();
    QCOMPARE(side.dialog.trade.text(keys, 1), keyText(credit ? "Alt+B" : "Ctrl+B").toUtf8());
    QCOMPARE(side.dialog.trade.text(keys, 12), QByteArray());
    QCOMPARE(side.dialog.trade.saves, 4);
}

void tst_ShortcutTable::rowsOutsideTheTable_data() { bothTables(); }

void tst_ShortcutTable::rowsOutsideTheTable()
{
    QFETCH(bool, credit);
    const Side side(credit);
    const QStringList before = side.texts;
    for (const int row : {-1, 13, 1000000}) {
        side.finish(row, QStringLiteral("F5"));
        QCOMPARE(side.texts, before);
        QVERIFY(!side.hasEntry());
        QCOMPARE(side.enabledRows(), allRows());
    }
}

void tst_ShortcutTable::listShorterThanTheTable()
{
    Side stock(false);
    stock.texts.clear();
    stock.capture(7, Qt::Key_F12);
    QCOMPARE(stock.status(7), QStringLiteral("F12为全局快捷键！"));
    QVERIFY(stock.hasEntry());
    QVERIFY(!stock.entry());
    QCOMPARE(stock.enabledRows(), QList<int>{7});
    stock.capture(7, Qt::Key_F7);
    QCOMPARE(stock.status(7), normal);
    QVERIFY(stock.entry());
    QCOMPARE(stock.texts, QStringList());

    Side credit(true);
    credit.texts = QStringList{QStringLiteral("F7")};
    credit.capture(7, Qt::Key_F7);
    QCOMPARE(credit.status(7), QStringLiteral("与买入股票重复"));
    QVERIFY(!credit.entry());
    QCOMPARE(credit.texts, QStringList{QStringLiteral("F7")});
}

void tst_ShortcutTable::missingPartsAreLeftOut_data() { bothTables(); }

void tst_ShortcutTable::missingPartsAreLeftOut()
{
    QFETCH(bool, credit);
    Side side(credit);
    delete side.table.takeItem(4, 2);
    delete side.table.takeItem(0, 0);
    side.table.removeCellWidget(4, 1);
    side.finish(4, side.texts.at(0));
    QVERIFY(side.hasEntry());
    QVERIFY(!side.entry());
    side.finish(4, QString());
    QVERIFY(!side.entry());
    side.finish(4, QStringLiteral("F7"));
    QVERIFY(side.entry());
    QCOMPARE(side.texts.at(4), QStringLiteral("F7"));

    delete side.table.takeItem(6, 0);
    side.texts[6] = QStringLiteral("F8");
    side.capture(7, Qt::Key_F8);
    QCOMPARE(side.status(7), QStringLiteral("与重复"));
}

void tst_ShortcutTable::marksKeepTheFont()
{
    const Side side(false);
    side.dialog->show();
    const QFont cell = side.editor(4).font();
    QCOMPARE(cell.family(), QStringLiteral("Arial"));
    QLineEdit& field = *side.dialog->ui.lineEdit_trade_high;
    const QFont before = field.font();
    QCOMPARE(before.family(), QStringLiteral("Arial"));
    for (int round = 0; round < 3; ++round) {
        side.capture(4, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(side.editor(4).styleSheet(), red);
        QCOMPARE(side.editor(4).font(), cell);
        side.capture(4, Qt::Key_F7);
        QCOMPARE(side.editor(4).styleSheet(), green);
        QCOMPARE(side.editor(4).font(), cell);

        for (const char* const text : {"99", "500"}) {
            field.setText(QString::fromLatin1(text));
            QFocusEvent leaving(QEvent::FocusOut);
            QCoreApplication::sendEvent(&field, &leaving);
            QCOMPARE(field.styleSheet(), *text == '9' ? red : green);
            QCOMPARE(field.font(), before);
        }
    }
}

TRADECONFIG_TEST_MAIN(tst_ShortcutTable)
#include "tst_ShortcutTable.moc"
