#pragma once

#include "client/OwnedRecord.h"

#include <QCoreApplication>
#include <QStringList>

class TradeCore;

/// Changes of the whole record at once, and the way back from the last of them.
class RecordChange {
    Q_DECLARE_TR_FUNCTIONS(RecordChange)

public:
    /// @p core must outlive this object.
    explicit RecordChange(TradeCore& core);

    /// Reads the record that a file holds, checked as when loading. Returns what is wrong with it,
    /// a sentence each; such a file is of no use.
    static QStringList read(const QString& file, OwnedRecord& record);

    /// Each returns an empty text, or why nothing was changed.
    QString replace(const OwnedRecord& record);
    QString undo();

    /// Whether the record is still as the last change left it.
    bool canUndo() const;

private:
    TradeCore& m_core;
    bool m_done = false;
    OwnedRecord m_before;
    OwnedRecord m_after;
};
