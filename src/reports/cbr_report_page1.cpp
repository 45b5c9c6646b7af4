// Page 1: what was tested, and how.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "reports/cbr_report_pages.h"
#include "reports/report_table.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kLabelWidth = 3000;
constexpr double kBetweenHalves = 50;
constexpr double kDateWidth = 1000;  // of date, time and elapsed time

/// The page being drawn: its rows from the body's top, its two half boxes, its columns.
struct CbrPage {
    const frmCBR& sheet;
    DrawingSurface& page;
    PageLines y;
    double right;
    double half;        // width of a half box
    double secondHalf;  // left edge of the right one
    PageColumns moulds;
    PageColumns solution;  // the cells of the right half box
    PageColumns swelling;

    CbrPage(const frmCBR& open, DrawingSurface& surface)
        : sheet(open),
          page(surface),
          y(surface, kBodyTop),
          right(RightEdge(surface)),
          half((right - kLeft) / 2 - kBetweenHalves),
          secondHalf(kLeft + (right - kLeft) / 2 + kBetweenHalves),
          moulds{kLeft + kLabelWidth, (right - kLeft - kLabelWidth) / kColumns},
          solution{secondHalf + kLabelWidth, (half - kLabelWidth) / kMoulds},
          swelling{moulds.left, moulds.width / 2}
    {}
};

std::string_view CompactionName(const frmCBR& sheet)
{
    if (sheet.optMod.Value()) return "Modified Compaction";
    return sheet.optStd.Value() ? "Standard Compaction" : "";
}

std::string_view ConditionName(const frmCBR& sheet)
{
    if (sheet.optSoak.Value()) return "Soaked CBR";
    if (sheet.optUnsoak.Value()) return "Unsoaked CBR";
    return sheet.optBoth.Value() ? "Unsoaked and Soaked CBR" : "";
}

/// A label, and the box whose text follows it.
struct Parameter {
    std::string_view label, control, unit;
};

/// One half of the parameters' box: where the colons and the units stand, counted from the labels by the width of a
/// text.
struct ParameterColumn {
    std::string_view colonAfter, unitAfter;
    std::array<Parameter, 2> rows;
};

constexpr std::array kParameters{
    ParameterColumn{"Opt. Moisture ",
                    "Opt. Moisture           ",
                    {Parameter{"OMC ", "txtOMC", "%"}, Parameter{"MDD ", "txtMDD", "g/cm^3"}}},
    ParameterColumn{
        "Prv. Constant (K) ",
        "Prv. Constant (K)           ",
        {Parameter{"Prv. Constant (K)  ", "txtK", "lb/div."}, Parameter{"Surcharge Weight  ", "txtWeight", "kg"}}},
};

/// A unit gives way to a value that is longer than its place.
void PrintParameters(const CbrPage& of, const ParameterColumn& column, double left)
{
    const double start = left + kLabelInset;
    for (std::size_t row = 0; row < column.rows.size(); ++row) {
        const Parameter& parameter = column.rows[row];
        of.page.CurrentY = of.y(2 + static_cast<double>(row));
        PrintFrom(of.page, start, parameter.label);
        PrintFrom(of.page, start + of.page.TextWidth(column.colonAfter), " : ");
        of.page.PrintOn(of.sheet.Get<TextControl>(parameter.control).Text());
        const double behind = of.page.CurrentX + of.page.TextWidth(" ");
        PrintFrom(of.page, std::max(start + of.page.TextWidth(column.unitAfter), behind), parameter.unit);
    }
}

/// Left half box, lines 1 to 4.
void DrawTypeOfTest(const CbrPage& of)
{
    PrintCaption(of.page, of.y(0), "Type of Conpaction and CBR");
    const double middle = kLeft + of.half / 2;
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, of.y(1), kLeft + of.half, of.y(4));
    DrawRows(of.page, of.y, kLeft, kLeft + of.half, 2, 1);
    of.page.Line(middle, of.y(1), middle, of.y(4));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, kLeft, kLeft + of.half, 3, 1);
    of.page.CurrentY = of.y(1);
    PrintCentred(of.page, kLeft, of.half / 2, CompactionName(of.sheet));
    PrintCentred(of.page, middle, of.half / 2, ConditionName(of.sheet));
    of.page.FontBold = false;
    PrintParameters(of, kParameters[0], kLeft);
    PrintParameters(of, kParameters[1], middle);
}

/// A row of the right half box: its cells are a row of a grid.
void PrintSolution(const CbrPage& of, double line, std::string_view label, const std::array<std::string, 3>& cells)
{
    of.page.CurrentY = of.y(line);
    PrintFrom(of.page, of.secondHalf + kLabelInset, label);
    for (int mould = 1; mould <= kMoulds; ++mould) {
        PrintCentred(of.page, of.solution.Left(mould), of.solution.width,
                     Trim(cells[static_cast<std::size_t>(mould - 1)]));
    }
}

std::array<std::string, 3> ResultsOf(const frmCBR& sheet, result::Row row)
{
    return {sheet.mshLPC(row, 1), sheet.mshLPC(row, 2), sheet.mshLPC(row, 3)};
}

/// With both conditions the second column is the first soaked mould, as in the results below it.
std::array<std::string, 3> BlowsOf(const frmCBR& sheet)
{
    const auto blows = [&](int column) { return sheet.MSHCompaction(density::Blows, column); };
    if (sheet.optBoth.Value()) return {blows(1), blows(1 + kMoulds), ""};
    return {blows(1), blows(2), blows(3)};
}

/// Right half box, lines 1 to 5: heads and three rows.
void DrawSolution(const CbrPage& of)
{
    of.page.DrawWidth = kThickRule;
    of.page.FontBold = true;
    of.page.CurrentY = of.y(0);
    PrintLineFrom(of.page, of.secondHalf, "CBR Solution");
    of.page.Box(of.secondHalf, of.y(1), of.right, of.y(5));
    DrawRows(of.page, of.y, of.secondHalf, of.right, 2, 1);
    DrawVerticals(of.page, of.y, of.solution, 1, kMoulds, 1, 5);
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, of.secondHalf, of.right, 3, 2);
    PrintSolution(of, 1, "Conditions", {"Unsoaked", "Soaked", ""});
    of.page.FontBold = false;
    PrintSolution(of, 2, "Number of Blows per Layer/Layers", BlowsOf(of.sheet));
    PrintSolution(of, 3, "CBR at 0.1 in. Penetration (%)", ResultsOf(of.sheet, result::At01));
    PrintSolution(of, 4, "CBR at 0.2 in. Penetration (%)", ResultsOf(of.sheet, result::At02));
}

/// A table of six columns: caption, head line, and the rows of a grid below its first with their titles.
void DrawMouldTable(const CbrPage& of, std::string_view caption, double captionLine, const TextGrid& grid)
{
    const double top = captionLine + 1;
    const int rows = grid.Rows() - 1;
    const double bottom = top + 1 + rows;
    of.page.DrawWidth = kThickRule;
    PrintCaption(of.page, of.y(captionLine), caption);
    of.page.Box(kLeft, of.y(top), of.right, of.y(bottom));
    DrawRows(of.page, of.y, kLeft, of.right, top + 1, 1);
    for (const int column : {1, 1 + kMoulds}) DrawVerticals(of.page, of.y, of.moulds, column, column, top, bottom);
    of.page.DrawWidth = kThinRule;
    DrawVerticals(of.page, of.y, of.moulds, 2, kColumns, top + 1, bottom);
    DrawRows(of.page, of.y, kLeft, of.right, top + 2, rows);

    const bool isBoth = of.sheet.optBoth.Value();
    of.page.CurrentY = of.y(top);
    PrintFrom(of.page, kLeft + kLabelInset, "Condition");
    PrintCentred(of.page, of.moulds.Left(1), of.moulds.width * kMoulds, isBoth ? "Before Soaking" : "Unsoaked");
    PrintCentred(of.page, of.moulds.Left(1 + kMoulds), of.moulds.width * kMoulds, isBoth ? "After Soaking" : "Soaked");
    of.page.FontBold = false;
    for (int row = 1; row <= rows; ++row) {
        of.page.CurrentY = of.y(top + row);
        PrintFrom(of.page, kLeft + kLabelInset, grid(row, 0));
    }
    PrintCells(of.page, of.y, of.moulds, top + 1, grid, {1, rows, 1, kColumns});
}

/// The higher ratio of the mould that counts: the first, with both conditions the soaked one.
std::string SingleMouldValue(const frmCBR& sheet)
{
    const int mould = sheet.optBoth.Value() ? 2 : 1;
    return NumberText(std::max(Val(sheet.mshLPC(result::At01, mould)), Val(sheet.mshLPC(result::At02, mould))));
}

std::string ResultLine(const frmCBR& sheet)
{
    if (sheet.SSTData.TabEnabled(kValueTab)) {
        return "CBR Value at " + sheet.cboCBR.Text() + " of " + sheet.txtCompaction.Text() + " is " +
               sheet.txtCBR.Text() + " %";
    }
    return "CBR Value of " + sheet.txtCompaction.Text() + " is " + SingleMouldValue(sheet) + " %";
}

/// Line 22, in a box as wide as the swelling table.
void DrawResult(const CbrPage& of)
{
    PrintCaption(of.page, of.y(21), "Results of Testing ");
    const double right = of.moulds.Left(1 + kMoulds);
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, of.y(22), right, of.y(23));
    of.page.CurrentY = of.y(22);
    PrintCentred(of.page, kLeft, right - kLeft, ResultLine(of.sheet));
}

/// Lines 24 to 32. A mould has two cells; the borders of the pairs go up to the top.
void DrawSwellingRules(const CbrPage& of)
{
    const PageColumns dates{kLeft, kDateWidth};
    const double right = of.swelling.Left(1 + kColumns);
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, of.y(24), right, of.y(32));
    DrawRows(of.page, of.y, kLeft, right, 27, 1);
    DrawVerticals(of.page, of.y, of.swelling, 1, 1, 24, 32);
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, kLeft, right, 25, 1);
    DrawRows(of.page, of.y, of.swelling.left, right, 26, 1);
    for (int column = 2; column <= kColumns; ++column)
        DrawVerticals(of.page, of.y, of.swelling, column, column, column % 2 == 1 ? 24 : 26, 32);
    DrawRows(of.page, of.y, kLeft, right, 28, 5);
    DrawVerticals(of.page, of.y, dates, 2, 3, 25, 32);
}

void PrintSwellingHeads(const CbrPage& of)
{
    const PageColumns dates{kLeft, kDateWidth};
    const double pair = of.swelling.width * 2;
    of.page.CurrentY = of.y(24);
    PrintCentred(of.page, kLeft, kLabelWidth, "Mold No.");
    for (int mould = 1; mould <= kMoulds; ++mould)
        PrintCentred(of.page, of.swelling.Left(2 * mould - 1), pair, std::to_string(mould));
    of.page.CurrentY = of.y(25);
    constexpr std::array<std::string_view, 3> kDateHeads{"Date", "Time", "Elapsed"};
    for (int column = 1; column <= 3; ++column) {
        PrintCentred(of.page, dates.Left(column), dates.width, kDateHeads[static_cast<std::size_t>(column - 1)]);
        PrintCentred(of.page, of.swelling.Left(2 * column - 1), pair, "Swell");
    }
    of.page.CurrentY = of.y(26);
    PrintCentred(of.page, dates.Left(3), dates.width, "Time (hr.)");
    for (int column = 1; column <= kColumns; ++column)
        PrintCentred(of.page, of.swelling.Left(column), of.swelling.width, column % 2 == 1 ? "(mm)" : "(%)");
}

void DrawSwelling(const CbrPage& of)
{
    PrintCaption(of.page, of.y(23), "Swelling Determination");
    DrawSwellingRules(of);
    PrintSwellingHeads(of);
    of.page.FontBold = false;
    const TextGrid& grid = of.sheet.MSHSwell;
    const int last = grid.Rows() - 1;
    PrintCells(of.page, of.y, {kLeft, kDateWidth}, 27, grid, {swell::First, last, swell::Date, swell::Elapsed});
    PrintCells(of.page, of.y, of.swelling, 27, grid, {swell::First, last, swell::FirstDial, grid.Columns() - 1});
}

}  // namespace

void DrawCbrPage1(const frmCBR& sheet, DrawingSurface& page)
{
    page.FontSize = kBodySize;
    page.FontTransparent = true;
    const CbrPage of(sheet, page);
    DrawTypeOfTest(of);
    DrawSolution(of);
    DrawMouldTable(of, "Water Content Determination", 4, sheet.MSHWater);
    DrawMouldTable(of, "Dry Density Determination", 11, sheet.MSHCompaction);
    DrawResult(of);
    DrawSwelling(of);
}

}  // namespace terravane
