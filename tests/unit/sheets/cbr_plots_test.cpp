// What stands on the two plots of the bearing ratio sheet: steps of the axes, captions, marks. Stresses in lb/in²,
// ratios in percent, lengths in twips.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "support/cbr_laboratory.h"
#include "support/drawn_items.h"

namespace terravane {
namespace {

using namespace support;
using cbr::result::At01;
using cbr::result::At02;

struct CbrPlots : testing::Test {
    CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    /// Dials of a ring of 3 lb/div, so that a dial is the stress itself.
    void Load(int mold, std::string_view greatest)
    {
        sheet.txtK.Type("3");
        TypeDials(sheet, mold, {"0", "1", "1.5", "2", "2.5", "3", "3.5", "4", greatest});
    }
    void Draw()
    {
        sheet.cmdCal.Press();
        sheet.cmdLPen.Press();
    }
    void PutRatio(int mold, std::string_view density, std::string_view ratio)
    {
        sheet.mshLPC(cbr::result::DryDensity, mold) = density;
        for (const auto row : {At01, At02}) sheet.mshLPC(row, mold) = ratio;
    }
};

/// The labels left of a plot, from the bottom up.
std::vector<double> LabelsBeside(const PictureBox& frame, const PictureBox& plot)
{
    auto texts = ItemsOf<TextItem>(frame.Items());
    std::erase_if(texts, [&](const TextItem& text) {
        const double end = text.x + TextWidth(text.font, text.text);
        return text.angle != 0 || std::abs(end - (plot.Left - 50)) > 0.1;
    });
    std::ranges::sort(texts, std::greater{}, &TextItem::y);
    std::vector<double> labels;
    for (const TextItem& text : texts) labels.push_back(Val(text.text));
    return labels;
}

std::vector<double> StepsTo(double top, double step)
{
    std::vector<double> labels;
    for (int i = 0; i * step <= top; ++i) labels.push_back(i * step);
    return labels;
}

/// The label at the axis's end and the step of all, for a greatest value.
struct AxisOf {
    const char* greatest;
    double top, step;
};

// One division more than whole steps are in the greatest stress, which is rounded to a whole number first.
TEST_F(CbrPlots, TheStressAxisHasTheStepOfItsGreatestStress)
{
    for (const AxisOf& axis :
         {AxisOf{"9", 10, 10}, AxisOf{"24.9", 30, 10}, AxisOf{"25", 40, 20}, AxisOf{"49.9", 60, 20},
          AxisOf{"50", 75, 25}, AxisOf{"249", 250, 25}, AxisOf{"250", 300, 50}, AxisOf{"499", 500, 50},
          AxisOf{"500", 600, 100}, AxisOf{"999", 1000, 100}, AxisOf{"1000", 1500, 500}, AxisOf{"4999", 5000, 500},
          AxisOf{"5000", 6000, 1000}, AxisOf{"7500", 8000, 1000}}) {
        sheet.cmdPen.Press();
        Load(1, axis.greatest);
        Draw();
        EXPECT_EQ(LabelsBeside(sheet.picGraph, sheet.picgraph1), StepsTo(axis.top, axis.step)) << axis.greatest;
    }
}

// Below 5 the axis ends where its greatest ratio asks, not at a whole step: 4.9 has nine steps of a half and a part.
TEST_F(CbrPlots, TheRatioAxisHasTheStepOfItsGreatestRatio)
{
    PutRatio(1, "1.90", "1");
    PutRatio(2, "2.00", "2");
    for (const AxisOf& axis : {AxisOf{"2", 2.5, 0.5}, AxisOf{"4.9", 5, 0.5}, AxisOf{"5", 6, 1}, AxisOf{"9.4", 10, 1},
                               AxisOf{"10", 15, 5}, AxisOf{"49", 50, 5}, AxisOf{"50", 60, 10}, AxisOf{"99", 100, 10},
                               AxisOf{"100", 125, 25}, AxisOf{"249", 250, 25}, AxisOf{"250", 300, 50},
                               AxisOf{"499", 500, 50}, AxisOf{"500", 600, 100}, AxisOf{"740", 800, 100}}) {
        PutRatio(3, "2.10", axis.greatest);
        sheet.lbl02.Press();
        EXPECT_EQ(LabelsBeside(sheet.picGraph2, sheet.picGraph3), StepsTo(axis.top, axis.step)) << axis.greatest;
    }
}

// Solid, dashed, dash and dot; the guides at 0.1 in are dashed, those at 0.2 in dotted.
TEST_F(CbrPlots, CurvesAndGuidesAreToldApartWithoutColour)
{
    sheet.cmdPen.Press();
    for (const int mold : {1, 2, 3}) Load(mold, std::to_string(4 + mold));
    Draw();
    std::vector<int> styles;
    for (const PolylineItem& curve : ItemsOf<PolylineItem>(sheet.picgraph1.Items())) {
        EXPECT_EQ(curve.pen.width, 4) << "A whole point.";
        if (styles.empty() || styles.back() != curve.pen.style) styles.push_back(curve.pen.style);
    }
    EXPECT_EQ(styles, (std::vector{0, 1, 3}));
    int dashed = 0, dotted = 0;
    for (const LineItem& line : ItemsOf<LineItem>(sheet.picgraph1.Items())) {
        dashed += line.pen.style == 1 ? 1 : 0;
        dotted += line.pen.style == 2 ? 1 : 0;
    }
    EXPECT_EQ(dashed, 6);
    EXPECT_EQ(dotted, 6);
}

TEST_F(CbrPlots, MarksStandOverTheirCurves)
{
    sheet.cmdPen.Press();
    for (const int mold : {1, 2, 3}) Load(mold, "5");
    Draw();
    const auto& items = sheet.picgraph1.Items();
    const auto isCurve = [](const DrawnItem& item) { return std::holds_alternative<PolylineItem>(item); };
    const auto isMark = [](const DrawnItem& item) { return std::holds_alternative<CircleItem>(item); };
    const auto lastCurve = std::find_if(items.rbegin(), items.rend(), isCurve).base();
    EXPECT_EQ(std::count_if(items.begin(), lastCurve, isMark), 0);
    EXPECT_EQ(std::count_if(lastCurve, items.end(), isMark), 18) << "Nine of each of the first two molds.";
}

// No curve is drawn of a mold that can't be fitted, here one with fewer than five different penetrations.
TEST_F(CbrPlots, MarksAndFrameStandAlsoWhereTheFitFails)
{
    sheet.txtK.Type("3");
    TypePenetrations(sheet, {"0", "0.1", "0.2"});
    TypeDials(sheet, 1, {"0", "10", "15"});
    Draw();
    EXPECT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picgraph1.Items()).size(), 3U);
    EXPECT_EQ(ItemsOf<BoxItem>(sheet.picgraph1.Items()).size(), 1U);
}

TEST_F(CbrPlots, AMoldsLabelPressedAgainPrintsNoStressTwice)
{
    TypeSingleMold(sheet, kSandyDials);
    Draw();
    const auto before = ItemsOf<TextItem>(sheet.picgraph1.Items()).size();
    sheet.lblMold1.Press();
    EXPECT_EQ(ItemsOf<TextItem>(sheet.picgraph1.Items()).size(), before);
}

TEST_F(CbrPlots, AMoldWithoutReadingsHasNoMarksNoCurveAndNoGuides)
{
    TypeSingleMold(sheet, kSandyDials);
    sheet.mshLPC(At01, 2) = "9.9";
    Draw();
    const auto lines = ItemsOf<LineItem>(sheet.picgraph1.Items());
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picgraph1.Items()).size(), 12U) << "The first mold's twelve readings.";
    EXPECT_EQ(ItemsOf<BoxItem>(sheet.picgraph1.Items()).size(), 1U) << "The plot's own; the third mold has squares.";
    EXPECT_EQ(ItemsOf<PolylineItem>(sheet.picgraph1.Items()).size(), 1U);
    for (const int style : {1, 2})
        EXPECT_EQ(std::ranges::count(lines, style, [](const LineItem& line) { return line.pen.style; }), 2)
            << "Up and across at each depth.";
    EXPECT_EQ(RatiosOf(sheet, At01), "7.3|9.9|") << "Its cells stay as they are.";
}

TEST_F(CbrPlots, TheLabelOfAMoldWithoutReadingsDrawsAndWritesNothing)
{
    TypeSingleMold(sheet, kSandyDials);
    sheet.mshLPC(At01, 3) = "9.9";
    Draw();
    const auto plot = sheet.picgraph1.Items();
    sheet.lblMold3.Press();
    EXPECT_EQ(sheet.picgraph1.Items(), plot);
    EXPECT_EQ(RatiosOf(sheet, At01), "7.3||9.9");
}

// The parabola takes a ratio that is not there for zero, as the method does; only a mark would claim a reading.
TEST_F(CbrPlots, AMoldWithoutARatioHasNoMarkAmongTheDensities)
{
    PutRatio(1, "1.90", "80");
    PutRatio(2, "2.00", "");
    PutRatio(3, "2.10", "100");
    sheet.lbl01.Press();
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph3.Items()).size(), 2U);
    PutRatio(2, "2.00", "90");
    sheet.lbl01.Press();
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picGraph3.Items()).size(), 3U);
}

}  // namespace
}  // namespace terravane
