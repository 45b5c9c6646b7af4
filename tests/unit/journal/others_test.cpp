// Another hand in the same file: told at once, and which texts a Save replaced.
#include <gtest/gtest.h>

#include "unit/journal/journal_bench.h"

namespace terravane::support {
namespace {

struct OthersBench : JournalBench {
    OthersBench()
    {
        journal->KeepHistory();
        journal->KeepDrafts("/home/Drafts/");
        Open();
        Type("MSHWt", 2, 1, "85.3");
        Save();
    }
    void ByOthers(const std::string& statement)
    {
        jet::Connection other;
        other.Open(files, kProject);
        other.Execute(statement);
        other.Flush();
    }
    const Notice* Told(std::string_view subject) const
    {
        for (const Notice& notice : program->notices.Told())
            if (notice.isOpen && notice.subject == subject) return &notice;
        return nullptr;
    }
};
constexpr std::string_view kTheirs = "UPDATE STDSOIL Set std_wcanw='99' Where std_ID =' 1'";

TEST(AnotherHand, IsToldOfBeforeAnythingIsSaved)
{
    OthersBench bench;
    EXPECT_FALSE(bench.Told("Another hand"));
    bench.ByOthers(std::string(kTheirs));
    bench.Sheet().Get<Timer>("Timer1").Tick();  // within a second, without an act
    ASSERT_TRUE(bench.Told("Another hand"));
    EXPECT_EQ(bench.Told("Another hand")->sentence, "This test was saved at 12:00 by another window.");
}

TEST(AnotherHand, IsOfNoInterestInAnotherTest)
{
    OthersBench bench;
    bench.ByOthers("UPDATE ATTSOIL Set att_LL='45'");
    bench.Type("txtSoil", "Red");
    EXPECT_FALSE(bench.Told("Another hand"));
}

TEST(AnotherHand, IsLoadedAnewAndWhatWasTypedWaits)
{
    OthersBench bench;
    bench.Type("txtSoil", "Red");
    bench.ByOthers(std::string(kTheirs));
    bench.Type("txtDia", "10");
    ASSERT_TRUE(bench.Told("Another hand"));
    bench.Told("Another hand")->actions.at(0).act();
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "99");
    EXPECT_NE(bench.Text("txtSoil"), "Red");
    EXPECT_TRUE(bench.Told("Draft"));
}

TEST(AnotherHand, IsNamedTextByTextWhereASaveReplacedIt)
{
    OthersBench bench;
    bench.ByOthers(std::string(kTheirs));
    bench.Type("txtDia", "10");
    bench.Save();
    ASSERT_TRUE(bench.Told("Saved over another hand"));
    EXPECT_EQ(bench.Told("Saved over another hand")->sentence,
              "Saved over what another window had saved: Mass of Can + Wet Soil, (g), trial 1: \"99\" by \"85.30\".");
    EXPECT_FALSE(bench.Told("Another hand"));
}

TEST(AnotherHand, IsNamedByThreeTextsAndTheNumberOfTheOthers)
{
    OthersBench bench;
    bench.ByOthers("UPDATE STDSOIL Set std_wcanw='99',std_wcand='88',std_wcan='77',std_can='X' Where std_ID =' 1'");
    bench.Save();
    ASSERT_TRUE(bench.Told("Saved over another hand"));
    const Notice& told = *bench.Told("Saved over another hand");
    EXPECT_EQ(std::ranges::count(told.sentence, ';'), 3) << told.sentence;
    EXPECT_TRUE(told.sentence.ends_with("; and 1 more.")) << told.sentence;
    EXPECT_EQ(std::ranges::count(told.details, '\n'), 4) << told.details;
}

TEST(AnotherHand, IsNotOurOwn)
{
    OthersBench bench;
    bench.Type("MSHWt", 2, 1, "86");
    bench.Save();
    bench.Press("cmdCal");
    bench.Type("MSHWt", 2, 1, "87");
    bench.Save();
    EXPECT_FALSE(bench.Told("Another hand"));
    EXPECT_FALSE(bench.Told("Saved over another hand"));
}

}  // namespace
}  // namespace terravane::support
