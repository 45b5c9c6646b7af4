/// The powers of ten that a double holds exactly. Private to the runtime.
#pragma once

#include <array>
#include <cstddef>

namespace terravane {

inline constexpr int kExactPowers = 22;

/// 10^exponent for 0 to kExactPowers.
constexpr double PowerOfTen(int exponent) noexcept
{
    constexpr std::array<double, kExactPowers + 1> kPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                           1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                           1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    return kPowers[static_cast<std::size_t>(exponent)];
}

}  // namespace terravane
