// Compaction Curve: the plot of the trials with the curve through them, its top and the air-void line, drawn
// into the sheet's two picture boxes from where the report copies it.
#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/scopes.h"
#include "laboratory/masks.h"
#include "numeric/polynomial_fit.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/pattern/plot.h"
#include "sheets/pattern/plot_labels.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

constexpr int kTicks = 13;
constexpr double kNothingYet = 9999;  // above every density and water content
constexpr double kFitStep = 0.001;    // percent of water

/// The digits of a step from its decimal point on; whole units are dropped.
double StepOf(double rawStep)
{
    const std::string text = Format(rawStep, kTwoDecimals);
    return Val(std::string_view(text).substr(text.find('.')));
}

/// Every percent is ruled up to ten of them, every second up to twenty, then every fourth.
int RuleEvery(double percents)
{
    if (percents > 20) return 4;
    return percents > 10 ? 2 : 1;
}

constexpr AxisTitles kAxes{"Water Content , %", "Dry Density , g/cm^3"};

/// Each curve's top and the captions of the guide lines.
struct PeakCaptions {
    std::string_view density, water;
};
constexpr PeakCaptions kSplineCaptions{"MDD = ", "OMC = "};
constexpr PeakCaptions kFitCaptions{"M.D.D. = ", "O.M.C.= "};

}  // namespace

double CompactionScale::Y(double value) const
{
    return height - Divide(value - lowestDensity, densityStep) * tickHeight;
}

void frmCompaction::cmdOMC_Click()
{
    const ShownAtEnd frameShown{picgraph1}, plotShown{picGraph};
    ClearPlot(picgraph1, picGraph, kAxes);
    const AtEnd framed([this] { DrawPlotFrames(picgraph1, picGraph, WholeBox(picGraph)); });
    FillPoints();
    const CompactionPoints points = Points();
    const CompactionScale scale = ScaleOf(points);
    DrawTicks(scale);

    const CompactionPeak peak = optInt.Value() ? DrawSpline(scale) : DrawFit(scale, points);
    TellAxes(picGraph, scale, kAxes, {scale.firstWater, scale.firstWater + 1},
             {scale.lowestDensity, scale.TickDensity(1)});
    txtOMC.SetText(Shown(laboratory::kOptimumMoisture.is, peak.water));
    txtDmax.SetText(Shown(laboratory::kMaximumDryDensity.is, peak.density));
    DrawGuideLines(picGraph, scale.X(peak.water), scale.Y(peak.density), scale.height);
    MarkPoints(scale, points);
    const AtEnd labelled([&] { PrintPeak(scale, peak); });
    if (chkSatLine.Value()) {
        DrawAirVoidLine(scale);
        CaptionAirVoidLine();
    }
    PostPeak();
}

void frmCompaction::DrawAxes()
{
    DrawEmptyPlot(picgraph1, picGraph, kAxes, WholeBox(picGraph));
}

CompactionScale frmCompaction::ScaleOf(const CompactionPoints& points) const
{
    double highest = 0, lowest = kNothingYet, wettest = 0, driest = kNothingYet;
    for (const double density : points.density) {
        highest = std::max(highest, density);
        if (density != 0) lowest = std::min(lowest, density);
    }
    for (const double water : points.water) {
        wettest = std::max(wettest, water);
        if (water != 0) driest = std::min(driest, water);
    }
    CompactionScale scale{};
    scale.width = picGraph.Width;
    scale.height = picGraph.Height;
    scale.lowestDensity = lowest - 0.01;
    scale.densityStep = StepOf((highest - scale.lowestDensity) / 8);
    scale.tickHeight = scale.height / kTicks;
    scale.firstWater = Int(driest);
    scale.percents = Int(wettest) - scale.firstWater + 2;
    scale.percentWidth = Divide(scale.width, scale.percents);
    return scale;
}

void frmCompaction::DrawTicks(const CompactionScale& scale)
{
    const double top = InsetOf(picGraph, picgraph1).top, lineHeight = picgraph1.TextHeight("W");
    for (int tick = 0; tick <= kTicks; ++tick) {
        const double y = scale.height - tick * scale.tickHeight;
        picGraph.Line(0, y, scale.width, y, kGridGrey);
        const std::string label = Format(scale.TickDensity(tick), kTwoDecimals);
        DrawTickRight(picgraph1, picGraph, y, scale.width);
        PrintAt(picgraph1, picgraph1.Width - 200 - picgraph1.TextWidth(label), top + y - lineHeight / 2, label);
    }
    DrawWaterTicks(scale);
}

/// Each rule has its label where they stand apart.
void frmCompaction::DrawWaterTicks(const CompactionScale& scale)
{
    RefuseEndless(scale.percents);
    const int every = RuleEvery(scale.percents);
    const double widest = picgraph1.TextWidth(NumberText(scale.firstWater + scale.percents));
    const int labelled = every * LabelEvery(every * scale.percentWidth, widest);
    for (int percent = every; percent <= scale.percents; percent += every) {
        const double x = percent * scale.percentWidth;
        picGraph.Line(x, 0, x, scale.height, kGridGrey);
        if (percent % labelled != 0) continue;
        DrawTickBelow(picgraph1, picGraph, x, scale.height);
        PrintBelow(picgraph1, picGraph, x, scale.height, NumberText(scale.firstWater + percent));
    }
}

void frmCompaction::DrawCurve(const std::vector<DrawnPoint>& curve)
{
    const Stroke stroke(picGraph, plot_pen::kCurve);
    picGraph.Polyline(curve, kBlue);
}

/// The highest row of the spline's table; of equal ones the last.
CompactionPeak frmCompaction::DrawSpline(const CompactionScale& scale)
{
    Command5_Click();
    Command6_Click();
    CompactionPeak peak;
    std::vector<DrawnPoint> curve;
    for (int row = 1; row < MSH3.Rows(); ++row) {
        const double x = Val(MSH3(row, 0)), y = Val(MSH3(row, 1));
        curve.push_back({scale.X(x), scale.Y(y)});
        if (y >= peak.density) peak = {x, y};
    }
    DrawCurve(curve);
    return peak;
}

/// The sweep begins one step above the first point and ends past the last. It is not rounded, as the spline's
/// table is.
CompactionPeak frmCompaction::DrawFit(const CompactionScale& scale, const CompactionPoints& points)
{
    const auto coefficients = FitCurve(points);
    const double first = Val(MSHData(1, 0));
    const double steps = Int((points.water.back() - first) / kFitStep) + 2;
    RefuseEndless(steps);
    CompactionPeak peak;
    std::vector<DrawnPoint> curve;
    for (int k = 1; k <= steps; ++k) {
        const double x = first + k * kFitStep;
        const double y = EvaluatePolynomial(coefficients, x);
        curve.push_back({scale.X(x), scale.Y(y)});
        if (peak.density <= y) peak = {x, y};
    }
    DrawCurve(curve);
    return peak;
}

void frmCompaction::MarkPoints(const CompactionScale& scale, const CompactionPoints& points)
{
    std::vector<DrawnPoint> marks;
    for (std::size_t i = 0; i < points.water.size(); ++i)
        marks.push_back({scale.X(points.water[i]), scale.Y(points.density[i])});
    DrawMarks(picGraph, marks);
}

/// On the guides, over all else. A caption that would be cut at the plot's edge goes to the other side of its guide.
void frmCompaction::PrintPeak(const CompactionScale& scale, CompactionPeak peak)
{
    const double x = scale.X(peak.water), y = scale.Y(peak.density);
    const auto& captions = optInt.Value() ? kSplineCaptions : kFitCaptions;
    const std::string density =
        std::string(captions.density) + Shown(laboratory::kMaximumDryDensity.is, peak.density) + " g/cm^3";
    const std::string water = std::string(captions.water) + Shown(laboratory::kOptimumMoisture.is, peak.water) + " %";
    const double lineHeight = picGraph.TextHeight("W"), low = scale.height - 30 - lineHeight;
    const std::array captionsOnPlot{
        PlotLabel{density, {30, y}, {{30, y - lineHeight}}, true},
        PlotLabel{water, {x, low}, {{x + 30, low}, {x - 30 - picGraph.TextWidth(water), low}}, true},
    };
    PrintLabels(picGraph, {0, 0, scale.width, scale.height}, captionsOnPlot);
}

/// Where soil of this specific gravity would have the chosen air voids: a row of dots, close enough to read
/// as a line. The walk goes on below the plot, out of sight.
void frmCompaction::DrawAirVoidLine(const CompactionScale& scale)
{
    const double gravity = Val(txtGs.Text());
    const std::string voids = cboSr.Text();
    const auto percentSign = voids.find('%');
    if (percentSign == std::string::npos) throw RuntimeError(error::kInvalidProcedureCall);
    const double saturation = (100 - Val(voids.substr(0, percentSign))) / 100;
    const double high = scale.TickDensity(kTicks), low = scale.TickDensity(1);
    const double dots = Int((high - low) / 0.0001);
    const Stroke stroke(picGraph, plot_pen::kDots);
    for (int k = 1; k <= dots; ++k) {
        const double dryDensity = high - (high - low) * k / 1000;
        const double water = 100 * (Divide(saturation, dryDensity) - Divide(saturation, gravity));
        picGraph.PSet(scale.X(water), scale.Y(dryDensity), kMagenta);
    }
}

/// The caption is centred by a text with one blank more than the one that is printed.
void frmCompaction::CaptionAirVoidLine()
{
    const auto [left, top] = InsetOf(picGraph, picgraph1);
    const std::string voids(Trim(cboSr.Text()));
    const std::string name = voids == "0%" ? "Zero" : cboSr.Text();
    const double measured = picgraph1.TextWidth(name + " Air Void  Line (Gs = ");
    PrintAt(picgraph1, left + (picGraph.Width - measured) / 2, (top - picgraph1.TextHeight("Z")) / 2,
            name + " Air Void Line (Gs = " + txtGs.Text() + ")");
}

}  // namespace terravane
