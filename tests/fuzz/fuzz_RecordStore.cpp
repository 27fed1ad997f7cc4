// Any bytes as the record's file: loading gives a record in range, loses nothing, and what is
// saved afterwards loads again.

#include "client/DataDirectory.h"
#include "client/OwnedRecord.h"
#include "client/RecordFields.h"
#include "client/RecordStore.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>

using RecordFields::Field;
using RecordFields::Kind;

namespace {

bool isInRange(const OwnedRecord& record, const Field& field)
{
    for (int i = 0; field.kind != Kind::Bytes && i < field.count; ++i) {
        const bool allowed = field.kind == Kind::Integer
            ? RecordFields::isAllowed(field, RecordFields::integer(record.get(), field, i))
            : RecordFields::isAllowed(field, RecordFields::text(record.get(), field, i));
        if (!allowed)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const DataDirectory directory(FuzzSetup::application());
    MUST(directory.makeConfigDirectory());
    const auto text = QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
    writeFile(directory.recordFile(), text);

    RecordStore store(directory);
    OwnedRecord record;
    const RecordStore::LoadReport report = store.load(record);
    for (const Field& field : RecordFields::all())
        MUST(isInRange(record, field));
    if (report.isClean()) {
        MUST(QFile::exists(directory.recordFile()));
        MUST(contentOf(directory.recordFile()) == text);
    } else {
        MUST(!report.message().isEmpty());
        MUST(contentOf(report.setAside) == text);
        MUST(QFile::remove(report.setAside));
    }

    MUST(store.save(record).isEmpty());
    OwnedRecord again;
    MUST(RecordStore(directory).load(again).isClean());
    MUST(again == record);
    MUST(QFile::remove(directory.recordFile()));
    return 0;
}
