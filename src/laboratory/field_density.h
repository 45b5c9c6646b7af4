/// The field density test by the sand cone, as data: the sand is calibrated for its mass in the cone and its density;
/// the sand that fills a hole gives the hole's volume.
#pragma once

#include <array>

#include "laboratory/description.h"
#include "laboratory/masks.h"

namespace terravane {

namespace field {

inline constexpr int kColumns = 6;  // of every grid, from 1: determinations of the sand, or test holes

/// Rows of MSHWsand: the sand that stays in the cone.
namespace cone {
enum Row { Determination, Initial, Final, SandInCone, Average, kRows };
}

/// Rows of MSHDsand: the density of the sand, from a mold.
namespace sand {
enum Row { Determination, Diameter, Height, Mold, MoldAndSand, Sand, Volume, Density, kRows };
}

/// Rows of MSHWsoil: the wet soil from the hole.
namespace soil {
enum Row { Hole, WetAndPan, Pan, WetSoil, kRows };
}

/// Rows of MSHWater.
namespace water {
enum Row { Hole, WetAndCan, DryAndCan, Can, Water, DrySoil, WaterContent, kRows };
}

/// Rows of MSHVolume: the sand that fills the hole.
namespace volume {
enum Row { Hole, Initial, Final, SandInCone, SandInHole, SandDensity, Volume, kRows };
}

/// Rows of MSHSummary.
namespace summary {
enum Row { Hole, MaximumDensity, WetDensity, DryDensity, Compaction, kRows };
}

}  // namespace field

namespace laboratory {

inline constexpr std::string_view kConeTitles[]{"Determination no.  ", "1 ", "2 ", "3", "4 ", "5 ", "6 "};
inline constexpr std::string_view kSandTitles[]{"Determination no. ", "1 ", "2 ", "3", "4 ", "5 ", "6 "};
inline constexpr std::string_view kHoleTitles[]{"Test Hole no.  ", "1 ", "2 ", "3", "4 ", "5 ", "6 "};
inline constexpr std::string_view kHoleTitlesCloser[]{"Test Hole no.", "1 ", "2 ", "3", "4 ", "5 ", "6 "};
inline constexpr double kFieldTitleWidth = 3000;

inline constexpr Line kConeLines[]{
    {field::cone::Determination, "Determination no.  "},
    {field::cone::Initial,
     "Initial Mass of Sand + Jar + Cone, (g)",
     {.page = "Initial Mass of Jar + Sand + Cone, (g)",
      .kept = "imsjc",
      .isReading = true,
      .unit = kGram,
      .like = {7000, 7100, 0}}},
    {field::cone::Final,
     "Final Mass of Sand + Jar + Cone, (g)",
     {.page = "Final Mass of Jar + Sand + Cone, (g)", .kept = "fmsjc", .unit = kGram, .like = {5300, 5350, 0}}},
    {field::cone::SandInCone, "Mass of Sand in Cone, (g)", {.isWorkedOut = true, .unit = kGram}},
    {field::cone::Average, "Average, (g)", {.isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
};

/// The table keeps the height before the diameter.
inline constexpr Line kSandLines[]{
    {field::sand::Determination, "Determination no. "},
    {field::sand::Diameter,
     "Diameter of Mold, (cm)  ",
     {.kept = "dia", .place = 7, .unit = kCentimetre, .like = {15.1, 15.3, 2}}},
    {field::sand::Height,
     "Height of Mold, (cm)  ",
     {.kept = "height", .place = 6, .unit = kCentimetre, .like = {11.6, 11.7, 2}}},
    {field::sand::Mold,
     "Mass of Empty Mold + Baseplate, (g) ",
     {.page = "Mass of Empty Mold + Baseplate, (g)", .kept = "mem", .unit = kGram, .like = {4000, 4100, 0}}},
    {field::sand::MoldAndSand,
     "Mass of Mold + Sand + Baseplate, (g) ",
     {.page = "Mass of Mold + Sand + Baseplate, (g)", .kept = "mms", .unit = kGram, .like = {7000, 7200, 0}}},
    {field::sand::Sand, "Mass of Sand, (g) ", {.page = "Mass of Sand, (g)", .isWorkedOut = true, .unit = kGram}},
    {field::sand::Volume,
     "Volume of Mold, (cm^3) ",
     {.page = "Volume of Mold, (cm^3)", .isWorkedOut = true, .unit = kCubicCentimetre, .mask = kTwoDecimals}},
    {field::sand::Density,
     "Density of Sand, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
};

inline constexpr Line kHoleSoilLines[]{
    {field::soil::Hole, "Test Hole no.  "},
    {field::soil::WetAndPan,
     "Mass of Wet Soil + Pan, (g)",
     {.kept = "mmsp", .isReading = true, .unit = kGram, .like = {4300, 4500, 1}}},
    {field::soil::Pan, "Mass of Pan, (g)", {.kept = "mp", .unit = kGram, .like = {300, 310, 1}}},
    {field::soil::WetSoil, "Mass of Wet Soil, (g)", {.isWorkedOut = true, .unit = kGram}},
};

inline constexpr Line kHoleVolumeLines[]{
    {field::volume::Hole, "Test Hole no."},
    {field::volume::Initial,
     "Initial Mass of Sand + Jar + Cone, (g)",
     {.page = "Initial of Soil + Jar + Cone, (g)",
      .kept = "imsj",
      .isReading = true,
      .unit = kGram,
      .like = {7200, 7300, 0}}},
    {field::volume::Final,
     "Final Mass of Sand + Jar + Cone, (g)",
     {.page = "Final of Soil + Jar + Cone, (g)", .kept = "fmsj", .unit = kGram, .like = {2500, 2600, 0}}},
    {field::volume::SandInCone, "Mass of Sand in Cone, (g)", {.isWorkedOut = true, .unit = kGram}},
    {field::volume::SandInHole, "Mass of Sand in Hole, (g)", {.isWorkedOut = true, .unit = kGram}},
    {field::volume::SandDensity, "Density of Sand, (g/cm^3)", {.isWorkedOut = true, .unit = kGramPerCubicCentimetre}},
    {field::volume::Volume,
     "Volume of Hole, (cm^3)",
     {.isWorkedOut = true, .unit = kCubicCentimetre, .mask = kTwoDecimals}},
};

inline constexpr Line kHoleWaterLines[]{
    {field::water::Hole, "Test Hole no.  "},
    {field::water::WetAndCan,
     "Mass of Wet Soil + Can, (g)",
     {.kept = "mwsc", .isReading = true, .unit = kGram, .like = {120, 130, 2}}},
    {field::water::DryAndCan, "Mass of Dry Soil + Can, (g)", {.kept = "mdsc", .unit = kGram, .like = {110, 118, 2}}},
    {field::water::Can, "Mass of Can, (g)", {.kept = "mc", .unit = kGram, .like = {20, 25, 2}}},
    {field::water::Water,
     "Mass of Water, (g)",
     {.page = "Mass of Wet Soil, (g)", .isWorkedOut = true, .unit = kGram, .mask = kTwoDecimals}},
    {field::water::DrySoil, "Mass of Dry Soil, (g)", {.isWorkedOut = true, .unit = kGram}},
    {field::water::WaterContent, "Water Content, (%)", {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

inline constexpr Line kHoleSummaryLines[]{
    {field::summary::Hole, "Test Hole no."},
    {field::summary::MaximumDensity,
     "MDD from Compation Test, (g/cm^3)",
     {.page = "Max. Dry Density in Lab,(g/cm^3)",
      .kept = "mdd",
      .isResult = true,
      .unit = kGramPerCubicCentimetre,
      .like = {1.9, 2.2, 2}}},
    {field::summary::WetDensity,
     "Wet Density in Field, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
    {field::summary::DryDensity,
     "Dry Density in Field, (g/cm^3)",
     {.isWorkedOut = true, .unit = kGramPerCubicCentimetre, .mask = kTwoDecimals}},
    {field::summary::Compaction,
     "Percent Compaction, (%)",
     {.isWorkedOut = true, .unit = kPercent, .mask = kTwoDecimals}},
};

constexpr Grid FieldGrid(std::string_view control, std::string_view frame, std::span<const Line> lines,
                         std::span<const std::string_view> titles)
{
    return {.control = control,
            .frame = frame,
            .trials = Trials::SideBySide,
            .count = field::kColumns,
            .lines = lines,
            .trialTitles = titles,
            .titleWidth = kFieldTitleWidth};
}

/// In the order of the table.
inline constexpr Grid kFieldGrids[]{
    FieldGrid("MSHWsand", "Mass of Sand in Cone", kConeLines, kConeTitles),
    FieldGrid("MSHDsand", "Density of Sand", kSandLines, kSandTitles),
    FieldGrid("MSHWsoil", "Mass of Wet Soil", kHoleSoilLines, kHoleTitles),
    FieldGrid("MSHVolume", "Volume of Hole", kHoleVolumeLines, kHoleTitlesCloser),
    FieldGrid("MSHWater", "Water Content", kHoleWaterLines, kHoleTitles),
    FieldGrid("MSHSummary", "Summary", kHoleSummaryLines, kHoleTitlesCloser),
};
inline constexpr const Grid& kSandInCone = kFieldGrids[0];
inline constexpr const Grid& kSandDensity = kFieldGrids[1];
inline constexpr const Grid& kHoleSoil = kFieldGrids[2];
inline constexpr const Grid& kHoleVolume = kFieldGrids[3];
inline constexpr const Grid& kHoleWater = kFieldGrids[4];
inline constexpr const Grid& kHoleSummary = kFieldGrids[5];
static_assert(IsInOrder(kSandInCone) && kSandInCone.Lines() == field::cone::kRows);
static_assert(IsInOrder(kSandDensity) && kSandDensity.Lines() == field::sand::kRows);
static_assert(IsInOrder(kHoleSoil) && kHoleSoil.Lines() == field::soil::kRows);
static_assert(IsInOrder(kHoleVolume) && kHoleVolume.Lines() == field::volume::kRows);
static_assert(IsInOrder(kHoleWater) && kHoleWater.Lines() == field::water::kRows);
static_assert(IsInOrder(kHoleSummary) && kHoleSummary.Lines() == field::summary::kRows);

inline constexpr Box kFieldBoxes[]{
    {"txtPosition", "Position", {.kept = "pos", .length = 100, .place = 3}},
};
inline constexpr const Box& kPosition = kFieldBoxes[0];

/// Which compaction test the maximum density is from.
inline constexpr Option kFieldCompactions[]{{"optStd", "Standard Compaction", "Std"},
                                            {"optMod", "Modified Compaction", "Mod"}};

inline constexpr std::string_view kFieldTabs[]{"Calibration of Sand", "Soil and Volume of Hole",
                                               "Water Content and Compaction"};

inline constexpr std::string_view kFieldCommands[]{"cmdCal"};

inline constexpr Sheet kFieldSheet{
    .form = "frmDensity",
    .caption = "Field Density Test",
    .tabs = kFieldTabs,
    .boxes = kFieldBoxes,
    .grids = kFieldGrids,
    .commands = kFieldCommands,
    .choice = {{.kept = "comp", .place = 20}, kFieldCompactions},
    .closing = {.beforeFile = 4, .beforeSheet = 1},
};

inline constexpr Posted kFieldPosts[]{
    {.column = "compaction",
     .property = "Avg. PC (%)",
     .printed = "Average Percent Compaction",
     .unit = kPercent,
     .group = "Field Density by Sand Cone"},
};

inline constexpr Taken kFieldTakes[]{{"mdd", "MDD", Test::None, "mdd", false}};
inline constexpr Test kFieldNeeds[]{Test::StdSoil, Test::ModSoil};

inline constexpr Description kFieldDensity{
    .test = Test::DenSoil,
    .key = "den",
    .menu = "mnuDen",
    .buttonKey = "mnuDen",
    .prefix = "den_",
    .names = {.title = "Field Density",
              .sentence = "the field density test",
              .button = "Field Density",
              .english = "Field Density Test by Sand Cone Method",
              .banner = "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
              .cover = "ผลทดสอบการหาค่าความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
              .paper = "การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย"},
    .sheet = kFieldSheet,
    .soil = {"DENSOIL", 3},
    .crushedRock = {"DENCRUSH", 10},
    .rows = field::kColumns,
    .workOrder = 6,
    .posts = kFieldPosts,
    .takes = kFieldTakes,
    .needs = kFieldNeeds,
};

}  // namespace laboratory

}  // namespace terravane
