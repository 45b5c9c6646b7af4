// What is typed stays as it is typed, whatever a command or the disk makes of it.
#include "properties/every_case.h"

namespace terravane::support {
namespace {

class TypedTexts : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, TypedTexts, AllCases(), NameOf);

TEST_P(TypedTexts, OutliveEveryCommandAlsoOneThatFails)
{
    int failed = 0;
    TryAll([&failed](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        bench.Fetch(plan);
        const Texts typed = bench.Entries();
        for (const SheetPress& command : bench.Table().commands) {
            failed += bench.Press(command) ? 0 : 1;
            EXPECT_EQ(Differences(typed, bench.Entries()), "") << command.button << " " << bench.LastWord();
        }
    });
    EXPECT_GT(failed, 0) << "No command failed: the readings prove nothing.";
}

// An apostrophe ends the text in the statement, a text that is too long has no room in its column: Save is refused.
TEST_P(TypedTexts, OutliveASaveThatIsRefused)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        bench.Choose(bench.PlanOf(hand));
        bench.Fill(hand);
        bench.TypeBox("txtSoil", hand.Chance(50) ? "ดิน 5' ลึก" : "A name of more than twenty letters");
        const Texts typed = bench.Entries();
        EXPECT_FALSE(bench.Save()) << "Nobody was told that the sample's name can't be saved.";
        EXPECT_EQ(Differences(typed, bench.Entries()), "") << bench.LastWord();
        bench.TypeBox("txtSoil", "Soil 12");
        EXPECT_TRUE(bench.Save()) << bench.LastWord();
    });
}

TEST_P(TypedTexts, OutliveALostFileAndAreSavedWhenItIsBack)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        bench.Choose(bench.PlanOf(hand));
        bench.Fill(hand);
        const Texts typed = bench.Entries();
        const Bytes file = bench.File();
        bench.TakeFileAway();
        EXPECT_FALSE(bench.Save()) << "Nobody was told that the project is gone.";
        bench.PressAll();
        EXPECT_EQ(Differences(typed, bench.Entries()), "") << bench.LastWord();
        bench.PutFileBack(file);
        const bool isSaved = bench.Save();
        if (!isSaved) {  // what was typed fits its columns, but a result of wild readings may not
            EXPECT_TRUE(bench.LastWord().ends_with("the column takes 10.")) << bench.LastWord();
            return;
        }
        bench.Reopen();
        EXPECT_EQ(Differences(typed, bench.Entries()), "");
    });
}

}  // namespace
}  // namespace terravane::support
