#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class OwnedRecord;

/// A record in a file, whoever wrote it.
namespace RecordFile {

/// What a file holds beside the record.
struct Content {
    QStringList problems; ///< one sentence for each wrong value; empty when all was well
    bool isRecord = false; ///< false when nothing of it can be used
    QByteArray bytes;
    QJsonObject foreign; ///< the fields that are none of the record's
};

/// Fills @p record. A missing field gives its default, and so does a wrong value; of a file that
/// does not parse nothing is used. Changes nothing outside @p record.
Content read(const QString& name, OwnedRecord& record);

/// Replaces the file @p name by @p record alone. Returns an empty text, or why it failed.
QString write(const QString& name, const OwnedRecord& record);

} // namespace RecordFile
