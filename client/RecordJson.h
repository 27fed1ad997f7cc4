#pragma once

#include <QJsonObject>
#include <QStringList>

class OwnedRecord;

/// The record as JSON: every field by its name.
namespace RecordJson {

QJsonObject fromRecord(const OwnedRecord& record);

/// Takes every right value of @p object into @p record. Each wrong one, by its type or its range,
/// leaves the field or the array's element as it is and is one sentence of the result.
QStringList toRecord(const QJsonObject& object, OwnedRecord& record);

/// @p object without the fields of the record.
QJsonObject foreignFields(QJsonObject object);

} // namespace RecordJson
