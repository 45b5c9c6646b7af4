#include "reports/head_block.h"

#include <array>
#include <string_view>

#include "reports/report.h"
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

void PrintField(const TestSheet& sheet, DrawingSurface& page, const ReportField& field, const HeadColumn& column)
{
    if (field.label.empty()) return;
    PrintFrom(page, column.label, field.label);
    PrintFrom(page, column.value, kColon);
    page.PrintOn(TextOf(sheet, field.control));
}

void PrintRow(const TestSheet& sheet, DrawingSurface& page, const HeadRow& row)
{
    PrintField(sheet, page, row.left, LeftColumn(page));
    PrintField(sheet, page, row.right, RightColumn(page));
    page.Print();
}

}  // namespace

void DrawHeadBlock(const TestSheet& sheet, DrawingSurface& page, Medium medium)
{
    const Report& report = ReportOf(sheet.program.CurrentTest);
    page.FontSize = kHeadSize;
    page.FontBold = false;
    page.CurrentY = page.TextWidth("D") * report.headFactor.On(medium) + kBelowFactor;
    for (const HeadRow& row : kHeadRows) PrintRow(sheet, page, row);
    if (report.hasPosition) PrintRow(sheet, page, kPositionRow);
}

}  // namespace terravane
