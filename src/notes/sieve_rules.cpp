// What an experienced eye looks for on a sieve sheet.
#include <algorithm>
#include <array>
#include <cmath>

#include "laboratory/sieve_analysis.h"
#include "notes/figures.h"
#include "notes/rule.h"

namespace terravane::notes {

namespace on_sieves {

namespace {

using laboratory::kSieveStack;

/// A sieve with its opening, mm, and what stayed on it, g.
struct Loaded {
    int trial;
    std::string name;
    double opening, retained;
};

/// From above, without the pan.
std::vector<Loaded> SievesOf(const SheetReadings& read)
{
    std::vector<Loaded> sieves;
    for (const Reading& retained : read.Line(kSieveStack, sieve::Retained)) {
        const auto opening = read.Number(kSieveStack, sieve::Opening, retained.trial);
        if (opening && *opening > 0)
            sieves.push_back(
                {retained.trial, read.Text(kSieveStack, sieve::Number, retained.trial), *opening, retained.value});
    }
    return sieves;
}

Place AtRetained(const Loaded& on)
{
    return SheetReadings::At(kSieveStack, sieve::Retained, on.trial);
}

/// What was found beyond what was weighed at the beginning, % of that; below zero: what was lost.
std::optional<double> Found(const SheetReadings& read)
{
    const auto original = read.Number(laboratory::kOriginalMass);
    const auto retained = read.Line(kSieveStack, sieve::Retained);
    if (!original || *original <= 0 || retained.empty()) return {};
    double found = 0;
    for (const Reading& on : retained) found += on.value;
    return (found - *original) / *original * 100;
}

void Loss(const SheetReadings& read, Findings& found)
{
    const auto share = Found(read);
    const double limit = found.Limit(read.TheMaterial() == Material::Crush ? 1 : 0);
    // The hundredths are what the masses carry; a binary fraction beyond them is none of theirs.
    if (share && RoundedToPlaces(-*share, 6) > limit)
        found.Add(SheetReadings::At(laboratory::kMassLost), {Hundredths(-*share), Plain(limit)});
}

void Gain(const SheetReadings& read, Findings& found)
{
    const auto share = Found(read);
    if (share && RoundedToPlaces(*share, 6) > found.Limit())
        found.Add(SheetReadings::At(laboratory::kMassLost), {Hundredths(*share), Plain(found.Limit())});
}

void LighterWithSoil(const SheetReadings& read, Findings& found)
{
    for (const Reading& on : read.Line(kSieveStack, sieve::Retained))
        if (on.value < 0)
            found.Add(SheetReadings::At(kSieveStack, sieve::SieveAndSoil, on.trial),
                      {read.Text(kSieveStack, sieve::Number, on.trial), Hundredths(-on.value)});
}

/// The least sample for the largest sieve that holds soil, mm and g.
struct LeastSample {
    double opening, mass;
};
constexpr std::array kLeastSamples{LeastSample{9.51, 1000}, LeastSample{12.5, 2000}, LeastSample{19, 3000},
                                   LeastSample{25, 6000},   LeastSample{38.1, 9000}, LeastSample{50, 10000}};

void SmallSample(const SheetReadings& read, Findings& found)
{
    const auto original = read.Number(laboratory::kOriginalMass);
    auto sieves = SievesOf(read);
    std::erase_if(sieves, [](const Loaded& on) { return on.retained <= 0; });
    if (!original || sieves.empty()) return;
    const Loaded& largest = *std::ranges::max_element(sieves, {}, &Loaded::opening);
    double least = 0;
    for (const LeastSample& of : kLeastSamples)
        if (largest.opening >= of.opening) least = of.mass;
    if (*original < least)
        found.Add(SheetReadings::At(laboratory::kOriginalMass), {Plain(*original), largest.name, Whole(least)});
}

constexpr double kNumberFour = 4.75;   // mm
constexpr double kSieveArea = 0.0277;  // m², of a sieve of 203 mm

void OverloadedFine(const SheetReadings& read, Findings& found)
{
    for (const Loaded& on : SievesOf(read))
        if (on.opening < kNumberFour && on.retained > found.Limit())
            found.Add(AtRetained(on), {Tenths(on.retained), on.name, Plain(found.Limit())});
}

void OverloadedCoarse(const SheetReadings& read, Findings& found)
{
    for (const Loaded& on : SievesOf(read)) {
        const double most = found.Limit() * on.opening * kSieveArea * 1000;
        if (on.opening >= kNumberFour && on.retained > most)
            found.Add(AtRetained(on), {Tenths(on.retained), on.name, Whole(most)});
    }
}

constexpr std::array<std::string_view, 4> kClassSieves{"#4", "#10", "#40", "#200"};

void MissingSieves(const SheetReadings& read, Findings& found)
{
    const auto sieves = SievesOf(read);
    if (sieves.empty()) return;
    for (const std::string_view name : kClassSieves)
        if (std::ranges::find(sieves, name, &Loaded::name) == sieves.end())
            found.Add(SheetReadings::At(kSieveStack, sieve::Number, 1), {std::string(name)});
}

/// The limits as the sheet took them, else as the file keeps them.
struct Limits {
    double liquid, plastic;
    double Index() const { return liquid - plastic; }
};
std::optional<Limits> LimitsOf(const SheetReadings& read)
{
    auto liquid = read.Number(laboratory::kTakenLiquidLimit), plastic = read.Number(laboratory::kTakenPlasticLimit);
    if (!liquid || !plastic) {
        liquid = read.KeptNumber(Test::AttSoil, "LL");
        plastic = read.KeptNumber(Test::AttSoil, "PL");
    }
    if (!liquid || !plastic) return {};
    return Limits{*liquid, *plastic};
}

void DrySieved(const SheetReadings& read, Findings& found)
{
    const auto fines = read.Number(laboratory::kPassing200);
    if (fines && *fines > found.Limit() && read.IsChosen(laboratory::kSieving[0].control) && LimitsOf(read))
        found.Add(SheetReadings::At(laboratory::kPassing200), {Tenths(*fines), Plain(found.Limit())});
}

void FinesWithoutPlasticity(const SheetReadings& read, Findings& found)
{
    const auto fines = read.Number(laboratory::kPassing200);
    const auto limits = LimitsOf(read);
    if (fines && limits && limits->Index() <= 0 && *fines > found.Limit())
        found.Add(SheetReadings::At(laboratory::kPassing200), {Tenths(*fines), Plain(found.Limit())});
}

void PlasticityWithoutFines(const SheetReadings& read, Findings& found)
{
    const auto fines = read.Number(laboratory::kPassing200);
    const auto limits = LimitsOf(read);
    if (fines && limits && limits->Index() > found.Limit(0) && *fines < found.Limit(1))
        found.Add(SheetReadings::At(laboratory::kPassing200),
                  {Hundredths(limits->Index()), Tenths(*fines), Plain(found.Limit(0)), Plain(found.Limit(1))});
}

using enum Level;

constexpr Rule kRules[]{
    {"sieve.loss",
     Doubtful,
     "What was lost on the way",
     2,
     {2, 0.3},
     "% of soil, of crushed rock",
     "soil: teaching text on sieve analysis; aggregate: usual limit, AASHTO T 27, ASTM C136",
     "{} % of the sample were lost, more than {} %.",
     "Sieve again, and brush the sieves.",
     Loss},
    {"sieve.gain",
     Doubtful,
     "More found than weighed",
     1,
     {0.3},
     "%",
     "nothing can be gained by sieving",
     "{} % more were found than weighed, more than {} %: a sieve was not empty, or a mass is wrong.",
     "Weigh the empty sieves again.",
     Gain},
    {"sieve.lighter-with-soil",
     Impossible,
     "Each sieve with soil against the empty sieve",
     0,
     {},
     "",
     "masses",
     "Sieve {} is lighter with soil than empty, by {} g.",
     "Look for swapped masses.",
     LighterWithSoil},
    {"sieve.small-sample",
     Doubtful,
     "The sample's mass against the largest sieve that holds soil",
     0,
     {},
     "",
     "WSDOT T 27/T 11 (M 46-01), least masses",
     "The sample has {} g; soil on the sieve {} asks for at least {} g.",
     "Take a larger sample.",
     SmallSample},
    {"sieve.overloaded",
     Doubtful,
     "Soil on one sieve finer than No. 4",
     1,
     {194},
     "g",
     "usual limit, AASHTO T 27: 7 kg/m^2 on a sieve of 203 mm",
     "{} g lie on the sieve {}, more than {} g: soil that would pass stays on it.",
     "Sieve that part in two halves.",
     OverloadedFine},
    {"sieve.overloaded-coarse",
     Information,
     "Soil on one sieve of No. 4 and coarser",
     1,
     {2.5},
     "kg a mm of opening and m^2",
     "usual limit, AASHTO T 27, on a sieve of 203 mm",
     "{} g lie on the sieve {}, more than {} g on a sieve of 203 mm.",
     "Sieve in parts, or on a larger sieve.",
     OverloadedCoarse},
    {"sieve.missing-sieve",
     Information,
     "Sieves that a class needs",
     0,
     {},
     "",
     "USCS and AASHTO classes",
     "The sieve {} is not in the stack: the classes read what was there before or nothing.",
     "Choose a stack with it.",
     MissingSieves},
    {"sieve.dry-sieved-fines",
     Doubtful,
     "Fines of a dry sieving of plastic soil",
     1,
     {5},
     "% passing No. 200",
     "usual limit, AASHTO T 11, ASTM D1140",
     "{} % pass No. 200 in a dry sieving, more than {} %, and the soil has limits.",
     "Wash the sample.",
     DrySieved},
    {"sieve.fines-not-plastic",
     Doubtful,
     "Fines against the limits",
     1,
     {50},
     "% passing No. 200",
     "fines and limits of one soil",
     "{} % pass No. 200, more than {} %, yet the limits say that the soil is not plastic: samples may be mixed up.",
     "Look at the sample's number on both sheets.",
     FinesWithoutPlasticity},
    {"sieve.plastic-without-fines",
     Doubtful,
     "Limits against the fines",
     2,
     {10, 5},
     "points and % passing No. 200",
     "fines and limits of one soil",
     "The plasticity index is {}, yet {} % pass No. 200 (limits {} and {} %): samples may be mixed up.",
     "Look at the sample's number on both sheets.",
     PlasticityWithoutFines},
};

}  // namespace

}  // namespace on_sieves

std::span<const Rule> SieveRules()
{
    return on_sieves::kRules;
}

}  // namespace terravane::notes
