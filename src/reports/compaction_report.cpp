#include "reports/compaction_report.h"

#include <array>
#include <string>

#include "reports/copied_plot.h"
#include "reports/open_sheet.h"
#include "reports/report_table.h"
#include "reports/signature_block.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;

constexpr int kSamples = 6;
constexpr double kLabelWidth = 2500;

constexpr std::array kWaterLabels{
    "Moisture Can No."sv,   "Mass of Can + Wet Soil, (g)"sv, "Mass of Can + Dry Soil, (g)"sv, "Mass of Can, (g)"sv,
    "Mass of Water, (g)"sv, "Mass of Dry Soil, (g)"sv,       "Water Content, (%)"sv,
};

constexpr std::array kDensityLabels{
    "Assumed Water Content, (%)"sv, "Mass of Soil + Mold, (g)"sv, "Mass of Mold, (g)"sv,     "Water Content, (g)"sv,
    "Mass of Soil in Mold, (g)"sv,  "Wet Density, (g/cm^3)"sv,    "Dry Density, (g/cm^3)"sv,
};

/// The page being drawn: its rows from the body's top, its six sample columns.
struct CompactionPage {
    const TestSheet& sheet;
    DrawingSurface& page;
    PageLines y;
    PageColumns samples;

    CompactionPage(const TestSheet& open, DrawingSurface& surface)
        : sheet(open),
          page(surface),
          y(surface, kBodyTop),
          samples{kLeft + kLabelWidth, (surface.ScaleWidth - 3000 - kLeft) / 6}
    {}

    /// The split between the first two fields of a mould row.
    double Middle() const { return kLeft + (kLabelWidth + samples.width) / 2; }
    /// The left edge of the mould rows' third field.
    double ThirdField() const { return samples.Left(2); }
    double Right() const { return RightEdge(page); }
    std::string Text(std::string_view control) const { return TextOf(sheet, control); }
};

void DrawMoldBox(const CompactionPage& of)
{
    const double right = of.samples.Left(4);
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, of.y(0), right, of.y(2));
    for (const double x : {of.ThirdField(), of.Middle()}) of.page.Line(x, of.y(0), x, of.y(2));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, kLeft, right, 1, 1);
}

/// "Diameter of Mold : 10.16 cm". The stops count from the end of the longer label, so that both rows stand
/// in line.
void PrintMoldMeasure(const CompactionPage& of, std::string_view label, std::string_view control)
{
    const double start = of.ThirdField() + kLabelInset;
    const double stop = start + of.page.TextWidth("Diameter of Mold  ");
    PrintFrom(of.page, start, label);
    PrintFrom(of.page, stop, " : ");
    PrintFrom(of.page, stop + 300, of.Text(control));
    PrintLineFrom(of.page, stop + 800, "cm");
}

void PrintMoldRows(const CompactionPage& of)
{
    of.page.CurrentY = of.y(0);
    PrintFrom(of.page, kLeft + kLabelInset, "Number of Layer  :  ");
    of.page.PrintOn(of.Text("cboLayer"));
    PrintFrom(of.page, of.Middle() + kLabelInset, "Blows per Layer  :  ");
    of.page.PrintOn(of.Text("cboBlow"));
    PrintMoldMeasure(of, "Diameter of Mold", "txtDia");
    PrintFrom(of.page, kLeft + kLabelInset, "Weight of Hammer");
    PrintFrom(of.page, of.Middle(), ": ");
    PrintFrom(of.page, of.Middle() + 350, of.Text("cboWt"));
    PrintMoldMeasure(of, "Height of Mold", "txtHeight");
}

void DrawResultsBox(const CompactionPage& of)
{
    const double left = kLeft + 2600 + of.samples.width * 3;
    const double right = of.samples.Left(kSamples + 1);
    of.page.DrawWidth = kThickRule;
    of.page.Box(left, of.y(0), right, of.y(2));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, left, right, 1, 1);
}

/// A value stands right-aligned in the width of "00000,00", its unit behind it.
void PrintResult(const CompactionPage& of, double line, std::string_view label, std::string_view control,
                 std::string_view unit)
{
    const double stop = of.samples.Left(6);
    const std::string value = of.Text(control);
    of.page.CurrentY = of.y(line);
    PrintFrom(of.page, of.samples.Left(4) + kLabelInset, label);
    PrintFrom(of.page, stop, ": ");
    PrintFrom(of.page, stop + of.page.TextWidth("00000,00") - of.page.TextWidth(value), value);
    of.page.Print(unit);
}

void PrintResults(const CompactionPage& of)
{
    PrintResult(of, 0, "Optimum Moisture Content (OMC)  ", "txtOMC", "  %");
    PrintResult(of, 1, "Maximum Dry Density (MDD)  ", "txtDmax", "  g/cm^3");
}

/// Caption on line 2, header on line 3, the seven rows below it to line 11.
void DrawWaterContents(const CompactionPage& of)
{
    PrintCaption(of.page, of.y(2), "Water Content Determination");
    DrawRules(of.page, of.y, {kLeft, of.Right(), 3, 11, of.samples, kSamples + 1, 4, 5, 7});
    of.page.CurrentY = of.y(3);
    PrintFrom(of.page, kLeft + kLabelInset, "Sample No.");
    PrintColumnNumbers(of.page, of.samples, kSamples);
    of.page.FontBold = false;
    PrintLabels(of.page, of.y, kLeft + kLabelInset, 4, kWaterLabels);
    PrintCells(of.page, of.y, of.samples, 4, of.sheet.Get<TextGrid>("MSHWt"), {1, 7, 1, kSamples});
}

/// Caption on line 11, the seven rows without a header from line 12 to line 19.
void DrawDensities(const CompactionPage& of)
{
    PrintCaption(of.page, of.y(11), "Density Determination");
    of.page.FontBold = false;
    DrawRules(of.page, of.y, {kLeft, of.Right(), 12, 19, of.samples, kSamples + 1, {}, 13, 7});
    PrintLabels(of.page, of.y, kLeft + kLabelInset, 12, kDensityLabels);
    PrintCells(of.page, of.y, of.samples, 12, of.sheet.Get<TextGrid>("MSHDensity"), {0, 6, 1, kSamples});
}

void DrawCompaction(Program& program, DrawingSurface& page, Medium medium)
{
    page.FontSize = kBodySize;
    page.FontTransparent = true;
    const CompactionPage of(OpenSheet(program), page);
    DrawMoldBox(of);
    PrintMoldRows(of);
    DrawResultsBox(of);
    PrintResults(of);
    DrawWaterContents(of);
    DrawDensities(of);
    CopyPlot(page, of.sheet.Get<PictureBox>("picgraph1"), of.sheet.Get<PictureBox>("picGraph"), kLeft, of.y(20));
    DrawSignatures(program, page, medium);
}

}  // namespace

void PrintCompaction(Program& program, Printer& printer)
{
    DrawCompaction(program, printer, Medium::Printer);
}

void ShowCompaction(Program& program, DrawingSurface& picView)
{
    DrawCompaction(program, picView, Medium::Preview);
}

}  // namespace terravane
