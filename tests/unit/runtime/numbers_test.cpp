#include "runtime/numbers.h"

#include <limits>

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"
#include "unit/runtime/random_values.h"

namespace terravane {
namespace {

TEST(NumberText, WritesFifteenDigitsOfADouble)
{
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(-0.5), "-0.5");
    EXPECT_EQ(NumberText(40.0), "40");
    EXPECT_EQ(NumberText(0.0), "0");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(34.56 - 12.3), "22.26");
    EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
}

TEST(NumberText, WritesSevenDigitsOfASingle)
{
    EXPECT_EQ(NumberText(0.1F), "0.1");
    EXPECT_EQ(NumberText(1.0F / 3), "0.3333333");
    EXPECT_EQ(NumberText(-2.5F), "-2.5");
    EXPECT_EQ(NumberText(1234567.0F), "1234567");
}

TEST(NumberText, WritesAnExponentWhereTheDigitsEnd)
{
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(-1.5e300), "-1.5E+300");
    EXPECT_EQ(NumberText(0.0001), "0.0001");
    EXPECT_EQ(NumberText(0.00001), "1E-05");
    EXPECT_EQ(NumberText(1e7F), "1E+07");
}

TEST(NumberText, IsReadBackAsTheSameFifteenDigits)
{
    RandomValues random(11);
    for (int round = 0; round < 100'000; ++round) {
        const std::string text = NumberText(random.OfAnySize());
        ASSERT_EQ(NumberText(Val(text)), text);
    }
}

TEST(SignedNumberText, KeepsAPlaceForTheSignAndDropsTheZeroBeforeThePoint)
{
    EXPECT_EQ(SignedNumberText(40.0), " 40");
    EXPECT_EQ(SignedNumberText(0.5), " .5");
    EXPECT_EQ(SignedNumberText(-0.5), "-.5");
    EXPECT_EQ(SignedNumberText(-5.25), "-5.25");
    EXPECT_EQ(SignedNumberText(0.0), " 0");
    EXPECT_EQ(SignedNumberText(-0.0), " 0");
    EXPECT_EQ(SignedNumberText(10.05), " 10.05");
    EXPECT_EQ(SignedNumberText(0.5F), " .5");
    EXPECT_EQ(SignedNumberText(-33.3F), "-33.3");
}

TEST(Divide, FailsWhereItStands)
{
    EXPECT_EQ(Divide(1, 4), 0.25);
    EXPECT_EQ(ErrorOf([] { Divide(0, 0); }), error::kOverflow);
    EXPECT_EQ(ErrorOf([] { Divide(1, 0); }), error::kDivisionByZero);
    EXPECT_EQ(ErrorOf([] { Divide(-1, -0.0); }), error::kDivisionByZero);
    EXPECT_EQ(ErrorOf([] { Divide(1e300, 1e-300); }), error::kOverflow);
}

TEST(Log, IsNaturalAndFailsAtZeroAndBelow)
{
    EXPECT_DOUBLE_EQ(Log(10), 2.302585092994046);
    EXPECT_EQ(Log(1), 0);
    EXPECT_EQ(ErrorOf([] { Log(0); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { Log(-1); }), error::kInvalidProcedureCall);
}

TEST(Int, GoesDownAlsoBelowZero)
{
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-2.1), -3);
    EXPECT_EQ(Int(-2), -2);
}

TEST(ToInteger, RoundsHalvesToTheEvenNumber)
{
    EXPECT_EQ(ToInteger(0.5), 0);
    EXPECT_EQ(ToInteger(1.5), 2);
    EXPECT_EQ(ToInteger(2.5), 2);
    EXPECT_EQ(ToInteger(-0.5), 0);
    EXPECT_EQ(ToInteger(-1.5), -2);
    EXPECT_EQ(ToInteger(2.51), 3);
}

TEST(ToInteger, OverflowsBeyondSixteenBits)
{
    EXPECT_EQ(ToInteger(32767.4), 32767);
    EXPECT_EQ(ToInteger(-32768.5), -32768);
    EXPECT_EQ(ErrorOf([] { ToInteger(32767.5); }), error::kOverflow);
    EXPECT_EQ(ErrorOf([] { ToInteger(-32769); }), error::kOverflow);
    EXPECT_EQ(ErrorOf([] { ToInteger(std::numeric_limits<double>::quiet_NaN()); }), error::kOverflow);
}

TEST(RuntimeError, HasThePlatformsDescriptionOfItsNumber)
{
    EXPECT_EQ(RuntimeError(error::kDivisionByZero).Description(), "Division by zero");
    EXPECT_EQ(RuntimeError(error::kOverflow).Description(), "Overflow");
    EXPECT_EQ(RuntimeError(error::kDialogCancelled).Description(), "Cancel was selected.");
    EXPECT_EQ(RuntimeError(1234).Description(), "Application-defined or object-defined error");
    EXPECT_EQ(RuntimeError(-2147217900, "Syntax error in 'x'").Description(), "Syntax error in 'x'");
    EXPECT_EQ(RuntimeError(-2147217900, "Syntax error in 'x'").Number(), -2147217900);
}

}  // namespace
}  // namespace terravane
