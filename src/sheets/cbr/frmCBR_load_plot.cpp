// The plot of stress against penetration: drawn into the sheet's two picture boxes, from where the report copies it.
#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "drawing/scopes.h"
#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/pattern/plot.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kTickDistance = 0.1;   // in
constexpr double kTangentLength = 0.6;  // in
constexpr Colour kTangentColour{192, 0, 192};
constexpr double kHalfPoint = 30;  // twips

constexpr std::array kStressSteps{
    AxisStep{25, 10},
    AxisStep{50, 20},
    AxisStep{250, 25},
    AxisStep{500, 50},
    AxisStep{1000, 100},
    AxisStep{5000, 500},
    AxisStep{std::numeric_limits<double>::infinity(), 1000},
};

constexpr AxisTitles kAxes{"Penetration, in", "Resistance of Penetration, lb/in^2", kSmallAxisSize, kTitleLeft};

constexpr std::array kKey{
    KeyEntry{Mark::OpenCircle, kSolid, kMoldNames[0]},
    KeyEntry{Mark::FilledCircle, kDashed, kMoldNames[1]},
    KeyEntry{Mark::Square, kDashDotted, kMoldNames[2]},
};

/// The stresses at 0.1 in stand left of their points or below, those at 0.2 in to the right: so they keep out of each
/// other's way, and of the curves, which rise to the right.
constexpr double kStressGap = 40;
constexpr std::array kSidesAt01{Beside::Left, Beside::BelowRight, Beside::BelowLeft, Beside::AboveLeft};
constexpr std::array kSidesAt02{Beside::Right, Beside::BelowRight, Beside::AboveRight};

/// The guides of the two depths are told apart without their places, too.
constexpr int GuideStyle(const Standard& standard)
{
    return standard.column == 1 ? kDashed : kDotted;
}

}  // namespace

LoadScale frmCBR::ScaleOfLoads() const
{
    double greatest = 0;
    for (int mold = 1; mold <= kMolds; ++mold) {
        for (const double stress : CurveOf(mold).stress) greatest = std::max(greatest, stress);
    }
    LoadScale scale{};
    scale.divisions = LastPenetration() / kTickDistance + 1;
    scale.divisionWidth = Divide(picgraph1.ScaleWidth, scale.divisions);
    scale.stress = AxisFor(greatest, kStressSteps, picgraph1.ScaleHeight - kBoxMargin);
    return scale;
}

void frmCBR::DrawEmptyLoadPlot()
{
    DrawEmptyPlot(picGraph, picgraph1, kAxes, GridOfLoads());
}

/// The axis of penetrations is as wide as the plot.
GridEdge frmCBR::GridOfLoads() const
{
    return {picgraph1.Width, picgraph1.Height - kBoxMargin};
}

void frmCBR::DrawLoadAxes(const LoadScale& scale)
{
    ClearPlot(picGraph, picgraph1, kAxes);
    stresses_.clear();
    DrawRisingAxis(picGraph, picgraph1, scale.stress, GridOfLoads());
    DrawPenetrationTicks(scale);
    TellAxes(picgraph1, scale, kAxes, {0, kTickDistance}, {0, scale.stress.step});
    DrawKey(picGraph, (picgraph1.Top - picGraph.TextHeight("M")) / 2, kKey);
}

/// Every tenth of an inch, or every second, third ... so that the labels stand apart.
void frmCBR::DrawPenetrationTicks(const LoadScale& scale)
{
    RefuseEndless(scale.divisions);
    const auto label = [](double tick) { return Format(tick * kTickDistance, kOneDecimal); };
    const int every = LabelEvery(scale.divisionWidth, picGraph.TextWidth(label(Int(scale.divisions))));
    for (int tick = 0; tick <= scale.divisions; tick += every)
        DrawTick(picGraph, picgraph1, scale.X(tick * kTickDistance), label(tick), GridOfLoads());
}

/// A reading that was not taken has no mark.
void frmCBR::MarkReadings(const LoadScale& scale, int mold)
{
    for (int row = 0; row < MSHPenetrate1.Rows(); ++row) {
        const double x = scale.X(Val(MSHPenetrate1(row, penetration::Depth)));
        const auto stress = MSHPenetrate1(row, penetration::Stress(mold));
        if (Trim(stress).empty()) continue;
        DrawMark(picgraph1, kKey[static_cast<std::size_t>(mold - 1)].mark, x, scale.Y(Val(stress)));
    }
}

/// From the third thousandth of an inch on, joined wherever an end is the next beginning. A mold without readings has
/// no curve; its zero coefficients would draw along the axis.
void frmCBR::DrawCurve(const LoadScale& scale, const MoldTask& task)
{
    const double steps = Int(LastPenetration() / kScanStep);
    RefuseEndless(steps);
    if (std::ranges::all_of(FitCoef, [](double coefficient) { return coefficient == 0; })) return;
    const Stroke stroke(picgraph1, plot_pen::kCurve, kKey[static_cast<std::size_t>(FitMold - 1)].style);
    std::vector<DrawnPoint> run;
    for (int i = 3; i <= steps; ++i) {
        const double xa = (i - 1) * kScanStep, xb = i * kScanStep;
        StressPair y{Stress(xa), Stress(xb)};
        if (task.pullsCurveUp) y = PulledUp(y.a, y.b);
        const DrawnPoint from{scale.X(xa), scale.Y(y.a)}, to{scale.X(xb), scale.Y(y.b)};
        if (!run.empty() && !(run.back() == from)) {
            picgraph1.Polyline(run, kRed);
            run.clear();
        }
        if (run.empty()) run.push_back(from);
        run.push_back(to);
    }
    picgraph1.Polyline(run, kRed);
}

void frmCBR::DrawTangent(const LoadScale& scale, int mold, const TangentPoint& tangent)
{
    const double origin = ZeroShift[static_cast<std::size_t>(mold - 1)];
    const double rise = Divide(kTangentLength * tangent.y, tangent.x - origin);
    const Stroke stroke(picgraph1, plot_pen::kAxis);
    picgraph1.Line(scale.X(origin), scale.Y(0), scale.X(origin + kTangentLength), scale.Y(rise), kTangentColour);
}

/// Guides to a point of the curve; point and stress are printed over the curves. What stands there from an earlier
/// command is not printed anew.
void frmCBR::MarkStress(const LoadScale& scale, const Standard& standard, double penetration, double stress)
{
    const double x = scale.X(penetration), y = scale.Y(stress);
    DrawGuides(picgraph1, x, y, scale.Y(0), GuideStyle(standard));
    const std::string text = " " + Format(stress, kTwoDecimals);
    const std::span<const Beside> sides = standard.column == 1 ? std::span<const Beside>(kSidesAt01) : kSidesAt02;
    const PlotLabel label{
        text, {x, y}, PlacesBeside(picgraph1, text, {x, y}, kStressGap, sides), false, standard.column};
    if (std::ranges::find(stresses_, label) == stresses_.end()) unprinted_.push_back(label);
}

/// A small square on the curve, and the stress beside it.
void frmCBR::PrintStresses()
{
    for (const PlotLabel& label : unprinted_) {
        const auto [x, y] = label.at;
        picgraph1.FilledBox(x - kHalfPoint, y - kHalfPoint, x + kHalfPoint, y + kHalfPoint, kBlue);
    }
    const GridEdge grid = GridOfLoads();
    PrintLabels(picgraph1, {0, 0, grid.right, grid.bottom}, unprinted_);
    stresses_.insert(stresses_.end(), unprinted_.begin(), unprinted_.end());
    unprinted_.clear();
}

}  // namespace terravane
