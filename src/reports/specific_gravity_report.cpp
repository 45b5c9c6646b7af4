#include "reports/specific_gravity_report.h"

#include <array>

#include "laboratory/specific_gravity.h"
#include "reports/report_table.h"
#include "sheets/specific/frmSpecific.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;

constexpr double kGravityTop = 4500;  // lower than other bodies: the preview's head block reaches down to it

constexpr std::array kCalibrationHeads{
    std::array{"No."sv, "Flask + Water"sv, "Temperature"sv},
    std::array{""sv, "(g)"sv, "(Degree Celsius)"sv},
};

constexpr ReportTable kTrials{.caption = "Testing Data",
                              .captionLine = 15,
                              .head = "Trial No.",
                              .headCentredAs = "Trial No.",
                              .columns = kGravityTrials,
                              .grid = laboratory::kGravityTrialGrid,
                              .firstRow = gravity::Temperature,
                              .rules = RowRules::Above,
                              .verticals = {1, 1, kGravityTrials + 1},
                              .lastRow = LastRow::AverageInFirstColumn};

/// The page being drawn, with the columns of its two tables.
struct GravityPage : ReportPage {
    PageColumns trials;    // their width is a sixth of what the labels leave, also at three trials
    PageColumns readings;  // three across the labels and the first trial

    explicit GravityPage(const Printing& printing)
        : ReportPage(printing, kGravityTop),
          trials(ColumnsBeside(kLabelWidth, WholeWidth(page), 6)),
          readings{kLeft, (kLabelWidth + trials.width) / int{calibration::kColumns}}
    {}
};

void DrawReadingRules(const GravityPage& of)
{
    const RuledBox box(of.page, of.y, {kLeft, of.trials.Left(2)}, 1, 10);
    box.Rows(3);
    box.Thin();
    box.Rows(4, kCalibrationReadings - 1);
    box.Thick();
    box.Verticals(of.readings, 2, calibration::kColumns);
}

void PrintReadingHeads(const GravityPage& of)
{
    const Bold bold(of.page);
    double line = 1;
    for (const auto& heads : kCalibrationHeads) {
        of.page.CurrentY = of.y(line++);
        PrintHeads(of.page, of.readings, heads);
    }
}

/// Caption on line 0, heads on lines 1 and 2, the seven readings below them to line 10.
void DrawReadings(const GravityPage& of)
{
    PrintCaption(of.page, kLeft, of.y(0), "Calibration Data");
    DrawReadingRules(of);
    std::vector<double> rows = of.y.EdgesOf(3, kCalibrationReadings);
    rows.insert(rows.begin(), of.y(1));
    const AsTable table(of.page, {.columns = of.readings.EdgesOf(calibration::kColumns),
                                  .rows = std::move(rows),
                                  .headRows = 1,
                                  .headColumns = 1});
    PrintReadingHeads(of);
    PrintCells(of.page, of.y, of.readings, 3, of.sheet.Get<TextGrid>("MSHCalibration"),
               {1, kCalibrationReadings, calibration::Number, calibration::Temperature});
}

void PrintEquationLine(const GravityPage& of, std::string_view label, std::string_view control)
{
    PrintFrom(of.page, kLeft, label);
    PrintFrom(of.page, kLeft + of.page.TextWidth("Equation of Curve"), " :  ");
    PrintLineFrom(of.page, kLeft + of.page.TextWidth("Equation of Curve :  "), of.Text(control));
}

void PrintEquation(const GravityPage& of)
{
    of.page.CurrentY = of.y(11);
    PrintEquationLine(of, "Equation of Curve", "txtFormula");
    PrintEquationLine(of, "R-squared Value", "txtR");
}

}  // namespace

void DrawSpecificGravity(const Printing& printing)
{
    const auto& sheet = printing.SheetAs<frmSpecific>();
    const GravityPage of(printing);
    DrawReadings(of);
    PrintEquation(of);
    CopyPlot(of.page, sheet.picGraph, sheet.picgraph1, {of.Right() - sheet.picGraph.Width, of.y(1)},
             Shows("Calibration curve of the flask", of.Text("txtFormula"), of.Text("txtFormula")));
    DrawTable(of, {{kLeft, of.trials.Left(kGravityTrials + 1)}, of.trials}, kTrials);
}

}  // namespace terravane
