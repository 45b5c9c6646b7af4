#include "controls/text_grid.h"

#include <utility>

#include "runtime/runtime_error.h"

namespace terravane {

namespace {

/// A table that grows past this comes of a slip of the pen, such as a step of 0.0000001: it fails before it
/// takes the machine's memory.
constexpr int kMostRows = 1'000'000;

}  // namespace

Cell& Cell::operator=(std::string_view text)
{
    grid_.Set(row_, column_, text);
    return *this;
}

const std::string& Cell::Text() const
{
    return grid_.cells_[grid_.Index(row_, column_)];
}

TextGrid::TextGrid(Form& owner, std::string_view name, int rows, int columns, GridEvents events)
    : ControlKind(owner, name),
      MouseDown(std::move(events.MouseDown)),
      rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows * columns)),
      calculated_(cells_.size(), false),
      columnWidths_(static_cast<std::size_t>(columns), 0)
{}

void TextGrid::SetRows(int rows)
{
    const int before = rows_;
    EmptyRowsFrom(rows);
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows * columns_));
    calculated_.resize(cells_.size(), false);
    if (row_ >= rows) row_ = 0;
    if (rows != before) TellRows(before, rows);
    Changed();
}

/// So that whoever listens knows what goes away.
void TextGrid::EmptyRowsFrom(int row)
{
    if (!Owner().HasTextListeners()) return;
    for (; row < rows_; ++row)
        for (int column = 0; column < columns_; ++column) Set(row, column, "");
}

Cell TextGrid::operator()(int row, int column)
{
    Index(row, column);
    Owner().addressed_ = {this, row, column};
    return {*this, row, column};
}

const std::string& TextGrid::operator()(int row, int column) const
{
    return cells_[Index(row, column)];
}

void TextGrid::AppendRow(std::vector<std::string> cells)
{
    if (rows_ >= kMostRows) throw RuntimeError(error::kOutOfMemory);
    cells.resize(static_cast<std::size_t>(columns_));
    for (auto& cell : cells) cells_.push_back(std::move(cell));
    ++rows_;
    calculated_.resize(cells_.size(), false);
    if (Owner().HasTextListeners()) TellNewRow();
    Changed();
}

void TextGrid::TellNewRow()
{
    const int row = rows_ - 1;
    TellRows(row, rows_);
    for (int column = 0; column < columns_; ++column) {
        const std::string& text = cells_[Index(row, column)];
        if (!text.empty()) TellText("", text, row, column);
    }
}

void TextGrid::SetRowTitles(const std::vector<std::string_view>& titles)
{
    for (std::size_t row = 0; row < titles.size(); ++row) Set(static_cast<int>(row), 0, titles[row]);
}

void TextGrid::SetColumnTitles(const std::vector<std::string_view>& titles)
{
    for (std::size_t column = 0; column < titles.size(); ++column) Set(0, static_cast<int>(column), titles[column]);
}

void TextGrid::MarkCalculatedRow(int row, int firstColumn)
{
    for (int column = firstColumn; column < columns_; ++column) MarkCalculated(row, column);
}

void TextGrid::MarkCalculated(int row, int column)
{
    calculated_[Index(row, column)] = true;
    Changed();
}

bool TextGrid::IsCalculated(int row, int column) const
{
    return calculated_[Index(row, column)];
}

void TextGrid::SetColumnWidth(int column, double twips)
{
    columnWidths_.at(static_cast<std::size_t>(column)) = twips;
    Changed();
}

template <class Alike>
TextGrid::Run TextGrid::RunAround(int place, int count, Alike alike)
{
    int first = place, last = place;
    while (first > 0 && alike(first - 1)) --first;
    while (last + 1 < count && alike(last + 1)) ++last;
    return {first, last - first + 1};
}

TextGrid::Run TextGrid::RunAcross(int row, int column) const
{
    if (!MergeRow(row)) return {column, 1};
    const std::string& text = (*this)(row, column);
    return RunAround(column, columns_, [&](int other) { return (*this)(row, other) == text; });
}

/// Across goes before down, so that no cell belongs to two areas.
CellArea TextGrid::AreaOf(int row, int column) const
{
    const std::string& text = (*this)(row, column);
    if (MergeCells == Merging::Never) return {row, column, 1, 1};
    const Run across = RunAcross(row, column);
    if (across.length > 1 || !MergeCol(column)) return {row, across.first, 1, across.length};
    const Run down = RunAround(
        row, rows_, [&](int other) { return (*this)(other, column) == text && RunAcross(other, column).length == 1; });
    return {down.first, column, down.length, 1};
}

void TextGrid::Select(int row, int column)
{
    Index(row, column);
    if (row == row_ && column == column_) return;
    row_ = row;
    column_ = column;
    Changed();
}

void TextGrid::PressMouse(MouseButton button, int row, int column)
{
    Index(row, column);
    if (Enabled() && MouseDown) Raise("MouseDown", [&] { MouseDown(button, row, column); });
}

std::size_t TextGrid::Index(int row, int column) const
{
    if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
        throw RuntimeError(error::kSubscriptOutOfRange);
    }
    return static_cast<std::size_t>(row * columns_ + column);
}

void TextGrid::Set(int row, int column, std::string_view text)
{
    Replace(cells_[Index(row, column)], text, row, column);
}

}  // namespace terravane
