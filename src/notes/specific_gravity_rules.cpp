// What an experienced eye looks for on a sheet of specific gravity.
#include <algorithm>
#include <cmath>

#include "laboratory/specific_gravity.h"
#include "notes/figures.h"
#include "notes/rule.h"

namespace terravane::notes {

namespace on_gravity {

namespace {

using laboratory::kCalibration;
using laboratory::kGravityTrialGrid;

std::optional<Reading> AverageOf(const SheetReadings& read)
{
    const auto average = read.Line(kGravityTrialGrid, gravity::Average);
    if (average.empty() || average.front().value <= 0) return {};
    return average.front();
}

void Unusual(const SheetReadings& read, Findings& found)
{
    const auto average = AverageOf(read);
    if (average && (average->value < found.Limit(0) || average->value > found.Limit(1)))
        found.Add(average->at, {Hundredths(average->value), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

void Spread(const SheetReadings& read, Findings& found)
{
    const auto trials = read.Line(kGravityTrialGrid, gravity::Gravity);
    if (trials.size() < 2) return;
    const auto [lowest, highest] = std::ranges::minmax(trials, {}, &Reading::value);
    const double spread = RoundedToPlaces(highest.value - lowest.value, 6);
    if (spread > found.Limit())
        found.Add(highest.at,
                  {Hundredths(lowest.value), Hundredths(highest.value), Hundredths(spread), Plain(found.Limit())});
}

/// Readings of the flask, as temperature, celsius, and mass, g.
struct FlaskReading {
    int trial;
    double temperature, mass;
};

std::vector<FlaskReading> CalibrationOf(const SheetReadings& read)
{
    std::vector<FlaskReading> readings;
    for (const Reading& temperature : read.Line(kCalibration, calibration::Temperature)) {
        const auto mass = read.Number(kCalibration, calibration::FlaskAndWater, temperature.trial);
        if (mass) readings.push_back({temperature.trial, temperature.value, *mass});
    }
    std::ranges::sort(readings, {}, &FlaskReading::temperature);
    return readings;
}

void OutsideCalibration(const SheetReadings& read, Findings& found)
{
    const auto flask = CalibrationOf(read);
    if (flask.empty()) return;
    for (const Reading& of : read.Line(kGravityTrialGrid, gravity::Temperature))
        if (of.value < flask.front().temperature || of.value > flask.back().temperature)
            found.Add(of.at, {Whole(of.trial), Plain(of.value), Plain(flask.front().temperature),
                              Plain(flask.back().temperature)});
}

/// The method's table of water densities has two entries that its neighbours contradict.
void OddTableEntry(const SheetReadings& read, Findings& found)
{
    for (const Reading& of : read.Line(kGravityTrialGrid, gravity::Temperature)) {
        const double whole = std::floor(of.value);
        if (whole == 36 || whole == 46) found.Add(of.at, {Whole(of.trial), Whole(whole)});
    }
}

void CalibrationScatters(const SheetReadings& read, Findings& found)
{
    const auto explained = read.Number(laboratory::kCalibrationRSquared);
    if (explained && *explained < found.Limit())
        found.Add(SheetReadings::At(laboratory::kCalibrationRSquared), {Plain(*explained), Plain(found.Limit())});
}

void CalibrationRises(const SheetReadings& read, Findings& found)
{
    const auto flask = CalibrationOf(read);
    for (std::size_t i = 1; i < flask.size(); ++i) {
        if (flask[i].temperature == flask[i - 1].temperature || flask[i].mass <= flask[i - 1].mass) continue;
        found.Add(SheetReadings::At(kCalibration, calibration::FlaskAndWater, flask[i].trial),
                  {Plain(flask[i - 1].mass), Plain(flask[i].mass), Plain(flask[i - 1].temperature),
                   Plain(flask[i].temperature)});
    }
}

using enum Level;

constexpr Rule kRules[]{
    {"specific-gravity.unusual",
     Doubtful,
     "The average against soils",
     2,
     {2.6, 2.8},
     "",
     "teaching text on specific gravity: soils 2.60 to 2.80",
     "The average specific gravity {} lies outside of {} to {}.",
     "Repeat the test; look for air in the flask.",
     Unusual},
    {"specific-gravity.impossible",
     Impossible,
     "The average against minerals",
     2,
     {2.2, 3.5},
     "",
     "teaching text on specific gravity",
     "No soil has a specific gravity of {}; {} to {} is possible.",
     "Look for swapped masses.",
     Unusual},
    {"specific-gravity.spread",
     Doubtful,
     "Spread of the trials",
     1,
     {0.03},
     "",
     "usual limit, ASTM D854, AASHTO T 100",
     "The trials go from {} to {}, {} apart, more than {}.",
     "Repeat; leave no trial out without a word.",
     Spread},
    {"specific-gravity.outside-calibration",
     Doubtful,
     "Temperatures against the flask's calibration",
     0,
     {},
     "",
     "a curve holds between its readings",
     "Trial {} was weighed at {} degrees, the flask was calibrated from {} to {}: the mass of flask and water comes "
     "from no "
     "reading.",
     "Bring the flask to a temperature within.",
     OutsideCalibration},
    {"specific-gravity.odd-table-entry",
     Doubtful,
     "Temperatures of the two odd entries of the table",
     0,
     {},
     "",
     "the method's table of water densities against its neighbours",
     "Trial {} was weighed at {} degrees, where the method's table of water densities is odd.",
     "Weigh at another temperature.",
     OddTableEntry},
    {"specific-gravity.calibration-scatters",
     Doubtful,
     "Fit of the calibration",
     1,
     {0.99},
     "R-squared",
     "water expands smoothly",
     "The calibration's R-squared is {}, below {}.",
     "Weigh the flask again.",
     CalibrationScatters},
    {"specific-gravity.calibration-rises",
     Doubtful,
     "Mass of the full flask over the temperature",
     0,
     {},
     "",
     "warm water is lighter",
     "The full flask rises from {} to {} g while the water warms from {} to {} degrees.",
     "Look for swapped readings.",
     CalibrationRises},
};

}  // namespace

}  // namespace on_gravity

std::span<const Rule> SpecificGravityRules()
{
    return on_gravity::kRules;
}

}  // namespace terravane::notes
