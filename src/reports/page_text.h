/// The measures that all report pages share, and texts placed on a page. Lengths are twips.
#pragma once

#include <string_view>

#include "drawing/drawing_surface.h"

namespace terravane {

inline constexpr std::string_view kReportFont = "DilleniaUPC";
inline constexpr double kBodySize = 13;  // points
inline constexpr double kLeft = 500;     // left edge of a page's content
inline constexpr double kRightMargin = 500;
inline constexpr double kBodyTop = 3800;  // where most reports' bodies begin

/// The right edge of a page's content.
double RightEdge(const DrawingSurface& page);

/// Height of a line in the font in force.
double LineHeight(const DrawingSurface& page);

/// Rows of a page: y(n) lies n lines below the top. The line is measured once, in the size then in force.
class PageLines {
  public:
    PageLines(const DrawingSurface& page, double top) : top_(top), height_(LineHeight(page)) {}

    double operator()(double lines) const { return top_ + height_ * lines; }

  private:
    double top_, height_;
};

/// A text on the present line, from x on; the line goes on.
void PrintFrom(DrawingSurface& page, double x, std::string_view text);

/// The same, ending the line.
void PrintLineFrom(DrawingSurface& page, double x, std::string_view text);

/// A text on the present line, centred between x and x + width; the line goes on. A text wider than that
/// stands out on both sides.
void PrintCentred(DrawingSurface& page, double x, double width, std::string_view text);

/// A caption at (kLeft, y), bold, ending the line; bold stays on.
void PrintCaption(DrawingSurface& page, double y, std::string_view text);

}  // namespace terravane
