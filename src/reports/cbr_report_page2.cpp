// Page 2: the penetrations, the curves as they stand on the sheet, the ratios of one mold or of both conditions.
#include <array>
#include <string>
#include <string_view>

#include "reports/cbr_report.h"
#include "reports/report_table.h"
#include "runtime/text.h"
#include "sheets/cbr/frmCBR.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kTableTop = 3000;
constexpr int kHeadLines = 4;
constexpr int kColumnsAcross = penetration::kColumns;
constexpr int kGroup = 3;              // columns of a mold
constexpr double kCurvesBelow = 400;   // the table
constexpr double kSummaryBelow = 500;  // the table
constexpr double kSummarySize = 15;    // points
constexpr double kSummaryGap = 80;     // between the left curve and the summary

/// The page being drawn: the table's lines and its ten columns.
struct CbrTable : ReportPage {
    const frmCBR& cbr;
    PageColumns columns;
    int bottom;  // line

    explicit CbrTable(const Printing& printing)
        : ReportPage(printing, kTableTop),
          cbr(printing.SheetAs<frmCBR>()),
          columns(ColumnsBeside(0, WholeWidth(page), kColumnsAcross)),
          bottom(kHeadLines + cbr.MSHPenetrate1.Rows())
    {}

    /// The columns of a grid count from 0, those of the page from 1.
    double Left(int gridColumn) const { return columns.Left(gridColumn + 1); }
};

void DrawTableRules(const CbrTable& of)
{
    const auto onPage = [](int gridColumn) { return gridColumn + 1; };
    const RuledBox box(of.page, of.y, WholeWidth(of.page), 0, of.bottom);
    box.Rows(kHeadLines);
    for (int mold = 1; mold <= kMolds; ++mold) {
        const int dial = onPage(penetration::Dial(mold));
        box.Verticals(of.columns, dial, dial);
    }
    box.Thin();
    for (int mold = 1; mold <= kMolds; ++mold) {
        box.Verticals(of.columns, onPage(penetration::Load(mold)), onPage(penetration::Stress(mold)), 1, of.bottom);
    }
    box.Rows(1);
    box.Rows(kHeadLines + 1, of.bottom - kHeadLines - 1);
}

/// The molds' numbers stand in the first line, since the heads fill the three below, each over the middle of its
/// group; of a test of both conditions the first two have the condition beside them.
void PrintMoldHeads(const CbrTable& of)
{
    constexpr std::array<std::string_view, kMolds> kConditions{"Unsoaked", "Soaked", ""};
    of.page.CurrentY = of.y(0);
    PrintCentred(of.page, kLeft, of.columns.width, "Mold No.");
    for (int mold = 1; mold <= kMolds; ++mold) {
        const double left = of.Left(penetration::Dial(mold));
        const auto condition = kConditions[static_cast<std::size_t>(mold - 1)];
        if (of.cbr.optBoth.Value() && !condition.empty()) PrintCentred(of.page, left, of.columns.width, condition);
        PrintCentred(of.page, left, of.columns.width * kGroup, of.cbr.MSHPenetrate(0, penetration::Load(mold)));
    }
}

void PrintTableHeads(const CbrTable& of)
{
    constexpr std::array<std::string_view, 2> kDepthHeads{"Penetration", "(in)"};
    constexpr std::array<std::array<std::string_view, kGroup>, 3> kGroupHeads{{
        {"Load Dial", "Load", "Stress"},
        {"Reading", "P", "P/A"},
        {"(div)", "(lb)", "(lb/in^2)"},
    }};
    const Bold bold(of.page);
    PrintMoldHeads(of);
    double line = 1.5;  // two lines in the height of three
    for (const auto head : kDepthHeads) {
        of.page.CurrentY = of.y(line++);
        PrintCentred(of.page, kLeft, of.columns.width, head);
    }
    line = 1;
    for (const auto& heads : kGroupHeads) {
        of.page.CurrentY = of.y(line++);
        for (int column = 1; column < kColumnsAcross; ++column) {
            const auto& head = heads[static_cast<std::size_t>((column - 1) % kGroup)];
            PrintCentred(of.page, of.Left(column), of.columns.width, head);
        }
    }
}

void PrintReadings(const CbrTable& of)
{
    const TextGrid& grid = of.cbr.MSHPenetrate1;
    PrintCells(of.page, of.y, of.columns, kHeadLines, grid, {0, grid.Rows() - 1, 0, kColumnsAcross - 1});
}

void PrintTable(const CbrTable& of)
{
    std::vector<double> rows = of.y.EdgesOf(kHeadLines, of.cbr.MSHPenetrate1.Rows());
    rows.insert(rows.begin(), {of.y(0), of.y(1)});
    TableShape shape{
        .columns = of.columns.EdgesOf(kColumnsAcross), .rows = std::move(rows), .headRows = 2, .headColumns = 1};
    for (int mold = 1; mold <= kMolds; ++mold) shape.merged.push_back({0, penetration::Dial(mold), 1, kGroup});
    const AsTable table(of.page, std::move(shape));
    PrintTableHeads(of);
    PrintReadings(of);
}

std::string ListOf(const frmCBR& sheet, result::Row row)
{
    std::string list;
    for (int mold = 1; mold <= kMolds; ++mold)
        if (const std::string value(Trim(sheet.mshLPC(row, mold))); !value.empty())
            list += (list.empty() ? "" : ", ") + value;
    return list;
}

std::string StressesShown(const frmCBR& sheet)
{
    const std::string at01 = ListOf(sheet, result::At01);
    return Shows("Stress against penetration", at01,
                 "CBR at 0.1 in. " + at01 + " %, at 0.2 in. " + ListOf(sheet, result::At02) + " %");
}

void CopyCurves(const CbrTable& of)
{
    const frmCBR& sheet = of.cbr;
    const double top = of.y(of.bottom) + kCurvesBelow;
    CopyPlot(of.page, sheet.picGraph, sheet.picgraph1, {kLeft, top}, StressesShown(sheet));
    CopyPlot(
        of.page, sheet.picGraph2, sheet.picGraph3, {of.Right() - sheet.picGraph2.Width, top},
        Shows("CBR against dry density", sheet.txtCBR.Text(),
              "CBR " + sheet.txtCBR.Text() + " % at " + sheet.cboCBR.Text() + " of " + sheet.txtCompaction.Text()));
}

void PrintValuesOf(const CbrTable& of, double x, int mold)
{
    struct Line {
        std::string_view label;
        result::Row row;
        std::string_view unit;
    };
    constexpr std::array kLines{
        Line{"Dry Density is ", result::DryDensity, "g/cm^3"},
        Line{"CBR Value at 0.1 in. Penetration is ", result::At01, "%"},
        Line{"CBR Value at 0.2 in. Penetration is ", result::At02, "%"},
    };
    for (const Line& line : kLines) {
        PrintFrom(of.page, x, line.label);
        of.page.PrintOn(of.cbr.mshLPC(line.row, mold));
        of.page.Print(line.unit);
    }
}

void PrintConditionOf(const CbrTable& of, double x, std::string_view caption, int mold)
{
    PrintCaption(of.page, x, of.page.CurrentY, caption);
    PrintValuesOf(of, x, mold);
}

/// Between the two curves.
void PrintSummary(const CbrTable& of)
{
    const TextSize size(of.page, kSummarySize);
    const bool isBoth = of.cbr.optBoth.Value();
    const double x = kLeft + of.cbr.picGraph.Width + kSummaryGap;
    of.page.CurrentY = of.y(of.bottom) + kSummaryBelow + LineHeight(of.page) * (isBoth ? 2 : 4);
    if (isBoth) {
        PrintConditionOf(of, x, "Unsoaked CBR", 1);
        PrintConditionOf(of, x, "Soaked CBR", 2);
    } else {
        PrintValuesOf(of, x, 1);
    }
}

}  // namespace

void DrawCbrPage2(const Printing& printing)
{
    const CbrTable of(printing);
    DrawTableRules(of);
    PrintTable(of);
    CopyCurves(of);
    PrintSummary(of);
}

}  // namespace terravane
