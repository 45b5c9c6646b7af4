// The Atterberg sheet. Masses in g, water contents in percent. Figures are worked by hand, or, where a comment says
// "script", by a second program with the sums rounded to single precision.
#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "support/drawn_items.h"
#include "support/laboratory.h"

namespace terravane {
namespace {

using namespace support;

using Weighing = std::array<std::string_view, 4>;  // blows, can with wet soil, with dry soil, empty
using Thread = std::array<std::string_view, 3>;    // can with wet soil, with dry soil, empty

struct Published {
    std::vector<Weighing> liquid;
    std::vector<Thread> plastic;
};

/// Teaching data of a clay of low plasticity (National Institute of Technology Karnataka, virtual laboratory).
const Published kClay{
    {{"31", "28.56", "27.4", "22.23"}, {"27", "29.27", "28.1", "23.31"}, {"20", "25.73", "24.9", "21.87"}},
    {{"16.39", "15.28", "7.78"}, {"13.43", "12.69", "7.83"}, {"21.23", "20.43", "15.16"}}};

/// A worked problem with a nearly flat flow curve.
const Published kFlat{{{"35", "22.46", "19.44", "12.76"},
                       {"21", "21.33", "18.75", "13.06"},
                       {"16", "21.29", "18.78", "13.26"},
                       {"11", "26.12", "22.1", "13.27"}},
                      {{"22.1", "20.42", "13.07"}, {"21.77", "20.19", "13.18"}}};

/// Research readings of a sand and clay mix (Mascitti and McNitt, experiment 1, mix 31), to 0.001 g.
const Published kMix{{{"30", "13.92", "12.218", "7.162"},
                      {"26", "15.974", "13.737", "7.231"},
                      {"21", "15.781", "13.57", "7.192"},
                      {"20", "15.399", "13.227", "7.115"}},
                     {{"10.746", "10.291", "7.25"}, {"9.979", "9.621", "7.199"}, {"9.494", "9.187", "7.117"}}};

struct Atterberg : testing::Test {
    Laboratory lab;
    frmAtterberg& sheet = lab.Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil);

    void TypeLiquid(int trial, const Weighing& typed)
    {
        int row = ll::Blows;
        for (const auto text : typed) TypeCell(sheet.txtData, row++, trial, text);
    }

    void TypePlastic(int thread, const Thread& typed)
    {
        int row = pl::WetAndCan;
        for (const auto text : typed) TypeCell(sheet.txtData1, row++, thread, text);
    }

    void Type(const Published& data)
    {
        for (std::size_t i = 0; i < data.liquid.size(); ++i) TypeLiquid(static_cast<int>(i) + 1, data.liquid[i]);
        for (std::size_t i = 0; i < data.plastic.size(); ++i) TypePlastic(static_cast<int>(i) + 1, data.plastic[i]);
    }

    /// Trials with these blows and water contents, written past Calculate, and one thread of 15 %.
    void PutWaterContents(const std::vector<std::array<std::string_view, 2>>& trials)
    {
        int column = 1;
        for (const auto& [blows, water] : trials) {
            sheet.MSHLL(ll::Blows, column) = blows;
            sheet.MSHLL(ll::WaterContent, column++) = water;
        }
        sheet.MSHPL(pl::WetAndCan, 1) = "1";
        sheet.MSHPL(pl::PlasticLimit, 1) = "15.00";
        sheet.cmdPlot.SetEnabled(true);
    }

    void Plot()
    {
        sheet.cmdCal.Press();
        sheet.cmdPlot.Press();
    }

    int LastError() const { return lab.ask.errors.empty() ? 0 : lab.ask.errors.back().number; }

    std::string Results() const
    {
        return sheet.txtLL.Text() + "|" + sheet.txtPL.Text() + "|" + sheet.txtPI.Text() + "|" + sheet.txtFI.Text();
    }

    struct GridCount {
        int horizontal = 0, vertical = 0;
    };

    GridCount GridLines() const
    {
        GridCount count;
        for (const LineItem& line : ItemsOf<LineItem>(sheet.picGraph.Items())) {
            if (line.pen.colour == kGridGrey) ++(line.x1 == line.x2 ? count.vertical : count.horizontal);
        }
        return count;
    }
};

// 1.16 g of water in 5.17 g is 22.437 %; 1.17 in 4.79 is 24.426; 0.83 in 3.03 is 27.393.
TEST_F(Atterberg, WaterContentsComeFromTheMassesAsShown)
{
    Type(kClay);
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::Water), "1.16|1.17|0.83||");
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::DrySoil), "5.17|4.79|3.03||");
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::WaterContent), "22.44|24.43|27.39||");
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::Water), "1.11|0.74|0.80||");
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::DrySoil), "7.50|4.86|5.27||");
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::WaterContent), "14.80|15.23|15.18||");
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::PlasticLimit), "14.80|15.23|15.18||");
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::Average), "15.07|15.07|15.07||") << "(14.80 + 15.23 + 15.18) / 3";
}

// The source reads a liquid limit of 25.3 off a polygon and prints a plastic limit of 15.07; the line gives 25.01.
TEST_F(Atterberg, PublishedClayOfLowPlasticity)
{
    Type(kClay);
    Plot();
    EXPECT_EQ(Results(), "25.01|15.07|9.94|25.48");
    EXPECT_EQ(lab.Posted("sum_LL") + "|" + lab.Posted("sum_PL") + "|" + lab.Posted("sum_PI") + "|" +
                  lab.Posted("sum_swelling"),
              Results());
    EXPECT_EQ(lab.Posted("sum_LL", 1), "   ") << "the other material keeps its blanks";
}

// Published: 45.3 and 22.7.
TEST_F(Atterberg, PublishedFlatFlowCurve)
{
    Type(kFlat);
    Plot();
    EXPECT_EQ(Results(), "45.31|22.70|22.61|0.66");
}

// Published from masses to 0.001 g: 34.40, 14.86. The sheet's two decimals of 3 g threads make the rest.
TEST_F(Atterberg, PublishedSandAndClayMix)
{
    Type(kMix);
    Plot();
    EXPECT_EQ(Results(), "34.37|15.00|19.37|8.85");
    EXPECT_NEAR(Val(sheet.txtLL.Text()), 34.40, 0.05);
    EXPECT_NEAR(Val(sheet.txtPL.Text()), 14.86, 0.15);
}

TEST_F(Atterberg, CrushedRockPostsIntoItsOwnRow)
{
    auto& crush = lab.Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil, Material::Crush);
    for (int trial = 1; trial <= 2; ++trial) {
        crush.MSHLL(ll::Blows, trial) = trial == 1 ? "15" : "30";
        crush.MSHLL(ll::WaterContent, trial) = trial == 1 ? "30" : "20";
    }
    crush.MSHPL(pl::WetAndCan, 1) = "9";
    crush.MSHPL(pl::PlasticLimit, 1) = "12";
    crush.cmdPlot.SetEnabled(true);
    crush.cmdPlot.Press();
    EXPECT_EQ(lab.Posted("sum_LL", 1), "22.63") << "30 - 10 log(25 / 15) / log 2";
    EXPECT_EQ(lab.Posted("sum_swelling", 1), "33.22") << "10 / log10 2";
    EXPECT_EQ(lab.Posted("sum_LL", 0), "   ");
}

TEST_F(Atterberg, FirstGapInTheBlowsEndsTheTrials)
{
    TypeLiquid(1, {"30", "30", "25", "10"});
    TypeLiquid(2, {"20", "31", "25", "10"});
    TypeLiquid(4, {"15", "32", "25", "10"});
    sheet.MSHLL(ll::WaterContent, 4) = "left";
    TypePlastic(1, {"23", "20", "0"});
    Plot();
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::WaterContent), "33.33|40.00||left|")
        << "cells that are not reached keep their texts";
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph.Items()).size(), 2u);
    EXPECT_EQ(sheet.txtLL.Text(), "36.33") << "33.33 + 6.67 log(30 / 25) / log(30 / 20)";
}

TEST_F(Atterberg, ThreeThreadsAreAveragedBelowThemselvesAlone)
{
    TypePlastic(1, {"12", "11", "1"});
    TypePlastic(2, {"13", "11", "1"});
    TypePlastic(3, {"14", "11", "1"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::Average), "20.00|20.00|20.00||");
}

TEST_F(Atterberg, EmptySheetCalculatesAndTheSlopeFails)
{
    EXPECT_FALSE(sheet.cmdPlot.Enabled());
    EXPECT_FALSE(sheet.SSTData.TabEnabled(1));
    sheet.cmdCal.Press();
    EXPECT_EQ(LastError(), 0);
    EXPECT_TRUE(sheet.cmdPlot.Enabled());
    EXPECT_TRUE(sheet.SSTData.TabEnabled(1));
    sheet.cmdPlot.Press();
    EXPECT_EQ(LastError(), error::kOverflow) << "0/0";
    EXPECT_EQ(Results(), "|||");
    EXPECT_EQ(lab.Posted("sum_LL"), "   ");
}

TEST_F(Atterberg, PlotWaitsForCalculate)
{
    Type(kClay);
    sheet.cmdPlot.Press();
    EXPECT_EQ(Results(), "|||");
}

TEST_F(Atterberg, OneTrialOrEqualBlowsHaveNoSlope)
{
    for (const int trials : {1, 2, 5}) {
        for (int trial = 1; trial <= trials; ++trial) {
            sheet.MSHLL(ll::Blows, trial) = "25";
            sheet.MSHLL(ll::WaterContent, trial) = trial % 2 == 0 ? "30.12" : "31.07";
        }
        sheet.cmdPlot.SetEnabled(true);
        sheet.cmdPlot.Press();
        ASSERT_EQ(lab.ask.errors.size(), 1u) << trials;
        EXPECT_EQ(lab.ask.errors.back(), (Untrapped{"frmAtterberg.cmdPlot_Click", 11, "Division by zero"}));
        EXPECT_EQ(Results(), "|||");
        EXPECT_FALSE(sheet.picgraph1.Items().empty()) << "the axes stand";
        lab.ask.errors.clear();
    }
}

TEST_F(Atterberg, WithoutAThreadTheLiquidLimitStandsAlone)
{
    TypeLiquid(1, {"30", "30", "25", "10"});
    TypeLiquid(2, {"20", "31", "25", "10"});
    Plot();
    EXPECT_EQ(LastError(), error::kOverflow) << "0/0 threads";
    EXPECT_EQ(Results(), "36.33|||");
    EXPECT_EQ(lab.Posted("sum_LL"), "   ") << "nothing is posted";
}

TEST_F(Atterberg, DryMassOfZeroStopsCalculate)
{
    TypeLiquid(1, {"30", "30", "25", "10"});
    TypeLiquid(2, {"20", "31", "25", "25"});
    TypePlastic(1, {"12", "11", "1"});
    sheet.cmdCal.Press();
    EXPECT_EQ(LastError(), error::kDivisionByZero);
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::DrySoil), "15.00|0.00|||") << "what came before stands";
    EXPECT_EQ(RowOf(sheet.MSHPL, pl::Water), "||||");
    EXPECT_FALSE(sheet.cmdPlot.Enabled());
}

TEST_F(Atterberg, NegativeBlowsHaveNoLogarithm)
{
    PutWaterContents({{"-20", "30"}, {"30", "20"}});
    sheet.cmdPlot.Press();
    EXPECT_EQ(LastError(), error::kInvalidProcedureCall);
}

TEST_F(Atterberg, LettersReadAsNothing)
{
    TypeLiquid(1, {"thirty", "30", "25", "10"});
    EXPECT_EQ(sheet.MSHLL(ll::Blows, 1), "thirty");
    sheet.cmdCal.Press();
    EXPECT_EQ(LastError(), 0);
    EXPECT_EQ(RowOf(sheet.MSHLL, ll::WaterContent), "||||");
}

// Sums in double would give 71.56 (script).
TEST_F(Atterberg, SumsOfTheFlowCurveAreSingle)
{
    PutWaterContents({{"24", "61.08"}, {"25", "60.00"}, {"26", "58.59"}});
    sheet.cmdPlot.Press();
    EXPECT_EQ(sheet.txtLL.Text(), "59.87");
    EXPECT_EQ(sheet.txtFI.Text(), "71.60");
}

TEST_F(Atterberg, PlasticityIndexStaysWhereALimitIsZero)
{
    PutWaterContents({{"15", "30"}, {"30", "20"}});
    sheet.txtPI.SetText("as before");
    sheet.MSHPL(pl::PlasticLimit, 1) = "0.00";
    sheet.cmdPlot.Press();
    EXPECT_EQ(Results(), "22.63|0.00|as before|33.22");
    EXPECT_EQ(lab.Posted("sum_PI"), "as before");
}

TEST_F(Atterberg, PlasticityIndexMayBeNegative)
{
    PutWaterContents({{"15", "30"}, {"30", "20"}});
    sheet.MSHPL(pl::PlasticLimit, 1) = "30.5";
    sheet.cmdPlot.Press();
    EXPECT_EQ(sheet.txtPI.Text(), "-7.87");
}

// 100.13 - 100.11 is 0.019999999999996 in fifteen digits: too long for the summary's ten characters.
TEST_F(Atterberg, PlasticityIndexTooLongForTheSummaryIsNotPosted)
{
    PutWaterContents({{"25", "100.13"}, {"50", "100.13"}});
    sheet.MSHPL(pl::PlasticLimit, 1) = "100.11";
    sheet.cmdPlot.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1u);
    EXPECT_LT(lab.ask.errors.back().number, 0) << "the store's own error";
    EXPECT_EQ(Results(), "100.13|100.11|0.019999999999996|0.00") << "the boxes keep their texts";
    EXPECT_EQ(lab.Posted("sum_LL"), "   ");
}

TEST_F(Atterberg, RisingLineHasANegativeFlowIndex)
{
    PutWaterContents({{"15", "20"}, {"30", "30"}});
    sheet.cmdPlot.Press();
    EXPECT_EQ(sheet.txtFI.Text(), "-33.22");
}

// The plot is 5450 by 3900 twips. 27.39 + 10 in whole tens, one added: four tens, 975 twips each. 20 blows lie at
// log 2 of the width, 1640.6.
TEST_F(Atterberg, PlotMapsBlowsAndWaterContents)
{
    Type(kClay);
    Plot();
    const auto circles = ItemsOf<CircleItem>(sheet.picGraph.Items());
    ASSERT_EQ(circles.size(), 3u);
    EXPECT_NEAR(circles[2].x, 5450 * std::log10(2.0), 0.01);
    EXPECT_NEAR(circles[2].y, 3900 - 27.39 * 3900 / 40, 0.01);
    EXPECT_EQ(GridLines().vertical, 8) << "20 to 90 blows";
    EXPECT_EQ(GridLines().horizontal, 4) << "10 to 40 %";
    EXPECT_EQ(TextsOf(sheet.picgraph1.Items(), "40").size(), 2u) << "blows, and percent";
    EXPECT_EQ(TextsOf(sheet.picgraph1.Items(), "100").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picgraph1.Items(), "25").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picgraph1.Items(), "LL").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picGraph.Items(), " N = 25").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picGraph.Items(), "LL = 25.01 %").size(), 1u);
}

TEST_F(Atterberg, FlowCurveRunsFromTenToAHundredBlows)
{
    PutWaterContents({{"10", "30"}, {"100", "10"}});
    sheet.cmdPlot.Press();
    std::vector<LineItem> curves;
    for (const LineItem& line : ItemsOf<LineItem>(sheet.picGraph.Items()))
        if (line.pen.colour == kBlue) curves.push_back(line);
    ASSERT_EQ(curves.size(), 1u);
    EXPECT_EQ(curves.front().x1, 0);
    EXPECT_EQ(curves.front().x2, 5450);
    EXPECT_NEAR(curves.front().y1, 3900 - 30 * 3900 / 50.0, 0.01);
    EXPECT_NEAR(curves.front().y2, 3900 - 10 * 3900 / 50.0, 0.01);
}

// 29.5 + 10 rounds to 40 before it is divided, 28.5 + 10 to 38 (halves to even), 29.4 + 10 to 39.
TEST_F(Atterberg, WholeTensAreTakenOfARoundedPercent)
{
    for (const auto& [water, lines] : {std::pair{"29.5", 5}, std::pair{"28.5", 4}, std::pair{"29.4", 4}}) {
        PutWaterContents({{"15", water}, {"30", "20"}});
        sheet.cmdPlot.Press();
        EXPECT_EQ(GridLines().horizontal, lines) << water;
    }
}

TEST_F(Atterberg, VeryWetSoilIsLabelledThinner)
{
    PutWaterContents({{"15", "480"}, {"30", "400"}});
    sheet.cmdPlot.Press();
    EXPECT_EQ(TextsOf(sheet.picgraph1.Items(), "480").size(), 1u);
    EXPECT_TRUE(TextsOf(sheet.picgraph1.Items(), "470").empty()) << "two lines of 78 twips hold no two labels";
}

TEST_F(Atterberg, SlipOfThePenIsRefused)
{
    PutWaterContents({{"15", "1e9"}, {"30", "20"}});
    sheet.cmdPlot.Press();
    EXPECT_EQ(LastError(), error::kOutOfMemory);
}

TEST_F(Atterberg, PlottingTwiceShowsTheSame)
{
    Type(kClay);
    Plot();
    const auto frame = *sheet.picgraph1.Image(), plot = *sheet.picGraph.Image();
    sheet.cmdPlot.Press();
    EXPECT_EQ(*sheet.picgraph1.Image(), frame);
    EXPECT_EQ(*sheet.picGraph.Image(), plot);
    EXPECT_EQ(Results(), "25.01|15.07|9.94|25.48");
}

TEST_F(Atterberg, ViewsAreToldOfAFailedPlot)
{
    int told = 0;
    const Subscription view = sheet.picGraph.Show([&told] { ++told; });
    told = 0;
    sheet.cmdPlot.SetEnabled(true);
    sheet.cmdPlot.Press();
    EXPECT_EQ(told, 1);
}

TEST_F(Atterberg, SavedReadingsComeBackAndResultsDoNot)
{
    Type(kClay);
    Plot();
    sheet.txtSoil.SetText("ดินเหนียว");
    sheet.tblMenu.Press(1);
    EXPECT_EQ(lab.StoredColumn("ATTSOIL", "att_blows"), (std::vector<std::string>{"31", "27", "20", "   ", "   "}));
    EXPECT_EQ(lab.StoredColumn("ATTSOIL", "att_wcan1").front(), "22.23");
    EXPECT_EQ(lab.StoredColumn("ATTSOIL", "att_wscan2").at(1), "13.43");
    EXPECT_EQ(lab.StoredColumn("ATTSOIL", "att_PI"), (std::vector<std::string>(5, "9.94"))) << "in every row";
    EXPECT_EQ(lab.StoredColumn("ATTSOIL", "att_FI").back(), "25.48");
    EXPECT_EQ(lab.StoredColumn("ATTCRUSH", "att_blows").front(), "   ");

    auto& again = lab.Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil);
    EXPECT_EQ(RowOf(again.MSHLL, ll::WetAndCan), "28.56|29.27|25.73|   |   ") << "lists are not trimmed";
    EXPECT_EQ(RowOf(again.MSHPL, pl::Can), "7.78|7.83|15.16|   |   ");
    EXPECT_EQ(RowOf(again.MSHLL, ll::WaterContent), "||||");
    EXPECT_EQ(again.txtSoil.Text(), "ดินเหนียว");
    EXPECT_EQ(again.txtLL.Text() + again.txtPL.Text() + again.txtPI.Text() + again.txtFI.Text(), "");
    EXPECT_FALSE(again.cmdPlot.Enabled());
}

TEST_F(Atterberg, HeadsAndTitles)
{
    EXPECT_EQ(RowOf(sheet.MSHLL, 0), "1 |2 |3 |4 |5 ");
    EXPECT_EQ(sheet.MSHLL(ll::Blows, 0), "Number of Blows ");
    EXPECT_EQ(sheet.MSHPL(pl::Average, 0), "Average Plastic Limit, (%)");
    for (int row = 1; row < ll::kRows; ++row) EXPECT_EQ(sheet.MSHLL.IsCalculated(row, 3), row >= ll::Water) << row;
    for (int row = 1; row < pl::kRows; ++row) EXPECT_EQ(sheet.MSHPL.IsCalculated(row, 3), row >= pl::Water) << row;
}

TEST_F(Atterberg, EditorsStandOverTheTypedRows)
{
    TypeCell(sheet.txtData, ll::Can, 1, "  22.23 ");
    EXPECT_EQ(sheet.MSHLL(ll::Can, 1), "22.23") << "trimmed, no mask";
    EXPECT_EQ(sheet.MSHLL.Row(), ll::Blows) << "on to the top of the next trial";
    EXPECT_EQ(sheet.MSHLL.Column(), 2);
    sheet.MSHPL.PressMouse(MouseButton::Left, pl::Can, 5);
    EXPECT_TRUE(sheet.txtData1.Visible());
    EXPECT_FALSE(sheet.txtData.Visible());
    sheet.MSHPL.PressMouse(MouseButton::Left, pl::Water, 5);
    EXPECT_FALSE(sheet.txtData1.Visible()) << "water is worked out";
    sheet.MSHLL.PressMouse(MouseButton::Right, ll::Blows, 1);
    EXPECT_TRUE(lab.ask.messages.empty()) << "no trial is erased here";
}

TEST_F(Atterberg, EnterWalksTheHeadBlock)
{
    sheet.txtLocation.SetFocus();
    sheet.txtLocation.PressKey(Key::Enter);
    EXPECT_TRUE(sheet.txtSoil.HasFocus());
    sheet.txtSoil.PressKey(Key::Enter);
    sheet.cboTest.PressKey(Key::Enter);
    EXPECT_TRUE(sheet.cboCheck.HasFocus());
}

}  // namespace
}  // namespace terravane
