// What an experienced eye looks for on a compaction sheet.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "laboratory/compaction.h"
#include "notes/densities.h"
#include "notes/figures.h"
#include "notes/rule.h"

namespace terravane::notes {

namespace on_compaction {

namespace {

using namespace compaction;
using laboratory::kCompactionDensity;

/// A trial with its water content, %, and dry density, g/cm³.
struct Point {
    int trial;
    double water, dry;
};

std::vector<Point> PointsOf(const SheetReadings& read)
{
    std::vector<Point> points;
    for (const Reading& dry : read.Line(kCompactionDensity, density::DryDensity)) {
        const auto water = read.Number(kCompactionDensity, density::WaterContent, dry.trial);
        if (water && dry.value > 0) points.push_back({dry.trial, *water, dry.value});
    }
    return points;
}

Place AtDryDensity(const Point& point)
{
    return SheetReadings::At(kCompactionDensity, density::DryDensity, point.trial);
}

/// The sheet's own, of the air-void line.
std::optional<double> Gravity(const SheetReadings& read)
{
    const auto gravity = read.Number(laboratory::kAirVoidGravity);
    return gravity && *gravity > 0 ? gravity : std::nullopt;
}

void AboveAirVoids(const SheetReadings& read, Findings& found)
{
    const auto gravity = Gravity(read);
    if (!gravity) return;
    for (const Point& point : PointsOf(read)) {
        if (point.dry >= *gravity) continue;
        const double saturation = Saturation(point.water, point.dry, *gravity);
        if (saturation > found.Limit())
            found.Add(AtDryDensity(point),
                      {Whole(point.trial), Tenths(saturation), Plain(*gravity), Plain(found.Limit())});
    }
}

void DenserThanGrains(const SheetReadings& read, Findings& found)
{
    const auto gravity = Gravity(read);
    if (!gravity) return;
    for (const Point& point : PointsOf(read))
        if (point.dry >= *gravity)
            found.Add(AtDryDensity(point), {Whole(point.trial), Hundredths(point.dry), Plain(*gravity)});
}

/// The top of the curve; nothing before it was drawn.
struct Top {
    double water, dry;
};
std::optional<Top> TopOf(const SheetReadings& read)
{
    const auto water = read.Number(laboratory::kOptimumMoisture);
    const auto dry = read.Number(laboratory::kMaximumDryDensity);
    if (!water || !dry || *dry <= 0) return {};
    return Top{*water, *dry};
}

void TopSaturation(const SheetReadings& read, Findings& found)
{
    const auto top = TopOf(read);
    const auto gravity = Gravity(read);
    if (!top || !gravity || top->dry >= *gravity) return;
    const double saturation = Saturation(top->water, top->dry, *gravity);
    if (saturation < found.Limit(0) || saturation > found.Limit(1))
        found.Add(SheetReadings::At(laboratory::kMaximumDryDensity),
                  {Tenths(saturation), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

void PointsBesideTop(const SheetReadings& read, Findings& found)
{
    const auto top = TopOf(read);
    if (!top) return;
    const auto points = PointsOf(read);
    const auto drier = std::ranges::count_if(points, [&](const Point& point) { return point.water < top->water; });
    const auto wetter = std::ranges::count_if(points, [&](const Point& point) { return point.water > top->water; });
    if (static_cast<double>(std::min(drier, wetter)) < found.Limit())
        found.Add(SheetReadings::At(laboratory::kOptimumMoisture),
                  {Whole(static_cast<double>(drier)), Whole(static_cast<double>(wetter)), Tenths(top->water),
                   Plain(found.Limit())});
}

void WaterSteps(const SheetReadings& read, Findings& found)
{
    auto points = PointsOf(read);
    std::ranges::sort(points, {}, &Point::water);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double step = points[i].water - points[i - 1].water;
        if (step <= found.Limit()) continue;
        const Place at = SheetReadings::At(kCompactionDensity, density::WaterContent, points[i].trial);
        found.Add(
            at, {Hundredths(points[i - 1].water), Hundredths(points[i].water), Hundredths(step), Plain(found.Limit())});
    }
}

void TopAbovePoints(const SheetReadings& read, Findings& found)
{
    const auto top = TopOf(read);
    const auto points = PointsOf(read);
    if (!top || points.empty()) return;
    const double highest = std::ranges::max(points, {}, &Point::dry).dry;
    const double above = top->dry - highest;
    // A hundredth is the last digit of both: rounded, a difference of 0.02 is not more than 0.02.
    if (RoundedToPlaces(above, 2) > std::max(found.Limit(0), found.Limit(1) / 100 * highest))
        found.Add(SheetReadings::At(laboratory::kMaximumDryDensity),
                  {Hundredths(top->dry), Hundredths(highest), Hundredths(above), Plain(found.Limit(0)),
                   Plain(found.Limit(1))});
}

/// The molds of the method: volume, cm³, and blows a layer.
struct Mold {
    std::string_view name;
    double volume;
    double blows;
};
constexpr std::array kMolds{Mold{"4 in", 944, 25}, Mold{"6 in", 2124, 56}};

std::optional<double> VolumeOf(const SheetReadings& read)
{
    const auto height = read.Number(laboratory::kMoldHeight), diameter = read.Number(laboratory::kMoldDiameter);
    if (!height || !diameter) return {};
    return std::numbers::pi / 4 * *diameter * *diameter * *height;
}

double Share(double value, double of)
{
    return std::abs(value - of) / of * 100;
}

const Mold& NearestMold(double volume)
{
    return *std::ranges::min_element(kMolds, {}, [volume](const Mold& mold) { return Share(volume, mold.volume); });
}

void MoldVolume(const SheetReadings& read, Findings& found)
{
    const auto volume = VolumeOf(read);
    if (!volume) return;
    const Mold& mold = NearestMold(*volume);
    if (Share(*volume, mold.volume) > found.Limit())
        found.Add(SheetReadings::At(laboratory::kMoldHeight),
                  {Whole(*volume), Plain(mold.volume), std::string(mold.name), Plain(found.Limit())});
}

void Hammer(const SheetReadings& read, Findings& found)
{
    const auto hammer = read.Number(laboratory::kHammer);
    const double method = read.Described().test == Test::ModSoil ? 4.5 : 2.5;
    if (hammer && *hammer != method)
        found.Add(SheetReadings::At(laboratory::kHammer),
                  {Plain(*hammer), std::string(read.Described().names.sentence), Plain(method)});
}

void Layers(const SheetReadings& read, Findings& found)
{
    const auto layers = read.Number(laboratory::kLayers);
    const double method = read.Described().test == Test::ModSoil ? 5 : 3;
    if (layers && *layers != method)
        found.Add(SheetReadings::At(laboratory::kLayers),
                  {Plain(*layers), std::string(read.Described().names.sentence), Plain(method)});
}

void Blows(const SheetReadings& read, Findings& found)
{
    const auto blows = read.Number(laboratory::kBlows), volume = VolumeOf(read);
    if (!blows || !volume) return;
    const Mold& mold = NearestMold(*volume);
    if (*blows != mold.blows)
        found.Add(SheetReadings::At(laboratory::kBlows), {Plain(*blows), std::string(mold.name), Plain(mold.blows)});
}

/// The maximum density of soil with its oversize, from that of the soil without: 1/g = Pf/gf + Pc/(Gm gw).
double WithOversize(double fine, double oversize, double gravity)
{
    return 1 / ((1 - oversize / 100) / fine + oversize / 100 / gravity);
}

void Oversize(const SheetReadings& read, Findings& found)
{
    const auto coarse = read.Posted("gravel");
    const auto top = TopOf(read);
    if (!coarse || !top || *coarse <= found.Limit(0) || *coarse > found.Limit(1)) return;
    const auto gravity = Gravity(read);
    const std::string corrected =
        gravity ? Hundredths(WithOversize(top->dry, *coarse, *gravity)) + " g/cm^3 with Gs " + Plain(*gravity)
                : std::string("not worked out without Gs");
    found.Add(SheetReadings::At(laboratory::kMaximumDryDensity),
              {Tenths(*coarse), Plain(found.Limit(0)), Hundredths(top->dry), corrected});
}

void TooMuchOversize(const SheetReadings& read, Findings& found)
{
    const auto coarse = read.Posted("gravel");
    if (coarse && !PointsOf(read).empty() && *coarse > found.Limit())
        found.Add(SheetReadings::At(laboratory::kMaximumDryDensity), {Tenths(*coarse), Plain(found.Limit())});
}

/// The other compaction test of the job, as the file keeps it.
struct Pair {
    double modified, standard;
};
std::optional<Pair> PairOf(const SheetReadings& read, const laboratory::Box& box)
{
    const bool isModified = read.Described().test == Test::ModSoil;
    const auto own = read.Number(box);
    const auto other = read.KeptNumber(isModified ? Test::StdSoil : Test::ModSoil, box.is.kept);
    if (!own || !other) return {};
    return isModified ? Pair{*own, *other} : Pair{*other, *own};
}

void ModifiedLighter(const SheetReadings& read, Findings& found)
{
    const auto pair = PairOf(read, laboratory::kMaximumDryDensity);
    if (pair && pair->modified < pair->standard)
        found.Add(SheetReadings::At(laboratory::kMaximumDryDensity),
                  {Hundredths(pair->modified), Hundredths(pair->standard)});
}

void ModifiedWetter(const SheetReadings& read, Findings& found)
{
    const auto pair = PairOf(read, laboratory::kOptimumMoisture);
    if (pair && pair->modified > pair->standard)
        found.Add(SheetReadings::At(laboratory::kOptimumMoisture), {Tenths(pair->modified), Tenths(pair->standard)});
}

using enum Level;

constexpr Rule kRules[]{
    {"compaction.above-zero-air-voids",
     Impossible,
     "Every point against the line without air voids",
     1,
     {100},
     "% saturation",
     "phase relations; ASTM D698 and D1557 have the line of 100 % saturation drawn",
     "Point {} lies above the zero-air-voids line (saturation {} %, Gs {}, limit {} %): gravity, mold volume or a mass "
     "is "
     "wrong.",
     "Weigh the can of that point again, then look at the mold's measures and at the specific gravity.",
     AboveAirVoids},
    {"compaction.denser-than-grains",
     Impossible,
     "Every dry density against the specific gravity",
     0,
     {},
     "",
     "phase relations",
     "Point {} has a dry density of {} g/cm^3, its grains of {} are no denser: gravity or a mass is wrong.",
     "Look at the specific gravity and at the masses of mold and soil.",
     DenserThanGrains},
    {"compaction.top-saturation",
     Information,
     "Saturation at the top of the curve",
     2,
     {75, 95},
     "% saturation",
     "usual limit; teaching texts give about 80 % at the top",
     "The top lies at a saturation of {} %; {} to {} % is usual.",
     "Look at the curve near its top.",
     TopSaturation},
    {"compaction.points-beside-top",
     Doubtful,
     "Points on each side of the top",
     1,
     {2},
     "points",
     "usual limit, ASTM D698, D1557, AASHTO T 99",
     "{} points are drier and {} wetter than the optimum {} %, {} on each side are usual: a top at the edge of the "
     "readings "
     "is no top.",
     "Add a point on the side that has too few.",
     PointsBesideTop},
    {"compaction.water-steps",
     Doubtful,
     "Steps between the water contents",
     1,
     {4},
     "% water",
     "usual limit, ASTM D698",
     "Between the water contents {} and {} % is a step of {} %, more than {} %.",
     "Add a point in between.",
     WaterSteps},
    {"compaction.top-above-points",
     Doubtful,
     "The curve's top against the highest point",
     2,
     {0.02, 1},
     "g/cm^3 and %",
     "the curve's own shape",
     "The top {} g/cm^3 lies above the highest point {} by {} g/cm^3, more than {} g/cm^3 and {} %: the curve's shape "
     "makes "
     "it, not a reading.",
     "Draw the other curve, or add a point near the top.",
     TopAbovePoints},
    {"compaction.mold-volume",
     Doubtful,
     "The mold's volume against those of the method",
     1,
     {1.5},
     "%",
     "usual limit, ASTM D698: 944 and 2124 cm^3",
     "The mold has {} cm^3; the nearest mold of the method has {} ({}), more than {} % away.",
     "Measure the mold; a centimetre typed as an inch is found so.",
     MoldVolume},
    {"compaction.hammer",
     Doubtful,
     "The hammer against the method",
     0,
     {},
     "",
     "ASTM D698 and D1557, head of the sheet",
     "A hammer of {} kg is noted; {} has one of {} kg.",
     "Correct the note, or open the other compaction test.",
     Hammer},
    {"compaction.layers",
     Doubtful,
     "The layers against the method",
     0,
     {},
     "",
     "ASTM D698 and D1557, head of the sheet",
     "{} layers are noted; {} has {}.",
     "Correct the note, or open the other compaction test.",
     Layers},
    {"compaction.blows",
     Doubtful,
     "The blows against the mold",
     0,
     {},
     "",
     "ASTM D698 and D1557, head of the sheet",
     "{} blows a layer are noted; a mold of {} takes {}.",
     "Correct the note, or measure the mold.",
     Blows},
    {"compaction.oversize",
     Information,
     "Oversize of the job's sieve test",
     2,
     {5, 40},
     "% retained on No. 4",
     "ASTM D4718",
     "{} % of the soil stays on No. 4, more than {} %: in the field the maximum density {} g/cm^3 wants the correction "
     "for "
     "oversize ({}).",
     "Compare densities in the field with the corrected value.",
     Oversize},
    {"compaction.too-much-oversize",
     Doubtful,
     "Oversize of the job's sieve test",
     1,
     {40},
     "% retained on No. 4",
     "ASTM D4718",
     "{} % of the soil stays on No. 4; above {} % the test does not hold.",
     "Choose a method for coarse material.",
     TooMuchOversize},
    {"compaction.modified-lighter",
     Doubtful,
     "Modified against standard compaction: density",
     0,
     {},
     "",
     "more work makes denser soil",
     "The modified test's maximum density {} g/cm^3 is below the standard test's {}: samples or sheets may be swapped.",
     "Compare the two sheets of the job.",
     ModifiedLighter},
    {"compaction.modified-wetter",
     Doubtful,
     "Modified against standard compaction: water",
     0,
     {},
     "",
     "more work needs less water",
     "The modified test's optimum {} % is above the standard test's {} %: samples or sheets may be swapped.",
     "Compare the two sheets of the job.",
     ModifiedWetter},
};

}  // namespace

}  // namespace on_compaction

std::span<const Rule> CompactionRules()
{
    return on_compaction::kRules;
}

}  // namespace terravane::notes
