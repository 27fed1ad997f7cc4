#pragma once

#include "tradeConfig/HeldKeys.h"

#include <QLineEdit>

/**
 * The key-capture cell of a hotkey table.
 *
 * Each key press, with the modifiers held, becomes the native-format text of a one-chord key
 * sequence, shown at once. Nothing else the user does puts text into the cell. Modifiers alone,
 * chords with Meta, unknown keys and keys held since before the cell had the focus change nothing;
 * Tab and Shift+Tab move the focus as ever.
 * A ring in the palette's highlight tells the cell that captures from its neighbours.
 */
class CTableLineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// @p row is the table row that this editor belongs to and reports.
    explicit CTableLineEdit(int row, QWidget* parent = nullptr);

public Q_SLOTS:
    /// Deliberately empty: finishing an edit by Return or by leaving reports nothing.
    void EditFinished();

Q_SIGNALS:
    /// After every accepted key press, also when it repeats the key already shown and each time a
    /// held key repeats itself.
    void signal_editFinished(int row, QString text);

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    int row;

private:
    HeldKeys m_heldKeys;
};
