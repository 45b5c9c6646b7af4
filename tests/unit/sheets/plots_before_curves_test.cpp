// What a technician finds on a sheet that was just opened: which tabs can be turned to, and plots without a curve.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/density/frmDensity.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/specific/frmSpecific.h"
#include "support/drawn_items.h"
#include "support/laboratory.h"

namespace terravane {
namespace {

using namespace support;

struct ANewSheet : testing::Test {
    Laboratory lab;

    /// The tabs that can't be turned to.
    std::vector<int> ClosedTabs(const TestSheet& sheet) const
    {
        std::vector<int> closed;
        for (int tab = 0; tab < sheet.SSTData.Count(); ++tab)
            if (!sheet.SSTData.TabEnabled(tab)) closed.push_back(tab);
        return closed;
    }
};

/// The line around the grid, on both boxes, that around the frame and the two titles, and nothing else.
/// margin  between the grid and the plot's right and lower edge
void ExpectEmptyPlot(const PictureBox& frame, const PictureBox& plot, std::string_view below, std::string_view beside,
                     DrawnPoint margin)
{
    const std::vector<DrawnItem>&onFrame = frame.Items(), &onPlot = plot.Items();
    ASSERT_EQ(onFrame.size(), 4U) << frame.Name();
    ASSERT_EQ(onPlot.size(), 1U) << plot.Name();
    EXPECT_EQ(TextOn(onFrame, below).angle, 0) << below;
    EXPECT_EQ(TextOn(onFrame, beside).angle, 90) << beside;
    const auto boxes = ItemsOf<BoxItem>(onFrame);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].x2, frame.Width - 5) << "Half a point wide, to the very edge.";
    ASSERT_EQ(ItemsOf<BoxItem>(onPlot).size(), 1U);
    const BoxItem grid = ItemsOf<BoxItem>(onPlot)[0];
    EXPECT_EQ(grid.x2, plot.Width - margin.x);
    EXPECT_EQ(grid.y2, plot.Height - margin.y);
    EXPECT_EQ(grid.pen.width, 2);
    EXPECT_NEAR(boxes[0].x2 - boxes[0].x1, grid.x2, 1e-9) << "The same line, on both.";
    EXPECT_EQ(boxes[0].pen.width, 2);
}

TEST_F(ANewSheet, OfCompactionKeepsTheCurveClosedAndShowsItsEmptyPlot)
{
    const frmCompaction& sheet = lab.OpenSheet();
    EXPECT_EQ(ClosedTabs(sheet), (std::vector{1}));
    ExpectEmptyPlot(sheet.picgraph1, sheet.picGraph, "Water Content , %", "Dry Density , g/cm^3", {0, 0});
}

TEST_F(ANewSheet, OfAtterbergKeepsTheCurveClosedAndShowsItsEmptyPlot)
{
    const auto& sheet = lab.Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil);
    EXPECT_EQ(ClosedTabs(sheet), (std::vector{1}));
    ExpectEmptyPlot(sheet.picgraph1, sheet.picGraph, "Number of Blows", "Water Content , %", {0, 0});
}

TEST_F(ANewSheet, OfSpecificGravityHasItsTrialsOpenAndShowsItsEmptyPlot)
{
    const auto& sheet = lab.Open<frmSpecific>("frmSpecific", terravane::Test::SpcSoil);
    EXPECT_TRUE(ClosedTabs(sheet).empty());
    ExpectEmptyPlot(sheet.picGraph, sheet.picgraph1, "Temperature (Degree Celsius)", "Weight of Water + Flask (g)",
                    {50, 50});
}

TEST_F(ANewSheet, OfFieldDensityAndOfTheSieveHaveAllTabsOpen)
{
    EXPECT_TRUE(ClosedTabs(lab.Open<frmDensity>("frmDensity", terravane::Test::DenSoil)).empty());
    EXPECT_TRUE(ClosedTabs(lab.Open<frmSieve>("frmSieve", terravane::Test::SieSoil)).empty());
}

TEST_F(ANewSheet, OfTheBearingRatioKeepsTheValueClosedAndShowsTwoEmptyPlots)
{
    const auto& sheet = lab.Open<frmCBR>("frmCBR", terravane::Test::CBRSoil);
    EXPECT_EQ(ClosedTabs(sheet), (std::vector{3}));
    ExpectEmptyPlot(sheet.picGraph, sheet.picgraph1, "Penetration, in", "Resistance of Penetration, lb/in^2", {0, 50});
    ExpectEmptyPlot(sheet.picGraph2, sheet.picGraph3, "Dry Density, g/cm^3", "California Bearing Ratio, %", {50, 50});
}

}  // namespace
}  // namespace terravane
