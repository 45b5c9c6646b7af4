/// The Atterberg limits test, as data: liquid limit trials at different numbers of blows, plastic limit threads.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

/// Rows of MSHLL; columns 1 to 5 are the trials.
namespace ll {
enum Row { TestNumber, Blows, WetAndCan, DryAndCan, Can, Water, DrySoil, WaterContent, kRows };
}

/// Rows of MSHPL; columns 1 to 5 are the threads.
namespace pl {
enum Row { TestNumber, WetAndCan, DryAndCan, Can, Water, DrySoil, WaterContent, PlasticLimit, Average, kRows };
}

inline constexpr int kLimitTrials = 5;

namespace laboratory {

inline constexpr std::string_view kLimitTitles[]{"Test No. ", "1 ", "2 ", "3 ", "4 ", "5 "};
inline constexpr double kLimitTitleWidth = 2500;

inline constexpr Line kLiquidLimitLines[]{
    {ll::TestNumber, "Test No. ", {.page = "Test No."}},
    {ll::Blows,
     "Number of Blows ",
     {.page = "Number of Blows", .kept = "blows", .isReading = true, .unit = kCount, .like = {12, 15, 0, 6}}},
    {ll::WetAndCan,
     "Mass of can + wet soil, (g) ",
     {.page = "Mass of Can + Wet Soil, (g)", .kept = "wscan1", .isReading = true, .unit = kGram, .like = {47, 48, 2}}},
    {ll::DryAndCan,
     "Mass of can + dry soil, (g) ",
     {.page = "Mass of Can + Dry Soil, (g)", .kept = "dscan1", .unit = kGram, .like = {38, 39, 2, .2}}},
    {ll::Can, "Mass of can, (g) ", {.page = "Mass of Can, (g)", .kept = "wcan1", .unit = kGram, .like = {18, 20, 2}}},
    {ll::Water,
     "Mass of water, (g) ",
     {.page = "Mass of Water, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {ll::DrySoil,
     "Mass of dry soil, (g) ",
     {.page = "Mass of Dry Soil, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {ll::WaterContent,
     "Water content, (%)",
     {.page = "Water Content, (%)", .isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

inline constexpr Line kPlasticLimitLines[]{
    {pl::TestNumber, "Test No. ", {.page = "Test No."}},
    {pl::WetAndCan,
     "Mass of can + wet soil, (g) ",
     {.page = "Mass of Can + Wet Soil, (g)", .kept = "wscan2", .isReading = true, .unit = kGram, .like = {30, 31, 2}}},
    {pl::DryAndCan,
     "Mass of can + dry soil, (g) ",
     {.page = "Mass of Can + Dry Soil, (g)", .kept = "dscan2", .unit = kGram, .like = {27, 28, 2}}},
    {pl::Can, "Mass of can, (g) ", {.page = "Mass of Can, (g)", .kept = "wcan2", .unit = kGram, .like = {15, 17, 2}}},
    {pl::Water,
     "Mass of water, (g) ",
     {.page = "Mass of Water, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {pl::DrySoil,
     "Mass of dry soil, (g) ",
     {.page = "Mass of Dry Soil, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {pl::WaterContent,
     "Water content, (%)",
     {.page = "Water Content, (%)", .isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
    {pl::PlasticLimit, "Plastic Limit, (%)", {.isWorkedOut = true, .unit = kPercent}},
    {pl::Average, "Average Plastic Limit, (%)", {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

inline constexpr Grid kAtterbergGrids[]{
    {.control = "MSHLL",
     .frame = "Liquid Limit Determination",
     .trials = Trials::SideBySide,
     .count = kLimitTrials,
     .lines = kLiquidLimitLines,
     .trialTitles = kLimitTitles,
     .titleWidth = kLimitTitleWidth},
    {.control = "MSHPL",
     .frame = "Plastic Limit Determination",
     .trials = Trials::SideBySide,
     .count = kLimitTrials,
     .lines = kPlasticLimitLines,
     .trialTitles = kLimitTitles,
     .titleWidth = kLimitTitleWidth},
};
inline constexpr const Grid& kLiquidLimit = kAtterbergGrids[0];
inline constexpr const Grid& kPlasticLimit = kAtterbergGrids[1];
static_assert(IsInOrder(kLiquidLimit) && kLiquidLimit.Lines() == ll::kRows);
static_assert(IsInOrder(kPlasticLimit) && kPlasticLimit.Lines() == pl::kRows);

/// Worked out by the flow curve's command, each time anew: the table keeps them for other tests.
inline constexpr Box kAtterbergResults[]{
    {"txtLL",
     "Liquid Limit (%)",
     {.page = "Liquid Limit (LL) ",
      .kept = "LL",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kPercent,
      .mask = kTwoDecimals}},
    {"txtPL",
     "Plastic Limit (%)",
     {.page = "Plastic Limit (PL) ",
      .kept = "PL",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kPercent,
      .mask = kTwoDecimals}},
    {"txtPI",
     "Plasticity Index",
     {.page = "Plasticity Index (PI) ",
      .kept = "PI",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kPercent}},
    {"txtFI",
     "Flow Index",
     {.page = "Flow Index (PI) ",  // as the laboratory's form has it
      .kept = "FI",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kPercent,
      .mask = kTwoDecimals}},
};
inline constexpr const Box& kLiquidLimitBox = kAtterbergResults[0];
inline constexpr const Box& kPlasticLimitBox = kAtterbergResults[1];
inline constexpr const Box& kPlasticityIndexBox = kAtterbergResults[2];
inline constexpr const Box& kFlowIndexBox = kAtterbergResults[3];

inline constexpr std::string_view kAtterbergTabs[]{"Data Monitor Determination", "Flow Curve"};

inline constexpr std::string_view kAtterbergCommands[]{"cmdCal", "cmdPlot"};

inline constexpr Sheet kAtterbergSheet{
    .form = "frmAtterberg",
    .caption = "Atterberg Limits Test",
    .tabs = kAtterbergTabs,
    .grids = kAtterbergGrids,
    .results = kAtterbergResults,
    .commands = kAtterbergCommands,
    .closing = {.beforeFile = 1, .beforeSheet = 6},
};

/// The flow index goes into the summary's column of that name: no swelling is measured here. It has no unit of its own
/// and prints the sign of its neighbours.
inline constexpr Posted kAtterbergPosts[]{
    {"LL", "LL (%)", "Liquid Limit (LL)", kPercent, "txtLL"},
    {"PL", "PL (%)", "Plastic Limit (PL)", kPercent, "txtPL"},
    {"PI", "PI (%)", "Plasticity Index (PI)", kPercent, "txtPI"},
    {.column = "swelling",
     .property = "FI",
     .printed = "Flow Index (FI)",
     .unit = kPercent,
     .control = "txtFI",
     .place = 15},
};

inline constexpr Description kAtterberg{
    .test = Test::AttSoil,
    .key = "att",
    .menu = "mnuAtt",
    .buttonKey = "mnuAtt",
    .prefix = "att_",
    .names = {.title = "Atterberg Limits",
              .sentence = "the Atterberg limits test",
              .button = "Atterberg Limits",
              .english = "Atterberg Limits Test",
              .banner = "การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก",
              .cover = "ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"},
    .sheet = kAtterbergSheet,
    .soil = {"ATTSOIL", 5},
    .crushedRock = {"ATTCRUSH", 13},
    .rows = kLimitTrials,
    .workOrder = 1,
    .posts = kAtterbergPosts,
};

}  // namespace laboratory

}  // namespace terravane
