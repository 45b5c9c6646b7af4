#include "batch/posted_choices.h"

#include <algorithm>
#include <array>

namespace terravane {

namespace {

constexpr std::array<std::string_view, 2> kCurves{"optInt", "optFit"};
constexpr std::array<std::string_view, 4> kCalibrations{"optAut", "optExp", "optLin", "optPol"};
constexpr std::array<std::string_view, 2> kProctors{"optMod", "optStd"};
constexpr std::array<std::string_view, 4> kShares{"95%", "98%", "90%", "100%"};
constexpr int kMolds = 3;

using Variants = std::vector<Choices>;

/// Every variant with every value of one more choice; `set` writes the value into the choices.
template <class Values, class Set>
Variants WithEveryValue(const Variants& variants, const Values& values, Set set)
{
    Variants crossed;
    for (const auto& value : values) {
        for (Choices choices : variants) {
            set(choices, value);
            crossed.push_back(choices);
        }
    }
    return crossed;
}

Variants Curves(Variants variants, const GivenChoices& given)
{
    if (given.curve) return variants;
    return WithEveryValue(variants, kCurves, [](Choices& choices, std::string_view curve) { choices.curve = curve; });
}

Variants Smoothness(Variants variants, const GivenChoices& given)
{
    if (given.isSmooth) return variants;
    return WithEveryValue(variants, std::array{false, true},
                          [](Choices& choices, bool smooth) { choices.isSmooth = smooth; });
}

Variants Calibrations(const Variants& variants)
{
    return WithEveryValue(variants, kCalibrations,
                          [](Choices& choices, std::string_view fit) { choices.calibration = fit; });
}

Variants Corrections(Variants variants, const GivenChoices& given)
{
    if (given.corrects) return variants;
    for (std::size_t mold = 0; mold < kMolds; ++mold) {
        variants = WithEveryValue(variants, std::array{false, true},
                                  [mold](Choices& choices, bool corrects) { choices.corrects[mold] = corrects; });
    }
    return variants;
}

Variants Shares(const Variants& variants)
{
    return WithEveryValue(variants, kShares, [](Choices& choices, std::string_view share) { choices.share = share; });
}

Variants Proctors(const Variants& variants)
{
    return WithEveryValue(variants, kProctors,
                          [](Choices& choices, std::string_view proctor) { choices.proctor = proctor; });
}

}  // namespace

std::vector<Choices> PossibleChoices(const laboratory::Description& test, const BatchOptions& options)
{
    const Choices own = options.PressedChoices();
    const GivenChoices& given = options.given;
    Variants variants{own};
    if (options.checks && IsCompaction(test.test)) variants = Curves(variants, given);
    if (options.checks && test.test == Test::SieSoil) variants = Smoothness(variants, given);
    if (options.checks && test.test == Test::SpcSoil) variants = Calibrations(variants);
    if (test.test == Test::CBRSoil) {
        if (options.checks) variants = Shares(Corrections(variants, given));
        variants = Proctors(variants);
        variants.insert(variants.begin(), own);
    }
    return variants;
}

}  // namespace terravane
