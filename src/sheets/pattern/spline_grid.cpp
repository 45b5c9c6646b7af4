#include "sheets/pattern/spline_grid.h"

#include "laboratory/masks.h"
#include "runtime/numbers.h"

namespace terravane {

namespace {

double SevenDecimals(double value)
{
    return RoundedToPlaces(value, 7);
}

}  // namespace

void SolveSpline(std::span<const double> x, std::span<const double> y, TextGrid& work)
{
    NaturalSpline(x, y, SevenDecimals, [&work](std::size_t point, SplineColumn column, double value) {
        work(static_cast<int>(point) + 1, static_cast<int>(column)) = Format(value, kSevenDecimals);
    });
}

std::vector<SplineRow> SplineRowsOf(const TextGrid& work, std::size_t points)
{
    std::vector<SplineRow> rows;
    for (int row = 1; row <= static_cast<int>(points); ++row) {
        rows.push_back({.after = Val(work(row, spline::After)), .moment = Val(work(row, spline::Moment))});
    }
    return rows;
}

}  // namespace terravane
