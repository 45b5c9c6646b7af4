/// What the painter of the screen and the writer of PDF pages must draw alike.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "drawing/display_list.h"

namespace terravane {

inline constexpr double kTwipsPerDrawWidth = 5;

/// Ink and gap in twips; a line of style 0 has neither.
struct Dash {
    double ink, gap;
};
inline constexpr std::array kDashes{Dash{0, 0}, Dash{120, 60}, Dash{30, 40}};

inline const Dash& DashOf(const Pen& pen)
{
    return kDashes[static_cast<std::size_t>(std::clamp(pen.style, 0, 2))];
}

/// What stands in the place of a picture that can't be decoded: a crossed grey box.
inline std::array<DrawnItem, 3> MissingPicture(const PictureItem& item)
{
    const Pen pen{1, 0, kGridGrey};
    const double right = item.x + item.width;
    const double bottom = item.y + item.height;
    return {BoxItem{item.x, item.y, right, bottom, pen}, LineItem{item.x, item.y, right, bottom, pen},
            LineItem{item.x, bottom, right, item.y, pen}};
}

}  // namespace terravane
