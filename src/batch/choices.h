/// What a technician chooses on a sheet and no project file keeps.
#pragma once

#include <array>
#include <string_view>

namespace terravane {

/// The defaults are the sheets' own. Options and combo entries stand by the names that the sheets give them.
struct Choices {
    std::string_view curve = "optInt";        // compaction: optInt the spline, optFit the polynomial
    bool isSmooth = false;                    // sieve: the spline instead of the polygon
    std::array<bool, 3> corrects{};           // bearing ratio: the origin of the molds' curves
    std::string_view calibration = "optAut";  // specific gravity: optAut, optExp, optLin, optPol
    std::string_view proctor = {};            // bearing ratio: optStd, optMod; the sheet chooses none: then the
                                              // likeliest that has a maximum density
    std::string_view share = "95%";           // bearing ratio: of the maximum density
};

}  // namespace terravane
