// Which column of the Atterberg tables stands where on the sheet. Load and save walk this one table.
#include <array>

#include "sheets/atterberg/frmAtterberg.h"

namespace terravane {

namespace {

using enum ColumnPlace::Kind;

constexpr auto kPlaces = BehindGeneralData(std::array{
    ColumnPlace{"blows", "MSHLL", GridRow, ll::Blows},
    ColumnPlace{"wscan1", "MSHLL", GridRow, ll::WetAndCan},
    ColumnPlace{"dscan1", "MSHLL", GridRow, ll::DryAndCan},
    ColumnPlace{"wcan1", "MSHLL", GridRow, ll::Can},
    ColumnPlace{"wscan2", "MSHPL", GridRow, pl::WetAndCan},
    ColumnPlace{"dscan2", "MSHPL", GridRow, pl::DryAndCan},
    ColumnPlace{"wcan2", "MSHPL", GridRow, pl::Can},
    ColumnPlace{.suffix = "LL", .control = "txtLL", .loaded = false},
    ColumnPlace{.suffix = "PL", .control = "txtPL", .loaded = false},
    ColumnPlace{.suffix = "PI", .control = "txtPI", .loaded = false},
    ColumnPlace{.suffix = "FI", .control = "txtFI", .loaded = false},
});

constexpr std::array kPasses{TablePass{kLimitTrials, kPlaces}};

}  // namespace

std::span<const TablePass> frmAtterberg::TablePasses() const
{
    return kPasses;
}

}  // namespace terravane
