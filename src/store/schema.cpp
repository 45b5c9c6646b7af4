#include "store/schema.h"

#include <algorithm>
#include <array>
#include <utility>

#include "laboratory/all_tests.h"
#include "laboratory/general_data.h"
#include "laboratory/kept_columns.h"
#include "laboratory/tests.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

using namespace laboratory;

/// The row's key, which every table has first; HEAD alone has none.
constexpr ColumnSchema kKey{kKeyColumn.suffix, kKeyColumn.length};

constexpr auto HeadColumns()
{
    std::array<ColumnSchema, kJobBoxes.size()> columns{};
    std::ranges::transform(kJobBoxes, columns.begin(), [](const Box& box) {
        return ColumnSchema{box.is.kept, box.is.length};
    });
    return columns;
}
constexpr auto kHead = HeadColumns();

/// The columns of a sheet's tables.
template <const Sheet& kSheet>
constexpr auto ColumnsOf()
{
    std::array<ColumnSchema, kTableColumns<kSheet>.size()> columns{};
    std::ranges::transform(kTableColumns<kSheet>, columns.begin(), [](const KeptColumn& column) {
        return ColumnSchema{column.suffix, column.length};
    });
    return columns;
}
template <const Sheet& kSheet>
constexpr auto kColumns = ColumnsOf<kSheet>();

constexpr std::size_t CountPosted()
{
    std::size_t count = 0;
    for (const Description* test : kTests) count += test->posts.size();
    return count;
}

/// Posted results, a material a row: each where its place says, the others in the order of the tests.
constexpr auto SummaryColumns()
{
    std::array<ColumnSchema, CountPosted() + 1> columns{kKey};
    const auto forEach = [](auto take) {
        for (const Description* test : kTests)
            for (const Posted& posted : test->posts) take(posted);
    };
    forEach([&](const Posted& posted) {
        if (posted.place != kInOrder) columns[static_cast<std::size_t>(posted.place)] = {posted.column, posted.length};
    });
    std::size_t free = 0;
    forEach([&](const Posted& posted) {
        if (posted.place != kInOrder) return;
        while (!columns[free].suffix.empty()) ++free;
        columns[free] = {posted.column, posted.length};
    });
    return columns;
}
constexpr auto kSummary = SummaryColumns();

/// A test with the columns of its tables.
struct TestColumns {
    const Description* test;
    std::span<const ColumnSchema> columns;
};
template <std::size_t... kTest>
constexpr std::array<TestColumns, kTests.size()> ColumnsOfTests(std::index_sequence<kTest...>)
{
    return {TestColumns{kTests[kTest], kColumns<kTests[kTest]->sheet>}...};
}
constexpr auto kTestColumns = ColumnsOfTests(std::make_index_sequence<kTests.size()>());

/// HEAD first, SUMMARY last, between them the tests' tables at their places.
constexpr auto AllTables()
{
    std::array<TableSchema, 2 * kTests.size() + 2> tables{};
    tables.front() = {"HEAD", "project_", kHead, 1, false};
    for (const auto& [test, columns] : kTestColumns)
        for (const Table* table : {&test->soil, &test->crushedRock})
            tables[static_cast<std::size_t>(table->place)] = {table->name, test->prefix, columns, test->rows};
    tables.back() = {kSummaryTable, kSummaryPrefix, kSummary, static_cast<int>(kMaterials.size())};
    return tables;
}
constexpr auto kProjectTables = AllTables();

constexpr std::array kLogo{
    ColumnSchema{"ID", 10},    ColumnSchema{"ins", 100},  ColumnSchema{"dep", 100},
    ColumnSchema{"cov1", 100}, ColumnSchema{"cov2", 100}, ColumnSchema{"cov3", 100},
};

constexpr std::array kPerson{
    ColumnSchema{"ID", 10},
    ColumnSchema{"name", 100},
    ColumnSchema{"position", 50},
};

constexpr std::array kBrandTables{
    TableSchema{"LOGO", "logo_", kLogo, 1},
    TableSchema{"PERSON", "person_", kPerson, kPersons},
};

const TableSchema& ProjectTable(std::string_view name)
{
    for (const TableSchema& table : kProjectTables) {
        if (table.name == name) return table;
    }
    throw RuntimeError(error::kInvalidProcedureCall);
}

}  // namespace

std::span<const TableSchema> ProjectTables()
{
    return kProjectTables;
}

std::span<const TableSchema> BrandTables()
{
    return kBrandTables;
}

const TableSchema& SummaryTable()
{
    return ProjectTable(kSummaryTable);
}

const TableSchema& TableOf(Test test, Material material)
{
    const Description& described = Describe(material == Material::None ? Test::None : test);
    return ProjectTable(described.TableFor(material).name);
}

std::string RowKey(int row)
{
    return SignedNumberText(static_cast<double>(row));
}

}  // namespace terravane
