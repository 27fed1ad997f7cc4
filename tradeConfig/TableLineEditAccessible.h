#pragma once

#include "tradeConfig/CellTableAccessible.h"

class QLineEdit;

/**
 * A hotkey cell as a text that can be read and not written: what the toolkit offers for a line
 * edit would put any text into it.
 *
 * In a table that knows of its cells' widgets the first column of the cell's row, the function,
 * is its name, and the last one, the status, its description, where it has none of its own.
 */
class TableLineEditAccessible : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public CellPlaceAccessible {
public:
    /// A second time does nothing. Interfaces only come to be when asked for.
    static void install();

    explicit TableLineEditAccessible(QLineEdit* cell);

    QAccessibleInterface* parent() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text which) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    CellTableAccessible::Place place() const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                         int* end) const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    QLineEdit* cell() const;
};
