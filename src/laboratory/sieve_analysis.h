/// The sieve analysis, as data: the masses on a stack of at most ten sieves and a pan.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

/// Columns of MSHSieve; row i is the i-th sieve from above.
namespace sieve {
enum Column { Number, Opening, EmptySieve, SieveAndSoil, Retained, Cumulative, CumulativePercent, Passing, kColumns };
}

inline constexpr int kMostSieves = 10;

namespace laboratory {

/// Number and opening come from the list of sieves that were chosen.
inline constexpr Line kSieveLines[]{
    {sieve::Number, "Sieve\r\nNumber\r\n   ", {.kept = "sn", .length = 15, .isWorkedOut = true}},
    {sieve::Opening, "   \r\nOpening\r\n(mm)", {.kept = "so", .isWorkedOut = true, .unit = kMillimetre}},
    {sieve::EmptySieve, "Mass of\r\nSeive\r\n(g)", {.kept = "ms", .unit = kGram, .like = {400, 500, 1}}},
    {sieve::SieveAndSoil,
     "Mass of\r\nSeive + Soil\r\n(g)",
     {.kept = "mss", .isReading = true, .unit = kGram, .like = {500, 620, 1}}},
    {sieve::Retained, "Mass of Soil\r\nRetained\r\n(g)", {.isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {sieve::Cumulative, "Cumulative\r\nRetained\r\n(g)", {.isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {sieve::CumulativePercent,
     "Cumulative\r\nRetained\r\n(%)",
     {.isWorkedOut = true, .unit = kPercent, .mask = kOneDecimal}},
    {sieve::Passing, "Percent\r\nPassing\r\n(%)", {.isWorkedOut = true, .unit = kPercent, .mask = kOneDecimal}},
};

inline constexpr Grid kSieveGrids[]{
    {.control = "MSHSieve",
     .frame = "Percent Passing Determination",
     .trials = Trials::OneBelowAnother,
     .count = kMostSieves,
     .lines = kSieveLines},
};
inline constexpr const Grid& kSieveStack = kSieveGrids[0];
static_assert(IsInOrder(kSieveStack) && kSieveStack.Lines() == sieve::kColumns);

inline constexpr Box kSieveBoxes[]{
    {"txtGsoil",
     "Dry Mass of Original Sample, (g)",
     {.page = "Dry Mass of Original Sample", .kept = "mos", .isReading = true, .unit = kGram, .like = {900, 1000, 1}}},
    {"txtDwp",
     "Dry Mass after Washing      , (g)",
     {.page = "Dry Mass after Washing", .kept = "maw", .unit = kGram, .like = {850, 900, 1}}},
    {"txtWl",
     "Mass Loss through Washing, (g)",
     {.page = "Mass Loss through Washing", .kept = "mlw", .unit = kGram, .like = {10, 60, 1}}},
};
inline constexpr const Box& kOriginalMass = kSieveBoxes[0];
inline constexpr const Box& kMassAfterWashing = kSieveBoxes[1];
inline constexpr const Box& kWashingLoss = kSieveBoxes[2];

/// The limits are saved with the stack but never read back: they belong to the Atterberg test.
inline constexpr Box kSieveResults[]{
    {"txtErr", "Pecent of Mass Loss", {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
    {"txtP4", "% passing No. 4 sieve ", {.isWorkedOut = true, .unit = kPercent}},
    {"txtP10", "% passing No. 10 sieve ", {.isWorkedOut = true, .unit = kPercent}},
    {"txtP40", "% passing No. 40 sieve ", {.isWorkedOut = true, .unit = kPercent}},
    {"txtP200", "% passing No. 200 sieve ", {.isWorkedOut = true, .unit = kPercent}},
    {"txtD60", "", {.page = "D60 (mm)", .isWorkedOut = true, .unit = kMillimetre}},
    {"txtD30", "", {.page = "D30 (mm)", .isWorkedOut = true, .unit = kMillimetre}},
    {"txtD10", "", {.page = "D10 (mm)", .isWorkedOut = true, .unit = kMillimetre}},
    {"txtCu", "", {.page = "Cu", .isWorkedOut = true, .unit = kRatio}},
    {"txtCc", "", {.page = "Cc", .isWorkedOut = true, .unit = kRatio}},
    {"txtLL",
     "Liquid Limit (LL)",
     {.kept = "LL", .isLoaded = false, .isResult = true, .unit = kPercent, .like = {30, 60, 1}}},
    {"txtPL",
     "Plastic Limit (PL)",
     {.kept = "PL", .isLoaded = false, .isResult = true, .unit = kPercent, .like = {15, 30, 1}}},
    {"txtSuscs", "Group Symbol", {.page = "Group Symbol", .isWorkedOut = true}},
    {"txtNuscs", "Group Name :", {.page = "Group Name", .isWorkedOut = true}},
    {"txtSaash", "Group Symbol", {.page = "Group Symbol", .isWorkedOut = true}},
    {"txtMtype", "Typical Names :", {.page = "Typical Names", .isWorkedOut = true}},
};

inline constexpr const Box& kMassLost = kSieveResults[0];
inline constexpr const Box& kPassing4 = kSieveResults[1];
inline constexpr const Box& kPassing10 = kSieveResults[2];
inline constexpr const Box& kPassing40 = kSieveResults[3];
inline constexpr const Box& kPassing200 = kSieveResults[4];
inline constexpr const Box& kD60 = kSieveResults[5];
inline constexpr const Box& kD30 = kSieveResults[6];
inline constexpr const Box& kD10 = kSieveResults[7];
inline constexpr const Box& kUniformity = kSieveResults[8];
inline constexpr const Box& kCurvature = kSieveResults[9];
inline constexpr const Box& kTakenLiquidLimit = kSieveResults[10];
inline constexpr const Box& kTakenPlasticLimit = kSieveResults[11];
inline constexpr const Box& kUscsSymbol = kSieveResults[12];
inline constexpr const Box& kUscsName = kSieveResults[13];
inline constexpr const Box& kAashtoSymbol = kSieveResults[14];
inline constexpr const Box& kAashtoName = kSieveResults[15];

inline constexpr Option kSieving[]{{"optNo", "Dry", "0"}, {"optYes", "Wet", "1"}};

inline constexpr std::string_view kSieveTabs[]{"Sieve Analysis", "Particle Size Distribution", "Soil Classification"};

inline constexpr std::string_view kSieveCommands[]{"cmdCal", "cmdgraph", "cmdAtt", "cmdClass"};

inline constexpr Sheet kSieveSheet{
    .form = "frmSieve",
    .caption = "Sieve Analysis",
    .tabs = kSieveTabs,
    .boxes = kSieveBoxes,
    .grids = kSieveGrids,
    .results = kSieveResults,
    .commands = kSieveCommands,
    .choice = {{.kept = "pwash"}, kSieving},
    .closing = {.beforeFile = 5, .beforeSheet = 4},
};

inline constexpr std::string_view kClassification = "Soil Classification";

/// The fractions are posted as texts of the conversion that keeps a place for the sign.
inline constexpr Posted kSievePosts[]{
    {.column = "gravel",
     .property = "Gravel Fraction (%)",
     .printed = "Gravel Fraction (GF)",
     .unit = kPercent,
     .mask = kOneDecimal},
    {.column = "sand",
     .property = "Sand Fraction (%)",
     .printed = "Sand Fraction (SF)",
     .unit = kPercent,
     .mask = kOneDecimal},
    {.column = "finer",
     .property = "Fine Fraction  (%)",
     .printed = "Fine Fraction (Passing #200)",
     .unit = kPercent,
     .mask = kOneDecimal},
    {.column = "USCS",
     .property = "USCS",
     .printed = "USCS",
     .unit = kText,
     .control = "txtSuscs",
     .group = kClassification,
     .length = 20},
    {.column = "AASHTO",
     .property = "AASHTO",
     .printed = "AASHTO",
     .unit = kText,
     .control = "txtSaash",
     .group = kClassification,
     .length = 20},
};

inline constexpr Taken kSieveTakes[]{{"LL", "LL", Test::AttSoil, "LL", true}, {"PL", "PL", Test::AttSoil, "PL", true}};
inline constexpr Test kSieveNeeds[]{Test::AttSoil};

inline constexpr Description kSieveAnalysis{
    .test = Test::SieSoil,
    .key = "sie",
    .menu = "mnuSie",
    .buttonKey = "mnuSei",  // the button's key alone is spelled so
    .prefix = "sie_",
    .names = {.title = "Sieve Analysis",
              .sentence = "the sieve analysis",
              .button = "Sieve Analysis",
              .english = "Sieve Analysis Test",
              .banner = "การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน",
              .cover = "ผลทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"},
    .sheet = kSieveSheet,
    .soil = {"SIESOIL", 6},
    .crushedRock = {"SIECRUSH", 14},
    .rows = kMostSieves,
    .workOrder = 2,
    .posts = kSievePosts,
    .takes = kSieveTakes,
    .needs = kSieveNeeds,
};

}  // namespace laboratory

}  // namespace terravane
