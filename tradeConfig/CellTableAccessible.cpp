#include "tradeConfig/CellTableAccessible.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

constexpr int headers = -1; // the row of the column headers, the column of the row headers

constexpr const char* served = "accessibleCellWidgets";

// A cell without a widget, or a header.
class TextCellAccessible : public QAccessibleInterface, public CellPlaceAccessible {
public:
    explicit TextCellAccessible(const CellTableAccessible::Place& place)
        : m_place(place)
    {
    }

    CellTableAccessible::Place place() const override { return m_place; }

    bool isValid() const override
    {
        return m_place.table->childCount() > 0 && m_place.row < m_place.table->rowCount()
            && m_place.column < m_place.table->columnCount();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_place.table->window(); }
    QAccessibleInterface* parent() const override { return m_place.table; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name && isValid()
            ? m_place.table->itemText(m_place.row, m_place.column)
            : QString();
    }

    QRect rect() const override
    {
        return isValid() ? m_place.table->cellRect(m_place.row, m_place.column) : QRect();
    }

    QAccessible::Role role() const override
    {
        if (m_place.row == headers)
            return QAccessible::ColumnHeader;
        return m_place.column == headers ? QAccessible::RowHeader : QAccessible::Cell;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const QAccessible::State whole = m_place.table->state();
        state.disabled = whole.disabled;
        state.invisible
            = whole.invisible || !m_place.table->showsHeaders(m_place.row, m_place.column);
        state.offscreen = whole.offscreen || !rect().intersects(m_place.table->rect());
        state.readOnly = true;
        state.selectable = !isHeader();
        state.selected = isSelected();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface && !isHeader()
            ? static_cast<QAccessibleTableCellInterface*>(this)
            : nullptr;
    }

private:
    bool isHeader() const { return m_place.row == headers || m_place.column == headers; }

    CellTableAccessible::Place m_place; // in the table that deletes this before itself
};

QAccessibleInterface* create(const QString& className, QObject* object)
{
    if (className != QLatin1String("QTableWidget") || !object->property(served).toBool())
        return nullptr;
    return new CellTableAccessible(static_cast<QTableWidget*>(object));
}

QRect onScreen(const QRect& rect, const QWidget& widget)
{
    return rect.translated(widget.mapToGlobal(QPoint(0, 0)));
}

} // namespace

void CellTableAccessible::serve(QTableWidget& table)
{
    QAccessible::installFactory(&create);
    table.setProperty(served, true);
    // The toolkit makes its own as soon as there is something to tell about the table, such as
    // the name that the form gives it.
    QAccessibleInterface* const former = QAccessible::queryAccessibleInterface(&table);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

CellTableAccessible::Place CellTableAccessible::placeOf(const QWidget& cellWidget)
{
    QWidget* const viewport = cellWidget.parentWidget();
    auto* const view = viewport ? qobject_cast<QTableWidget*>(viewport->parentWidget()) : nullptr;
    if (!view || !view->property(served).toBool())
        return {};
    auto* const table
        = dynamic_cast<CellTableAccessible*>(QAccessible::queryAccessibleInterface(view));
    for (int row = 0; table && row < view->rowCount(); ++row) {
        for (int column = 0; column < view->columnCount(); ++column) {
            if (view->cellWidget(row, column) == &cellWidget)
                return {table, row, column};
        }
    }
    return {};
}

CellTableAccessible::CellTableAccessible(QTableWidget* table)
    : QAccessibleWidget(table, QAccessible::Table)
{
}

CellTableAccessible::~CellTableAccessible() { forgetCells(); }

// Null also while the table is being destroyed.
QTableWidget* CellTableAccessible::view() const { return qobject_cast<QTableWidget*>(object()); }

void CellTableAccessible::forgetCells()
{
    for (const QAccessible::Id id : qAsConst(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    m_cells.clear();
}

QString CellTableAccessible::itemText(int row, int column) const
{
    if (row != headers && column != headers) {
        const QTableWidgetItem* const item = view()->item(row, column);
        return item ? item->text() : QString();
    }
    if (row == headers && column == headers)
        return QString();
    const QAbstractItemModel& model = *view()->model();
    return (row == headers ? model.headerData(column, Qt::Horizontal)
                           : model.headerData(row, Qt::Vertical))
        .toString();
}

int CellTableAccessible::childCount() const
{
    return view() ? (rowCount() + 1) * (columnCount() + 1) : 0;
}

QAccessibleInterface* CellTableAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const int width = columnCount() + 1;
    return at(index / width + headers, index % width + headers);
}

QAccessibleInterface* CellTableAccessible::at(int row, int column) const
{
    if (row < headers || row >= rowCount() || column < headers || column >= columnCount())
        return nullptr;
    QWidget* const widget
        = row != headers && column != headers ? view()->cellWidget(row, column) : nullptr;
    if (widget)
        return QAccessible::queryAccessibleInterface(widget);
    QAccessible::Id& id = m_cells[(row + 1) * (columnCount() + 1) + column + 1];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new TextCellAccessible({const_cast<CellTableAccessible*>(this), row, column}));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* CellTableAccessible::childAt(int x, int y) const
{
    if (!view())
        return nullptr;
    const QModelIndex index = view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? at(index.row(), index.column()) : nullptr;
}

int CellTableAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const cell = dynamic_cast<const CellPlaceAccessible*>(child);
    const Place place = cell ? cell->place() : Place();
    return place.table == this ? (place.row + 1) * (columnCount() + 1) + place.column + 1 : -1;
}

void* CellTableAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

int CellTableAccessible::columnCount() const { return view() ? view()->columnCount() : 0; }

int CellTableAccessible::rowCount() const { return view() ? view()->rowCount() : 0; }

QAccessibleInterface* CellTableAccessible::cellAt(int row, int column) const
{
    return row < 0 || column < 0 ? nullptr : at(row, column);
}

QString CellTableAccessible::columnDescription(int column) const
{
    return column >= 0 && column < columnCount() ? itemText(headers, column) : QString();
}

QString CellTableAccessible::rowDescription(int row) const
{
    return row >= 0 && row < rowCount() ? itemText(row, headers) : QString();
}

bool CellTableAccessible::showsHeaders(int row, int column) const
{
    return (row != headers || view()->horizontalHeader()->isVisible())
        && (column != headers || view()->verticalHeader()->isVisible());
}

QRect CellTableAccessible::cellRect(int row, int column) const
{
    if (row != headers && column != headers)
        return onScreen(view()->visualRect(view()->model()->index(row, column)),
                        *view()->viewport());
    const QHeaderView& across = *view()->horizontalHeader();
    const QHeaderView& down = *view()->verticalHeader();
    const QRect rect(column == headers ? 0 : across.sectionViewportPosition(column),
                     row == headers ? 0 : down.sectionViewportPosition(row),
                     column == headers ? down.width() : across.sectionSize(column),
                     row == headers ? across.height() : down.sectionSize(row));
    return onScreen(rect, row == headers ? *across.viewport() : *down.viewport());
}

// Selections

bool CellTableAccessible::isSelected(int row, int column) const
{
    return view() && view()->selectionModel()->isSelected(view()->model()->index(row, column));
}

QList<QAccessibleInterface*> CellTableAccessible::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            if (isSelected(row, column))
                cells << at(row, column);
        }
    }
    return cells;
}

int CellTableAccessible::selectedCellCount() const { return selectedCells().size(); }

bool CellTableAccessible::isColumnSelected(int column) const
{
    return column >= 0 && column < columnCount()
        && view()->selectionModel()->isColumnSelected(column, QModelIndex());
}

bool CellTableAccessible::isRowSelected(int row) const
{
    return row >= 0 && row < rowCount()
        && view()->selectionModel()->isRowSelected(row, QModelIndex());
}

QList<int> CellTableAccessible::selectedColumns() const
{
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column) {
        if (isColumnSelected(column))
            columns << column;
    }
    return columns;
}

QList<int> CellTableAccessible::selectedRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (isRowSelected(row))
            rows << row;
    }
    return rows;
}

int CellTableAccessible::selectedColumnCount() const { return selectedColumns().size(); }

int CellTableAccessible::selectedRowCount() const { return selectedRows().size(); }

bool CellTableAccessible::select(int row, int column, int how)
{
    const QModelIndex index = view() ? view()->model()->index(row, column) : QModelIndex();
    if (index.isValid())
        view()->selectionModel()->select(index, QItemSelectionModel::SelectionFlag(how));
    return index.isValid();
}

bool CellTableAccessible::selectRow(int row)
{
    return select(row, 0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

bool CellTableAccessible::selectColumn(int column)
{
    return select(0, column, QItemSelectionModel::Select | QItemSelectionModel::Columns);
}

bool CellTableAccessible::unselectRow(int row)
{
    return select(row, 0, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

bool CellTableAccessible::unselectColumn(int column)
{
    return select(0, column, QItemSelectionModel::Deselect | QItemSelectionModel::Columns);
}

// Where cells are counted anew, those that somebody knows would be others.
void CellTableAccessible::modelChange(QAccessibleTableModelChangeEvent* event)
{
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
        forgetCells();
}

// The cell's place

bool CellPlaceAccessible::isSelected() const
{
    const CellTableAccessible::Place where = place();
    return where.table && where.row >= 0 && where.column >= 0
        && where.table->isSelected(where.row, where.column);
}

QList<QAccessibleInterface*> CellPlaceAccessible::columnHeaderCells() const
{
    const CellTableAccessible::Place where = place();
    return where.table ? QList<QAccessibleInterface*>{where.table->at(headers, where.column)}
                       : QList<QAccessibleInterface*>();
}
