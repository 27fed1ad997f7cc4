#pragma once

#include <QAccessibleWidget>

class QLineEdit;

/// A hotkey cell as a text that can be read and not written: what the toolkit offers for a line
/// edit would put any text into it.
class TableLineEditAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    /// A second time does nothing. Interfaces only come to be when asked for.
    static void install();

    explicit TableLineEditAccessible(QLineEdit* cell);

    QAccessible::State state() const override;
    QString text(QAccessible::Text which) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    QLineEdit* cell() const;
};
