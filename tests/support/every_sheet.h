/// The test sheets as one table: what is chosen on them, their commands in the order of the method, and what
/// these post. Written from what a technician sees; boxes, grids and what is typed into them come from the
/// descriptions.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "laboratory/tests.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/density/frmDensity.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/specific/frmSpecific.h"

namespace terravane::support {

using Names = std::span<const std::string_view>;

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

/// choices  one of each group is chosen before anything is typed
/// fetches  pressed after typing, now and then: they bring texts of other tests into the sheet's own
/// posts    the columns whose text is a text of the sheet; what is posted otherwise has a test of its own
struct SheetUnderTest {
    std::string_view name;
    Test test;
    std::span<const Names> choices;
    Names fetches;
    std::span<const SheetPress> commands;
    std::span<const Posting> posts;

    const laboratory::Description& Described() const { return laboratory::Describe(test); }
};

namespace every_sheet {

inline constexpr std::array<std::string_view, 2> kCurves{"optInt", "optFit"};
inline constexpr std::array<Names, 1> kCompactionChoices{kCurves};
inline constexpr std::array<std::string_view, 1> kCompactionFetches{"chkSatLine"};
inline constexpr std::array kCompactionCommands{SheetPress{"cmdCal"}, SheetPress{"cmdOMC", 1}};
inline constexpr std::array kStandardPosts{Posting{"cmdOMC", "sum_omcS", "txtOMC"},
                                           Posting{"cmdOMC", "sum_mddS", "txtDmax"}};
inline constexpr std::array kModifiedPosts{Posting{"cmdOMC", "sum_omcM", "txtOMC"},
                                           Posting{"cmdOMC", "sum_mddM", "txtDmax"}};

inline constexpr std::array kAtterbergCommands{SheetPress{"cmdCal"}, SheetPress{"cmdPlot", 1}};
inline constexpr std::array kAtterbergPosts{
    Posting{"cmdPlot", "sum_LL", "txtLL"},
    Posting{"cmdPlot", "sum_PL", "txtPL"},
    Posting{"cmdPlot", "sum_PI", "txtPI"},
    Posting{"cmdPlot", "sum_swelling", "txtFI"},
};

inline constexpr std::array<std::string_view, 2> kMethods{"optNo", "optYes"};
inline constexpr std::array<std::string_view, 2> kSmoothing{"", "chkSmooth"};
inline constexpr std::array<Names, 2> kSieveChoices{kMethods, kSmoothing};
inline constexpr std::array<std::string_view, 1> kSieveFetches{"cmdAtt"};
inline constexpr std::array kSieveCommands{SheetPress{"cmdCal"}, SheetPress{"cmdgraph", 1}, SheetPress{"cmdClass", 2}};
inline constexpr std::array kSievePosts{Posting{"cmdClass", "sum_USCS", "txtSuscs"},
                                        Posting{"cmdClass", "sum_AASHTO", "txtSaash"}};

inline constexpr std::array<std::string_view, 4> kModels{"optAut", "optExp", "optLin", "optPol"};
inline constexpr std::array<Names, 1> kSpecificChoices{kModels};
inline constexpr std::array kSpecificCommands{SheetPress{"cmdgraph"}, SheetPress{"cmdCal"}};
inline constexpr std::array kSpecificPosts{Posting{"cmdCal", "sum_Gs", "MSHSpecific", gravity::Average, 1}};

inline constexpr std::array<std::string_view, 2> kProctors{"optStd", "optMod"};
inline constexpr std::array kDensityCommands{SheetPress{"cmdCal"}};

inline constexpr std::array<std::string_view, 3> kConditions{"optUnsoak", "optSoak", "optBoth"};
inline constexpr std::array<std::string_view, 2> kFirstTick{"", "chkMold1"};
inline constexpr std::array<std::string_view, 2> kThirdTick{"", "chkMold3"};
inline constexpr std::array<Names, 3> kCbrChoices{kConditions, kFirstTick, kThirdTick};
inline constexpr std::array kCbrCommands{SheetPress{"cmdCal"}, SheetPress{"cmdLPen", 2}, SheetPress{"cmdCBR", 3}};

}  // namespace every_sheet

// clang-format off
inline constexpr std::array kSheetsUnderTest{
    SheetUnderTest{"Standard", Test::StdSoil, every_sheet::kCompactionChoices, every_sheet::kCompactionFetches,
                   every_sheet::kCompactionCommands, every_sheet::kStandardPosts},
    SheetUnderTest{"Modified", Test::ModSoil, every_sheet::kCompactionChoices, every_sheet::kCompactionFetches,
                   every_sheet::kCompactionCommands, every_sheet::kModifiedPosts},
    SheetUnderTest{"Atterberg", Test::AttSoil, {}, {}, every_sheet::kAtterbergCommands, every_sheet::kAtterbergPosts},
    SheetUnderTest{"Sieve", Test::SieSoil, every_sheet::kSieveChoices, every_sheet::kSieveFetches,
                   every_sheet::kSieveCommands, every_sheet::kSievePosts},
    SheetUnderTest{"Specific", Test::SpcSoil, every_sheet::kSpecificChoices, {}, every_sheet::kSpecificCommands,
                   every_sheet::kSpecificPosts},
    SheetUnderTest{"Density", Test::DenSoil, {}, every_sheet::kProctors, every_sheet::kDensityCommands, {}},
    SheetUnderTest{"Cbr", Test::CBRSoil, every_sheet::kCbrChoices, every_sheet::kProctors, every_sheet::kCbrCommands,
                   {}},
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
