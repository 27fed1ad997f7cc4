#pragma once

#include "client/RecordTable.h"

#include <QByteArray>
#include <QString>

#include <functional>

struct TradeParm;

/**
 * Access to the fields of a record by the table.
 *
 * The strings of the record stand at addresses that are no multiple of their alignment (the
 * packing is the contract), so every access to them goes through the few functions here.
 */
namespace RecordFields {

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
/// A text of the table, or of this file, in some language.
using Translate = std::function<QString(const char* source)>;
/// In the language of the interface.
QString translated(const char* source);
/// What the element's value means; empty when there is nothing to add.
QString meaning(const TradeParm& record, const Field& field, int index,
                const Translate& say = translated);
/// The element's value in a word: what it means, or as it is stored.
QString shortly(const TradeParm& record, const Field& field, int index);
/// The field's (or the array element's) title.
QString title(const Field& field, int index, const Translate& say = translated);
/// "splitMaxQty", or "stockShortcuts[4]" for an element of an array.
QString elementName(const Field& field, int index);

} // namespace RecordFields
