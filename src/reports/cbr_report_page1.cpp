// Page 1: what was tested, and how.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "reports/cbr_report.h"
#include "reports/report_table.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/cbr/frmCBR.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kDateWidth = 1000;  // of date, time and elapsed time

/// The page being drawn: its two half boxes, its columns.
struct CbrPage : ReportPage {
    const frmCBR& cbr;
    Edges leftHalf, rightHalf;
    PageColumns molds;
    PageColumns solution;  // the cells of the right half box
    PageColumns swelling;

    explicit CbrPage(const Printing& printing)
        : ReportPage(printing),
          cbr(printing.SheetAs<frmCBR>()),
          leftHalf(LeftHalf(page)),
          rightHalf(RightHalf(page)),
          molds(ColumnsBeside(kLabelWidth, WholeWidth(page), kColumns)),
          solution(ColumnsBeside(kLabelWidth, rightHalf, kMolds)),
          swelling{molds.left, molds.width / 2}
    {}

    Edges SwellingEdges() const { return {kLeft, swelling.Left(1 + kColumns)}; }
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

/// One half of the parameters' box: where the colons and the units stand, counted from the labels by the width of a
/// text.
struct ParameterColumn {
    std::string_view colonAfter, unitAfter;
    std::array<ReportField, 2> rows;
};

constexpr std::array kParameters{
    ParameterColumn{
        "Opt. Moisture ",
        "Opt. Moisture           ",
        {FieldOf(laboratory::kBearingSheet, "txtOMC", "%"), FieldOf(laboratory::kBearingSheet, "txtMDD", "g/cm^3")}},
    ParameterColumn{
        "Prv. Constant (K) ",
        "Prv. Constant (K)           ",
        {FieldOf(laboratory::kBearingSheet, "txtK", "lb/div."), FieldOf(laboratory::kBearingSheet, "txtWeight", "kg")}},
};

void PrintParameters(const CbrPage& of, const ParameterColumn& column, double left)
{
    const double start = left + kLabelInset;
    double line = 2;
    for (const ReportField& parameter : column.rows) {
        PrintFrom(of.page, start, of.y(line++), parameter.label);
        PrintFrom(of.page, start + of.page.TextWidth(column.colonAfter), " : ");
        of.page.PrintOn(of.Text(parameter.control));
        PrintFrom(of.page, UnitLeft(of.page, start + of.page.TextWidth(column.unitAfter)), parameter.unit);
    }
}

void PrintTypeOfTest(const CbrPage& of, const PageColumns& halves)
{
    const Bold bold(of.page);
    of.page.CurrentY = of.y(1);
    PrintHeads(of.page, halves, std::array{CompactionName(of.cbr), ConditionName(of.cbr)});
}

/// Left half box, lines 1 to 4.
void DrawTypeOfTest(const CbrPage& of)
{
    PrintCaption(of.page, kLeft, of.y(0), "Type of Conpaction and CBR");
    const PageColumns halves = ColumnsBeside(0, of.leftHalf, 2);
    const RuledBox box(of.page, of.y, of.leftHalf, 1, 4);
    box.Rows(2);
    box.Verticals(halves, 2, 2);
    box.Thin();
    box.Rows(3);
    PrintTypeOfTest(of, halves);
    PrintParameters(of, kParameters[0], halves.Left(1));
    PrintParameters(of, kParameters[1], halves.Left(2));
}

using SolutionCells = std::array<std::string, kMolds>;

/// A row of the right half box: its cells are a row of a grid.
void PrintSolution(const CbrPage& of, double line, std::string_view label, const SolutionCells& cells)
{
    PrintFrom(of.page, of.rightHalf.left + kLabelInset, of.y(line), label);
    int mold = 1;
    for (const std::string& cell : cells)
        PrintCentred(of.page, of.solution.Left(mold++), of.solution.width, Trim(cell));
}

void PrintSolutionHeads(const CbrPage& of)
{
    const Bold bold(of.page);
    PrintSolution(of, 1, "Conditions", {"Unsoaked", "Soaked", ""});
}

SolutionCells ResultsOf(const frmCBR& sheet, result::Row row)
{
    return {sheet.mshLPC(row, 1), sheet.mshLPC(row, 2), sheet.mshLPC(row, 3)};
}

/// With both conditions the second column is the first soaked mold, as in the results below it.
SolutionCells BlowsOf(const frmCBR& sheet)
{
    const auto blows = [&](int column) { return sheet.MSHCompaction(density::Blows, column); };
    if (sheet.optBoth.Value()) return {blows(1), blows(1 + kMolds), ""};
    return {blows(1), blows(2), blows(3)};
}

/// Right half box, lines 1 to 5: heads and three rows.
void DrawSolution(const CbrPage& of)
{
    PrintCaption(of.page, of.rightHalf.left, of.y(0), "CBR Solution");
    const RuledBox box(of.page, of.y, of.rightHalf, 1, 5);
    box.Rows(2);
    box.Verticals(of.solution, 1, kMolds);
    box.Thin();
    box.Rows(3, 2);
    const AsTable table(of.page, {.columns = WithLabels(of.rightHalf, of.solution, kMolds),
                                  .rows = of.y.EdgesOf(1, 4),
                                  .headRows = 1,
                                  .headColumns = 1});
    PrintSolutionHeads(of);
    PrintSolution(of, 2, "Number of Blows per Layer/Layers", BlowsOf(of.cbr));
    PrintSolution(of, 3, "CBR at 0.1 in. Penetration (%)", ResultsOf(of.cbr, result::At01));
    PrintSolution(of, 4, "CBR at 0.2 in. Penetration (%)", ResultsOf(of.cbr, result::At02));
}

/// What a table of six columns shows: the rows of a grid below its first, with their titles.
struct MoldTable {
    std::string_view caption;
    double captionLine;
    const TextGrid& grid;

    int Rows() const { return grid.Rows() - 1; }
    double Top() const { return captionLine + 1; }
    double Bottom() const { return Top() + grid.Rows(); }
};

/// Below the head line the molds of a condition are parted by thin verticals.
void DrawMoldRules(const CbrPage& of, const MoldTable& table)
{
    const double top = table.Top(), bottom = table.Bottom();
    const RuledBox box(of.page, of.y, WholeWidth(of.page), top, bottom);
    box.Rows(top + 1);
    for (const int column : {1, 1 + kMolds}) box.Verticals(of.molds, column, column);
    box.Thin();
    box.Verticals(of.molds, 2, kColumns, top + 1, bottom);
    box.Rows(top + 2, table.Rows());
}

void PrintConditions(const CbrPage& of, double line)
{
    const Bold bold(of.page);
    const bool isBoth = of.cbr.optBoth.Value();
    const PageColumns conditions{of.molds.left, of.molds.width * kMolds};
    PrintFrom(of.page, kLeft + kLabelInset, of.y(line), "Condition");
    PrintHeads(
        of.page, conditions,
        std::array<std::string_view, 2>{isBoth ? "Before Soaking" : "Unsoaked", isBoth ? "After Soaking" : "Soaked"});
}

void DrawMoldTable(const CbrPage& of, const MoldTable& table)
{
    PrintCaption(of.page, kLeft, of.y(table.captionLine), table.caption);
    DrawMoldRules(of, table);
    const AsTable part(of.page, {.columns = WithLabels(WholeWidth(of.page), of.molds, kColumns),
                                 .rows = of.y.EdgesOf(table.Top(), table.grid.Rows()),
                                 .headRows = 1,
                                 .headColumns = 1,
                                 .merged = {{0, 1, 1, kMolds}, {0, 1 + kMolds, 1, kMolds}}});
    PrintConditions(of, table.Top());
    for (int row = 1; row <= table.Rows(); ++row)
        PrintFrom(of.page, kLeft + kLabelInset, of.y(table.Top() + row), table.grid(row, 0));
    PrintCells(of.page, of.y, of.molds, table.Top() + 1, table.grid, {1, table.Rows(), 1, kColumns});
}

/// The higher ratio of the mold that counts: the first, with both conditions the soaked one.
std::string SingleMoldValue(const frmCBR& sheet)
{
    const int mold = sheet.optBoth.Value() ? 2 : 1;
    return NumberText(std::max(Val(sheet.mshLPC(result::At01, mold)), Val(sheet.mshLPC(result::At02, mold))));
}

std::string ResultLine(const frmCBR& sheet)
{
    if (sheet.SSTData.TabEnabled(kValueTab)) {
        return "CBR Value at " + sheet.cboCBR.Text() + " of " + sheet.txtCompaction.Text() + " is " +
               sheet.txtCBR.Text() + " %";
    }
    return "CBR Value of " + sheet.txtCompaction.Text() + " is " + SingleMoldValue(sheet) + " %";
}

/// Line 22, in a box as wide as the swelling table.
void DrawResult(const CbrPage& of)
{
    PrintCaption(of.page, kLeft, of.y(21), "Results of Testing ");
    const Edges edges = of.SwellingEdges();
    const RuledBox box(of.page, of.y, edges, 22, 23);
    const Bold bold(of.page);
    of.page.CurrentY = of.y(22);
    PrintCentred(of.page, edges.left, edges.Width(), ResultLine(of.cbr));
}

/// Lines 24 to 32. A mold has two cells; the borders of the pairs go up to the top.
void DrawSwellingRules(const CbrPage& of)
{
    const PageColumns dates{kLeft, kDateWidth};
    const RuledBox box(of.page, of.y, of.SwellingEdges(), 24, 32);
    box.Rows(27);
    box.Verticals(of.swelling, 1, 1);
    box.Thin();
    box.Rows(25);
    box.Rows({of.swelling.left, of.SwellingEdges().right}, 26);
    for (int column = 2; column <= kColumns; ++column)
        box.Verticals(of.swelling, column, column, column % 2 == 1 ? 24 : 26, 32);
    box.Rows(28, 5);
    box.Verticals(dates, 2, 3, 25, 32);
}

void PrintSwellingHeads(const CbrPage& of)
{
    const Bold bold(of.page);
    const PageColumns dates{kLeft, kDateWidth};
    const double pair = of.swelling.width * 2;
    of.page.CurrentY = of.y(24);
    PrintCentred(of.page, kLeft, kLabelWidth, "Mold No.");
    for (int mold = 1; mold <= kMolds; ++mold)
        PrintCentred(of.page, of.swelling.Left(2 * mold - 1), pair, std::to_string(mold));
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

/// Date, time and elapsed time, then a mold's millimetres and percents.
TableShape SwellingShape(const CbrPage& of)
{
    constexpr int kDates = 3, kHeads = 3;
    TableShape shape{.columns = PageColumns{kLeft, kDateWidth}.EdgesOf(kDates - 1),
                     .rows = of.y.EdgesOf(24, 8),
                     .headRows = kHeads,
                     .merged = {{0, 0, 1, kDates}, {1, 0, 2}, {1, 1, 2}, {1, 2, 2}}};
    for (const double edge : of.swelling.EdgesOf(kColumns)) shape.columns.push_back(edge);
    for (int mold = 0; mold < kMolds; ++mold)
        for (const int row : {0, 1}) shape.merged.push_back({row, kDates + 2 * mold, 1, 2});
    return shape;
}

void DrawSwelling(const CbrPage& of)
{
    PrintCaption(of.page, kLeft, of.y(23), "Swelling Determination");
    DrawSwellingRules(of);
    const AsTable table(of.page, SwellingShape(of));
    PrintSwellingHeads(of);
    const TextGrid& grid = of.cbr.MSHSwell;
    const int last = grid.Rows() - 1;
    PrintCells(of.page, of.y, {kLeft, kDateWidth}, 27, grid, {swell::First, last, swell::Date, swell::Elapsed});
    PrintCells(of.page, of.y, of.swelling, 27, grid, {swell::First, last, swell::FirstDial, grid.Columns() - 1});
}

}  // namespace

void DrawCbrPage1(const Printing& printing)
{
    const CbrPage of(printing);
    DrawTypeOfTest(of);
    DrawSolution(of);
    DrawMoldTable(of, {"Water Content Determination", 4, of.cbr.MSHWater});
    DrawMoldTable(of, {"Dry Density Determination", 11, of.cbr.MSHCompaction});
    DrawResult(of);
    DrawSwelling(of);
}

}  // namespace terravane
