/// Ruled tables as all reports have them: a caption, a box, thick verticals, thin lines between rows, a head line, row
/// labels, values centred in their columns. Heights are counted in lines of the page, widths are twips.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/text_grid.h"
#include "drawing/scopes.h"
#include "laboratory/description.h"
#include "reports/report_page.h"

namespace terravane {

/// Where the thin rules between a table's rows lie.
///   Below    below each row, also the last
///   Above    above each row; above the last one lies a thick one
///   Between  between the rows
enum class RowRules { Below, Above, Between };

/// What the last row of a table holds: a cell a column as the rows before, or one value, the average of all columns.
enum class LastRow { Cells, AverageAcross, AverageInFirstColumn };

/// The verticals of a table, all thick, at the left edges of columns.
/// through    columns 1 to `through`: from top to bottom
/// from, to   drawn after the rows: down to the bottom, or to the average
struct TableVerticals {
    int through;
    int from = 1, to = 0;
};

/// A table that shows rows of a grid: its caption on a line, below it the box with the head line and the rows.
/// head           left of the columns' numbers; none, the table has no head line
/// headCentredAs  the head begins where this text would be centred over the labels; none, it begins where they do
/// columns        of cells; the grid's from 1 on, since its column 0 holds the titles
/// firstRow       of the grid; from it to the last one each stands beside its label
struct ReportTable {
    std::string_view caption;
    double captionLine;
    std::string_view head, headCentredAs;
    int columns;
    const laboratory::Grid& grid;
    int firstRow;
    RowRules rules;
    TableVerticals verticals;
    LastRow lastRow = LastRow::Cells;

    constexpr int Rows() const { return grid.Lines() - firstRow; }
    constexpr double Top() const { return captionLine + 1; }
    constexpr double FirstRow() const { return head.empty() ? Top() : Top() + 1; }
    constexpr double Bottom() const { return FirstRow() + Rows(); }
};

/// The room that a table takes across the page. Its labels stand between the left edge and the first column.
struct TablePlace {
    Edges edges;
    PageColumns columns;
};

/// Draws a table, caption first.
void DrawTable(const ReportPage& of, const TablePlace& place, const ReportTable& table);

/// Its box and rules alone.
void DrawRules(const ReportPage& of, const TablePlace& place, const ReportTable& table);

/// Its head line, labels and cells alone.
void PrintTable(const ReportPage& of, const TablePlace& place, const ReportTable& table);

// What tables of other kinds are made of.

/// The edges of the labels and of `count` columns beside them.
std::vector<double> WithLabels(const Edges& edges, const PageColumns& columns, int count);

/// A box and the rules in it, which reach from edge to edge unless they say more. Each rule is as thick as was said
/// last; heights are lines of the page. The pen is the page's own again when the box is done.
class RuledBox {
  public:
    /// Draws the box, thick, and goes on so.
    RuledBox(DrawingSurface& page, const PageLines& y, const Edges& edges, double top, double bottom);

    void Thick() const { page_.DrawWidth = kThickRule; }
    void Thin() const { page_.DrawWidth = kThinRule; }

    /// `count` horizontal rules, one a line, from the line `first` on.
    void Rows(double first, int count = 1) const { Rows(edges_, first, count); }
    void Rows(const Edges& edges, double first, int count = 1) const;

    /// A vertical at each left edge of the columns `first` to `last`.
    void Verticals(const PageColumns& columns, int first, int last) const
    {
        Verticals(columns, first, last, top_, bottom_);
    }
    void Verticals(const PageColumns& columns, int first, int last, double top, double bottom) const;

    /// One vertical between columns.
    void Vertical(double x) const { Vertical(x, top_, bottom_); }
    void Vertical(double x, double top, double bottom) const;

  private:
    DrawingSurface& page_;
    Stroke stroke_;
    PageLines y_;
    Edges edges_;
    double top_, bottom_;
};

/// Texts on the present line, each centred in its column.
void PrintHeads(DrawingSurface& page, const PageColumns& columns, std::span<const std::string_view> heads);

/// The trimmed cells of a part of a grid, each centred in its column: the part's first column in column 1,
/// its first row on the line `first`. The present line is the last row's afterwards.
void PrintCells(DrawingSurface& page, const PageLines& y, const PageColumns& columns, double first,
                const TextGrid& grid, const CellRange& part);

}  // namespace terravane
