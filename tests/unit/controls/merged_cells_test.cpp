// Neighbouring cells with the same text that stand as one.
#include <gtest/gtest.h>

#include "controls/text_grid.h"
#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

//   Tests   | Values | Values
//   Tests   | Soil   | Rock
//   Limits  | 25     | 25
//   Limits  | 25     | 15
struct MergedForm : PlainForm {
    TextGrid mshSum{*this, "mshSum", 4, 3};

    MergedForm()
    {
        const char* texts[] = {"Tests",  "Values", "Values", "Tests",  "Soil", "Rock",
                               "Limits", "25",     "25",     "Limits", "25",   "15"};
        for (int cell = 0; cell < 12; ++cell) mshSum(cell / 3, cell % 3) = texts[cell];
        mshSum.MergeCells = Merging::Free;
        mshSum.SetMergeRow(0);
        mshSum.SetMergeCol(0);
    }
};

TEST(MergedCells, StandAsOneInTheRowsAndColumnsThatAllowIt)
{
    const MergedForm form;
    const CellArea tests{0, 0, 2, 1}, values{0, 1, 1, 2}, limits{2, 0, 2, 1};
    EXPECT_EQ(form.mshSum.AreaOf(0, 0), tests);
    EXPECT_EQ(form.mshSum.AreaOf(1, 0), tests) << "Any of its cells tells the whole area.";
    EXPECT_EQ(form.mshSum.AreaOf(0, 1), values);
    EXPECT_EQ(form.mshSum.AreaOf(0, 2), values);
    EXPECT_EQ(form.mshSum.AreaOf(3, 0), limits);
}

TEST(MergedCells, EqualValuesElsewhereStayApart)
{
    const MergedForm form;
    for (const auto& [row, column] : {std::pair{2, 1}, {2, 2}, {3, 1}, {3, 2}}) {
        EXPECT_EQ(form.mshSum.AreaOf(row, column), (CellArea{row, column, 1, 1})) << "row " << row;
    }
}

TEST(MergedCells, NoneMergeWhereTheGridDoesNot)
{
    MergedForm form;
    form.mshSum.MergeCells = Merging::Never;
    EXPECT_EQ(form.mshSum.AreaOf(0, 0), (CellArea{0, 0, 1, 1}));
    EXPECT_EQ(form.mshSum.AreaOf(0, 1), (CellArea{0, 1, 1, 1}));
}

// "Tests" beside and below each other: the row takes the two upper ones, the column can't have one of them as well.
TEST(MergedCells, NoCellBelongsToTwoAreas)
{
    MergedForm form;
    form.mshSum(0, 1) = "Tests";
    EXPECT_EQ(form.mshSum.AreaOf(0, 0), (CellArea{0, 0, 1, 2}));
    EXPECT_EQ(form.mshSum.AreaOf(1, 0), (CellArea{1, 0, 1, 1}));
}

TEST(MergedCells, KeepTheirOwnTexts)
{
    MergedForm form;
    form.mshSum(3, 0) = "Sieve";
    EXPECT_EQ(form.mshSum(2, 0), "Limits");
    EXPECT_EQ(form.mshSum.AreaOf(2, 0), (CellArea{2, 0, 1, 1}));
    EXPECT_EQ(ErrorOf([&] { (void)form.mshSum.AreaOf(4, 0); }), error::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace terravane
