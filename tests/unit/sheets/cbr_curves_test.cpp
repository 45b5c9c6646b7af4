// Load-Penetration Curve and CBR Value from Graph. Stresses in lb/in², penetrations in inches, ratios in percent. Where
// a comment does not work a figure out it comes from tools/check_cbr.py, which solves the fits in fractions.
#include <algorithm>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "support/cbr_laboratory.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;
using cbr::result::At01;
using cbr::result::At02;

namespace pen = cbr::penetration;

struct CbrCurves : testing::Test {
    CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    void Draw()
    {
        sheet.cmdCal.Press();
        sheet.cmdLPen.Press();
    }
    std::string Ratios() const { return RatiosOf(sheet, At01) + " " + RatiosOf(sheet, At02); }

    /// A soaked sheet whose densities and ratios are put into the results.
    void PutResults(const std::array<std::string_view, 3>& densities, const std::array<std::string_view, 3>& at01,
                    const std::array<std::string_view, 3>& at02)
    {
        for (int mold = 1; mold <= 3; ++mold) {
            const auto i = static_cast<std::size_t>(mold - 1);
            sheet.mshLPC(cbr::result::DryDensity, mold) = densities[i];
            sheet.mshLPC(At01, mold) = at01[i];
            sheet.mshLPC(At02, mold) = at02[i];
        }
        sheet.SSTData.SetTabEnabled(cbr::kValueTab, true);
        sheet.cmdCBR.SetEnabled(true);
    }
};

using CbrLoad = CbrCurves;
using CbrValue = CbrCurves;

TEST_F(CbrLoad, ThreeMoldsGiveTheirRatiosAndOpenTheLastTab)
{
    TypeThreeMolds(sheet);
    EXPECT_FALSE(sheet.SSTData.TabEnabled(3));
    Draw();
    EXPECT_EQ(Ratios(), "6.1|7.3|8.0 5.4|5.9|7.0");
    EXPECT_TRUE(sheet.SSTData.TabEnabled(3));
    EXPECT_TRUE(sheet.cmdView.Enabled());
    EXPECT_TRUE(sheet.cmdCBR.Enabled());
    EXPECT_EQ(lab.PostedRatios(), (std::vector<std::string>{"   ", "   "})) << "Three molds post with the value.";
    EXPECT_TRUE(lab.ask.errors.empty());
}

// Published: 7.04 and 6.05 % from a curve drawn by hand; the piston and the standard stresses differ by 1 %.
TEST_F(CbrLoad, ASingleMoldAgreesWithItsPublication)
{
    TypeSingleMold(sheet, kSandyDials);
    Draw();
    EXPECT_EQ(Ratios(), "7.3|| 5.9||");
    EXPECT_NEAR(Val(sheet.mshLPC(At01, 1)), 7.04, 0.4);
    EXPECT_NEAR(Val(sheet.mshLPC(At02, 1)), 6.05, 0.4);
    EXPECT_FALSE(sheet.SSTData.TabEnabled(3));
    EXPECT_EQ(lab.PostedRatios().at(0), "7.3") << "The higher of the two is posted.";
}

// Published after the shift: 8.6 and 7.14 %. The tangent meets the axis at 0.00934 in.
TEST_F(CbrLoad, TheTickShiftsTheZeroOfAConcaveCurve)
{
    TypeSingleMold(sheet, kConcaveDials);
    Draw();
    EXPECT_EQ(Ratios(), "6.8|| 7.2||");
    EXPECT_EQ(lab.PostedRatios().at(0), "7.2");
    EXPECT_EQ(sheet.ZeroShift[0], 0) << "Without the tick no shift is worked out.";

    sheet.chkMold1.SetValue(true);
    EXPECT_EQ(Ratios(), "6.8|| 7.2||") << "A tick waits for the next command.";
    sheet.cmdLPen.Press();
    EXPECT_EQ(Ratios(), "7.4|| 7.3||");
    EXPECT_NEAR(sheet.ZeroShift[0], 0.009337683286, 1e-9);
    EXPECT_EQ(lab.PostedRatios().at(0), "7.4");
}

// Dials of 200 d + 400 d² - 1000 d³ rise in slope until d = 0.1333 in; there the dial is 31.41 and rises by 253.3 an
// inch: the tangent meets the axis at 0.1333 - 31.41/253.3 = 0.0093 in. The dials' one decimal blurs that by 0.001 in.
TEST_F(CbrLoad, TheTangentTouchesWhereTheSlopeStopsRising)
{
    sheet.cmdPen.Press();
    sheet.txtK.Type("10");
    TypeDials(sheet, 1, {"0", "5.2", "10.9", "16.8", "23", "29.3", "35.6", "41.9", "48"});
    sheet.chkMold1.SetValue(true);
    Draw();
    ASSERT_TRUE(lab.ask.errors.empty());
    const auto lines = ItemsOf<LineItem>(sheet.picgraph1.Items());
    const auto tangent = std::ranges::find(lines, Colour{192, 0, 192}, [](const LineItem& l) { return l.pen.colour; });
    ASSERT_NE(tangent, lines.end());
    // Three divisions of 0.1 in over 2600 twips: 8666.7 twips an inch, from the shifted zero 0.6 in on.
    EXPECT_NEAR(tangent->x1, sheet.ZeroShift[0] * 2600 / 0.3, 0.01);
    EXPECT_NEAR(tangent->x2 - tangent->x1, 0.6 * 2600 / 0.3, 0.01);
    EXPECT_NEAR(tangent->y1, 3050, 0.01);
    EXPECT_NEAR(sheet.ZeroShift[0], 0.0093, 0.001);
}

// Stresses of 10000 d² rise in slope all the way. The search ends at 0.2 in, where the stress is 400 and rises by 4000
// an inch: the tangent meets the axis at 0.2 - 400 / 4000 = 0.1 in.
TEST_F(CbrLoad, TheTangentIsLookedForUpToAFifthOfAnInch)
{
    sheet.txtK.Type("3");
    TypePenetrations(sheet, {"0", "0.05", "0.1", "0.15", "0.2", "0.25", "0.3", "0.35", "0.4"});
    TypeDials(sheet, 1, {"0", "25", "100", "225", "400", "625", "900", "1225", "1600"});
    sheet.chkMold1.SetValue(true);
    Draw();
    EXPECT_NEAR(sheet.ZeroShift[0], 0.1, 1e-4);
}

TEST_F(CbrLoad, AZeroBelowTheOriginIsHeldThere)
{
    TypeSingleMold(sheet, kSandyDials);
    sheet.chkMold1.SetValue(true);
    Draw();
    EXPECT_EQ(sheet.ZeroShift[0], 0) << "The steepest place is the beginning; its tangent would meet the axis below 0.";
    EXPECT_EQ(Ratios(), "7.3|| 5.9||");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(CbrLoad, AFirstReadingAboveZeroLeavesTheCurveAtTheOrigin)
{
    TypeSingleMold(sheet, kSandyDials);
    TypeCell(sheet.txtData3, 0, pen::Dial(1), "25");
    Draw();
    EXPECT_EQ(Ratios(), "7.3|| 5.9||");
    EXPECT_EQ(sheet.FitCoef[0], 0);
    const auto curves = ItemsOf<PolylineItem>(sheet.picgraph1.Items());
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_LT(curves[0].points[0].x, 20) << "From two thousandths of an inch on.";
    EXPECT_GT(curves[0].points[0].y, 2900);
}

// A straight line to 100 lb/in² at 0.2 in: 5.0 % at 0.1 in and 100/1500 = 6.7 % at 0.2 in.
TEST_F(CbrLoad, TheHigherRatioOfASingleMoldIsPosted)
{
    sheet.cmdPen.Press();
    sheet.txtK.Type("10");
    TypeDials(sheet, 1, {"0", "3.75", "7.5", "11.25", "15", "18.75", "22.5", "26.25", "30"});
    Draw();
    EXPECT_EQ(Ratios(), "5.0|| 6.7||");
    EXPECT_EQ(lab.PostedRatios().at(0), "6.7");
}

// 1250 x - 2500 x² has 100 lb/in² at 0.1 in and 150 at 0.2 in: 10.0 % each. At 30 lb/div a dial is a tenth of the
// stress.
TEST_F(CbrLoad, EqualRatiosPostTheOneAtATenthOfAnInch)
{
    sheet.cmdPen.Press();
    sheet.txtK.Type("30");
    TypeDials(sheet, 1, {"0", "2.97", "5.63", "7.97", "10", "11.72", "13.13", "14.22", "15"});
    Draw();
    EXPECT_EQ(Ratios(), "10.0|| 10.0||");
    EXPECT_EQ(lab.PostedRatios().at(0), "10.0");
}

TEST_F(CbrLoad, AnEmptyMoldIsLeftOut)
{
    TypeThreeMolds(sheet);
    for (int row = 0; row < 12; ++row) sheet.MSHPenetrate1(row, pen::Dial(2)) = "";
    Draw();
    EXPECT_EQ(Ratios(), "6.1||8.0 5.4||7.0");
    EXPECT_TRUE(lab.ask.errors.empty());
    sheet.chkMold2.SetValue(true);
    sheet.cmdLPen.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U) << "A mold without a curve has no tangent.";
    EXPECT_EQ(lab.ask.errors[0].number, error::kOverflow);
}

TEST_F(CbrLoad, TheLabelOfAnEmptyMoldHasNoTangent)
{
    TypeSingleMold(sheet, kSandyDials);
    Draw();
    sheet.lblMold2.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].event, "frmCBR.lblMold2_Click");
}

TEST_F(CbrLoad, AnEmptySheetIsZeroByZero)
{
    sheet.txtK.Type("5");
    Draw();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0], (Untrapped{"frmCBR.cmdLPen_Click", error::kOverflow, "Overflow"}));
    EXPECT_FALSE(sheet.cmdView.Enabled());
    EXPECT_EQ(lab.PostedRatios().at(0), "   ");
}

TEST_F(CbrLoad, ALastPenetrationOfZeroDrawsNoCurve)
{
    TypeSingleMold(sheet, kSandyDials);
    Draw();
    TypeCell(sheet.txtData3, 11, 0, "0");
    sheet.cmdCal.Press();
    sheet.cmdLPen.Press();
    EXPECT_TRUE(ItemsOf<PolylineItem>(sheet.picgraph1.Items()).empty());
    EXPECT_FALSE(sheet.mshLPC(At01, 1).Text().empty()) << "The fit still has the other penetrations.";
    EXPECT_TRUE(lab.ask.errors.empty());
    sheet.chkMold1.SetValue(true);
    sheet.cmdLPen.Press();
    EXPECT_EQ(lab.ask.errors.size(), 1U) << "An empty scan finds no tangent.";
}

TEST_F(CbrLoad, APenetrationThatIsASlipOfThePenIsRefused)
{
    TypeSingleMold(sheet, kSandyDials);
    sheet.MSHPenetrate1(11, 0) = "49210000";
    Draw();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kOutOfMemory);
}

TEST_F(CbrLoad, LabelsDoTheirMoldOnTopOfWhatIsThere)
{
    TypeThreeMolds(sheet);
    Draw();
    const auto before = sheet.picgraph1.Items();
    sheet.mshLPC(At01, 3) = "";
    sheet.lblMold3.Press();
    EXPECT_EQ(sheet.FitMold, 3);
    EXPECT_EQ(sheet.mshLPC(At01, 3), "8.0");
    const auto& after = sheet.picgraph1.Items();
    ASSERT_GT(after.size(), before.size());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));
    const auto isTangent = [](const LineItem& line) { return line.pen.colour == Colour{192, 0, 192}; };
    EXPECT_EQ(std::ranges::count_if(ItemsOf<LineItem>(after), isTangent), 1) << "Drawn without a tick, too.";
}

TEST_F(CbrLoad, ALabelReadsFromTheShiftedZeroOnlyWithTheTick)
{
    TypeSingleMold(sheet, kConcaveDials);
    Draw();
    sheet.lblMold1.Press();
    EXPECT_EQ(Ratios(), "6.8|| 7.2||");
    EXPECT_NEAR(sheet.ZeroShift[0], 0.009337683286, 1e-9) << "The shift is worked out whatever the tick says.";
    sheet.chkMold1.SetValue(true);
    sheet.lblMold1.Press();
    EXPECT_EQ(Ratios(), "7.4|| 7.3||");
}

/// A curve that begins below zero: the soil takes load only after a gap.
const std::vector<std::string_view> kLateDials{"0", "0", "0", "0", "1", "6", "15", "28", "45"};

TEST_F(CbrLoad, OnlyTheFirstLabelPullsTheCurveUpToTheAxis)
{
    sheet.cmdPen.Press();
    sheet.txtK.Type("10");
    for (const int mold : {1, 2, 3}) TypeDials(sheet, mold, kLateDials);
    Draw();
    const double axis = sheet.picgraph1.Height - 50;
    const auto lowest = [&](Label& label) {
        sheet.picgraph1.Cls();
        label.Press();
        double y = 0;
        for (const auto& run : ItemsOf<PolylineItem>(sheet.picgraph1.Items()))
            for (const auto& point : run.points) y = std::max(y, point.y);
        return y;
    };
    EXPECT_LT(lowest(sheet.lblMold1), axis + 5) << "But for the one segment that enters below the axis.";
    EXPECT_GT(lowest(sheet.lblMold2), axis + 5);
    EXPECT_GT(lowest(sheet.lblMold3), axis + 5);
}

// The last penetration is 0.4921 in, a tenth of an inch before the axis's end. The step is a thousandth, and the first
// segment is the one to the third.
TEST_F(CbrLoad, TheCurveRunsFromTwoThousandthsToTheLastPenetration)
{
    TypeThreeMolds(sheet);
    Draw();
    const double inch = sheet.picgraph1.ScaleWidth / 0.5921;
    const auto curves = ItemsOf<PolylineItem>(sheet.picgraph1.Items());
    ASSERT_FALSE(curves.empty());
    EXPECT_NEAR(curves.front().points.front().x, 0.002 * inch, 1e-6);
    EXPECT_NEAR(curves.back().points.back().x, 0.492 * inch, 1e-6);
}

TEST_F(CbrLoad, TwiceGivesTheSamePicture)
{
    TypeThreeMolds(sheet);
    Draw();
    const auto frame = sheet.picGraph.Items(), plot = sheet.picgraph1.Items();
    sheet.cmdLPen.Press();
    EXPECT_EQ(sheet.picGraph.Items(), frame);
    EXPECT_EQ(sheet.picgraph1.Items(), plot);
}

TEST_F(CbrLoad, MarksTellTheMoldsApart)
{
    TypeThreeMolds(sheet);
    Draw();
    const auto circles = ItemsOf<CircleItem>(sheet.picgraph1.Items());
    ASSERT_EQ(circles.size(), 24U);
    EXPECT_EQ(std::ranges::count(circles, kBlack, &CircleItem::fill), 12);
    EXPECT_EQ(circles[0].radius, 30);
    const auto isSquare = [](const BoxItem& box) { return box.x2 - box.x1 == 50; };
    EXPECT_EQ(std::ranges::count_if(ItemsOf<BoxItem>(sheet.picgraph1.Items()), isSquare), 12);
    for (const char* name : {"Mold No.1", "Mold No.2", "Mold No.3"})
        EXPECT_EQ(TextsOf(sheet.picGraph.Items(), name).size(), 1U) << name;
    EXPECT_EQ(TextOn(sheet.picGraph.Items(), "Resistance of Penetration, lb/in^2").font.name, "Times New Roman");
    EXPECT_EQ(TextOn(sheet.picGraph.Items(), "Resistance of Penetration, lb/in^2").angle, 90);
}

// 95 % of 1.95 is 1.8525: the parabola through (1.75, 5.4), (1.83, 5.9), (1.92, 7.0) has 5.4 + 6.25 · 0.1025
// + 35.1307 · 0.1025 · 0.0225 = 6.1216 there.
TEST_F(CbrValue, ComesFromTheCurveAtAFifthOfAnInch)
{
    TypeThreeMolds(sheet);
    Draw();
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.txtCBR.Text(), "6.1");
    EXPECT_EQ(lab.PostedRatios(), (std::vector<std::string>{"6.1", "   "}));
    EXPECT_EQ(TextsOf(sheet.picGraph3.Items(), "CBR Value = 6.1%").size(), 1U);
    EXPECT_NEAR(sheet.DensityR2, 1, 1e-9) << "A parabola meets three points.";
}

// x = 2.10 · 0.95 = 1.995, where 100 x - 150 is 49.5.
TEST_F(CbrValue, TheShareIsTakenOfTheMaximumDensity)
{
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.txtMDD.Type("2.10");
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.txtCBR.Text(), "49.5") << "The curve at 0.2 in decides, though that at 0.1 in lies higher.";
}

// Two characters: "100%" reads 10, so x = 0.21 and 100 x - 150 = -129.
TEST_F(CbrValue, AHundredPercentReadsTen)
{
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.txtMDD.Type("2.10");
    sheet.cboCBR.Type("100%");
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.txtCBR.Text(), "-129.0");
    EXPECT_EQ(lab.PostedRatios().at(0), "-129.0");
}

TEST_F(CbrValue, WithoutShareOrMaximumDensityStaysEmpty)
{
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.txtCBR.SetText("7.7");
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.txtCBR.Text(), "");
    EXPECT_EQ(lab.PostedRatios().at(0), "");
    sheet.txtMDD.Type("2.10");
    sheet.cboCBR.Type(" ");
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.txtCBR.Text(), "");
}

// The press posts an empty text, as the method has it; the value that stood there is gone, and the status line says so.
TEST_F(CbrValue, AnEmptyResultThatTakesAValueAwayIsToldInOneSentence)
{
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    const auto told = [this] { return sheet.stbDes.Panel(kNoticePanel); };
    sheet.cmdCBR.Press();
    EXPECT_EQ(told(), "") << "Nothing was posted before: nothing is lost.";
    sheet.txtMDD.Type("2.10");
    sheet.cmdCBR.Press();
    EXPECT_EQ(lab.PostedRatios().at(0), "49.5");
    EXPECT_EQ(told(), "");
    sheet.txtMDD.Type("");
    sheet.cmdCBR.Press();
    EXPECT_EQ(lab.PostedRatios().at(0), "");
    EXPECT_EQ(told(), "An empty result took the place of the posted value 49.5.");
    sheet.txtMDD.Type("2.10");
    sheet.cmdCBR.Press();
    EXPECT_EQ(told(), "") << "The sentence goes with the next value.";
}

TEST_F(CbrValue, TheSentenceNamesTheValueOfTheOpenMaterial)
{
    lab.Change("UPDATE SUMMARY Set sum_CBR ='7.7' Where sum_ID =' 2'");
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.cmdCBR.Press();
    EXPECT_EQ(sheet.stbDes.Panel(kNoticePanel), "") << "The crushed rock's value stands.";
    frmCBR& rock = lab.OpenCbr(Material::Crush);
    TypeThreeMolds(rock);
    rock.txtMDD.Type("");
    rock.cmdCal.Press();
    rock.cmdLPen.Press();
    rock.cmdCBR.Press();
    EXPECT_EQ(rock.stbDes.Panel(kNoticePanel), "An empty result took the place of the posted value 7.7.");
    EXPECT_EQ(lab.PostedRatios().at(1), "");
}

TEST_F(CbrValue, FewerThanThreeDensitiesAreNoParabola)
{
    PutResults({"1.90", "1.90", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.txtMDD.Type("2.10");
    sheet.txtCBR.SetText("old");
    sheet.cmdCBR.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kOverflow);
    EXPECT_EQ(sheet.txtCBR.Text(), "old");
    EXPECT_EQ(lab.PostedRatios().at(0), "   ");
}

TEST_F(CbrValue, CrushedRockPostsIntoItsOwnRow)
{
    frmCBR& rock = lab.OpenCbr(Material::Crush);
    TypeThreeMolds(rock);
    rock.cmdCal.Press();
    rock.cmdLPen.Press();
    rock.cmdCBR.Press();
    EXPECT_EQ(lab.PostedRatios(), (std::vector<std::string>{"   ", "6.1"}));
}

TEST_F(CbrValue, LabelsDrawOneCurveAndPostNothing)
{
    PutResults({"1.90", "2.00", "2.10"}, {"80", "90", "100"}, {"40", "50", "60"});
    sheet.txtMDD.Type("2.10");
    sheet.cmdCBR.Press();
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph3.Items()).size(), 6U);
    lab.Change("UPDATE SUMMARY Set sum_CBR ='?' Where sum_ID =' 1'");
    for (Label* label : {&sheet.lbl01, &sheet.lbl02}) {
        label->Press();
        EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph3.Items()).size(), 3U);
        EXPECT_EQ(ItemsOf<PolylineItem>(sheet.picGraph3.Items()).size(), 1U);
    }
    EXPECT_EQ(sheet.txtCBR.Text(), "49.5");
    EXPECT_EQ(lab.PostedRatios().at(0), "?");
    EXPECT_NEAR(sheet.DensityCoef[1], 100, 1e-3) << "The last one fitted the ratios at 0.2 in.";
}

TEST_F(CbrValue, TheDensityAxisRunsInTenths)
{
    PutResults({"1.87", "1.93", "2.06"}, {"3", "4", "4.9"}, {"2", "3", "4"});
    sheet.cmdCBR.Press();
    const auto& frame = sheet.picGraph2.Items();
    for (const char* label : {"1.8", "1.9", "2.0", "2.1", "4.5", "0.5"}) EXPECT_GE(TextsOf(frame, label).size(), 1U);
    EXPECT_EQ(TextsOf(frame, "2.2").size(), 0U);
    EXPECT_EQ(TextsOf(frame, "5").size(), 1U) << "4.9 in steps of a half: ten divisions and a part.";
    EXPECT_EQ(TextsOf(frame, "5.5").size(), 0U);
}

TEST_F(CbrValue, FallingDensitiesDrawNoCurve)
{
    PutResults({"2.10", "2.00", "1.90"}, {"100", "90", "80"}, {"60", "50", "40"});
    sheet.lbl01.Press();
    EXPECT_TRUE(lab.ask.errors.empty());
    EXPECT_TRUE(ItemsOf<PolylineItem>(sheet.picGraph3.Items()).empty());
}

// The sheet posts the unsoaked mold, the first column: the higher of its two ratios.
TEST_F(CbrCurves, BothConditionsEndToEnd)
{
    TypeThreeMolds(sheet);
    sheet.optBoth.Choose();
    for (int column : {2, 3, 5, 6}) sheet.MSHCompaction(cbr::density::Blows, column) = "";
    for (int row = 0; row < 12; ++row) sheet.MSHPenetrate1(row, pen::Dial(3)) = "";
    Draw();
    EXPECT_TRUE(lab.ask.messages.empty());
    EXPECT_EQ(RatiosOf(sheet, cbr::result::Mold), "Unsoak|Soak|");
    EXPECT_EQ(RatiosOf(sheet, cbr::result::DryDensity), "1.75|1.75|");
    EXPECT_EQ(Ratios(), "6.1|7.3| 5.4|5.9|");
    EXPECT_FALSE(sheet.SSTData.TabEnabled(3));
    EXPECT_EQ(lab.PostedRatios().at(0), "6.1");
    EXPECT_EQ(sheet.MSHSwell(6, cbr::swell::Elapsed), "96");
    sheet.tblMenu.Press(1);
    EXPECT_EQ(lab.StoredColumn("CBRSOIL", "cbr_typ").at(0), "2");
    frmCBR& again = lab.OpenCbr();
    EXPECT_TRUE(again.optBoth.Value());
    EXPECT_EQ(CellsOf(again.MSHWater, 0, 3, 4), "Unsoaked|Soaked");
}

}  // namespace
}  // namespace terravane
