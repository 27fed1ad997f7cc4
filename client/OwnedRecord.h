#pragma once

#include "tradeConfig/ITrade.h"

#include <memory>

/**
 * A record and its storage.
 *
 * Its strings are made, copied and destroyed in OwnedRecord.cpp alone: they stand at addresses
 * that the alignment sanitizer objects to.
 */
class OwnedRecord {
public:
    /// All fields at their defaults, reserved stretches zero.
    OwnedRecord();
    ~OwnedRecord();
    OwnedRecord(const OwnedRecord& other);
    OwnedRecord& operator=(const OwnedRecord& other);

    TradeParm& get() { return *m_record; }
    const TradeParm& get() const { return *m_record; }

    bool operator==(const OwnedRecord& other) const;
    bool operator!=(const OwnedRecord& other) const { return !(*this == other); }

private:
    std::unique_ptr<TradeParm> m_record;
};
