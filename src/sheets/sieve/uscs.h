/// The Unified Soil Classification System as the sheet has it: group symbol and group name of a sample, each from a
/// table. Knows no control. Percentages are by mass.
#pragma once

#include <string>
#include <string_view>

#include "sheets/sieve/limits.h"

namespace terravane {

enum class SoilKind { Sand, Gravel, Fine };

/// passing4, passing200  percent passing the sieves No. 4 and No. 200
/// d60, d30, d10         diameters in mm; 0: not read
struct UscsSample {
    double passing4 = 0;
    double passing200 = 0;
    Limits limits{};
    double d60 = 0, d30 = 0, d10 = 0;

    constexpr double Gravel() const { return 100 - passing4; }
    constexpr double Sand() const { return passing4 - passing200; }
};

/// Half fines or more is fine; else sand where at least half of what is coarse passes No. 4.
SoilKind KindOf(const UscsSample& sample);

/// "SW", "SP", "GW" or "GP" by the coefficients of uniformity and curvature. Error 11 or 6 where d10 was not read.
std::string_view GradeSymbol(SoilKind kind, const UscsSample& sample);

/// "SC", "SC-SM", "SM", "GC", "GC-GM", "GM", "C", "CM" or "M".
std::string_view FinesSymbol(SoilKind kind, const UscsSample& sample);

/// The group symbol, "SP-SC". Error 11 or 6 for a coarse sample of at most 12 percent fines whose d10 was not read.
std::string UscsSymbol(const UscsSample& sample);

/// The group name that belongs to the sample's symbol, "Poorly-graded sand with silty clay"; empty for no symbol of
/// the system.
std::string UscsName(std::string_view symbol, const UscsSample& sample);

}  // namespace terravane
