// A plot as numbers: from the places of its drawing back to the readings.
#include "program/plot_numbers.h"

#include <gtest/gtest.h>

namespace terravane {
namespace {

// 8 % of water stands at 0 twips, 10 % at 1000; 1.80 g/cm³ at the bottom, 2600 twips down, 2.06 at the top.
PlotAxes CompactionAxes()
{
    return {AxisThrough("Water Content , %", 8, 0, 10, 1000), AxisThrough("Dry Density", 1.8, 2600, 2.06, 0)};
}

TEST(PlotAxis, StraightAxisTellsTheValueBetweenItsEnds)
{
    const PlotAxes axes = CompactionAxes();
    EXPECT_DOUBLE_EQ(axes.across.ValueAt(500), 9);
    EXPECT_DOUBLE_EQ(axes.upwards.ValueAt(1300), 1.93);
}

// Ten blows at the left, a hundred 2000 twips on: half way stand the root of ten times as many, 31.62.
TEST(PlotAxis, LogarithmicAxisTellsEqualFactorsForEqualLengths)
{
    const PlotAxis blows = AxisThrough("Number of Blows", 10, 0, 100, 2000, true);
    EXPECT_NEAR(blows.ValueAt(1000), 31.6228, 1e-4);
    EXPECT_NEAR(blows.ValueAt(2000), 100, 1e-9);
}

TEST(ReadingText, TellsAsManyDigitsAsAPixelShows)
{
    EXPECT_EQ(ReadingText(11.2345, 11.2445), "11.23");
    EXPECT_EQ(ReadingText(1.9312, 1.9302), "1.931");
    EXPECT_EQ(ReadingText(1520, 1525), "1520");
}

TEST(PlotNumbers, AreMarksOnceAndThenTheCurve)
{
    const std::vector<DrawnItem> items{
        CircleItem{.x = 500, .y = 1300, .radius = 40}, CircleItem{.x = 500, .y = 1300, .radius = 20},
        LineItem{.x1 = 0, .y1 = 0, .x2 = 1000, .y2 = 0}, PolylineItem{.points = {{0, 2600}, {1000, 0}}}};
    EXPECT_EQ(PlotNumbers(items, CompactionAxes()), "Water Content , %\tDry Density\n9\t1.93\n\n8\t1.8\n10\t2.06\n");
}

}  // namespace
}  // namespace terravane
