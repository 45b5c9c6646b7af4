#include "sheets/sieve/uscs.h"

#include <algorithm>
#include <array>

#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr double kFineFrom = 50;        // percent fines
constexpr double kFewFinesBelow = 5;    // percent fines; fewer say nothing of the fines
constexpr double kManyFinesAbove = 12;  // percent fines; more say nothing of the grading
constexpr double kSiltyUpTo = 7;        // plasticity index of a clayey soil that is silty too
constexpr double kHighLimitFrom = 50;   // liquid limit
constexpr double kSecondPartFrom = 15;  // percent of the other coarse part that the name tells
constexpr double kAnyShare = -1e300;
constexpr double kMoreFinesFrom = 70;    // percent fines
constexpr double kNearlyFinesFrom = 85;  // percent fines

/// Uniformity from which a soil of this kind is well graded.
struct GradeRow {
    SoilKind kind;
    double leastUniformity;
    std::string_view wellGraded, poorlyGraded;
};
constexpr std::array kGrades{
    GradeRow{SoilKind::Sand, 6, "SW", "SP"},
    GradeRow{SoilKind::Gravel, 4, "GW", "GP"},
};

/// The double symbols of sand and gravel are for more than 12 percent fines only.
struct FinesRow {
    SoilKind kind;
    std::string_view clay, siltyClay, silt;
};
constexpr std::array kFines{
    FinesRow{SoilKind::Sand, "SC", "SC-SM", "SM"},
    FinesRow{SoilKind::Gravel, "GC", "GC-GM", "GM"},
    FinesRow{SoilKind::Fine, "C", "CM", "M"},
};

/// Names of sand below and from 15 percent gravel, of gravel below and from 15 percent sand.
struct NamePair {
    std::string_view below15, from15;
};

/// siltyClay  instead of `names` where the fines are a silty clay; empty where that makes no difference
struct CoarseName {
    std::string_view symbol;
    NamePair names;
    NamePair siltyClay = {};
};
constexpr std::array kCoarseNames{
    CoarseName{"SC", {"Clayey sand", "Clayey sand with gravel"}},
    CoarseName{"SM", {"Silty sand", "Silty sand with gravel"}},
    CoarseName{"SP-SM", {"Poorly-graded sand with silt", "Poorly-graded sand with silt and gravel"}},
    CoarseName{"SW-SM", {"Well-graded sand with silt", "Well-graded sand with silt and gravel"}},
    CoarseName{"SP", {"Poorly-graded sand", "Poorly-graded sand with gravel"}},
    CoarseName{"SW", {"Well-graded sand", "Well-graded sand with gravel"}},
    CoarseName{"SC-SM", {"Silty, clayey sand", "Silty, clayey sand with gravel"}},
    CoarseName{"GC", {"Clayey gravel", "Clayey gravel with sand"}},
    CoarseName{"GM", {"Silty gravel", "Silty gravel with sand"}},
    CoarseName{"GP-GM", {"Poorly-graded gravel with silt", "Poorly-graded gravel with silt and sand"}},
    CoarseName{"GW-GM", {"Well-graded gravel with silt", "Well-graded gravel with silt and sand"}},
    CoarseName{"GP", {"Poorly-graded gravel", "Poorly-graded gravel with sand"}},
    CoarseName{"GW", {"Well-graded gravel", "Well-graded gravel with sand"}},
    CoarseName{"GC-GM", {"Silty, clayey gravel", "Silty, clayey gravel with sand"}},
    CoarseName{"SP-SC",
               {"Poorly-graded sand with clay", "Poorly-graded sand with clay and gravel"},
               {"Poorly-graded sand with silty clay", "Poorly-graded sand with silty clay and gravel"}},
    CoarseName{"SW-SC",
               {"Well-graded sand with clay", "Well-graded sand with clay and gravel"},
               {"Well-graded sand with silty clay", "Well-graded sand with silty clay and gravel"}},
    CoarseName{"GP-GC",
               {"Poorly-graded gravel with clay", "Poorly-graded gravel with clay and sand"},
               {"Poorly-graded gravel with silty clay", "Poorly-graded gravel with silty clay and sand"}},
    CoarseName{"GW-GC",
               {"Well-graded gravel with clay", "Well-graded gravel with clay and sand"},
               {"Well-graded gravel with silty clay", "Well-graded gravel with silty clay and sand"}},
};

/// What a fine soil is called by itself, at the head of a name and inside of one.
struct FineNoun {
    std::string_view symbol, atHead, inside;
};
constexpr std::array kFineNouns{
    FineNoun{"CL-ML", "Silty clay", "silty clay"},  FineNoun{"ML", "Silt", "silt"},
    FineNoun{"MH", "Elastic silt", "elastic silt"}, FineNoun{"CL", "Lean clay", "lean clay"},
    FineNoun{"CH", "Fat clay", "fat clay"},
};

/// What a fine soil's coarse part adds to the noun, in front or behind.
/// finesBelow  percent fines
/// sandier     at least as much sand as gravel
/// lesser      percent of the lesser coarse part, from which the row holds
struct FinePattern {
    double finesBelow;
    bool sandier;
    double lesserFrom;
    std::string_view front, behind;
};
constexpr std::array kFinePatterns{
    FinePattern{kMoreFinesFrom, false, kSecondPartFrom, "Gravelly ", " with sand"},
    FinePattern{kMoreFinesFrom, false, kAnyShare, "Gravelly ", ""},
    FinePattern{kMoreFinesFrom, true, kSecondPartFrom, "Sandy ", " with gravel"},
    FinePattern{kMoreFinesFrom, true, kAnyShare, "Sandy ", ""},
    FinePattern{kNearlyFinesFrom, false, kAnyShare, "", " with gravel"},
    FinePattern{kNearlyFinesFrom, true, kAnyShare, "", " with sand"},
};

FinePattern PatternOf(const UscsSample& sample)
{
    const bool sandier = sample.Sand() >= sample.Gravel();
    const double lesser = sandier ? sample.Gravel() : sample.Sand();
    const auto fits = [&](const FinePattern& row) {
        return sample.passing200 < row.finesBelow && sandier == row.sandier && lesser >= row.lesserFrom;
    };
    const auto row = std::ranges::find_if(kFinePatterns, fits);
    return row == kFinePatterns.end() ? FinePattern{} : *row;
}

std::string FineName(const FineNoun& noun, const UscsSample& sample)
{
    const FinePattern pattern = PatternOf(sample);
    const std::string_view word = pattern.front.empty() ? noun.atHead : noun.inside;
    return std::string(pattern.front).append(word).append(pattern.behind);
}

bool IsSiltyClay(const Limits& limits)
{
    return limits.IsClayey() && limits.PlasticityIndex() <= kSiltyUpTo;
}

std::string_view CoarseNameOf(const CoarseName& row, const UscsSample& sample)
{
    const bool tellsSiltyClay = !row.siltyClay.below15.empty() && IsSiltyClay(sample.limits);
    const NamePair& names = tellsSiltyClay ? row.siltyClay : row.names;
    const double other = row.symbol.front() == 'S' ? sample.Gravel() : sample.Sand();
    return other < kSecondPartFrom ? names.below15 : names.from15;
}

std::string FineSymbol(const UscsSample& sample)
{
    const std::string fines(FinesSymbol(SoilKind::Fine, sample));
    if (sample.limits.liquid >= kHighLimitFrom) return fines + "H";
    return fines == "CM" ? "CL-ML" : fines + "L";
}

std::string CoarseSymbol(SoilKind kind, const UscsSample& sample)
{
    if (sample.passing200 > kManyFinesAbove) return std::string(FinesSymbol(kind, sample));
    std::string grade(GradeSymbol(kind, sample));
    if (sample.passing200 < kFewFinesBelow) return grade;
    return grade + "-" + std::string(FinesSymbol(kind, sample));
}

}  // namespace

SoilKind KindOf(const UscsSample& sample)
{
    if (sample.passing200 >= kFineFrom) return SoilKind::Fine;
    return (100 - sample.passing200) / 2 <= sample.Sand() ? SoilKind::Sand : SoilKind::Gravel;
}

std::string_view GradeSymbol(SoilKind kind, const UscsSample& sample)
{
    const auto& row = *std::ranges::find(kGrades, kind, &GradeRow::kind);
    const double uniformity = Divide(sample.d60, sample.d10);
    const double curvature = Divide(sample.d30 * sample.d30, sample.d60 * sample.d10);
    const bool isWellGraded = uniformity >= row.leastUniformity && curvature >= 1 && curvature <= 3;
    return isWellGraded ? row.wellGraded : row.poorlyGraded;
}

std::string_view FinesSymbol(SoilKind kind, const UscsSample& sample)
{
    const auto& row = *std::ranges::find(kFines, kind, &FinesRow::kind);
    if (!sample.limits.IsClayey()) return row.silt;
    const bool isClay = sample.passing200 <= kManyFinesAbove || sample.limits.PlasticityIndex() > kSiltyUpTo;
    return isClay ? row.clay : row.siltyClay;
}

std::string UscsSymbol(const UscsSample& sample)
{
    const SoilKind kind = KindOf(sample);
    return kind == SoilKind::Fine ? FineSymbol(sample) : CoarseSymbol(kind, sample);
}

std::string UscsName(std::string_view symbol, const UscsSample& sample)
{
    const auto coarse = std::ranges::find(kCoarseNames, symbol, &CoarseName::symbol);
    if (coarse != kCoarseNames.end()) return std::string(CoarseNameOf(*coarse, sample));
    const auto fine = std::ranges::find(kFineNouns, symbol, &FineNoun::symbol);
    return fine == kFineNouns.end() ? std::string() : FineName(*fine, sample);
}

}  // namespace terravane
