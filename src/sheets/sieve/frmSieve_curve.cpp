// Plot Graph: the points of the curve, the spline through them, and the diameters that are read from polygon or spline.
// The spline runs in millimetres, not in their logarithm, and its work grids hold every stage as text.
#include <array>

#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/plot.h"
#include "sheets/sieve/frmSieve.h"

namespace terravane {

namespace {

constexpr std::string_view kDiameterMask = "#0.000";

/// Read in this order.
/// level  percent passing
/// label  of the box, in front of the diameter
struct Diameter {
    double level;
    std::string frmSieve::*text;
    TextBox frmSieve::*box;
    std::string_view label;
};
constexpr std::array kDiameters{
    Diameter{60, &frmSieve::D60, &frmSieve::txtD60, "  D60 = "},
    Diameter{30, &frmSieve::D30, &frmSieve::txtD30, "  D30 = "},
    Diameter{10, &frmSieve::D10, &frmSieve::txtD10, "  D10 = "},
};

constexpr std::string_view kUniformity = " Cu = ";
constexpr std::string_view kCurvature = " Cc = ";

}  // namespace

void frmSieve::cmdgraph_Click()
{
    const ShownAtEnd frameShown{picgraph1}, plotShown{picGraph};
    Option2.Release();
    cmdView.SetEnabled(true);
    FillPoints();
    DrawGrainSizeGrid();
    MarkPoints();
    if (chkSmooth.Value()) {
        Command5_Click();
        Command6_Click();
    }
    DrawCurve(chkSmooth.Value() ? MSH3 : MSHData);
    ReadDiameters();
    WriteDiameters();
    WriteCoefficients();
    cmdClass.SetEnabled(true);
}

/// The first row without an opening, mostly the pan, ends the points; without one all rows count.
void frmSieve::FillPoints()
{
    int end = 1;
    while (end < MSHSieve.Rows() && Val(MSHSieve(end, sieve::Opening)) != 0) ++end;
    MSHData.SetRows(end);
    for (int row = 1; row < end; ++row) {
        MSHData(row, 0) = MSHSieve(row, sieve::Opening);
        MSHData(row, 1) = MSHSieve(row, sieve::Passing);
    }
}

GrainSizes frmSieve::Points() const
{
    return {NumbersOf(MSHData, 0), NumbersOf(MSHData, 1)};
}

void frmSieve::Command5_Click()
{
    const GrainSizes points = Points();
    MSH2.SetRows(MSHData.Rows());
    SolveSpline(points.size, points.percent, MSH2);
}

/// Each interval begins at its own coarse end and stops short of its fine one, which is met exactly only in the first
/// interval.
void frmSieve::Command6_Click()
{
    const GrainSizes points = Points();
    const auto rows = SplineRowsOf(MSH2, points.size.size());
    const double step = Val(Text6.Text());
    MSH3.SetRows(2);
    double size = points.size.empty() ? 0 : points.size.front();
    for (std::size_t k = 0; k + 1 < points.size.size(); ++k) {
        const double steps = Divide(points.size[k] - points.size[k + 1], step);
        for (double j = 1; j <= steps; ++j) {
            if (k > 0 || j > 1) {
                size += points.size[k] < points.size[k + 1] ? step : -step;
                MSH3.AppendRow({});
            }
            WriteCurvePoint(points, rows, k, size);
        }
        size = points.size[k + 1];
        if (k > 0) continue;
        MSH3.AppendRow({});
        WriteCurvePoint(points, rows, k, size);
    }
}

/// Into the curve's last row.
void frmSieve::WriteCurvePoint(const GrainSizes& points, const std::vector<SplineRow>& rows, std::size_t interval,
                               double size)
{
    const int last = MSH3.Rows() - 1;
    MSH3(last, 0) = Format(size, kThreeDecimals);
    MSH3(last, 1) = Format(SplineValue(rows, points.size, points.percent, interval, size), kSevenDecimals);
}

void frmSieve::ReadDiameters()
{
    for (const Diameter& of : kDiameters) {
        std::string& text = this->*of.text;
        text = chkSmooth.Value() ? DiameterFromCurve(of.level, text) : DiameterFromStack(of.level, text);
    }
}

/// The last size above the first crossing from the coarse side; a spline that swings back later is not looked at.
std::string frmSieve::DiameterFromCurve(double level, const std::string& kept) const
{
    for (int row = 1; row < MSH3.Rows(); ++row) {
        if (Val(MSH3(row, 1)) < level) return MSH3(row - 1, 0);
    }
    return kept;
}

/// Between two sieves by the size itself, not its logarithm. A stack whose first sieve passes the level or less is read
/// from the heads above it, which count as 0 mm and 0 percent.
std::string frmSieve::DiameterFromStack(double level, const std::string& kept) const
{
    const auto passing = [this](int row) { return Val(MSHSieve(row, sieve::Passing)); };
    const auto size = [this](int row) { return Val(MSHSieve(row, sieve::Opening)); };
    if (passing(SieveRows()) > level) return kept;
    for (int row = 1; row < MSHSieve.Rows(); ++row) {
        if (passing(row) > level) continue;
        const int above = row - 1;
        return NumberText(size(above) -
                          Divide((size(above) - size(row)) * (passing(above) - level), passing(above) - passing(row)));
    }
    return kept;
}

/// How many rows have an opening.
int frmSieve::SieveRows() const
{
    int rows = 0;
    for (int row = 1; row < MSHSieve.Rows(); ++row) rows += Trim(MSHSieve(row, sieve::Opening)).empty() ? 0 : 1;
    return rows;
}

/// Diameters typed by hand overrule those read.
void frmSieve::WriteDiameters()
{
    if (chkEdit.Value()) {
        for (const Diameter& of : kDiameters) this->*of.text = BehindEquals((this->*of.box).Text());
    }
    for (const Diameter& of : kDiameters)
        (this->*of.box).SetText(std::string(of.label) + Format(std::string_view(this->*of.text), kDiameterMask));
}

/// Without D10 there are no coefficients; its box opens for a value by hand.
void frmSieve::WriteCoefficients()
{
    const double d60 = Val(D60), d30 = Val(D30), d10 = Val(D10);
    std::string uniformity, curvature;
    if (d10 == 0) {
        txtD10.SetLocked(false);
    } else {
        uniformity = Format(Divide(d60, d10), kTwoDecimals);
    }
    txtCu.SetText(std::string(kUniformity) + uniformity);
    if (d60 != 0 && d10 != 0) curvature = Format(Divide(d30 * d30, d60 * d10), kTwoDecimals);
    txtCc.SetText(std::string(kCurvature) + curvature);
}

void frmSieve::chkEdit_Click()
{
    for (const Diameter& of : kDiameters) (this->*of.box).SetLocked(!chkEdit.Value());
}

}  // namespace terravane
