#include "reports/report_table.h"

#include <array>

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;

constexpr PageColumns kColumns{1000, 400};

struct GridForm : Form {
    explicit GridForm(EventBoundary& boundary) : Form(boundary, "frmGrid", "Grid") {}
    TextGrid grid{*this, "grid", 4, 3};
};

DrawingSurface Page()
{
    DrawingSurface page(kA4Short, kA4Long);
    page.FontName = "DilleniaUPC";
    page.FontSize = 10;  // a line of 261
    return page;
}

TEST(ReportTable, RowsAreLinesOfTheSizeInForce)
{
    DrawingSurface page = Page();
    const PageLines y(page, 100);
    page.FontSize = 20;
    EXPECT_DOUBLE_EQ(y(0), 100);
    EXPECT_DOUBLE_EQ(y(2.5), 100 + 2.5 * 261);
}

TEST(ReportTable, RulesAreThickThenThin)
{
    DrawingSurface page = Page();
    const PageLines y(page, 0);
    const RuledBox box(page, y, {500, 2200}, 1, 4);
    box.Verticals(kColumns, 1, 3);
    box.Rows(2);
    box.Thin();
    box.Rows(3);
    const auto boxes = ItemsOf<BoxItem>(page.Items());
    const auto lines = ItemsOf<LineItem>(page.Items());
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes.front(), (BoxItem{500, 261, 2200, 1044, {2, 0, kBlack}}));
    ASSERT_EQ(lines.size(), 5u) << "three verticals, the rule below the header, one between rows";
    EXPECT_EQ(lines[0], (LineItem{1000, 261, 1000, 1044, {2, 0, kBlack}}));
    EXPECT_EQ(lines[2], (LineItem{1800, 261, 1800, 1044, {2, 0, kBlack}}));
    EXPECT_EQ(lines[3], (LineItem{500, 522, 2200, 522, {2, 0, kBlack}}));
    EXPECT_EQ(lines[4], (LineItem{500, 783, 2200, 783, {1, 0, kBlack}}));
}

// "12" is 2 × 1139 units, 120 / 2048 twips each: 133.5 wide, so it starts (400 - 133.5) / 2 = 133.3 into its column.
TEST(ReportTable, CellsAreTrimmedAndCentred)
{
    TestSurroundings ask;
    MemoryFileSystem files;
    Program program(ask, files, "/home");
    GridForm form(program);
    form.grid(2, 1) = "  12 ";
    form.grid(3, 2) = "wider than its column";
    DrawingSurface page = Page();
    const PageLines y(page, 0);
    PrintCells(page, y, kColumns, 5, form.grid, {1, 3, 1, 2});
    const TextItem narrow = TextOn(page.Items(), "12");
    EXPECT_NEAR(narrow.x, 1133.3, 0.1);
    EXPECT_DOUBLE_EQ(narrow.y, 6 * 261);
    const TextItem wide = TextOn(page.Items(), "wider than its column");
    EXPECT_LT(wide.x, 1400) << "stands out at the left";
    EXPECT_NEAR(wide.x + TextWidth(wide.font, wide.text) / 2, 1600, 0.1);
    EXPECT_DOUBLE_EQ(page.CurrentY, 7 * 261) << "the present line is the last row's";
    EXPECT_EQ(page.Items().size(), 2u) << "empty cells draw nothing";
}

TEST(ReportTable, HeadsAreCentredInTheirColumns)
{
    DrawingSurface page = Page();
    PrintHeads(page, kColumns, std::array<std::string_view, 2>{"1", "2"});
    const double half = 1139.0 / 2048 * 120 / 2;
    EXPECT_NEAR(TextOn(page.Items(), "1").x, 1200 - half, 0.1);
    EXPECT_NEAR(TextOn(page.Items(), "2").x, 1600 - half, 0.1);
}

/// Two labels beside the columns of two determinations, at 500; a line of the body is 339.3.
struct DrawnTable : ::testing::Test {
    ReportBench bench;
    TestSheet& sheet = bench.Open(terravane::Test::DenSoil, "frmDensity");
    TextGrid grid{sheet, "grid", 3, 3};
    DrawingSurface surface{kA4Short, kA4Long};
    std::array<laboratory::Line, 3> lines{
        {{0, "No. "}, {1, "Mass, (g)"}, {2, "Mean of all, (g)", {.page = "Mean, (g)"}}}};
    laboratory::Grid described{
        .control = "grid", .frame = "", .trials = laboratory::Trials::SideBySide, .count = 2, .lines = lines};
    ReportTable table{.caption = "Masses",
                      .captionLine = 0,
                      .head = "No.",
                      .columns = 2,
                      .grid = described,
                      .firstRow = 1,
                      .rules = RowRules::Between,
                      .verticals = {1, 2, 2}};

    DrawnTable()
    {
        surface.FontName = "DilleniaUPC";
        grid(1, 1) = "10.1";
        grid(2, 1) = "10.2";
        grid(2, 2) = "10.3";
    }

    PageMarks Drawn()
    {
        const Edges edges{500, 2300};
        DrawTable(ReportPage(PrintingOf(bench.program, surface, Medium::Printer), 1000),
                  {edges, ColumnsBeside(1000, edges, 2)}, table);
        return {surface.Items()};
    }

    static double Y(double line) { return 1000 + kBodyLine * line; }
};

TEST_F(DrawnTable, HasItsCaptionHeadAndRowsBelowEachOther)
{
    const PageMarks page = Drawn();
    EXPECT_NEAR(page.Text("Masses").y, Y(0), kTwip);
    EXPECT_TRUE(page.Text("Masses").font.bold);
    EXPECT_NEAR(page.Text("No.").x, 700, kTwip);
    EXPECT_NEAR(page.Text("No.").y, Y(1), kTwip);
    EXPECT_NEAR(page.Text("Mean, (g)").y, Y(3), kTwip);
    EXPECT_FALSE(page.Text("Mean, (g)").font.bold);
    EXPECT_NEAR(page.Middle("10.1"), 1700, kTwip);
    EXPECT_NEAR(page.Text("10.1").y, Y(2), kTwip);
    EXPECT_NEAR(page.Middle("10.3"), 2100, kTwip);
    EXPECT_EQ(page.Boxes(500, Y(1), 2300, Y(4), 2), 1);
    EXPECT_EQ(page.Across(500, 2300, Y(2), 2), 1) << "below the head line";
    EXPECT_EQ(page.Across(500, 2300, Y(3), 1), 1) << "between the rows";
    EXPECT_EQ(page.Down(1900, Y(1), Y(4), 2), 1);
}

TEST_F(DrawnTable, WithoutAHeadBeginsWithItsFirstRow)
{
    table.head = {};
    const PageMarks page = Drawn();
    EXPECT_NEAR(page.Text("10.1").y, Y(1), kTwip);
    EXPECT_EQ(page.Boxes(500, Y(1), 2300, Y(3), 2), 1);
    EXPECT_EQ(page.Across(500, 2300, Y(2), 2), 0) << "no thick rule where there is no head";
    EXPECT_TRUE(page.Texts("1").empty());
}

TEST_F(DrawnTable, AnAverageStandsAcrossItsColumns)
{
    table.lastRow = LastRow::AverageAcross;
    const PageMarks page = Drawn();
    EXPECT_NEAR(page.Middle("10.2"), 1900, kTwip);
    EXPECT_TRUE(page.Texts("10.3").empty()) << "The average is the first column's.";
    EXPECT_EQ(page.Down(1900, Y(1), Y(3), 2), 1) << "the vertical stops above it";
}

TEST_F(DrawnTable, AnAverageBelowTheFirstTrialStandsInItsColumn)
{
    table.lastRow = LastRow::AverageInFirstColumn;
    table.rules = RowRules::Above;
    const PageMarks page = Drawn();
    EXPECT_NEAR(page.Middle("10.2"), 1700, kTwip);
    EXPECT_EQ(page.Across(500, 2300, Y(3), 2), 1) << "a thick rule above the average";
    EXPECT_EQ(page.Across(500, 2300, Y(2), 1), 1) << "a thin one on the head's rule";
}

TEST_F(DrawnTable, ARuleBelowEachRowLiesOnTheBoxToo)
{
    table.rules = RowRules::Below;
    EXPECT_EQ(Drawn().Across(500, 2300, Y(4), 1), 1);
}

TEST_F(DrawnTable, AHeadIsCentredAsAnotherTextWouldBe)
{
    table.headCentredAs = "Sample No.";
    const TextItem head = Drawn().Text("No.");
    EXPECT_NEAR(head.x, 500 + (1000 - TextWidth(head.font, "Sample No.")) / 2, kTwip);
}

}  // namespace
}  // namespace terravane
