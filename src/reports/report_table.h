/// Ruled tables as all reports have them: a box, thick verticals, thin lines between rows, row labels, values
/// centred in their columns. Heights are counted in lines of the page, widths are twips.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "controls/cell_editor.h"
#include "controls/text_grid.h"
#include "reports/page_text.h"

namespace terravane {

inline constexpr int kThickRule = 2;  // draw widths
inline constexpr int kThinRule = 1;
inline constexpr double kLabelInset = 200;

/// Equal columns side by side, counted from 1.
struct PageColumns {
    double left;
    double width;

    double Left(int column) const { return left + width * (column - 1); }
};

/// The rules of a table.
/// left, right  of the box
/// top, bottom  of the box, in lines
/// columns      a thick vertical at the left edge of each column from 1 to `verticals`
/// headRule     a thick rule below the header, in lines; none where the table has no header
/// firstThin    the first of `thinRules` thin rules, in lines; they follow one a line
struct RuledTable {
    double left, right;
    double top, bottom;
    PageColumns columns;
    int verticals;
    std::optional<double> headRule;
    double firstThin;
    int thinRules;
};

/// Draws box, verticals, header rule and thin rules. The draw width is the thin one afterwards.
void DrawRules(DrawingSurface& page, const PageLines& y, const RuledTable& table);

/// A vertical at each left edge of the columns `first` to `last`, between two heights in lines, in the
/// present width.
void DrawVerticals(DrawingSurface& page, const PageLines& y, const PageColumns& columns, int first, int last,
                   double top, double bottom);

/// Horizontal rules from x1 to x2, one a line from the line `first` on, in the present width.
void DrawRows(DrawingSurface& page, const PageLines& y, double x1, double x2, double first, int count);

/// Labels at `x`, one a line, from the line `first` on.
void PrintLabels(DrawingSurface& page, const PageLines& y, double x, double first,
                 std::span<const std::string_view> labels);

/// The numbers 1 to `count`, each centred in its column, on the present line.
void PrintColumnNumbers(DrawingSurface& page, const PageColumns& columns, int count);

/// The trimmed cells of a part of a grid, each centred in its column: the part's first column in column 1,
/// its first row on the line `first`. The present line is the last row's afterwards.
void PrintCells(DrawingSurface& page, const PageLines& y, const PageColumns& columns, double first,
                const TextGrid& grid, const CellRange& part);

}  // namespace terravane
