#pragma once

#include "client/OwnedRecord.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class DataDirectory;

/**
 * Keeps the record in a JSON file: every field by its name, human-readable.
 *
 * The file is replaced as a whole, so whoever reads it, and whenever a write is cut short,
 * finds the old record or the new one. Fields that the store does not know are kept.
 */
class RecordStore {
    Q_DECLARE_TR_FUNCTIONS(RecordStore)

public:
    /// What loading found.
    struct LoadReport {
        QStringList problems; ///< one sentence for each wrong value; empty when all was well
        QString setAside; ///< where the unusable file went; empty when it could not be moved
        bool isClean() const { return problems.isEmpty(); }
        /// The whole story for the user; empty when all was well.
        QString message() const;

    private:
        friend class RecordStore;
        QString file;
    };

    explicit RecordStore(const DataDirectory& directory);

    QString fileName() const { return m_fileName; }

    /// Fills @p record. A missing file gives the defaults, as does a missing field. An unusable
    /// file is moved aside under a name of its own and all fields get their defaults.
    LoadReport load(OwnedRecord& record);

    /// Replaces the file. Returns an empty text, or why it failed; the old file is then as it
    /// was. A value that load() would refuse is refused here.
    QString save(const OwnedRecord& record);

    /// Removes what writes that were cut short have left. Only the one client that holds the
    /// data directory may call it.
    void removeLeftovers() const;

    /// The record as the file shows it, without foreign fields.
    static QByteArray toJson(const OwnedRecord& record);

private:
    QString moveAside() const;

    const DataDirectory& m_directory;
    QString m_fileName;
    QJsonObject m_foreign;
    bool m_mustMoveAside = false;
};
