// Blocks of cells, from and to spreadsheets.
#include "journal/block.h"

#include <gtest/gtest.h>

#include "unit/journal/journal_bench.h"

namespace terravane::support {
namespace {

TEST(Block, IsReadAsSpreadsheetsWriteIt)
{
    EXPECT_EQ(ReadBlock("1\t2\r\n3\t\r\n"), (Block{{"1", "2"}, {"3", ""}}));
    EXPECT_EQ(ReadBlock("\"a\nb\"\t\"say \"\"no\"\"\"\nx"), (Block{{"a\nb", "say \"no\""}, {"x"}}));
    EXPECT_EQ(ReadBlock("\n1"), (Block{{""}, {"1"}}));
    EXPECT_EQ(ReadBlock(""), Block{});
    EXPECT_EQ(ReadBlock("\"open"), (Block{{"open"}}));
    const Block block{{"a\tb", "\"", "ดิน"}, {"", "x\ny", "1"}};
    EXPECT_EQ(ReadBlock(BlockText(block)), block);
}

TEST(PlainNumber, HasPlainDigitsAndNoSeparatorsWhereItIsANumber)
{
    EXPECT_EQ(PlainNumber("๑๔๘๔.๕"), "1484.5");
    EXPECT_EQ(PlainNumber("1,484.5"), "1484.5");
    EXPECT_EQ(PlainNumber("-12,345,678"), "-12345678");
    EXPECT_EQ(PlainNumber("๑,๔๘๔"), "1484");
    EXPECT_EQ(PlainNumber("1\u00A0484"), "1484");
    for (const char* other : {"กม. ๑๒", "1,5", "1,48", "1234,567", "12,3456", "1,234 567", ",123", "B-7", ""})
        EXPECT_EQ(PlainNumber(other), other);
}

TEST(Paste, GoesThroughTheRuleOfEveryCellAndPassesOverWhatIsWorkedOut)
{
    JournalBench bench;
    bench.Open();
    auto& grid = bench.Sheet().Get<TextGrid>("MSHWt");
    const std::string waterBefore = bench.Cell("MSHWt", 5, 1);
    const PutBlock put = bench.journal->Paste(grid, 2, 1, "85.3\t๘๖\n1,030\t31\n20\t21\n9.9\t9.9\n");
    EXPECT_EQ(put.misfit, "");
    EXPECT_EQ(put.cells, 6);
    EXPECT_EQ(put.passedOver, 2);
    EXPECT_EQ(put.plain, 2);
    EXPECT_EQ(bench.Cell("MSHWt", 2, 1), "85.30");
    EXPECT_EQ(bench.Cell("MSHWt", 2, 2), "86.00");
    EXPECT_EQ(bench.Cell("MSHWt", 3, 1), "1030.00");
    EXPECT_EQ(bench.Cell("MSHWt", 5, 1), waterBefore);
    EXPECT_EQ(bench.journal->Undoable(), 1u) << "one step";
    ASSERT_NE(bench.program->notices.Current(), nullptr);
    EXPECT_EQ(bench.program->notices.Current()->sentence,
              "Pasted into 6 cells. 2 cells that are not typed passed over. Written with plain "
              "digits and without thousands separators: 2 numbers.");
    bench.journal->Undo();
    EXPECT_NE(bench.Cell("MSHWt", 2, 1), "85.30");
}

TEST(Paste, OfABlockThatDoesNotFitChangesNothingAndSaysWhy)
{
    JournalBench bench;
    bench.Open();
    auto& grid = bench.Sheet().Get<TextGrid>("MSHWt");
    const std::string before = CopyCells(grid, {0, 0, grid.Rows(), grid.Columns()});
    for (const char* block : {"1\t2\t3\t4\t5\t6\t7", "1\n99999999999"}) {
        EXPECT_NE(bench.journal->Paste(grid, 2, 1, block).misfit, "") << block;
        EXPECT_EQ(CopyCells(grid, {0, 0, grid.Rows(), grid.Columns()}), before) << block;
        EXPECT_EQ(bench.program->notices.Current()->kind, NoticeKind::Attention);
    }
    EXPECT_EQ(bench.journal->Undoable(), 0u);
}

TEST(Paste, TakesATextThatFillsItsColumn)
{
    JournalBench bench;
    bench.Open();
    auto& grid = bench.Sheet().Get<TextGrid>("MSHWt");
    EXPECT_EQ(bench.journal->Paste(grid, 1, 1, "CAN-1").misfit, "");
    EXPECT_EQ(bench.Cell("MSHWt", 1, 1), "CAN-1");
    EXPECT_NE(bench.journal->Paste(grid, 1, 1, "CAN-12").misfit, "");
}

// Behind the texts of a spreadsheet come empty columns and rows.
TEST(Paste, TakesTheEmptyCellsBehindABlockForNothing)
{
    JournalBench bench;
    bench.Open();
    auto& grid = bench.Sheet().Get<TextGrid>("MSHWt");
    EXPECT_EQ(bench.journal->Paste(grid, 2, 6, "1\t\t\t\n2\t\t\t\n").cells, 2);
}

TEST(Paste, LetsAListOfRowsGrowAndUndoLetsItShrink)
{
    JournalBench bench;
    bench.Open("mnuCBR1");
    auto& list = bench.Sheet().Get<TextGrid>("MSHPenetrate1");
    const int rows = list.Rows();
    const PutBlock put = bench.journal->Paste(list, rows - 1, 0, "0.1\n0.2\n0.3\n0.4\n");
    EXPECT_EQ(put.misfit, "");
    EXPECT_GE(list.Rows(), rows + 3);
    bench.journal->Undo();
    EXPECT_EQ(list.Rows(), rows);
}

TEST(Erase, EmptiesTheTypedCellsOfABlockInOneStep)
{
    JournalBench bench;
    bench.Open();
    auto& grid = bench.Sheet().Get<TextGrid>("MSHWt");
    bench.journal->Paste(grid, 2, 1, "1\t2\n3\t4\n");
    bench.journal->Erase(grid, {2, 1, 3, 2});
    EXPECT_EQ(bench.journal->Undoable(), 2u);
    bench.journal->Undo();
    EXPECT_EQ(bench.Cell("MSHWt", 3, 2), "4.00");
}

}  // namespace
}  // namespace terravane::support
