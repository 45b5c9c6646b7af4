#include "sheets/sieve/aashto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr double kGranularUpTo = 35;  // percent fines
constexpr double kFinerAbove = 36;    // percent fines; in between is no group
constexpr double kFragmentsUpTo = 6;  // plasticity index of A-1

/// One test of a value.
struct Bound {
    enum Kind { AtMost, AtLeast, Above } kind;
    double limit;

    constexpr bool Holds(double value) const
    {
        if (kind == AtMost) return value <= limit;
        return kind == AtLeast ? value >= limit : value > limit;
    }
};
using enum Bound::Kind;

struct GroupRow {
    std::string_view group;
    Bound plasticityIndex, liquidLimit;
};

constexpr std::array kSiltyOrClayeyGravels{
    GroupRow{"A-2-4", {AtMost, 10}, {AtMost, 40}},
    GroupRow{"A-2-5", {AtMost, 10}, {AtLeast, 41}},
    GroupRow{"A-2-6", {AtLeast, 11}, {AtMost, 40}},
    GroupRow{"A-2-7", {AtLeast, 11}, {AtLeast, 41}},
};

constexpr std::string_view kFatClay = "A-7";  // split in two
constexpr std::array kSiltsAndClays{
    GroupRow{"A-4", {AtMost, 10}, {AtMost, 40}},
    GroupRow{"A-5", {AtMost, 10}, {Above, 41}},
    GroupRow{"A-6", {AtLeast, 11}, {AtMost, 40}},
    GroupRow{kFatClay, {AtLeast, 11}, {AtLeast, 41}},
};

/// Of several rows that hold the last.
constexpr std::string_view LastMatching(std::span<const GroupRow> rows, const Limits& limits)
{
    std::string_view group;
    for (const GroupRow& row : rows) {
        if (row.plasticityIndex.Holds(limits.PlasticityIndex()) && row.liquidLimit.Holds(limits.liquid))
            group = row.group;
    }
    return group;
}
static_assert(LastMatching(kSiltsAndClays, {51, 40}) == kFatClay);
static_assert(LastMatching(kSiltsAndClays, {40.5, 35.5}).empty());
static_assert(LastMatching(kSiltsAndClays, {41, 36}).empty());
static_assert(LastMatching(kSiltyOrClayeyGravels, {41, 36}) == "A-2-5");

/// Where the sample passes both tests of A-1, the nearer bounds decide.
std::string_view FragmentsGroup(const AashtoSample& of)
{
    if (of.limits.PlasticityIndex() > kFragmentsUpTo) return {};
    const bool isA = of.passing10 <= 50 && of.passing40 <= 30 && of.passing200 <= 15;
    const bool isB = of.passing40 <= 50 && of.passing200 <= 25;
    if (!isB) return isA ? "A-1-a" : std::string_view();
    const bool nearerToA = std::abs(of.passing40 - 50) > std::abs(of.passing40 - 30) &&
                           std::abs(of.passing200 - 25) > std::abs(of.passing200 - 15);
    return isA && nearerToA ? "A-1-a" : "A-1-b";
}

bool IsFineSand(const AashtoSample& of)
{
    return of.limits.PlasticityIndex() == 0 && of.passing40 >= 51 && of.passing200 <= 10;
}

std::string_view GranularGroup(const AashtoSample& of)
{
    if (const auto fragments = FragmentsGroup(of); !fragments.empty()) return fragments;
    return IsFineSand(of) ? "A-3" : LastMatching(kSiltyOrClayeyGravels, of.limits);
}

std::string_view FinerGroup(const AashtoSample& of)
{
    if (of.passing200 <= kFinerAbove) return {};
    const std::string_view group = LastMatching(kSiltsAndClays, of.limits);
    if (group != kFatClay) return group;
    return of.limits.liquid - 30 >= of.limits.PlasticityIndex() ? "A-7-5" : "A-7-6";
}

/// The first row that holds the group gives its name.
struct TypicalRow {
    std::array<std::string_view, 3> groups;
    std::string_view name;
};
constexpr std::array kTypicalNames{
    TypicalRow{{"A-1-a"}, "Stone or gravel fragments"},      TypicalRow{{"A-1-b"}, "Gravel and sand mixtures"},
    TypicalRow{{"A-3"}, "Fine sand that is non-plastic"},    TypicalRow{{"A-2-4", "A-2-5"}, "Silty gravel and sand"},
    TypicalRow{{"A-2-5", "A-2-6"}, "Cayey gravel and sand"}, TypicalRow{{"A-4", "A-5"}, "Silty soils"},
    TypicalRow{{"A-6", "A-7-5", "A-7-6"}, "Clayey soils"},
};

}  // namespace

std::string_view AashtoGroup(const AashtoSample& sample)
{
    return sample.passing200 <= kGranularUpTo ? GranularGroup(sample) : FinerGroup(sample);
}

double GroupIndex(std::string_view group, const AashtoSample& sample)
{
    const double index = sample.limits.PlasticityIndex();
    const double a = ToInteger(sample.passing200 - 35), b = ToInteger(sample.passing200 - 15);
    const double c = ToInteger(sample.limits.liquid - 40), d = ToInteger(index - 10);
    const bool isClayeyGravel = group == "A-2-6" || group == "A-2-7";
    const double whole = std::trunc(isClayeyGravel ? 0.01 * b * d : 0.005 * a * c + 0.2 * a + 0.01 * b * d);
    return whole > 0 && index != 0 ? whole : 0;
}

std::string_view TypicalName(std::string_view group)
{
    const auto holds = [&](const TypicalRow& row) { return std::ranges::find(row.groups, group) != row.groups.end(); };
    const auto row = std::ranges::find_if(kTypicalNames, holds);
    return group.empty() || row == kTypicalNames.end() ? std::string_view() : row->name;
}

}  // namespace terravane
