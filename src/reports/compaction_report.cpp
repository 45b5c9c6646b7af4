#include "reports/compaction_report.h"

#include <array>
#include <string>

#include "laboratory/compaction.h"
#include "reports/report_table.h"

namespace terravane {

namespace {

constexpr int kSamples = 6;
constexpr double kSampleLabelWidth = 2500;

constexpr std::array kTables{
    ReportTable{.caption = "Water Content Determination",
                .captionLine = 2,
                .head = "Sample No.",
                .columns = kSamples,
                .grid = laboratory::kCompactionWater,
                .firstRow = 1,
                .rules = RowRules::Below,
                .verticals = {kSamples + 1}},
    ReportTable{.caption = "Density Determination",
                .captionLine = 11,
                .columns = kSamples,
                .grid = laboratory::kCompactionDensity,
                .firstRow = 0,
                .rules = RowRules::Below,
                .verticals = {kSamples + 1}},
};
constexpr double kPlotLine = 20;
constexpr std::string_view kColon = ": ";

/// The page being drawn, with its six sample columns.
struct CompactionPage : ReportPage {
    PageColumns samples;

    explicit CompactionPage(const Printing& printing)
        : ReportPage(printing), samples(ColumnsBeside(kSampleLabelWidth, WholeWidth(page), kSamples))
    {}

    /// The split between the first two fields of a mold row.
    double Middle() const { return kLeft + (kSampleLabelWidth + samples.width) / 2; }
    /// The left edge of the mold rows' third field.
    double ThirdField() const { return samples.Left(2); }
};

void DrawMoldBox(const CompactionPage& of)
{
    const RuledBox box(of.page, of.y, {kLeft, of.samples.Left(4)}, 0, 2);
    for (const double x : {of.ThirdField(), of.Middle()}) box.Vertical(x);
    box.Thin();
    box.Rows(1);
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
    PrintLineFrom(of.page, UnitLeft(of.page, stop + 800), "cm");
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
    const RuledBox box(of.page, of.y, {left, of.samples.Left(kSamples + 1)}, 0, 2);
    box.Thin();
    box.Rows(1);
}

/// A value stands right-aligned in the width of "00000,00", its unit behind it. A longer one moves the colon.
void PrintResult(const CompactionPage& of, double line, std::string_view label, std::string_view control,
                 std::string_view unit)
{
    const double stop = of.samples.Left(6);
    const std::string value = of.Text(control);
    const double left = stop + of.page.TextWidth("00000,00") - of.page.TextWidth(value);
    of.page.CurrentY = of.y(line);
    PrintFrom(of.page, of.samples.Left(4) + kLabelInset, label);
    PrintFrom(of.page, ColonLeft(of.page, stop, kColon, left), kColon);
    PrintFrom(of.page, left, value);
    of.page.Print(unit);
}

void PrintResults(const CompactionPage& of)
{
    PrintResult(of, 0, "Optimum Moisture Content (OMC)  ", "txtOMC", "  %");
    PrintResult(of, 1, "Maximum Dry Density (MDD)  ", "txtDmax", "  g/cm^3");
}

}  // namespace

void DrawCompaction(const Printing& printing)
{
    const CompactionPage of(printing);
    DrawMoldBox(of);
    PrintMoldRows(of);
    DrawResultsBox(of);
    PrintResults(of);
    for (const ReportTable& table : kTables) DrawTable(of, {WholeWidth(of.page), of.samples}, table);
    CopyPlot(of.page, of.sheet.Get<PictureBox>("picgraph1"), of.sheet.Get<PictureBox>("picGraph"),
             {kLeft, of.y(kPlotLine)},
             Shows("Compaction curve", of.Text("txtOMC"),
                   "top at " + of.Text("txtOMC") + " %, " + of.Text("txtDmax") + " g/cm³"));
}

}  // namespace terravane
