/// The seven test sheets as one table: how they are opened, what is typed into them, their commands in the order of the
/// method, and what these post. Written from what a technician sees, not from the tables that load and save walk.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "laboratory/current_test.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/density/frmDensity.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/specific/frmSpecific.h"

namespace terravane::support {

using Names = std::span<const std::string_view>;

/// What a careful hand types into one line of a grid, or into a box.
/// line      of the grid, along which the trials stand: a row, or where `isColumn` says so a column
/// low, high, decimals  of the first trial; each later one is `step` further
struct ReadingRange {
    std::string_view control;
    int line;
    double low, high;
    int decimals;
    double step = 0;
    bool isColumn = false;
};

/// A command, on a tab that must be open.
struct SheetPress {
    std::string_view button;
    int tab = 0;
};

/// A posted column of SUMMARY and where its text stands on the sheet: a box, or a cell of a grid.
struct Posting {
    std::string_view command, column, control;
    int row = 0, cell = 0;
};

/// menu     stem of the toolbar item
/// boxes    typed and kept by the project file, beside those of the general data
/// session  typed and not read back from the file
/// choices  one of each group is chosen before anything is typed
/// fetches  pressed after typing, now and then: they bring texts of other tests into the sheet's own
/// posts    the columns whose text is a text of the sheet; what is posted otherwise has a test of its own
struct SheetUnderTest {
    std::string_view name, menu, form;
    Test test;
    Names boxes, session;
    std::span<const Names> choices;
    Names fetches;
    std::span<const SheetPress> commands;
    std::span<const ReadingRange> ranges;
    std::span<const Posting> posts;
};

/// The general data, and the column of HEAD that each of its first four boxes goes into.
struct HeadBox {
    std::string_view box, column;
};
inline constexpr std::array kHeadBoxes{
    HeadBox{"txtClient", "client"},
    HeadBox{"txtID", "number"},
    HeadBox{"txtProject", "name"},
    HeadBox{"txtLocation", "location"},
};
inline constexpr std::array<std::string_view, 3> kGeneralBoxes{"txtSoil", "cboTest", "cboCheck"};

namespace every_sheet {

inline constexpr int kBox = -1;  // the line of a range that is a box's

inline constexpr std::array<std::string_view, 6> kCompactionBoxes{"txtHeight", "txtDia", "cboBlow",
                                                                  "cboLayer",  "cboWt",  "txtGs"};
inline constexpr std::array<std::string_view, 2> kCurves{"optInt", "optFit"};
inline constexpr std::array<Names, 1> kCompactionChoices{kCurves};
inline constexpr std::array<std::string_view, 1> kCompactionFetches{"chkSatLine"};
inline constexpr std::array kCompactionCommands{SheetPress{"cmdCal"}, SheetPress{"cmdOMC", 1}};
inline constexpr std::array kCompactionRanges{
    ReadingRange{"txtHeight", kBox, 11.5, 11.7, 3},
    ReadingRange{"txtDia", kBox, 10.1, 10.2, 2},
    ReadingRange{"cboBlow", kBox, 25, 56, 0},
    ReadingRange{"cboLayer", kBox, 3, 5, 0},
    ReadingRange{"txtGs", kBox, 2.6, 2.8, 2},
    ReadingRange{"MSHWt", compaction::water::WetAndCan, 42, 43, 2, 0.5},
    ReadingRange{"MSHWt", compaction::water::DryAndCan, 40, 40.4, 2},
    ReadingRange{"MSHWt", compaction::water::Can, 20, 22, 2},
    ReadingRange{"MSHDensity", compaction::density::AssumedWater, 4, 20, 0},
    ReadingRange{"MSHDensity", compaction::density::WetAndMould, 3300, 3500, 1, 30},
    ReadingRange{"MSHDensity", compaction::density::Mould, 1484, 1485, 1},
};
inline constexpr std::array kStandardPosts{Posting{"cmdOMC", "sum_omcS", "txtOMC"},
                                           Posting{"cmdOMC", "sum_mddS", "txtDmax"}};
inline constexpr std::array kModifiedPosts{Posting{"cmdOMC", "sum_omcM", "txtOMC"},
                                           Posting{"cmdOMC", "sum_mddM", "txtDmax"}};

inline constexpr std::array kAtterbergCommands{SheetPress{"cmdCal"}, SheetPress{"cmdPlot", 1}};
inline constexpr std::array kAtterbergRanges{
    ReadingRange{"MSHLL", ll::Blows, 12, 15, 0, 6},      ReadingRange{"MSHLL", ll::WetAndCan, 47, 48, 2},
    ReadingRange{"MSHLL", ll::DryAndCan, 38, 39, 2, .2}, ReadingRange{"MSHLL", ll::Can, 18, 20, 2},
    ReadingRange{"MSHPL", pl::WetAndCan, 30, 31, 2},     ReadingRange{"MSHPL", pl::DryAndCan, 27, 28, 2},
    ReadingRange{"MSHPL", pl::Can, 15, 17, 2},
};
inline constexpr std::array kAtterbergPosts{
    Posting{"cmdPlot", "sum_LL", "txtLL"},
    Posting{"cmdPlot", "sum_PL", "txtPL"},
    Posting{"cmdPlot", "sum_PI", "txtPI"},
    Posting{"cmdPlot", "sum_swelling", "txtFI"},
};

inline constexpr std::array<std::string_view, 3> kSieveBoxes{"txtGsoil", "txtDwp", "txtWl"};
inline constexpr std::array<std::string_view, 2> kSieveSession{"txtLL", "txtPL"};
inline constexpr std::array<std::string_view, 2> kMethods{"optNo", "optYes"};
inline constexpr std::array<std::string_view, 2> kSmoothing{"", "chkSmooth"};
inline constexpr std::array<Names, 2> kSieveChoices{kMethods, kSmoothing};
inline constexpr std::array<std::string_view, 1> kSieveFetches{"cmdAtt"};
inline constexpr std::array kSieveCommands{SheetPress{"cmdCal"}, SheetPress{"cmdgraph", 1}, SheetPress{"cmdClass", 2}};
inline constexpr std::array kSieveRanges{
    ReadingRange{"txtGsoil", kBox, 900, 1000, 1},
    ReadingRange{"txtDwp", kBox, 850, 900, 1},
    ReadingRange{"txtWl", kBox, 10, 60, 1},
    ReadingRange{"txtLL", kBox, 30, 60, 1},
    ReadingRange{"txtPL", kBox, 15, 30, 1},
    ReadingRange{"MSHSieve", sieve::EmptySieve, 400, 500, 1, 0, true},
    ReadingRange{"MSHSieve", sieve::SieveAndSoil, 500, 620, 1, 0, true},
};
inline constexpr std::array kSievePosts{Posting{"cmdClass", "sum_USCS", "txtSuscs"},
                                        Posting{"cmdClass", "sum_AASHTO", "txtSaash"}};

inline constexpr std::array<std::string_view, 4> kModels{"optAut", "optExp", "optLin", "optPol"};
inline constexpr std::array<Names, 1> kSpecificChoices{kModels};
inline constexpr std::array kSpecificCommands{SheetPress{"cmdgraph"}, SheetPress{"cmdCal"}};
inline constexpr std::array kSpecificRanges{
    ReadingRange{"MSHCalibration", calibration::FlaskAndWater, 678, 678.2, 2, -0.4, true},
    ReadingRange{"MSHCalibration", calibration::Temperature, 18, 19, 1, 4, true},
    ReadingRange{"MSHSpecific", gravity::Temperature, 24, 30, 1},
    ReadingRange{"MSHSpecific", gravity::FlaskWaterAndSoil, 714, 716, 2},
    ReadingRange{"MSHSpecific", gravity::DryAndContainer, 155, 160, 2},
    ReadingRange{"MSHSpecific", gravity::Container, 96, 98, 2},
};
inline constexpr std::array kSpecificPosts{Posting{"cmdCal", "sum_Gs", "MSHSpecific", gravity::Average, 1}};

inline constexpr std::array<std::string_view, 1> kDensityBoxes{"txtPosition"};
inline constexpr std::array<std::string_view, 2> kProctors{"optStd", "optMod"};
inline constexpr std::array kDensityCommands{SheetPress{"cmdCal"}};
inline constexpr std::array kDensityRanges{
    ReadingRange{"MSHWsand", field::cone::Initial, 7000, 7100, 0},
    ReadingRange{"MSHWsand", field::cone::Final, 5300, 5350, 0},
    ReadingRange{"MSHDsand", field::sand::Diameter, 15.1, 15.3, 2},
    ReadingRange{"MSHDsand", field::sand::Height, 11.6, 11.7, 2},
    ReadingRange{"MSHDsand", field::sand::Mould, 4000, 4100, 0},
    ReadingRange{"MSHDsand", field::sand::MouldAndSand, 7000, 7200, 0},
    ReadingRange{"MSHWsoil", field::soil::WetAndPan, 4300, 4500, 1},
    ReadingRange{"MSHWsoil", field::soil::Pan, 300, 310, 1},
    ReadingRange{"MSHVolume", field::volume::Initial, 7200, 7300, 0},
    ReadingRange{"MSHVolume", field::volume::Final, 2500, 2600, 0},
    ReadingRange{"MSHWater", field::water::WetAndCan, 120, 130, 2},
    ReadingRange{"MSHWater", field::water::DryAndCan, 110, 118, 2},
    ReadingRange{"MSHWater", field::water::Can, 20, 25, 2},
    ReadingRange{"MSHSummary", field::summary::MaximumDensity, 1.9, 2.2, 2},
};

inline constexpr std::array<std::string_view, 2> kCbrBoxes{"txtK", "txtWeight"};
inline constexpr std::array<std::string_view, 2> kCbrSession{"txtMDD", "cboCBR"};
inline constexpr std::array<std::string_view, 3> kConditions{"optUnsoak", "optSoak", "optBoth"};
inline constexpr std::array<std::string_view, 2> kFirstTick{"", "chkMold1"};
inline constexpr std::array<std::string_view, 2> kThirdTick{"", "chkMold3"};
inline constexpr std::array<Names, 3> kCbrChoices{kConditions, kFirstTick, kThirdTick};
inline constexpr std::array kCbrCommands{SheetPress{"cmdCal"}, SheetPress{"cmdLPen", 2}, SheetPress{"cmdCBR", 3}};
inline constexpr std::array kCbrRanges{
    ReadingRange{"txtK", kBox, 4, 5, 4},
    ReadingRange{"txtWeight", kBox, 4.4, 4.6, 2},
    ReadingRange{"txtMDD", kBox, 1.9, 2.1, 2},
    ReadingRange{"cboCBR", kBox, 90, 98, 0},
    ReadingRange{"MSHWater", cbr::water::WetAndCan, 130, 132, 2},
    ReadingRange{"MSHWater", cbr::water::DryAndCan, 119, 121, 2},
    ReadingRange{"MSHWater", cbr::water::Can, 20, 21, 2},
    ReadingRange{"MSHCompaction", cbr::density::Diameter, 15.2, 15.3, 2},
    ReadingRange{"MSHCompaction", cbr::density::Height, 11.6, 11.7, 2},
    ReadingRange{"MSHCompaction", cbr::density::MouldAndSoil, 11100, 11200, 0, 250},
    ReadingRange{"MSHCompaction", cbr::density::JustMould, 7000, 7010, 0},
    ReadingRange{"MSHSwell", cbr::swell::Time, 8, 16, 0, 0, true},
    ReadingRange{"MSHSwell", cbr::swell::Dial(1), 1, 1.2, 2, .1, true},
    ReadingRange{"MSHSwell", cbr::swell::Dial(2), 1, 1.2, 2, .1, true},
    ReadingRange{"MSHSwell", cbr::swell::Dial(3), 1, 1.2, 2, .1, true},
    ReadingRange{"MSHPenetrate1", cbr::penetration::Depth, 0, 0.01, 4, 0.025, true},
    ReadingRange{"MSHPenetrate1", cbr::penetration::Dial(1), 0, 5, 1, 6, true},
    ReadingRange{"MSHPenetrate1", cbr::penetration::Dial(2), 0, 6, 1, 8, true},
    ReadingRange{"MSHPenetrate1", cbr::penetration::Dial(3), 0, 7, 1, 11, true},
};

}  // namespace every_sheet

// clang-format off
inline constexpr std::array kSheetsUnderTest{
    SheetUnderTest{"Standard", "mnuStd", "frmCompaction", Test::StdSoil, every_sheet::kCompactionBoxes, {},
                   every_sheet::kCompactionChoices, every_sheet::kCompactionFetches, every_sheet::kCompactionCommands,
                   every_sheet::kCompactionRanges, every_sheet::kStandardPosts},
    SheetUnderTest{"Modified", "mnuMod", "frmCompaction", Test::ModSoil, every_sheet::kCompactionBoxes, {},
                   every_sheet::kCompactionChoices, every_sheet::kCompactionFetches, every_sheet::kCompactionCommands,
                   every_sheet::kCompactionRanges, every_sheet::kModifiedPosts},
    SheetUnderTest{"Atterberg", "mnuAtt", "frmAtterberg", Test::AttSoil, {}, {}, {}, {},
                   every_sheet::kAtterbergCommands, every_sheet::kAtterbergRanges, every_sheet::kAtterbergPosts},
    SheetUnderTest{"Sieve", "mnuSie", "frmSieve", Test::SieSoil, every_sheet::kSieveBoxes, every_sheet::kSieveSession,
                   every_sheet::kSieveChoices, every_sheet::kSieveFetches, every_sheet::kSieveCommands,
                   every_sheet::kSieveRanges, every_sheet::kSievePosts},
    SheetUnderTest{"Specific", "mnuSpe", "frmSpecific", Test::SpcSoil, {}, {}, every_sheet::kSpecificChoices, {},
                   every_sheet::kSpecificCommands, every_sheet::kSpecificRanges, every_sheet::kSpecificPosts},
    SheetUnderTest{"Density", "mnuDen", "frmDensity", Test::DenSoil, every_sheet::kDensityBoxes, {}, {},
                   every_sheet::kProctors, every_sheet::kDensityCommands, every_sheet::kDensityRanges, {}},
    SheetUnderTest{"Cbr", "mnuCBR", "frmCBR", Test::CBRSoil, every_sheet::kCbrBoxes, every_sheet::kCbrSession,
                   every_sheet::kCbrChoices, every_sheet::kProctors, every_sheet::kCbrCommands,
                   every_sheet::kCbrRanges, {}},
};
// clang-format on

struct MaterialUnderTest {
    std::string_view name;
    Material material;
    char menuDigit;
    std::size_t summaryRow;  // from 0
};
inline constexpr std::array kMaterialsUnderTest{
    MaterialUnderTest{"Soil", Material::Soil, '1', 0},
    MaterialUnderTest{"CrushedRock", Material::Crush, '2', 1},
};

}  // namespace terravane::support
