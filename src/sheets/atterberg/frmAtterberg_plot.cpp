// Plot Graph: the flow curve through the liquid limit trials, its water content at 25 blows, the indices, and the
// drawing in the sheet's two picture boxes from where the report copies it.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "drawing/scopes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/pattern/plot.h"
#include "sheets/pattern/plot_labels.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

constexpr double kFewestBlows = 10, kMostBlows = 100;
constexpr int kBlowStep = 10;
constexpr double kLimitBlows = 25;  // the liquid limit is the water content here
constexpr double kFlowFrom = 20, kFlowTo = 40;
constexpr int kTen = 10;          // percent between two lines
constexpr double kHeadRoom = 10;  // percent above the wettest trial
constexpr double kCaptionRoom = 30;
constexpr std::string_view kLimitCaption = " N = 25";
constexpr std::array kLimitSides{Beside::AboveRight, Beside::BelowLeft};

constexpr AxisTitles kAxes{"Number of Blows", "Water Content , %"};

/// Whole tens in a number of percent, which is rounded to a whole one first, halves to even.
double WholeTens(double percent)
{
    return std::trunc(std::nearbyint(percent) / kTen);
}

}  // namespace

double FlowScale::X(double blows) const
{
    return width * DecimalLogarithm(blows / kFewestBlows) / DecimalLogarithm(kMostBlows / kFewestBlows);
}

double FlowScale::Y(double water) const
{
    return height - Divide(water * height, kTen * tens);
}

void frmAtterberg::cmdPlot_Click()
{
    const ShownAtEnd frameShown{picgraph1}, plotShown{picGraph};
    ClearPlot(picgraph1, picGraph, kAxes);
    const AtEnd framed([this] { DrawPlotFrames(picgraph1, picGraph, WholeBox(picGraph)); });
    const FlowScale scale = ScaleOf();
    DrawWaterTicks(scale);
    DrawBlowTicks(scale);

    const StraightLine curve = FitFlowCurve();
    DrawFlowCurve(scale, curve);
    TellAxes(picGraph, scale, kAxes, {kFewestBlows, kMostBlows, true}, {0, kTen});
    DrawLimit(scale, curve.At(DecimalLogarithm(kLimitBlows)));
    ReadLimits(curve);
    PostLimits();
}

void frmAtterberg::DrawAxes()
{
    DrawEmptyPlot(picgraph1, picGraph, kAxes, WholeBox(picGraph));
}

FlowScale frmAtterberg::ScaleOf() const
{
    return {picGraph.Width, picGraph.Height, WholeTens(HighestWaterContent() + kHeadRoom) + 1};
}

/// Of all columns, also those behind the last trial.
double frmAtterberg::HighestWaterContent() const
{
    double highest = Val(MSHLL(ll::WaterContent, 1));
    for (int trial = 2; trial <= kLimitTrials; ++trial)
        highest = std::max(highest, Val(MSHLL(ll::WaterContent, trial)));
    return highest;
}

/// The labels stand right of the plot, as many as stand apart: the left is for the mark of the liquid limit.
void frmAtterberg::DrawWaterTicks(const FlowScale& scale)
{
    RefuseEndless(scale.tens);
    const auto [left, top] = InsetOf(picGraph, picgraph1);
    const double step = Divide(scale.height, scale.tens);
    const double lineHeight = picgraph1.TextHeight("W");
    const int every = LabelEvery(step, lineHeight);
    for (int i = 1; i <= scale.tens; ++i) {
        const double y = scale.height - i * step;
        picGraph.Line(0, y, scale.width, y, kGridGrey);
        if (i % every != 0) continue;
        DrawTickRight(picgraph1, picGraph, y, scale.width);
        PrintAt(picgraph1, left + scale.width + 2 * kTickRoom, top + y - lineHeight / 2,
                NumberText(static_cast<double>(i * kTen)));
    }
}

void frmAtterberg::PrintBlows(const FlowScale& scale, double blows, double shareLeft)
{
    const auto [left, top] = InsetOf(picGraph, picgraph1);
    const std::string text = NumberText(blows);
    DrawTickBelow(picgraph1, picGraph, scale.X(blows), scale.height);
    PrintAt(picgraph1, left + scale.X(blows) - picgraph1.TextWidth(text) * shareLeft, top + scale.height + kTickRoom,
            text);
}

/// The number at the right end stands a little to the right, apart from the one before it.
void frmAtterberg::DrawBlowTicks(const FlowScale& scale)
{
    constexpr double kCentred = 0.5, kAside = 0.25;
    for (double blows = kMostBlows - kBlowStep; blows > kFewestBlows; blows -= kBlowStep) {
        picGraph.Line(scale.X(blows), 0, scale.X(blows), scale.height, kGridGrey);
        PrintBlows(scale, blows, kCentred);
    }
    PrintBlows(scale, kMostBlows, kAside);
    PrintBlows(scale, kLimitBlows, kCentred);
}

/// Water content over the logarithm of blows. The first column without blows ends the trials.
StraightLine frmAtterberg::FitFlowCurve() const
{
    std::vector<float> logBlows, water;
    for (int trial = 1; HasTrial(MSHLL, trial); ++trial) {
        logBlows.push_back(ToSingle(DecimalLogarithm(Val(MSHLL(ll::Blows, trial)))));
        water.push_back(ToSingle(Val(MSHLL(ll::WaterContent, trial))));
    }
    const auto [lowest, highest] = std::ranges::minmax_element(logBlows);
    const bool isOneNumber = !logBlows.empty() && *lowest == *highest;
    if (isOneNumber) throw RuntimeError(error::kDivisionByZero);  // whatever rounding makes of the slope's quotient
    return FitStraightLine<float>(logBlows, water);
}

void frmAtterberg::DrawFlowCurve(const FlowScale& scale, const StraightLine& curve)
{
    {
        const Stroke stroke(picGraph, plot_pen::kCurve);
        picGraph.Line(0, scale.Y(curve.At(DecimalLogarithm(kFewestBlows))), scale.width,
                      scale.Y(curve.At(DecimalLogarithm(kMostBlows))), kBlue);
    }
    DrawGuideLines(picGraph, scale.X(kLimitBlows), scale.Y(curve.At(DecimalLogarithm(kLimitBlows))), scale.height);
    std::vector<DrawnPoint> trials;
    for (int trial = 1; HasTrial(MSHLL, trial); ++trial)
        trials.push_back({scale.X(Val(MSHLL(ll::Blows, trial))), scale.Y(Val(MSHLL(ll::WaterContent, trial)))});
    DrawMarks(picGraph, trials);
}

/// The guides end on the curve, which stays whole; their captions stand over all else.
void frmAtterberg::DrawLimit(const FlowScale& scale, double liquidLimit)
{
    const double x = scale.X(kLimitBlows), y = scale.Y(liquidLimit);
    const std::string limit = "LL = " + Shown(laboratory::kLiquidLimitBox.is, liquidLimit) + " %";
    const double lineHeight = picGraph.TextHeight("W"), low = scale.height - 2 * kCaptionRoom - lineHeight;
    auto places = PlacesBeside(picGraph, limit, {x, y}, 2 * kCaptionRoom, kLimitSides);
    places.insert(places.begin(), {x + 2 * kCaptionRoom, y - 3 * kCaptionRoom - lineHeight});
    const std::array captions{PlotLabel{std::string(kLimitCaption), {x, low}, {{x + kCaptionRoom, low}}},
                              PlotLabel{limit, {x, y}, places}};
    PrintLabels(picGraph, {0, 0, scale.width, scale.height}, captions);
    PrintLeftOf(picgraph1, picGraph, y, "LL");
}

/// The plasticity index keeps what it showed where either limit reads zero: no word stands for soil that is not
/// plastic.
void frmAtterberg::ReadLimits(const StraightLine& curve)
{
    const auto waterAt = [&](double blows) { return curve.At(DecimalLogarithm(blows)); };
    txtLL.SetText(Shown(laboratory::kLiquidLimitBox.is, waterAt(kLimitBlows)));
    txtPL.SetText(Shown(laboratory::kPlasticLimitBox.is, MeanPlasticLimit()));
    const double liquid = Val(txtLL.Text()), plastic = Val(txtPL.Text());
    if (liquid != 0 && plastic != 0) txtPI.SetText(NumberText(liquid - plastic));
    const double flow = (waterAt(kFlowFrom) - waterAt(kFlowTo)) / DecimalLogarithm(kFlowTo / kFlowFrom);
    txtFI.SetText(Shown(laboratory::kFlowIndexBox.is, flow));
}

}  // namespace terravane
