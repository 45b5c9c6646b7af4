// What an experienced eye looks for on a field density sheet.
#include <algorithm>
#include <array>
#include <cmath>

#include "laboratory/all_tests.h"
#include "laboratory/field_density.h"
#include "notes/densities.h"
#include "notes/figures.h"
#include "notes/rule.h"

namespace terravane::notes {

namespace in_the_field {

namespace {

using namespace field;
using laboratory::kHoleSummary;
using laboratory::kHoleVolume;
using laboratory::kHoleWater;

/// What a hole and its water content need for the largest particle: opening of the sieve, mm; volume, cm³; mass, g.
struct Needs {
    double opening, volume, mass;
};
constexpr std::array kNeeds{Needs{4.75, 710, 100}, Needs{12.5, 1415, 250}, Needs{25, 2125, 500}, Needs{50, 2830, 1000}};

/// mm, of the largest sieve of the job that holds soil; nothing where no sieve test is saved.
std::optional<double> LargestParticle(const SheetReadings& read)
{
    std::optional<double> largest;
    for (int row = 1; row <= kMostSieves; ++row) {
        const auto opening = read.KeptNumber(Test::SieSoil, "so", row);
        const auto empty = read.KeptNumber(Test::SieSoil, "ms", row),
                   loaded = read.KeptNumber(Test::SieSoil, "mss", row);
        if (opening && empty && loaded && *loaded > *empty) largest = std::max(largest.value_or(0), *opening);
    }
    return largest;
}

/// Without a sieve test the least of all needs.
const Needs& NeedsOf(const SheetReadings& read)
{
    const double particle = LargestParticle(read).value_or(0);
    const auto found = std::ranges::find_if(kNeeds, [&](const Needs& of) { return particle <= of.opening; });
    return found == kNeeds.end() ? kNeeds.back() : *found;
}

void SmallHole(const SheetReadings& read, Findings& found)
{
    const Needs& needs = NeedsOf(read);
    for (const Reading& volume : read.Line(kHoleVolume, volume::Volume))
        if (volume.value < needs.volume)
            found.Add(volume.at, {Whole(volume.trial), Whole(volume.value), Whole(needs.volume), Plain(needs.opening)});
}

void SmallWaterSample(const SheetReadings& read, Findings& found)
{
    const Needs& needs = NeedsOf(read);
    for (const Reading& wet : read.Line(kHoleWater, water::WetAndCan)) {
        const auto can = read.Number(kHoleWater, water::Can, wet.trial);
        if (can && wet.value - *can < needs.mass)
            found.Add(wet.at, {Whole(wet.trial), Plain(RoundedToPlaces(wet.value - *can, 2)), Whole(needs.mass),
                               Plain(needs.opening)});
    }
}

/// Those that are farther from their mean than the limit, in % of it.
void Scatter(const SheetReadings& read, Findings& found, const laboratory::Grid& grid, int line)
{
    const auto readings = read.Line(grid, line);
    if (readings.size() < 2) return;
    double mean = 0;
    for (const Reading& of : readings) mean += of.value / static_cast<double>(readings.size());
    for (const Reading& of : readings) {
        const double away = RoundedToPlaces(std::abs(of.value - mean) / mean * 100, 6);
        if (mean > 0 && away > found.Limit())
            found.Add(of.at, {Whole(of.trial), Plain(of.value), Hundredths(away), Plain(found.Limit())});
    }
}

void ConeScatters(const SheetReadings& read, Findings& found)
{
    Scatter(read, found, laboratory::kSandInCone, cone::SandInCone);
}

void SandScatters(const SheetReadings& read, Findings& found)
{
    Scatter(read, found, laboratory::kSandDensity, sand::Density);
}

void PercentCompaction(const SheetReadings& read, Findings& found)
{
    for (const Reading& percent : read.Line(kHoleSummary, summary::Compaction))
        if (percent.value < found.Limit(0) || percent.value > found.Limit(1))
            found.Add(percent.at,
                      {Whole(percent.trial), Hundredths(percent.value), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

void AboveAirVoids(const SheetReadings& read, Findings& found)
{
    const auto gravity = read.KeptNumber(Test::SpcSoil, "gs");
    if (!gravity || *gravity <= 0) return;
    for (const Reading& dry : read.Line(kHoleSummary, summary::DryDensity)) {
        const auto water = read.Number(kHoleWater, water::WaterContent, dry.trial);
        if (!water || dry.value <= 0) continue;
        const bool isSolid = dry.value >= *gravity;
        const double saturation = isSolid ? 0 : Saturation(*water, dry.value, *gravity);
        if (isSolid || saturation > found.Limit())
            found.Add(dry.at, {Whole(dry.trial), isSolid ? "no voids at all" : Tenths(saturation) + " %",
                               Plain(*gravity), Plain(found.Limit())});
    }
}

/// The compaction test that the sheet compares with.
const laboratory::Description& Reference(const SheetReadings& read)
{
    return read.IsChosen("optMod") ? laboratory::kModifiedCompaction : laboratory::kStandardCompaction;
}

void WaterAgainstOptimum(const SheetReadings& read, Findings& found)
{
    const auto optimum = read.KeptNumber(Reference(read).test, laboratory::kOptimumMoisture.is.kept);
    if (!optimum) return;
    for (const Reading& water : read.Line(kHoleWater, water::WaterContent))
        if (RoundedToPlaces(std::abs(water.value - *optimum), 6) > found.Limit())
            found.Add(water.at, {Whole(water.trial), Hundredths(water.value), Plain(found.Limit()), Tenths(*optimum)});
}

void OtherMaximum(const SheetReadings& read, Findings& found)
{
    const laboratory::Description& reference = Reference(read);
    const auto now = read.KeptNumber(reference.test, laboratory::kMaximumDryDensity.is.kept);
    if (!now) return;
    for (const Reading& maximum : read.Line(kHoleSummary, summary::MaximumDensity))
        if (maximum.value != *now)
            found.Add(maximum.at,
                      {Whole(maximum.trial), Plain(maximum.value), std::string(reference.names.sentence), Plain(*now)});
}

using enum Level;

constexpr Rule kRules[]{
    {"field-density.small-hole",
     Doubtful,
     "The hole against the largest particle of the job's sieve test",
     0,
     {},
     "",
     "usual limit, ASTM D1556, AASHTO T 191",
     "Hole {} has {} cm^3; at least {} cm^3 are usual for soil up to {} mm.",
     "Dig a larger hole.",
     SmallHole},
    {"field-density.small-water-sample",
     Information,
     "The water content's sample against the largest particle",
     0,
     {},
     "",
     "usual limit, ASTM D1556, D2216",
     "Hole {} has a water content from {} g of soil; at least {} g are usual for soil up "
     "to {} mm.",
     "Dry more soil.",
     SmallWaterSample},
    {"field-density.cone-scatters",
     Doubtful,
     "Scatter of the sand in the cone",
     1,
     {1},
     "% of the mean",
     "usual limit, ASTM D1556",
     "Determination {} of the sand in the cone, {} g, lies {} % from the mean, more than {} %.",
     "Calibrate the cone again.",
     ConeScatters},
    {"field-density.sand-scatters",
     Doubtful,
     "Scatter of the sand's density",
     1,
     {1},
     "% of the mean",
     "usual limit, ASTM D1556",
     "Determination {} of the sand's density, {} g/cm^3, lies {} % from the mean, more than {} %.",
     "Calibrate the sand again.",
     SandScatters},
    {"field-density.percent-compaction",
     Doubtful,
     "Percent compaction",
     2,
     {85, 105},
     "%",
     "practice of road works",
     "Hole {} is compacted to {} %, outside of {} to {} %: the reference curve may be of another soil.",
     "Compare the soil with that of the compaction test.",
     PercentCompaction},
    {"field-density.above-zero-air-voids",
     Impossible,
     "Each hole against the line without air voids",
     1,
     {100},
     "% saturation",
     "phase relations, with the job's own specific gravity",
     "Hole {} lies above the zero-air-voids line (saturation {}, Gs {}, limit {} %): volume, mass or gravity is wrong.",
     "Look at the sand's masses, then at the can.",
     AboveAirVoids},
    {"field-density.water",
     Information,
     "Water content against the optimum",
     1,
     {2},
     "points",
     "usual limit of road agencies",
     "Hole {} has {} % of water, more than {} points away from the optimum {} %.",
     "Note dry or wet of optimum.",
     WaterAgainstOptimum},
    {"field-density.other-maximum",
     Doubtful,
     "The maximum density against the compaction test of now",
     0,
     {},
     "",
     "a copy of another test's result",
     "Hole {} is compared with {} g/cm^3; {} gives {} now.",
     "Press the compaction test's option again, and Calculate.",
     OtherMaximum},
};

}  // namespace

}  // namespace in_the_field

std::span<const Rule> FieldDensityRules()
{
    return in_the_field::kRules;
}

}  // namespace terravane::notes
