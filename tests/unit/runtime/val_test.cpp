#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "unit/runtime/random_values.h"

namespace terravane {
namespace {

struct Reading {
    const char* text;
    double value;
};

TEST(Val, ReadsTheLeadingNumberOfAText)
{
    constexpr Reading kReadings[] = {
        {"", 0},
        {"   ", 0},
        {"12", 12},
        {"12.5", 12.5},
        {"-12.5", -12.5},
        {"+80.46", 80.46},
        {".5", .5},
        {"-.5", -.5},
        {"5.", 5},
        {".", 0},
        {"-", 0},
        {"+", 0},
        {"-.", 0},
        {"abc", 0},
        {"85.32g", 85.32},
        {"1,234", 1},
        {"5-", 5},
        {"1.2.3", 1.2},
        {"1 2", 1},
        {"- 5", 0},
        {"--5", 0},
        {" \t\r\n 7", 7},
        {"7 ", 7},
        {"20%", 20},
        {"12/5", 12},
        {"0012", 12},
        {"0", 0},
        {"-0", 0},
        {"000.000", 0},
        {"\xC2\xB5"
         "5",
         0},
    };
    for (const auto& [text, value] : kReadings) EXPECT_EQ(Val(text), value) << "typed: \"" << text << '"';
}

TEST(Val, TakesAnExponentOnlyWithDigits)
{
    constexpr Reading kReadings[] = {
        {"1e2", 100},  {"1E2", 100}, {"1d2", 100},    {"1D2", 100},  {"1e+2", 100}, {"1e-2", .01},
        {"1D-2", .01}, {"1e", 1},    {"1e+", 1},      {"1e-", 1},    {"1e x", 1},   {"1 e2", 1},
        {"e2", 0},     {".e2", 0},   {"2.5e1.9", 25}, {"12ed3", 12}, {"0e99", 0},   {"1e0002", 100},
    };
    for (const auto& [text, value] : kReadings) EXPECT_EQ(Val(text), value) << "typed: \"" << text << '"';
}

TEST(Val, KnowsNoWordsForNumbers)
{
    for (const char* word : {"inf", "-inf", "nan", "infinity", "0x10", "NaN(1)"}) EXPECT_EQ(Val(word), 0) << word;
}

TEST(Val, ReadsWhatExceedsADoubleAsTheLargestOne)
{
    constexpr double kLargest = std::numeric_limits<double>::max();
    EXPECT_EQ(Val("1e309"), kLargest);
    EXPECT_EQ(Val("-1e309"), -kLargest);
    EXPECT_EQ(Val("1e99999999999999999999999"), kLargest);
    EXPECT_EQ(Val("1" + std::string(400, '0')), kLargest);
    EXPECT_EQ(Val("1e-400"), 0);
    EXPECT_EQ(Val("1e-99999999999999999999999"), 0);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(Val, ReadsNumbersOfAnyLengthToTheNearestDouble)
{
    EXPECT_EQ(Val("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    EXPECT_EQ(Val("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(Val("1" + std::string(300, '0') + "e-300"), 1);
    EXPECT_EQ(Val("0." + std::string(299, '0') + "1e300"), 1);
    EXPECT_EQ(Val("1" + std::string(5000, '0') + "D-5000"), 1);
    // 2^53 + 1 lies halfway between two doubles and goes to the even one; anything more goes up, however far
    // behind.
    EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(Val("9007199254740993." + std::string(2000, '0') + "1"), 9007199254740994.0);
}

// The C library's reader is the second method, on texts of up to 25 digits with a point and an exponent.
TEST(Val, AgreesWithAnIndependentReader)
{
    RandomValues random(1);
    for (int round = 0; round < Rounds(30'000); ++round) {
        std::string text;
        const auto length = 1 + random.Below(25);
        const auto point = random.Below(length + 1);
        for (std::uint64_t i = 0; i < length; ++i) {
            if (i == point) text += '.';
            text += static_cast<char>('0' + random.Below(10));
        }
        if (random.Below(2) == 0) text += "e" + std::to_string(static_cast<int>(random.Below(60)) - 30);
        ASSERT_EQ(Val(text), std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(Val, ReadsAnyBytesAsSomeFiniteNumber)
{
    constexpr std::string_view kLikely = "0123456789.+-eEdD \t\n,";
    RandomValues random(2);
    for (int round = 0; round < Rounds(30'000); ++round) {
        std::string text(random.Below(20), '\0');
        for (char& c : text) {
            c = random.Below(4) == 0 ? static_cast<char>(random.Bits()) : kLikely[random.Below(kLikely.size())];
        }
        ASSERT_TRUE(std::isfinite(Val(text))) << text;
        if (IsNumber(text)) continue;
        ASSERT_EQ(Format(text, "#0.00"), text) << "no number, so it comes back as it came";
    }
}

TEST(IsNumber, WantsTheWholeTextButOuterBlanks)
{
    for (const char* text : {"1", " 1 ", "+80.46", "-.5", "5.", "1e2", "1D-2", "1e999", "\t7\n"}) {
        EXPECT_TRUE(IsNumber(text)) << text;
    }
    for (const char* text : {"", "   ", ".", "-", "1e", "85.32g", "1,234", "5-", "1 2", "- 5", "nan", "20%"}) {
        EXPECT_FALSE(IsNumber(text)) << text;
    }
}

}  // namespace
}  // namespace terravane
