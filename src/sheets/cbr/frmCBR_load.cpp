// Load-Penetration Curve: the polynomial of each mold through the origin, the correction of a curve that starts
// concave upward, the bearing ratios at 0.1 in and 0.2 in.
#include <algorithm>

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

constexpr int kDegree = 5;
constexpr double kScanEnd = 0.2;  // in, where the search for the tangent ends

constexpr std::array kStandards{
    Standard{result::At01, 0.1, 1000, 1},
    Standard{result::At02, 0.2, 1500, 2},
};

constexpr MoldTask kAllMolds{.pullsCurveUp = true, .alwaysShifts = false, .writesZero = false};

double At(double steps)
{
    return steps * kScanStep;
}

}  // namespace

void frmCBR::cmdLPen_Click()
{
    const ShownAtEnd frameShown{picGraph}, plotShown{picgraph1};
    DropSpareRow();
    const LoadScale scale = ScaleOfLoads();
    DrawLoadAxes(scale);
    const AtEnd framed([this] { DrawPlotFrames(picGraph, picgraph1, GridOfLoads()); });
    DrawMolds(scale, 1, kMolds, kAllMolds);
    const auto hasDensity = [this](int mold) { return !Trim(mshLPC(result::DryDensity, mold)).empty(); };
    if (hasDensity(2) && hasDensity(3)) SSTData.SetTabEnabled(kValueTab, true);
    if (!SSTData.TabEnabled(kValueTab)) PostSingleMold();
    cmdView.SetEnabled(true);
    cmdCBR.SetEnabled(true);
}

void frmCBR::lblMold1_Click()
{
    DrawLabelled(1, true);
}

/// The second and third mold's curve may go below the axis where it is drawn by itself.
void frmCBR::lblMold2_Click()
{
    DrawLabelled(2, false);
}

void frmCBR::lblMold3_Click()
{
    DrawLabelled(3, false);
}

/// One mold on top of what stands on the plot.
void frmCBR::DrawLabelled(int mold, bool pullsCurveUp)
{
    const ShownAtEnd frameShown{picGraph}, plotShown{picgraph1};
    DropSpareRow();
    DrawMolds(ScaleOfLoads(), mold, mold, {.pullsCurveUp = pullsCurveUp, .alwaysShifts = true, .writesZero = true});
}

/// The curves of molds, and over them their marks and the stresses that were read, also of those before one that fails.
void frmCBR::DrawMolds(const LoadScale& scale, int first, int last, const MoldTask& task)
{
    const AtEnd finished([&] {
        for (int mold = first; mold <= last; ++mold) MarkReadings(scale, mold);
        PrintStresses();
    });
    for (int mold = first; mold <= last; ++mold) DoMold(scale, mold, task);
}

void frmCBR::DoMold(const LoadScale& scale, int mold, const MoldTask& task)
{
    FitMold = mold;
    FitPenetrationCurve();
    DrawCurve(scale, task);
    const TangentPoint tangent = ScanCurve();
    if (task.alwaysShifts || IsTicked(mold)) {
        ShiftZero(mold, tangent);
        DrawTangent(scale, mold, tangent);
    }
    ReadValues(scale, mold, task);
}

Curve frmCBR::CurveOf(int mold) const
{
    Curve curve;
    for (int row = 0; row < MSHPenetrate1.Rows(); ++row) {
        curve.penetration.push_back(Val(MSHPenetrate1(row, penetration::Depth)));
        curve.stress.push_back(Val(MSHPenetrate1(row, penetration::Stress(mold))));
    }
    return curve;
}

double frmCBR::LastPenetration() const
{
    return Val(MSHPenetrate1(MSHPenetrate1.Rows() - 1, penetration::Depth));
}

bool frmCBR::IsTicked(int mold) const
{
    return (mold == 1 ? chkMold1 : mold == 2 ? chkMold2 : chkMold3).Value();
}

void frmCBR::FitPenetrationCurve()
{
    const Curve curve = CurveOf(FitMold);
    std::ranges::copy(FitPowers(curve.penetration, curve.stress, 1, kDegree), FitCoef.begin());
    FitR2 = Determination(curve.penetration, curve.stress, FitCoef);
}

/// lb/in², of the curve fitted last.
double frmCBR::Stress(double penetration) const
{
    return EvaluatePolynomial(FitCoef, penetration);
}

/// The last place where the slope from the point before to the point behind was still rising.
TangentPoint frmCBR::ScanCurve() const
{
    TangentPoint tangent;
    const double steps = Int(LastPenetration() / kScanStep);
    double slopeBefore = 0;
    for (int i = 2; i <= steps && At(i - 1) < kScanEnd; ++i) {
        const double xa = At(i - 1), xb = At(i + 1);
        const auto [ya, yb] = PulledUp(Stress(xa), Stress(xb));
        const double slope = Divide(yb - ya, xb - xa);
        if (slope > slopeBefore) tangent = {(xa + xb) / 2, (ya + yb) / 2, slope};
        slopeBefore = slope;
    }
    return tangent;
}

/// Where the tangent meets the axis. A slope that never rises leaves no tangent, and the quotient fails.
void frmCBR::ShiftZero(int mold, const TangentPoint& tangent)
{
    const double origin = tangent.x - Divide(tangent.y, tangent.slope);
    ZeroShift[static_cast<std::size_t>(mold - 1)] = std::max(origin, 0.0);
}

/// The tick alone decides whether the readings start at the shifted zero.
void frmCBR::ReadValues(const LoadScale& scale, int mold, const MoldTask& task)
{
    const double origin = IsTicked(mold) ? ZeroShift[static_cast<std::size_t>(mold - 1)] : 0;
    for (const Standard& standard : kStandards) {
        const double x = origin + standard.penetration;
        const double stress = Stress(x);
        if (stress == 0 && !task.writesZero) continue;
        MarkStress(scale, standard, x, stress);
        TrialCells(mshLPC, laboratory::kBearingRatios, mold).Show(standard.row, stress / standard.stress * 100);
    }
}

/// The ratio at 0.1 in holds unless that at 0.2 in is higher.
void frmCBR::PostSingleMold()
{
    const std::string at01 = mshLPC(result::At01, 1).Text(), at02 = mshLPC(result::At02, 1).Text();
    const std::string CBRValue = Val(at01) >= Val(at02) ? at01 : at02;
    Post({{"CBR", CBRValue}});
}

}  // namespace terravane
