// Which column of the compaction tables stands where on the sheet. Load and save walk this one table.
#include <array>

#include "sheets/compaction/frmCompaction.h"

namespace terravane {

namespace {

using namespace compaction;
using enum ColumnPlace::Kind;

constexpr auto kPlaces = BehindGeneralData(std::array{
    ColumnPlace{"height", "txtHeight"},
    ColumnPlace{"dia", "txtDia"},
    ColumnPlace{"blow", "cboBlow"},
    ColumnPlace{"layer", "cboLayer"},
    ColumnPlace{"wt", "cboWt"},
    ColumnPlace{"can", "MSHWt", GridRow, water::CanNumber},
    ColumnPlace{"wcanw", "MSHWt", GridRow, water::WetAndCan},
    ColumnPlace{"wcand", "MSHWt", GridRow, water::DryAndCan},
    ColumnPlace{"wcan", "MSHWt", GridRow, water::Can},
    ColumnPlace{"awc", "MSHDensity", GridRow, density::AssumedWater},
    ColumnPlace{"wsm", "MSHDensity", GridRow, density::WetAndMould},
    ColumnPlace{"wm", "MSHDensity", GridRow, density::Mould},
    ColumnPlace{.suffix = "omc", .control = "txtOMC", .loaded = false},
    ColumnPlace{.suffix = "mdd", .control = "txtDmax", .loaded = false},
    ColumnPlace{"gs", "txtGs"},
});

constexpr std::array kPasses{TablePass{kTrials, kPlaces}};

}  // namespace

std::span<const TablePass> frmCompaction::TablePasses() const
{
    return kPasses;
}

}  // namespace terravane
