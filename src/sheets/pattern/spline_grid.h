/// The natural spline whose working memory is a grid of texts: every stage is written with seven decimals, and the text
/// is what the next stage reads. Row i of the grid is point i, row 0 stays empty.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "controls/text_grid.h"
#include "numeric/natural_spline.h"

namespace terravane {

/// Columns of the work grid.
namespace spline {
enum Column { Before, Diagonal, After, RightSide, Moment, kColumns };
}

/// Solves the spline through the points, each stage into its cell as it comes; the grid has a row a point already.
/// Throws as NaturalSpline does; the cells written before the failure stand.
void SolveSpline(std::span<const double> x, std::span<const double> y, TextGrid& work);

/// The rows of the first `points` points as SplineValue needs them, read back from their texts. Error 9 where the
/// spline was not set up for that many points.
std::vector<SplineRow> SplineRowsOf(const TextGrid& work, std::size_t points);

}  // namespace terravane
