#include "batch/posted_choices.h"

#include <set>

#include <gtest/gtest.h>

namespace terravane {
namespace {

std::vector<Choices> Tried(std::string_view test, const BatchOptions& options)
{
    return PossibleChoices(*laboratory::FindTest(test), options);
}

TEST(PossibleChoices, BeginWithTheSheetsOwn)
{
    BatchOptions options;
    options.checks = true;
    for (const laboratory::Description* test : laboratory::Tests()) {
        const Choices first = PossibleChoices(*test, options).front();
        EXPECT_EQ(first.curve, "optInt");
        EXPECT_FALSE(first.isSmooth);
        EXPECT_EQ(first.calibration, "optAut");
        EXPECT_EQ(first.share, "95%");
        EXPECT_EQ(first.proctor, "");
    }
}

// Two curves; the polygon or the spline; four models; and the ratio's own choice besides three molds corrected or not,
// four shares and two compaction tests: 1 + 8 * 4 * 2.
TEST(PossibleChoices, AreAllThatATechnicianCouldHaveMadeUnderACheck)
{
    BatchOptions options;
    options.checks = true;
    EXPECT_EQ(Tried("att", options).size(), 1U);
    EXPECT_EQ(Tried("std", options).size(), 2U);
    EXPECT_EQ(Tried("sie", options).size(), 2U);
    EXPECT_EQ(Tried("spc", options).size(), 4U);
    EXPECT_EQ(Tried("cbr", options).size(), 65U);
}

TEST(PossibleChoices, HaveEveryShareThatTheSheetOffers)
{
    BatchOptions options;
    options.checks = true;
    std::set<std::string_view> shares;
    for (const Choices& choices : Tried("cbr", options)) shares.insert(choices.share);
    EXPECT_EQ(shares, (std::set<std::string_view>{"90%", "95%", "98%", "100%"}));
}

TEST(PossibleChoices, AreFixedByOptions)
{
    BatchOptions options;
    options.checks = true;
    options.given.curve = "optFit";
    options.given.isSmooth = true;
    options.given.corrects = {true, false, true};
    ASSERT_EQ(Tried("std", options).size(), 1U);
    EXPECT_EQ(Tried("std", options)[0].curve, "optFit");
    EXPECT_EQ(Tried("sie", options).size(), 1U);
    EXPECT_EQ(Tried("cbr", options).size(), 9U);
    for (const Choices& choices : Tried("cbr", options)) EXPECT_TRUE(choices.corrects[0] && choices.corrects[2]);
}

TEST(PossibleChoices, AreTheSheetsOwnWithoutACheckButForTheCompactionTestThatNoSheetChooses)
{
    const BatchOptions options;
    EXPECT_EQ(Tried("std", options).size(), 1U);
    EXPECT_EQ(Tried("sie", options).size(), 1U);
    const auto ratio = Tried("cbr", options);
    ASSERT_EQ(ratio.size(), 3U);
    EXPECT_EQ(ratio[1].proctor, "optMod");
    EXPECT_EQ(ratio[2].proctor, "optStd");
}

}  // namespace
}  // namespace terravane
