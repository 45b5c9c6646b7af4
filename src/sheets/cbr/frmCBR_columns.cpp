// Which column of the bearing ratio tables stands where on the sheet. Load and save walk these tables: the heads, the
// moulds and the swelling in the first rows, then a row a penetration.
#include <array>

#include "sheets/cbr/frmCBR.h"

namespace terravane {

namespace {

using namespace cbr;
using enum ColumnPlace::Kind;

/// Record i is row i of MSHSwell: its heads in rows 1 and 2 are stored as the texts they are, its last reading is not
/// stored, though the table has a record for it, which is loaded. So the project files are.
constexpr ColumnPlace Swelling(std::string_view suffix, int column)
{
    return {.suffix = suffix,
            .control = "MSHSwell",
            .kind = GridLine,
            .line = column,
            .firstLoaded = swell::First,
            .lastLoaded = swell::Last};
}

/// Record i is row i - 1 of MSHPenetrate1, which has no heads.
constexpr ColumnPlace Penetration(std::string_view suffix, int column)
{
    return {.suffix = suffix, .control = "MSHPenetrate1", .kind = GridLine, .line = column, .rowShift = -1};
}

constexpr auto kPlaces = BehindGeneralData(std::array{
    ColumnPlace{.suffix = "typ", .kind = Choice},
    ColumnPlace{"mcan", "MSHWater", GridRow, water::CanNumber},
    ColumnPlace{"wcanw", "MSHWater", GridRow, water::WetAndCan},
    ColumnPlace{"wcand", "MSHWater", GridRow, water::DryAndCan},
    ColumnPlace{"wcan", "MSHWater", GridRow, water::Can},
    ColumnPlace{"nb", "MSHCompaction", GridRow, density::Blows},
    ColumnPlace{"dm", "MSHCompaction", GridRow, density::Diameter},
    ColumnPlace{"hs", "MSHCompaction", GridRow, density::Height},
    ColumnPlace{"wms", "MSHCompaction", GridRow, density::MouldAndSoil},
    ColumnPlace{"wm", "MSHCompaction", GridRow, density::JustMould},
    Swelling("sd", swell::Date),
    Swelling("st", swell::Time),
    Swelling("set", swell::Elapsed),
    Swelling("s1", swell::Dial(1)),
    Swelling("s2", swell::Dial(2)),
    Swelling("s3", swell::Dial(3)),
    ColumnPlace{"k", "txtK"},
    ColumnPlace{"sur", "txtWeight"},
});

constexpr std::array kPenetrationPlaces{
    Penetration("pen", penetration::Depth),
    Penetration("read1", penetration::Dial(1)),
    Penetration("read2", penetration::Dial(2)),
    Penetration("read3", penetration::Dial(3)),
};

constexpr std::array kOptions{StoredOption{"optUnsoak", "0"}, StoredOption{"optSoak", "1"},
                              StoredOption{"optBoth", "2"}};

constexpr std::array kPasses{
    TablePass{kColumns, kPlaces},
    TablePass{kMostPenetrations, kPenetrationPlaces, "MSHPenetrate1"},
};

}  // namespace

std::span<const TablePass> frmCBR::TablePasses() const
{
    return kPasses;
}

std::span<const StoredOption> frmCBR::StoredOptions() const
{
    return kOptions;
}

}  // namespace terravane
