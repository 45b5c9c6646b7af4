#include "reports/report_table.h"

#include <string>

#include "runtime/text.h"

namespace terravane {

namespace {

void DrawRowRules(const RuledBox& box, const ReportTable& table)
{
    const double first = table.rules == RowRules::Above ? table.FirstRow() : table.FirstRow() + 1;
    box.Thin();
    box.Rows(first, table.rules == RowRules::Below ? table.Rows() : table.Rows() - 1);
}

void DrawInnerRules(const RuledBox& box, const PageColumns& columns, const ReportTable& table)
{
    const double average = table.Bottom() - 1;
    const double bottom = table.lastRow == LastRow::Cells ? table.Bottom() : average;
    box.Thick();
    box.Verticals(columns, table.verticals.from, table.verticals.to, table.Top(), bottom);
    if (table.rules == RowRules::Above) box.Rows(average);
}

void PrintHeadLine(const ReportPage& of, const TablePlace& place, const ReportTable& table)
{
    const Bold bold(of.page);  // for the measure, too
    const double left = place.edges.left, labels = place.columns.left - left;
    const double inset =
        table.headCentredAs.empty() ? kLabelInset : (labels - of.page.TextWidth(table.headCentredAs)) / 2;
    PrintFrom(of.page, left + inset, of.y(table.Top()), table.head);
    for (int column = 1; column <= table.columns; ++column)
        PrintCentred(of.page, place.columns.Left(column), place.columns.width, std::to_string(column));
}

void PrintAverage(const ReportPage& of, const TablePlace& place, const ReportTable& table, std::string_view text)
{
    const PageColumns& columns = place.columns;
    const bool isAcross = table.lastRow == LastRow::AverageAcross;
    of.page.CurrentY = of.y(table.Bottom() - 1);
    PrintCentred(of.page, columns.left, isAcross ? place.edges.right - columns.left : columns.width, text);
}

TableShape ShapeOf(const ReportPage& of, const TablePlace& place, const ReportTable& table)
{
    const int lines = static_cast<int>(table.Bottom() - table.Top());
    TableShape shape{.columns = WithLabels(place.edges, place.columns, table.columns),
                     .rows = of.y.EdgesOf(table.Top(), lines),
                     .headRows = table.head.empty() ? 0 : 1,
                     .headColumns = 1};
    if (table.lastRow == LastRow::AverageAcross) shape.merged = {{lines - 1, 1, 1, table.columns}};
    return shape;
}

}  // namespace

std::vector<double> WithLabels(const Edges& edges, const PageColumns& columns, int count)
{
    std::vector<double> all = columns.EdgesOf(count);
    all.insert(all.begin(), edges.left);
    return all;
}

void DrawTable(const ReportPage& of, const TablePlace& place, const ReportTable& table)
{
    PrintCaption(of.page, place.edges.left, of.y(table.captionLine), table.caption);
    DrawRules(of, place, table);
    PrintTable(of, place, table);
}

void DrawRules(const ReportPage& of, const TablePlace& place, const ReportTable& table)
{
    const RuledBox box(of.page, of.y, place.edges, table.Top(), table.Bottom());
    box.Verticals(place.columns, 1, table.verticals.through);
    if (!table.head.empty()) box.Rows(table.FirstRow());
    DrawRowRules(box, table);
    DrawInnerRules(box, place.columns, table);
}

void PrintTable(const ReportPage& of, const TablePlace& place, const ReportTable& table)
{
    const auto& grid = of.sheet.Get<TextGrid>(table.grid.control);
    const int lastRow = table.firstRow + table.Rows() - 1;
    const bool isAveraged = table.lastRow != LastRow::Cells;
    const AsTable part(of.page, ShapeOf(of, place, table));
    if (!table.head.empty()) PrintHeadLine(of, place, table);
    of.page.CurrentY = of.y(table.FirstRow());
    for (const laboratory::Line& line : table.grid.lines.subspan(static_cast<std::size_t>(table.firstRow)))
        PrintLineFrom(of.page, place.edges.left + kLabelInset, line.Page());
    PrintCells(of.page, of.y, place.columns, table.FirstRow(), grid,
               {table.firstRow, isAveraged ? lastRow - 1 : lastRow, 1, table.columns});
    if (isAveraged) PrintAverage(of, place, table, Trim(grid(lastRow, 1)));
}

RuledBox::RuledBox(DrawingSurface& page, const PageLines& y, const Edges& edges, double top, double bottom)
    : page_(page), stroke_(page, kThickRule), y_(y), edges_(edges), top_(top), bottom_(bottom)
{
    page.Box(edges.left, y(top), edges.right, y(bottom));
}

void RuledBox::Rows(const Edges& edges, double first, int count) const
{
    for (int row = 0; row < count; ++row) page_.Line(edges.left, y_(first + row), edges.right, y_(first + row));
}

void RuledBox::Verticals(const PageColumns& columns, int first, int last, double top, double bottom) const
{
    for (int column = first; column <= last; ++column) Vertical(columns.Left(column), top, bottom);
}

void RuledBox::Vertical(double x, double top, double bottom) const
{
    page_.Line(x, y_(top), x, y_(bottom));
}

void PrintHeads(DrawingSurface& page, const PageColumns& columns, std::span<const std::string_view> heads)
{
    int column = 1;
    for (const std::string_view head : heads) PrintCentred(page, columns.Left(column++), columns.width, head);
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
