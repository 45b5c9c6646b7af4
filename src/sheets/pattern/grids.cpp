#include "sheets/pattern/grids.h"

#include <algorithm>

#include "runtime/numbers.h"

namespace terravane {

namespace {

std::vector<std::string_view> TitlesOf(const laboratory::Grid& described)
{
    std::vector<std::string_view> titles;
    for (const laboratory::Line& line : described.lines) titles.push_back(line.title);
    return titles;
}

}  // namespace

void BuildGrid(TextGrid& grid, const laboratory::Grid& described)
{
    SetHeads(grid, described);
    SetTitles(grid, described);
    MarkWorkedOut(grid, described);
}

void SetHeads(TextGrid& grid, const laboratory::Grid& described)
{
    grid.SetHeadRows(described.IsAcross() ? described.heads : described.firstTrial);
    grid.SetTitleColumns(described.IsAcross() ? described.firstTrial : described.heads);
}

void SetTitles(TextGrid& grid, const laboratory::Grid& described)
{
    const std::vector<std::string_view> lines = TitlesOf(described);
    const std::vector<std::string_view> trials(described.trialTitles.begin(), described.trialTitles.end());
    grid.SetRowTitles(described.IsAcross() ? lines : trials);
    grid.SetColumnTitles(described.IsAcross() ? trials : lines);
    if (described.titleWidth > 0) grid.SetColumnWidth(0, described.titleWidth);
}

void MarkWorkedOut(TextGrid& grid, const laboratory::Grid& described)
{
    for (const laboratory::Line& line : described.lines) {
        if (!line.is.isWorkedOut) continue;
        if (described.IsAcross()) grid.MarkCalculatedRow(line.number);
        for (int row = described.firstTrial; !described.IsAcross() && row < grid.Rows(); ++row)
            grid.MarkCalculated(row, line.number);
    }
}

CellRange TypedCells(const laboratory::Grid& described)
{
    const int first = described.FirstTyped(), last = described.LastTyped();
    const int firstTrial = described.firstTrial, lastTrial = firstTrial + described.count - 1;
    return described.IsAcross() ? CellRange{first, last, firstTrial, lastTrial}
                                : CellRange{firstTrial, lastTrial, first, last};
}

std::function<CellRange()> TypedCellsOf(const laboratory::Grid& described)
{
    return [range = TypedCells(described)] { return range; };
}

CommitRule CommitThroughMasks(const laboratory::Grid& described)
{
    return [&described](int row, int column, const std::string& text) {
        const std::string_view mask = described[described.IsAcross() ? row : column].is.mask;
        return mask.empty() ? text : Format(text, mask);
    };
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
