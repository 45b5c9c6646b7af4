#include "reports/head_block.h"

#include <array>
#include <string_view>

#include "drawing/scopes.h"
#include "reports/report_page.h"

namespace terravane {

namespace {

constexpr double kHeadSize = 14;      // points
constexpr double kBelowFactor = 200;  // twips between the factor's height and the first row
constexpr std::string_view kColon = " : ";

struct HeadRow {
    ReportField left, right;  // without a label nothing is drawn
};

constexpr std::array kHeadRows{
    HeadRow{{"Client Name ", "txtClient"}, {"Report No.", "txtID"}},
    HeadRow{{"Project Name ", "txtProject"}, {"Date of Test", "DTPDate"}},
    HeadRow{{"Location", "txtLocation"}, {"Sample", "txtSoil"}},
};

constexpr HeadRow kPositionRow{{"Position", "txtPosition"}, {}};

/// Left edges of a label and of its value.
struct HeadColumn {
    double label, value;
};

HeadColumn LeftColumn(const DrawingSurface& page)
{
    return {kLeft, kLeft + page.TextWidth("Project Name : ")};
}

HeadColumn RightColumn(const DrawingSurface& page)
{
    const double label = 3500 + (page.ScaleWidth - 3000 - 500) / 6 * 3 + 200;
    return {label, label + page.TextWidth("Date of Test : ")};
}

void PrintField(const Printing& of, const ReportField& field, const HeadColumn& column)
{
    if (field.label.empty()) return;
    PrintFrom(of.page, column.label, field.label);
    PrintFrom(of.page, column.value, kColon);
    of.page.PrintOn(TextOf(of.sheet, field.control));
}

void PrintRow(const Printing& of, const HeadRow& row)
{
    PrintField(of, row.left, LeftColumn(of.page));
    PrintField(of, row.right, RightColumn(of.page));
    of.page.Print();
}

}  // namespace

void DrawHeadBlock(const Printing& of)
{
    const TextSize size(of.page, kHeadSize);
    of.page.CurrentY = of.page.TextWidth("D") * of.report.headFactor.On(of.medium) + kBelowFactor;
    for (const HeadRow& row : kHeadRows) PrintRow(of, row);
    if (of.report.hasPosition) PrintRow(of, kPositionRow);
}

}  // namespace terravane
