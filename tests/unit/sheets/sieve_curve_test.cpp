// Plot Graph: what is drawn, and the diameters. Polygons worked by hand; splines by a second method that carries the
// texts of the work grid through decimals.
#include <cmath>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "support/report_bench.h"
#include "support/sieve_laboratory.h"

namespace terravane {
namespace {

using namespace support;

struct SieveCurve : testing::Test {
    SieveLaboratory lab;
    frmSieve& sheet = lab.OpenSieve();

    void Plot(const Stack& stack, std::string_view original)
    {
        TypeStack(sheet, stack, original);
        sheet.cmdCal.Press();
        sheet.cmdgraph.Press();
    }
    std::string Diameters() const
    {
        return sheet.txtD60.Text() + "|" + sheet.txtD30.Text() + "|" + sheet.txtD10.Text() + "|" + sheet.txtCu.Text() +
               "|" + sheet.txtCc.Text();
    }
};

// D60 between 0.425 (74.1) and 0.250 (54.9): 0.425 - 0.175 x 14.1 / 19.2 = 0.29648. D30 between 0.180 (38.1) and 0.150
// (9.3): 0.180 - 0.03 x 8.1 / 28.8 = 0.17156. D10: 0.180 - 0.03 x 28.1 / 28.8 = 0.15073. Cu 1.967, Cc 0.6586.
TEST_F(SieveCurve, DiametersLieBetweenTwoSievesByThePlainSize)
{
    Plot(kFineSand, "729");
    EXPECT_EQ(Diameters(), "  D60 = 0.296|  D30 = 0.172|  D10 = 0.151| Cu = 1.97| Cc = 0.66");
    EXPECT_NEAR(Val(sheet.D60), 0.425 - 0.175 * 14.1 / 19.2, 1e-12);
    EXPECT_TRUE(sheet.txtD10.Locked());
    EXPECT_TRUE(sheet.cmdClass.Enabled());
    EXPECT_TRUE(sheet.cmdView.Enabled());
}

TEST_F(SieveCurve, APointExactlyAtSixtyIsThatSieve)
{
    Plot({{"#4", "0", "0"}, {"#10", "0", "40"}, {"#40", "0", "55"}, {"Pan", "0", "5"}}, "100");
    EXPECT_EQ(sheet.D60, "2");
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 2.000");
}

TEST_F(SieveCurve, AFinestSieveThatPassesTwelvePercentLeavesD10Unread)
{
    Plot({{"#4", "0", "0"}, {"#10", "0", "40"}, {"#200", "0", "48"}, {"Pan", "0", "12"}}, "100");
    EXPECT_EQ(sheet.txtD10.Text(), "  D10 = ");
    EXPECT_EQ(sheet.txtCu.Text(), " Cu = ");
    EXPECT_EQ(sheet.txtCc.Text(), " Cc = ");
    EXPECT_FALSE(sheet.txtD10.Locked());
    EXPECT_TRUE(sheet.txtD60.Locked());
}

// Then 55 % passes No. 10 to No. 100 and 25 % No. 200: D60 = 4.75 - 2.75 x 40 / 45 = 2.3056, D30 = 0.150 - 0.075 x 25 /
// 30 = 0.0875, and D10 is that of the first plot.
TEST_F(SieveCurve, ADiameterThatCannotBeReadAgainKeepsItsText)
{
    Plot(kFineSand, "729");
    const std::string old = sheet.D10;
    for (int row = 1; row <= 9; ++row) sheet.MSHSieve(row, sieve::SieveAndSoil) = "0";
    sheet.MSHSieve(2, sieve::SieveAndSoil) = "45";
    sheet.MSHSieve(8, sieve::SieveAndSoil) = "30";
    sheet.MSHSieve(9, sieve::SieveAndSoil) = "25";
    sheet.cmdCal.Press();
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 2.306");
    EXPECT_EQ(sheet.txtD30.Text(), "  D30 = 0.088");
    EXPECT_EQ(sheet.txtD10.Text(), "  D10 = 0.151");
    EXPECT_EQ(sheet.D10, old);
}

// The first sieve already passes 50: the heads above it count as 0 mm and 0 %, and D60 = 60 x 9.51 / 50.
TEST_F(SieveCurve, AFirstSieveBelowTheLevelIsReadFromTheHeads)
{
    Plot({{"3/8 in", "0", "50"}, {"#4", "0", "30"}, {"#200", "0", "15"}, {"Pan", "0", "5"}}, "100");
    EXPECT_NEAR(Val(sheet.D60), 60 * 9.51 / 50, 1e-12);
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 11.412");
}

TEST_F(SieveCurve, AFirstSieveThatPassesNothingCannotBeRead)
{
    Plot({{"#4", "0", "100"}, {"#10", "0", "0"}, {"Pan", "0", "0"}}, "100");
    EXPECT_EQ(lab.OnlyError(), 11);
    EXPECT_EQ(sheet.txtD60.Text(), "");
    EXPECT_TRUE(sheet.cmdView.Enabled());
    EXPECT_FALSE(sheet.cmdClass.Enabled());
}

TEST_F(SieveCurve, OneSieveIsReadFromTheHeads)
{
    Plot({{"#4", "0", "60"}, {"Pan", "0", "40"}}, "100");
    EXPECT_EQ(lab.OnlyError(), 0);
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 7.125");  // 60 x 4.75 / 40
    EXPECT_EQ(sheet.txtD30.Text(), "  D30 = ");
}

TEST_F(SieveCurve, HandValuesStandBehindTheSignAndHoldFromTheNextPlot)
{
    Plot(kFineSand, "729");
    sheet.chkEdit.SetValue(true);
    EXPECT_FALSE(sheet.txtD60.Locked());
    EXPECT_TRUE(sheet.txtCu.Locked());
    sheet.txtD60.Type("  D60 = 0.8");
    sheet.txtD30.Type("0.4");  // without a sign it is taken whole
    sheet.txtD10.Type("anything = 0.1 = 7");
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 0.800");
    EXPECT_EQ(sheet.txtD30.Text(), "  D30 = 0.400");
    EXPECT_EQ(sheet.txtD10.Text(), "  D10 =  0.1 = 7");  // no number, so it stands as typed and reads 0.1
    EXPECT_EQ(sheet.txtCu.Text(), " Cu = 8.00");
    EXPECT_EQ(sheet.txtCc.Text(), " Cc = 2.00");
    sheet.chkEdit.SetValue(false);
    EXPECT_TRUE(sheet.txtD60.Locked());
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.txtD60.Text(), "  D60 = 0.296");
}

TEST_F(SieveCurve, LettersForAHandValueReadAsNone)
{
    Plot(kFineSand, "729");
    sheet.chkEdit.SetValue(true);
    sheet.txtD10.Type("  D10 = ?");
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.txtD10.Text(), "  D10 =  ?");
    EXPECT_EQ(sheet.txtCu.Text(), " Cu = ");
}

// Three points x = 9.51, 4.75, 2.00 with y = 100, 60, 0, hand-worked: h = -4.76, -2.75, diagonal 2 (2.00 - 9.51) =
// -15.02, right side 6 (-60 / -2.75 - (-40 / -4.76)) = 6 (21.8181818 - 8.4033613) = 80.4889228; M(2) = -5.3587831.
TEST_F(SieveCurve, TheSplinesWorkStandsInItsGrid)
{
    sheet.chkSmooth.SetValue(true);
    Plot({{"3/8 in", "0", "0"}, {"#4", "0", "40"}, {"#10", "0", "60"}, {"Pan", "0", "0"}}, "100");
    EXPECT_EQ(sheet.MSHData.Rows(), 4);
    EXPECT_EQ(sheet.MSH2(1, spline::After), "-4.7600000");
    EXPECT_EQ(sheet.MSH2(2, spline::Before), "-4.7600000");
    EXPECT_EQ(sheet.MSH2(2, spline::Diagonal), "-15.0200000");
    EXPECT_EQ(sheet.MSH2(2, spline::After), "-2.7500000");
    EXPECT_EQ(sheet.MSH2(2, spline::RightSide), "80.4889228");
    EXPECT_EQ(sheet.MSH2(2, spline::Moment), "-5.3587831");
    EXPECT_EQ(sheet.MSH2(1, spline::Moment), "0.0000000");
    EXPECT_EQ(sheet.MSH2(3, spline::Moment), "0.0000000");
}

// (9.51 - 4.75) / 0.01 is 475.99999999999994 in doubles, so 475 rows and the end of the first interval; (4.75 - 2) /
// 0.01 is 275, so 275 rows that begin one step below 4.75 and end at 2.
TEST_F(SieveCurve, TheCurveStepsByAHundredthFromCoarseToFine)
{
    sheet.chkSmooth.SetValue(true);
    Plot({{"3/8 in", "0", "0"}, {"#4", "0", "40"}, {"#10", "0", "60"}, {"Pan", "0", "0"}}, "100");
    const int first = static_cast<int>(std::floor((9.51 - 4.75) / 0.01));
    EXPECT_EQ(sheet.MSH3(1, 0), "9.510");
    EXPECT_EQ(sheet.MSH3(1, 1), "100.0000000");
    EXPECT_EQ(sheet.MSH3(2, 0), "9.500");
    EXPECT_EQ(sheet.MSH3(first, 0), Format(9.51 - 0.01 * (first - 1), "##0.0#0"));
    EXPECT_EQ(sheet.MSH3(first + 1, 0), "4.750");
    EXPECT_EQ(sheet.MSH3(first + 1, 1), "60.0000000");
    EXPECT_EQ(sheet.MSH3(first + 2, 0), "4.740");
    EXPECT_EQ(sheet.MSH3.Rows(), 1 + first + 1 + 275);
    EXPECT_EQ(sheet.MSH3(sheet.MSH3.Rows() - 1, 0), "2.000");
}

// By tools/check_sieve.py on the same stack.
TEST_F(SieveCurve, ASmoothCurveReadsTheLastStepAboveTheLevel)
{
    SieveWet(sheet, "3530.0", "3340.0");
    sheet.chkSmooth.SetValue(true);
    Plot(kCrushedRockStack, "3530.0");
    EXPECT_EQ(Diameters(), "  D60 = 6.850|  D30 = 1.690|  D10 = 0.165| Cu = 41.52| Cc = 2.53");
    EXPECT_EQ(sheet.D60, "6.850");
}

TEST_F(SieveCurve, ASmoothCurveOfTwoSievesEndsInErrors)
{
    sheet.chkSmooth.SetValue(true);
    Plot({{"#4", "0", "40"}, {"#10", "0", "60"}, {"Pan", "0", "0"}}, "100");
    EXPECT_EQ(lab.OnlyError(), 6);
    lab.ask.errors.clear();
    for (int row = 1; row <= 3; ++row) sheet.MSHSieve(row, sieve::Opening) = "";
    sheet.cmdgraph.Press();
    EXPECT_EQ(lab.OnlyError(), 9);
    EXPECT_FALSE(sheet.cmdClass.Enabled());
}

TEST_F(SieveCurve, AStepOfZeroOrNextToNothingFails)
{
    sheet.chkSmooth.SetValue(true);
    sheet.Text6.SetText("0");
    Plot(kFineSand, "729");
    EXPECT_EQ(lab.OnlyError(), 11);
    lab.ask.errors.clear();
    sheet.Text6.SetText("0.0000001");
    sheet.cmdgraph.Press();
    EXPECT_EQ(lab.OnlyError(), 7);
}

TEST_F(SieveCurve, TenSievesWithoutAPanAllCount)
{
    for (std::size_t i = 0; i < 10; ++i) sheet.lstSieve.SetSelected(i, true);
    sheet.cmdSieve.Press();
    for (int row = 1; row <= 10; ++row) sheet.MSHSieve(row, sieve::SieveAndSoil) = "10";
    sheet.txtGsoil.Type("100");
    sheet.cmdCal.Press();
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.MSHData.Rows(), 11);
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph.Items()).size(), 10u);
}

// A decade is 2000 twips, ten percent 500: No. 10 (2 mm) at 4000 - 2000 log 2 = 3397.94, 94.5 % at 275.
TEST_F(SieveCurve, MarksStandAtTheSievesAndTheLineJoinsThem)
{
    Plot(kFineSand, "729");
    const auto marks = ItemsOf<CircleItem>(sheet.picGraph.Items());
    ASSERT_EQ(marks.size(), 8u);  // the pan has none
    EXPECT_NEAR(marks[1].x, 3397.94, 0.01);
    EXPECT_NEAR(marks[1].y, 275, 1e-9);
    EXPECT_EQ(marks[1].radius, 35);
    EXPECT_EQ(marks[1].fill, (Colour{255, 128, 0}));
    EXPECT_EQ(marks[1].pen.colour, kBlue);
    const auto curves = ItemsOf<PolylineItem>(sheet.picGraph.Items());
    ASSERT_EQ(curves.size(), 1u);
    ASSERT_EQ(curves[0].points.size(), 8u);
    EXPECT_NEAR(curves[0].points[1].x, marks[1].x, 1e-9);
    EXPECT_EQ(curves[0].pen.colour, kBlue);
}

TEST_F(SieveCurve, TheGridSpansFourDecadesAndAHundredPercent)
{
    double right = 0;
    int grey = 0;
    for (const LineItem& line : ItemsOf<LineItem>(sheet.picGraph.Items())) {
        grey += line.pen.colour == kGridGrey ? 1 : 0;
        right = std::max(right, line.x1);
    }
    EXPECT_EQ(grey, 36 + 11);
    EXPECT_NEAR(right, 8000, 1e-9);
    for (const auto* label : {"0.01", "0.1", "100", "10", "Grain Size , mm", "3/4''", "#140"})
        EXPECT_FALSE(TextsOf(sheet.picgraph1.Items(), label).empty()) << label;
    EXPECT_EQ(TextOn(sheet.picgraph1.Items(), "Percent Passing (%)").angle, 90);
    EXPECT_EQ(TextOn(sheet.picgraph1.Items(), "Percent Passing (%)").font, (Font{"Times New Roman", 14}));
    EXPECT_EQ(TextOn(sheet.picgraph1.Items(), "#200").font.name, "Cordia New");
}

TEST_F(SieveCurve, PlottingTwiceGivesTheSamePictureAndReleasesTheOption)
{
    sheet.Option2.Choose();
    Plot(kFineSand, "729");
    EXPECT_FALSE(sheet.Option2.Value());
    const auto plot = *sheet.picGraph.Image(), frame = *sheet.picgraph1.Image();
    sheet.cmdgraph.Press();
    EXPECT_EQ(*sheet.picGraph.Image(), plot);
    EXPECT_EQ(*sheet.picgraph1.Image(), frame);
}

}  // namespace
}  // namespace terravane
