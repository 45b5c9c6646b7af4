/// The columns of a test's table, worked out from the test's description when the program is compiled: their order, and
/// what of the sheet each of them keeps. Schema, load and save walk them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "laboratory/description.h"
#include "laboratory/general_data.h"

namespace terravane::laboratory {

/// A column of the table, and where its texts stand on the sheet.
///   Head      one text of the sheet; saved into every row, loaded from the first
///   GridRow   row i of the table is a trial beside the others: `line` is the grid's row
///   GridLine  row i is a trial below the others: `line` is the grid's column
///   Choice    the stored text of the option that is chosen; saved into every row, taken up from the first when all
///             else is loaded
/// firstRecord  of a grid: the row or column that the table's first row keeps
/// firstLoaded  rows of the table before this one are the grid's titles: saved with it, kept when it is loaded
/// lastLoaded   rows behind those that keep it up to this one are loaded too, where another program wrote there
/// records      rows of the table that keep it
/// isList       whether they are as many as the list has trials
struct KeptColumn {
    enum class Kind { Head, GridRow, GridLine, Choice };

    std::string_view suffix;
    int length = kReadingLength;
    std::string_view control = {};
    Kind kind = Kind::Head;
    int line = 0;
    bool isLoaded = true;
    bool isReading = false;
    bool isResult = false;
    int firstRecord = 1;
    int firstLoaded = 1;
    int lastLoaded = 0;
    int records = 1;
    bool isList = false;
};

/// The rows' key, in front of every table's columns.
inline constexpr KeptColumn kKeyColumn{.suffix = "ID"};

namespace detail {

constexpr KeptColumn Keep(const Value& value, std::string_view control, KeptColumn::Kind kind, int records)
{
    return {.suffix = value.kept,
            .length = value.length,
            .control = control,
            .kind = kind,
            .isLoaded = value.isLoaded,
            .isReading = value.isReading,
            .isResult = value.isResult,
            .records = records};
}

constexpr KeptColumn KeepLine(const Grid& grid, const Line& line)
{
    using enum KeptColumn::Kind;
    KeptColumn column = Keep(line.is, grid.control, grid.IsAcross() ? GridRow : GridLine, grid.Records());
    column.line = line.number;
    column.firstRecord = grid.firstRecord;
    column.firstLoaded = grid.firstTrial - grid.firstRecord + 1;
    column.lastLoaded = grid.firstTrial - grid.firstRecord + grid.count;
    column.isList = grid.isList;
    return column;
}

/// Hands every text of the sheet that its table keeps to `take`, with the place that the description asks for: the
/// general data, the choice, the boxes, the grids line by line, the results. What belongs to no grid is kept with the
/// first one's records.
template <class Take>
constexpr void ForEachKept(const Sheet& sheet, Take take)
{
    const int records = sheet.grids.front().Records();
    const auto takeBoxes = [&](std::span<const Box> boxes) {
        for (const Box& box : boxes)
            if (!box.is.kept.empty()) take(Keep(box.is, box.control, KeptColumn::Kind::Head, records), box.is.place);
    };
    takeBoxes(kGeneralBoxes);
    if (!sheet.choice.options.empty())
        take(Keep(sheet.choice.is, {}, KeptColumn::Kind::Choice, records), sheet.choice.is.place);
    takeBoxes(sheet.boxes);
    for (const Grid& grid : sheet.grids)
        for (const Line& line : grid.lines)
            if (!line.is.kept.empty()) take(KeepLine(grid, line), line.is.place);
    takeBoxes(sheet.results);
}

constexpr std::size_t CountKept(const Sheet& sheet)
{
    std::size_t count = 0;
    ForEachKept(sheet, [&count](const KeptColumn&, int) { ++count; });
    return count;
}

/// The key, then every column where its place says, the others in the order of the description in what is free.
template <const Sheet& kSheet>
constexpr auto InTableOrder()
{
    std::array<KeptColumn, CountKept(kSheet) + 1> columns{kKeyColumn};
    ForEachKept(kSheet, [&columns](const KeptColumn& column, int place) {
        if (place != kInOrder) columns[static_cast<std::size_t>(place)] = column;
    });
    std::size_t free = 0;
    ForEachKept(kSheet, [&](const KeptColumn& column, int place) {
        if (place != kInOrder) return;
        while (!columns[free].suffix.empty()) ++free;
        columns[free] = column;
    });
    return columns;
}

constexpr bool IsGeneral(const KeptColumn& column)
{
    return std::ranges::find(kGeneralBoxes, column.control, &Box::control) != kGeneralBoxes.end();
}

/// The same without the key, in the order in which the sheet's statements name them: the general data first, then the
/// rest of the table, those of fewer or more rows apart, as their grids come.
template <const Sheet& kSheet>
constexpr auto InStatementOrder()
{
    const auto table = InTableOrder<kSheet>();
    std::array<KeptColumn, table.size() - 1> columns{};
    auto next = columns.begin();
    const auto takeIf = [&](auto belongs) { next = std::copy_if(table.begin() + 1, table.end(), next, belongs); };
    const int first = kSheet.grids.front().Records();
    takeIf(IsGeneral);
    takeIf([first](const KeptColumn& column) { return !IsGeneral(column) && column.records == first; });
    takeIf([first](const KeptColumn& column) { return column.records != first; });
    return columns;
}

}  // namespace detail

/// All columns of the sheet's table in its order, the key first.
template <const Sheet& kSheet>
inline constexpr auto kTableColumns = detail::InTableOrder<kSheet>();

/// All but the key, in the order of the statements. Columns of equal `records` stand together: they are saved by one
/// statement a row.
template <const Sheet& kSheet>
inline constexpr auto kStatementColumns = detail::InStatementOrder<kSheet>();

}  // namespace terravane::laboratory
