/// The specific gravity test, as data: readings of a flask of water at several temperatures, and trials of flask, water
/// and soil.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

/// Columns of MSHCalibration; row i is reading i.
namespace calibration {
enum Column { Number, FlaskAndWater, Temperature, kColumns };
}

/// Rows of MSHSpecific; columns 1 to 3 are the trials.
namespace gravity {
enum Row {
    TrialNumber,
    Temperature,
    FlaskAndWater,
    FlaskWaterAndSoil,
    ContainerNumber,
    DryAndContainer,
    Container,
    DrySoil,
    Correction,
    Gravity,
    Average,
    kRows
};
}

inline constexpr int kCalibrationReadings = 7;
inline constexpr int kGravityTrials = 3;

namespace laboratory {

inline constexpr std::string_view kReadingTitles[]{"No.", "1", "2", "3", "4", "5", "6", "7"};
inline constexpr std::string_view kGravityTitles[]{"Trial No.", "1", "2", "3"};

/// The table keeps the temperature before the mass.
inline constexpr Line kCalibrationLines[]{
    {calibration::Number, "No."},
    {calibration::FlaskAndWater,
     "Flask + Water\n(g)",
     {.kept = "fwater", .isReading = true, .unit = kGram, .like = {678, 678.2, 2, -0.4}}},
    {calibration::Temperature,
     "Temperature\n(celsius)",
     {.kept = "temp1", .place = 5, .isReading = true, .unit = kCelsius, .like = {18, 19, 1, 4}}},
};

inline constexpr Line kGravityLines[]{
    {gravity::TrialNumber, "Trial No."},
    {gravity::Temperature,
     "Temperature, (Degree Celsius)",
     {.kept = "temp2", .isReading = true, .unit = kCelsius, .like = {24, 30, 1}}},
    {gravity::FlaskAndWater, "Mass of Flask + Water, (g)", {.isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {gravity::FlaskWaterAndSoil,
     "Mass of Flask + Water + Soil, (g)",
     {.kept = "swsoil", .isReading = true, .unit = kGram, .like = {714, 716, 2}}},
    {gravity::ContainerNumber, "Container No.", {.kept = "can"}},
    {gravity::DryAndContainer,
     "Mass of Dry Soil + Container, (g)",
     {.kept = "dscan", .unit = kGram, .like = {155, 160, 2}}},
    {gravity::Container, "Mass of Container, (g)", {.kept = "wcan", .unit = kGram, .like = {96, 98, 2}}},
    {gravity::DrySoil, "Dry Soil, (g)", {.isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {gravity::Correction,
     "Correction Factor, K",
     {.page = "Correction Factor", .isWorkedOut = true, .unit = kRatio, .mask = kFourDecimals}},
    {gravity::Gravity,
     "Specific Gravity at 20 Degree Celsius, Gs",
     {.page = "Specific Gravity at 20 Degree Celsius", .isWorkedOut = true, .unit = kRatio, .mask = kNoForcedZero}},
    {gravity::Average,
     "Average Specific Gravity, Gs(avg)",
     {.page = "Average Specific Gravity",
      .kept = "gs",
      .isLoaded = false,
      .isWorkedOut = true,
      .isResult = true,
      .unit = kRatio,
      .mask = kTwoDecimals}},
};

inline constexpr Grid kSpecificGravityGrids[]{
    {.control = "MSHCalibration",
     .frame = "Flask Calibration",
     .trials = Trials::OneBelowAnother,
     .count = kCalibrationReadings,
     .lines = kCalibrationLines,
     .trialTitles = kReadingTitles},
    {.control = "MSHSpecific",
     .frame = "Specific Gravity Determination",
     .trials = Trials::SideBySide,
     .count = kGravityTrials,
     .lines = kGravityLines,
     .trialTitles = kGravityTitles,
     .titleWidth = 3000},
};
inline constexpr const Grid& kCalibration = kSpecificGravityGrids[0];
inline constexpr const Grid& kGravityTrialGrid = kSpecificGravityGrids[1];
static_assert(IsInOrder(kCalibration) && kCalibration.Lines() == calibration::kColumns);
static_assert(IsInOrder(kGravityTrialGrid) && kGravityTrialGrid.Lines() == gravity::kRows);

/// Of the calibration curve; they come anew with each plot.
inline constexpr Box kSpecificGravityResults[]{
    {"txtFormula", "Equation of Curve", {.isWorkedOut = true}},
    {"txtR", "R-squared Value", {.isWorkedOut = true, .unit = kRatio}},
};
inline constexpr const Box& kCalibrationFormula = kSpecificGravityResults[0];
inline constexpr const Box& kCalibrationRSquared = kSpecificGravityResults[1];

inline constexpr std::string_view kSpecificGravityTabs[]{"Flask Calibration", "Specific Gravity Determination"};

inline constexpr std::string_view kSpecificGravityCommands[]{"cmdgraph", "cmdCal"};

inline constexpr Sheet kSpecificGravitySheet{
    .form = "frmSpecific",
    .caption = "Specific Gravity Test",
    .tabs = kSpecificGravityTabs,
    .grids = kSpecificGravityGrids,
    .results = kSpecificGravityResults,
    .commands = kSpecificGravityCommands,
    .closing = {.beforeFile = 6, .beforeSheet = 5},
};

inline constexpr Posted kSpecificGravityPosts[]{
    {"Gs", "Avg. Gs", "Average Specific Gravity (Gs)", kRatio, "MSHSpecific", gravity::Average},
};

inline constexpr Description kSpecificGravity{
    .test = Test::SpcSoil,
    .key = "spc",
    .menu = "mnuSpe",
    .buttonKey = "mnuSpe",
    .prefix = "spc_",
    .names = {.title = "Specific Gravity",
              .sentence = "the specific gravity test",
              .button = "Specific Gravity",
              .english = "Specific Gravity Test",
              .banner = "การทดสอบหาความถ่วงจำเพาะของดิน",
              .cover = "ผลทดสอบหาความถ่วงจำเพาะของดิน",
              .preview = "การทดสอบหาความความถ่วงจำเพาะของดิน"},
    .sheet = kSpecificGravitySheet,
    .soil = {"SPCSOIL", 4},
    .crushedRock = {"SPCCRUSH", 12},
    .rows = kCalibrationReadings,
    .workOrder = 3,
    .posts = kSpecificGravityPosts,
};

}  // namespace laboratory

}  // namespace terravane
