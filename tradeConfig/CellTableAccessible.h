#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QVector>

class QTableWidget;

/**
 * The accessible interface of a table that has widgets in its cells.
 *
 * The toolkit's own has items alone for children, and leads to no widget in a cell. This one has
 * the widget's interface where there is a widget, and otherwise a cell that says its item's text.
 * The children are counted as the toolkit counts them, which its events rely on: by row, with the
 * column headers as the first row and the row headers as the first column.
 */
class CellTableAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    /// A widget's place in such a table; without a table it is in none.
    struct Place {
        CellTableAccessible* table = nullptr;
        int row = -1;
        int column = -1;
    };

    /// Has @p table known by this interface from now on.
    static void serve(QTableWidget& table);

    static Place placeOf(const QWidget& cellWidget);

    explicit CellTableAccessible(QTableWidget* table);
    ~CellTableAccessible() override;

    /// The text of a cell's item, or of a header for row or column -1.
    QString itemText(int row, int column) const;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

    /// The child at @p row and @p column, -1 being the headers; null if there is none.
    QAccessibleInterface* at(int row, int column) const;
    bool isSelected(int row, int column) const;
    QRect cellRect(int row, int column) const; ///< on the screen
    bool showsHeaders(int row, int column) const; ///< those that -1 stands for

private:
    QTableWidget* view() const;
    bool select(int row, int column, int how);
    void forgetCells();

    mutable QHash<int, QAccessible::Id> m_cells; // by child, made when somebody asks
};

/// What a child of a CellTableAccessible tells about its place.
class CellPlaceAccessible : public QAccessibleTableCellInterface {
public:
    virtual CellTableAccessible::Place place() const = 0;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return place().column; }
    int rowIndex() const override { return place().row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return place().table; }
};
