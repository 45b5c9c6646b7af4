// Which column of the sieve tables stands where on the sheet, and the choices that come with them. The limits are saved
// with the stack but never read back: they belong to the Atterberg test.
#include <array>

#include "runtime/text.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/sieve_table.h"

namespace terravane {

namespace {

using enum ColumnPlace::Kind;

constexpr std::array kOptions{StoredOption{"optNo", "0"}, StoredOption{"optYes", "1"}};

constexpr auto kPlaces = BehindGeneralData(std::array{
    ColumnPlace{.suffix = "pwash", .kind = Choice},
    ColumnPlace{"mos", "txtGsoil"},
    ColumnPlace{"maw", "txtDwp"},
    ColumnPlace{"mlw", "txtWl"},
    ColumnPlace{"sn", "MSHSieve", GridLine, sieve::Number},
    ColumnPlace{"so", "MSHSieve", GridLine, sieve::Opening},
    ColumnPlace{"ms", "MSHSieve", GridLine, sieve::EmptySieve},
    ColumnPlace{"mss", "MSHSieve", GridLine, sieve::SieveAndSoil},
    ColumnPlace{.suffix = "LL", .control = "txtLL", .loaded = false},
    ColumnPlace{.suffix = "PL", .control = "txtPL", .loaded = false},
});

constexpr std::array kPasses{TablePass{kMostSieves, kPlaces}};

}  // namespace

std::span<const TablePass> frmSieve::TablePasses() const
{
    return kPasses;
}

std::span<const StoredOption> frmSieve::StoredOptions() const
{
    return kOptions;
}

void frmSieve::LoadChoice(std::string_view stored)
{
    TestSheet::LoadChoice(stored);
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
