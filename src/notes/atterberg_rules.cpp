// What an experienced eye looks for on a sheet of Atterberg limits.
#include <algorithm>
#include <array>
#include <cmath>

#include "laboratory/atterberg.h"
#include "notes/figures.h"
#include "notes/rule.h"
#include "numeric/power_fit.h"
#include "numeric/straight_line.h"

namespace terravane::notes {

namespace on_limits {

namespace {

using laboratory::kLiquidLimit;

std::vector<Reading> BlowsOf(const SheetReadings& read)
{
    auto blows = read.Line(kLiquidLimit, ll::Blows);
    std::erase_if(blows, [](const Reading& of) { return of.value <= 0; });
    return blows;
}

void BlowsOfTrial(const SheetReadings& read, Findings& found)
{
    for (const Reading& blows : BlowsOf(read))
        if (blows.value < found.Limit(0) || blows.value > found.Limit(1))
            found.Add(blows.at, {Whole(blows.trial), Whole(blows.value), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

struct Range {
    double from, to;
};
constexpr std::array kRanges{Range{25, 35}, Range{20, 30}, Range{15, 25}};

void RangesOfBlows(const SheetReadings& read, Findings& found)
{
    const auto blows = BlowsOf(read);
    if (blows.empty()) return;
    for (const Range& range : kRanges) {
        const bool has = std::ranges::any_of(
            blows, [&](const Reading& of) { return of.value >= range.from && of.value <= range.to; });
        if (!has) found.Add(SheetReadings::At(kLiquidLimit, ll::Blows, 1), {Whole(range.from), Whole(range.to)});
    }
}

void FewTrials(const SheetReadings& read, Findings& found)
{
    const auto trials = BlowsOf(read).size();
    if (trials > 0 && static_cast<double>(trials) < found.Limit())
        found.Add(SheetReadings::At(kLiquidLimit, ll::Blows, 1),
                  {Whole(static_cast<double>(trials)), Plain(found.Limit())});
}

void BlowsOnOneSide(const SheetReadings& read, Findings& found)
{
    const auto blows = BlowsOf(read);
    if (blows.size() < 2) return;
    const auto [fewest, most] = std::ranges::minmax(blows, {}, &Reading::value);
    if (fewest.value > found.Limit() || most.value < found.Limit())
        found.Add(SheetReadings::At(kLiquidLimit, ll::Blows, 1),
                  {Whole(fewest.value), Whole(most.value), Plain(found.Limit())});
}

/// Water contents, %, over the logarithms of blows.
struct FlowLine {
    std::vector<int> trials;
    std::vector<double> blows, water;

    bool IsLine() const { return blows.size() > 1 && std::ranges::max(blows) > std::ranges::min(blows); }
    StraightLine Fit() const { return FitStraightLine<double>(blows, water); }
};

FlowLine FlowLineOf(const SheetReadings& read)
{
    FlowLine line;
    for (const Reading& blows : BlowsOf(read)) {
        const auto water = read.Number(kLiquidLimit, ll::WaterContent, blows.trial);
        if (!water) continue;
        line.trials.push_back(blows.trial);
        line.blows.push_back(Log(blows.value));
        line.water.push_back(*water);
    }
    return line;
}

void FlowLineRises(const SheetReadings& read, Findings& found)
{
    const FlowLine line = FlowLineOf(read);
    if (line.IsLine() && line.Fit().slope >= 0) found.Add(SheetReadings::At(laboratory::kFlowIndexBox), {});
}

/// A flat line explains little of any scatter: what counts is that a trial lies away from it, too.
void FlowLineScatters(const SheetReadings& read, Findings& found)
{
    const FlowLine line = FlowLineOf(read);
    if (!line.IsLine() || line.blows.size() < 3) return;
    const StraightLine fit = line.Fit();
    const double explained = Determination(line.blows, line.water, std::array{fit.intercept, fit.slope});
    std::size_t farthest = 0;
    const auto away = [&](std::size_t i) { return std::abs(line.water[i] - fit.At(line.blows[i])); };
    for (std::size_t i = 1; i < line.blows.size(); ++i)
        if (away(i) > away(farthest)) farthest = i;
    if (explained < found.Limit(0) && away(farthest) > found.Limit(1))
        found.Add(SheetReadings::At(kLiquidLimit, ll::WaterContent, line.trials[farthest]),
                  {Hundredths(explained), Plain(found.Limit(0)), Whole(line.trials[farthest]),
                   Hundredths(away(farthest)), Plain(found.Limit(1))});
}

void AboveULine(const SheetReadings& read, Findings& found)
{
    const auto liquid = read.Number(laboratory::kLiquidLimitBox);
    const auto index = read.Number(laboratory::kPlasticityIndexBox);
    if (!liquid || !index) return;
    const double line = found.Limit(0) * (*liquid - found.Limit(1));
    if (*index > line && *index > 0)
        found.Add(SheetReadings::At(laboratory::kPlasticityIndexBox),
                  {Hundredths(*index), Hundredths(line), Hundredths(*liquid)});
}

void NotPlastic(const SheetReadings& read, Findings& found)
{
    const auto liquid = read.Number(laboratory::kLiquidLimitBox), plastic = read.Number(laboratory::kPlasticLimitBox);
    if (liquid && plastic && *plastic >= *liquid)
        found.Add(SheetReadings::At(laboratory::kPlasticLimitBox), {Hundredths(*plastic), Hundredths(*liquid)});
}

void PlasticLimitsSpread(const SheetReadings& read, Findings& found)
{
    const auto limits = read.Line(laboratory::kPlasticLimit, pl::WaterContent);
    if (limits.size() < 2) return;
    const auto [lowest, highest] = std::ranges::minmax(limits, {}, &Reading::value);
    if (highest.value - lowest.value > found.Limit())
        found.Add(highest.at, {Hundredths(lowest.value), Hundredths(highest.value),
                               Hundredths(highest.value - lowest.value), Plain(found.Limit())});
}

void OneThread(const SheetReadings& read, Findings& found)
{
    if (read.Line(laboratory::kPlasticLimit, pl::WaterContent).size() == 1)
        found.Add(SheetReadings::At(laboratory::kPlasticLimit, pl::WaterContent, 1), {});
}

using enum Level;

constexpr Rule kRules[]{
    {"atterberg.blows",
     Doubtful,
     "Blows of each trial",
     2,
     {15, 35},
     "blows",
     "ASTM D4318, AASHTO T 89: 15 to 35",
     "Trial {} closed at {} blows, outside of {} to {}.",
     "Repeat the trial with a little more or less water.",
     BlowsOfTrial},
    {"atterberg.blows-on-one-side",
     Doubtful,
     "Blows on both sides of 25",
     1,
     {25},
     "blows",
     "the liquid limit is read at 25 blows",
     "The trials closed at {} to {} blows, none on the other side of {}: the liquid limit lies outside the readings.",
     "Add a trial on the other side.",
     BlowsOnOneSide},
    {"atterberg.blow-ranges",
     Information,
     "One trial in each range of blows",
     0,
     {},
     "",
     "usual limit, AASHTO T 89, ASTM D4318",
     "No trial closed between {} and {} blows.",
     "Add a trial there.",
     RangesOfBlows},
    {"atterberg.few-trials",
     Information,
     "Trials of the liquid limit",
     1,
     {3},
     "trials",
     "ASTM D4318, multipoint method",
     "The liquid limit has {} trials, the multipoint method {}: the one-point method must be named on the report.",
     "Add trials, or name the method.",
     FewTrials},
    {"atterberg.flow-line-rises",
     Impossible,
     "Slope of the flow line",
     0,
     {},
     "",
     "wetter soil closes at fewer blows",
     "The water content does not fall with the blows: a can or a count is wrong.",
     "Look for swapped cans.",
     FlowLineRises},
    {"atterberg.flow-line-scatters",
     Doubtful,
     "Scatter about the flow line",
     2,
     {0.95, 0.5},
     "R-squared and points of water",
     "the flow line is straight",
     "The trials scatter about the flow line, R-squared {} (limit {}); trial {} lies farthest, {} points away (limit "
     "{}).",
     "Weigh the can of that trial again.",
     FlowLineScatters},
    {"atterberg.above-u-line",
     Doubtful,
     "The point against the U-line",
     2,
     {0.9, 8},
     "factor and point",
     "plasticity chart, PI = 0.9 (LL - 8)",
     "The plasticity index {} lies above the U-line, {} at a liquid limit of {} %: natural soils lie below.",
     "Recheck both limits.",
     AboveULine},
    {"atterberg.not-plastic",
     Doubtful,
     "Plastic against liquid limit",
     0,
     {},
     "",
     "usual limit, ASTM D4318",
     "The plastic limit {} % is not below the liquid limit {} %: the soil is reported as NP.",
     "Report NP.",
     NotPlastic},
    {"atterberg.threads-spread",
     Doubtful,
     "Spread of the threads",
     1,
     {2},
     "% water",
     "usual limit, AASHTO T 90",
     "The threads' water contents go from {} to {} %, {} points, more than {}.",
     "Roll a third thread.",
     PlasticLimitsSpread},
    {"atterberg.one-thread",
     Information,
     "Threads of the plastic limit",
     0,
     {},
     "",
     "usual limit, AASHTO T 90",
     "The plastic limit rests on one thread.",
     "Roll a second one.",
     OneThread},
};

}  // namespace

}  // namespace on_limits

std::span<const Rule> AtterbergRules()
{
    return on_limits::kRules;
}

}  // namespace terravane::notes
