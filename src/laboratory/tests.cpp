#include "laboratory/tests.h"

#include <algorithm>
#include <array>
#include <utility>

#include "laboratory/all_tests.h"
#include "runtime/runtime_error.h"

namespace terravane::laboratory {

namespace {

/// The sheet of a test with the columns that are worked out from it.
struct SheetColumns {
    const Sheet* sheet;
    std::span<const KeptColumn> table, statement;
};
template <const Sheet& kSheet>
constexpr SheetColumns ColumnsOf()
{
    return {&kSheet, kTableColumns<kSheet>, kStatementColumns<kSheet>};
}
template <std::size_t... kTest>
constexpr std::array<SheetColumns, kTests.size()> ColumnsOfTests(std::index_sequence<kTest...>)
{
    return {ColumnsOf<kTests[kTest]->sheet>()...};
}
constexpr auto kSheetColumns = ColumnsOfTests(std::make_index_sequence<kTests.size()>());

/// The pointers sorted by a number that each knows.
template <class Pointers, class Number>
constexpr Pointers SortedBy(Pointers pointers, Number number)
{
    std::ranges::sort(pointers, {}, [number](const auto* of) { return number(*of); });
    return pointers;
}

/// Each sheet once, where it serves several tests, too.
struct SheetList {
    std::array<const Sheet*, kTests.size()> sheets{};
    std::size_t count = 0;

    constexpr std::span<const Sheet* const> Sheets() const { return std::span(sheets).first(count); }
};

constexpr SheetList SheetsBy(int ClosingOrder::*place)
{
    SheetList list;
    std::ranges::transform(kTests, list.sheets.begin(), [](const Description* test) { return &test->sheet; });
    list.sheets = SortedBy(list.sheets, [place](const Sheet& sheet) { return sheet.closing.*place; });
    // By their forms: GCC compares no addresses while it compiles under the sanitizers.
    const auto form = [](const Sheet* sheet) { return sheet->form; };
    list.count = kTests.size() - std::ranges::unique(list.sheets, {}, form).size();
    return list;
}

constexpr auto kInWorkOrder = SortedBy(kTests, [](const Description& test) { return test.workOrder; });
constexpr auto kBeforeFile = SheetsBy(&ClosingOrder::beforeFile);
constexpr auto kBeforeSheet = SheetsBy(&ClosingOrder::beforeSheet);

/// A number for each, from 1 on, none missing and none twice.
template <class Pointers, class Number>
constexpr bool Counts(const Pointers& sorted, Number number)
{
    int next = 1;
    return std::ranges::all_of(sorted, [&](const auto* of) { return number(*of) == next++; });
}
static_assert(Counts(kInWorkOrder, [](const Description& test) { return test.workOrder; }));
static_assert(Counts(kBeforeFile.Sheets(), [](const Sheet& sheet) { return sheet.closing.beforeFile; }));
static_assert(Counts(kBeforeSheet.Sheets(), [](const Sheet& sheet) { return sheet.closing.beforeSheet; }));

/// A test whose results another one needs is worked before it.
constexpr bool IsWorkedBeforeNeeded(const Description& test)
{
    return std::ranges::all_of(test.needs, [&](Test needed) {
        return std::ranges::any_of(kTests, [&](const Description* other) {
            return other->test == needed && other->workOrder < test.workOrder;
        });
    });
}
static_assert(std::ranges::all_of(kTests, [](const Description* test) { return IsWorkedBeforeNeeded(*test); }));

/// The tables fill the places from 1 on of a project file, each once.
constexpr bool FillTheirPlaces()
{
    std::array<bool, 2 * kTests.size()> filled{};
    for (const Description* test : kTests)
        for (const Table* table : {&test->soil, &test->crushedRock})
            filled[static_cast<std::size_t>(table->place) - 1] = true;
    return std::ranges::all_of(filled, [](bool is) { return is; });
}
static_assert(FillTheirPlaces());

/// A sheet that no test has keeps nothing.
SheetColumns Find(const Sheet& sheet)
{
    const auto found = std::ranges::find(kSheetColumns, &sheet, &SheetColumns::sheet);
    return found == kSheetColumns.end() ? SheetColumns{} : *found;
}

}  // namespace

std::span<const Description* const> Tests()
{
    return kTests;
}

std::span<const Description* const> TestsInWorkOrder()
{
    return kInWorkOrder;
}

const Description& Describe(Test test)
{
    const auto found = std::ranges::find(kTests, test, [](const Description* of) { return of->test; });
    if (found == kTests.end()) throw RuntimeError(error::kInvalidProcedureCall, "No test sheet has been opened.");
    return **found;
}

const Description* FindTest(std::string_view key)
{
    const auto found = std::ranges::find(kTests, key, [](const Description* of) { return of->key; });
    return found == kTests.end() ? nullptr : *found;
}

std::span<const Sheet* const> SheetsClosedBeforeFile()
{
    return kBeforeFile.Sheets();
}

std::span<const Sheet* const> SheetsClosedBeforeSheet()
{
    return kBeforeSheet.Sheets();
}

std::span<const KeptColumn> TableColumns(const Sheet& sheet)
{
    return Find(sheet).table;
}

std::span<const KeptColumn> StatementColumns(const Sheet& sheet)
{
    return Find(sheet).statement;
}

const MaterialDescription& Describe(Material material)
{
    const auto found = std::ranges::find(kMaterials, material, &MaterialDescription::material);
    if (found == kMaterials.end()) throw RuntimeError(error::kInvalidProcedureCall);
    return *found;
}

}  // namespace terravane::laboratory
