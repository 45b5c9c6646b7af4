// The curve through the trials and its top. Water content in percent, dry density in g/cm³. The splines of three points
// are worked by hand; what comes from tools/check_compaction.py says so.
#include <gtest/gtest.h>

#include "support/laboratory.h"
#include "unit/runtime/raises.h"

namespace terravane::compaction {
namespace {

using support::Laboratory;

struct Point {
    std::string_view water, dryDensity;
};
using Points = std::vector<Point>;

/// 10, 12 and 14 %: a symmetric hill with its top at the middle point. Both intervals are 2 %, so that
///   M(2) = 6 · ((1.80 - 1.90)/2 - (1.90 - 1.80)/2) / (2 · (14 - 10)) = -0.6 / 8 = -0.075
const Points kHill{{"10.00", "1.80"}, {"12.00", "1.90"}, {"14.00", "1.80"}};

struct CompactionCurve : testing::Test {
    Laboratory lab;
    frmCompaction& sheet = lab.OpenSheet();

    /// As Calculate leaves the grid, with a mold in each column.
    void SetPoints(const Points& points)
    {
        for (int trial = 1; trial <= kTrials; ++trial) {
            const auto i = static_cast<std::size_t>(trial - 1);
            const Point point = i < points.size() ? points[i] : Point{};
            sheet.MSHDensity(density::Mold, trial) = i < points.size() ? "1876" : "";
            sheet.MSHDensity(density::WaterContent, trial) = point.water;
            sheet.MSHDensity(density::DryDensity, trial) = point.dryDensity;
        }
    }

    /// OMC and MDD as the boxes show them after the command, or its error.
    std::string Curve(OptionButton& method)
    {
        method.Choose();
        sheet.txtOMC.SetText("-");
        sheet.txtDmax.SetText("-");
        lab.ask.errors.clear();
        sheet.cmdOMC.Press();
        const std::string error = lab.ask.errors.empty() ? "" : " error " + std::to_string(lab.ask.errors[0].number);
        return sheet.txtOMC.Text() + " " + sheet.txtDmax.Text() + error;
    }
    std::string Spline() { return Curve(sheet.optInt); }
    std::string Fit() { return Curve(sheet.optFit); }
};

TEST_F(CompactionCurve, InterpolatesUnlessToldOtherwise)
{
    EXPECT_TRUE(sheet.optInt.Value());
    EXPECT_FALSE(sheet.optFit.Value());
    EXPECT_EQ(sheet.Text6.Text(), "0.01");
    EXPECT_EQ(sheet.cboSr.Text(), "0%");
    EXPECT_FALSE(sheet.chkSatLine.Value());
}

TEST_F(CompactionCurve, TakesTheColumnsUpToTheFirstWithoutAMold)
{
    SetPoints(kHill);
    sheet.MSHDensity(density::Mold, 5) = "1876";
    sheet.MSHDensity(density::WaterContent, 5) = "99.00";
    Spline();
    EXPECT_EQ(sheet.MSHData.Rows(), 4);
    EXPECT_EQ(sheet.MSHData(3, 0), "14.00");
    EXPECT_EQ(sheet.MSHData(3, 1), "1.80");
}

TEST_F(CompactionCurve, TakesAllSixColumns)
{
    SetPoints({{"3", "1.96"}, {"4", "2.04"}, {"5", "2.12"}, {"6", "2.15"}, {"7", "2.13"}, {"8", "2.07"}});
    Spline();
    EXPECT_EQ(sheet.MSHData.Rows(), 7);
}

TEST_F(CompactionCurve, SolvesTheSplineInItsWorkGrid)
{
    SetPoints(kHill);
    EXPECT_EQ(Spline(), "12.0 1.90");
    EXPECT_EQ(sheet.MSH2.Rows(), 4);
    EXPECT_EQ(sheet.MSH2(1, spline::After), "2.0000000");
    EXPECT_EQ(sheet.MSH2(2, spline::Before), "2.0000000");
    EXPECT_EQ(sheet.MSH2(2, spline::Diagonal), "8.0000000");
    EXPECT_EQ(sheet.MSH2(2, spline::RightSide), "-0.6000000");
    EXPECT_EQ(sheet.MSH2(1, spline::Moment), "0.0000000");
    EXPECT_EQ(sheet.MSH2(2, spline::Moment), "-0.0750000");
    EXPECT_EQ(sheet.MSH2(3, spline::Moment), "0.0000000");
}

// 10, 12, 14, 16 % with 1.80, 1.90, 1.90, 1.80. Rows 2 and 3 are 8 M2 + 2 M3 = -0.3 and 2 M2 + 8 M3 = -0.3.
// Elimination: 8 - 4/8 = 7.5 and -0.3 + 2 · 0.3/8 = -0.225; M3 = -0.03, M2 = (-0.3 + 0.06)/8 = -0.03.
TEST_F(CompactionCurve, EliminatesDownAndSubstitutesBack)
{
    SetPoints({{"10", "1.80"}, {"12", "1.90"}, {"14", "1.90"}, {"16", "1.80"}});
    Spline();
    EXPECT_EQ(sheet.MSH2(3, spline::Diagonal), "7.5000000");
    EXPECT_EQ(sheet.MSH2(3, spline::RightSide), "-0.2250000");
    EXPECT_EQ(sheet.MSH2(3, spline::Moment), "-0.0300000");
    EXPECT_EQ(sheet.MSH2(2, spline::Moment), "-0.0300000");
}

// 200 steps of 0.01 in each interval of 2 %. Rows: 201 from 10 to 12, one more with the exact 12, 201 from 12.01 on:
// the last stands one step past the end. S(11) = (1/2 - 2)·1·(-0.075)/6 + 1.80/2 + 1.90/2 = 1.86875. S(14.01), on the
// last cubic: a = -0.01, b = 2.01:
//   (0.00005 - 2)·(-0.01)·(-0.075)/6 - 0.01·1.90/2 + 2.01·1.80/2 = -0.00025 - 0.0095 + 1.809 = 1.79925.
TEST_F(CompactionCurve, TabulatesTheSplineOneStepPastEachPoint)
{
    SetPoints(kHill);
    Spline();
    ASSERT_EQ(sheet.MSH3.Rows(), 1 + 201 + 1 + 201);
    EXPECT_EQ(sheet.MSH3(0, 0), "");
    EXPECT_EQ(sheet.MSH3(1, 0), "10.000");
    EXPECT_EQ(sheet.MSH3(1, 1), "1.8000000");
    EXPECT_EQ(sheet.MSH3(101, 0), "11.000");
    EXPECT_EQ(sheet.MSH3(101, 1), "1.8687500");
    EXPECT_EQ(sheet.MSH3(201, 0), "12.000");
    EXPECT_EQ(sheet.MSH3(202, 0), "12.000") << "Only the second point is met exactly.";
    EXPECT_EQ(sheet.MSH3(202, 1), "1.9000000");
    EXPECT_EQ(sheet.MSH3(203, 0), "12.010") << "Later intervals begin one step past their point.";
    EXPECT_EQ(sheet.MSH3(403, 0), "14.010");
    EXPECT_EQ(sheet.MSH3(403, 1), "1.7992500");
}

// Three points on a line have no bend: the curve climbs on past the last one. Steps of 1 from 10: 10, 11, 12, exactly
// 12, 13, 14, 15; at 15 % the line stands at 1.80 + 5 · 0.05 - 0.10 = 1.95.
TEST_F(CompactionCurve, TakesTheRowPastTheLastTrialWhereTheCurveStillClimbs)
{
    SetPoints({{"10", "1.70"}, {"12", "1.80"}, {"14", "1.90"}});
    sheet.Text6.Type("1");
    EXPECT_EQ(Spline(), "15.0 1.95");
    sheet.Text6.Type("0.01");
    EXPECT_EQ(Spline(), "14.0 1.90") << "14.01 % and 1.9005 with the usual step.";
}

// Steps of 0.4 over the flat top from 12 to 14 % meet 12.8 and 13.2, equally far from its middle, and nothing between:
// S = 1.28·1.2·0.005 + 1.68·0.8·0.005 + 1.90 = 1.9144 at both.
TEST_F(CompactionCurve, ReportsTheLaterOfTwoEqualTops)
{
    SetPoints({{"10", "1.80"}, {"12", "1.90"}, {"14", "1.90"}, {"16", "1.80"}});
    sheet.Text6.Type("0.4");
    EXPECT_EQ(Spline(), "13.2 1.91");
    EXPECT_EQ(sheet.MSH3(9, 1), "1.9144000");
    EXPECT_EQ(sheet.MSH3(10, 1), "1.9144000");
}

TEST_F(CompactionCurve, WalksBackwardsWhereTheWaterContentFalls)
{
    SetPoints({{"14", "1.80"}, {"12", "1.90"}, {"10", "1.80"}});
    EXPECT_EQ(Spline(), "12.0 1.90");
    EXPECT_EQ(sheet.MSH3(1, 0), "14.000");
    EXPECT_EQ(sheet.MSH3(2, 0), "13.990");
    EXPECT_EQ(sheet.MSH3(sheet.MSH3.Rows() - 1, 0), "9.990");
}

TEST_F(CompactionCurve, NeedsThreePointsToInterpolate)
{
    SetPoints({});
    EXPECT_EQ(Spline(), "- - error 9") << "No point at all.";
    SetPoints({{"10", "1.80"}});
    EXPECT_EQ(Spline(), "- - error 9") << "The work grid holds no second point.";
    SetPoints({{"10", "1.80"}, {"12", "1.90"}});
    EXPECT_EQ(Spline(), "- - error 6") << "0 / 0 in the back substitution.";
}

TEST_F(CompactionCurve, FailsAtEqualWaterContents)
{
    SetPoints({{"10", "1.80"}, {"10", "1.90"}, {"12", "1.85"}});
    EXPECT_EQ(Spline(), "- - error 11");
    SetPoints({{"10", "1.80"}, {"10", "1.80"}, {"12", "1.90"}});
    EXPECT_EQ(Spline(), "- - error 6") << "No rise over no distance.";
}

// An eighth of 0.02 + 0.01 is 0.00375, shown 0.00: no step between the ticks. An eighth of 0.04 is 0.005, shown 0.01.
TEST_F(CompactionCurve, FailsOnFlatDensitiesBeforeTheResults)
{
    SetPoints({{"10", "1.80"}, {"12", "1.82"}, {"14", "1.81"}});
    EXPECT_EQ(Spline(), "- - error 11");
    SetPoints({{"10", "1.80"}, {"12", "1.83"}, {"14", "1.80"}});
    EXPECT_EQ(Spline(), "12.0 1.83");
}

TEST_F(CompactionCurve, NeedsAStepToTabulate)
{
    SetPoints(kHill);
    for (const char* interval : {"0", "", "abc", "0.000x"}) {
        sheet.Text6.Type(interval);
        EXPECT_EQ(Spline(), "- - error 11") << "Interval '" << interval << "'.";
    }
    sheet.Text6.Type("0.01 %");
    EXPECT_EQ(Spline(), "12.0 1.90") << "The number at its head counts.";
}

TEST_F(CompactionCurve, RefusesAStepThatWouldFillTheMemory)
{
    SetPoints(kHill);
    sheet.Text6.Type("0.0000001");
    EXPECT_EQ(Spline(), "- - error 7");
}

// A negative step walks nowhere: the row of the first point stays as it was, blank, and only the exact second point is
// written.
TEST_F(CompactionCurve, KnowsOnlyTheSecondPointWithANegativeStep)
{
    SetPoints(kHill);
    sheet.Text6.Type("-0.01");
    EXPECT_EQ(Spline(), "12.0 1.90");
    ASSERT_EQ(sheet.MSH3.Rows(), 3);
    EXPECT_EQ(sheet.MSH3(1, 0), "");
    EXPECT_EQ(sheet.MSH3(2, 0), "12.000");
}

TEST_F(CompactionCurve, EvaluatesOnePoint)
{
    SetPoints(kHill);
    sheet.SSTData.SetTab(1);
    sheet.Command5.Press();
    sheet.Option2.Choose();
    const auto at = [&](std::string_view x) {
        sheet.Text4.Type(x);
        sheet.Command6.Press();
        return sheet.Text5.Text();
    };
    EXPECT_EQ(at("11"), "1.8687500");
    EXPECT_EQ(at("13"), "1.8687500");
    EXPECT_EQ(at("10"), "1.8000000") << "The ends count.";
    EXPECT_EQ(at("14"), "1.8000000");
    EXPECT_EQ(at("12"), "1.9000000");
    EXPECT_EQ(at("14.01"), "1.9000000") << "Outside the trials nothing happens.";
    EXPECT_EQ(at("letters"), "1.9000000");
    EXPECT_EQ(sheet.MSH3.Rows(), 2) << "No table besides.";
    SetPoints({{"14", "1.80"}, {"12", "1.90"}, {"10", "1.80"}});
    sheet.SSTData.SetTab(0);
    sheet.SSTData.SetTab(1);
    sheet.Command5.Press();
    EXPECT_EQ(at("11"), "1.8687500") << "Falling water contents, too.";
    EXPECT_TRUE(lab.ask.errors.empty());
}

// The spline once read past the end of its work grid when it was asked for before its second derivatives.
TEST_F(CompactionCurve, FailsWhereTheSplineIsAskedForBeforeItsDerivatives)
{
    SetPoints(kHill);
    sheet.SSTData.SetTab(1);
    sheet.Command6.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].event, "frmCompaction.Command6_Click");
    EXPECT_EQ(lab.ask.errors[0].number, error::kSubscriptOutOfRange);
}

// 1.90 - 0.02 (x - 12)² at 10, 11, 13 and 14 %: four points, one cubic, and its top is at 12 %.
TEST_F(CompactionCurve, FitsACubicToFourPoints)
{
    SetPoints({{"10", "1.82"}, {"11", "1.88"}, {"13", "1.88"}, {"14", "1.82"}});
    EXPECT_EQ(Fit(), "12.0 1.90");
}

// A quartic goes through all five and meets the 1.90. A cubic, here the parabola a + b t² with t = x - 12, would not:
// sum t² = 10, sum t⁴ = 34, a = 1.80 + 0.1 · 34 / (5 · 34 - 100) = 1.849, shown 1.85.
TEST_F(CompactionCurve, FitsAQuarticToFivePointsAndMore)
{
    SetPoints({{"10", "1.80"}, {"11", "1.80"}, {"12", "1.90"}, {"13", "1.80"}, {"14", "1.80"}});
    EXPECT_EQ(Fit(), "12.0 1.90");
    EXPECT_EQ(sheet.MSHData.Rows(), 6) << "A sixth column without a mold does not count.";
}

// The sweep ends one to two steps of 0.001 past the last point; there the parabola through 0, 1, 4 and 9 hundredths
// above 1.80 still climbs: 1.80 + 0.01 · 3.002² = 1.8901.
TEST_F(CompactionCurve, TakesTheEndOfTheFitWhereItStillClimbs)
{
    SetPoints({{"10", "1.80"}, {"11", "1.81"}, {"12", "1.84"}, {"13", "1.89"}});
    EXPECT_EQ(Fit(), "13.0 1.89");
}

TEST_F(CompactionCurve, FindsNothingInAFitOfFallingWaterContents)
{
    SetPoints({{"14", "1.82"}, {"13", "1.88"}, {"11", "1.88"}, {"10", "1.82"}});
    EXPECT_EQ(Fit(), "0.0 0.00");
}

TEST_F(CompactionCurve, FailsToFitNothing)
{
    SetPoints({});
    EXPECT_EQ(Fit(), "- - error 6");
}

// At -1, 0 and 1 the odd sums are 0 and the others 3 and 2: the row of x³ becomes that of x, and the last pivot exactly
// zero. Other places leave a rest of the rounding there, and a curve that means nothing.
TEST_F(CompactionCurve, FailsToFitACubicToThreePoints)
{
    SetPoints({{"-1", "1.80"}, {"0", "1.90"}, {"1", "1.80"}});
    EXPECT_EQ(Fit(), "- - error 6");
}

// By tools/check_compaction.py: tops at (15.54, 1.8405) and (15.627, 1.8415). The example itself prints 15.47 % and
// 1.84, its highest point.
TEST_F(CompactionCurve, FindsTheTopOfASandyClay)
{
    support::SetMold(sheet, "12.5", "10.0");
    support::TypeTrials(sheet, support::kSandyClay);
    sheet.cmdCal.Press();
    EXPECT_EQ(Spline(), "15.5 1.84");
    EXPECT_EQ(Fit(), "15.6 1.84");
}

// By tools/check_compaction.py: tops at (6.49, 2.1502) and (6.496, 2.1516).
TEST_F(CompactionCurve, FindsTheTopOfCrushedRock)
{
    support::SetMold(sheet, "11.64", "15.24");
    support::TypeTrials(sheet, support::kCrushedRock);
    sheet.cmdCal.Press();
    EXPECT_EQ(Spline(), "6.5 2.15");
    EXPECT_EQ(Fit(), "6.5 2.15");
}

}  // namespace
}  // namespace terravane::compaction
