#include "reports/report_table.h"

#include <gtest/gtest.h>

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
    DrawRules(page, y, {500, 2200, 1, 4, kColumns, 3, 2, 3, 1});
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

TEST(ReportTable, TableWithoutAHeaderHasNoThickRow)
{
    DrawingSurface page = Page();
    DrawRules(page, PageLines(page, 0), {500, 2200, 1, 4, kColumns, 1, {}, 2, 2});
    const auto lines = ItemsOf<LineItem>(page.Items());
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1].pen.width, 1);
    EXPECT_EQ(lines[2].pen.width, 1);
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

TEST(ReportTable, ColumnNumbersAreCentred)
{
    DrawingSurface page = Page();
    PrintColumnNumbers(page, kColumns, 2);
    const double half = 1139.0 / 2048 * 120 / 2;
    EXPECT_NEAR(TextOn(page.Items(), "1").x, 1200 - half, 0.1);
    EXPECT_NEAR(TextOn(page.Items(), "2").x, 1600 - half, 0.1);
}

}  // namespace
}  // namespace terravane
