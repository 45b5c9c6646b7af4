// Figures written as the descriptions have them.
#include "sheets/pattern/trial_cells.h"

#include <gtest/gtest.h>

#include "laboratory/masks.h"
#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

enum Row { Head, Wet, Water, kRows };
constexpr laboratory::Line kLines[]{
    {Head, "No."},
    {Wet, "Wet", {.isWorkedOut = true}},
    {Water, "Water", {.isWorkedOut = true, .mask = kTwoDecimals}},
};
constexpr laboratory::Grid kAcross{
    .control = "MSHData", .trials = laboratory::Trials::SideBySide, .count = 3, .lines = kLines};
constexpr laboratory::Grid kDown{
    .control = "MSHData", .trials = laboratory::Trials::OneBelowAnother, .count = 3, .lines = kLines};

struct GridForm : PlainForm {
    TextGrid MSHData{*this, "MSHData", 4, 4};
};

// 42.125 is shown 42.13: halves go away from zero. Without a mask it stands with all its digits.
TEST(TrialCells, WritesANumberThroughItsLinesMask)
{
    GridForm form;
    const TrialCells of(form.MSHData, kAcross, 3);
    of.Show(Water, 42.125);
    of.Show(Wet, 42.125);
    EXPECT_EQ(form.MSHData(Water, 3), "42.13");
    EXPECT_EQ(form.MSHData(Wet, 3), "42.125");
    EXPECT_EQ(of.Value(Water), 42.13) << "The next stage reads what is shown.";
}

TEST(TrialCells, FindsItsCellsWhereTrialsStandBelowOneAnother)
{
    GridForm form;
    const TrialCells of(form.MSHData, kDown, 3);
    of[Wet] = "7";
    of.Show(Water, of.Value(Wet) / 2);
    EXPECT_EQ(form.MSHData(3, Wet), "7");
    EXPECT_EQ(form.MSHData(3, Water), "3.50");
}

TEST(TrialCells, IsOnlyOnItsGrid)
{
    GridForm form;
    EXPECT_EQ(ErrorOf([&] { TrialCells(form.MSHData, kAcross, 4).Show(Water, 1); }), error::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace terravane
