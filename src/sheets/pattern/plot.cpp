#include "sheets/pattern/plot.h"

#include <algorithm>
#include <cmath>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr double kMarkRadius = 40;

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
    plot.Line(x, y, x, bottom, kRed);
    plot.Line(x, y, 0, y, kRed);
}

void DrawPlotBoxes(PictureBox& frame, PictureBox& plot)
{
    plot.DrawWidth = 1;
    plot.ForeColor = kBlack;
    plot.Box(0, 0, plot.Width - kBoxMargin, plot.Height - kBoxMargin);
    frame.DrawWidth = 2;
    frame.Box(10, 10, frame.Width - 80, frame.Height - 80);
    frame.DrawWidth = 1;
}

void DrawEmptyPlot(PictureBox& frame, PictureBox& plot, const AxisTitles& titles)
{
    frame.Cls();
    plot.Cls();
    PrintAxisTitles(frame, plot, titles);
    DrawPlotBoxes(frame, plot);
}

void DrawMarks(DrawingSurface& plot, std::span<const DrawnPoint> points)
{
    plot.ForeColor = kBlack;
    plot.FillSolid = true;
    plot.FillColor = kWhite;
    for (const DrawnPoint& point : points) {
        plot.PSet(point.x, point.y, kBlack);
        plot.Circle(point.x, point.y, kMarkRadius);
    }
    plot.FillSolid = false;
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
