/// What the plots of all sheets share: a plot standing on a frame that holds its tick labels and axis titles. Knows no
/// scale: how a reading maps to the plot is the sheet's. Lengths are twips.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "controls/picture_box.h"

namespace terravane {

inline constexpr std::string_view kTickFont = "MS Sans Serif";
inline constexpr double kTickSize = 8.25;  // points
inline constexpr std::string_view kAxisFont = "Times New Roman";
inline constexpr double kAxisSize = 14;       // points, of the axis titles
inline constexpr double kSmallAxisSize = 11;  // of those whose labels need the room

/// A curve's steps past this are no plot but a slip of the pen.
inline constexpr double kMostSteps = 5e6;

/// The plot's place on the frame around it.
struct Inset {
    double left, top;
};

/// The two boxes stand side by side in one container, or the plot stands in the frame.
Inset InsetOf(const PictureBox& plot, const PictureBox& frame);

/// For logarithmic axes. Error 5 for zero or less.
double DecimalLogarithm(double value);

/// Every label of an axis, or every second, third ... so that they don't run into each other.
int LabelEvery(double spacing, double needed);

void SetFont(DrawingSurface& surface, std::string_view name, double size);

/// One text with its upper left corner at (x, y).
void PrintAt(DrawingSurface& surface, double x, double y, std::string_view text);

/// The titles of a plot's axes: one below the plot, centred, the other turned, left of it.
/// size        points
/// besideLeft  where the turned title begins; midway between the frame's edge and the plot's unless it is told
struct AxisTitles {
    std::string_view below, beside;
    double size = kAxisSize;
    std::optional<double> besideLeft = {};
};

/// Prints the axis titles on the frame. Both boxes have the font of the tick labels afterwards.
void PrintAxisTitles(PictureBox& frame, PictureBox& plot, const AxisTitles& titles);

/// Room between a plot and the labels of its axes.
inline constexpr double kTickRoom = 40;

/// A label on the frame, centred below a point of the plot's lower edge.
void PrintBelow(PictureBox& frame, const PictureBox& plot, double x, double bottom, std::string_view label,
                double room = kTickRoom);

/// A label on the frame, left of the plot and level with a line of it.
void PrintLeftOf(PictureBox& frame, const PictureBox& plot, double y, std::string_view label, double room = kTickRoom);

/// Red lines from a point of the curve down to one axis and across to the other.
void DrawGuideLines(DrawingSurface& plot, double x, double y, double bottom);

/// Room that the box around a plot leaves at the plot's right and bottom.
inline constexpr double kBoxMargin = 50;

/// The boxes around plot and frame; the plot's is thin, the frame's thick.
void DrawPlotBoxes(PictureBox& frame, PictureBox& plot);

/// What stands in the boxes before a curve is drawn: nothing but the boxes and the axis titles.
void DrawEmptyPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles);

/// A dot with a white circle around it at each point, black; what lies below is hidden.
void DrawMarks(DrawingSurface& plot, std::span<const DrawnPoint> points);

/// A thin outline around a plot that is ruled to its very edges, drawn on the frame.
void DrawOutline(PictureBox& frame, const PictureBox& plot);

/// Error 7 for a curve or an axis of more than kMostSteps steps.
void RefuseEndless(double steps);

/// Tells the views when the command ends, however it ends: a plot that failed shows what was drawn.
struct ShownAtEnd {
    PictureBox& box;
    ~ShownAtEnd() { box.Changed(); }
};

}  // namespace terravane
