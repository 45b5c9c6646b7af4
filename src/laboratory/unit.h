/// What readings and results are measured in.
#pragma once

#include <string_view>

namespace terravane::laboratory {

/// What kind of thing a figure counts or measures. Text is no figure: a name, a date, a class of soil.
enum class Quantity { Text, Count, Ratio, Mass, Length, Volume, Density, Temperature, Time, Force, Stress, Stiffness };

/// symbol  as the sheets and reports write it; empty where a figure has none
struct Unit {
    Quantity quantity = Quantity::Text;
    std::string_view symbol = {};
};

inline constexpr Unit kText{};
inline constexpr Unit kDate{Quantity::Time, ""};
inline constexpr Unit kCount{Quantity::Count, ""};
inline constexpr Unit kRatio{Quantity::Ratio, ""};
inline constexpr Unit kPercent{Quantity::Ratio, "%"};
inline constexpr Unit kGram{Quantity::Mass, "g"};
inline constexpr Unit kKilogram{Quantity::Mass, "kg"};
inline constexpr Unit kMillimetre{Quantity::Length, "mm"};
inline constexpr Unit kCentimetre{Quantity::Length, "cm"};
inline constexpr Unit kInch{Quantity::Length, "in"};
inline constexpr Unit kCubicCentimetre{Quantity::Volume, "cm^3"};
inline constexpr Unit kGramPerCubicCentimetre{Quantity::Density, "g/cm^3"};
inline constexpr Unit kCelsius{Quantity::Temperature, "celsius"};
inline constexpr Unit kHour{Quantity::Time, "hr"};
inline constexpr Unit kPound{Quantity::Force, "lb"};
inline constexpr Unit kPoundPerSquareInch{Quantity::Stress, "lb/in^2"};
inline constexpr Unit kPoundPerDivision{Quantity::Stiffness, "lb/div"};
inline constexpr Unit kDivision{Quantity::Count, "div"};

}  // namespace terravane::laboratory
