#pragma once

#include "client/RecordChange.h"

#include <QObject>

class QAction;
class QMenu;
class QWidget;
class TradeCore;

/**
 * What a user can do with the record as a whole: export it to a file, import it from one, restore
 * the defaults, and take the last of these back. Each asks first and tells why it failed.
 */
class RecordActions : public QObject {
    Q_OBJECT

public:
    /// @p core must outlive this object. Boxes stand before @p window, which owns it.
    RecordActions(TradeCore& core, QWidget* window);

    void fill(QMenu* menu) const;
    QAction* undoAction() const { return m_undo; }

    /// Refuses all but the export while @p refused: somebody else is editing the record.
    void setRefused(bool refused);
    /// To be called after every change of the record: there may be no way back any more.
    void noteChange();

Q_SIGNALS:
    /// The record is another one.
    void imported();
    void restored();
    void undone();

private:
    QAction* add(const char* name, const QString& text, void (RecordActions::*run)());
    void exportRecord();
    void importRecord();
    void restoreDefaults();
    void undo();
    bool isAgreedTo(const QString& question) const;
    bool replace(const OwnedRecord& record, const QString& undoText);
    void tell(const QString& failure) const;

    TradeCore& m_core;
    QWidget* m_window;
    RecordChange m_change;
    bool m_refused = false;
    QAction* m_export;
    QAction* m_import;
    QAction* m_restore;
    QAction* m_undo;
};
