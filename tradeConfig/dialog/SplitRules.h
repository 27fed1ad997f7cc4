#pragma once

#include <array>

/**
 * The quantity rules of order splitting, as pure functions of numbers (shares).
 *
 * The same rules serve the stock and the STAR group.
 */
namespace SplitRules {

enum class Field { BaseQuantity, UpperLimit, LowerLimit, Decrement };

constexpr std::array<Field, 4> allFields
    = {Field::BaseQuantity, Field::UpperLimit, Field::LowerLimit, Field::Decrement};

/// The smallest quantity of every field, in shares.
constexpr int minimumQuantity = 100;

struct Quantities {
    int base = 0;
    int upper = 0;
    int lower = 0;
    int decrement = 0;
};

enum class Verdict { Accepted, BelowMinimum, UpperTooSmall, AboveUpper };

/// Checks one field against the minimum and its companions.
Verdict check(Field field, const Quantities& quantities);

/// Whether @p passed, just accepted, makes the failed check of @p companion obsolete.
/// An accepted upper limit clears both its companions whatever they hold.
bool clearsCompanion(Field passed, Field companion, const Quantities& quantities);

} // namespace SplitRules
