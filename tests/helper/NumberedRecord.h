#pragma once

#include "client/OwnedRecord.h"
#include "client/RecordFields.h"

/// A record that carries @p number (up to 9999999) from its first field to its last, and
/// is longer or shorter with it.
inline OwnedRecord numberedRecord(int number)
{
    OwnedRecord record;
    record.get().splitBaseQty = number;
    record.get().starSplitStepQty = number;
    for (const char* const name : {"stockShortcuts", "creditShortcuts"}) {
        const RecordFields::Field& field = *RecordFields::find(QLatin1String(name));
        for (int i = 0; i < field.count; ++i)
            RecordFields::setText(record.get(), field, i,
                                  QString(number % 97, QLatin1Char('x')) + QString::number(number));
    }
    return record;
}
