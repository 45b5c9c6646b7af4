/// What a technician calls a cell of a sheet: in sentences, and to ears that do not see the grid.
#pragma once

#include <string>

#include "controls/text_grid.h"

namespace terravane {

/// The texts at the head of a column, "Before Soaking 2" where several have the same, or "trial 3" where the column has
/// a number or nothing there.
std::string ColumnWords(const TextGrid& grid, int column);

/// The text in front of a row, or "row 3" where nothing or a number stands there.
std::string RowWords(const TextGrid& grid, int row);

/// "Mass of Can, (g), trial 3": both of them.
std::string CellWords(const TextGrid& grid, int row, int column);

/// A caption as a sentence says it: without the mark of its key, line ends and doubled blanks.
std::string PlainWords(std::string_view caption);

}  // namespace terravane
