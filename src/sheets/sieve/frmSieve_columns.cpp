// Which column of the sieve tables stands where on the sheet, and the choices that come with them. The limits are saved
// with the stack but never read back: they belong to the Atterberg test.
#include <array>

#include "runtime/text.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/sieve_table.h"

namespace terravane {

namespace {

using enum ColumnPlace::Kind;

constexpr std::string_view kWet = "1";
constexpr std::string_view kDry = "0";

constexpr std::array kPlaces{
    ColumnPlace{"date", "DTPDate"},
    ColumnPlace{"soil", "txtSoil"},
    ColumnPlace{"test", "cboTest"},
    ColumnPlace{"check", "cboCheck"},
    ColumnPlace{"pwash", ""},
    ColumnPlace{"mos", "txtGsoil"},
    ColumnPlace{"maw", "txtDwp"},
    ColumnPlace{"mlw", "txtWl"},
    ColumnPlace{"sn", "MSHSieve", GridLine, sieve::Number},
    ColumnPlace{"so", "MSHSieve", GridLine, sieve::Opening},
    ColumnPlace{"ms", "MSHSieve", GridLine, sieve::EmptySieve},
    ColumnPlace{"mss", "MSHSieve", GridLine, sieve::SieveAndSoil},
    ColumnPlace{.suffix = "LL", .control = "txtLL", .loaded = false},
    ColumnPlace{.suffix = "PL", .control = "txtPL", .loaded = false},
};

constexpr std::array kPasses{TablePass{kMostSieves, kPlaces}};

}  // namespace

std::span<const TablePass> frmSieve::TablePasses() const
{
    return kPasses;
}

std::string frmSieve::SavedChoice(std::string_view) const
{
    return std::string(optYes.Value() ? kWet : kDry);
}

/// A choice runs its click, and "Dry" clears the masses of washing; what was stored for them stands all the same.
void frmSieve::LoadChoices(const jet::Recordset& records)
{
    const std::string washed = txtDwp.Text(), lost = txtWl.Text();
    (Trim(records.Fields("sie_pwash")) == kWet ? optYes : optNo).Choose();
    txtDwp.SetText(washed);
    txtWl.SetText(lost);
    SelectStack();
}

void frmSieve::SelectStack()
{
    for (int row = 1; row <= kMostSieves; ++row) {
        const Sieve* found = FindSieve(Trim(MSHSieve(row, sieve::Number)));
        if (found) lstSieve.SetSelected(static_cast<std::size_t>(found - kSieves.data()), true);
    }
}

}  // namespace terravane
