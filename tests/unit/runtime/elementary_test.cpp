// The same digits on every machine: two million values, compared with a wider arithmetic and with a sum over all their
// bits that was made once. The system's own functions would not pass: they are off in some values of a thousand.
#include "runtime/elementary.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "runtime/numbers.h"

namespace terravane {
namespace {

constexpr int kValues = 1'000'000;

/// Takes each result into one number, by its bits.
class BitSum {
  public:
    void Add(double value) { sum_ = (sum_ ^ std::bit_cast<std::uint64_t>(value)) * 1099511628211U; }
    std::uint64_t Total() const { return sum_; }

  private:
    std::uint64_t sum_ = 14695981039346656037U;
};

/// Numbers from 0 to 1 that are the same everywhere.
class Draws {
  public:
    double Next()
    {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 11) * 0x1p-53;
    }

  private:
    std::uint64_t state_ = 20261121;
};

/// How many units of the last place a value is off.
double Off(double value, long double exact)
{
    const double unit = std::nextafter(std::fabs(value), std::numeric_limits<double>::infinity()) - std::fabs(value);
    return static_cast<double>(std::fabs(exact - value) / unit);
}

TEST(NaturalLogarithm, GivesTheSameBitsOfAMillionValuesOnEveryMachine)
{
    Draws draws;
    BitSum sum;
    double worst = 0;
    for (int i = 0; i < kValues; ++i) {
        const double value = std::ldexp(1 + draws.Next(), i % 41 - 20);
        const double logarithm = NaturalLogarithm(value);
        sum.Add(logarithm);
        worst = std::max(worst, Off(logarithm, std::log(static_cast<long double>(value))));
    }
    EXPECT_LT(worst, 0.501) << "the nearest double";
    EXPECT_EQ(sum.Total(), 8873005505420128970U);
}

TEST(Exponential, GivesTheSameBitsOfAMillionValuesOnEveryMachine)
{
    Draws draws;
    BitSum sum;
    double worst = 0;
    for (int i = 0; i < kValues; ++i) {
        const double exponent = (draws.Next() - 0.5) * (i % 3 == 0 ? 1400 : 60);
        const double power = Exponential(exponent);
        sum.Add(power);
        worst = std::max(worst, Off(power, std::exp(static_cast<long double>(exponent))));
    }
    EXPECT_LT(worst, 0.501) << "the nearest double";
    EXPECT_EQ(sum.Total(), 11428927968269008028U);
}

// What the sheets take logarithms of: blows, grain diameters, masses, with their decimals; printed with six decimals.
TEST(NaturalLogarithm, PrintsTheSystemsOwnDigitsOfEveryReading)
{
    constexpr std::string_view kTwelveDecimals = "0.000000000000";
    for (int hundredths = 1; hundredths <= 100'000; ++hundredths) {
        const double reading = hundredths / 100.0;
        ASSERT_EQ(Format(NaturalLogarithm(reading), kTwelveDecimals), Format(std::log(reading), kTwelveDecimals))
            << reading;
    }
}

// The tables of the methods themselves, entry by entry.
TEST(NaturalLogarithm, IsTheNearestDoubleForEverySieveAndEveryNumberOfBlows)
{
    constexpr double kOpenings[]{50,   38.1, 25,    19,  12.5, 9.51, 4.75, 2.6,   2,    1.19,
                                 0.85, 0.59, 0.425, 0.3, 0.25, 0.18, 0.15, 0.106, 0.075};  // mm
    for (const double opening : kOpenings)
        EXPECT_EQ(NaturalLogarithm(opening), static_cast<double>(std::log(static_cast<long double>(opening))))
            << opening;
    for (int blows = 1; blows <= 100; ++blows)
        EXPECT_EQ(NaturalLogarithm(blows), static_cast<double>(std::log(static_cast<long double>(blows)))) << blows;
}

TEST(NaturalLogarithm, IsExactWhereTheLogarithmIs)
{
    EXPECT_EQ(NaturalLogarithm(1), 0);
    EXPECT_EQ(NaturalLogarithm(std::numeric_limits<double>::infinity()), std::numeric_limits<double>::infinity());
    EXPECT_DOUBLE_EQ(NaturalLogarithm(std::numeric_limits<double>::denorm_min()), -744.44007192138122);
}

TEST(Exponential, EndsWhereADoubleDoes)
{
    EXPECT_EQ(Exponential(0), 1);
    EXPECT_EQ(Exponential(710), std::numeric_limits<double>::infinity());
    EXPECT_EQ(Exponential(-746), 0);
    EXPECT_TRUE(std::isnan(Exponential(std::numeric_limits<double>::quiet_NaN())));
}

}  // namespace
}  // namespace terravane
