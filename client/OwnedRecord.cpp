#include "client/OwnedRecord.h"

#include "client/RecordFields.h"

#include <QKeySequence>

using RecordFields::Field;
using RecordFields::Kind;

namespace {

// Keys are stored as this system writes them.
QString presetText(const Field& field, int index)
{
    const QString preset = QLatin1String(field.textDefaults[index]);
    if (!field.isKeys)
        return preset;
    return QKeySequence(preset, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

} // namespace

OwnedRecord::OwnedRecord()
    : m_record(std::make_unique<TradeParm>())
{
    for (const Field& field : RecordFields::all()) {
        for (int i = 0; field.kind != Kind::Bytes && i < field.count; ++i) {
            if (field.kind == Kind::Integer)
                RecordFields::setInteger(*m_record, field, i, field.defaults[i]);
            else
                RecordFields::setText(*m_record, field, i, presetText(field, i));
        }
    }
}

OwnedRecord::~OwnedRecord() = default;

OwnedRecord::OwnedRecord(const OwnedRecord& other)
    : m_record(std::make_unique<TradeParm>(*other.m_record))
{
}

OwnedRecord& OwnedRecord::operator=(const OwnedRecord& other)
{
    *m_record = *other.m_record;
    return *this;
}

bool OwnedRecord::operator==(const OwnedRecord& other) const
{
    for (const Field& field : RecordFields::all()) {
        const int count = field.kind == Kind::Bytes ? 1 : field.count;
        for (int i = 0; i < count; ++i) {
            if (RecordFields::displayValue(*m_record, field, i)
                != RecordFields::displayValue(*other.m_record, field, i))
                return false;
        }
    }
    return true;
}
