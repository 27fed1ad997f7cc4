#include "tradeConfig/TableLineEditAccessible.h"

#include "tradeConfig/AccessibleFactory.h"
#include "tradeConfig/TableLineEdit.h"

void TableLineEditAccessible::install()
{
    AccessibleFactory::install<CTableLineEdit, TableLineEditAccessible>();
}

TableLineEditAccessible::TableLineEditAccessible(QLineEdit* cell)
    : QAccessibleWidget(cell, QAccessible::EditableText)
{
}

QLineEdit* TableLineEditAccessible::cell() const { return static_cast<QLineEdit*>(widget()); }

QAccessible::State TableLineEditAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.selectableText = true;
    return state;
}

QString TableLineEditAccessible::text(QAccessible::Text which) const
{
    if (which == QAccessible::Value)
        return cell()->text();
    const QString own = QAccessibleWidget::text(which);
    if (!own.isEmpty() || (which != QAccessible::Name && which != QAccessible::Description))
        return own;
    const CellTableAccessible::Place here = place();
    if (!here.table)
        return own;
    const int column = which == QAccessible::Name ? 0 : here.table->columnCount() - 1;
    return here.table->itemText(here.row, column);
}

QAccessibleInterface* TableLineEditAccessible::parent() const
{
    QAccessibleInterface* const table = place().table;
    return table ? table : QAccessibleWidget::parent();
}

CellTableAccessible::Place TableLineEditAccessible::place() const
{
    return CellTableAccessible::placeOf(*widget());
}

void* TableLineEditAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::TableCellInterface && place().table)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

void TableLineEditAccessible::selection(int index, int* start, int* end) const
{
    const bool known = index == 0 && cell()->hasSelectedText();
    *start = known ? cell()->selectionStart() : 0;
    *end = known ? cell()->selectionEnd() : 0;
}

int TableLineEditAccessible::selectionCount() const { return cell()->hasSelectedText() ? 1 : 0; }

void TableLineEditAccessible::addSelection(int start, int end) { setSelection(0, start, end); }

void TableLineEditAccessible::removeSelection(int index)
{
    if (index == 0)
        cell()->deselect();
}

void TableLineEditAccessible::setSelection(int index, int start, int end)
{
    if (index == 0)
        cell()->setSelection(start, end - start);
}

int TableLineEditAccessible::cursorPosition() const { return cell()->cursorPosition(); }

void TableLineEditAccessible::setCursorPosition(int position)
{
    cell()->setCursorPosition(position);
}

QString TableLineEditAccessible::text(int start, int end) const
{
    return cell()->text().mid(start, end - start);
}

int TableLineEditAccessible::characterCount() const { return cell()->text().size(); }

QString TableLineEditAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                              int* start, int* end) const
{
    const int count = characterCount();
    if (boundary == QAccessible::CharBoundary || offset < -1 || offset > count || count == 0)
        return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
    // A chord is one word. The toolkit's search for the ends of a word comes to no end itself
    // behind the last one, or in "+".
    *start = 0;
    *end = count;
    return text(0, count);
}

QRect TableLineEditAccessible::characterRect(int offset) const
{
    // The cursor is the one place in the text that a line edit tells.
    const QRect cursor = cell()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QString shown = cell()->text();
    const QFontMetrics metrics = cell()->fontMetrics();
    const auto reach = [&](int position) { return metrics.horizontalAdvance(shown, position); };
    const int x = cursor.center().x() + reach(offset) - reach(cell()->cursorPosition());
    return QRect(cell()->mapToGlobal(QPoint(x, cursor.y())),
                 QSize(reach(offset + 1) - reach(offset), cursor.height()));
}

int TableLineEditAccessible::offsetAtPoint(const QPoint& point) const
{
    return cell()->cursorPositionAt(cell()->mapFromGlobal(point));
}

void TableLineEditAccessible::scrollToSubstring(int start, int) { setCursorPosition(start); }

QString TableLineEditAccessible::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return QString();
}
