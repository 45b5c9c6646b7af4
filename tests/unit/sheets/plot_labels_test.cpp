// Where the labels of plots stand: each can be read, on whatever readings. Lengths in twips.
#include "sheets/pattern/plot_labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheets/atterberg/frmAtterberg.h"
#include "support/cbr_laboratory.h"
#include "support/drawn_items.h"
#include "support/random_readings.h"

namespace terravane::plot_labels_test {
namespace {

using namespace support;

constexpr unsigned kSeeds = 150;
constexpr double kHair = 0.01;

std::string Corner(const PlotArea& area)
{
    return " at " + std::to_string(area.left) + ", " + std::to_string(area.top);
}

/// The labels that stand level on a plot, with the room that their letters take.
struct Label {
    std::string text;
    PlotArea area;
};
std::vector<Label> LabelsOn(const DrawingSurface& plot)
{
    std::vector<Label> labels;
    for (const TextItem& item : ItemsOf<TextItem>(plot.Items()))
        labels.push_back({item.text,
                          {item.x + kHair, item.y + kHair, item.x + TextWidth(item.font, item.text) - kHair,
                           item.y + TextHeight(item.font) - kHair}});
    return labels;
}

std::vector<PlotArea> MarksOn(const DrawingSurface& plot)
{
    std::vector<PlotArea> marks;
    for (const CircleItem& item : ItemsOf<CircleItem>(plot.Items()))
        marks.push_back({item.x - item.radius, item.y - item.radius, item.x + item.radius, item.y + item.radius});
    for (const BoxItem& item : ItemsOf<BoxItem>(plot.Items()))
        if (item.x2 - item.x1 < 100) marks.push_back({item.x1, item.y1, item.x2, item.y2});
    return marks;
}

/// Ends of lines in any colour but the grid's, outside of which no reader would look for them.
std::vector<DrawnPoint> EndsOn(const DrawingSurface& plot)
{
    std::vector<DrawnPoint> ends;
    for (const LineItem& item : ItemsOf<LineItem>(plot.Items())) {
        if (item.pen.colour == kGridGrey || item.pen.colour == kBlack) continue;
        ends.insert(ends.end(), {{item.x1, item.y1}, {item.x2, item.y2}});
    }
    return ends;
}

void ExpectReadable(const PictureBox& plot, std::size_t labelCount, const std::string& which)
{
    const auto labels = LabelsOn(plot);
    EXPECT_EQ(labels.size(), labelCount) << which;
    for (std::size_t one = 0; one < labels.size(); ++one) {
        const auto& [text, area] = labels[one];
        EXPECT_TRUE(area.left >= 0 && area.top >= 0 && area.right <= plot.Width && area.bottom <= plot.Height)
            << which << ": the plot's edge cuts" << text << Corner(area);
        for (std::size_t other = one + 1; other < labels.size(); ++other)
            EXPECT_FALSE(area.Overlaps(labels[other].area)) << which << ":" << text << " over" << labels[other].text;
        for (const PlotArea& mark : MarksOn(plot))
            EXPECT_FALSE(area.Overlaps(mark)) << which << ":" << text << " hides the mark" << Corner(mark);
        for (const DrawnPoint& end : EndsOn(plot))
            EXPECT_FALSE(area.Overlaps({end.x, end.y, end.x, end.y}))
                << which << ":" << text << " hides a guide's end" << Corner({end.x, end.y, end.x, end.y});
    }
}

struct PlotLabels : testing::Test {
    CbrLaboratory lab;
    DrawingSurface plot{2000, 2000};

    std::vector<PlotArea> Place(const std::vector<PlotLabel>& labels)
    {
        return PlaceLabels(plot, {0, 0, 2000, 2000}, labels);
    }
};

TEST_F(PlotLabels, StandWhereTheyAreWantedOnAnEmptyPlot)
{
    const auto places = Place({{"12.5", {500, 500}, {{540, 400}}}});
    EXPECT_EQ(places[0].left, 540);
    EXPECT_EQ(places[0].top, 400);
    EXPECT_NEAR(places[0].right, 540 + plot.TextWidth("12.5"), kHair);
}

TEST_F(PlotLabels, TakeTheirNextPlaceWhereAMarkStandsOnTheFirst)
{
    plot.Circle(600, 500, 30);
    const auto places = Place({{"12.5", {500, 500}, {{540, 400}, {540, 560}}}});
    EXPECT_EQ(places[0].top, 560);
}

TEST_F(PlotLabels, GiveWayToCurvesUnlessTheirPlaceIsGiven)
{
    const std::array curve{DrawnPoint{0, 500}, DrawnPoint{2000, 500}};
    plot.Polyline(curve, kRed);
    const auto wanted = std::vector<DrawnPoint>{{540, 400}, {540, 250}};
    EXPECT_EQ(Place({{"12.5", {500, 500}, wanted}})[0].top, 250);
    EXPECT_EQ(Place({{"12.5", {500, 500}, wanted, true}})[0].top, 400);
}

TEST_F(PlotLabels, OfOneColumnAreALineApartHoweverFarAcross)
{
    const auto places = Place({{"1", {500, 500}, {{540, 400}}, false, 1}, {"2", {1500, 500}, {{1540, 420}}, false, 1}});
    EXPECT_GE(std::abs(places[0].top - places[1].top), plot.TextHeight("1"));
}

TEST_F(PlotLabels, ComeBackIntoThePlotThatWouldCutThem)
{
    const auto place = Place({{"OMC = 13.9 %", {1990, 1700}, {{2020, 1700}}, true}})[0];
    EXPECT_LE(place.right, 2000);
    EXPECT_EQ(place.top, 1700);
}

TEST_F(PlotLabels, OfAPointNowhereStandOnThePlot)
{
    const double nowhere = std::nan("");
    const auto place = Place({{"12.5", {nowhere, 1e300}, {{nowhere, 1e300}}}})[0];
    EXPECT_TRUE(place.left >= 0 && place.right <= 2000 && place.top >= 0 && place.bottom <= 2000);
}

TEST_F(PlotLabels, AreLedToTheirPointsByALineWhereTheyMovedAway)
{
    for (int i = 0; i < 12; ++i)
        for (int k = 0; k < 8; ++k) plot.Circle(200 + 80 * i, 300 + 80 * k, 30);
    PrintLabels(plot, {0, 0, 2000, 2000}, std::vector<PlotLabel>{{"12.5", {640, 620}, {{680, 520}}}});
    const auto lines = ItemsOf<LineItem>(plot.Items());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].x1, 640);
    EXPECT_EQ(lines[0].y1, 620);
    EXPECT_LT(ItemsOf<FillItem>(plot.Items()).size(), 2U);
}

/// Stresses of three molds, rising and falling off, close together or far apart.
void TypeRandomMolds(frmCBR& sheet, RandomReadings& random)
{
    sheet.txtK.Type(std::to_string(random.Pick(10) + 1));
    TypePenetrations(sheet, kDepths);
    const double common = 10 + random.Pick(90), bend = 0.3 + random.Pick(120) / 100.0;
    for (int mold = 1; mold <= 3; ++mold) {
        const double top = random.Chance(50) ? common + random.Pick(9) : 5 + random.Pick(140);
        std::vector<std::string> dials;
        for (const auto depth : kDepths)
            dials.push_back(NumberText(std::round(top * std::pow(Val(depth) / 0.5, bend))));
        TypeDials(sheet, mold, {dials.begin(), dials.end()});
    }
}

TEST_F(PlotLabels, OfRandomPenetrationsCoverNothing)
{
    frmCBR& sheet = lab.OpenCbr();
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        RandomReadings random(seed, Hand::Careful);
        TypeRandomMolds(sheet, random);
        for (CheckBox* tick : {&sheet.chkMold1, &sheet.chkMold2, &sheet.chkMold3}) tick->SetValue(random.Chance(30));
        sheet.cmdCal.Press();
        sheet.cmdLPen.Press();
        lab.ask.errors.clear();
        const auto labels = LabelsOn(sheet.picgraph1);
        ExpectReadable(sheet.picgraph1, labels.size(), "Seed " + std::to_string(seed));
        EXPECT_GE(labels.size(), 2U);
        if (HasFailure()) break;
    }
}

TEST_F(PlotLabels, OfRandomRatiosCoverNothing)
{
    frmCBR& sheet = lab.OpenCbr();
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        RandomReadings random(seed, Hand::Careful);
        double density = 1.5 + random.Pick(60) / 100.0;
        double ratio = random.Pick(40);
        for (int mold = 1; mold <= 3; ++mold) {
            sheet.mshLPC(cbr::result::DryDensity, mold) = Format(density += 0.01 + random.Pick(15) / 100.0, "0.00");
            for (const auto row : {cbr::result::At01, cbr::result::At02})
                sheet.mshLPC(row, mold) = Format(ratio += random.Pick(20), "0.0");
        }
        sheet.txtMDD.Type(Format(density * (0.9 + random.Pick(20) / 100.0), "0.00"));
        sheet.cmdCBR.SetEnabled(true);
        sheet.cmdCBR.Press();
        ExpectReadable(sheet.picGraph3, 1, "Seed " + std::to_string(seed));
        if (HasFailure()) break;
    }
}

TEST_F(PlotLabels, OfRandomTrialsCoverNothing)
{
    frmCompaction& sheet = lab.OpenSheet();
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        RandomReadings random(seed, Hand::Careful);
        double water = 3 + random.Pick(200) / 10.0;
        for (int trial = 1; trial <= 5; ++trial) {
            sheet.MSHDensity(compaction::density::Mold, trial) = "1";
            sheet.MSHDensity(compaction::density::WaterContent, trial) =
                Format(water += 0.5 + random.Pick(30) / 10.0, "0.00");
            sheet.MSHDensity(compaction::density::DryDensity, trial) = Format(1.5 + random.Pick(80) / 100.0, "0.00");
        }
        (random.Chance(50) ? sheet.optInt : sheet.optFit).Choose();
        sheet.cmdOMC.Press();
        lab.ask.errors.clear();
        ExpectReadable(sheet.picGraph, 2, "Seed " + std::to_string(seed));
        if (HasFailure()) break;
    }
}

TEST_F(PlotLabels, OfRandomLimitsCoverNothing)
{
    auto& sheet = lab.Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil);
    sheet.MSHPL(pl::WetAndCan, 1) = "1";
    sheet.MSHPL(pl::PlasticLimit, 1) = "15.00";
    sheet.cmdPlot.SetEnabled(true);
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        RandomReadings random(seed, Hand::Careful);
        for (int trial = 1; trial <= 5; ++trial) {
            sheet.MSHLL(ll::Blows, trial) = std::to_string(12 * trial + random.Pick(12));
            sheet.MSHLL(ll::WaterContent, trial) = Format(20 + random.Pick(400) / 10.0, "0.00");
        }
        sheet.cmdPlot.Press();
        ExpectReadable(sheet.picGraph, 2, "Seed " + std::to_string(seed));
        if (HasFailure()) break;
    }
}

// The stress at 0.1 in of each mold of a test whose curves run close together, and those at 0.2 in.
TEST_F(PlotLabels, OfThreeMoldsAreSpreadByALineAndOnEitherSideOfTheCurves)
{
    frmCBR& sheet = lab.OpenCbr();
    TypeThreeMolds(sheet);
    sheet.cmdCal.Press();
    sheet.cmdLPen.Press();
    const auto labels = LabelsOn(sheet.picgraph1);
    ASSERT_EQ(labels.size(), 6U);
    const double line = sheet.picgraph1.TextHeight("0");
    for (std::size_t one = 0; one < 6; ++one)
        for (std::size_t other = one + 2; other < 6; other += 2)
            EXPECT_GE(std::abs(labels[one].area.top - labels[other].area.top), line - kHair)
                << labels[one].text << labels[other].text;
}

// The curve rises to its last trial: the caption behind the guide would run into the plot's right edge.
TEST_F(PlotLabels, TheOptimumIsNotCutWhereTheTopIsTheLastTrial)
{
    frmCompaction& sheet = lab.OpenSheet();
    constexpr std::array<std::string_view, 3> kWater{"5.0", "9.0", "13.9"}, kDensity{"1.80", "1.90", "2.00"};
    for (int trial = 1; trial <= 3; ++trial) {
        const auto i = static_cast<std::size_t>(trial) - 1;
        sheet.MSHDensity(compaction::density::Mold, trial) = "1";
        sheet.MSHDensity(compaction::density::WaterContent, trial) = kWater[i];
        sheet.MSHDensity(compaction::density::DryDensity, trial) = kDensity[i];
    }
    sheet.cmdOMC.Press();
    ExpectReadable(sheet.picGraph, 2, "13.9 % at the end");
}

}  // namespace
}  // namespace terravane::plot_labels_test
