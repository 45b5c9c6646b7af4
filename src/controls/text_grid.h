/// A grid of texts addressed by (row, column): the working memory of a test. Row 0 and column 0 hold titles
/// unless the grid's owner says otherwise.
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace terravane {

class TextGrid;

enum class MouseButton { Left, Right };

/// Whether neighbours with the same text stand as one cell, in the rows and columns where that is allowed.
enum class Merging { Never, Free };

/// A cell, or what merged with it: its upper left cell and how far it reaches.
struct CellArea {
    int row, column;
    int rows, columns;
    bool operator==(const CellArea&) const = default;
};

/// One cell: reads as its text, takes a text.
class Cell {
  public:
    Cell(TextGrid& grid, int row, int column) : grid_(grid), row_(row), column_(column) {}
    Cell(const Cell&) = default;
    Cell& operator=(std::string_view text);
    Cell& operator=(const Cell& other) { return *this = std::string_view(other); }

    operator std::string_view() const { return Text(); }
    const std::string& Text() const;
    friend bool operator==(const Cell& cell, std::string_view text) { return cell.Text() == text; }
    friend std::ostream& operator<<(std::ostream& out, const Cell& cell) { return out << '"' << cell.Text() << '"'; }

  private:
    TextGrid& grid_;
    int row_, column_;
};

using GridMouseHandler = std::function<void(MouseButton button, int row, int column)>;

struct GridEvents {
    GridMouseHandler MouseDown = {};
};

class TextGrid : public ControlKind<TextGrid> {
  public:
    TextGrid(Form& owner, std::string_view name, int rows, int columns, GridEvents events = {});

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    /// Keeps the rows that stay; new ones are empty.
    void SetRows(int rows);

    /// Error 9 "Subscript out of range" outside the grid.
    Cell operator()(int row, int column);
    const std::string& operator()(int row, int column) const;
    /// A whole row appended; missing cells are empty. Error 7 past a million rows.
    void AppendRow(std::vector<std::string> cells);

    /// The first cell of each row from the first, or of each column: titles.
    void SetRowTitles(const std::vector<std::string_view>& titles);
    void SetColumnTitles(const std::vector<std::string_view>& titles);

    /// Rows whose cells are worked out, not typed (button-face colour), in all columns from 1 unless
    /// `firstColumn` says.
    void MarkCalculatedRow(int row, int firstColumn = 1);
    void MarkCalculated(int row, int column);
    bool IsCalculated(int row, int column) const;
    /// How many rows at the top are heads and whether the first column holds titles: one of each unless set.
    int HeadRows() const { return headRows_; }
    void SetHeadRows(int rows) { headRows_ = rows; }
    int TitleColumns() const { return titleColumns_; }
    void SetTitleColumns(int columns) { titleColumns_ = columns; }

    /// Width of a column and height of a row in twips, as the sheet lays them out; 0: an even share.
    double ColumnWidth(int column) const { return columnWidths_.at(static_cast<std::size_t>(column)); }
    void SetColumnWidth(int column, double twips);

    Merging MergeCells = Merging::Never;
    /// Whether cells beside each other in a row, or above each other in a column, may merge.
    bool MergeRow(int row) const { return mergedRows_.contains(row); }
    void SetMergeRow(int row) { mergedRows_.insert(row); }
    bool MergeCol(int column) const { return mergedColumns_.contains(column); }
    void SetMergeCol(int column) { mergedColumns_.insert(column); }
    /// What a cell is part of to the eye; a cell that merges with none is its own area. Each cell keeps its text.
    CellArea AreaOf(int row, int column) const;

    /// The current cell.
    int Row() const { return row_; }
    int Column() const { return column_; }
    void Select(int row, int column);

    /// The user's press on a cell.
    void PressMouse(MouseButton button, int row, int column);
    GridMouseHandler MouseDown;

  private:
    friend class Cell;
    struct Run {
        int first, length;
    };
    template <class Alike>
    static Run RunAround(int place, int count, Alike alike);
    Run RunAcross(int row, int column) const;
    std::size_t Index(int row, int column) const;
    void Set(int row, int column, std::string_view text);
    void EmptyRowsFrom(int row);
    void TellNewRow();

    int rows_, columns_, headRows_ = 1, titleColumns_ = 1;
    int row_ = 0, column_ = 0;
    std::vector<std::string> cells_;
    std::vector<bool> calculated_;
    std::vector<double> columnWidths_;
    std::set<int> mergedRows_, mergedColumns_;
};

}  // namespace terravane
