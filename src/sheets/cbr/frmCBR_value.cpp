// CBR Value from Graph: the parabolas of bearing ratio against dry density and the design value at a share of the
// maximum density.
#include <algorithm>
#include <array>
#include <limits>

#include "drawing/scopes.h"
#include "laboratory/masks.h"
#include "numeric/polynomial_fit.h"
#include "numeric/power_fit.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/pattern/plot.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kDensityStep = 0.001;   // g/cm³, of the curve
constexpr double kDensityTick = 0.1;     // g/cm³
constexpr double kLabelNeeds = 300;      // twips across
constexpr std::size_t kDigits = 3;       // characters of a density that give the axis its end
constexpr std::size_t kShareDigits = 2;  // characters of the share that are read: "100%" reads 10
constexpr double kHalfMark = 45;         // twips, of the triangle at the design value

constexpr std::array kRatioSteps{
    AxisStep{5, 0.5},
    AxisStep{10, 1},
    AxisStep{50, 5},
    AxisStep{100, 10},
    AxisStep{250, 25},
    AxisStep{500, 50},
    AxisStep{std::numeric_limits<double>::infinity(), 100},
};

/// How each of the two curves is marked.
struct RatioCurve {
    result::Row row;
    Mark mark;
    int style;
    std::string_view name;
};
constexpr std::array kCurves{
    RatioCurve{result::At01, Mark::OpenCircle, kDashed, kRatioAt01},
    RatioCurve{result::At02, Mark::FilledCircle, kSolid, kRatioAt02},
};
constexpr AxisTitles kValueAxes{"Dry Density, g/cm^3", "California Bearing Ratio, %", kSmallAxisSize, kTitleLeft};
constexpr std::array kValueKey{
    KeyEntry{kCurves[0].mark, kCurves[0].style, kCurves[0].name},
    KeyEntry{kCurves[1].mark, kCurves[1].style, kCurves[1].name},
};

/// The value's caption stands where neither curve nor point is, up at the left if it may.
constexpr std::array kValueSides{Beside::AboveLeft, Beside::AboveRight, Beside::BelowRight, Beside::BelowLeft};

const RatioCurve& CurveOfRow(result::Row row)
{
    return *std::ranges::find(kCurves, row, &RatioCurve::row);
}

/// A density cut to its first characters, so to one decimal.
double Cut(double density)
{
    return Val(terravane::Left(NumberText(density), kDigits));
}

void DrawTriangle(DrawingSurface& plot, double x, double y)
{
    const Stroke stroke(plot, plot_pen::kAxis);
    const std::array corners{DrawnPoint{x, y - kHalfMark}, DrawnPoint{x + kHalfMark, y + kHalfMark},
                             DrawnPoint{x - kHalfMark, y + kHalfMark}, DrawnPoint{x, y - kHalfMark}};
    plot.Polyline(corners, kBlue);
}

}  // namespace

void frmCBR::cmdCBR_Click()
{
    const ShownAtEnd frameShown{picGraph2}, plotShown{picGraph3};
    const DensityScale scale = ScaleOfDensities();
    DrawDensityAxes(scale);
    const AtEnd framed([this] { DrawPlotFrames(picGraph2, picGraph3, WithinMargins(picGraph3)); });
    {
        const AtEnd marked([&] {
            for (const RatioCurve& curve : kCurves) MarkRatios(scale, curve.row);
        });
        for (const RatioCurve& curve : kCurves) DrawRatios(scale, curve.row);
    }
    txtCBR.SetText("");
    if (!Trim(cboCBR.Text()).empty() && !Trim(txtMDD.Text()).empty()) ReadDesignValue(scale);
    Post({{"CBR", txtCBR.Text()}});
}

void frmCBR::lbl01_Click()
{
    DrawOnly(result::At01);
}

void frmCBR::lbl02_Click()
{
    DrawOnly(result::At02);
}

void frmCBR::DrawOnly(result::Row row)
{
    const ShownAtEnd frameShown{picGraph2}, plotShown{picGraph3};
    const DensityScale scale = ScaleOfDensities();
    DrawDensityAxes(scale);
    const AtEnd finished([&] {
        MarkRatios(scale, row);
        DrawPlotFrames(picGraph2, picGraph3, WithinMargins(picGraph3));
    });
    DrawRatios(scale, row);
}

void frmCBR::FitDensityCurve01()
{
    FitDensityCurve(result::At01);
}

void frmCBR::FitDensityCurve02()
{
    FitDensityCurve(result::At02);
}

void frmCBR::FitDensityCurve(result::Row row)
{
    std::vector<double> density, ratio;
    for (int mold = 1; mold <= kMolds; ++mold) {
        density.push_back(Val(mshLPC(result::DryDensity, mold)));
        ratio.push_back(Val(mshLPC(row, mold)));
    }
    std::ranges::copy(FitPowers(density, ratio, 0, 2), DensityCoef.begin());
    DensityR2 = Determination(density, ratio, DensityCoef);
}

/// Percent, of the curve fitted last.
double frmCBR::RatioAt(double density) const
{
    return EvaluatePolynomial(DensityCoef, density);
}

DensityScale frmCBR::ScaleOfDensities() const
{
    double greatest = 0, lowest = Val(mshLPC(result::DryDensity, 1)), highest = lowest;
    for (int mold = 1; mold <= kMolds; ++mold) {
        const double density = Val(mshLPC(result::DryDensity, mold));
        lowest = std::min(lowest, density);
        highest = std::max(highest, density);
        for (const RatioCurve& curve : kCurves) greatest = std::max(greatest, Val(mshLPC(curve.row, mold)));
    }
    const RisingAxis ratio = AxisFor(greatest, kRatioSteps, picGraph3.ScaleHeight - kBoxMargin);
    return {picGraph3.ScaleWidth - kBoxMargin, Cut(lowest), Cut(highest) + kDensityTick, ratio};
}

void frmCBR::DrawEmptyDensityPlot()
{
    DrawEmptyPlot(picGraph2, picGraph3, kValueAxes, WithinMargins(picGraph3));
}

void frmCBR::DrawDensityAxes(const DensityScale& scale)
{
    ClearPlot(picGraph2, picGraph3, kValueAxes);
    DrawRisingAxis(picGraph2, picGraph3, scale.ratio, WithinMargins(picGraph3));
    DrawDensityTicks(scale);
    TellAxes(picGraph3, scale, kValueAxes, {scale.first, scale.last}, {0, scale.ratio.step});
    DrawKey(picGraph2, (picGraph3.Top - picGraph2.TextHeight("M")) / 2, kValueKey);
}

/// As many as their labels leave room for.
void frmCBR::DrawDensityTicks(const DensityScale& scale)
{
    const auto label = [](double density) { return Format(density, kOneDecimal); };
    const double divisions = Int((scale.last - scale.first) / kDensityTick + 0.5);
    const double most = Int(scale.width / std::max(kLabelNeeds, picGraph2.TextWidth(label(scale.last))));
    const double every = Int(divisions / most) + 1;
    for (double tick = 0; tick <= divisions; tick += every) {
        const double density = scale.first + tick * kDensityTick;
        DrawTick(picGraph2, picGraph3, scale.X(density), label(density), WithinMargins(picGraph3));
    }
}

/// The points of a row, none for a mold without a ratio.
void frmCBR::MarkRatios(const DensityScale& scale, result::Row row)
{
    for (int mold = 1; mold <= kMolds; ++mold) {
        const auto ratio = mshLPC(row, mold);
        if (Trim(ratio).empty()) continue;
        const double density = Val(mshLPC(result::DryDensity, mold));
        DrawMark(picGraph3, CurveOfRow(row).mark, scale.X(density), scale.Y(Val(ratio)));
    }
}

/// The parabola through all three points of a row, from the first mold's density to the third's.
void frmCBR::DrawRatios(const DensityScale& scale, result::Row row)
{
    const auto density = [this](int mold) { return Val(mshLPC(result::DryDensity, mold)); };
    row == result::At01 ? FitDensityCurve01() : FitDensityCurve02();
    const double steps = (density(kMolds) - density(1)) / kDensityStep;
    RefuseEndless(steps);
    std::vector<DrawnPoint> points;
    for (int k = 0; k <= steps; ++k) {
        const double x = density(1) + k * kDensityStep;
        points.push_back({scale.X(x), scale.Y(RatioAt(x))});
    }
    const Stroke stroke(picGraph3, plot_pen::kCurve, CurveOfRow(row).style);
    picGraph3.Polyline(points, kRed);
}

/// The value comes from the curve fitted last, that at 0.2 in.
void frmCBR::ReadDesignValue(const DensityScale& scale)
{
    const double density = Val(txtMDD.Text()) * Val(terravane::Left(cboCBR.Text(), kShareDigits)) / 100;
    const double ratio = RatioAt(density);
    txtCBR.SetText(Shown(laboratory::kBearingRatioBox.is, ratio));
    MarkDesignValue(scale, density, ratio);
}

void frmCBR::MarkDesignValue(const DensityScale& scale, double density, double ratio)
{
    const double x = scale.X(density), y = scale.Y(ratio);
    DrawGuides(picGraph3, x, y, scale.Y(0), kDashed);
    DrawTriangle(picGraph3, x, y);
    const std::string caption = "CBR Value = " + txtCBR.Text() + "%";
    const std::array label{
        PlotLabel{caption, {x, y}, PlacesBeside(picGraph3, caption, {x, y}, kHalfMark, kValueSides)}};
    const GridEdge grid = WithinMargins(picGraph3);
    PrintLabels(picGraph3, {0, 0, grid.right, grid.bottom}, label);
}

}  // namespace terravane
