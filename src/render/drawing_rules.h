/// What the painter of the screen and the writer of PDF pages must draw alike.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "drawing/display_list.h"

namespace terravane {

inline constexpr double kTwipsPerDrawWidth = 5;

/// Ink and gap in turn, in twips; a line of style 0 has neither.
using Dash = std::span<const double>;

inline constexpr std::array kDash{120.0, 60.0};
inline constexpr std::array kDot{30.0, 40.0};
inline constexpr std::array kDashDot{140.0, 50.0, 30.0, 50.0};
inline constexpr std::array kDashes{Dash{}, Dash{kDash}, Dash{kDot}, Dash{kDashDot}};

inline Dash DashOf(const Pen& pen)
{
    return kDashes[static_cast<std::size_t>(std::clamp(pen.style, 0, static_cast<int>(kDashes.size()) - 1))];
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
