/// The compaction tests, standard and modified, as data: one sheet for both. Trials of one sample at rising water
/// contents in a mold.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

namespace compaction {

inline constexpr int kTrials = 6;

/// Rows of MSHWt; columns 1 to 6 are the trials.
namespace water {
enum Row { Sample, CanNumber, WetAndCan, DryAndCan, Can, Water, DrySoil, WaterContent, kRows };
}

/// Rows of MSHDensity, which has no heads; column i is the trial of MSHWt's column i.
namespace density {
enum Row { AssumedWater, WetAndMold, Mold, WaterContent, WetSoil, WetDensity, DryDensity, kRows };
}

}  // namespace compaction

namespace laboratory {

inline constexpr std::string_view kCompactionTitles[]{"Sample No. ", "1 ", "2 ", "3 ", "4 ", "5 ", "6 "};

inline constexpr Line kCompactionWaterLines[]{
    {compaction::water::Sample, "Sample No. "},
    {compaction::water::CanNumber, "Moisture Can No. ", {.page = "Moisture Can No.", .kept = "can", .length = 5}},
    {compaction::water::WetAndCan,
     "Mass of Can + Wet Soil, (g) ",
     {.page = "Mass of Can + Wet Soil, (g)",
      .kept = "wcanw",
      .isReading = true,
      .unit = kGram,
      .mask = kTwoDecimals,
      .like = {42, 43, 2, 0.5}}},
    {compaction::water::DryAndCan,
     "Mass of Can + Dry Soil, (g) ",
     {.page = "Mass of Can + Dry Soil, (g)",
      .kept = "wcand",
      .isReading = true,
      .unit = kGram,
      .mask = kTwoDecimals,
      .like = {40, 40.4, 2}}},
    {compaction::water::Can,
     "Mass of Can, (g) ",
     {.page = "Mass of Can, (g)", .kept = "wcan", .unit = kGram, .mask = kTwoDecimals, .like = {20, 22, 2}}},
    {compaction::water::Water,
     "Mass of Water, (g) ",
     {.page = "Mass of Water, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {compaction::water::DrySoil,
     "Mass of Dry Soil, (g) ",
     {.page = "Mass of Dry Soil, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {compaction::water::WaterContent,
     "Water Content, (%)",
     {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

/// On the page the water content bears the unit of the rows above it, as the laboratory's form does.
inline constexpr Line kCompactionDensityLines[]{
    {compaction::density::AssumedWater,
     "Assumed Water Content, (%)",
     {.kept = "awc", .length = 5, .unit = kPercent, .like = {4, 20, 0}}},
    {compaction::density::WetAndMold,
     "Mass of Wet Soil + Mold, (g)",
     {.page = "Mass of Soil + Mold, (g)",
      .kept = "wsm",
      .isReading = true,
      .unit = kGram,
      .like = {3300, 3500, 1, 30}}},
    {compaction::density::Mold,
     "Mass of Mold, (g)",
     {.kept = "wm", .isReading = true, .unit = kGram, .like = {1484, 1485, 1}}},
    {compaction::density::WaterContent,
     "Water Content, (%)",
     {.page = "Water Content, (g)", .isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
    {compaction::density::WetSoil,
     "Mass of Wet Soil in Mold, (g) ",
     {.page = "Mass of Soil in Mold, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {compaction::density::WetDensity,
     "Wet Density, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
    {compaction::density::DryDensity,
     "Dry  Density, (g/cm^3)",
     {.page = "Dry Density, (g/cm^3)", .isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
};

inline constexpr Grid kCompactionGrids[]{
    {.control = "MSHWt",
     .frame = "Water Content Determination",
     .trials = Trials::SideBySide,
     .count = compaction::kTrials,
     .lines = kCompactionWaterLines,
     .trialTitles = kCompactionTitles,
     .titleWidth = 2500},
    {.control = "MSHDensity",
     .frame = "Dry Density Determination",
     .trials = Trials::SideBySide,
     .count = compaction::kTrials,
     .lines = kCompactionDensityLines,
     .heads = 0,
     .titleWidth = 2500},
};
inline constexpr const Grid& kCompactionWater = kCompactionGrids[0];
inline constexpr const Grid& kCompactionDensity = kCompactionGrids[1];
static_assert(IsInOrder(kCompactionWater) && kCompactionWater.Lines() == compaction::water::kRows);
static_assert(IsInOrder(kCompactionDensity) && kCompactionDensity.Lines() == compaction::density::kRows);

inline constexpr Box kCompactionBoxes[]{
    {"txtHeight", "Ht. of Mold (cm)", {.kept = "height", .unit = kCentimetre, .like = {11.5, 11.7, 3}}},
    {"txtDia", "Dia. of Mold (cm)", {.kept = "dia", .unit = kCentimetre, .like = {10.1, 10.2, 2}}},
    {"cboBlow", "Blows/Layer", {.kept = "blow", .unit = kCount, .like = {25, 56, 0}}},
    {"cboLayer", "No.Layers", {.kept = "layer", .unit = kCount, .like = {3, 5, 0}}},
    {"cboWt", "Wt. Hammer", {.kept = "wt", .unit = kKilogram}},
};
inline constexpr const Box& kMoldHeight = kCompactionBoxes[0];
inline constexpr const Box& kMoldDiameter = kCompactionBoxes[1];
inline constexpr const Box& kBlows = kCompactionBoxes[2];
inline constexpr const Box& kLayers = kCompactionBoxes[3];
inline constexpr const Box& kHammer = kCompactionBoxes[4];

inline constexpr Box kCompactionResults[]{
    {"txtOMC",
     "OMC",
     {.kept = "omc", .isLoaded = false, .isWorkedOut = true, .isResult = true, .unit = kPercent, .mask = kOneDecimal}},
    {"txtDmax",
     "MDD",
     {.kept = "mdd",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kGramPerCubicCentimetre,
      .mask = kTwoDecimals}},
    {"txtGs", "Gs", {.kept = "gs", .isResult = true, .unit = kRatio, .like = {2.6, 2.8, 2}}},
};
inline constexpr const Box& kOptimumMoisture = kCompactionResults[0];
inline constexpr const Box& kMaximumDryDensity = kCompactionResults[1];
inline constexpr const Box& kAirVoidGravity = kCompactionResults[2];

inline constexpr std::string_view kCompactionTabs[]{"Data Monitor Determination",
                                                    "Compaction Parameters Determination"};

inline constexpr std::string_view kCompactionCommands[]{"cmdCal", "cmdOMC"};

inline constexpr Sheet kCompactionSheet{
    .form = "frmCompaction",
    .caption = "Compaction Test",
    .tabs = kCompactionTabs,
    .boxes = kCompactionBoxes,
    .grids = kCompactionGrids,
    .results = kCompactionResults,
    .commands = kCompactionCommands,
    .trimsLists = true,
    .closing = {.beforeFile = 3, .beforeSheet = 2},
};

inline constexpr Taken kCompactionTakes[]{{"gs", "Gs", Test::SpcSoil, "gs", true}};
inline constexpr Test kCompactionNeeds[]{Test::SpcSoil};

inline constexpr Posted kStandardPosts[]{
    {"omcS", "OMC (%)", "Optimum Moisture Content (OMC)", kPercent, "txtOMC"},
    {"mddS", "MDD (g/cm^3)", "Maximum Dry Density (MDD)", kGramPerCubicCentimetre, "txtDmax"},
};
inline constexpr Posted kModifiedPosts[]{
    {"omcM", "OMC (%)", "Optimum Moisture Content (OMC)", kPercent, "txtOMC"},
    {"mddM", "MDD (g/cm^3)", "Maximum Dry Density (MDD)", kGramPerCubicCentimetre, "txtDmax"},
};

inline constexpr Description kStandardCompaction{
    .test = Test::StdSoil,
    .key = "std",
    .menu = "mnuStd",
    .buttonKey = "mnuStd",
    .prefix = "std_",
    .names = {.title = "Standard Compaction",
              .sentence = "the standard compaction",
              .button = "Std. Compaction",
              .english = "Standard Compaction Test",
              .banner = "การทดสอบการบดอัดแบบมาตรฐาน",
              .cover = "ผลทดสอบการบดอัดดินแบบมาตรฐาน"},
    .sheet = kCompactionSheet,
    .soil = {"STDSOIL", 1},
    .crushedRock = {"STDCRUSH", 8},
    .rows = compaction::kTrials,
    .workOrder = 4,
    .posts = kStandardPosts,
    .takes = kCompactionTakes,
    .needs = kCompactionNeeds,
};

inline constexpr Description kModifiedCompaction{
    .test = Test::ModSoil,
    .key = "mod",
    .menu = "mnuMod",
    .buttonKey = "mnuMod",
    .prefix = "mod_",
    .names = {.title = "Modified Compaction",
              .sentence = "the modified compaction",
              .button = "Mod. Compaction",
              .english = "Modified Compaction Test",
              .banner = "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน",
              .cover = "ผลทดสอบการบดอัดดินแบบสูงกว่ามาตรฐาน"},
    .sheet = kCompactionSheet,
    .soil = {"MODSOIL", 2},
    .crushedRock = {"MODCRUSH", 9},
    .rows = compaction::kTrials,
    .workOrder = 5,
    .posts = kModifiedPosts,
    .takes = kCompactionTakes,
    .needs = kCompactionNeeds,
};

}  // namespace laboratory

}  // namespace terravane
