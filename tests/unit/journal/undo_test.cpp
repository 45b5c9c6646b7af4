// What is one step, what is none, and what undoing it gives back.
#include <gtest/gtest.h>

#include "unit/journal/journal_bench.h"

namespace terravane::support {
namespace {

TEST(Undo, GivesBackWhatStoodThere)
{
    JournalBench bench;
    bench.Open();
    const std::string before = bench.Cell("MSHWt", 2, 1);  // a new file's cells hold a blank
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Type("MSHWt", 2, 1, "86.5");
    EXPECT_EQ(bench.journal->Undoable(), 2u);
    const auto place = bench.journal->Undo();
    ASSERT_TRUE(place);
    EXPECT_EQ(NameOf(*place), "MSHWt 2 1");
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    bench.journal->Undo();
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), before);
    EXPECT_FALSE(bench.journal->Undo());
    bench.journal->Redo();
    bench.journal->Redo();
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "86.50");
    EXPECT_FALSE(bench.journal->Redo());
}

TEST(Undo, TakesTheLettersOfOneBoxAsOneStepUntilAnotherIsTypedIn)
{
    JournalBench bench;
    bench.Open();
    const std::string before = bench.Text("txtSoil");
    for (const char* text : {"r", "re", "red"}) bench.Type("txtSoil", text);
    bench.Type("txtDia", "10");
    bench.Type("txtSoil", "red clay");
    EXPECT_EQ(bench.journal->Undoable(), 3u);
    bench.journal->Undo();
    EXPECT_EQ(bench.Text("txtSoil"), "red");
    bench.journal->Undo();
    bench.journal->Undo();
    EXPECT_EQ(bench.Text("txtSoil"), before);
}

TEST(Undo, TakesBackNoCommand)
{
    JournalBench bench;
    bench.Open();
    bench.Type("MSHWt", 1, 1, "30");
    bench.Press("cmdCal");
    bench.Save();
    EXPECT_EQ(bench.journal->Undoable(), 1u);
}

TEST(Undo, GivesAnErasedColumnBackInOneStep)
{
    JournalBench bench;
    bench.Open();
    for (int row = 1; row <= 4; ++row) bench.Type("MSHWt", row, 1, "4" + std::to_string(row));
    const std::size_t steps = bench.journal->Undoable();
    bench.Sheet().Get<TextGrid>("MSHWt").PressMouse(MouseButton::Right, 1, 1);
    ASSERT_EQ(bench.Cell("MSHWt", 2, 1), "");
    EXPECT_EQ(bench.journal->Undoable(), steps + 1);
    bench.journal->Undo();
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "42.00");
    EXPECT_EQ(bench.Cell("MSHWt", 4, 1), "44.00");
}

TEST(Undo, GivesTheSieveListBackInOneStepWithWhatWasTypedBeside)
{
    JournalBench bench;
    bench.Open("mnuSie1");
    auto& list = bench.Sheet().Get<ListBox>("lstSieve");
    list.SetSelected(2, true);
    bench.Press("cmdSieve");
    bench.Type("MSHSieve", 1, 2, "451");
    const std::string first = bench.Cell("MSHSieve", 1, 0);
    list.SetSelected(5, true);
    const std::size_t steps = bench.journal->Undoable();
    bench.Press("cmdSieve");
    EXPECT_EQ(bench.journal->Undoable(), steps + 1);
    EXPECT_NE(bench.Cell("MSHSieve", 2, 0), "");
    bench.journal->Undo();
    EXPECT_EQ(bench.Cell("MSHSieve", 1, 2), "451");
    EXPECT_EQ(bench.Cell("MSHSieve", 1, 0), first);
}

TEST(Undo, GivesAChoiceBackWithWhatItOpensAndErases)
{
    JournalBench bench;
    bench.Open("mnuSie1");
    bench.Sheet().Get<OptionButton>("optYes").Press();
    bench.Type("txtDwp", "870");
    bench.Sheet().Get<OptionButton>("optNo").Press();
    ASSERT_EQ(bench.Text("txtDwp"), "");
    bench.journal->Undo();
    EXPECT_EQ(bench.Text("txtDwp"), "870");
    EXPECT_TRUE(bench.Sheet().Get<TextBox>("txtDwp").Enabled());
    EXPECT_TRUE(bench.Sheet().Get<OptionButton>("optYes").Value());
}

TEST(Undo, BeginsAnewWithEverySheet)
{
    JournalBench bench;
    bench.Open();
    bench.Type("txtSoil", "red");
    bench.Open("mnuAtt1");
    EXPECT_EQ(bench.journal->Undoable(), 0u);
}

TEST(Undo, ChangesNothingUnderAPreview)
{
    JournalBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    Form& sheet = bench.Sheet();
    sheet.Get<CommandButton>("cmdView").SetEnabled(true);
    bench.Press("cmdView");
    ASSERT_TRUE(bench.program->Loaded("frmPreview"));
    EXPECT_FALSE(bench.journal->Undo());
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    bench.program->Unload("frmPreview");
    EXPECT_TRUE(bench.journal->Undo());
}

TEST(Undo, ShowsInTheEditorWhatStandsInItsCellAgain)
{
    JournalBench bench;
    bench.Open();
    bench.Type("MSHWt", 1, 1, "30");
    auto& editor = bench.Sheet().Get<CellEditor>("txtData");
    editor.OpenAt(1, 1);
    bench.journal->Undo();
    EXPECT_EQ(editor.Text(), bench.Cell("MSHWt", 1, 1));
    EXPECT_NE(editor.Text(), "30.00");
}

// A million acts, and no more is kept than after twenty thousand.
TEST(Undo, ForgetsTheOldestStepsAndKeepsItsMemoryFlat)
{
    Steps steps;
    JournalBench bench;
    Control* box = &bench.Open().Get<Control>("txtSoil");
    for (int act = 0; act < 1'000'000; ++act) {
        Step step;
        step.Add({box}, std::to_string(act), std::to_string(act + 1));
        steps.Add(std::move(step));
    }
    EXPECT_EQ(steps.Undoable(), Steps::kMost);
    steps.Undo();
    EXPECT_EQ(box->Text(), "999999");
}

}  // namespace
}  // namespace terravane::support
