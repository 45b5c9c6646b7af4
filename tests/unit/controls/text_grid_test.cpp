#include "controls/text_grid.h"

#include <gtest/gtest.h>

#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct GridForm : PlainForm {
    TextGrid MSHWt{*this, "MSHWt", 3, 4};
};

TEST(TextGrid, HoldsTextsByRowAndColumn)
{
    GridForm form;
    form.MSHWt(2, 3) = "53.00";
    EXPECT_EQ(form.MSHWt(2, 3), "53.00");
    EXPECT_EQ(form.MSHWt(1, 3), "") << "A new cell is empty.";
    form.MSHWt(0, 0) = form.MSHWt(2, 3);
    form.MSHWt(2, 3) = "1";
    EXPECT_EQ(form.MSHWt(0, 0), "53.00") << "A cell takes another's text, not the other cell.";
}

TEST(TextGrid, ReadsThroughAConstant)
{
    GridForm form;
    form.MSHWt(1, 2) = "x";
    const TextGrid& grid = form.MSHWt;
    EXPECT_EQ(grid(1, 2), "x");
}

TEST(TextGrid, RefusesCellsOutsideIt)
{
    GridForm form;
    for (const auto& [row, column] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 4}}) {
        EXPECT_EQ(ErrorOf([&] { form.MSHWt(row, column); }), error::kSubscriptOutOfRange)
            << "Row " << row << ", column " << column << " is not on a grid of 3 rows and 4 columns.";
    }
    EXPECT_EQ(ErrorOf([&] { form.MSHWt.Select(3, 0); }), error::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { form.MSHWt.PressMouse(MouseButton::Left, 0, 4); }), error::kSubscriptOutOfRange);
}

TEST(TextGrid, KeepsTheRowsThatStayWhenItShrinksAndGrows)
{
    GridForm form;
    form.MSHWt(0, 1) = "first";
    form.MSHWt(2, 1) = "third";
    form.MSHWt.SetRows(1);
    EXPECT_EQ(form.MSHWt.Rows(), 1);
    EXPECT_EQ(form.MSHWt(0, 1), "first");
    form.MSHWt.SetRows(3);
    EXPECT_EQ(form.MSHWt(2, 1), "") << "What a smaller grid dropped does not come back.";
}

TEST(TextGrid, LeavesARowThatIsGoneAsTheCurrentOne)
{
    GridForm form;
    form.MSHWt.Select(2, 3);
    form.MSHWt.SetRows(2);
    EXPECT_EQ(form.MSHWt.Row(), 0);
    EXPECT_EQ(form.MSHWt.Column(), 3);
}

TEST(TextGrid, AppendsRowsAndFillsMissingCellsWithNothing)
{
    GridForm form;
    form.MSHWt.AppendRow({"a", "b"});
    EXPECT_EQ(form.MSHWt.Rows(), 4);
    EXPECT_EQ(form.MSHWt(3, 1), "b");
    EXPECT_EQ(form.MSHWt(3, 3), "");
}

// A step of 0.0000001 % would ask for a hundred million rows: refused before it takes the machine's memory.
TEST(TextGrid, FailsPastAMillionRows)
{
    PlainForm form;
    TextGrid grid(form, "MSH3", 1, 1);
    grid.SetRows(1'000'000);
    EXPECT_EQ(ErrorOf([&] { grid.AppendRow({}); }), error::kOutOfMemory);
}

TEST(TextGrid, MarksCalculatedCells)
{
    GridForm form;
    form.MSHWt.MarkCalculatedRow(2);
    form.MSHWt.MarkCalculated(1, 3);
    EXPECT_FALSE(form.MSHWt.IsCalculated(2, 0)) << "Column 0 holds the title.";
    EXPECT_TRUE(form.MSHWt.IsCalculated(2, 1));
    EXPECT_TRUE(form.MSHWt.IsCalculated(2, 3));
    EXPECT_TRUE(form.MSHWt.IsCalculated(1, 3));
    EXPECT_FALSE(form.MSHWt.IsCalculated(1, 2));
    form.MSHWt.AppendRow({});
    EXPECT_FALSE(form.MSHWt.IsCalculated(3, 1));
}

TEST(TextGrid, TellsTheMouseWithButtonRowAndColumn)
{
    GridForm form;
    std::vector<std::tuple<MouseButton, int, int>> seen;
    form.MSHWt.PressMouse(MouseButton::Left, 1, 1);  // nobody listens yet
    form.MSHWt.MouseDown = [&](MouseButton button, int row, int column) { seen.emplace_back(button, row, column); };
    form.MSHWt.PressMouse(MouseButton::Right, 2, 3);
    EXPECT_EQ(seen, (std::vector<std::tuple<MouseButton, int, int>>{{MouseButton::Right, 2, 3}}));
    EXPECT_EQ(form.events, std::vector<std::string>{"frmPlain.MSHWt_MouseDown"});
}

TEST(TextGrid, TellsItsViewsOfWhatChangedOnly)
{
    GridForm form;
    int told = 0;
    const auto view = form.MSHWt.Show([&] { ++told; });
    EXPECT_EQ(told, 1) << "A view is shown what there is.";
    form.MSHWt(1, 1) = "5";
    form.MSHWt(1, 1) = "5";
    EXPECT_EQ(told, 2) << "The same text again is no news.";
    form.MSHWt.Select(1, 1);
    form.MSHWt.Select(1, 1);
    EXPECT_EQ(told, 3);
}

}  // namespace
}  // namespace terravane
