// Calculate of the bearing ratio sheet. Masses in g, lengths in cm, swelling in mm, loads in lb, stresses in lb/in².
// Figures are worked by hand stage by stage, or come from tools/check_cbr.py where a comment says so.
#include <gtest/gtest.h>

#include "support/cbr_laboratory.h"

namespace terravane {
namespace {

using namespace support;
using cbr::result::DryDensity;

namespace pen = cbr::penetration;

struct CbrCalculate : testing::Test {
    CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    CbrCalculate() { sheet.txtK.Type("4.9958"); }

    std::string WaterRow() const { return CellsOf(sheet.MSHWater, cbr::water::WaterContent, 1, 6); }
    std::string DryRow() const { return CellsOf(sheet.MSHCompaction, cbr::density::DryDensity, 1, 6); }
    std::string WetRow() const { return CellsOf(sheet.MSHCompaction, cbr::density::WetDensity, 1, 6); }
};

// 12.1 g of water in 100 g of soil is 12.10 %. The mold holds π/4·15.24²·11.64 = 2123.30 cm³: 4165/2123.30 = 1.9616,
// shown 1.96; 1.96/1.121 = 1.7484, shown 1.75. From the unrounded wet density it would be 1.7498.
TEST_F(CbrCalculate, ReducesThreeMoldsBeforeAndAfterSoaking)
{
    TypeThreeMolds(sheet);
    sheet.cmdCal.Press();
    EXPECT_EQ(WaterRow(), "12.10|12.00|11.90|18.40|16.90|15.20");
    EXPECT_EQ(WetRow(), "1.96|2.05|2.15|2.07|2.14|2.21");
    EXPECT_EQ(DryRow(), "1.75|1.83|1.92|1.75|1.83|1.92");
    EXPECT_EQ(RatiosOf(sheet, DryDensity), "1.75|1.83|1.92");
    EXPECT_TRUE(lab.ask.messages.empty());
    EXPECT_TRUE(lab.ask.errors.empty());
}

// A published mold: 2.51 g of water in 22.63 g of soil, 4937 g in 2244.28 cm³; published 11.09 %, 1.98 g/cm³.
TEST_F(CbrCalculate, AgreesWithAPublishedMold)
{
    TypeCan(sheet, 1, {"223", "33.57", "31.06", "8.43"});
    TypeMold(sheet, 1, {"56/5", "15", "12.7", "18610", "13673"});
    sheet.cmdCal.Press();
    EXPECT_EQ(WaterRow(), "11.09|||||");
    EXPECT_EQ(WetRow(), "2.20|||||");
    EXPECT_EQ(DryRow(), "1.98|||||");
}

// 2.204 g/cm³ wet at 10 %: shown 2.20, so 2.20/1.10 = 2.00. 2.204/1.10 = 2.0036 would show the same; 2.2049 at 11 %
// shows 2.20 and 1.98, unrounded 1.9864, shown 1.99. A cylinder of 20 cm across and 10/π cm high holds 1000 cm³.
TEST_F(CbrCalculate, DryDensityComesFromTheWetDensityAsShown)
{
    TypeCan(sheet, 1, {"1", "131", "120", "20"});
    TypeMold(sheet, 1, {"56/5", "20", "3.183098862", "9204.9", "7000"});
    sheet.cmdCal.Press();
    EXPECT_EQ(WetRow(), "2.20|||||");
    EXPECT_EQ(DryRow(), "1.98|||||");
}

TEST_F(CbrCalculate, ABlankCanEndsItsConditionOnly)
{
    for (int column = 1; column <= 6; ++column) TypeCan(sheet, column, kCans[static_cast<std::size_t>(column - 1)]);
    sheet.MSHWater(cbr::water::CanNumber, 1) = "   ";
    sheet.cmdCal.Press();
    EXPECT_EQ(WaterRow(), "|||18.40|16.90|15.20") << "The cans before soaking end at the first one, those after go on.";

    TypeCell(sheet.txtData, cbr::water::CanNumber, 1, "B1");
    TypeCell(sheet.txtData, cbr::water::CanNumber, 5, "");
    sheet.cmdCal.Press();
    EXPECT_EQ(WaterRow(), "12.10|12.00|11.90|18.40|16.90|15.20") << "What was worked out before stays.";
}

TEST_F(CbrCalculate, ABlankInColumnTwoDoesNotStopColumnFour)
{
    TypeCan(sheet, 1, kCans[0]);
    TypeCan(sheet, 3, kCans[2]);
    TypeCan(sheet, 4, kCans[3]);
    TypeMold(sheet, 1, kMoldColumns[0]);
    TypeMold(sheet, 3, kMoldColumns[2]);
    TypeMold(sheet, 4, kMoldColumns[3]);
    sheet.cmdCal.Press();
    EXPECT_EQ(WaterRow(), "12.10|||18.40||");
    EXPECT_EQ(DryRow(), "1.75|||1.75||");
}

// Without water contents the dry density is the wet one: 1.96, 2.05; soaked 2.07.
TEST_F(CbrCalculate, SoakedDensitiesOverwriteTheUnsoakedOnes)
{
    TypeMold(sheet, 1, kMoldColumns[0]);
    TypeMold(sheet, 2, kMoldColumns[1]);
    TypeMold(sheet, 4, kMoldColumns[3]);
    sheet.cmdCal.Press();
    EXPECT_EQ(RatiosOf(sheet, DryDensity), "2.07|2.05|");
}

TEST_F(CbrCalculate, BothConditionsTakeTheFirstMoldOfEach)
{
    sheet.optBoth.Choose();
    for (int column = 1; column <= 6; ++column)
        TypeMold(sheet, column, kMoldColumns[static_cast<std::size_t>(column - 1)]);
    sheet.cmdCal.Press();
    EXPECT_EQ(RatiosOf(sheet, DryDensity), "1.96|2.07|2.21") << "The third is whatever the densities left there.";
}

// 0.32 mm of 116.4 mm is 0.2749 %; 0.58 mm 0.4983 %. 02/03 to 06/03 is 96 hours.
TEST_F(CbrCalculate, SwellingIsInPercentOfTheHeight)
{
    TypeThreeMolds(sheet);
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 3, 0, 8), "02/03/2009|9|0|1.0|0.00|2.0|0.00|1.5|0.00");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 4, 0, 8), "03/03/2009|9|24|1.32|0.27|2.22|0.19|1.63|0.11");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 5, 0, 8), "04/03/2009|10|49|1.45|0.39|2.31|0.27|1.69|0.16");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 6, 0, 8), "06/03/2009|9|96|1.58|0.50|2.4|0.34|1.74|0.21");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 7, 0, 8), "||||||||");
}

// 22:00 on the first day to 23:00 on the next: 24 hours by the calendar and 1 by the clock.
TEST_F(CbrCalculate, SwellingAcrossMidnightCountsDaysAndHours)
{
    sheet.optSoak.Choose();
    TypeSwell(sheet, 3, {"28/02/2009", "22", {"0", "0", "0"}});
    TypeSwell(sheet, 4, {"01/03/2009", "23", {"0", "0", "0"}});
    TypeSwell(sheet, 5, {"01/03/2009", "7.5", {"0", "0", "0"}});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHSwell(4, cbr::swell::Elapsed), "25");
    EXPECT_EQ(sheet.MSHSwell(5, cbr::swell::Elapsed), "9") << "24 hours and the whole hours of -14.5, that is -15.";
}

TEST_F(CbrCalculate, AMoldWithoutHeightHasNoSwelling)
{
    sheet.optSoak.Choose();
    TypeMold(sheet, 2, {"", "", "11.64", "", ""});
    TypeSwell(sheet, 3, kSwellRows[0]);
    TypeSwell(sheet, 4, kSwellRows[1]);
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 4, 2, 8), "24|1.32||2.22|0.19|1.63|");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 3, 2, 8), "0|1.0||2.0|0.00|1.5|");
}

TEST_F(CbrCalculate, OneSwellingReadingLeavesTheRecordAsItIs)
{
    sheet.optSoak.Choose();
    TypeMold(sheet, 1, kMoldColumns[0]);
    TypeSwell(sheet, 3, kSwellRows[0]);
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 3, 2, 4), "   |1.0|") << "Only a later reading gives the first its zeros.";
}

TEST_F(CbrCalculate, SwellingStopsAtTheFirstRowWithoutADate)
{
    TypeThreeMolds(sheet);
    sheet.MSHSwell(5, cbr::swell::Date) = " ";
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHSwell(4, cbr::swell::Elapsed), "24");
    EXPECT_EQ(sheet.MSHSwell(6, cbr::swell::Elapsed), "   ");
}

TEST_F(CbrCalculate, UnsoakedComputesNoSwelling)
{
    TypeThreeMolds(sheet);
    sheet.optUnsoak.Choose();
    EXPECT_FALSE(sheet.MSHSwell.Enabled());
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHSwell(4, cbr::swell::Elapsed), "   ");
    EXPECT_TRUE(lab.ask.messages.empty());
}

// 15 div of 4.9958 lb are 74.937 lb, shown 74.9; on 3 in² 24.9667, shown 24.97. From the unrounded load it is 24.98.
TEST_F(CbrCalculate, StressComesFromTheLoadAsShown)
{
    TypeThreeMolds(sheet);
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 0, 9), "0.0197|15|74.9|24.97|20|99.9|33.30|18|89.9|29.97");
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 11, 0, 9), "0.4921|67|334.7|111.57|70.2|350.7|116.90|79.4|396.7|132.23");
}

TEST_F(CbrCalculate, AnEmptyDialKeepsItsLoadAndStress)
{
    sheet.cmdPen.Press();
    TypeDials(sheet, 1, {"0", "10"});
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 1, 6), "10|50.0|16.67|||") << "The second mold's cells stay empty.";
    sheet.MSHPenetrate1(1, pen::Dial(1)) = "  ";
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 1, 3), "  |50.0|16.67") << "What stood there stays.";
}

TEST_F(CbrCalculate, TwiceGivesTheSame)
{
    TypeThreeMolds(sheet);
    sheet.cmdCal.Press();
    const std::string dry = DryRow(), swelling = CellsOf(sheet.MSHSwell, 6, 0, 8);
    const std::string loads = CellsOf(sheet.MSHPenetrate1, 5, 0, 9);
    sheet.cmdCal.Press();
    EXPECT_EQ(DryRow(), dry);
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 6, 0, 8), swelling);
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 5, 0, 9), loads);
}

TEST_F(CbrCalculate, WithoutARingConstantOnlyWarns)
{
    TypeThreeMolds(sheet);
    sheet.txtK.SetText("  ");
    sheet.cmdCal.Press();
    ASSERT_EQ(lab.ask.messages.size(), 1U);
    EXPECT_EQ(lab.ask.messages[0].text, "Please input K-constant before calculation");
    EXPECT_EQ(lab.ask.messages[0].title, "Warning");
    EXPECT_EQ(lab.ask.messages[0].style, MessageStyle::Information);
    EXPECT_EQ(WaterRow(), "|||||");
    EXPECT_FALSE(sheet.cmdLPen.Enabled());
}

TEST_F(CbrCalculate, ARingConstantOfZeroMakesEveryLoadZero)
{
    TypeThreeMolds(sheet);
    sheet.txtK.Type("0");
    sheet.cmdCal.Press();
    EXPECT_TRUE(lab.ask.messages.empty());
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 11, 1, 3), "67|0.0|0.00");
    EXPECT_TRUE(sheet.cmdLPen.Enabled());
}

/// The description that the sheet's own box showed; empty without one.
std::string WarnedOf(const TestSurroundings& ask)
{
    if (ask.messages.size() != 1) return {};
    const Message& box = ask.messages[0];
    return box.title == "Error Warning" && box.style == MessageStyle::Critical ? box.text : "";
}

TEST_F(CbrCalculate, ADryMassOfZeroEndsInTheSheetsOwnBox)
{
    TypeCan(sheet, 1, kCans[0]);
    TypeCan(sheet, 2, {"B2", "130", "20", "20"});
    TypeCan(sheet, 4, kCans[3]);
    sheet.cmdCal.Press();
    EXPECT_EQ(WarnedOf(lab.ask), "Division by zero");
    EXPECT_EQ(WaterRow(), "12.10|||||") << "The can before stays worked out, those behind are not reached.";
    EXPECT_FALSE(sheet.cmdLPen.Enabled());
    EXPECT_TRUE(lab.ask.errors.empty()) << "The command traps its errors.";
}

TEST_F(CbrCalculate, AMoldWithoutADiameterEndsInTheSheetsOwnBox)
{
    TypeMold(sheet, 1, {"56/5", "", "11.64", "11165", "7000"});
    sheet.cmdCal.Press();
    EXPECT_EQ(WarnedOf(lab.ask), "Division by zero");
    lab.ask.messages.clear();
    TypeMold(sheet, 1, {"56/5", "", "", "", ""});
    sheet.cmdCal.Press();
    EXPECT_EQ(WarnedOf(lab.ask), "Overflow") << "0/0: neither soil nor volume.";
}

TEST_F(CbrCalculate, AWrongDateEndsInTheSheetsOwnBox)
{
    TypeThreeMolds(sheet);
    sheet.MSHSwell(5, cbr::swell::Date) = "31/02/2009";
    sheet.cmdCal.Press();
    EXPECT_EQ(WarnedOf(lab.ask), "Type mismatch");
    EXPECT_EQ(sheet.MSHSwell(4, cbr::swell::Elapsed), "24") << "The reading before stays worked out.";
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 1, 3), "15||") << "The loads come behind the swelling.";
}

TEST_F(CbrCalculate, AFirstReadingWithoutADateIsAWrongDate)
{
    TypeThreeMolds(sheet);
    sheet.MSHSwell(3, cbr::swell::Date) = "";
    sheet.cmdCal.Press();
    EXPECT_EQ(WarnedOf(lab.ask), "Type mismatch");
}

TEST_F(CbrCalculate, LettersReadAsZero)
{
    sheet.cmdPen.Press();
    TypeDials(sheet, 1, {"abc", "12x"});
    TypeCan(sheet, 1, {"B1", "wet", "120", "20"});
    sheet.cmdCal.Press();
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 0, 1, 3), "abc|0.0|0.00");
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 1, 3), "12x|59.9|19.97");
    EXPECT_EQ(WaterRow(), "-120.00|||||");
}

TEST_F(CbrCalculate, OnAnEmptySheetOpensTheCurves)
{
    EXPECT_FALSE(sheet.cmdLPen.Enabled());
    sheet.cmdCal.Press();
    EXPECT_TRUE(sheet.cmdLPen.Enabled());
    EXPECT_FALSE(sheet.cmdView.Enabled());
    EXPECT_FALSE(sheet.cmdCBR.Enabled());
}

}  // namespace
}  // namespace terravane
