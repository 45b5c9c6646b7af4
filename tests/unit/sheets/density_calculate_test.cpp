// Calculate of the field density sheet. Masses in g, lengths in cm, volumes in cm³, densities in g/cm³. Figures are
// worked by hand stage by stage from the texts of the sheet.
#include <gtest/gtest.h>

#include "support/density_laboratory.h"

namespace terravane::field {
namespace {

using namespace support;

struct DensityCalculate : testing::Test {
    DensityLaboratory lab;
    frmDensity& sheet = lab.OpenDensity();
};

// π/4·10²·14.5 = 1138.83; 1790/1138.83 = 1.5718. 6595 - 4855 - 280 = 1460; /1.57 = 929.936. 1540/929.94 = 1.6560.
// Water 2.67/19.15 = 13.943 %, 3.51/20.52 = 17.105 %, 8.29/24.29 = 34.129 %. 1.66/1.1394 = 1.4569, 1.66/1.1711 =
// 1.4175, 1.66/1.3413 = 1.2376; of 1.72: 84.884, 82.558, 72.093 %; (84.88 + 82.56 + 72.09)/3 = 79.843.
// Published: volume 1138.685, sand 1.572, water 13.94, 17.11 and 34.13 %; the cone is not taken off there.
TEST_F(DensityCalculate, AgreesWithAPublishedSandReplacement)
{
    TypeCone(sheet, 1, {"6595", "6315"});
    TypeSand(sheet, 1, {"10", "14.5", "1900", "3690"});
    TypeHole(sheet, 1, {"1540", "0", "6595", "4855", "50.12", "47.45", "28.3"});
    TypeHole(sheet, 2, {"1540", "0", "6595", "4855", "53.42", "49.91", "29.39"});
    TypeHole(sheet, 3, {"1540", "0", "6595", "4855", "59.94", "51.65", "27.36"});
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.72");
    sheet.optStd.Choose();
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Volume), "1138.83|||||");
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Density), "1.57|1.57|1.57|1.57|1.57|1.57");
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::SandInHole), "1460|1460|1460|||");
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::Volume), "929.94|929.94|929.94|||");
    EXPECT_EQ(RowOf(sheet.MSHWater, water::Water), "2.67|3.51|8.29|||");
    EXPECT_EQ(RowOf(sheet.MSHWater, water::DrySoil), "19.15|20.52|24.29|||");
    EXPECT_EQ(RowOf(sheet.MSHWater, water::WaterContent), "13.94|17.11|34.13|||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::WetDensity), "1.66|1.66|1.66|||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "1.46|1.42|1.24|||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "84.88|82.56|72.09|||");
    EXPECT_EQ(lab.Posted(), " 79.84");
    EXPECT_TRUE(lab.ask.errors.empty());
}

// π/4·16²·18.98 = 3816.155; 6410/3816.16 = 1.6797; 2320/1.68 = 1380.952; 4100/1380.95 = 2.96897; 4.1/15.6 = 26.282 %;
// 2.97/1.2628 = 2.3519; of 2.40: 97.917 %. Published: 1.6797, 1381.2, 2.9684, 26.2821 %, 2.3506.
TEST_F(DensityCalculate, AgreesWithAPublishedGallonJar)
{
    TypeCone(sheet, 1, {"8450", "6770"});
    TypeSand(sheet, 1, {"16.0", "18.98", "2040", "8450"});
    TypeHole(sheet, 1, {"4100", "0", "6400", "2400", "47.0", "42.9", "27.3"});
    TypeMaximum(sheet, 1, "2.40");
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Volume), "3816.16|||||");
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::Volume), "1380.95|||||");
    EXPECT_EQ(RowOf(sheet.MSHWater, water::WaterContent), "26.28|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::WetDensity), "2.97|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "2.35|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "97.92|||||");
    EXPECT_EQ(lab.Posted(), " 97.92");
}

// (1613.5 + 1611.2 + 1613.3)/3 = 1612.667.
TEST_F(DensityCalculate, TheAverageOfTheConeStandsInAllSixColumns)
{
    TypeCone(sheet, 1, {"7215.0", "5601.5"});
    TypeCone(sheet, 2, {"7198.2", "5587.0"});
    TypeCone(sheet, 3, {"7204.6", "5591.3"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHWsand, cone::SandInCone), "1613.5|1611.2|1613.3|||");
    EXPECT_EQ(RowOf(sheet.MSHWsand, cone::Average), "1612.67|1612.67|1612.67|1612.67|1612.67|1612.67");
}

// (3000/2123.31 + 3060/2123.31)/3 = 0.9513, over two it would be 1.43; (1600 + 1610)/4 = 802.50, over two 1605.
TEST_F(DensityCalculate, AGapBetweenDeterminationsLowersTheAverage)
{
    TypeCone(sheet, 2, {"7000", "5400"});
    TypeCone(sheet, 4, {"7000", "5390"});
    TypeSand(sheet, 1, kSandMold);
    TypeSand(sheet, 3, {"15.24", "11.64", "7000", "10060"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHWsand, cone::Average), "802.50|802.50|802.50|802.50|802.50|802.50");
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Sand), "3000||3060|||");
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Density), "0.95|0.95|0.95|0.95|0.95|0.95");
}

// 3000/2123.31 = 1.4129 shows 1.41, of which 2116 g fill 1500.71; of 1.4129 they would fill 1497.6. Three
// determinations of 1600, 1611.2 and 1626.8 g average to 1612.667: 7000 - 3284 - 1612.67 = 2103.33.
TEST_F(DensityCalculate, VolumesComeFromTheFiguresAsShown)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "2");
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::SandInCone), "1600.00|||||");
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::SandDensity), "1.41|||||");
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::Volume), "1500.71|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::WetDensity), "2.00|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "1.82|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "91.00|||||") << "1.82, not 1.8182, of 2.";
    TypeCone(sheet, 2, {"7198.2", "5587.0"});
    TypeCone(sheet, 3, {"7000", "5373.2"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::SandInHole), "2103.33|||||");
}

// In binary 6595.3 - 6314.9 is 280.4000000000005457 and 100.3 - 99.9 is 0.3999999999999915.
TEST_F(DensityCalculate, PlainDifferencesShowAllTheirDigits)
{
    TypeCone(sheet, 1, {"6595.3", "6314.9"});
    TypeSand(sheet, 1, kSandMold);
    TypeHole(sheet, 1, {"3250.5", "250.25", "7000", "3284", "100.4", "100.3", "99.9"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWsand(cone::SandInCone, 1), "280.400000000001");
    EXPECT_EQ(sheet.MSHWsoil(soil::WetSoil, 1), "3000.25");
    EXPECT_EQ(sheet.MSHWater(water::Water, 1), "0.10") << "Masked.";
    EXPECT_EQ(sheet.MSHWater(water::DrySoil, 1), "0.399999999999991");
    EXPECT_EQ(sheet.MSHWater(water::WaterContent, 1), "25.00");
}

TEST_F(DensityCalculate, AMissingMaximumLeavesTheDensitiesAndPostsNothing)
{
    TypeOneHole(sheet);
    sheet.optStd.Choose();
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kOverflow) << "The average of no hole is 0/0.";
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "1.82|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "|||||");
    EXPECT_EQ(lab.Posted(), "   ");
}

// Hole 2 holds no water: 2.00 of 2.00 is 100 %. (91 + 100)/2 = 95.5; hole 4 stands behind the gap.
TEST_F(DensityCalculate, TheFirstBlankMaximumEndsTheAverage)
{
    TypeOneHole(sheet);
    for (const int hole : {2, 3, 4}) TypeHole(sheet, hole, kHole);
    TypeCell(sheet.txtData3, water::WetAndCan, 2, "120");
    for (const int hole : {1, 2, 4}) TypeMaximum(sheet, hole, "2.00");
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "1.82|2.00|1.82|1.82||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "91.00|100.00||||");
    EXPECT_EQ(lab.Posted(), " 95.5");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(DensityCalculate, ASandWithoutDensityFailsAtItsFirstHole)
{
    TypeHole(sheet, 1, kHole);
    TypeHole(sheet, 2, kHole);
    TypeMaximum(sheet, 1, "2");
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kDivisionByZero);
    EXPECT_EQ(RowOf(sheet.MSHWsoil, soil::WetSoil), "3000|3000||||") << "The soil was weighed before.";
    EXPECT_EQ(RowOf(sheet.MSHVolume, volume::SandInHole), "3716|||||") << "Hole 2 is not begun.";
    EXPECT_EQ(RowOf(sheet.MSHWater, water::Water), "|||||");
    EXPECT_EQ(RowOf(sheet.MSHDsand, sand::Density), "|||||") << "No determination, no average.";
    EXPECT_EQ(lab.Posted(), "   ");
}

TEST_F(DensityCalculate, AMoldWithoutHeightFails)
{
    TypeSand(sheet, 1, {"15.24", "", "7000", "10000"});
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kDivisionByZero);
    EXPECT_EQ(sheet.MSHDsand(sand::Volume, 1), "0.00");
    lab.ask.errors.clear();
    TypeSand(sheet, 1, {"15.24", "", "7000", "7000"});
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kOverflow) << "Nothing over nothing.";
}

TEST_F(DensityCalculate, AHoleWithWaterButWithoutSandFailsInItsWetDensity)
{
    TypeOneHole(sheet);
    TypeHole(sheet, 2, {"3250", "250", "", "", "130", "120", "20"});
    TypeHole(sheet, 3, kHole);
    for (const int hole : {1, 2, 3}) TypeMaximum(sheet, hole, "2");
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kDivisionByZero);
    EXPECT_EQ(RowOf(sheet.MSHWater, water::WaterContent), "10.00|10.00||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::DryDensity), "1.82|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "|||||");
    EXPECT_EQ(lab.Posted(), "   ");
}

TEST_F(DensityCalculate, ACanWithoutDrySoilFails)
{
    TypeOneHole(sheet);
    TypeCell(sheet.txtData3, water::Can, 1, "120");
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kDivisionByZero);
    EXPECT_EQ(sheet.MSHWater(water::DrySoil, 1), "0");
    EXPECT_EQ(sheet.MSHWater(water::WaterContent, 1), "");
}

// All of the can's soil lost as water: -100 %, and the dry density is divided by 0.
TEST_F(DensityCalculate, AWaterContentOfMinusOneHundredFails)
{
    TypeOneHole(sheet);
    TypeColumn(sheet.txtData3, water::WetAndCan, 1, {"20", "120", "20"});
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kDivisionByZero);
    EXPECT_EQ(sheet.MSHWater(water::WaterContent, 1), "-100.00");
    EXPECT_EQ(sheet.MSHSummary(summary::WetDensity, 1), "2.00");
}

TEST_F(DensityCalculate, LettersCountAsNothingAndUnitsAreReadOver)
{
    TypeCone(sheet, 1, {"7000 g", "5400g"});
    TypeCone(sheet, 2, {"seven", "5400"});
    TypeSand(sheet, 1, {"15.24", "11.64 cm", "7000", "10000"});
    TypeHole(sheet, 1, kHole);
    TypeMaximum(sheet, 1, "2.00 g/cm^3");
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHWsand, cone::SandInCone), "1600|||||");
    EXPECT_EQ(sheet.MSHWsand(cone::Average, 6), "1600.00") << "A determination of letters is none.";
    EXPECT_EQ(lab.Posted(), " 91");
}

// 3284 - 7000 + 1600 = -2116, /1.41 = -1500.71; -3000/-1500.71 = 2.00; 1.82 of -2 is -91 %.
TEST_F(DensityCalculate, NegativeMassesAreWorkedAsTheyStand)
{
    TypeCone(sheet, 1, {"5400", "7000"});
    TypeSand(sheet, 1, kSandMold);
    TypeHole(sheet, 1, {"250", "3250", "3284", "7000", "130", "120", "20"});
    TypeMaximum(sheet, 1, "-2");
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHWsand(cone::SandInCone, 1), "-1600");
    EXPECT_EQ(sheet.MSHVolume(volume::Volume, 1), "-1500.71");
    EXPECT_EQ(sheet.MSHSummary(summary::WetDensity, 1), "2.00");
    EXPECT_EQ(lab.Posted(), "-91");
}

TEST_F(DensityCalculate, ThePostedAverageKeepsAPlaceForItsSign)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "200");
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.Posted(), " .91");
    TypeMaximum(sheet, 1, "-200");
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.Posted(), "-.91");
}

// 1.82 of 0.0015 is 121333.33 %: in single precision 121333.328125, in seven digits 121333.3.
TEST_F(DensityCalculate, TheAverageIsKeptInSinglePrecision)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "0.0015");
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHSummary(summary::Compaction, 1), "121333.33");
    EXPECT_EQ(lab.Posted(), " 121333.3");
}

TEST_F(DensityCalculate, AHoleTakenAwayKeepsWhatWasWorkedOut)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "2");
    sheet.cmdCal.Press();
    TypeCell(sheet.txtData4, volume::Initial, 1, "");
    TypeCell(sheet.txtData3, water::WetAndCan, 1, "");
    TypeCell(sheet.txtData1, sand::MoldAndSand, 1, "10600");
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHDsand(sand::Density, 1), "1.70");
    EXPECT_EQ(sheet.MSHVolume(volume::Volume, 1), "1500.71");
    EXPECT_EQ(sheet.MSHSummary(summary::DryDensity, 1), "1.82");
    EXPECT_EQ(lab.Posted(), " 91");
}

TEST_F(DensityCalculate, AnEmptySheetFailsWithoutWritingACell)
{
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.OnlyError(), error::kOverflow);
    EXPECT_EQ(RowOf(sheet.MSHWsand, cone::Average), "|||||");
    EXPECT_EQ(RowOf(sheet.MSHSummary, summary::Compaction), "|||||");
}

TEST_F(DensityCalculate, AFileThatIsGoneFailsAtThePostingOnly)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "2");
    lab.program.CurrentProjectPath = "/lab/TRVN_gone.mdb";
    sheet.cmdCal.Press();
    EXPECT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(sheet.MSHSummary(summary::Compaction, 1), "91.00");
}

}  // namespace
}  // namespace terravane::field
