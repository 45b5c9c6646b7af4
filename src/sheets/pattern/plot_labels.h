/// Labels on a plot, each placed where it can be read: clear of marks, of other labels and of the ends of lines, and of
/// curves as far as there is room. Knows no scale; lengths are twips of the plot.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "drawing/drawing_surface.h"

namespace terravane {

/// A text and the places where it would stand best.
/// at      what the text tells of
/// wanted  upper left corners, the best first; at least one
/// stays   the place is given: only what would be hidden or cut moves it, no line does
/// column  labels of one number other than 0 stand at least a text height below each other, however far apart across
struct PlotLabel {
    std::string text;
    DrawnPoint at;
    std::vector<DrawnPoint> wanted;
    bool stays = false;
    int column = 0;

    bool operator==(const PlotLabel&) const = default;
};

/// A rectangle of the plot.
struct PlotArea {
    double left, top, right, bottom;

    bool Overlaps(const PlotArea& other) const
    {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// The sides on which a label stands beside a point, from its own size.
enum class Beside { Left, Right, BelowLeft, BelowRight, AboveLeft, AboveRight };
/// The upper left corners of a text beside a point, in the order of the sides; `gap` from the point to the text.
std::vector<DrawnPoint> PlacesBeside(const DrawingSurface& plot, std::string_view text, DrawnPoint at, double gap,
                                     std::span<const Beside> sides);

/// Where the labels stand, in their order, on what the plot shows now and within `room`: each at the first of its
/// wanted places that is free, or as near to one as a free place is. Where the whole plot has none it is the place that
/// hides least. Circles and filled areas are marks; lines in any colour but the grid's have ends and run where they
/// run.
std::vector<PlotArea> PlaceLabels(const DrawingSurface& plot, const PlotArea& room, std::span<const PlotLabel> labels);

/// Prints the labels where PlaceLabels puts them, each on a white ground, with a thin line to what it tells of where it
/// had to move away from it.
void PrintLabels(DrawingSurface& plot, const PlotArea& room, std::span<const PlotLabel> labels);

}  // namespace terravane
