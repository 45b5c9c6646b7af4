/// Curves with fewer points than they were recorded with.
#pragma once

#include <span>
#include <vector>

#include "drawing/display_list.h"

namespace terravane {

/// The fewest corners found for a run of joined lines, among its own points, first and last kept: no point of
/// the run is farther from the lines that are left than the tolerance, and so no place on it.
/// tolerance  in the points' unit, more than 0
/// Method: Douglas and Peucker. Two points or fewer come back as they are.
std::vector<DrawnPoint> Simplified(std::span<const DrawnPoint> points, double tolerance);

}  // namespace terravane
