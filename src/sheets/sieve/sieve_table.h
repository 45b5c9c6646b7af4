/// The sieves that a stack is made of, coarse to fine, the pan last. The openings are those that the sheet is used
/// with; some differ from today's standard, and the texts differ in their number of decimals.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace terravane {

inline constexpr std::string_view kPan = "Pan";

/// name       as the sheet compares it, without blanks at its ends
/// listed     as it stands in the list
/// opening    the text of the grid's cell
/// millimetre the place on the grain-size axis; 0: none
struct Sieve {
    std::string_view name;
    std::string_view listed;
    std::string_view opening;
    double millimetre;
};

inline constexpr std::array kSieves{
    Sieve{"2 in", "2 in", "50.0", 50},       Sieve{"1 1/2 in", "1 1/2 in", "38.1", 38.1},
    Sieve{"1 in", "1 in", "25.0", 25},       Sieve{"3/4 in", "3/4 in", "19.0", 19},
    Sieve{"1/2 in", "1/2 in", "12.5", 12.5}, Sieve{"3/8 in", "3/8 in", "9.51", 9.51},
    Sieve{"#4", "#4      ", "4.75", 4.75},   Sieve{"#8", "#8      ", "2.60", 2.6},
    Sieve{"#10", "#10    ", "2.00", 2},      Sieve{"#16", "#16    ", "1.19", 1.19},
    Sieve{"#20", "#20    ", "0.85", 0.85},   Sieve{"#30", "#30    ", "0.59", 0.59},
    Sieve{"#40", "#40    ", "0.425", 0.425}, Sieve{"#50", "#50    ", "0.30", 0.3},
    Sieve{"#60", "#60    ", "0.250", 0.25},  Sieve{"#80", "#80    ", "0.180", 0.18},
    Sieve{"#100", "#100  ", "0.150", 0.15},  Sieve{"#140", "#140  ", "0.106", 0.106},
    Sieve{"#200", "#200  ", "0.075", 0.075}, Sieve{kPan, "Pan    ", "  ", 0},
};

/// The sieve of that name; none: nullptr.
constexpr const Sieve* FindSieve(std::string_view name)
{
    const auto found = std::ranges::find(kSieves, name, &Sieve::name);
    return found == kSieves.end() ? nullptr : &*found;
}

}  // namespace terravane
