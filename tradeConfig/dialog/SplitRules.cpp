#include "tradeConfig/dialog/SplitRules.h"

namespace SplitRules {

namespace {

int quantityOf(Field field, const Quantities& quantities)
{
    switch (field) {
    case Field::BaseQuantity:
        return quantities.base;
    case Field::UpperLimit:
        return quantities.upper;
    case Field::LowerLimit:
        return quantities.lower;
    case Field::Decrement:
        break;
    }
    return quantities.decrement;
}

} // namespace

Verdict check(Field field, const Quantities& quantities)
{
    const int quantity = quantityOf(field, quantities);
    if (quantity < minimumQuantity)
        return Verdict::BelowMinimum;
    switch (field) {
    case Field::BaseQuantity:
        return Verdict::Accepted;
    case Field::UpperLimit:
        return quantities.lower > quantity || quantities.decrement > quantity
            ? Verdict::UpperTooSmall
            : Verdict::Accepted;
    case Field::LowerLimit:
    case Field::Decrement:
        break;
    }
    return quantities.upper < quantity ? Verdict::AboveUpper : Verdict::Accepted;
}

bool clearsCompanion(Field passed, Field companion, const Quantities& quantities)
{
    switch (passed) {
    case Field::BaseQuantity:
        return false;
    case Field::UpperLimit:
        return companion == Field::LowerLimit || companion == Field::Decrement;
    // The field that just passed was itself compared with the upper limit, so only the other
    // companion is left to test.
    case Field::LowerLimit:
        return companion == Field::UpperLimit && quantities.decrement <= quantities.upper;
    case Field::Decrement:
        break;
    }
    return companion == Field::UpperLimit && quantities.lower <= quantities.upper;
}

} // namespace SplitRules
