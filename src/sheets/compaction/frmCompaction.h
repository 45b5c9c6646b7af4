/// The compaction sheet: trials of one sample at rising water contents, in a mold, and the curve through
/// them, whose top is the optimum moisture content and the maximum dry density. Standard and modified test,
/// soil and crushed rock differ in the table that is loaded, in nothing else: mold, hammer, layers and blows
/// are whatever was used.
#pragma once

#include <vector>

#include "controls/text_grid.h"
#include "laboratory/compaction.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/spline_grid.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

namespace compaction {
inline constexpr int kCurveTab = 1;  // of SSTData
}

/// One accepted trial: water content in percent, dry density in g/cm³, as they stand on the sheet.
struct CompactionPoints {
    std::vector<double> water;
    std::vector<double> density;
    int Count() const { return static_cast<int>(water.size()); }
};

/// The top of a curve.
struct CompactionPeak {
    double water = 0;    // %
    double density = 0;  // g/cm³
};

/// How water content and density map to the plot: the density in thirteen ticks from the bottom, the water
/// content in whole percents from the left. Twips, percent, g/cm³.
struct CompactionScale {
    double width, height;
    double lowestDensity;  // at the bottom
    double densityStep;    // from tick to tick
    double tickHeight;
    double firstWater;  // at the left, whole percent
    double percents;    // whole percents across
    double percentWidth;

    double TickDensity(int tick) const { return lowestDensity + tick * densityStep; }
    double X(double water) const { return (water - firstWater) * percentWidth; }
    /// Error 11 or 6 where the densities lie too close together for a step of two decimals.
    double Y(double density) const;
};

struct frmCompaction : TestSheet {
    explicit frmCompaction(Program& program);

    TextBox txtDia{*this, laboratory::kMoldDiameter};
    TextBox txtHeight{*this, laboratory::kMoldHeight};
    ComboBox cboWt{*this, laboratory::kHammer, {"2.5 kg", "4.5 kg"}};
    ComboBox cboBlow{*this, laboratory::kBlows, {"25", "56"}};
    ComboBox cboLayer{*this, laboratory::kLayers, {"3", "5"}};

    Frame FraWt{*this, "FraWt", laboratory::kCompactionWater.frame};
    TextGrid MSHWt{
        *this,
        laboratory::kCompactionWater.control,
        laboratory::kCompactionWater.Rows(),
        laboratory::kCompactionWater.Columns(),
        {.MouseDown = [this](MouseButton button, int row, int column) { MSHWt_MouseDown(button, row, column); }}};
    Frame fraDensity{*this, "fraDensity", laboratory::kCompactionDensity.frame};
    TextGrid MSHDensity{*this,
                        laboratory::kCompactionDensity.control,
                        laboratory::kCompactionDensity.Rows(),
                        laboratory::kCompactionDensity.Columns(),
                        {.MouseDown = OpensByMouse(txtData1)}};
    CellEditor txtData;   // over MSHWt
    CellEditor txtData1;  // over MSHDensity

    OptionButton optInt{*this, "optInt", "Interpolation", "method", true};
    OptionButton optFit{*this, "optFit", "Curve Fitting", "method"};
    CommandButton cmdOMC{*this, "cmdOMC", "Compaction Curve", {.Click = [this] { cmdOMC_Click(); }}};
    TextBox txtOMC{*this, laboratory::kOptimumMoisture};
    TextBox txtDmax{*this, laboratory::kMaximumDryDensity};
    TextGrid MSHData{*this, "MSHData", 1, 2};
    CheckBox chkSatLine{*this, "chkSatLine", "AV Line", {.Click = [this] { chkSatLine_Click(); }}};
    TextBox txtGs{*this, laboratory::kAirVoidGravity};
    ComboBox cboSr{*this, "cboSr", "Air Voids", {"0%", "20%", "40%", "60%", "80%"}, "0%"};

    // The work area: the spline by hand.
    CommandButton Command5{*this, "Command5", "&Derivative", {.Click = [this] { Command5_Click(); }}};
    CommandButton Command6{*this, "Command6", "&SPline", {.Click = [this] { Command6_Click(); }}};
    TextBox Text6{*this, "Text6", "Interval", "0.01"};
    OptionButton optWholeCurve{*this, "optWholeCurve", "Whole Curve", "evaluation", true};
    OptionButton Option2{*this, "Option2", "One Point", "evaluation"};
    TextBox Text4{*this, "Text4", "Input   X"};
    TextBox Text5{*this, "Text5", "Result Y"};
    TextGrid MSH2{*this, "MSH2", 1, spline::kColumns};
    TextGrid MSH3{*this, "MSH3", 1, 2};

    PictureBox picgraph1{*this, "picgraph1", 60, 0, 7100, 5300};   // tick labels and axis titles
    PictureBox picGraph{*this, "picGraph", 960, 450, 5450, 4000};  // the plot, standing on it

    void Form_Load() override;

    /// Calculate: water contents and densities, each stage from the rounded text of the one before. Masses in
    /// g, mold in cm, densities in g/cm³. Error 11 or 6 where the mold has no volume; the cells before it
    /// stand.
    void cmdCal_Click() override;
    /// Compaction Curve: points, curve, peak, plot and posting. Fails where it stands, with the picture half
    /// drawn, for fewer than three points or equal water contents under Interpolation and for densities of
    /// nearly one value.
    void cmdOMC_Click();
    /// The spline's second derivatives into MSH2, from the points in MSHData.
    void Command5_Click();
    /// The spline's table into MSH3, or one point of it into Text5.
    void Command6_Click();
    /// The specific gravity of the saved test of the same material, for the air-void line.
    void chkSatLine_Click();
    void MSHWt_MouseDown(MouseButton button, int row, int column);
    void SSTData_Click(int previousTab) override;

  private:
    void BuildGrids();

    void BlankCalculatedRows();
    void WaterContentOf(int trial);
    void DensityOf(int trial);
    double MoldVolume() const;
    void EraseTrial(int trial);

    void FillPoints();
    CompactionPoints Points() const;
    void TabulateSpline(const CompactionPoints& points);
    void EvaluateOnePoint(const CompactionPoints& points);
    static std::vector<double> FitCurve(const CompactionPoints& points);

    void DrawAxes();
    void DrawWaterTicks(const CompactionScale& scale);
    CompactionScale ScaleOf(const CompactionPoints& points) const;
    void DrawTicks(const CompactionScale& scale);
    void DrawCurve(const std::vector<DrawnPoint>& curve);
    CompactionPeak DrawSpline(const CompactionScale& scale);
    CompactionPeak DrawFit(const CompactionScale& scale, const CompactionPoints& points);
    void MarkPoints(const CompactionScale& scale, const CompactionPoints& points);
    void PrintPeak(const CompactionScale& scale, CompactionPeak peak);
    void DrawAirVoidLine(const CompactionScale& scale);
    void CaptionAirVoidLine();
    void PostPeak();
};

}  // namespace terravane
