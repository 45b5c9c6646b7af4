// Calculate: masses in g, a mold in cm, densities in g/cm³. The figures are worked by hand stage by stage, or come
// from tools/check_compaction.py where a comment says so.
#include <gtest/gtest.h>

#include "support/laboratory.h"

namespace terravane::compaction {
namespace {

using support::Laboratory;
using support::RowOf;
using support::SetMold;
using support::Trial;
using support::TypeTrial;
using support::TypeTrials;
using support::Untrapped;

constexpr const char* kBlank = "     ";
constexpr Trial kTrial{"A1", "140", "130", "15", "8", "3552", "1876"};

struct CompactionCalculate : testing::Test {
    Laboratory lab;
    frmCompaction& sheet = lab.OpenSheet();
};

// 10.00 g of water in 115.00 g of dry soil is 8.6957 %, shown 8.70. 1676 g in 943.69 cm³ is 1.7760 g/cm³, shown 1.78.
// 1.78 / 1.0870 = 1.6375; without the rounding between the stages it would be 1.6339, shown 1.63.
TEST_F(CompactionCalculate, DryDensityComesFromTheFiguresAsShown)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, kTrial);
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::Water, 1), "10.00");
    EXPECT_EQ(sheet.MSHWt(water::DrySoil, 1), "115.00");
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), "8.70");
    EXPECT_EQ(sheet.MSHDensity(density::WaterContent, 1), "8.70");
    EXPECT_EQ(sheet.MSHDensity(density::WetSoil, 1), "1676.00");
    EXPECT_EQ(sheet.MSHDensity(density::WetDensity, 1), "1.78");
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "1.64");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(CompactionCalculate, OpensTheCurvesTab)
{
    EXPECT_FALSE(sheet.SSTData.TabEnabled(1)) << "Nothing has been calculated yet.";
    sheet.cmdCal.Press();
    EXPECT_TRUE(sheet.SSTData.TabEnabled(1)) << "An empty sheet calculates, too.";
    for (int row = water::Water; row <= water::WaterContent; ++row) {
        EXPECT_EQ(RowOf(sheet.MSHWt, row), "     |     |     |     |     |     ");
    }
    for (int row = density::WaterContent; row <= density::DryDensity; ++row) {
        EXPECT_EQ(RowOf(sheet.MSHDensity, row), "     |     |     |     |     |     ");
    }
}

TEST_F(CompactionCalculate, ShowsTheWetMassWhereNothingElseWasWeighed)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, {"A1", "140", "", "", "", "", ""});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::Water, 1), "140.00") << "140 less nothing.";
    EXPECT_EQ(sheet.MSHWt(water::DrySoil, 1), kBlank);
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), kBlank);
    EXPECT_EQ(sheet.MSHDensity(density::WetSoil, 1), kBlank) << "No mold, no density.";
}

TEST_F(CompactionCalculate, ShowsDrySoilAndNoWaterWhereOnlyTheDryMassWasTyped)
{
    TypeTrial(sheet, 1, {"A1", "", "130", "15", "", "", ""});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::Water, 1), kBlank);
    EXPECT_EQ(sheet.MSHWt(water::DrySoil, 1), "115.00");
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), "0.00") << "Nothing of 115 g is 0 %.";
}

// Can and dry soil of one mass leave no dry soil: 0.00, which reads 0, so that nothing is divided by it.
TEST_F(CompactionCalculate, LeavesTheWaterContentBlankWithoutDrySoil)
{
    TypeTrial(sheet, 1, {"A1", "20", "15", "15", "", "", ""});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::DrySoil, 1), "0.00");
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), kBlank);
    EXPECT_TRUE(lab.ask.errors.empty());
}

// 1676 g / 943.69 cm³ = 1.7760, and 1.78 / (1 + 0/100) = 1.78.
TEST_F(CompactionCalculate, TakesNoWaterContentAsZero)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, {"", "", "", "", "", "3552", "1876"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHDensity(density::WaterContent, 1), "0.00");
    EXPECT_EQ(sheet.MSHDensity(density::WetDensity, 1), "1.78");
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "1.78");
}

// 0 - 1876 g; -1876 / 943.69 = -1.98794 cm³, -1.99 / 1.087 = -1.8307.
TEST_F(CompactionCalculate, ShowsANegativeMassWhereTheWetOneIsMissing)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, {"A1", "140", "130", "15", "", "", "1876"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHDensity(density::WetSoil, 1), "-1876.00");
    EXPECT_EQ(sheet.MSHDensity(density::WetDensity, 1), "-1.99");
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "-1.83");
}

TEST_F(CompactionCalculate, FailsAtTheVolumeOfAMoldWithoutHeight)
{
    SetMold(sheet, "0", "10.16");
    TypeTrial(sheet, 1, kTrial);
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.ask.errors, (std::vector<Untrapped>{{"frmCompaction.cmdCal_Click", 11, "Division by zero"}}));
    EXPECT_EQ(sheet.MSHDensity(density::WetSoil, 1), "1676.00") << "The cells before it stand.";
    EXPECT_EQ(sheet.MSHDensity(density::WetDensity, 1), kBlank);
    EXPECT_FALSE(sheet.SSTData.TabEnabled(1)) << "The command has not reached its end.";
}

TEST_F(CompactionCalculate, FailsWithAnOverflowWhereNoSoilStandsInNoMold)
{
    SetMold(sheet, "", "");
    TypeTrial(sheet, 1, {"", "", "", "", "", "1876", "1876"});
    sheet.cmdCal.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kOverflow) << "0 / 0";
}

TEST_F(CompactionCalculate, ReadsTheNumberAtTheHeadOfAText)
{
    SetMold(sheet, "11.64 cm", "10.16cm");
    TypeTrial(sheet, 1, {"A1", "140g", "130 g", "15", "", "3552g", "1876 g"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::WetAndCan, 1), "140g") << "What is no number stays as typed.";
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), "8.70");
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "1.64");
}

TEST_F(CompactionCalculate, ReadsLettersAsNothing)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, {"A1", "abc", "130", "15", "", "3552", "x"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::Water, 1), kBlank);
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), "0.00");
    EXPECT_EQ(sheet.MSHDensity(density::WetSoil, 1), kBlank) << "A mold of no number is no mold.";
}

TEST_F(CompactionCalculate, GoesOnBehindAColumnWithoutAMold)
{
    SetMold(sheet);
    TypeTrials(sheet, {kTrial, {"A2", "140", "130", "15", "", "3552", ""}, kTrial});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHDensity, density::DryDensity), "1.64|     |1.64|     |     |     ");
}

TEST_F(CompactionCalculate, BlanksWhatTheLastOneWrote)
{
    SetMold(sheet);
    TypeTrial(sheet, 1, kTrial);
    sheet.cmdCal.Press();
    support::TypeCell(sheet.txtData1, density::Mold, 1, "");
    support::TypeCell(sheet.txtData, water::WetAndCan, 1, "");
    support::TypeCell(sheet.txtData, water::DryAndCan, 1, "");
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), kBlank);
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), kBlank);
}

// Every stage by tools/check_compaction.py; the water contents and densities printed with the example are 11.5044,
// 14.157, 15.4728, 16.5188, 23.3974 % and 1.56, 1.72, 1.84, 1.8, 1.63 g/cm³.
TEST_F(CompactionCalculate, ReducesASandyClay)
{
    SetMold(sheet, "12.5", "10.0");
    TypeTrials(sheet, support::kSandyClay);
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHWt, water::Water), "0.65|1.10|1.08|1.49|1.46|     ");
    EXPECT_EQ(RowOf(sheet.MSHWt, water::DrySoil), "5.65|7.77|6.98|9.02|6.24|     ");
    EXPECT_EQ(RowOf(sheet.MSHWt, water::WaterContent), "11.50|14.16|15.47|16.52|23.40|     ");
    EXPECT_EQ(RowOf(sheet.MSHDensity, density::WetDensity), "1.74|1.97|2.12|2.09|2.01|     ");
    EXPECT_EQ(RowOf(sheet.MSHDensity, density::DryDensity), "1.56|1.73|1.84|1.79|1.63|     ");
}

// By tools/check_compaction.py; made for dry densities of 1.962, 2.043, 2.118, 2.152, 2.131, 2.071 at 3.1, 4.2, 5.3,
// 6.4, 7.5, 8.6 %.
TEST_F(CompactionCalculate, ReducesCrushedRockInAllSixColumns)
{
    SetMold(sheet, "11.64", "15.24");
    TypeTrials(sheet, support::kCrushedRock);
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHDensity, density::Mold), "6480|6480|6480|6480|6480|6480");
    EXPECT_EQ(RowOf(sheet.MSHWt, water::WaterContent), "3.10|4.20|5.31|6.40|7.50|8.60");
    EXPECT_EQ(RowOf(sheet.MSHDensity, density::DryDensity), "1.96|2.04|2.12|2.15|2.13|2.07");
}

}  // namespace
}  // namespace terravane::compaction
