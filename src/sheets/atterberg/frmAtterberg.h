/// The Atterberg sheet: liquid limit trials at different numbers of blows, plastic limit threads, and the flow curve
/// through the former, read at 25 blows. One sheet for soil and crushed rock; they differ in the table that is loaded.
#pragma once

#include "controls/text_grid.h"
#include "laboratory/atterberg.h"
#include "numeric/straight_line.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

inline constexpr int kFlowTab = 1;  // of SSTData

/// How blows and water content map to the plot: 10 to 100 blows across on a logarithmic axis, whole tens of percent
/// upwards from 0. Twips, blows, percent.
struct FlowScale {
    double width, height;
    double tens;  // of percent, from bottom to top

    double X(double blows) const;
    /// Error 11 or 6 for an axis without a range.
    double Y(double water) const;
};

struct frmAtterberg : TestSheet {
    explicit frmAtterberg(Program& program);

    Frame fraLL{*this, "fraLL", laboratory::kLiquidLimit.frame};
    TextGrid MSHLL{*this,
                   laboratory::kLiquidLimit.control,
                   laboratory::kLiquidLimit.Rows(),
                   laboratory::kLiquidLimit.Columns(),
                   {.MouseDown = OpensByMouse(txtData)}};
    Frame fraPL{*this, "fraPL", laboratory::kPlasticLimit.frame};
    TextGrid MSHPL{*this,
                   laboratory::kPlasticLimit.control,
                   laboratory::kPlasticLimit.Rows(),
                   laboratory::kPlasticLimit.Columns(),
                   {.MouseDown = OpensByMouse(txtData1)}};
    CellEditor txtData;   // over MSHLL
    CellEditor txtData1;  // over MSHPL

    CommandButton cmdPlot{*this, "cmdPlot", "Plot Graph", {.Click = [this] { cmdPlot_Click(); }}};
    TextBox txtLL{*this, laboratory::kLiquidLimitBox};
    TextBox txtPL{*this, laboratory::kPlasticLimitBox};
    TextBox txtPI{*this, laboratory::kPlasticityIndexBox};
    TextBox txtFI{*this, laboratory::kFlowIndexBox};

    PictureBox picgraph1{*this, "picgraph1", 60, 0, 7100, 5200};   // tick labels and axis titles
    PictureBox picGraph{*this, "picGraph", 960, 450, 5450, 3900};  // the plot, standing on it
    PictureBox picPI{*this, "picPI", 0, 0, 3300, 500};             // what plasticity and flow index are
    PictureBox picFI{*this, "picFI", 0, 0, 3300, 500};

    void Form_Load() override;

    /// Calculate: water contents and the mean plastic limit, each stage from the rounded text of the one before. The
    /// first column without a reading in its first typed row ends a grid; the columns behind it keep their texts.
    /// Error 11 or 6 at a dry mass of zero; the cells before it stand.
    void cmdCal_Click() override;
    /// Plot Graph: flow curve, limits, indices, plot and posting. Fails where it stands, with the picture half drawn:
    /// at the slope for fewer than two different numbers of blows, at the plastic limit where no thread was weighed.
    void cmdPlot_Click();

  private:
    void BuildGrids();
    void DrawEquations();

    static bool HasTrial(const TextGrid& grid, int column);
    void LiquidWaterContentOf(int trial);
    void PlasticLimitOf(int thread);
    void AveragePlasticLimits();

    double HighestWaterContent() const;
    void DrawAxes();
    FlowScale ScaleOf() const;
    void DrawBlowTicks(const FlowScale& scale);
    void PrintBlows(const FlowScale& scale, double blows, double shareLeft);
    void DrawWaterTicks(const FlowScale& scale);
    StraightLine FitFlowCurve() const;
    void DrawFlowCurve(const FlowScale& scale, const StraightLine& curve);
    void DrawLimit(const FlowScale& scale, double liquidLimit);
    void ReadLimits(const StraightLine& curve);
    double MeanPlasticLimit() const;
    void PostLimits();
};

}  // namespace terravane
