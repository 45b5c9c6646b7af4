#include "journal/cells.h"

#include <algorithm>
#include <optional>

#include "controls/cell_editor.h"
#include "controls/visit_control.h"
#include "journal/block.h"
#include "laboratory/tests.h"
#include "program/cell_words.h"
#include "program/next_command.h"
#include "runtime/text.h"

namespace terravane {

namespace {

bool IsIn(const TextGrid& grid, int row, int column)
{
    return row >= 0 && row < grid.Rows() && column >= 0 && column < grid.Columns();
}

/// The editor that a person would type with; nullptr where the cell is not typed. Asked anew for each cell, since lists
/// grow while they are typed.
CellEditor* EditorAt(TextGrid& grid, int row, int column)
{
    if (!IsIn(grid, row, column) || grid.IsCalculated(row, column)) return nullptr;
    for (CellEditor* editor : ControlsOf<CellEditor>(grid.Owner()))
        if (&editor->Grid() == &grid && editor->Range().Holds(row, column)) return editor;
    return nullptr;
}

/// How many UTF-16 units the table's column takes; nothing where none keeps the cell.
std::optional<std::size_t> MostUnits(const TextGrid& grid, int row, int column)
{
    using enum laboratory::KeptColumn::Kind;
    const laboratory::Sheet* sheet = SheetOfForm(grid.Owner().Name());
    if (!sheet) return std::nullopt;
    for (const laboratory::KeptColumn& kept : laboratory::TableColumns(*sheet)) {
        if (kept.control != grid.Name() || kept.kind == Head) continue;
        if (kept.line == (kept.kind == GridRow ? row : column)) return static_cast<std::size_t>(kept.length);
    }
    return std::nullopt;
}

std::string WhyNotIn(const TextGrid& grid, int row, int column, std::string_view text)
{
    if (!IsIn(grid, row, column)) return "The block is larger than the room from this cell on.";
    const auto most = MostUnits(grid, row, column);
    if (!most || ToUtf16(text).size() <= *most) return {};
    return "\"" + Printable(text) + "\" is too long for " + CellWords(grid, row, column) + ": it takes " +
           std::to_string(*most) + " characters.";
}

/// One text of a block.
void PutCell(PutBlock& put, TextGrid& grid, int row, int column, std::string_view text)
{
    const std::string plain = PlainNumber(text);
    CellEditor* editor = EditorAt(grid, row, column);
    if (!editor && IsIn(grid, row, column)) return void(++put.passedOver);
    put.misfit = WhyNotIn(grid, row, column, Trim(plain));
    if (!put.misfit.empty()) return;
    editor->CommitAt(row, column, plain);
    ++put.cells;
    if (plain != text && plain != Trim(text)) ++put.plain;
}

bool IsBlank(const std::vector<std::string>& texts, std::size_t from)
{
    return std::all_of(texts.begin() + static_cast<std::ptrdiff_t>(from), texts.end(),
                       [](const std::string& text) { return Trim(text).empty(); });
}

}  // namespace

std::string CopyCells(const TextGrid& grid, const CellBlock& block)
{
    Block texts;
    for (int row = std::max(block.firstRow, 0); row <= std::min(block.lastRow, grid.Rows() - 1); ++row) {
        auto& line = texts.emplace_back();
        for (int column = std::max(block.firstColumn, 0); column <= std::min(block.lastColumn, grid.Columns() - 1);
             ++column)
            line.emplace_back(Trim(grid(row, column)));
    }
    return BlockText(texts);
}

PutBlock PutCells(TextGrid& grid, int row, int column, std::string_view lines)
{
    PutBlock put;
    for (const auto& line : ReadBlock(lines)) {
        for (std::size_t i = 0; i < line.size() && put.misfit.empty(); ++i) {
            const int at = column + static_cast<int>(i);
            if (!IsIn(grid, row, at) && IsBlank(line, i)) break;  // what a spreadsheet has behind its texts
            PutCell(put, grid, row, at, line[i]);
        }
        if (!put.misfit.empty()) break;
        ++row;
    }
    return put;
}

PutBlock EraseCells(TextGrid& grid, const CellBlock& block)
{
    PutBlock put;
    for (int row = block.firstRow; row <= std::min(block.lastRow, grid.Rows() - 1); ++row)
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) PutCell(put, grid, row, column, "");
    return put;
}

}  // namespace terravane
