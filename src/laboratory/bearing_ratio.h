/// The bearing ratio test, as data: up to three molds at their densities, soaked, unsoaked or one of each; water
/// contents, densities, swelling while soaking, and the load on a piston pressed into each mold.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

namespace cbr {

inline constexpr int kMolds = 3;
/// What heads and plots call the molds and the curves of their ratios.
inline constexpr std::array<std::string_view, kMolds> kMoldNames{"Mold No.1", "Mold No.2", "Mold No.3"};
inline constexpr std::string_view kRatioAt01 = "CBR at 0.1 in.", kRatioAt02 = "CBR at 0.2 in.";

inline constexpr int kColumns = 6;  // cans and molds: three before soaking, three after
inline constexpr int kMostPenetrations = 20;

/// Rows of MSHWater; columns 1 to 6 are the cans.
namespace water {
enum Row { Condition, CanNumber, WetAndCan, DryAndCan, Can, WaterContent, kRows };
}

/// Rows of MSHCompaction; column i is the mold of MSHWater's column i.
namespace density {
enum Row { Condition, Mold, Blows, Diameter, Height, MoldAndSoil, JustMold, WetDensity, DryDensity, kRows };
}

/// MSHSwell: three rows of heads, the first reading, four later ones. A mold's dial has its percentage beside it.
namespace swell {
enum Row { Molds, Heads, Units, First, Second, Last = 7, kRows };
enum Column { Date, Time, Elapsed, FirstDial, kColumns = 9 };
constexpr int Dial(int mold)
{
    return FirstDial + 2 * (mold - 1);
}
}  // namespace swell

/// Columns of MSHPenetrate1, which has no heads, and of MSHPenetrate, which is its heads.
namespace penetration {
enum Column { Depth, FirstDial, kColumns = 10 };
inline constexpr int kHeadRows = 4;
constexpr int Dial(int mold)
{
    return FirstDial + 3 * (mold - 1);
}
constexpr int Load(int mold)
{
    return Dial(mold) + 1;
}
constexpr int Stress(int mold)
{
    return Dial(mold) + 2;
}
}  // namespace penetration

/// Rows of mshLPC; column i is the mold.
namespace result {
enum Row { Mold, DryDensity, At01, At02, kRows };
}

}  // namespace cbr

namespace laboratory {

inline constexpr Line kBearingWaterLines[]{
    {cbr::water::Condition, "Condition"},
    {cbr::water::CanNumber, "Can No.", {.kept = "mcan"}},
    {cbr::water::WetAndCan,
     "Mass of Can + Wet Soil, (g)",
     {.kept = "wcanw", .isReading = true, .unit = kGram, .like = {130, 132, 2}}},
    {cbr::water::DryAndCan, "Mass of Can + Dry Soil, (g)", {.kept = "wcand", .unit = kGram, .like = {119, 121, 2}}},
    {cbr::water::Can, "Mass of Can, (g)", {.kept = "wcan", .unit = kGram, .like = {20, 21, 2}}},
    {cbr::water::WaterContent, "Moistue Content, (%)", {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

inline constexpr Line kBearingDensityLines[]{
    {cbr::density::Condition, "Condition"},
    {cbr::density::Mold, "Mold No."},
    {cbr::density::Blows, "Number of Blows per Layer/Layers", {.kept = "nb", .length = 15, .unit = kCount}},
    {cbr::density::Diameter, "Diameter of Sample, (cm)", {.kept = "dm", .unit = kCentimetre, .like = {15.2, 15.3, 2}}},
    {cbr::density::Height, "Height of Sample, (cm)", {.kept = "hs", .unit = kCentimetre, .like = {11.6, 11.7, 2}}},
    {cbr::density::MoldAndSoil,
     "Mass of Mold + Compacted Soil, (g)",
     {.kept = "wms", .isReading = true, .unit = kGram, .like = {11100, 11200, 0, 250}}},
    {cbr::density::JustMold, "Mass of Mold, (g)", {.kept = "wm", .unit = kGram, .like = {7000, 7010, 0}}},
    {cbr::density::WetDensity,
     "Wet Density, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
    {cbr::density::DryDensity,
     "Dry Density, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
};

constexpr Line SwellDial(int mold, std::string_view title, std::string_view kept)
{
    return {cbr::swell::Dial(mold), title, {.kept = kept, .unit = kMillimetre, .like = {1, 1.2, 2, .1}}};
}
constexpr Line SwellPercent(int mold, std::string_view title)
{
    return {cbr::swell::Dial(mold) + 1, title, {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}};
}

/// The titles are those of a list: the sheet spreads them over three rows of heads, a head over each mold's columns.
inline constexpr Line kSwellLines[]{
    {cbr::swell::Date, "Date", {.kept = "sd", .length = 20, .unit = kDate}},
    {cbr::swell::Time, "Time", {.kept = "st", .unit = kHour, .like = {8, 16, 0}}},
    {cbr::swell::Elapsed, "Elapsed Time(hr)", {.kept = "set", .isWorkedOut = true, .unit = kHour}},
    SwellDial(1, "Mold No.1, Swelling mm", "s1"),
    SwellPercent(1, "Mold No.1, Swelling %"),
    SwellDial(2, "Mold No.2, Swelling mm", "s2"),
    SwellPercent(2, "Mold No.2, Swelling %"),
    SwellDial(3, "Mold No.3, Swelling mm", "s3"),
    SwellPercent(3, "Mold No.3, Swelling %"),
};

constexpr Line PenetrationDial(int mold, std::string_view title, std::string_view kept, const Plausible& like)
{
    return {cbr::penetration::Dial(mold), title, {.kept = kept, .isReading = true, .unit = kDivision, .like = like}};
}
constexpr Line PenetrationLoad(int mold, std::string_view title)
{
    return {cbr::penetration::Load(mold), title, {.isWorkedOut = true, .unit = kPound, .mask = kOneDecimal}};
}
constexpr Line PenetrationStress(int mold, std::string_view title)
{
    return {cbr::penetration::Stress(mold),
            title,
            {.isWorkedOut = true, .unit = kPoundPerSquareInch, .mask = kTwoDecimals}};
}

inline constexpr Line kPenetrationLines[]{
    {cbr::penetration::Depth, "Penetration (in)", {.kept = "pen", .unit = kInch, .like = {0, 0.01, 4, 0.025}}},
    PenetrationDial(1, "Mold No.1, Dial Reading (Div)", "read1", {0, 5, 1, 6}),
    PenetrationLoad(1, "Mold No.1, Load P (lb)"),
    PenetrationStress(1, "Mold No.1, Stress P/A (lb/in^2)"),
    PenetrationDial(2, "Mold No.2, Dial Reading (Div)", "read2", {0, 6, 1, 8}),
    PenetrationLoad(2, "Mold No.2, Load P (lb)"),
    PenetrationStress(2, "Mold No.2, Stress P/A (lb/in^2)"),
    PenetrationDial(3, "Mold No.3, Dial Reading (Div)", "read3", {0, 7, 1, 11}),
    PenetrationLoad(3, "Mold No.3, Load P (lb)"),
    PenetrationStress(3, "Mold No.3, Stress P/A (lb/in^2)"),
};

inline constexpr Line kBearingResultLines[]{
    {cbr::result::Mold, "Mold No. "},
    {cbr::result::DryDensity, "Dry Density (g/cm^3)  ", {.isWorkedOut = true, .unit = kGramPerCubicCentimetre}},
    {cbr::result::At01, "CBR at 0.1 in. (%) ", {.isWorkedOut = true, .unit = kPercent, .mask = kOneDecimal}},
    {cbr::result::At02, "CBR at 0.2 in. (%)", {.isWorkedOut = true, .unit = kPercent, .mask = kOneDecimal}},
};

/// The table keeps of the swelling the rows from the second one on: two rows of heads, as the texts they are, and all
/// readings but the last, though it has a record for that, which is loaded. So the project files are.
inline constexpr Grid kBearingGrids[]{
    {.control = "MSHWater",
     .frame = "Water Content Determination",
     .trials = Trials::SideBySide,
     .count = cbr::kColumns,
     .lines = kBearingWaterLines,
     .titleWidth = 2900},
    {.control = "MSHCompaction",
     .frame = "Dry Density Determination",
     .trials = Trials::SideBySide,
     .count = cbr::kColumns,
     .lines = kBearingDensityLines,
     .heads = cbr::density::Blows,
     .titleWidth = 2900},
    {.control = "MSHSwell",
     .frame = "Swelling Data",
     .trials = Trials::OneBelowAnother,
     .count = cbr::swell::kRows - cbr::swell::First,
     .lines = kSwellLines,
     .heads = 0,
     .firstTrial = cbr::swell::First,
     .records = cbr::kColumns},
    {.control = "MSHPenetrate1",
     .frame = "Penetration Data",
     .trials = Trials::OneBelowAnother,
     .count = cbr::kMostPenetrations,
     .lines = kPenetrationLines,
     .heads = 0,
     .firstTrial = 0,
     .firstRecord = 0,
     .isList = true},
    {.control = "mshLPC",
     .frame = "",
     .trials = Trials::SideBySide,
     .count = cbr::kMolds,
     .lines = kBearingResultLines,
     .titleWidth = 2100},
};
inline constexpr const Grid& kBearingWater = kBearingGrids[0];
inline constexpr const Grid& kBearingDensity = kBearingGrids[1];
inline constexpr const Grid& kSwelling = kBearingGrids[2];
inline constexpr const Grid& kPenetrations = kBearingGrids[3];
inline constexpr const Grid& kBearingRatios = kBearingGrids[4];
static_assert(IsInOrder(kBearingWater) && kBearingWater.Lines() == cbr::water::kRows);
static_assert(IsInOrder(kBearingDensity) && kBearingDensity.Lines() == cbr::density::kRows);
static_assert(IsInOrder(kSwelling) && kSwelling.Lines() == cbr::swell::kColumns);
static_assert(IsInOrder(kPenetrations) && kPenetrations.Lines() == cbr::penetration::kColumns);
static_assert(IsInOrder(kBearingRatios) && kBearingRatios.Lines() == cbr::result::kRows);

/// The table keeps them between the swelling and the penetrations.
inline constexpr Box kBearingBoxes[]{
    {"txtK",
     "K Constant",
     {.page = "Prv. Constant (K)  ", .kept = "k", .place = 21, .unit = kPoundPerDivision, .like = {4, 5, 4}}},
    {"txtWeight",
     "Surcharge",
     {.page = "Surcharge Weight  ", .kept = "sur", .place = 22, .unit = kKilogram, .like = {4.4, 4.6, 2}}},
};
inline constexpr const Box& kRingConstant = kBearingBoxes[0];
inline constexpr const Box& kSurcharge = kBearingBoxes[1];

/// Not kept: the parameters come from the compaction test that is chosen, the value is worked out anew.
inline constexpr Box kBearingResults[]{
    {"txtCompaction", "Type of Compaction", {}},
    {"txtOMC", "OMC", {.page = "OMC ", .unit = kPercent}},
    {"txtMDD", "MDD", {.page = "MDD ", .unit = kGramPerCubicCentimetre, .like = {1.9, 2.1, 2}}},
    {"txtOMC1", "Optimum Moisture Content (OMC)", {.unit = kPercent}},
    {"txtMDD1", "Maximum Dry Density (MDD)", {.unit = kGramPerCubicCentimetre}},
    {"cboCBR", "CBR at", {.unit = kPercent, .like = {90, 98, 0}}},
    {"txtCBR", "of MDD is", {.isWorkedOut = true, .unit = kPercent, .mask = kOneDecimal}},
};
inline constexpr const Box& kBearingCompaction = kBearingResults[0];
inline constexpr const Box& kBearingMoisture = kBearingResults[1];
inline constexpr const Box& kBearingMaximum = kBearingResults[2];
inline constexpr const Box& kBearingMoistureAgain = kBearingResults[3];
inline constexpr const Box& kBearingMaximumAgain = kBearingResults[4];
inline constexpr const Box& kShareOfMaximum = kBearingResults[5];
inline constexpr const Box& kBearingRatioBox = kBearingResults[6];

inline constexpr Option kConditions[]{
    {"optUnsoak", "Unsoaked", "0"}, {"optSoak", "Soaked", "1"}, {"optBoth", "Both", "2"}};

inline constexpr std::string_view kBearingTabs[]{"Water Content and Density", "Swelling and Penetration",
                                                 "Load-Penetration Curve", "CBR Value Determination"};

inline constexpr std::string_view kBearingCommands[]{"cmdCal", "cmdLPen", "cmdCBR"};

inline constexpr Sheet kBearingSheet{
    .form = "frmCBR",
    .caption = "California Bearing Ratio Test",
    .tabs = kBearingTabs,
    .boxes = kBearingBoxes,
    .grids = kBearingGrids,
    .results = kBearingResults,
    .commands = kBearingCommands,
    .choice = {{.kept = "typ"}, kConditions},
    .closing = {.beforeFile = 2, .beforeSheet = 3},
};

inline constexpr Posted kBearingPosts[]{
    {.column = "CBR", .property = "CBR (%)", .printed = "Percent CBR", .unit = kPercent},
};

inline constexpr Test kBearingNeeds[]{Test::StdSoil, Test::ModSoil};

inline constexpr Description kBearingRatio{
    .test = Test::CBRSoil,
    .key = "cbr",
    .menu = "mnuCBR",
    .buttonKey = "mnuCBR",
    .prefix = "cbr_",
    .names = {.title = "California Bearing Ratio",
              .sentence = "the bearing ratio test",
              .button = "CBR",
              .english = "California Bearing Ratio Test",
              .banner = "การทดสอบหาค่า ซี.บี.อาร์.",
              .cover = "ผลทดสอบการหาค่าซี.บี.อาร์."},
    .sheet = kBearingSheet,
    .soil = {"CBRSOIL", 7},
    .crushedRock = {"CBRCRUSH", 11},
    .rows = cbr::kMostPenetrations,
    .workOrder = 7,
    .posts = kBearingPosts,
    .needs = kBearingNeeds,
};

}  // namespace laboratory

}  // namespace terravane
