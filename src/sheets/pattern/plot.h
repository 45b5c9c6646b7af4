/// What the plots of all sheets share: a plot standing on a frame that holds its tick labels and axis titles. Knows no
/// scale: how a reading maps to the plot is the sheet's. Lengths are twips.
#pragma once

#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

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

/// The weights of all plots, in draw widths of a quarter point. A printer of 300 dots to the inch with one ink shows
/// the thinnest of them as a line of one dot.
namespace plot_pen {
inline constexpr int kGrid = 1;
inline constexpr int kAxis = 2;  // frames, ticks, guides and the outlines of marks
inline constexpr int kDots = 3;  // of a line made of dots
inline constexpr int kCurve = 4;
}  // namespace plot_pen

/// Red lines from a point of the curve down to one axis and across to the other.
void DrawGuideLines(DrawingSurface& plot, double x, double y, double bottom);

/// Room that some plots leave between their grid and their box, at the right or below.
inline constexpr double kBoxMargin = 50;

/// Where a plot's grid ends: a width and a height from its upper left corner.
struct GridEdge {
    double right, bottom;
};

/// The whole box.
GridEdge WholeBox(const PictureBox& plot);
/// What the margins leave of it.
GridEdge WithinMargins(const PictureBox& plot);

/// The line around the grid and that around the frame, in one weight. The plot's lies half on the frame, where it
/// stands on the plot's edge, and is drawn on both; so all its sides are equal.
void DrawPlotFrames(PictureBox& frame, PictureBox& plot, const GridEdge& edge);

/// Nothing but the axis titles, as what every plot begins with.
void ClearPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles);

/// What stands in the boxes before a curve is drawn: nothing but the frames and the axis titles.
void DrawEmptyPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles, const GridEdge& edge);

/// Short lines outside the plot's frame, on the frame or in the margin, where a label stands.
void DrawTickBelow(PictureBox& frame, PictureBox& plot, double x, double bottom);
void DrawTickLeft(PictureBox& frame, PictureBox& plot, double y);
void DrawTickRight(PictureBox& frame, PictureBox& plot, double y, double right);

/// A dot with a white circle around it at each point, black; what lies below is hidden.
void DrawMarks(DrawingSurface& plot, std::span<const DrawnPoint> points);

/// A thin outline around a plot that is ruled to its very edges, drawn on the frame.
void DrawOutline(PictureBox& frame, const PictureBox& plot);

/// Error 7 for a curve or an axis of more than kMostSteps steps.
void RefuseEndless(double steps);

/// Two values of an axis, by which a view finds the others.
struct AxisSample {
    double first, last;
    bool isLogarithmic = false;
};

/// Tells views what the places of the plot mean, by the scale that the sheet draws with. A scale without a range tells
/// nothing.
template <class Scale>
void TellAxes(PictureBox& plot, const Scale& scale, const AxisTitles& titles, AxisSample across, AxisSample upwards)
{
    const auto x = AxisThrough(std::string(titles.below), across.first, scale.X(across.first), across.last,
                               scale.X(across.last), across.isLogarithmic);
    const auto y = AxisThrough(std::string(titles.beside), upwards.first, scale.Y(upwards.first), upwards.last,
                               scale.Y(upwards.last), upwards.isLogarithmic);
    if (std::isfinite(x.perTwip) && std::isfinite(y.perTwip)) plot.Axes = {x, y};
}

/// Does something when its scope ends, however it ends: what stands over the curves is drawn last, also where a command
/// failed half way and shows what it came to.
template <class Last>
class [[nodiscard]] AtEnd {
  public:
    explicit AtEnd(Last last) : last_(std::move(last)) {}
    ~AtEnd() { last_(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

  private:
    Last last_;
};

/// Tells the views when the command ends, however it ends: a plot that failed shows what was drawn.
struct ShownAtEnd {
    PictureBox& box;
    ~ShownAtEnd() { box.Changed(); }
};

}  // namespace terravane
