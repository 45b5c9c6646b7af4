#include "reports/atterberg_report.h"

#include <array>
#include <string>

#include "reports/copied_plot.h"
#include "reports/open_sheet.h"
#include "reports/report_table.h"
#include "reports/signature_block.h"
#include "runtime/text.h"
#include "sheets/atterberg/frmAtterberg.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;

constexpr double kLabelWidth = 3000;
constexpr double kPlotTop = 20.25;  // lines
constexpr double kSummaryTop = 19.3;

constexpr std::array kLiquidLabels{
    "Number of Blows"sv,    "Mass of Can + Wet Soil, (g)"sv, "Mass of Can + Dry Soil, (g)"sv, "Mass of Can, (g)"sv,
    "Mass of Water, (g)"sv, "Mass of Dry Soil, (g)"sv,       "Water Content, (%)"sv,
};

constexpr std::array kPlasticLabels{
    "Mass of Can + Wet Soil, (g)"sv, "Mass of Can + Dry Soil, (g)"sv, "Mass of Can, (g)"sv,
    "Mass of Water, (g)"sv,          "Mass of Dry Soil, (g)"sv,       "Water Content, (%)"sv,
    "Plastic Limit, (%)"sv,          "Average Plastic Limit, (%)"sv,
};

/// A line of the summary box. The last label says PI, as the laboratory's form does.
struct SummaryLine {
    std::string_view label, control, unit;
};

constexpr std::array kSummaryLines{
    SummaryLine{"Liquid Limit (LL) ", "txtLL", " %"},
    SummaryLine{"Plastic Limit (PL) ", "txtPL", " %"},
    SummaryLine{"Plasticity Index (PI) ", "txtPI", " %"},
    SummaryLine{"Flow Index (PI) ", "txtFI", ""},
};

/// The page being drawn: its rows from the body's top, its five trial columns.
struct AtterbergPage {
    const frmAtterberg& sheet;
    DrawingSurface& page;
    PageLines y;
    PageColumns trials;

    AtterbergPage(const frmAtterberg& open, DrawingSurface& surface)
        : sheet(open),
          page(surface),
          y(surface, kBodyTop),
          trials{kLeft + kLabelWidth, (RightEdge(surface) - kLeft - kLabelWidth) / kLimitTrials}
    {}

    double Right() const { return RightEdge(page); }
};

/// "Test No." stands where the compaction report's longer heading would be centred.
void PrintHeads(const AtterbergPage& of, double line)
{
    of.page.FontBold = true;
    of.page.CurrentY = of.y(line);
    PrintFrom(of.page, kLeft + (kLabelWidth - of.page.TextWidth("Moisture Can No.")) / 2, "Test No.");
    PrintColumnNumbers(of.page, of.trials, kLimitTrials);
    of.page.FontBold = false;
}

/// Caption on line 0, heads on line 1, the seven rows below them to line 9.
void DrawLiquidLimits(const AtterbergPage& of)
{
    PrintCaption(of.page, of.y(0), "Liquid Limit Determination");
    DrawRules(of.page, of.y, {kLeft, of.Right(), 1, 9, of.trials, kLimitTrials, 2, 3, 7});
    PrintHeads(of, 1);
    PrintLabels(of.page, of.y, kLeft + kLabelInset, 2, kLiquidLabels);
    PrintCells(of.page, of.y, of.trials, 2, of.sheet.MSHLL, {ll::Blows, ll::WaterContent, 1, kLimitTrials});
}

/// The last row is one cell across the trials.
void DrawPlasticRules(const AtterbergPage& of)
{
    constexpr double kTop = 10, kBottom = 19, kAverage = 18;
    DrawRules(of.page, of.y, {kLeft, of.Right(), kTop, kBottom, of.trials, 1, kTop + 1, kTop + 1, 7});
    of.page.DrawWidth = kThickRule;
    DrawVerticals(of.page, of.y, of.trials, 2, kLimitTrials, kTop, kAverage);
    DrawRows(of.page, of.y, kLeft, of.Right(), kAverage, 1);
}

/// Caption on line 9, heads on line 10, the seven rows and the average below them to line 19.
void DrawPlasticLimits(const AtterbergPage& of)
{
    PrintCaption(of.page, of.y(9), "Plastic Limit Determination");
    DrawPlasticRules(of);
    PrintHeads(of, 10);
    PrintLabels(of.page, of.y, kLeft + kLabelInset, 11, kPlasticLabels);
    PrintCells(of.page, of.y, of.trials, 11, of.sheet.MSHPL, {pl::WetAndCan, pl::PlasticLimit, 1, kLimitTrials});
    of.page.CurrentY = of.y(18);
    PrintCentred(of.page, of.trials.left, of.trials.width * kLimitTrials, Trim(of.sheet.MSHPL(pl::Average, 1)));
}

/// Beside the plot, under its own caption.
void DrawSummaryBox(const AtterbergPage& of)
{
    const double left = of.trials.Left(4), right = of.trials.Left(6), split = of.trials.Left(5) + 300;
    const double line = of.page.TextHeight("D"), top = of.y(kSummaryTop);
    of.page.DrawWidth = kThickRule;
    of.page.Box(left, top + line, right, top + line * 5);
    of.page.Line(split, top + line, split, top + line * 5);
    of.page.DrawWidth = kThinRule;
    for (int row = 2; row <= 4; ++row) of.page.Line(left, top + line * row, right, top + line * row);
}

void PrintSummary(const AtterbergPage& of)
{
    const double left = of.trials.Left(4);
    of.page.CurrentY = of.y(kSummaryTop);
    of.page.FontBold = true;
    PrintLineFrom(of.page, left, "Summary of Test Results");
    of.page.FontBold = false;
    for (const SummaryLine& line : kSummaryLines) {
        PrintFrom(of.page, left + kLabelInset, line.label);
        PrintFrom(of.page, of.trials.Left(5) + 700, TextOf(of.sheet, line.control));
        of.page.Print(line.unit);
    }
}

void DrawAtterberg(Program& program, DrawingSurface& page, Medium medium)
{
    page.FontSize = kBodySize;
    page.FontTransparent = true;
    const AtterbergPage of(program.Get<frmAtterberg>("frmAtterberg"), page);
    DrawLiquidLimits(of);
    DrawPlasticLimits(of);
    DrawSummaryBox(of);
    PrintSummary(of);
    CopyPlot(page, of.sheet.picgraph1, of.sheet.picGraph, kLeft, of.y(kPlotTop));
    DrawSignatures(program, page, medium);
}

}  // namespace

void PrintAtterberg(Program& program, Printer& printer)
{
    DrawAtterberg(program, printer, Medium::Printer);
}

void ShowAtterberg(Program& program, DrawingSurface& picView)
{
    DrawAtterberg(program, picView, Medium::Preview);
}

}  // namespace terravane
