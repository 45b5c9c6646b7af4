/// What the sheets do alike with their grids. Knows no test.
#pragma once

#include <vector>

#include "controls/cell_editor.h"
#include "controls/text_grid.h"

namespace terravane {

/// The rows from this one on are worked out, not typed.
void MarkCalculatedFrom(TextGrid& grid, int row);

/// The numbers of a column, from row 1 on.
std::vector<double> NumbersOf(const TextGrid& grid, int column);

/// Opens the editor over a cell that the left button was pressed on. A press on the titles of the rows counts as the
/// first cell that is typed.
void PressCell(CellEditor& editor, int row, int column);

/// Does so for every press of that button on the editor's grid.
GridMouseHandler OpensByMouse(CellEditor& editor);

}  // namespace terravane
