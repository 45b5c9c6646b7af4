/// Texts placed on a page. Lengths are twips.
#pragma once

#include <string_view>

#include "drawing/drawing_surface.h"

namespace terravane {

inline constexpr std::string_view kReportFont = "DilleniaUPC";

/// Height of a line in the font in force.
double LineHeight(const DrawingSurface& page);

/// A text on the present line, from x on; the line goes on.
void PrintFrom(DrawingSurface& page, double x, std::string_view text);

/// The same with the line's top at y.
void PrintFrom(DrawingSurface& page, double x, double y, std::string_view text);

/// The first, ending the line.
void PrintLineFrom(DrawingSurface& page, double x, std::string_view text);

/// A text on the present line, centred between x and x + width; the line goes on. A text wider than that
/// stands out on both sides.
void PrintCentred(DrawingSurface& page, double x, double width, std::string_view text);

}  // namespace terravane
