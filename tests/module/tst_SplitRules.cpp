#include "tradeConfig/dialog/SplitRules.h"

#include <QtTest>

using SplitRules::Field;
using SplitRules::Quantities;
using SplitRules::Verdict;

Q_DECLARE_METATYPE(SplitRules::Field)
Q_DECLARE_METATYPE(SplitRules::Quantities)
Q_DECLARE_METATYPE(SplitRules::Verdict)

// The rules are numbers only: nothing here needs an application object.
class tst_SplitRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void check_data();
    void check();
    void clearsCompanion_data();
    void clearsCompanion();
    void limitsOfTheOtherKindDoNotMatter();
};

void tst_SplitRules::check_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<Quantities>("quantities");
    QTest::addColumn<Verdict>("verdict");

    const auto row = [](const char* name, Field field, const Quantities& quantities,
                        Verdict verdict) { QTest::newRow(name) << field << quantities << verdict; };

    // base, upper, lower, decrement
    row("base empty", Field::BaseQuantity, {0, 500, 500, 500}, Verdict::BelowMinimum);
    row("base 1", Field::BaseQuantity, {1, 500, 500, 500}, Verdict::BelowMinimum);
    row("base 99", Field::BaseQuantity, {99, 500, 500, 500}, Verdict::BelowMinimum);
    row("base 100", Field::BaseQuantity, {100, 500, 500, 500}, Verdict::Accepted);
    row("base 101", Field::BaseQuantity, {101, 500, 500, 500}, Verdict::Accepted);
    row("base at the top", Field::BaseQuantity, {10000000, 500, 500, 500}, Verdict::Accepted);
    row("base above all others", Field::BaseQuantity, {600, 500, 500, 500}, Verdict::Accepted);
    row("base below all others", Field::BaseQuantity, {100, 500, 500, 500}, Verdict::Accepted);
    row("base with all others empty", Field::BaseQuantity, {100, 0, 0, 0}, Verdict::Accepted);

    row("upper empty", Field::UpperLimit, {100, 0, 0, 0}, Verdict::BelowMinimum);
    row("upper 99", Field::UpperLimit, {100, 99, 0, 0}, Verdict::BelowMinimum);
    row("upper 99 below both", Field::UpperLimit, {100, 99, 500, 500}, Verdict::BelowMinimum);
    row("upper 100", Field::UpperLimit, {100, 100, 100, 100}, Verdict::Accepted);
    row("upper 100, companions empty", Field::UpperLimit, {100, 100, 0, 0}, Verdict::Accepted);
    row("upper at the top", Field::UpperLimit, {100, 10000000, 10000000, 10000000},
        Verdict::Accepted);
    row("upper equal to lower", Field::UpperLimit, {100, 500, 500, 100}, Verdict::Accepted);
    row("upper one less than lower", Field::UpperLimit, {100, 499, 500, 100},
        Verdict::UpperTooSmall);
    row("upper one more than lower", Field::UpperLimit, {100, 501, 500, 100}, Verdict::Accepted);
    row("upper equal to decrement", Field::UpperLimit, {100, 500, 100, 500}, Verdict::Accepted);
    row("upper one less than decrement", Field::UpperLimit, {100, 499, 100, 500},
        Verdict::UpperTooSmall);
    row("upper one more than decrement", Field::UpperLimit, {100, 501, 100, 500},
        Verdict::Accepted);
    row("upper one less than both", Field::UpperLimit, {100, 499, 500, 500},
        Verdict::UpperTooSmall);
    row("upper 100 below the top", Field::UpperLimit, {100, 100, 10000000, 0},
        Verdict::UpperTooSmall);
    row("upper below base", Field::UpperLimit, {1000, 500, 100, 100}, Verdict::Accepted);

    row("lower empty", Field::LowerLimit, {100, 500, 0, 100}, Verdict::BelowMinimum);
    row("lower 99", Field::LowerLimit, {100, 500, 99, 100}, Verdict::BelowMinimum);
    row("lower 99 above upper", Field::LowerLimit, {100, 50, 99, 100}, Verdict::BelowMinimum);
    row("lower 100", Field::LowerLimit, {100, 500, 100, 100}, Verdict::Accepted);
    row("lower equal to upper", Field::LowerLimit, {100, 500, 500, 100}, Verdict::Accepted);
    row("lower one less than upper", Field::LowerLimit, {100, 500, 499, 100}, Verdict::Accepted);
    row("lower one more than upper", Field::LowerLimit, {100, 500, 501, 100}, Verdict::AboveUpper);
    row("lower with upper empty", Field::LowerLimit, {100, 0, 100, 100}, Verdict::AboveUpper);
    row("lower at the top", Field::LowerLimit, {100, 10000000, 10000000, 100}, Verdict::Accepted);
    row("lower at the top above upper", Field::LowerLimit, {100, 9999999, 10000000, 100},
        Verdict::AboveUpper);
    row("lower beside a larger decrement", Field::LowerLimit, {100, 500, 500, 9999},
        Verdict::Accepted);

    row("decrement empty", Field::Decrement, {100, 500, 100, 0}, Verdict::BelowMinimum);
    row("decrement 99", Field::Decrement, {100, 500, 100, 99}, Verdict::BelowMinimum);
    row("decrement 100", Field::Decrement, {100, 500, 100, 100}, Verdict::Accepted);
    row("decrement equal to upper", Field::Decrement, {100, 500, 100, 500}, Verdict::Accepted);
    row("decrement one less than upper", Field::Decrement, {100, 500, 100, 499}, Verdict::Accepted);
    row("decrement one more than upper", Field::Decrement, {100, 500, 100, 501},
        Verdict::AboveUpper);
    row("decrement with upper empty", Field::Decrement, {100, 0, 100, 100}, Verdict::AboveUpper);
    row("decrement at the top", Field::Decrement, {100, 10000000, 100, 10000000},
        Verdict::Accepted);
    row("decrement beside a larger lower", Field::Decrement, {100, 500, 9999, 500},
        Verdict::Accepted);
}

void tst_SplitRules::check()
{
    QFETCH(Field, field);
    QFETCH(Quantities, quantities);
    QFETCH(Verdict, verdict);
    QCOMPARE(SplitRules::check(field, quantities), verdict);
}

void tst_SplitRules::clearsCompanion_data()
{
    QTest::addColumn<Field>("passed");
    QTest::addColumn<Quantities>("quantities");
    QTest::addColumn<bool>("base");
    QTest::addColumn<bool>("upper");
    QTest::addColumn<bool>("lower");
    QTest::addColumn<bool>("decrement");

    const auto row = [](const char* name, Field passed, const Quantities& quantities, bool upper,
                        bool lower, bool decrement) {
        QTest::newRow(name) << passed << quantities << false << upper << lower << decrement;
    };

    row("base clears nothing", Field::BaseQuantity, {100, 500, 100, 100}, false, false, false);
    row("upper clears both", Field::UpperLimit, {100, 500, 100, 100}, false, true, true);
    row("upper clears companions below the minimum", Field::UpperLimit, {100, 500, 50, 0}, false,
        true, true);
    row("lower, decrement less than upper", Field::LowerLimit, {100, 500, 100, 499}, true, false,
        false);
    row("lower, decrement equal to upper", Field::LowerLimit, {100, 500, 100, 500}, true, false,
        false);
    row("lower, decrement above upper", Field::LowerLimit, {100, 500, 100, 501}, false, false,
        false);
    row("lower, decrement empty", Field::LowerLimit, {100, 500, 100, 0}, true, false, false);
    row("decrement, lower less than upper", Field::Decrement, {100, 500, 499, 100}, true, false,
        false);
    row("decrement, lower equal to upper", Field::Decrement, {100, 500, 500, 100}, true, false,
        false);
    row("decrement, lower above upper", Field::Decrement, {100, 500, 501, 100}, false, false,
        false);
    row("decrement, lower empty", Field::Decrement, {100, 500, 0, 100}, true, false, false);
}

void tst_SplitRules::clearsCompanion()
{
    QFETCH(Field, passed);
    QFETCH(Quantities, quantities);
    QFETCH(bool, base);
    QFETCH(bool, upper);
    QFETCH(bool, lower);
    QFETCH(bool, decrement);
    QCOMPARE(SplitRules::clearsCompanion(passed, Field::BaseQuantity, quantities), base);
    QCOMPARE(SplitRules::clearsCompanion(passed, Field::UpperLimit, quantities), upper);
    QCOMPARE(SplitRules::clearsCompanion(passed, Field::LowerLimit, quantities), lower);
    QCOMPARE(SplitRules::clearsCompanion(passed, Field::Decrement, quantities), decrement);
}

void tst_SplitRules::limitsOfTheOtherKindDoNotMatter()
{
    // The verdict on the lower limit never depends on base and decrement, nor the other way round.
    for (const int other : {0, 99, 100, 500, 501, 10000000}) {
        QCOMPARE(SplitRules::check(Field::LowerLimit, {other, 500, 500, other}), Verdict::Accepted);
        QCOMPARE(SplitRules::check(Field::LowerLimit, {other, 500, 501, other}),
                 Verdict::AboveUpper);
        QCOMPARE(SplitRules::check(Field::Decrement, {other, 500, other, 500}), Verdict::Accepted);
        QCOMPARE(SplitRules::check(Field::Decrement, {other, 500, other, 501}),
                 Verdict::AboveUpper);
        QCOMPARE(SplitRules::check(Field::BaseQuantity, {100, other, other, other}),
                 Verdict::Accepted);
        QCOMPARE(SplitRules::check(Field::UpperLimit, {other, 500, 500, 500}), Verdict::Accepted);
    }
}

QTEST_APPLESS_MAIN(tst_SplitRules)
#include "tst_SplitRules.moc"
