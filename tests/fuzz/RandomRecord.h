#pragma once

#include <QByteArray>

class FakeTrade;
class FuzzInput;

namespace RandomRecord {

/// A key text as a record may hold it: known ones, an empty one, any bytes.
QByteArray someKeys(FuzzInput& input);

/// Gives every field of the core's record that the module knows a value that it may hold, in range
/// or not.
void fill(FakeTrade& trade, FuzzInput& input);

} // namespace RandomRecord
