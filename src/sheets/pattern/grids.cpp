#include "sheets/pattern/grids.h"

#include <algorithm>

#include "runtime/numbers.h"

namespace terravane {

void MarkCalculatedFrom(TextGrid& grid, int row)
{
    for (; row < grid.Rows(); ++row) grid.MarkCalculatedRow(row);
}

std::vector<double> NumbersOf(const TextGrid& grid, int column)
{
    std::vector<double> numbers;
    for (int row = 1; row < grid.Rows(); ++row) numbers.push_back(Val(grid(row, column)));
    return numbers;
}

void PressCell(CellEditor& editor, int row, int column)
{
    editor.PressLeft(row, std::max(column, editor.Range().firstColumn));
}

GridMouseHandler OpensByMouse(CellEditor& editor)
{
    return [&editor](MouseButton button, int row, int column) {
        if (button == MouseButton::Left) PressCell(editor, row, column);
    };
}

}  // namespace terravane
