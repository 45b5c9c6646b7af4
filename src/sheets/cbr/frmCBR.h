/// The bearing ratio sheet: up to three molds at their densities, soaked, unsoaked or one of each; water contents,
/// densities, swelling while soaking, and the load on a piston pressed into each mold. The curves of stress against
/// penetration give each mold's bearing ratio, the curve of ratio against density the one of the design. Masses in
/// g, lengths in cm, swelling in mm, penetration in inches, loads in lb.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/text_grid.h"
#include "laboratory/bearing_ratio.h"
#include "sheets/cbr/cbr_scales.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/plot_labels.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

namespace cbr {

inline constexpr int kValueTab = 3;         // of SSTData
inline constexpr double kScanStep = 0.001;  // in, from point to point of a curve

/// The readings of one mold: penetrations in inches, stresses in lb/in².
struct Curve {
    std::vector<double> penetration, stress;
};

/// The last point of a curve's beginning whose slope still rose: where the tangent of the correction touches.
struct TangentPoint {
    double x = 0;      // in
    double y = 0;      // lb/in²
    double slope = 0;  // lb/in² an inch
};

/// Two stresses of neighbouring points as the correction takes them: a negative first one counts as 0, the second too
/// where both are negative.
struct StressPair {
    double a, b;
};
constexpr StressPair PulledUp(double a, double b)
{
    return a < 0 ? StressPair{0, b < 0 ? 0 : b} : StressPair{a, b};
}

/// Where the ratio is read and the stress of the standard stone there.
struct Standard {
    result::Row row;
    double penetration;  // in
    double stress;       // lb/in²
    int column;          // of the labels of this depth on the plot
};

/// What the command for all molds and the label of each do differently.
struct MoldTask {
    bool pullsCurveUp;  // the curve is drawn along the axis where it goes below
    bool alwaysShifts;  // zero shift and tangent also without the tick
    bool writesZero;    // a bearing ratio of zero is written too
};

}  // namespace cbr

struct frmCBR : TestSheet {
    explicit frmCBR(Program& program);

    OptionButton optUnsoak{*this, laboratory::kConditions[0], "condition", {.Click = [this] { optUnsoak_Click(); }}};
    OptionButton optSoak{*this, laboratory::kConditions[1], "condition", {.Click = [this] { optSoak_Click(); }}};
    OptionButton optBoth{*this, laboratory::kConditions[2], "condition", {.Click = [this] { optBoth_Click(); }}};

    Frame fraCompaction{*this, "fraCompaction", "Compaction Parameters"};
    OptionButton optStd{*this, "optStd", "Standard Proctor", "compaction", {.Click = [this] { optStd_Click(); }}};
    OptionButton optMod{*this, "optMod", "Modified Proctor", "compaction", {.Click = [this] { optMod_Click(); }}};
    TextBox txtCompaction{*this, laboratory::kBearingCompaction};
    TextBox txtOMC{*this, laboratory::kBearingMoisture};
    TextBox txtMDD{*this, laboratory::kBearingMaximum};
    TextBox txtOMC1{*this, laboratory::kBearingMoistureAgain};
    TextBox txtMDD1{*this, laboratory::kBearingMaximumAgain};
    TextBox txtK{*this, laboratory::kRingConstant};  // lb/div
    TextBox txtWeight{*this, laboratory::kSurcharge};

    Frame fraWater{*this, "fraWater", laboratory::kBearingWater.frame};
    TextGrid MSHWater{*this,
                      laboratory::kBearingWater.control,
                      laboratory::kBearingWater.Rows(),
                      laboratory::kBearingWater.Columns(),
                      {.MouseDown = OpensByMouse(txtData)}};
    Frame fraDensity{*this, "fraDensity", laboratory::kBearingDensity.frame};
    TextGrid MSHCompaction{*this,
                           laboratory::kBearingDensity.control,
                           laboratory::kBearingDensity.Rows(),
                           laboratory::kBearingDensity.Columns(),
                           {.MouseDown = OpensByMouse(txtData1)}};
    Frame fraSwell{*this, "fraSwell", laboratory::kSwelling.frame};
    TextGrid MSHSwell{
        *this,
        laboratory::kSwelling.control,
        laboratory::kSwelling.Rows(),
        laboratory::kSwelling.Columns(),
        {.MouseDown = [this](MouseButton button, int row, int column) { MSHSwell_MouseDown(button, row, column); }}};
    DatePicker dtpSwell{*this,  // over the date cells of MSHSwell
                        "dtpSwell",
                        "Date",
                        {.Change = [this] { dtpSwell_Change(); },
                         .KeyPress = [this](Key key) { return dtpSwell_KeyPress(key); },
                         .LostFocus = [this] { dtpSwell.SetVisible(false); }}};
    Frame fraPenetrate{*this, "fraPenetrate", laboratory::kPenetrations.frame};
    CommandButton cmdPen{*this, "cmdPen", "Penetration Intervals", {.Click = [this] { cmdPen_Click(); }}};
    TextGrid MSHPenetrate{*this, "MSHPenetrate", cbr::penetration::kHeadRows, cbr::penetration::kColumns};
    TextGrid MSHPenetrate1{*this,
                           laboratory::kPenetrations.control,
                           laboratory::kPenetrations.Rows(),
                           laboratory::kPenetrations.Columns(),
                           {.MouseDown = [this](MouseButton button, int row, int column) {
                               MSHPenetrate1_MouseDown(button, row, column);
                           }}};
    CellEditor txtData;   // over MSHWater
    CellEditor txtData1;  // over MSHCompaction
    CellEditor txtData2;  // over MSHSwell
    CellEditor txtData3;  // over MSHPenetrate1

    CommandButton cmdLPen{*this, "cmdLPen", "Load-Penetration Curve", {.Click = [this] { cmdLPen_Click(); }}};
    TextGrid mshLPC{*this, laboratory::kBearingRatios.control, laboratory::kBearingRatios.Rows(),
                    laboratory::kBearingRatios.Columns()};
    Frame fraCorrection{*this, "fraCorrection", "Correction of Curves"};
    CheckBox chkMold1{*this, "chkMold1", ""};  // beside the labels
    CheckBox chkMold2{*this, "chkMold2", ""};
    CheckBox chkMold3{*this, "chkMold3", ""};
    Label lblMold1{*this, "lblMold1", std::string(cbr::kMoldNames[0]), {.Click = [this] { lblMold1_Click(); }}};
    Label lblMold2{*this, "lblMold2", std::string(cbr::kMoldNames[1]), {.Click = [this] { lblMold2_Click(); }}};
    Label lblMold3{*this, "lblMold3", std::string(cbr::kMoldNames[2]), {.Click = [this] { lblMold3_Click(); }}};
    PictureBox picGraph{*this, "picGraph", 0, 0, 3600, 4400};        // tick labels, axis titles and key
    PictureBox picgraph1{*this, "picgraph1", 800, 550, 2600, 3100};  // stress against penetration, standing on it

    CommandButton cmdCBR{*this, "cmdCBR", "CBR Value from Graph", {.Click = [this] { cmdCBR_Click(); }}};
    ComboBox cboCBR{*this, laboratory::kShareOfMaximum, {"90%", "95%", "98%", "100%"}, "95%"};
    TextBox txtCBR{*this, laboratory::kBearingRatioBox};  // %
    Label lbl01{*this, "lbl01", std::string(cbr::kRatioAt01), {.Click = [this] { lbl01_Click(); }}};
    Label lbl02{*this, "lbl02", std::string(cbr::kRatioAt02), {.Click = [this] { lbl02_Click(); }}};
    PictureBox picGraph2{*this, "picGraph2", 0, 0, 3600, 4400};
    PictureBox picGraph3{*this, "picGraph3", 800, 550, 2600, 3100};  // bearing ratio against density, standing on it

    int FitMold = 1;                              // which mold the next fit reads
    std::array<double, 6> FitCoef{};              // c0 to c5 of the last fit; c0 stays 0
    double FitR2 = 0;                             // its coefficient of determination
    std::array<double, cbr::kMolds> ZeroShift{};  // the corrected origin of each mold, in
    std::array<double, 3> DensityCoef{};          // c0 to c2 of the last density fit
    double DensityR2 = 0;

    void Form_Load() override;

    void optUnsoak_Click();
    void optSoak_Click();
    void optBoth_Click();
    /// The parameters that Save stored with the compaction test of the same material.
    void optStd_Click();
    void optMod_Click();
    void cmdPen_Click();
    /// Calculate: water contents, densities, swelling, loads and stresses. What fails is told in a box of its own and
    /// leaves the cells worked out before it.
    void cmdCal_Click() override;
    /// Load-Penetration Curve: the three molds' curves, zero shifts and bearing ratios. Error 6 where fewer than five
    /// different penetrations were typed.
    void cmdLPen_Click();
    void lblMold1_Click();
    void lblMold2_Click();
    void lblMold3_Click();
    /// CBR Value from Graph: both curves against density, the value at the chosen share of the maximum density from
    /// that at 0.2 in. Error 6 with fewer than three different densities.
    void cmdCBR_Click();
    void lbl01_Click();
    void lbl02_Click();
    void MSHSwell_MouseDown(MouseButton button, int row, int column);
    void MSHPenetrate1_MouseDown(MouseButton button, int row, int column);
    void dtpSwell_Change();
    /// These leave no row behind that was made for a penetration that never came.
    void SSTData_Click(int previousTab) override;
    void cmdView_Click() override;
    void tblMenu_ButtonClick(int number) override;

    /// The stress and penetration curve of FitMold into FitCoef and FitR2.
    void FitPenetrationCurve();
    /// Bearing ratios at 0.1 in, or at 0.2 in, against densities into DensityCoef and DensityR2.
    void FitDensityCurve01();
    void FitDensityCurve02();

    void LoadChoice(std::string_view stored) override;

  private:
    void BuildGrids();
    void WriteConditions(std::string_view first, std::string_view second, const std::array<std::string_view, 3>& molds);
    void FetchCompaction(Test test, std::string_view name);

    void ShapePenetrations(int rows);
    void ErasePenetration(int row);
    void EraseSwelling(int row);
    void ShowSwellDate(int row);
    bool dtpSwell_KeyPress(Key key);
    std::string CommitPenetration(int row, int column, std::string text);
    void DropSpareRow();

    void Calculate();
    void WaterContents(int firstColumn);
    void Densities(int firstColumn);
    void DensityOf(int column);
    void TakeBothConditions();
    void Swelling();
    void SwellingOf(int row);
    void LoadsAndStresses();

    cbr::Curve CurveOf(int mold) const;
    double LastPenetration() const;
    double Stress(double penetration) const;
    bool IsTicked(int mold) const;
    cbr::LoadScale ScaleOfLoads() const;
    void DrawEmptyLoadPlot();
    void DrawLoadAxes(const cbr::LoadScale& scale);
    void DrawPenetrationTicks(const cbr::LoadScale& scale);
    GridEdge GridOfLoads() const;
    void MarkReadings(const cbr::LoadScale& scale, int mold);
    void DrawMolds(const cbr::LoadScale& scale, int first, int last, const cbr::MoldTask& task);
    void DoMold(const cbr::LoadScale& scale, int mold, const cbr::MoldTask& task);
    cbr::TangentPoint ScanCurve() const;
    void DrawCurve(const cbr::LoadScale& scale, const cbr::MoldTask& task);
    void ShiftZero(int mold, const cbr::TangentPoint& tangent);
    void DrawTangent(const cbr::LoadScale& scale, int mold, const cbr::TangentPoint& tangent);
    void ReadValues(const cbr::LoadScale& scale, int mold, const cbr::MoldTask& task);
    void MarkStress(const cbr::LoadScale& scale, const cbr::Standard& standard, double penetration, double stress);
    void PrintStresses();
    void DrawLabelled(int mold, bool pullsCurveUp);
    void PostSingleMold();

    void FitDensityCurve(cbr::result::Row row);
    double RatioAt(double density) const;
    cbr::DensityScale ScaleOfDensities() const;
    void DrawEmptyDensityPlot();
    void DrawDensityAxes(const cbr::DensityScale& scale);
    void DrawDensityTicks(const cbr::DensityScale& scale);
    void MarkRatios(const cbr::DensityScale& scale, cbr::result::Row row);
    void DrawRatios(const cbr::DensityScale& scale, cbr::result::Row row);
    void DrawOnly(cbr::result::Row row);
    void ReadDesignValue(const cbr::DensityScale& scale);
    void MarkDesignValue(const cbr::DensityScale& scale, double density, double ratio);

    std::vector<PlotLabel> stresses_;   // that stand on the plot of loads
    std::vector<PlotLabel> unprinted_;  // read by the running command
    int spareRow_ = 0;                  // of MSHPenetrate1, appended by its editor; 0: none
};

}  // namespace terravane
