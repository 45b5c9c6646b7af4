// Which column of the field density tables stands where on the sheet. Load and save walk this one table.
#include <array>

#include "sheets/density/frmDensity.h"

namespace terravane {

namespace {

using namespace field;
using enum ColumnPlace::Kind;

constexpr auto kPlaces = BehindGeneralData(std::array{
    ColumnPlace{"pos", "txtPosition"},
    ColumnPlace{"height", "MSHDsand", GridRow, sand::Height},
    ColumnPlace{"dia", "MSHDsand", GridRow, sand::Diameter},
    ColumnPlace{"imsjc", "MSHWsand", GridRow, cone::Initial},
    ColumnPlace{"fmsjc", "MSHWsand", GridRow, cone::Final},
    ColumnPlace{"mem", "MSHDsand", GridRow, sand::Mould},
    ColumnPlace{"mms", "MSHDsand", GridRow, sand::MouldAndSand},
    ColumnPlace{"mmsp", "MSHWsoil", GridRow, soil::WetAndPan},
    ColumnPlace{"mp", "MSHWsoil", GridRow, soil::Pan},
    ColumnPlace{"imsj", "MSHVolume", GridRow, volume::Initial},
    ColumnPlace{"fmsj", "MSHVolume", GridRow, volume::Final},
    ColumnPlace{"mwsc", "MSHWater", GridRow, water::WetAndCan},
    ColumnPlace{"mdsc", "MSHWater", GridRow, water::DryAndCan},
    ColumnPlace{"mc", "MSHWater", GridRow, water::Can},
    ColumnPlace{"mdd", "MSHSummary", GridRow, summary::MaximumDensity},
    ColumnPlace{.suffix = "comp", .kind = Choice},
});

constexpr std::array kOptions{StoredOption{"optStd", "Std"}, StoredOption{"optMod", "Mod"}};

constexpr std::array kPasses{TablePass{kColumns, kPlaces}};

}  // namespace

std::span<const TablePass> frmDensity::TablePasses() const
{
    return kPasses;
}

std::span<const StoredOption> frmDensity::StoredOptions() const
{
    return kOptions;
}

}  // namespace terravane
