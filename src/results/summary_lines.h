/// The overall results as data: a line for each result that a test posts, in the order of the grid. The grid, its
/// filling from SUMMARY and the print walk this one table.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "laboratory/all_tests.h"

namespace terravane {

/// group  what the line stands under in the grid's first column: the test, or a part of it
struct SummaryLine {
    std::string_view group;
    const laboratory::Posted* result = nullptr;

    /// Behind a value on the print.
    std::string Unit() const
    {
        return result->unit.symbol.empty() ? std::string() : " " + std::string(result->unit.symbol);
    }
};

constexpr auto SummaryLines()
{
    constexpr std::size_t kLines = [] {
        std::size_t count = 0;
        for (const laboratory::Description* test : laboratory::kTests) count += test->posts.size();
        return count;
    }();
    std::array<SummaryLine, kLines> lines{};
    auto next = lines.begin();
    for (const laboratory::Description* test : laboratory::kTests)
        for (const laboratory::Posted& posted : test->posts)
            *next++ = {posted.group.empty() ? test->names.title : posted.group, &posted};
    return lines;
}

inline constexpr auto kSummaryLines = SummaryLines();

/// Places on the grid: two rows of heads, then a row a line; the values of a material in a column each.
namespace summary {
inline constexpr int kHeadRows = 2;
inline constexpr int kRows = kHeadRows + static_cast<int>(kSummaryLines.size());
inline constexpr int kTest = 0, kProperty = 1, kSoil = 2, kCrush = 3;
inline constexpr int kColumns = 4;

/// The line that a row from kHeadRows on shows.
constexpr const SummaryLine& LineOf(int row)
{
    return kSummaryLines[static_cast<std::size_t>(row - kHeadRows)];
}

/// The row of the result that is posted into a column of SUMMARY, which is there.
constexpr int RowOf(std::string_view column)
{
    int row = kHeadRows;
    while (LineOf(row).result->column != column) ++row;
    return row;
}
}  // namespace summary

}  // namespace terravane
