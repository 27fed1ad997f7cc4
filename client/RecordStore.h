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
        QString setAside; ///< where the file as it was is kept; empty when it is not
        bool isClean() const { return problems.isEmpty(); }
        /// The whole story for the user; empty when all was well.
        QString message() const;

    private:
        friend class RecordStore;
        enum Damage { None, WrongValues, Whole };
        QString file;
        Damage damage = None;
        bool keeping = false; ///< setting the file aside was tried
    };

    explicit RecordStore(const DataDirectory& directory);

    QString fileName() const { return m_fileName; }

    /// Fills @p record. A missing file gives the defaults, as do a missing field and a wrong value;
    /// of a file that does not parse nothing is used. Changes nothing outside @p record.
    LoadReport read(OwnedRecord& record);

    /// The same, and keeps the file if anything is wrong with it, under a name with the date. Of a
    /// file with wrong values a copy is kept, unless there is one already; a file that does not
    /// parse is renamed.
    LoadReport load(OwnedRecord& record);

    /// Replaces the file. Returns an empty text, or why it failed; the old file is then as it
    /// was. A value that read() would refuse is refused here, and so is everything as long as a
    /// file that was not right could not be kept.
    QString save(const OwnedRecord& record);

    /// Keeps @p record under a dated name of its own beside the file. Returns an empty text, or why
    /// it failed.
    QString keepOld(const OwnedRecord& record) const;

    /// Removes what writes that were cut short have left. Only the one client that holds the
    /// data directory may call it.
    void removeLeftovers() const;

    /// The record as the file shows it, without foreign fields.
    static QByteArray toJson(const OwnedRecord& record);

private:
    QString keepAside();
    QString earlierCopy() const;
    QString datedName(const QString& kind) const;

    const DataDirectory& m_directory;
    QString m_fileName;
    QJsonObject m_foreign;
    LoadReport::Damage m_toKeep = LoadReport::None;
    QByteArray m_wrongFile; ///< its content, when it is to be kept for its wrong values
};
