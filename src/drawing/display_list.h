/// What was drawn, as values: a list of items in drawing order, in twips (1440 per inch) of the surface that
/// recorded it. Screen, printer, script answers and tests all read this one list.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "drawing/page_parts.h"
#include "drawing/picture.h"

namespace terravane {

struct Colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};
inline constexpr Colour kRed{255, 0, 0};
inline constexpr Colour kBlue{0, 0, 255};
inline constexpr Colour kMagenta{255, 0, 255};
inline constexpr Colour kGridGrey{192, 192, 192};

/// "#RRGGBB".
std::string ColourText(Colour colour);

/// A font as it is asked for; src/drawing/font_metrics knows what it is drawn with.
struct Font {
    std::string name = "MS Sans Serif";
    double size = 8.25;  // points
    bool bold = false;
    bool italic = false;
    bool operator==(const Font&) const = default;
};

struct DrawnPoint {
    double x = 0, y = 0;
    bool operator==(const DrawnPoint&) const = default;
};

/// How a line is drawn: width in the platform's draw widths (5 twips each), style 0 solid, 1 dash, 2 dot, 3 dash and
/// dot.
struct Pen {
    int width = 1;
    int style = 0;
    Colour colour = kBlack;
    bool operator==(const Pen&) const = default;
};

/// Text placed by the top of its line; turned counter-clockwise about that point by `angle` degrees.
struct TextItem {
    std::string text;
    double x = 0, y = 0;
    Font font;
    Colour colour = kBlack;
    int angle = 0;
    bool operator==(const TextItem&) const = default;
};

struct LineItem {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Pen pen;
    bool operator==(const LineItem&) const = default;
};

/// A run of joined lines of one pen.
struct PolylineItem {
    std::vector<DrawnPoint> points;
    Pen pen;
    bool operator==(const PolylineItem&) const = default;
};

/// The outline of a rectangle.
struct BoxItem {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Pen pen;
    bool operator==(const BoxItem&) const = default;
};

/// A rectangle filled with a colour, without an outline.
struct FillItem {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour;
    bool operator==(const FillItem&) const = default;
};

struct CircleItem {
    double x = 0, y = 0, radius = 0;
    bool filled = false;
    Colour fill = kWhite;  // where filled
    Pen pen;
    bool operator==(const CircleItem&) const = default;
};

/// One dot, as wide as its draw width.
struct PointItem {
    double x = 0, y = 0;
    int width = 1;
    Colour colour;
    bool operator==(const PointItem&) const = default;
};

struct DisplayList;

/// A picture file, or another surface's drawing, placed into a rectangle. A drawing is clipped to its own
/// size, stands on its white ground and is scaled from that size to the rectangle. Exactly one of the two is
/// set.
struct PictureItem {
    std::string name;
    double x = 0, y = 0, width = 0, height = 0;
    std::shared_ptr<const Picture> picture;
    std::shared_ptr<const DisplayList> drawing;
    bool operator==(const PictureItem& other) const;  // compares contents, not addresses
};

using DrawnItem = std::variant<TextItem, LineItem, PolylineItem, BoxItem, FillItem, CircleItem, PointItem, PictureItem>;

/// One surface's content: its size in twips and what was drawn on it.
/// label  of a page that is not numbered, "cover"; pages without one count from 1 behind it
/// parts  what the items are to a reader, an inner part in front of the one around it
struct DisplayList {
    double width = 0, height = 0;
    std::vector<DrawnItem> items;
    std::string label = {};
    std::vector<PagePart> parts = {};
    bool operator==(const DisplayList&) const = default;
};

/// The item moved by (dx, dy) after scaling by (sx, sy); text sizes and radii scale by sy.
DrawnItem Placed(const DrawnItem& item, double dx, double dy, double sx, double sy);

/// The list with every placed drawing followed by that drawing's own items, placed; a reader of the result
/// needs no recursion. The PictureItem itself stays in front of them, without its drawing.
std::vector<DrawnItem> Flattened(const DisplayList& list);

}  // namespace terravane
