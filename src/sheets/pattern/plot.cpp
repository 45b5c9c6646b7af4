#include "sheets/pattern/plot.h"

#include <algorithm>
#include <cmath>

#include "drawing/scopes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr double kMarkRadius = 40;
constexpr double kTickLength = 30;

/// A line in the plot's coordinates on the frame around it.
void LineOnFrame(PictureBox& frame, const PictureBox& plot, const DrawnPoint& from, const DrawnPoint& to)
{
    const auto [left, top] = InsetOf(plot, frame);
    const Stroke stroke(frame, plot_pen::kAxis);
    frame.Line(left + from.x, top + from.y, left + to.x, top + to.y, kBlack);
}

}  // namespace

Inset InsetOf(const PictureBox& plot, const PictureBox& frame)
{
    if (plot.Container == &frame) return {plot.Left, plot.Top};
    return {plot.Left - frame.Left, plot.Top - frame.Top};
}

double DecimalLogarithm(double value)
{
    return Log(value) / Log(10);
}

int LabelEvery(double spacing, double needed)
{
    return std::max(1, static_cast<int>(std::ceil(needed / spacing)));
}

void SetFont(DrawingSurface& surface, std::string_view name, double size)
{
    surface.FontName = name;
    surface.FontSize = size;
}

void PrintAt(DrawingSurface& surface, double x, double y, std::string_view text)
{
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.Print(text);
}

void PrintAxisTitles(PictureBox& frame, PictureBox& plot, const AxisTitles& titles)
{
    const auto& [below, beside, size, besideLeft] = titles;
    const auto [left, top] = InsetOf(plot, frame);
    SetFont(frame, kAxisFont, size);
    const double height = frame.TextHeight(below);
    PrintAt(frame, left + (plot.Width - frame.TextWidth(below)) / 2, frame.Height - 80 - height - 60, below);
    frame.PrintTurned(beside, besideLeft.value_or((left - height) / 2),
                      top + (plot.Height + frame.TextWidth(beside)) / 2);
    SetFont(frame, kTickFont, kTickSize);
    SetFont(plot, kTickFont, kTickSize);
}

void PrintBelow(PictureBox& frame, const PictureBox& plot, double x, double bottom, std::string_view label, double room)
{
    const auto [left, top] = InsetOf(plot, frame);
    PrintAt(frame, left + x - frame.TextWidth(label) / 2, top + bottom + room, label);
}

void PrintLeftOf(PictureBox& frame, const PictureBox& plot, double y, std::string_view label, double room)
{
    const auto [left, top] = InsetOf(plot, frame);
    PrintAt(frame, left - room - frame.TextWidth(label), top + y - frame.TextHeight(label) / 2, label);
}

void DrawGuideLines(DrawingSurface& plot, double x, double y, double bottom)
{
    const Stroke stroke(plot, plot_pen::kAxis);
    plot.Line(x, y, x, bottom, kRed);
    plot.Line(x, y, 0, y, kRed);
}

GridEdge WholeBox(const PictureBox& plot)
{
    return {plot.Width, plot.Height};
}

GridEdge WithinMargins(const PictureBox& plot)
{
    return {plot.Width - kBoxMargin, plot.Height - kBoxMargin};
}

/// The outer line lies on the frame's very edge, as far inside as its own half weight.
void DrawPlotFrames(PictureBox& frame, PictureBox& plot, const GridEdge& edge)
{
    constexpr double kHalfWeight = 5;
    const auto [left, top] = InsetOf(plot, frame);
    const Stroke onFrame(frame, plot_pen::kAxis), onPlot(plot, plot_pen::kAxis);
    const TextColour blackFrame(frame, kBlack), blackPlot(plot, kBlack);
    frame.Box(left, top, left + edge.right, top + edge.bottom);
    plot.Box(0, 0, edge.right, edge.bottom);
    frame.Box(kHalfWeight, kHalfWeight, frame.Width - kHalfWeight, frame.Height - kHalfWeight);
}

void ClearPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles)
{
    frame.Cls();
    plot.Cls();
    plot.Axes.reset();
    PrintAxisTitles(frame, plot, titles);
}

void DrawEmptyPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles, const GridEdge& edge)
{
    ClearPlot(frame, plot, titles);
    DrawPlotFrames(frame, plot, edge);
}

/// In the margin the tick lies on the plot.
void DrawTickBelow(PictureBox& frame, PictureBox& plot, double x, double bottom)
{
    const DrawnPoint from{x, bottom}, to{x, bottom + kTickLength};
    if (bottom >= plot.Height) {
        LineOnFrame(frame, plot, from, to);
        return;
    }
    const Stroke stroke(plot, plot_pen::kAxis);
    plot.Line(from.x, from.y, to.x, to.y, kBlack);
}

void DrawTickLeft(PictureBox& frame, PictureBox& plot, double y)
{
    LineOnFrame(frame, plot, {-kTickLength, y}, {0, y});
}

void DrawTickRight(PictureBox& frame, PictureBox& plot, double y, double right)
{
    LineOnFrame(frame, plot, {right, y}, {right + kTickLength, y});
}

void DrawMarks(DrawingSurface& plot, std::span<const DrawnPoint> points)
{
    const Stroke stroke(plot, plot_pen::kAxis);
    const TextColour black(plot, kBlack);
    const Filled filled(plot, kWhite);
    for (const DrawnPoint& point : points) {
        plot.PSet(point.x, point.y, kBlack);
        plot.Circle(point.x, point.y, kMarkRadius);
    }
}

void DrawOutline(PictureBox& frame, const PictureBox& plot)
{
    const auto [left, top] = InsetOf(plot, frame);
    frame.DrawWidth = 1;
    frame.Box(left, top, left + plot.Width, top + plot.Height);
}

void RefuseEndless(double steps)
{
    if (steps > kMostSteps) throw RuntimeError(error::kOutOfMemory);
}

}  // namespace terravane
