/// The sheet that a report is about. A report follows the current test, never the sheet that asked for it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "sheets/pattern/test_sheet.h"

namespace terravane {

/// The form that serves a test: "frmCompaction" for both compaction tests. Error 5 for no test.
std::string_view SheetNameOf(Test test);

/// The open sheet of the current test; error 424 where it is not open.
TestSheet& OpenSheet(const Program& program);

/// What a text control of the sheet shows, as it stands.
std::string TextOf(const TestSheet& sheet, std::string_view control);

/// The row of a report table that belongs to a sheet; every such table has a row for each of the six sheets,
/// with the form's name in `sheet`.
template <class Table>
const auto& RowOfSheet(const Table& table, std::string_view sheetName)
{
    const auto row = std::ranges::find_if(table, [&](const auto& each) { return each.sheet == sheetName; });
    if (row == table.end()) throw RuntimeError(error::kInternal, "No report row: " + std::string(sheetName));
    return *row;
}

}  // namespace terravane
