/// The specific gravity sheet: a pycnometer flask weighed with water at several temperatures gives a calibration curve;
/// flask, water and soil weighed together give the gravity of the soil's grains at 20 °C. One sheet for soil and
/// crushed rock; they differ in the table that is loaded.
#pragma once

#include <vector>

#include "controls/text_grid.h"
#include "laboratory/specific_gravity.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/test_sheet.h"
#include "sheets/specific/calibration_fit.h"

namespace terravane {

/// One axis of the calibration plot, with ticks at the round steps between its ends. The unit is the axis's.
struct CalibrationAxis {
    double low, high, step;

    std::vector<double> Ticks() const;
    /// How far a value lies along the axis, 0 at its low end, 1 at its high one.
    double Share(double value) const { return (value - low) / (high - low); }
};

struct CalibrationScale {
    double width, height;
    CalibrationAxis temperature, mass;

    double X(double celsius) const { return width * temperature.Share(celsius); }
    double Y(double grams) const { return height - height * mass.Share(grams); }
};

struct frmSpecific : TestSheet {
    explicit frmSpecific(Program& program);

    Frame fraCalibration{*this, "fraCalibration", laboratory::kCalibration.frame};
    TextGrid MSHCalibration{*this,
                            laboratory::kCalibration.control,
                            laboratory::kCalibration.Rows(),
                            laboratory::kCalibration.Columns(),
                            {.MouseDown = OpensByMouse(txtData)}};
    Frame fraSpecific{*this, "fraSpecific", laboratory::kGravityTrialGrid.frame};
    TextGrid MSHSpecific{*this,
                         laboratory::kGravityTrialGrid.control,
                         laboratory::kGravityTrialGrid.Rows(),
                         laboratory::kGravityTrialGrid.Columns(),
                         {.MouseDown = OpensByMouse(txtData1)}};
    CellEditor txtData;   // over MSHCalibration
    CellEditor txtData1;  // over MSHSpecific

    OptionButton optAut{*this, "optAut", "Auto", "fit", true, {.Click = [this] { optFit_Click(); }}};
    OptionButton optExp{*this, "optExp", "Exponential", "fit", {.Click = [this] { optFit_Click(); }}};
    OptionButton optLin{*this, "optLin", "Linear", "fit", {.Click = [this] { optFit_Click(); }}};
    OptionButton optPol{*this, "optPol", "Polynomial", "fit", {.Click = [this] { optFit_Click(); }}};
    CommandButton cmdgraph{*this, "cmdgraph", "Plot Graph Calibration", {.Click = [this] { cmdgraph_Click(); }}};
    Label lblEquation{*this, "lblEquation", "Equation of Curve"};
    TextBox txtFormula{*this, laboratory::kCalibrationFormula};
    TextBox txtR{*this, laboratory::kCalibrationRSquared};

    PictureBox picGraph{*this, "picGraph", 60, 0, 5900, 4300};        // tick labels and axis titles
    PictureBox picgraph1{*this, "picgraph1", 1120, 300, 4530, 3200};  // the plot, standing in it

    void Form_Load() override;

    /// Plot Graph Calibration: fits and draws the curve of the chosen model, under Auto of the one that explains most.
    /// A failure is shown with the platform's description of it; the plot stays as far as it got, equation and curve
    /// stay the last ones that came out.
    void cmdgraph_Click();
    /// Calculate: the trials' gravities from the curve fitted last, their mean, and its posting; each stage from the
    /// rounded text of the one before. A trial without a temperature ends them. Without a curve only a message is
    /// shown.
    void cmdCal_Click() override;
    /// Another model needs another plot.
    void optFit_Click();

  private:
    void BuildGrids();

    void PlotCalibration();
    CalibrationReadings Readings() const;
    CalibrationModel ChosenModel(const CalibrationReadings& readings);
    CalibrationModel ChooseBestModel(const CalibrationReadings& readings);
    CalibrationScale ScaleOf(const CalibrationReadings& readings) const;
    void DrawAxes();
    void DrawTemperatureTicks(const CalibrationScale& scale);
    void DrawMassTicks(const CalibrationScale& scale);
    void DrawReadings(const CalibrationScale& scale, const CalibrationReadings& readings);
    void DrawCurve(const CalibrationScale& scale, const CalibrationReadings& readings);

    void GravityOf(int trial);
    void PostGravity();

    CalibrationCurve curve_;  // the one fitted last
};

}  // namespace terravane
