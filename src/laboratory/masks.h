/// The masks that the sheets' cells and boxes are written with.
#pragma once

#include <string_view>

namespace terravane {

inline constexpr std::string_view kOneDecimal = "#0.0";
inline constexpr std::string_view kTwoDecimals = "#0.00";
inline constexpr std::string_view kThreeDecimals = "##0.0#0";  // the last place forces those before it
inline constexpr std::string_view kFourDecimals = "0.0000";
inline constexpr std::string_view kNoForcedZero = "#.00";
inline constexpr std::string_view kSevenDecimals = "##0.0#####0";

inline constexpr std::string_view kLongDate = "dd mmmm yyyy";
inline constexpr std::string_view kClock = "hh : mm : ss";
inline constexpr std::string_view kTimeOfDay = "hh:mm";

}  // namespace terravane
