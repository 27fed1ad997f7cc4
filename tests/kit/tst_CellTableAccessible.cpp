#include "support/TestMain.h"
#include "tradeConfig/CellTableAccessible.h"
#include "tradeConfig/TableLineEdit.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

QAccessibleInterface* of(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

QString nameOf(const QAccessibleInterface* known) { return known->text(QAccessible::Name); }

/// Two rows of a function, a key and a status; the function of row 1 has no item.
class Hotkeys : public QTableWidget {
public:
    explicit Hotkeys(bool served = true)
    {
        if (served)
            CellTableAccessible::serve(*this);
        setColumnCount(3);
        setRowCount(2);
        setHorizontalHeaderLabels({text("Function"), text("Key"), text("Status")});
        verticalHeader()->hide();
        for (int row = 0; row < 2; ++row) {
            // The editor's own row does not say where it stands.
            cells[row] = new CTableLineEdit(7, nullptr);
            cells[row]->setText(row == 0 ? text("F1") : text("F2"));
            setCellWidget(row, 1, cells[row]);
            setItem(row, 2, new QTableWidgetItem(row == 0 ? text("fine") : text("taken")));
        }
        setItem(0, 0, new QTableWidgetItem(text("Buy")));
        resize(400, 200);
        show();
    }

    QAccessibleInterface* known() { return of(this); }
    QAccessibleTableInterface* table() { return known()->tableInterface(); }
    QAccessibleInterface* cell(int row) const { return of(cells[row]); }

    CTableLineEdit* cells[2];
};

QStringList rolesAndNames(const QAccessibleInterface* known)
{
    QStringList lines;
    for (int index = 0; index < known->childCount(); ++index) {
        const QAccessibleInterface* const child = known->child(index);
        const char* const role = child->role() == QAccessible::ColumnHeader ? "column "
            : child->role() == QAccessible::RowHeader                       ? "row "
            : child->role() == QAccessible::Cell                            ? "cell "
            : child->role() == QAccessible::EditableText                    ? "text "
                                                                            : "other ";
        lines << text(role) + nameOf(child);
    }
    return lines;
}

} // namespace

class tst_CellTableAccessible : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void childrenByRow();
    void anInterfaceThatWasThereBeforeIsReplaced();
    void otherTablesStayTheToolkits();
    void cellsAreWhatTheyAre();
    void ownNamesGoFirst();
    void cellsByPlace();
    void placesOnTheScreen();
    void statesOfCells();
    void selection();
    void rowsThatGo();
    void interfacesDieWithTheTable();
    void cellOutsideATable();
};

void tst_CellTableAccessible::childrenByRow()
{
    Hotkeys hotkeys;
    QCOMPARE(hotkeys.known()->role(), QAccessible::Table);
    QCOMPARE(rolesAndNames(hotkeys.known()),
             (QStringList{text("column "), text("column Function"), text("column Key"),
                          text("column Status"), text("row 1"), text("cell Buy"), text("text Buy"),
                          text("cell fine"), text("row 2"), text("cell "), text("text "),
                          text("cell taken")}));
    for (int index = 0; index < 12; ++index) {
        QAccessibleInterface* const child = hotkeys.known()->child(index);
        QCOMPARE(hotkeys.known()->indexOfChild(child), index);
        QCOMPARE(child->parent(), hotkeys.known());
        QCOMPARE(hotkeys.known()->child(index), child);
        QVERIFY(child->isValid());
    }
    QVERIFY(!hotkeys.known()->child(-1));
    QVERIFY(!hotkeys.known()->child(12));
    QCOMPARE(hotkeys.known()->indexOfChild(nullptr), -1);
    QCOMPARE(hotkeys.known()->indexOfChild(hotkeys.known()), -1);
    Hotkeys other;
    QCOMPARE(other.known()->indexOfChild(hotkeys.known()->child(5)), -1);
    QCOMPARE(other.known()->indexOfChild(hotkeys.cell(0)), -1);
}

void tst_CellTableAccessible::anInterfaceThatWasThereBeforeIsReplaced()
{
    QTableWidget table(1, 1);
    const QAccessible::Id former = QAccessible::uniqueId(of(&table));
    CellTableAccessible::serve(table);
    QVERIFY(!QAccessible::accessibleInterface(former));
    auto* const cell = new CTableLineEdit(0);
    table.setCellWidget(0, 0, cell);
    QCOMPARE(of(&table)->child(3), of(cell));
}

void tst_CellTableAccessible::otherTablesStayTheToolkits()
{
    Hotkeys served;
    Hotkeys plain(false);
    QVERIFY(dynamic_cast<CellTableAccessible*>(served.known()));
    QVERIFY(!dynamic_cast<CellTableAccessible*>(plain.known()));
    QCOMPARE(plain.cell(0)->parent(), of(plain.viewport()));
    QCOMPARE(nameOf(plain.cell(0)), QString());
    QVERIFY(!plain.cell(0)->tableCellInterface());
}

void tst_CellTableAccessible::cellsAreWhatTheyAre()
{
    const Hotkeys hotkeys;
    const QAccessibleInterface* const first = hotkeys.cell(0);
    QCOMPARE(first->text(QAccessible::Name), text("Buy"));
    QCOMPARE(first->text(QAccessible::Description), text("fine"));
    QCOMPARE(first->text(QAccessible::Value), text("F1"));
    QCOMPARE(first->text(QAccessible::Help), QString());
    QVERIFY(first->state().readOnly);
    QVERIFY(first->state().focusable);
    QCOMPARE(hotkeys.cell(1)->text(QAccessible::Description), text("taken"));
    hotkeys.item(1, 2)->setText(text("free"));
    QCOMPARE(hotkeys.cell(1)->text(QAccessible::Description), text("free"));
}

void tst_CellTableAccessible::ownNamesGoFirst()
{
    const Hotkeys hotkeys;
    hotkeys.cells[0]->setAccessibleName(text("name"));
    hotkeys.cells[0]->setAccessibleDescription(text("description"));
    QCOMPARE(nameOf(hotkeys.cell(0)), text("name"));
    QCOMPARE(hotkeys.cell(0)->text(QAccessible::Description), text("description"));
}

void tst_CellTableAccessible::cellsByPlace()
{
    Hotkeys hotkeys;
    QAccessibleTableInterface& table = *hotkeys.table();
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.columnCount(), 3);
    QCOMPARE(table.columnDescription(1), text("Key"));
    QCOMPARE(table.columnDescription(3), QString());
    QCOMPARE(table.columnDescription(-1), QString());
    QCOMPARE(table.rowDescription(1), text("2"));
    QCOMPARE(table.rowDescription(2), QString());
    QCOMPARE(table.rowDescription(-1), QString());
    QVERIFY(!table.caption());
    QVERIFY(!table.summary());
    for (int row = 0; row < 2; ++row) {
        QCOMPARE(table.cellAt(row, 1), hotkeys.cell(row));
        for (int column = 0; column < 3; ++column) {
            const QAccessibleTableCellInterface* const cell
                = table.cellAt(row, column)->tableCellInterface();
            QVERIFY(cell);
            QCOMPARE(cell->rowIndex(), row);
            QCOMPARE(cell->columnIndex(), column);
            QCOMPARE(cell->rowExtent(), 1);
            QCOMPARE(cell->columnExtent(), 1);
            QCOMPARE(cell->table(), hotkeys.known());
            QCOMPARE(cell->columnHeaderCells(),
                     QList<QAccessibleInterface*>{hotkeys.known()->child(column + 1)});
            QCOMPARE(cell->rowHeaderCells(), QList<QAccessibleInterface*>());
        }
    }
    for (const QPoint& outside : {QPoint(-1, 0), QPoint(0, -1), QPoint(2, 0), QPoint(0, 3)})
        QVERIFY(!table.cellAt(outside.x(), outside.y()));
    QVERIFY(!hotkeys.known()->child(1)->tableCellInterface());
}

void tst_CellTableAccessible::placesOnTheScreen()
{
    Hotkeys hotkeys;
    QAccessibleInterface* const first = hotkeys.table()->cellAt(0, 0);
    QAccessibleInterface* const heading = hotkeys.known()->child(1);
    const QPoint corner = hotkeys.viewport()->mapToGlobal(QPoint(0, 0));
    const int width = hotkeys.columnWidth(0);
    // A line of the grid lies between two cells.
    QCOMPARE(first->rect(), QRect(corner, QSize(width - 1, hotkeys.rowHeight(0) - 1)));
    const int height = hotkeys.horizontalHeader()->height();
    QCOMPARE(heading->rect(), QRect(corner - QPoint(0, height), QSize(width, height)));
    const auto meets = [&](QAccessibleInterface* child) {
        const QPoint centre = child->rect().center();
        return hotkeys.known()->childAt(centre.x(), centre.y()) == child;
    };
    QVERIFY(meets(first));
    QVERIFY(meets(hotkeys.cell(1)));
    QVERIFY(meets(hotkeys.table()->cellAt(1, 2)));
    QVERIFY(!hotkeys.known()->childAt(corner.x() + 390, corner.y() + 190));
}

void tst_CellTableAccessible::statesOfCells()
{
    Hotkeys hotkeys;
    const QAccessibleInterface* const cell = hotkeys.table()->cellAt(0, 0);
    QVERIFY(cell->state().readOnly);
    QVERIFY(cell->state().selectable);
    QVERIFY(!cell->state().invisible);
    QVERIFY(!cell->state().offscreen);
    QVERIFY(!cell->state().disabled);
    QVERIFY(!hotkeys.known()->child(1)->state().invisible);
    QVERIFY(!hotkeys.known()->child(1)->state().selectable);
    QVERIFY(hotkeys.known()->child(4)->state().invisible);
    hotkeys.setEnabled(false);
    QVERIFY(cell->state().disabled);
    hotkeys.hide();
    QVERIFY(cell->state().invisible);
}

void tst_CellTableAccessible::selection()
{
    Hotkeys hotkeys;
    QAccessibleTableInterface& table = *hotkeys.table();
    QCOMPARE(table.selectedCellCount(), 0);
    QVERIFY(table.selectRow(1));
    QVERIFY(table.isRowSelected(1));
    QVERIFY(!table.isRowSelected(0));
    QCOMPARE(table.selectedRows(), QList<int>{1});
    QCOMPARE(table.selectedRowCount(), 1);
    QCOMPARE(table.selectedColumnCount(), 0);
    QCOMPARE(
        table.selectedCells(),
        (QList<QAccessibleInterface*>{table.cellAt(1, 0), hotkeys.cell(1), table.cellAt(1, 2)}));
    QVERIFY(table.cellAt(1, 0)->state().selected);
    QVERIFY(hotkeys.cell(1)->tableCellInterface()->isSelected());
    QVERIFY(!hotkeys.cell(0)->tableCellInterface()->isSelected());
    QVERIFY(table.selectColumn(2));
    QVERIFY(table.isColumnSelected(2));
    QCOMPARE(table.selectedColumns(), QList<int>{2});
    QCOMPARE(table.selectedColumnCount(), 1);
    QCOMPARE(table.selectedCellCount(), 4);
    QVERIFY(table.unselectRow(1));
    QVERIFY(table.unselectColumn(2));
    QCOMPARE(table.selectedCellCount(), 0);
    QVERIFY(!table.selectRow(2));
    QVERIFY(!table.selectColumn(-1));
    QVERIFY(!table.isRowSelected(2));
    QVERIFY(!table.isColumnSelected(3));
}

void tst_CellTableAccessible::rowsThatGo()
{
    Hotkeys hotkeys;
    QAccessibleInterface* const last = hotkeys.table()->cellAt(1, 2);
    QAccessibleInterface* const first = hotkeys.table()->cellAt(0, 0);
    hotkeys.setRowCount(1);
    QVERIFY(!last->isValid());
    QVERIFY(last->state().invalid);
    QCOMPARE(nameOf(last), QString());
    QCOMPARE(last->rect(), QRect());
    QVERIFY(first->isValid());
    QCOMPARE(hotkeys.known()->childCount(), 8);

    // With other columns every cell is counted anew.
    const QAccessible::Id former = QAccessible::uniqueId(first);
    QAccessibleTableModelChangeEvent change(&hotkeys,
                                            QAccessibleTableModelChangeEvent::DataChanged);
    hotkeys.table()->modelChange(&change);
    QCOMPARE(QAccessible::accessibleInterface(former), first);
    change.setModelChangeType(QAccessibleTableModelChangeEvent::ColumnsInserted);
    hotkeys.table()->modelChange(&change);
    QVERIFY(!QAccessible::accessibleInterface(former));
    QCOMPARE(nameOf(hotkeys.table()->cellAt(0, 0)), text("Buy"));
}

void tst_CellTableAccessible::interfacesDieWithTheTable()
{
    QVector<QAccessible::Id> ids;
    {
        Hotkeys hotkeys;
        ids << QAccessible::uniqueId(hotkeys.known());
        for (int index = 0; index < 12; ++index)
            ids << QAccessible::uniqueId(hotkeys.known()->child(index));
    }
    for (const QAccessible::Id id : ids)
        QVERIFY(!QAccessible::accessibleInterface(id));
}

void tst_CellTableAccessible::cellOutsideATable()
{
    QWidget page;
    CTableLineEdit cell(0, &page);
    QCOMPARE(of(&cell)->parent(), of(&page));
    QVERIFY(!of(&cell)->tableCellInterface());
    QCOMPARE(nameOf(of(&cell)), QString());
    CTableLineEdit alone(0);
    QVERIFY(!of(&alone)->tableCellInterface());
    // In a table of the kind, but in none of its cells.
    Hotkeys hotkeys;
    CTableLineEdit stray(0, hotkeys.viewport());
    QVERIFY(!of(&stray)->tableCellInterface());
    QCOMPARE(of(&stray)->parent(), of(hotkeys.viewport()));
}

TRADECONFIG_TEST_MAIN(tst_CellTableAccessible)
#include "tst_CellTableAccessible.moc"
