/// What the sheets do alike with their grids, as the description of each tells. Knows no test.
#pragma once

#include <functional>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/text_grid.h"
#include "laboratory/description.h"

namespace terravane {

/// How many rows and columns hold heads and titles, the titles themselves, which cells are worked out.
void BuildGrid(TextGrid& grid, const laboratory::Grid& described);

// The parts of that, for grids whose heads are of their own making.

void SetHeads(TextGrid& grid, const laboratory::Grid& described);
void SetTitles(TextGrid& grid, const laboratory::Grid& described);
/// In all rows that the grid has now.
void MarkWorkedOut(TextGrid& grid, const laboratory::Grid& described);

/// The cells that are typed: from the first line that is to the last, over all trials. What is worked out between them
/// is stepped over by the editor.
CellRange TypedCells(const laboratory::Grid& described);

/// The same as an editor asks for it; `described` is a constant of the program.
std::function<CellRange()> TypedCellsOf(const laboratory::Grid& described);

/// Puts a typed text through its line's mask; a line without one takes it as it stands.
CommitRule CommitThroughMasks(const laboratory::Grid& described);

/// The numbers of a column, from row 1 on.
std::vector<double> NumbersOf(const TextGrid& grid, int column);

/// Opens the editor over a cell that the left button was pressed on. A press on the titles of the rows counts as the
/// first cell that is typed.
void PressCell(CellEditor& editor, int row, int column);

/// Does so for every press of that button on the editor's grid.
GridMouseHandler OpensByMouse(CellEditor& editor);

}  // namespace terravane
