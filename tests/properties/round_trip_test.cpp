// What is typed, calculated and saved is there again when the program is started anew, and calculates to the same.
#include "properties/every_case.h"

namespace terravane::support {
namespace {

class RoundTrip : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, RoundTrip, AllCases(), NameOf);

TEST_P(RoundTrip, ReopenedSheetHasWhatWasTypedAndTheSameResults)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        bench.Fetch(plan);
        ASSERT_TRUE(bench.Save()) << "Every text fits its column, and was not saved: " << bench.LastWord();
        bench.PressAll();
        bench.Save();  // results may be longer than their columns: then the readings saved before stand
        const Texts typed = bench.Entries(), all = bench.Everything();
        const auto drawings = bench.Drawings();

        bench.Reopen();
        EXPECT_EQ(Differences(typed, bench.Entries()), "");
        bench.Choose(plan);
        bench.Fetch(plan);
        bench.PressAll();
        EXPECT_EQ(Differences(all, bench.Everything()), "");
        const auto again = bench.Drawings();
        for (std::size_t i = 0; i < drawings.size(); ++i) EXPECT_TRUE(*drawings[i] == *again[i]) << "picture " << i;
    });
}

// A sheet that was only opened: nothing of it gets lost or changed by saving it again.
TEST_P(RoundTrip, SavingAnOpenedSheetChangesNoText)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        ASSERT_TRUE(bench.Save()) << bench.LastWord();
        bench.Reopen();
        ASSERT_TRUE(bench.Save()) << bench.LastWord();
        const Texts once = bench.StoredReadings();
        bench.Reopen();
        ASSERT_TRUE(bench.Save()) << bench.LastWord();
        EXPECT_EQ(Differences(once, bench.StoredReadings()), "");
    });
}

}  // namespace
}  // namespace terravane::support
