// What an experienced eye looks for on a bearing ratio sheet.
#include <algorithm>
#include <array>
#include <cmath>

#include "laboratory/bearing_ratio.h"
#include "notes/figures.h"
#include "notes/rule.h"

namespace terravane::notes {

namespace on_bearing {

namespace {

using namespace cbr;
using laboratory::kBearingDensity;
using laboratory::kBearingRatios;
using laboratory::kBearingWater;
using laboratory::kPenetrations;
using laboratory::kSwelling;

std::string MoldName(int mold)
{
    return std::string(kMoldNames[static_cast<std::size_t>(mold - 1)]);
}

void SecondRatioHigher(const SheetReadings& read, Findings& found)
{
    for (const Reading& second : read.Line(kBearingRatios, result::At02)) {
        const auto first = read.Number(kBearingRatios, result::At01, second.trial);
        if (first && second.value > *first)
            found.Add(second.at, {MoldName(second.trial), Tenths(second.value), Tenths(*first)});
    }
}

/// A piece of a mold's curve between two readings: its middle, and its slope in lb/in² an inch.
struct Piece {
    double penetration, stress, slope;
};

/// From the origin on. Readings that do not go on are left out.
std::vector<Piece> PiecesOf(const SheetReadings& read, int mold)
{
    std::vector<Piece> pieces;
    double lastDepth = 0, lastStress = 0;
    for (const Reading& stress : read.Line(kPenetrations, penetration::Stress(mold))) {
        const auto depth = read.Number(kPenetrations, penetration::Depth, stress.trial);
        if (!depth || *depth <= lastDepth) continue;
        pieces.push_back({(lastDepth + *depth) / 2, (lastStress + stress.value) / 2,
                          (stress.value - lastStress) / (*depth - lastDepth)});
        lastDepth = *depth;
        lastStress = stress.value;
    }
    return pieces;
}

struct Tick {
    std::string_view box;
    int mold;
};
constexpr std::array kCorrections{Tick{"chkMold1", 1}, Tick{"chkMold2", 2}, Tick{"chkMold3", 3}};

void ConcaveBeginning(const SheetReadings& read, Findings& found)
{
    for (const Tick& correction : kCorrections) {
        const auto pieces = PiecesOf(read, correction.mold);
        if (pieces.size() < 3 || read.IsTicked(correction.box)) continue;
        const Piece& steepest = *std::ranges::max_element(pieces, {}, &Piece::slope);
        const bool isEarly = steepest.penetration < pieces.back().penetration / 2;
        const double share = steepest.slope > 0 ? pieces.front().slope / steepest.slope * 100 : 100;
        if (isEarly && share < found.Limit())
            found.Add({correction.box}, {MoldName(correction.mold), Whole(share), Plain(found.Limit())});
    }
}

void FarShift(const SheetReadings& read, Findings& found)
{
    for (const Tick& correction : kCorrections) {
        const auto pieces = PiecesOf(read, correction.mold);
        if (pieces.empty() || !read.IsTicked(correction.box)) continue;
        const Piece& steepest = *std::ranges::max_element(pieces, {}, &Piece::slope);
        if (steepest.slope <= 0) continue;
        const double origin = RoundedToPlaces(steepest.penetration - steepest.stress / steepest.slope, 6);
        if (origin > found.Limit())
            found.Add({correction.box}, {MoldName(correction.mold), Hundredths(origin), Plain(found.Limit())});
    }
}

/// A mold that has both a density, g/cm³, and a ratio, %.
struct Mold {
    int number;
    double density, ratio;
};

std::vector<Mold> MoldsByDensity(const SheetReadings& read)
{
    std::vector<Mold> molds;
    for (const Reading& ratio : read.Line(kBearingRatios, result::At01))
        if (const auto density = read.Number(kBearingRatios, result::DryDensity, ratio.trial))
            molds.push_back({ratio.trial, *density, ratio.value});
    std::ranges::sort(molds, {}, &Mold::density);
    return molds;
}

/// Molds of one condition alone can be compared.
bool IsOneCondition(const SheetReadings& read)
{
    return !read.IsChosen("optBoth");
}

void RatioFallsWithDensity(const SheetReadings& read, Findings& found)
{
    const auto molds = MoldsByDensity(read);
    if (!IsOneCondition(read)) return;
    for (std::size_t i = 1; i < molds.size(); ++i) {
        const Mold &loose = molds[i - 1], &dense = molds[i];
        if (dense.density > loose.density && dense.ratio < loose.ratio)
            found.Add(SheetReadings::At(kBearingRatios, result::At01, dense.number),
                      {MoldName(dense.number), Hundredths(dense.density), Tenths(dense.ratio), MoldName(loose.number),
                       Hundredths(loose.density), Tenths(loose.ratio)});
    }
}

void DensityFallsWithBlows(const SheetReadings& read, Findings& found)
{
    auto blows = read.Line(kBearingDensity, density::Blows);
    std::erase_if(blows, [](const Reading& of) { return of.trial > kMolds; });
    std::ranges::stable_sort(blows, {}, &Reading::value);
    for (std::size_t i = 1; i < blows.size(); ++i) {
        const auto less = read.Number(kBearingDensity, density::DryDensity, blows[i - 1].trial);
        const auto more = read.Number(kBearingDensity, density::DryDensity, blows[i].trial);
        if (less && more && blows[i].value > blows[i - 1].value && *more < *less)
            found.Add(SheetReadings::At(kBearingDensity, density::DryDensity, blows[i].trial),
                      {Whole(blows[i].value), Hundredths(*more), Whole(blows[i - 1].value), Hundredths(*less)});
    }
}

bool IsSoaked(const SheetReadings& read)
{
    return !read.IsChosen("optUnsoak");
}

void Shrinks(const SheetReadings& read, Findings& found)
{
    if (!IsSoaked(read)) return;
    for (int mold = 1; mold <= kMolds; ++mold)
        for (const Reading& swelling : read.Line(kSwelling, swell::Dial(mold) + 1))
            if (swelling.value < 0) found.Add(swelling.at, {MoldName(mold), Hundredths(-swelling.value)});
}

void SwellsMuch(const SheetReadings& read, Findings& found)
{
    if (!IsSoaked(read)) return;
    for (int mold = 1; mold <= kMolds; ++mold) {
        const auto swelling = read.Line(kSwelling, swell::Dial(mold) + 1);
        if (!swelling.empty() && swelling.back().value > found.Limit())
            found.Add(swelling.back().at, {MoldName(mold), Hundredths(swelling.back().value), Plain(found.Limit())});
    }
}

void SoakingTime(const SheetReadings& read, Findings& found)
{
    if (!IsSoaked(read)) return;
    const auto hours = read.Line(kSwelling, swell::Elapsed);
    if (hours.size() < 2 || std::abs(hours.back().value - found.Limit(0)) <= found.Limit(1)) return;
    found.Add(hours.back().at, {Plain(hours.back().value), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

void AskedOutsideMolds(const SheetReadings& read, Findings& found)
{
    const auto share = read.Number(laboratory::kShareOfMaximum), most = read.Number(laboratory::kBearingMaximum);
    const auto molds = MoldsByDensity(read);
    if (!share || !most || molds.size() < 2 || !read.Number(laboratory::kBearingRatioBox)) return;
    const double asked = *share / 100 * *most;
    const double lowest = molds.front().density, highest = molds.back().density;
    if (asked < lowest || asked > highest)
        found.Add(SheetReadings::At(laboratory::kShareOfMaximum),
                  {Plain(*share), Hundredths(asked), Hundredths(lowest), Hundredths(highest)});
}

void MoldingWater(const SheetReadings& read, Findings& found)
{
    const auto optimum = read.Number(laboratory::kBearingMoisture);
    if (!optimum) return;
    for (const Reading& water : read.Line(kBearingWater, water::WaterContent))
        if (water.trial <= kMolds && RoundedToPlaces(std::abs(water.value - *optimum), 6) > found.Limit())
            found.Add(water.at,
                      {MoldName(water.trial), Hundredths(water.value), Tenths(*optimum), Plain(found.Limit())});
}

void CansOfOneWater(const SheetReadings& read, Findings& found)
{
    auto waters = read.Line(kBearingWater, water::WaterContent);
    std::erase_if(waters, [](const Reading& of) { return of.trial > kMolds; });
    if (waters.size() < 2) return;
    const auto [driest, wettest] = std::ranges::minmax(waters, {}, &Reading::value);
    const double spread = RoundedToPlaces(wettest.value - driest.value, 6);
    const double mean = (wettest.value + driest.value) / 2;
    if (spread > std::max(found.Limit(0), found.Limit(1) / 100 * mean))
        found.Add(wettest.at,
                  {Hundredths(driest.value), Hundredths(wettest.value), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

constexpr std::array kPenetrationsOfMethod{0.025, 0.05, 0.075, 0.1, 0.125, 0.15, 0.175, 0.2, 0.3, 0.4, 0.5};

/// How far a mold's curve goes, in; nothing of one without readings.
std::optional<double> EndOfCurve(const SheetReadings& read, int mold)
{
    const auto stresses = read.Line(kPenetrations, penetration::Stress(mold));
    if (stresses.empty()) return {};
    return read.Number(kPenetrations, penetration::Depth, stresses.back().trial);
}

void MissingPenetrations(const SheetReadings& read, Findings& found)
{
    const auto depths = read.Line(kPenetrations, penetration::Depth);
    if (!EndOfCurve(read, 1)) return;
    std::string missing;
    for (const double depth : kPenetrationsOfMethod) {
        const bool has = std::ranges::any_of(
            depths, [&](const Reading& of) { return RoundedToPlaces(std::abs(of.value - depth), 6) <= found.Limit(); });
        if (!has) missing.append(missing.empty() ? "" : ", ").append(Plain(depth));
    }
    if (!missing.empty()) found.Add(SheetReadings::At(kPenetrations, penetration::Depth, 1), {missing});
}

void ShortCurve(const SheetReadings& read, Findings& found)
{
    for (int mold = 1; mold <= kMolds; ++mold) {
        const auto end = EndOfCurve(read, mold);
        if (end && *end < found.Limit())
            found.Add(SheetReadings::At(kPenetrations, penetration::Dial(mold), 1),
                      {MoldName(mold), Plain(*end), Plain(found.Limit())});
    }
}

void LightSurcharge(const SheetReadings& read, Findings& found)
{
    const auto surcharge = read.Number(laboratory::kSurcharge);
    if (surcharge && *surcharge < found.Limit())
        found.Add(SheetReadings::At(laboratory::kSurcharge), {Plain(*surcharge), Plain(found.Limit())});
}

using enum Level;

constexpr Rule kRules[]{
    {"cbr.second-ratio-higher",
     Doubtful,
     "The ratio at 0.2 in against that at 0.1 in",
     0,
     {},
     "",
     "teaching text on CBR; the test's lecture notes of a Thai university",
     "{}: the ratio at 0.2 in is {} %, above {} % at 0.1 in: the test is run again, and if it comes again the value at "
     "0.2 in "
     "holds.",
     "Run the test again, or note that it was.",
     SecondRatioHigher},
    {"cbr.concave-beginning",
     Doubtful,
     "The beginning of each curve without correction",
     1,
     {75},
     "% of the steepest slope",
     "the test's lecture notes of a Thai university: tangent at the steepest part",
     "{}: the curve begins with {} % of its steepest slope, below {} %, and its origin is not corrected.",
     "Tick the mold's correction.",
     ConcaveBeginning},
    {"cbr.far-shift",
     Doubtful,
     "How far a corrected origin moved",
     1,
     {0.1},
     "in",
     "the seating of the piston",
     "{}: the corrected origin lies {} in right of the first one, more than {} in: the piston was not seated.",
     "Run the test again.",
     FarShift},
    {"cbr.falls-with-density",
     Doubtful,
     "Ratio over density",
     0,
     {},
     "",
     "denser soil bears more",
     "{} is denser ({} g/cm^3) and bears less ({} %) than {} ({} g/cm^3, {} %): molds may be mixed up.",
     "Compare blows, masses and dials of both molds.",
     RatioFallsWithDensity},
    {"cbr.density-falls-with-blows",
     Doubtful,
     "Density over blows",
     0,
     {},
     "",
     "more work makes denser soil",
     "{} blows gave {} g/cm^3, {} blows {} g/cm^3: molds may be mixed up.",
     "Compare blows and masses of both molds.",
     DensityFallsWithBlows},
    {"cbr.shrinks",
     Doubtful,
     "Swelling of each mold",
     0,
     {},
     "",
     "soaked soil does not shrink",
     "{} shrank by {} % while it was soaked.",
     "Look at the dial and its first reading.",
     Shrinks},
    {"cbr.swells-much",
     Doubtful,
     "Swelling of each mold at the end",
     1,
     {3},
     "%",
     "usual limit of road agencies, 3 to 4 %",
     "{} swelled by {} %, more than {} %.",
     "Look at the dial; the material may have to be rejected.",
     SwellsMuch},
    {"cbr.soaking-time",
     Doubtful,
     "Hours from the first to the last dial",
     2,
     {96, 2},
     "h",
     "usual limit, ASTM D1883, AASHTO T 193",
     "The molds were soaked for {} h; {} h are usual, {} more or less.",
     "Correct dates and hours, or note why.",
     SoakingTime},
    {"cbr.asked-outside-molds",
     Doubtful,
     "The density asked for against the molds",
     0,
     {},
     "",
     "a line holds between its readings",
     "{} % of the maximum density are {} g/cm^3; the molds have {} to {}: the value comes from no reading.",
     "Compact a mold on the other side.",
     AskedOutsideMolds},
    {"cbr.molding-water",
     Information,
     "Molding water against the optimum",
     1,
     {0.5},
     "points",
     "usual limit, ASTM D1883",
     "{} was molded at {} %, the optimum is {} %, more than {} points away.",
     "Note it on the report.",
     MoldingWater},
    {"cbr.cans-of-one-water",
     Doubtful,
     "Water contents of the molds before soaking",
     2,
     {1, 10},
     "points and % of the mean",
     "usual limit for two cans of one state",
     "The cans of one molding water go from {} to {} %, more than {} points and {} % of their mean.",
     "Weigh the cans again.",
     CansOfOneWater},
    {"cbr.short-curve",
     Doubtful,
     "The last penetration of each mold",
     1,
     {0.196},
     "in",
     "the ratio at 0.2 in is read there; 5 mm are 0.197 in",
     "{}: the readings end at {} in, before {} in: the ratio at 0.2 in comes from no reading.",
     "Go on to 0.5 in.",
     ShortCurve},
    {"cbr.missing-penetrations",
     Information,
     "The penetrations of the method",
     1,
     {0.005},
     "in beside a penetration of the method",
     "usual limit, ASTM D1883, AASHTO T 193",
     "There is no reading near {} in.",
     "Take the readings of the method.",
     MissingPenetrations},
    {"cbr.light-surcharge",
     Information,
     "The surcharge",
     1,
     {4.54},
     "kg",
     "usual limit, ASTM D1883: 10 lb",
     "The surcharge is {} kg, less than {} kg.",
     "Correct the note, or add weights.",
     LightSurcharge},
};

}  // namespace

}  // namespace on_bearing

std::span<const Rule> BearingRatioRules()
{
    return on_bearing::kRules;
}

}  // namespace terravane::notes
