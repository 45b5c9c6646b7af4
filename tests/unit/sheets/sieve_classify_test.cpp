// Classify on the sheet: what it asks for, writes, marks and posts. The systems themselves are tested by their tables.
#include <gtest/gtest.h>

#include "support/report_bench.h"
#include "support/sieve_laboratory.h"

namespace terravane {
namespace {

using namespace support;

struct SieveClassify : testing::Test {
    SieveLaboratory lab;
    frmSieve& sheet = lab.OpenSieve();

    /// The percentages as if they had been calculated, the command as if a plot had opened it.
    void Classify(std::string_view p4, std::string_view p10, std::string_view p40, std::string_view p200,
                  std::string_view liquid, std::string_view plastic)
    {
        sheet.txtP4.Type(p4);
        sheet.txtP10.Type(p10);
        sheet.txtP40.Type(p40);
        sheet.txtP200.Type(p200);
        TypeLimits(sheet, liquid, plastic);
        sheet.cmdClass.SetEnabled(true);
        sheet.cmdClass.Press();
    }
    std::vector<CircleItem> Marks() const { return ItemsOf<CircleItem>(sheet.picChart.Items()); }
};

TEST_F(SieveClassify, MissingLimitsAreAskedForAndTheBoxesKeep)
{
    sheet.txtSuscs.SetText("old");
    Classify("100", "90", "80", "60", "25", "  ");
    ASSERT_EQ(lab.ask.messages.size(), 1u);
    EXPECT_EQ(lab.ask.messages[0].text, "Please input liquid limit and plastic limit before.");
    EXPECT_EQ(lab.ask.messages[0].title, "Soil Classification");
    EXPECT_EQ(lab.ask.messages[0].style, MessageStyle::Information);
    EXPECT_EQ(sheet.txtSuscs.Text(), "old");
    EXPECT_EQ(lab.Posted("sum_USCS"), "   ");
}

TEST_F(SieveClassify, APublishedClayeySand)
{
    TypeStack(sheet,
              {{"#4", "0", "14"},
               {"#10", "0", "12"},
               {"#20", "0", "8"},
               {"#40", "0", "15"},
               {"#100", "0", "21"},
               {"#200", "0", "9"},
               {"Pan", "0", "21"}},
              "100");
    TypeLimits(sheet, "25", "12");
    sheet.cmdCal.Press();
    sheet.cmdgraph.Press();
    sheet.cmdClass.Press();
    EXPECT_EQ(sheet.txtSuscs.Text(), "SC");  // as published
    EXPECT_EQ(sheet.txtNuscs.Text(), "Clayey sand");
    EXPECT_EQ(sheet.txtSaash.Text(), "A-2-6(0)");
    EXPECT_EQ(sheet.txtMtype.Text(), "Cayey gravel and sand");
}

// Soil A of a course: published A-2-6 (1) of an index of 0.96; the sheet cuts it.
TEST_F(SieveClassify, APublishedClayeySandOfGroupA26)
{
    Classify("100.0", "89.9", "56.8", "34.1", "23", "8");
    EXPECT_EQ(sheet.txtSaash.Text(), "A-2-6(0)");
    EXPECT_EQ(sheet.txtSuscs.Text(), "SC");
}

TEST_F(SieveClassify, PostsTheFractionsAndBothGroupsOfItsMaterial)
{
    lab.program.CurrentMaterial = Material::Crush;
    Classify("86.0", "74.0", "51.0", "21.5", "25", "12");
    EXPECT_EQ(lab.Posted("sum_gravel", 1), " 14");
    EXPECT_EQ(lab.Posted("sum_sand", 1), " 64.5");
    EXPECT_EQ(lab.Posted("sum_finer", 1), " 21.5");
    EXPECT_EQ(lab.Posted("sum_USCS", 1), "SC");
    EXPECT_EQ(lab.Posted("sum_AASHTO", 1), "A-2-6(0)");
    EXPECT_EQ(lab.Posted("sum_USCS", 0), "   ");
}

// Percentages of one decimal give fractions of one; typed ones may have two, and the fractions keep both.
TEST_F(SieveClassify, FractionsHaveTwoDecimals)
{
    Classify("86.25", "74.0", "51.0", "21.134", "25", "12");
    EXPECT_EQ(lab.Posted("sum_gravel"), " 13.75");
    EXPECT_EQ(lab.Posted("sum_sand"), " 65.12");
}

TEST_F(SieveClassify, FractionsBelowOneLoseTheZeroAndNegativeOnesKeepTheSign)
{
    Classify("99.5", "90", "80", "99.8", "60", "20");
    EXPECT_EQ(lab.Posted("sum_gravel"), " .5");
    EXPECT_EQ(lab.Posted("sum_sand"), "-.3");
}

// LL 32 and PI 14 on columns of 600 and rows of 600 twips: x 1920, y 4200 - 840.
TEST_F(SieveClassify, MarksThePlasticSampleOnTheChart)
{
    Classify("86", "74", "51", "21", "32", "18");
    ASSERT_EQ(Marks().size(), 1u);
    EXPECT_NEAR(Marks()[0].x, 1920, 1e-9);
    EXPECT_NEAR(Marks()[0].y, 3360, 1e-9);
    EXPECT_EQ(Marks()[0].radius, 40);
    EXPECT_TRUE(Marks()[0].filled);
    EXPECT_EQ(Marks()[0].fill, kBlack);
}

TEST_F(SieveClassify, ANonPlasticSampleHasNoMarkAndNoIndex)
{
    Classify("86", "74", "51", "60", "32", "18");
    Classify("86", "74", "51", "60", "25", "25");
    EXPECT_EQ(sheet.txtSuscs.Text(), "ML");
    EXPECT_EQ(sheet.txtSaash.Text(), "A-4(0)");
    EXPECT_TRUE(Marks().empty());
}

TEST_F(SieveClassify, AnUnreadD10OfFewFinesFailsAndTheBoxesKeep)
{
    Classify("86", "74", "51", "21", "25", "12");
    Classify("100", "90", "60", "12", "25", "12");
    EXPECT_EQ(lab.OnlyError(), 6);
    EXPECT_EQ(sheet.txtSuscs.Text(), "SC");
    EXPECT_EQ(lab.Posted("sum_finer"), " 21");
    EXPECT_TRUE(Marks().empty());  // the chart had been drawn anew
}

TEST_F(SieveClassify, AGroupWithoutATypicalNameLeavesTheLast)
{
    Classify("100", "90", "60", "60", "30", "15");
    EXPECT_EQ(sheet.txtMtype.Text(), "Clayey soils");
    Classify("100", "90", "60", "30", "50", "30");
    EXPECT_EQ(sheet.txtSaash.Text(), "A-2-7(1)");  // b 15, d 10: 1.5
    EXPECT_EQ(sheet.txtMtype.Text(), "Clayey soils");
    Classify("100", "90", "60", "35.5", "30", "25");
    EXPECT_EQ(sheet.txtSaash.Text(), "(0)");
    EXPECT_EQ(sheet.txtMtype.Text(), "Clayey soils");
}

TEST_F(SieveClassify, ASieveThatIsMissingReadsAsNothingPassing)
{
    Classify("60", "", "25", "15", "20", "18");
    EXPECT_EQ(sheet.txtSaash.Text(), "A-1-a(0)");
}

TEST_F(SieveClassify, WithoutAMaterialNothingIsPosted)
{
    lab.program.CurrentMaterial = Material::None;
    Classify("86", "74", "51", "21", "25", "12");
    EXPECT_EQ(sheet.txtSuscs.Text(), "SC");
    EXPECT_EQ(lab.OnlyError(), 0);
    EXPECT_EQ(lab.Posted("sum_USCS"), "   ");
}

// 600 twips a column and a row. The A-line meets 4 at 20 + 320 / 58.4 = 25.479, 7 at 29.589.
TEST_F(SieveClassify, TheChartHasItsLinesAndZones)
{
    std::vector<LineItem> blue;
    for (const LineItem& line : ItemsOf<LineItem>(sheet.picChart.Items()))
        if (line.pen.colour == kBlue) blue.push_back(line);
    ASSERT_EQ(blue.size(), 4u);
    EXPECT_NEAR(blue[0].x1, 3000, 1e-9);
    EXPECT_NEAR(blue[0].y2, 4200, 1e-9);
    EXPECT_NEAR(blue[1].x1, 6000, 1e-9);
    EXPECT_NEAR(blue[1].y1, 4200 - 58.4 * 60, 1e-9);
    EXPECT_NEAR(blue[1].x2, 25.47945 * 60, 0.01);
    EXPECT_NEAR(blue[1].y2, 3960, 1e-9);
    EXPECT_NEAR(blue[2].x2, 25.47945 * 60, 0.01);
    EXPECT_NEAR(blue[3].x2, 29.58904 * 60, 0.01);
    EXPECT_NEAR(blue[3].y1, 3780, 1e-9);
    for (const auto* zone : {"CH or OH", "MH or OH", "CL or OL", "ML or OL", "CL - ML"})
        EXPECT_EQ(TextsOf(sheet.picChart.Items(), zone).size(), 1u) << zone;
    EXPECT_EQ(TextOn(sheet.picChart.Items(), "CH or OH").y, 900 - sheet.picChart.TextHeight("") / 2);
    EXPECT_EQ(TextOn(sheet.picChart1.Items(), "Plasticity Index (%)").angle, 90);
    EXPECT_EQ(TextOn(sheet.picChart1.Items(), "Plasticity Index (%)").font, (Font{"Times New Roman", 14}));
}

// The spot of "CH or OH" is a liquid limit of 75 at an index of 55: 4500 across, 900 down.
TEST_F(SieveClassify, ASampleThatLiesOnAZonesTextIsNotHidden)
{
    Classify("86", "74", "51", "21", "75", "20");
    const auto& items = sheet.picChart.Items();
    const auto marks = ItemsOf<CircleItem>(items);
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_NEAR(marks[0].x, 4500, 1e-9);
    EXPECT_NEAR(marks[0].y, 900, 1e-9);
    const TextItem zone = TextOn(items, "CH or OH");
    const double right = zone.x + TextWidth(zone.font, zone.text), bottom = zone.y + TextHeight(zone.font);
    const bool isClear = zone.x > 4540 || right < 4460 || zone.y > 940 || bottom < 860;
    EXPECT_TRUE(isClear) << zone.x << " " << zone.y;
    EXPECT_EQ(TextOn(items, "MH or OH").y, 3300 - TextHeight(zone.font) / 2) << "The others stay on their spots.";
}

}  // namespace
}  // namespace terravane
