// The Unified Soil Classification System by its tables: every symbol, every name, and the values between which they
// change. The names are written out as a laboratory's chart has them.
#include "sheets/sieve/uscs.h"

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

/// A sample with the given percentages passing No. 4 and No. 200; limits of a non-plastic soil unless given.
UscsSample Sample(double passing4, double passing200, Limits limits = {25, 25})
{
    return {passing4, passing200, limits, 0, 0, 0};
}

/// The same with diameters that make it well graded (Cu 8, Cc 1.125) or poorly (Cu 1).
UscsSample Graded(bool well, double passing4, double passing200, Limits limits = {25, 25})
{
    UscsSample sample = Sample(passing4, passing200, limits);
    sample.d60 = well ? 8 : 1;
    sample.d30 = well ? 3 : 1;
    sample.d10 = 1;
    return sample;
}

constexpr Limits kSilt{25, 25};         // plasticity index 0
constexpr Limits kSiltyClay{25, 20};    // 5, on or above the A-line (3.65) and at most 7
constexpr Limits kLeanClay{40, 20};     // 20, above the A-line (14.6)
constexpr Limits kFatClay{60, 20};      // 40, above 29.2
constexpr Limits kElasticSilt{60, 40};  // 20, below 29.2

TEST(UscsKind, EqualHalvesOfTheCoarsePartAreSand)
{
    EXPECT_EQ(KindOf(Sample(60, 20)), SoilKind::Sand);      // half of 80 is 40, sand is 40
    EXPECT_EQ(KindOf(Sample(59.9, 20)), SoilKind::Gravel);  // 39.9 is less
}

TEST(UscsKind, HalfFinesIsFine)
{
    EXPECT_EQ(KindOf(Sample(100, 50)), SoilKind::Fine);
    EXPECT_EQ(KindOf(Sample(100, 49.9)), SoilKind::Sand);
}

struct SymbolCase {
    std::string_view symbol;
    bool wellGraded;
    double passing4, passing200;
    Limits limits;
};

/// Sand passes No. 4 whole; gravel passes it by 40 percent.
constexpr SymbolCase kSymbols[]{
    {"SW", true, 100, 4.9, kSilt},          {"SP", false, 100, 4.9, kSilt},
    {"GW", true, 40, 4.9, kSilt},           {"GP", false, 40, 4.9, kSilt},
    {"SW-SM", true, 100, 5, kSilt},         {"SP-SM", false, 100, 12, kSilt},
    {"SW-SC", true, 100, 5, kLeanClay},     {"SP-SC", false, 100, 12, kSiltyClay},
    {"GW-GM", true, 40, 5, kSilt},          {"GP-GM", false, 40, 12, kElasticSilt},
    {"GW-GC", true, 40, 5, kSiltyClay},     {"GP-GC", false, 40, 12, kLeanClay},
    {"SM", true, 100, 12.1, kSilt},         {"SC", true, 100, 12.1, kLeanClay},
    {"SC-SM", true, 100, 12.1, kSiltyClay}, {"GM", true, 40, 12.1, kSilt},
    {"GC", true, 40, 12.1, kLeanClay},      {"GC-GM", true, 40, 12.1, kSiltyClay},
    {"ML", true, 100, 50, kSilt},           {"CL-ML", true, 100, 50, kSiltyClay},
    {"CL", true, 100, 50, kLeanClay},       {"MH", true, 100, 50, kElasticSilt},
    {"CH", true, 100, 50, kFatClay},
};

TEST(UscsSymbol, EverySymbolIsReached)
{
    for (const SymbolCase& of : kSymbols)
        EXPECT_EQ(UscsSymbol(Graded(of.wellGraded, of.passing4, of.passing200, of.limits)), of.symbol);
}

TEST(UscsSymbol, GravelIsWellGradedFromAUniformityOfFourSandFromSix)
{
    const auto symbol = [](double passing4, double d60, double d30) {
        UscsSample sample = Sample(passing4, 1);
        sample.d60 = d60;
        sample.d30 = d30;
        sample.d10 = 1;
        return UscsSymbol(sample);
    };
    EXPECT_EQ(symbol(40, 4, 2), "GW");  // Cu 4, Cc 1
    EXPECT_EQ(symbol(40, 3.9, 2), "GP");
    EXPECT_EQ(symbol(100, 6, 3), "SW");  // Cu 6, Cc 1.5
    EXPECT_EQ(symbol(100, 5.9, 3), "SP");
    EXPECT_EQ(symbol(100, 12, 6), "SW");  // Cc 3
    EXPECT_EQ(symbol(100, 12, 6.1), "SP");
    EXPECT_EQ(symbol(100, 16, 3.9), "SP");  // Cc 0.95
}

TEST(UscsSymbol, FewFinesAreClayHoweverLowTheirPlasticity)
{
    EXPECT_EQ(UscsSymbol(Graded(false, 100, 8, {24, 20})), "SP-SC");
    EXPECT_EQ(UscsSymbol(Graded(false, 100, 8, {50, 20})), "SP-SC");
}

TEST(UscsSymbol, TheALineItselfIsClay)
{
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {100, 41.6})), "CH");  // 58.4 on the line
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {100, 41.7})), "MH");
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {49.9, 20})), "CL");
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {30, 24})), "ML");     // 6 is below 7.3
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {10, 6})), "CL-ML");   // the line is below zero there
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {10, 6.1})), "ML");    // 3.9 is below 4
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {25, 18})), "CL-ML");  // 7
    EXPECT_EQ(UscsSymbol(Sample(100, 60, {25, 17.9})), "CL");
}

TEST(UscsSymbol, FewFinesWithoutD10FailAndFineSoilNeverAsks)
{
    UscsSample unread = Sample(100, 12);
    EXPECT_EQ(ErrorOf([&] { UscsSymbol(unread); }), 6);  // no diameter at all: 0/0
    unread.d60 = 2;
    EXPECT_EQ(ErrorOf([&] { UscsSymbol(unread); }), 11);
    unread.passing200 = 12.1;
    EXPECT_EQ(UscsSymbol(unread), "SM");
}

struct CoarseNames {
    std::string_view symbol, below15, from15;
    Limits limits = kLeanClay;
};
constexpr CoarseNames kCoarse[]{
    {"SC", "Clayey sand", "Clayey sand with gravel"},
    {"SM", "Silty sand", "Silty sand with gravel"},
    {"SP-SM", "Poorly-graded sand with silt", "Poorly-graded sand with silt and gravel"},
    {"SW-SM", "Well-graded sand with silt", "Well-graded sand with silt and gravel"},
    {"SP", "Poorly-graded sand", "Poorly-graded sand with gravel"},
    {"SW", "Well-graded sand", "Well-graded sand with gravel"},
    {"SC-SM", "Silty, clayey sand", "Silty, clayey sand with gravel"},
    {"GC", "Clayey gravel", "Clayey gravel with sand"},
    {"GM", "Silty gravel", "Silty gravel with sand"},
    {"GP-GM", "Poorly-graded gravel with silt", "Poorly-graded gravel with silt and sand"},
    {"GW-GM", "Well-graded gravel with silt", "Well-graded gravel with silt and sand"},
    {"GP", "Poorly-graded gravel", "Poorly-graded gravel with sand"},
    {"GW", "Well-graded gravel", "Well-graded gravel with sand"},
    {"GC-GM", "Silty, clayey gravel", "Silty, clayey gravel with sand"},
    {"SP-SC", "Poorly-graded sand with clay", "Poorly-graded sand with clay and gravel"},
    {"SP-SC", "Poorly-graded sand with silty clay", "Poorly-graded sand with silty clay and gravel", kSiltyClay},
    {"SW-SC", "Well-graded sand with clay", "Well-graded sand with clay and gravel"},
    {"SW-SC", "Well-graded sand with silty clay", "Well-graded sand with silty clay and gravel", kSiltyClay},
    {"GP-GC", "Poorly-graded gravel with clay", "Poorly-graded gravel with clay and sand"},
    {"GP-GC", "Poorly-graded gravel with silty clay", "Poorly-graded gravel with silty clay and sand", kSiltyClay},
    {"GW-GC", "Well-graded gravel with clay", "Well-graded gravel with clay and sand"},
    {"GW-GC", "Well-graded gravel with silty clay", "Well-graded gravel with silty clay and sand", kSiltyClay},
    // The silty clay changes the names of the four mixed symbols only.
    {"SC", "Clayey sand", "Clayey sand with gravel", kSiltyClay},
    {"SP-SM", "Poorly-graded sand with silt", "Poorly-graded sand with silt and gravel", kSiltyClay},
};

TEST(UscsName, CoarseSoilTellsTheOtherPartFromFifteenPercent)
{
    for (const CoarseNames& of : kCoarse) {
        const bool isSand = of.symbol.front() == 'S';
        const auto sample = [&](double other) {  // 10 percent fines; `other` percent of the other part
            return isSand ? Sample(100 - other, 10, of.limits) : Sample(10 + other, 10, of.limits);
        };
        EXPECT_EQ(UscsName(of.symbol, sample(14.5)), of.below15) << of.symbol;
        EXPECT_EQ(UscsName(of.symbol, sample(15)), of.from15) << of.symbol;
    }
}

/// A row of the chart of fine soils: the percentages passing, and the names of CL-ML, ML, MH, CL and CH.
struct FineNames {
    double passing4, passing200;
    std::string_view names[5];
};
constexpr std::string_view kFineSymbols[]{"CL-ML", "ML", "MH", "CL", "CH"};
constexpr FineNames kFine[]{
    {70,
     60,
     {"Gravelly silty clay", "Gravelly silt", "Gravelly elastic silt", "Gravelly lean clay", "Gravelly fat clay"}},
    {70,
     55,
     {"Gravelly silty clay with sand", "Gravelly silt with sand", "Gravelly elastic silt with sand",
      "Gravelly lean clay with sand", "Gravelly fat clay with sand"}},
    {90, 60, {"Sandy silty clay", "Sandy silt", "Sandy elastic silt", "Sandy lean clay", "Sandy fat clay"}},
    {85,
     60,
     {"Sandy silty clay with gravel", "Sandy silt with gravel", "Sandy elastic silt with gravel",
      "Sandy lean clay with gravel", "Sandy fat clay with gravel"}},
    {80,
     70,
     {"Silty clay with gravel", "Silt with gravel", "Elastic silt with gravel", "Lean clay with gravel",
      "Fat clay with gravel"}},
    {92,
     84,
     {"Silty clay with sand", "Silt with sand", "Elastic silt with sand", "Lean clay with sand", "Fat clay with sand"}},
    {90, 85, {"Silty clay", "Silt", "Elastic silt", "Lean clay", "Fat clay"}},
};

TEST(UscsName, FineSoilTellsItsCoarsePartInSevenWays)
{
    for (const FineNames& row : kFine) {
        for (std::size_t i = 0; i < std::size(kFineSymbols); ++i)
            EXPECT_EQ(UscsName(kFineSymbols[i], Sample(row.passing4, row.passing200)), row.names[i]);
    }
}

TEST(UscsName, AsMuchSandAsGravelIsSandy)
{
    EXPECT_EQ(UscsName("CL", Sample(84, 68)), "Sandy lean clay with gravel");  // 16 and 16
    EXPECT_EQ(UscsName("CL", Sample(85.5, 69)), "Sandy lean clay");            // gravel 14.5, sand 16.5
    EXPECT_EQ(UscsName("ML", Sample(88, 76)), "Silt with sand");               // 12 and 12
}

TEST(UscsName, NoSymbolHasNoName)
{
    EXPECT_EQ(UscsName("CMH", Sample(100, 60)), "");
}

// A sand of 8 percent fines and 10 percent gravel whose fines lie above the A-line with a plasticity index of 5.
TEST(UscsName, ASandOfFewSiltyClayFines)
{
    const UscsSample sample = Graded(false, 90, 8, {25, 20});
    EXPECT_EQ(UscsSymbol(sample), "SP-SC");
    EXPECT_EQ(UscsName("SP-SC", sample), "Poorly-graded sand with silty clay");
}

}  // namespace
}  // namespace terravane
