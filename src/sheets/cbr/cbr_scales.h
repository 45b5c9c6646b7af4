/// How readings map to the sheet's two plots, and the marks on them. Lengths are twips.
#pragma once

#include <span>
#include <string_view>

#include "controls/picture_box.h"
#include "sheets/pattern/plot.h"

namespace terravane::cbr {

inline constexpr double kTitleLeft = 40;  // of the turned axis title: the labels take the rest of the margin

/// A row of a step table: the first whose bound the greatest value stays below gives the step. The last bound is
/// infinite.
struct AxisStep {
    double below, step;
};

/// An axis from 0 at the bottom, in equal divisions of one step.
struct RisingAxis {
    double height;  // of all divisions together
    double step;
    double divisions;

    double Y(double value) const { return height - value / (step * divisions) * height; }
};

/// The axis for values up to `greatest`. One division more than whole steps fit; steps of less than one are not
/// counted whole. Error 7 for more divisions than a plot can have.
RisingAxis AxisFor(double greatest, std::span<const AxisStep> steps, double height);

/// Penetration (in) across, stress (lb/in²) upwards.
struct LoadScale {
    double divisions;  // of 0.1 in
    double divisionWidth;
    RisingAxis stress;

    double X(double penetration) const { return penetration / 0.1 * divisionWidth; }
    double Y(double value) const { return stress.Y(value); }
};

/// Dry density (g/cm³) across, bearing ratio (%) upwards.
struct DensityScale {
    double width;
    double first, last;  // g/cm³
    RisingAxis ratio;

    double X(double density) const { return (density - first) / (last - first) * width; }
    double Y(double value) const { return ratio.Y(value); }
};

/// Grid lines of an axis on the plot, as wide as the grid, with their labels at its left on the frame, as many as stand
/// apart.
void DrawRisingAxis(PictureBox& frame, PictureBox& plot, const RisingAxis& axis, const GridEdge& edge);

/// A vertical grid line and its label below the plot.
void DrawTick(PictureBox& frame, PictureBox& plot, double x, std::string_view label, const GridEdge& edge);

enum class Mark { OpenCircle, FilledCircle, Square };
void DrawMark(DrawingSurface& surface, Mark mark, double x, double y);

/// A curve's mark, the style of its line and its name, along the top of the frame.
struct KeyEntry {
    Mark mark;
    int style;
    std::string_view name;
};
void DrawKey(PictureBox& frame, double top, std::span<const KeyEntry> entries);

/// Lines of a style from the bottom axis up to a point of the curve and across to the other axis.
void DrawGuides(DrawingSurface& plot, double x, double y, double bottom, int style);

}  // namespace terravane::cbr
