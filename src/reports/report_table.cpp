#include "reports/report_table.h"

#include <string>

#include "runtime/text.h"

namespace terravane {

void DrawRules(DrawingSurface& page, const PageLines& y, const RuledTable& table)
{
    page.DrawWidth = kThickRule;
    page.Box(table.left, y(table.top), table.right, y(table.bottom));
    DrawVerticals(page, y, table.columns, 1, table.verticals, table.top, table.bottom);
    if (table.headRule) DrawRows(page, y, table.left, table.right, *table.headRule, 1);
    page.DrawWidth = kThinRule;
    DrawRows(page, y, table.left, table.right, table.firstThin, table.thinRules);
}

void DrawVerticals(DrawingSurface& page, const PageLines& y, const PageColumns& columns, int first, int last,
                   double top, double bottom)
{
    for (int column = first; column <= last; ++column)
        page.Line(columns.Left(column), y(top), columns.Left(column), y(bottom));
}

void DrawRows(DrawingSurface& page, const PageLines& y, double x1, double x2, double first, int count)
{
    for (int row = 0; row < count; ++row) page.Line(x1, y(first + row), x2, y(first + row));
}

void PrintLabels(DrawingSurface& page, const PageLines& y, double x, double first,
                 std::span<const std::string_view> labels)
{
    page.CurrentY = y(first);
    for (const std::string_view label : labels) PrintLineFrom(page, x, label);
}

void PrintColumnNumbers(DrawingSurface& page, const PageColumns& columns, int count)
{
    for (int column = 1; column <= count; ++column)
        PrintCentred(page, columns.Left(column), columns.width, std::to_string(column));
}

void PrintCells(DrawingSurface& page, const PageLines& y, const PageColumns& columns, double first,
                const TextGrid& grid, const CellRange& part)
{
    for (int row = part.firstRow; row <= part.lastRow; ++row) {
        page.CurrentY = y(first + row - part.firstRow);
        for (int column = part.firstColumn; column <= part.lastColumn; ++column)
            PrintCentred(page, columns.Left(column - part.firstColumn + 1), columns.width, Trim(grid(row, column)));
    }
}

}  // namespace terravane
