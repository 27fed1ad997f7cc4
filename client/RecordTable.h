#pragma once

#include <QString>
#include <QVector>

#include <cstddef>

/// The trade record as data: every field's name, place, range, default and meaning.
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

} // namespace RecordFields
