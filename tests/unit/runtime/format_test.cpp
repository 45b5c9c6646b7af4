#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "unit/runtime/random_values.h"

namespace terravane {
namespace {

struct Shown {
    double value;
    const char* mask;
    const char* text;
};

TEST(Format, FillsTheMask)
{
    constexpr Shown kTable[] = {
        {0, "#0.00", "0.00"},
        {1, "#0.00", "1.00"},
        {12.3, "#0.00", "12.30"},
        {-12.3, "#0.00", "-12.30"},
        {1234567.891, "#0.00", "1234567.89"},
        {9.995, "#0.00", "10.00"},
        {0.5, "#0.0", "0.5"},
        {.5, "#.00", ".50"},
        {-.5, "#.00", "-.50"},
        {0, "#.00", ".00"},
        {12.5, "#.00", "12.50"},
        {1.5, "##0.0#####0", "1.5000000"},
        {0, "##0.0#####0", "0.0000000"},
        {-0.12345678, "##0.0#####0", "-0.1234568"},
        {12.345, "##0.0#0", "12.345"},
        {12, "##0.0#0", "12.000"},
        {1.5, "###0.00", "1.50"},
        {1.5, "000.00", "001.50"},
        {1.5, "#00.00", "01.50"},
        {1.5, "0.000", "1.500"},
        {1.5, "#0", "2"},
        {0.2, "#0", "0"},
        {1.25, "0.0##", "1.25"},
        {1, "0.0##", "1.0"},
        {100, "0.0##", "100.0"},
        {1.2345, "0.0##", "1.235"},
        {0.0016, "#0.000000", "0.001600"},
    };
    for (const auto& [value, mask, text] : kTable) EXPECT_EQ(Format(value, mask), text) << value << ' ' << mask;
}

// 2.675 is stored as 2.67499999999999982; its 15 digits are 2.67500000000000, a half, which goes away from
// zero.
TEST(Format, RoundsTheDecimalValueHalfAwayFromZero)
{
    constexpr Shown kTable[] = {
        {2.675, "#0.00", "2.68"},     {-2.675, "#0.00", "-2.68"}, {1.005, "#0.00", "1.01"},
        {0.125, "#0.00", "0.13"},     {0.375, "#0.00", "0.38"},   {2.5, "#0", "3"},
        {-2.5, "#0", "-3"},           {0.5, "#0", "1"},           {0.45, "#0.0", "0.5"},
        {2.674, "#0.00", "2.67"},     {2.6749, "#0.00", "2.67"},  {0.00000005, "##0.0#####0", "0.0000001"},
        {1.15, "#0.0", "1.2"},        {8.345, "#0.00", "8.35"},   {0.285, "#0.00", "0.29"},
        {1.0049999, "#0.00", "1.00"},
    };
    for (const auto& [value, mask, text] : kTable) EXPECT_EQ(Format(value, mask), text) << value << ' ' << mask;
}

// 1.00499999999999 has 15 digits and stays below the half; 1.004999999999999 has 16, which 15 digits
// make 1.00500000000000.
TEST(Format, SeesFifteenDigits)
{
    EXPECT_EQ(Format(1.00499999999999, "#0.00"), "1.00");
    EXPECT_EQ(Format(1.004999999999999, "#0.00"), "1.01");
    EXPECT_EQ(Format(0.1 + 0.2, "0.00000000000000000"), "0.30000000000000000");
}

TEST(Format, PrintsNoSignBeforeAZero)
{
    EXPECT_EQ(Format(-0.001, "#0.00"), "0.00");
    EXPECT_EQ(Format(-0.0, "#0.00"), "0.00");
    EXPECT_EQ(Format(-0.0049999, "#0.00"), "0.00");
    EXPECT_EQ(Format(-0.005, "#0.00"), "-0.01");
    EXPECT_EQ(Format(-1e-300, "##0.0#####0"), "0.0000000");
}

TEST(Format, PrintsAllDigitsOfLargeValues)
{
    EXPECT_EQ(Format(1e20, "#0.00"), "100000000000000000000.00");
    EXPECT_EQ(Format(123456789012345678.0, "#0"), "123456789012346000");
    EXPECT_EQ(Format(99999999999999.95, "#0.0"), "100000000000000.0");
    EXPECT_EQ(Format(1e308, "#0").size(), 309u);
}

TEST(Format, SurvivesWhatIsNoNumber)
{
    EXPECT_FALSE(Format(std::numeric_limits<double>::infinity(), "#0.00").empty());
    EXPECT_FALSE(Format(std::numeric_limits<double>::quiet_NaN(), "#0.00").empty());
    EXPECT_EQ(Format(1.5, ""), "2");
    EXPECT_EQ(Format(1.5, "0." + std::string(40, '0')), "1.5" + std::string(39, '0'));
}

TEST(Format, FormatsATextThatIsANumber)
{
    EXPECT_EQ(Format("1e2", "#0.00"), "100.00");
    EXPECT_EQ(Format("+80.46", "#0.0"), "80.5");
    EXPECT_EQ(Format("  7 ", "#0.00"), "7.00");
    EXPECT_EQ(Format("0", "#0.00"), "0.00");
}

TEST(Format, ReturnsAnyOtherTextAsItCame)
{
    for (const char* text : {"85.32g", "", "   ", " x ", "1,234", "-", "."}) EXPECT_EQ(Format(text, "#0.00"), text);
}

/// The rule by a second method: the C library writes the 15 digits, and the half is found on the written
/// text.
std::string RoundedOnPaper(double value, int places)
{
    std::array<char, 400> written;
    std::snprintf(written.data(), written.size(), "%.14e", std::abs(value));
    const std::string scientific = written.data();
    std::string digits = std::string(400, '0') + scientific[0] + scientific.substr(2, 14) + std::string(400, '0');
    const auto point = static_cast<std::size_t>(401 + std::stoi(scientific.substr(scientific.find('e') + 1)));
    const std::size_t cut = point + static_cast<std::size_t>(places);
    if (digits[cut] >= '5') {
        std::size_t at = cut;
        while (digits[--at] == '9') digits[at] = '0';
        ++digits[at];
    }
    const std::size_t first = std::min(digits.find_first_not_of('0'), point - 1);
    std::string text = digits.substr(first, point - first);
    if (places > 0) text += "." + digits.substr(point, static_cast<std::size_t>(places));
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    return value < 0 && !isZero ? "-" + text : text;
}

struct Places {
    const char* mask;
    int places;
};
constexpr Places kMasks[] = {{"#0", 0},      {"#0.0", 1},      {"#0.00", 2},       {"##0.0#0", 3},
                             {"#0.0000", 4}, {"#0.000000", 6}, {"##0.0#####0", 7}, {"0.000000000000", 12}};

void ExpectAsOnPaper(double value)
{
    for (const auto& [mask, places] : kMasks) {
        const std::string text = Format(value, mask);
        ASSERT_EQ(text, RoundedOnPaper(value, places)) << NumberText(value) << " under " << mask;
        ASSERT_EQ(RoundedToPlaces(value, places), Val(text)) << NumberText(value) << " to " << places;
    }
}

TEST(Format, AgreesWithRoundingOnPaperForAnySize)
{
    RandomValues random(3);
    for (int round = 0; round < Rounds(10'000); ++round) ExpectAsOnPaper(random.OfAnySize());
}

TEST(Format, AgreesWithRoundingOnPaperForTypedReadings)
{
    RandomValues random(4);
    for (int round = 0; round < Rounds(10'000); ++round) ExpectAsOnPaper(random.Typed());
}

// The doubles nearest around a half: up to forty steps to each side cross the 15th digit.
TEST(Format, AgreesWithRoundingOnPaperAroundEveryHalf)
{
    RandomValues random(5);
    for (int round = 0; round < Rounds(200); ++round) {
        const double places = std::pow(10.0, static_cast<double>(random.Below(8)));
        double value =
            (static_cast<double>(random.Below(1 + (random.Bits() >> 24 >> random.Below(38)))) + 0.5) / places;
        for (int step = 0; step < 40; ++step) value = std::nextafter(value, 0.0);
        for (int step = 0; step < 80; ++step, value = std::nextafter(value, 1e300)) ExpectAsOnPaper(value);
    }
}

TEST(Format, AgreesWithRoundingOnPaperForAnyBits)
{
    RandomValues random(6);
    for (int round = 0; round < Rounds(2'000); ++round) {
        const double value = std::bit_cast<double>(random.Bits());
        if (std::isfinite(value)) ExpectAsOnPaper(value);
    }
}

TEST(Format, LeavesItsOwnTextAsItIs)
{
    RandomValues random(7);
    for (int round = 0; round < 50'000; ++round) {
        const double value = round % 2 == 0 ? random.OfAnySize() : random.Typed();
        for (const char* mask : {"#0.00", "##0.0#####0", "#.00"}) {
            const std::string once = Format(value, mask);
            ASSERT_EQ(Format(once, mask), once);
            ASSERT_EQ(Format(Val(once), mask), once);
        }
    }
}

TEST(Format, NeverShowsTheLargerOfTwoValuesAsTheSmaller)
{
    RandomValues random(8);
    for (int round = 0; round < 100'000; ++round) {
        const double value = random.Typed();
        const double next = value + std::abs(value) * 1e-14 * static_cast<double>(random.Below(100));
        ASSERT_LE(Val(Format(value, "#0.00")), Val(Format(next, "#0.00"))) << NumberText(value);
    }
}

}  // namespace
}  // namespace terravane
