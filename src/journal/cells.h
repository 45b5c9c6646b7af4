/// Blocks of cells of the open sheet: copied, and put in cell by cell as a person types them.
#pragma once

#include <string>
#include <string_view>

#include "controls/text_grid.h"

namespace terravane {

/// Both ends included.
struct CellBlock {
    int firstRow, firstColumn, lastRow, lastColumn;
};

/// What became of a block.
/// cells       that took a text
/// passedOver  that take none: worked out, titles, those that another control fills
/// plain       numbers whose Thai digits or thousands separators were written plainly
/// misfit      why the block does not fit, as a sentence; then nothing was changed. Empty where it fits.
struct PutBlock {
    int cells = 0, passedOver = 0, plain = 0;
    std::string misfit = {};
};

/// The cells' texts with tabs and line ends between; what lies outside the grid is left out.
std::string CopyCells(const TextGrid& grid, const CellBlock& block);

/// Puts the lines in from that cell on, each text by the rule of its cell. Stops at the first that does not fit, with
/// those before it put in: who calls takes them back.
PutBlock PutCells(TextGrid& grid, int row, int column, std::string_view lines);

/// Puts nothing into each cell of the block that is typed.
PutBlock EraseCells(TextGrid& grid, const CellBlock& block);

}  // namespace terravane
