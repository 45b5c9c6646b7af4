/// A line of a table as spreadsheets read it.
#pragma once

#include <string>
#include <vector>

namespace terravane {

/// Commas between, quotes where a field needs them, an apostrophe before what a spreadsheet would take for a formula,
/// and before a text that begins with one, so that the first one of a cell can always be taken away again.
std::string CsvLine(const std::vector<std::string>& fields);

}  // namespace terravane
