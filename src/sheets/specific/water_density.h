/// The density of water by temperature, as the sheet's correction factor takes it.
#pragma once

#include <string_view>

namespace terravane {

/// Density of water at 20 °C, g/cm³. The table's own entry there has four decimals only.
inline constexpr double kWaterDensityAt20 = 0.9982343;

/// g/cm³ at a temperature written in °C: the first character is the tens digit, what follows the units, cut to a whole
/// number where it is longer than one character. "25.5" is 25 °C; a lone "9" is 90 °C. Two entries are not the physical
/// ones: 36 °C has that of 46 °C, and that of 46 °C is 0.
/// Error 9 for units above 9 or below 0.
float WaterDensity(std::string_view temperature);

}  // namespace terravane
