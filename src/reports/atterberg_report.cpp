#include "reports/atterberg_report.h"

#include <array>
#include <string>

#include "drawing/scopes.h"
#include "laboratory/atterberg.h"
#include "reports/report_table.h"
#include "sheets/atterberg/frmAtterberg.h"

namespace terravane {

namespace {

constexpr double kPlotTop = 20.25;  // lines
constexpr double kSummaryTop = 19.3;
constexpr double kSummarySplit = 300;  // twips into the last column

/// "Test No." stands where the compaction report's longer heading would be centred.
constexpr std::string_view kHead = "Test No.", kHeadCentredAs = "Moisture Can No.";

constexpr std::array kTables{
    ReportTable{.caption = "Liquid Limit Determination",
                .captionLine = 0,
                .head = kHead,
                .headCentredAs = kHeadCentredAs,
                .columns = kLimitTrials,
                .grid = laboratory::kLiquidLimit,
                .firstRow = ll::Blows,
                .rules = RowRules::Below,
                .verticals = {kLimitTrials}},
    ReportTable{.caption = "Plastic Limit Determination",
                .captionLine = 9,
                .head = kHead,
                .headCentredAs = kHeadCentredAs,
                .columns = kLimitTrials,
                .grid = laboratory::kPlasticLimit,
                .firstRow = pl::WetAndCan,
                .rules = RowRules::Above,
                .verticals = {1, 2, kLimitTrials},
                .lastRow = LastRow::AverageAcross},
};

/// The lines of the summary box.
constexpr std::array kSummaryLines{
    FieldOf(laboratory::kAtterbergSheet, "txtLL", " %"),
    FieldOf(laboratory::kAtterbergSheet, "txtPL", " %"),
    FieldOf(laboratory::kAtterbergSheet, "txtPI", " %"),
    FieldOf(laboratory::kAtterbergSheet, "txtFI"),
};

/// The page being drawn, with its five trial columns.
struct AtterbergPage : ReportPage {
    PageColumns trials;

    explicit AtterbergPage(const Printing& printing)
        : ReportPage(printing), trials(ColumnsBeside(kLabelWidth, WholeWidth(page), kLimitTrials))
    {}
};

/// Beside the plot, under its own caption.
void DrawSummaryBox(const AtterbergPage& of)
{
    const PageLines y(of.page, of.y(kSummaryTop));
    const double split = of.trials.Left(5) + kSummarySplit;
    const RuledBox box(of.page, y, {of.trials.Left(4), of.trials.Left(6)}, 1, 5);
    box.Vertical(split);
    box.Thin();
    box.Rows(2, 3);
}

void PrintSummary(const AtterbergPage& of)
{
    const double left = of.trials.Left(4), split = of.trials.Left(5) + kSummarySplit;
    const AsTable table(of.page, {.columns = {left, split, of.trials.Left(6)},
                                  .rows = PageLines(of.page, of.y(kSummaryTop)).EdgesOf(1, kSummaryLines.size()),
                                  .headColumns = 1});
    PrintCaption(of.page, left, of.y(kSummaryTop), "Summary of Test Results");
    for (const ReportField& line : kSummaryLines) {
        PrintFrom(of.page, left + kLabelInset, line.label);
        PrintFrom(of.page, of.trials.Left(5) + 700, of.Text(line.control));
        of.page.Print(line.unit);
    }
}

}  // namespace

void DrawAtterberg(const Printing& printing)
{
    const auto& sheet = printing.SheetAs<frmAtterberg>();
    const AtterbergPage of(printing);
    for (const ReportTable& table : kTables) DrawTable(of, {WholeWidth(of.page), of.trials}, table);
    DrawSummaryBox(of);
    PrintSummary(of);
    CopyPlot(of.page, sheet.picgraph1, sheet.picGraph, {kLeft, of.y(kPlotTop)},
             Shows("Flow curve", of.Text("txtLL"), "liquid limit " + of.Text("txtLL") + " %"));
}

}  // namespace terravane
