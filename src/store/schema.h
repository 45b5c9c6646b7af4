/// The tables of the project file and of the brand store as data: their order, their columns in order with
/// their lengths, how many rows they are born with. Every column is text. The tests' tables and SUMMARY come from the
/// descriptions of the tests; creation, load, save and tests walk these tables.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "laboratory/current_test.h"

namespace terravane {

/// suffix  the column's name behind the table's prefix: "wcanw" of "std_wcanw"
/// length  most characters (UTF-16 units) that the column takes
struct ColumnSchema {
    std::string_view suffix;
    int length;
};

/// rows   how many stand in the table from its creation on; none is ever added or taken away
/// keyed  whether the first column is the row's key
struct TableSchema {
    std::string_view name;
    std::string_view prefix;
    std::span<const ColumnSchema> columns;
    int rows;
    bool keyed = true;

    std::string ColumnName(std::string_view suffix) const { return std::string(prefix) + std::string(suffix); }
    std::string KeyName() const { return ColumnName(columns.front().suffix); }
};

/// The tables of a project file in the order of their creation.
std::span<const TableSchema> ProjectTables();

/// LOGO and PERSON.
std::span<const TableSchema> BrandTables();

/// The table of the results that tests post: a row a material, soil first.
inline constexpr std::string_view kSummaryTable = "SUMMARY", kSummaryPrefix = "sum_";
const TableSchema& SummaryTable();

/// The table of a test and material; error 5 while no sheet has been opened.
const TableSchema& TableOf(Test test, Material material);

inline constexpr int kPersons = 15;

/// What stands in every column but the key of a new row.
inline constexpr std::string_view kSeed = "   ";

/// The text of a row number: a blank and the digits, " 1", " 10".
std::string RowKey(int row);

}  // namespace terravane
