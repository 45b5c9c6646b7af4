// The AASHTO groups: the order of the tests, the gaps between them, the group index by hand.
#include "sheets/sieve/aashto.h"

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

/// Percent passing No. 10, 40 and 200; liquid limit and plasticity index.
AashtoSample Sample(double p10, double p40, double p200, double liquid, double index)
{
    return {p10, p40, p200, {liquid, liquid - index}};
}

struct GroupCase {
    std::string_view group;
    double p10, p40, p200, liquid, index;
};
constexpr GroupCase kGroups[]{
    {"A-1-a", 40, 25, 10, 20, 4},
    {"A-1-a", 50, 30, 15, 20, 6},
    {"A-1-a", 0, 25, 10, 20, 4},  // no No. 10 sieve in the stack reads as nothing passing
    {"A-1-b", 60, 25, 10, 20, 4},
    {"A-1-b", 50.1, 30, 15, 20, 6},
    {"A-1-b", 50, 30.1, 15, 20, 6},
    {"A-1-b", 50, 30, 15.1, 20, 6},
    {"A-1-b", 90, 50, 25, 20, 6},
    {"A-3", 90, 60, 8, 20, 0},
    {"A-3", 90, 51, 10, 20, 0},
    {"A-2-4", 90, 50.5, 10, 20, 0},  // neither A-1-b nor A-3
    {"A-2-4", 90, 60, 10.1, 20, 0},
    {"A-2-4", 90, 60, 8, 20, 4},
    {"A-2-4", 90, 50, 25, 20, 6.1},
    {"A-2-4", 90, 60, 35, 40, 10},
    {"A-2-5", 90, 60, 35, 41, 10},
    {"A-2-6", 90, 60, 35, 40, 11},
    {"A-2-7", 90, 60, 35, 41, 11},
    {"A-2-6", 10, 10, 10, 30, 12},  // plastic gravel is never A-1
    {"A-4", 90, 80, 36.1, 40, 10},
    {"A-5", 90, 80, 36.1, 41.1, 10},
    {"A-6", 90, 80, 36.1, 40, 11},
    {"A-7-5", 90, 80, 60, 50, 20},  // 50 - 30 = 20: at equality
    {"A-7-6", 90, 80, 60, 50, 20.5},
    {"A-7-6", 90, 80, 60, 41, 15},
    {"A-7-5", 90, 80, 60, 41, 11},
    {"A-7-5", 90, 80, 75, 60, 30},
    // The gaps.
    {"", 90, 80, 35.1, 30, 5},
    {"", 90, 80, 36, 30, 5},
    {"", 90, 80, 50, 40.5, 5},
    {"", 90, 80, 50, 40.5, 20},
    {"", 90, 80, 50, 41, 5},  // A-5 begins above 41
    {"", 90, 80, 50, 30, 10.5},
    {"", 90, 60, 35, 40.5, 5.5 + 5},
    {"", 90, 60, 30, 40.5, 8},
    {"", 90, 60, 30, 30, 10.5},
};

TEST(AashtoGroup, EveryGroupAndEveryGap)
{
    for (const GroupCase& of : kGroups) {
        EXPECT_EQ(AashtoGroup(Sample(of.p10, of.p40, of.p200, of.liquid, of.index)), of.group)
            << of.p10 << " " << of.p40 << " " << of.p200 << ", LL " << of.liquid << ", PI " << of.index;
    }
}

// a = 75 - 35 = 40, b = 60, c = 60 - 40 = 20, d = 30 - 10 = 20: 0.005 a c = 4, 0.2 a = 8, 0.01 b d = 12.
TEST(GroupIndex, OfAFatClayIsTheSumOfThreeTerms)
{
    EXPECT_EQ(GroupIndex("A-7-5", Sample(90, 80, 75, 60, 30)), 24);
}

// a = 20 - 35 = -15, b = 5, c = 90 - 40 = 50, d = 50 - 10 = 40. One term: 2. All three: -3.75 - 3 + 2 is below zero.
TEST(GroupIndex, OfAClayeyGravelHasOneTermAndNoneGoesBelowZero)
{
    const AashtoSample sample = Sample(90, 60, 20, 90, 50);
    EXPECT_EQ(GroupIndex("A-2-6", sample), 2);
    EXPECT_EQ(GroupIndex("A-2-7", sample), 2);
    EXPECT_EQ(GroupIndex("A-2-5", sample), 0);
}

// b = 19, d = 5: 0.95. The publisher of the example rounds it up, the sheet cuts.
TEST(GroupIndex, IsCutToAWholeNumber)
{
    EXPECT_EQ(GroupIndex("A-2-6", Sample(89.9, 56.8, 34.1, 23, 15)), 0);
}

// With a = 40, c = 20 the index would be 4 + 8 - 6 = 6.
TEST(GroupIndex, OfANonPlasticSampleIsZero)
{
    EXPECT_EQ(GroupIndex("A-5", Sample(90, 80, 75, 60, 0)), 0);
    EXPECT_EQ(GroupIndex("A-5", Sample(90, 80, 75, 60, 0.4)), 6);  // d = round(-9.6) = -10
}

// 57.5 - 35 = 22.5 is 22 and 42.5 = 42; with c = 0, d = 25 - 10: 4.4 + 6.3 = 10.7. Rounded up: 4.6 + 6.45 = 11.05.
TEST(GroupIndex, RoundsHalvesToEven)
{
    EXPECT_EQ(GroupIndex("A-6", Sample(90, 80, 57.5, 40, 25)), 10);
}

// a = 1 and b = 21 from 35.5, c = -10, d = -5: -0.05 + 0.2 - 1.05 is below zero. 35.6 with LL 60, PI 25: a = 1, b = 21,
// c = 20, d = 15: 0.1 + 0.2 + 3.15 = 3.45.
TEST(GroupIndex, IsWorkedOutForNoGroupToo)
{
    EXPECT_EQ(GroupIndex("", Sample(90, 80, 35.5, 30, 5)), 0);
    EXPECT_EQ(GroupIndex("", Sample(90, 80, 35.6, 60, 25)), 3);
}

TEST(GroupIndex, OverflowsPastSixteenBits)
{
    EXPECT_EQ(ErrorOf([] { GroupIndex("A-7-5", Sample(90, 80, 60, 40000, 20)); }), 6);
}

TEST(TypicalName, EachGroupHasTheFirstNameThatHoldsIt)
{
    EXPECT_EQ(TypicalName("A-1-a"), "Stone or gravel fragments");
    EXPECT_EQ(TypicalName("A-1-b"), "Gravel and sand mixtures");
    EXPECT_EQ(TypicalName("A-3"), "Fine sand that is non-plastic");
    EXPECT_EQ(TypicalName("A-2-4"), "Silty gravel and sand");
    EXPECT_EQ(TypicalName("A-2-5"), "Silty gravel and sand");
    EXPECT_EQ(TypicalName("A-2-6"), "Cayey gravel and sand");
    EXPECT_EQ(TypicalName("A-4"), "Silty soils");
    EXPECT_EQ(TypicalName("A-5"), "Silty soils");
    EXPECT_EQ(TypicalName("A-6"), "Clayey soils");
    EXPECT_EQ(TypicalName("A-7-5"), "Clayey soils");
    EXPECT_EQ(TypicalName("A-7-6"), "Clayey soils");
}

TEST(TypicalName, SomeHaveNone)
{
    EXPECT_EQ(TypicalName("A-2-7"), "");
    EXPECT_EQ(TypicalName(""), "");
}

}  // namespace
}  // namespace terravane
