#include "reports/specific_gravity_report.h"

#include <array>

#include "reports/copied_plot.h"
#include "reports/open_sheet.h"
#include "reports/report_table.h"
#include "reports/signature_block.h"
#include "runtime/text.h"
#include "sheets/specific/frmSpecific.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;

constexpr double kGravityTop = 4500;  // lower than other bodies: the preview's head block reaches down to it
constexpr double kLabelWidth = 3000;

constexpr std::array kCalibrationHeads{
    std::array{"No."sv, "Flask + Water"sv, "Temperature"sv},
    std::array{""sv, "(g)"sv, "(Degree Celsius)"sv},
};

constexpr std::array kTrialLabels{
    "Temperature, (Degree Celsius)"sv,
    "Mass of Flask + Water, (g)"sv,
    "Mass of Flask + Water + Soil, (g)"sv,
    "Container No."sv,
    "Mass of Dry Soil + Container, (g)"sv,
    "Mass of Container, (g)"sv,
    "Dry Soil, (g)"sv,
    "Correction Factor"sv,
    "Specific Gravity at 20 Degree Celsius"sv,
    "Average Specific Gravity"sv,
};

/// The page being drawn: its rows from the body's top, the columns of its two tables.
struct GravityPage {
    const frmSpecific& sheet;
    DrawingSurface& page;
    PageLines y;
    PageColumns trials;    // their width is a sixth of what the labels leave, also at three trials
    PageColumns readings;  // three across the labels and the first trial

    GravityPage(const frmSpecific& open, DrawingSurface& surface)
        : sheet(open),
          page(surface),
          y(surface, kGravityTop),
          trials{kLeft + kLabelWidth, (RightEdge(surface) - kLeft - kLabelWidth) / 6},
          readings{kLeft, (kLabelWidth + trials.width) / 3}
    {}
};

/// Caption on line 0, heads on lines 1 and 2, the seven readings below them to line 10.
void DrawReadings(const GravityPage& of)
{
    PrintCaption(of.page, of.y(0), "Calibration Data");
    DrawRules(of.page, of.y, {kLeft, of.trials.Left(2), 1, 10, of.readings, 0, 3, 4, 6});
    of.page.DrawWidth = kThickRule;
    DrawVerticals(of.page, of.y, of.readings, 2, 3, 1, 10);
    for (std::size_t line = 0; line < kCalibrationHeads.size(); ++line) {
        of.page.CurrentY = of.y(1 + static_cast<double>(line));
        int column = 1;
        for (const std::string_view head : kCalibrationHeads[line])
            PrintCentred(of.page, of.readings.Left(column++), of.readings.width, head);
    }
    of.page.FontBold = false;
    PrintCells(of.page, of.y, of.readings, 3, of.sheet.MSHCalibration,
               {1, kCalibrationReadings, calibration::Number, calibration::Temperature});
}

void PrintEquationLine(const GravityPage& of, std::string_view label, std::string_view control)
{
    PrintFrom(of.page, kLeft, label);
    PrintFrom(of.page, kLeft + of.page.TextWidth("Equation of Curve"), " :  ");
    PrintLineFrom(of.page, kLeft + of.page.TextWidth("Equation of Curve :  "), TextOf(of.sheet, control));
}

void PrintEquation(const GravityPage& of)
{
    of.page.CurrentY = of.y(11);
    PrintEquationLine(of, "Equation of Curve", "txtFormula");
    PrintEquationLine(of, "R-squared Value", "txtR");
}

/// The last row is one cell across the trials.
void DrawTrialRules(const GravityPage& of)
{
    constexpr double kTop = 16, kBottom = 27, kAverage = 26;
    const double right = of.trials.Left(kGravityTrials + 1);
    DrawRules(of.page, of.y, {kLeft, right, kTop, kBottom, of.trials, 1, kTop + 1, kTop + 1, 9});
    of.page.DrawWidth = kThickRule;
    DrawVerticals(of.page, of.y, of.trials, 1, kGravityTrials + 1, kTop, kAverage);
    DrawRows(of.page, of.y, kLeft, right, kAverage, 1);
}

/// Caption on line 15, heads on line 16, the nine rows and the average below them to line 27. The average stands below
/// the first trial.
void DrawTrials(const GravityPage& of)
{
    PrintCaption(of.page, of.y(15), "Testing Data");
    DrawTrialRules(of);
    of.page.CurrentY = of.y(16);
    PrintCentred(of.page, kLeft, kLabelWidth, "Trial No.");
    PrintColumnNumbers(of.page, of.trials, kGravityTrials);
    of.page.FontBold = false;
    PrintLabels(of.page, of.y, kLeft + kLabelInset, 17, kTrialLabels);
    PrintCells(of.page, of.y, of.trials, 17, of.sheet.MSHSpecific,
               {gravity::Temperature, gravity::Gravity, 1, kGravityTrials});
    PrintCells(of.page, of.y, of.trials, 26, of.sheet.MSHSpecific, {gravity::Average, gravity::Average, 1, 1});
}

void DrawSpecificGravity(Program& program, DrawingSurface& page, Medium medium)
{
    page.FontSize = kBodySize;
    page.FontTransparent = true;
    const GravityPage of(program.Get<frmSpecific>("frmSpecific"), page);
    DrawReadings(of);
    PrintEquation(of);
    CopyPlot(page, of.sheet.picGraph, of.sheet.picgraph1, RightEdge(page) - of.sheet.picGraph.Width, of.y(1));
    DrawTrials(of);
    DrawSignatures(program, page, medium);
}

}  // namespace

void PrintSpecificGravity(Program& program, Printer& printer)
{
    DrawSpecificGravity(program, printer, Medium::Printer);
}

void ShowSpecificGravity(Program& program, DrawingSurface& picView)
{
    DrawSpecificGravity(program, picView, Medium::Preview);
}

}  // namespace terravane
