// What is typed and not saved outlives the window, and is offered when its sheet is opened again.
#include "journal/drafts.h"

#include <gtest/gtest.h>

#include "unit/journal/journal_bench.h"

namespace terravane::support {
namespace {

const std::string kFolder = "/home/Drafts/";

struct DraftBench : JournalBench {
    DraftBench() { journal->KeepDrafts(kFolder); }

    void StartAgain()
    {
        Start();
        journal->KeepDrafts(kFolder);
    }
    const Notice* Offer() const
    {
        const Notice* notice = program->notices.Current();
        return notice && notice->subject == "Draft" ? notice : nullptr;
    }
    void Answer(std::size_t action) const { Offer()->actions.at(action).act(); }
    std::vector<std::string> Drafts() const { return files.IsFolder(kFolder) ? files.Names(kFolder) : Strings(); }
    using Strings = std::vector<std::string>;
};
constexpr std::size_t kTakeBack = 0, kForget = 2;

TEST(Drafts, AreOfferedWhereTheSheetIsOpenedAgainAndTakenBackInOneStep)
{
    DraftBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Type("txtSoil", "Red clay");
    bench.StartAgain();  // the program was killed
    bench.Open();
    EXPECT_NE(bench.Cell("MSHWt", 2, 1), "85.30") << "the sheet shows the file's texts as ever";
    ASSERT_TRUE(bench.Offer());
    EXPECT_EQ(bench.Offer()->sentence, "Readings of 12:00 were typed here and not saved.");
    bench.Answer(kTakeBack);
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    EXPECT_EQ(bench.Text("txtSoil"), "Red clay");
    EXPECT_EQ(bench.journal->Undoable(), 1u);
    bench.journal->Undo();
    EXPECT_NE(bench.Cell("MSHWt", 2, 1), "85.30");
}

TEST(Drafts, OutliveAClosedWindowAndTheTakingBack)
{
    DraftBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Open();  // closes the one before
    ASSERT_TRUE(bench.Offer());
    bench.Answer(kTakeBack);
    bench.StartAgain();
    bench.Open();
    ASSERT_TRUE(bench.Offer()) << "what was taken back is not saved yet";
    bench.Answer(kTakeBack);
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    bench.Save();
    EXPECT_EQ(bench.Drafts(), DraftBench::Strings{});
}

TEST(Drafts, OfOtherSheetsAreLeftToThem)
{
    DraftBench bench;
    bench.Open("mnuStd2");
    bench.Type("txtSoil", "Crushed");
    bench.Open("mnuStd1");
    EXPECT_FALSE(bench.Offer());
    bench.Open("mnuStd2");
    EXPECT_TRUE(bench.Offer());
}

TEST(Drafts, AreForgottenWhereThePersonSaysSo)
{
    DraftBench bench;
    bench.Open();
    bench.Type("txtSoil", "Red");
    bench.Open();
    bench.Answer(kForget);
    EXPECT_EQ(bench.Drafts(), DraftBench::Strings{});
    bench.Open();
    EXPECT_FALSE(bench.Offer());
}

TEST(Drafts, AreNotOfferedWhereTheySayWhatTheFileSays)
{
    DraftBench bench;
    bench.Open();
    bench.Type("txtSoil", "Red");
    bench.journal->Undo();
    bench.Open();
    EXPECT_FALSE(bench.Offer());
    EXPECT_EQ(bench.Drafts(), DraftBench::Strings{});
}

TEST(Drafts, OfTwoWindowsAreTwo)
{
    DraftBench bench;
    bench.Open();
    bench.Type("txtSoil", "Red");
    DraftKeeper other(bench.files, kFolder);
    other.Open({bench.kProject, "std", "soil"}, bench.ask.now);
    EXPECT_TRUE(other.Waiting().empty()) << "the first window is writing it";
    Step step;
    step.Add({bench.Sheet().Find("txtDia")}, "", "10.16");
    other.Add(step, "2026-11-21T12:00:01");
    EXPECT_EQ(bench.Drafts().size(), 2u);
    bench.Save();
    EXPECT_EQ(bench.Drafts().size(), 1u) << "a Save takes away its own";
}

TEST(Drafts, GoAwayAfterThirtyDays)
{
    DraftBench bench;
    bench.Open();
    bench.Type("txtSoil", "Red");
    bench.ask.now += std::chrono::days(DraftKeeper::kDaysKept);
    bench.Open();
    EXPECT_TRUE(bench.Offer());
    bench.ask.now += std::chrono::seconds(1);
    bench.Open();
    EXPECT_FALSE(bench.Offer());
    EXPECT_EQ(bench.Drafts(), DraftBench::Strings{});
}

TEST(Drafts, OfAnotherDayAreOfferedWithIt)
{
    DraftBench bench;
    bench.Open();
    bench.Type("txtSoil", "Red");
    bench.ask.now += std::chrono::days(1);
    bench.Open();
    ASSERT_TRUE(bench.Offer());
    EXPECT_EQ(bench.Offer()->sentence, "Readings of 2026-11-21 12:00 were typed here and not saved.");
}

TEST(Drafts, ThatCantBeWrittenCostNoSheet)
{
    DraftBench bench;
    bench.Open();
    bench.files.atStep = [](const SaveStep& step) {
        if (step.kind == SaveStep::Kind::Append) throw RuntimeError(error::kDiskFull, "the disk is full");
    };
    bench.Type("MSHWt", 2, 1, "85.3");
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    ASSERT_NE(bench.program->notices.Current(), nullptr);
    EXPECT_EQ(bench.program->notices.Current()->details, "the disk is full");
    EXPECT_TRUE(bench.ask.errors.empty());
    bench.journal->Undo();
    EXPECT_NE(bench.Cell("MSHWt", 2, 1), "85.30");
}

TEST(Drafts, GiveTheRowsOfAListBack)
{
    DraftBench bench;
    bench.Open("mnuCBR1");
    auto& list = bench.Sheet().Get<TextGrid>("MSHPenetrate1");
    const int rows = list.Rows();
    bench.journal->Paste(list, rows - 1, 0, "0.1\n0.2\n0.3\n");
    bench.Open("mnuCBR1");
    ASSERT_TRUE(bench.Offer());
    bench.Answer(kTakeBack);
    EXPECT_EQ(bench.Cell("MSHPenetrate1", rows + 1, 0), "0.3");
}

}  // namespace
}  // namespace terravane::support
