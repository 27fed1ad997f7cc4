#pragma once

#include "tradeConfig/ITrade.h"

#include <QString>
#include <QVector>

#include <cstddef>
#include <memory>

/**
 * The trade record as data: every field's name, place, range, default and meaning.
 *
 * The strings of the record stand at addresses that are no multiple of their alignment (the
 * packing is the contract), so every access goes through the few functions here.
 */
namespace RecordFields {

enum class Kind { Integer, Text, Bytes };

/// What one stored number or code means to the user, in the source language.
struct Meaning {
    int value;
    const char* code; ///< for texts; null for integers
    const char* text;
};

/// What the table says about one field of the record.
struct Field {
    const char* name = nullptr; ///< as in the record and in the file
    const char* title = nullptr; ///< for the user, source language
    std::size_t offset = 0; ///< in bytes from the start of the record
    Kind kind = Kind::Integer;
    int count = 1; ///< elements of an array, bytes of a reserved stretch
    bool isArray = false;
    int minimum = 0; ///< integers only, inclusive
    int maximum = 0; ///< integers only, inclusive
    const Meaning* meanings = nullptr; ///< all there are, or null
    int meaningCount = 0;
    const char* otherMeaning = nullptr; ///< of every value not in @c meanings, or null
    const char* unit = nullptr; ///< of a plain number, source language, or null
    const int* defaults = nullptr; ///< integers: @c count of them
    const char* const* textDefaults = nullptr; ///< texts: @c count of them
    const char* const* elementTitles = nullptr; ///< arrays: @c count of them
    bool isKeys = false; ///< key sequences: in native form in the record, defaults portable
};

/// All fields, in the record's order.
const QVector<Field>& all();

/// The field of that name, or null.
const Field* find(const QString& name);

// @p index runs from 0 to count - 1.
int integer(const TradeParm& record, const Field& field, int index);
void setInteger(TradeParm& record, const Field& field, int index, int value);
/// Texts are converted from and to the local 8-bit encoding.
QString text(const TradeParm& record, const Field& field, int index);
void setText(TradeParm& record, const Field& field, int index, const QString& value);
/// A reserved stretch, whole.
QByteArray bytes(const TradeParm& record, const Field& field);
/// @p value must be exactly as long as the stretch.
void setBytes(TradeParm& record, const Field& field, const QByteArray& value);

/// True for an integer in the field's range, and for a code that the field knows.
bool isAllowed(const Field& field, int value);
bool isAllowed(const Field& field, const QString& value);
/// The allowed values in words, for messages.
QString allowedValues(const Field& field);

/// The element's value as it is stored, for display.
QString displayValue(const TradeParm& record, const Field& field, int index);
/// What the element's value means, translated; empty when there is nothing to add.
QString meaning(const TradeParm& record, const Field& field, int index);
/// The field's (or the array element's) title, translated.
QString title(const Field& field, int index);
/// "splitMaxQty", or "stockShortcuts[4]" for an element of an array.
QString elementName(const Field& field, int index);

} // namespace RecordFields

/**
 * A record and its storage. The object constructs and destroys the strings itself, because a
 * TradeParm variable's own constructor would touch them at addresses that the alignment
 * sanitizer objects to.
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
    void construct();
    void assign(const OwnedRecord& other);

    struct alignas(16) Storage {
        unsigned char data[sizeof(TradeParm)];
    };
    std::unique_ptr<Storage> m_storage;
    TradeParm* m_record;
};
