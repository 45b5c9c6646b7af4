#include "sheets/cbr/cbr_scales.h"

#include <algorithm>
#include <cmath>

#include "drawing/scopes.h"
#include "runtime/numbers.h"

namespace terravane::cbr {

namespace {

constexpr double kRadius = 30;
constexpr double kHalfSquare = 25;
constexpr double kLabelGap = 50;  // between an axis and its labels
constexpr double kSample = 280;   // of a curve's line in the key

}  // namespace

/// Whole divisions count the greatest value rounded to a whole number first.
RisingAxis AxisFor(double greatest, std::span<const AxisStep> steps, double height)
{
    const double step = std::ranges::find_if(steps, [&](const AxisStep& row) { return greatest < row.below; })->step;
    const double divisions = step < 1 ? greatest / step + 1 : Int(std::nearbyint(greatest) / step) + 1;
    RefuseEndless(divisions);
    return {height, step, divisions};
}

void DrawRisingAxis(PictureBox& frame, PictureBox& plot, const RisingAxis& axis, const GridEdge& edge)
{
    const int every = LabelEvery(axis.height / axis.divisions, frame.TextHeight("0"));
    for (int division = 0; division <= axis.divisions; division += every) {
        const double value = division * axis.step, y = axis.Y(value);
        plot.Line(0, y, edge.right, y, kGridGrey);
        DrawTickLeft(frame, plot, y);
        PrintLeftOf(frame, plot, y, NumberText(value), kLabelGap);
    }
}

void DrawTick(PictureBox& frame, PictureBox& plot, double x, std::string_view label, const GridEdge& edge)
{
    plot.Line(x, 0, x, edge.bottom, kGridGrey);
    DrawTickBelow(frame, plot, x, edge.bottom);
    PrintBelow(frame, plot, x, plot.Height, label, 0);
}

void DrawMark(DrawingSurface& surface, Mark mark, double x, double y)
{
    const TextColour black(surface, kBlack);
    const Stroke stroke(surface, plot_pen::kAxis);
    if (mark == Mark::Square) {
        surface.FilledBox(x - kHalfSquare, y - kHalfSquare, x + kHalfSquare, y + kHalfSquare, kWhite);
        surface.Box(x - kHalfSquare, y - kHalfSquare, x + kHalfSquare, y + kHalfSquare);
        return;
    }
    const Filled filled(surface, mark == Mark::FilledCircle ? kBlack : kWhite);
    surface.Circle(x, y, kRadius);
}

void DrawKey(PictureBox& frame, double top, std::span<const KeyEntry> entries)
{
    const double line = frame.TextHeight("0");
    const double width = (frame.Width - 2 * kLabelGap) / static_cast<double>(entries.size());
    double left = kLabelGap;
    for (const KeyEntry& entry : entries) {
        const double inset = (width - frame.TextWidth(entry.name) - kSample - kRadius) / 2, start = left + inset;
        {
            const Stroke stroke(frame, plot_pen::kCurve, entry.style);
            frame.Line(start, top + line / 2, start + kSample, top + line / 2, kRed);
        }
        DrawMark(frame, entry.mark, start + kSample / 2, top + line / 2);
        PrintAt(frame, start + kSample + kRadius, top, entry.name);
        left += width;
    }
}

void DrawGuides(DrawingSurface& plot, double x, double y, double bottom, int style)
{
    const Stroke stroke(plot, plot_pen::kAxis, style);
    plot.Line(x, bottom, x, y, kBlue);
    plot.Line(x, y, 0, y, kBlue);
}

}  // namespace terravane::cbr
