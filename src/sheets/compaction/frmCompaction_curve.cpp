// The curve: which trials count, the spline or the polynomial through them. The work grids hold every stage
// as text, and the text is what the next stage reads: seven decimals, three for the water content.
#include <algorithm>
#include <cmath>

#include "laboratory/masks.h"
#include "numeric/polynomial_fit.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace compaction;

constexpr int kQuarticFrom = 5;  // points; fewer take a cubic

}  // namespace

/// The first trial without a mold ends the data. The trials keep their order: the technician types them in
/// the order of rising water content.
void frmCompaction::FillPoints()
{
    int end = 1;
    while (end < MSHDensity.Columns() && Val(MSHDensity(density::Mold, end)) != 0) ++end;
    MSHData.SetRows(end);
    for (int trial = 1; trial < end; ++trial) {
        MSHData(trial, 0) = MSHDensity(density::WaterContent, trial);
        MSHData(trial, 1) = MSHDensity(density::DryDensity, trial);
    }
}

CompactionPoints frmCompaction::Points() const
{
    return {NumbersOf(MSHData, 0), NumbersOf(MSHData, 1)};
}

void frmCompaction::Command5_Click()
{
    const CompactionPoints points = Points();
    MSH2.SetRows(MSHData.Rows());
    SolveSpline(points.water, points.density, MSH2);
}

void frmCompaction::Command6_Click()
{
    const CompactionPoints points = Points();
    MSH3.SetRows(2);
    if (Option2.Value()) {
        EvaluateOnePoint(points);
    } else {
        TabulateSpline(points);
    }
}

void frmCompaction::EvaluateOnePoint(const CompactionPoints& points)
{
    const auto& water = points.water;
    const double at = Val(Text4.Text());
    for (std::size_t i = 0; i + 1 < water.size(); ++i) {
        const auto [low, high] = std::minmax(water[i], water[i + 1]);
        if (at < low || at > high) continue;
        Text5.SetText(
            Format(SplineValue(SplineRowsOf(MSH2, points.water.size()), water, points.density, i, at), kSevenDecimals));
        return;
    }
}

/// Steps from the first point on without stopping at the others: an interval whose length is a whole number
/// of steps ends one step past its end, on its own cubic. Only the second point is met exactly. A top that
/// lies on a point is decided by these rows.
void frmCompaction::TabulateSpline(const CompactionPoints& points)
{
    const auto& water = points.water;
    const auto rows = SplineRowsOf(MSH2, points.water.size());
    const double step = Val(Text6.Text());
    double x = Val(MSHData(1, 0));
    int row = 1;
    const auto write = [&](std::size_t interval) {
        if (row == MSH3.Rows()) MSH3.AppendRow({});
        MSH3(row, 0) = Format(x, kThreeDecimals);
        MSH3(row, 1) = Format(SplineValue(rows, water, points.density, interval, x), kSevenDecimals);
        ++row;
    };
    for (std::size_t i = 0; i + 1 < water.size(); ++i) {
        const double steps = Divide(std::abs(water[i + 1] - water[i]), step);
        for (double k = 0; k <= steps; ++k) {
            if (i > 0 || k > 0) x += water[i] <= water[i + 1] ? step : -step;
            write(i);
        }
        x = water[i + 1];
        if (i > 0) continue;
        row = MSH3.Rows();  // a row of its own, also where a negative step left the first one blank
        write(i);
    }
}

std::vector<double> frmCompaction::FitCurve(const CompactionPoints& points)
{
    return FitPolynomial(points.water, points.density, points.Count() < kQuarticFrom ? 3 : 4);
}

}  // namespace terravane
