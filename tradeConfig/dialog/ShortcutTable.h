#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class CTableLineEdit;
class QLineEdit;
class QTableWidget;
class Ui_CTradeConfigWidget;

/**
 * The hotkey tables: how they are built, how a captured key is judged, how the verdict is shown.
 *
 * A stateless description; the key texts and the verdicts belong to the dialog. The ordinary and
 * the credit table are two values of this type.
 */
struct ShortcutTable {
    static constexpr int rowCount = 13;

    enum class Verdict { Accepted, Emptied, GlobalHotkey, Duplicate };

    struct Check {
        Verdict verdict = Verdict::Accepted;
        int duplicateRow = -1; ///< the first row that holds the same key; Duplicate only
    };

    QTableWidget* Ui_CTradeConfigWidget::*table;
    const char* validityKey; ///< the table's entry in the dialog's validity map
    bool refusesGlobalHotkeys; ///< a global hotkey is an error here
    bool ignoresUnchangedKey; ///< capturing the key already held does nothing
    const char* changeLog = nullptr; ///< heads a debug line with all keys after each verdict

    /// Columns, rows, functions and one key-capture editor a row, which are returned by row.
    QVector<CTableLineEdit*> build(const Ui_CTradeConfigWidget& ui) const;

    /// Judges @p text captured in @p row beside @p texts, the keys of all rows in row order. The
    /// row's own entry in @p texts does not matter.
    Check check(const QStringList& texts, int row, const QString& text) const;

    /// Colours @p captor, the editor that captured @p text, and sets the row's status for @p check.
    /// What is missing, the editor or the status, is left out.
    void showVerdict(const Ui_CTradeConfigWidget& ui, QLineEdit* captor, int row,
                     const QString& text, const Check& check) const;

    /// Enables or disables the editors of every row except @p row.
    void setOthersEnabled(const Ui_CTradeConfigWidget& ui, int row, bool enable) const;

    /// The line edit in the key column; null if there is none.
    QLineEdit* editor(const Ui_CTradeConfigWidget& ui, int row) const;

    /// Shows @p texts, by row, in the key column, as far as there are line edits.
    void setCellTexts(const Ui_CTradeConfigWidget& ui, const QStringList& texts) const;

    /// The texts in the key column, by row; empty where there is no line edit.
    QStringList cellTexts(const Ui_CTradeConfigWidget& ui) const;

    /// The first entry equal to @p text, in ascending order and leaving out @p row; -1 if none.
    static int firstDuplicate(const QStringList& texts, int row, const QString& text);

    /// The table of the fixed global hotkeys: read-only.
    static void buildGlobal(const Ui_CTradeConfigWidget& ui);

    static const ShortcutTable stock;
    static const ShortcutTable credit;
};
