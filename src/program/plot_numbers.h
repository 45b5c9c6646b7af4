/// A plot as numbers: what its drawing shows, in the units of its axes.
#pragma once

#include <string>
#include <vector>

#include "drawing/display_list.h"
#include "drawing/plot_axes.h"

namespace terravane {

/// A value with as many digits as its neighbour, one pixel on, differs in: no more than the eye can read off.
std::string ReadingText(double value, double neighbour);

/// A line of both axes' titles, then each mark (a circle) and each point of each curve (a run of lines), "x<tab>y" a
/// line in the order of the drawing, an empty line before each curve.
std::string PlotNumbers(const std::vector<DrawnItem>& items, const PlotAxes& axes);

}  // namespace terravane
