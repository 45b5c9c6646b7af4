/// The sieve sheet: the masses on a stack of at most ten sieves and a pan, the percentages that pass, the grain-size
/// curve with its diameters, and the sample's place in two classification systems. Masses are in g, sizes in mm.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/text_grid.h"
#include "laboratory/sieve_analysis.h"
#include "sheets/pattern/spline_grid.h"
#include "sheets/pattern/test_sheet.h"
#include "sheets/sieve/limits.h"

namespace terravane {

/// What stands behind the first "=" of a result box; the whole text where there is none.
std::string_view BehindEquals(std::string_view text);

/// How size and percent map to picGraph: four decades of size, 100 mm at the left, and 100 percent from the bottom.
struct GrainSizeScale {
    double decade;      // twips
    double tenPercent;  // twips
    double height;      // twips

    /// Error 5 for a size of zero or less.
    double X(double millimetre) const;
    double Y(double percent) const { return height - tenPercent * percent / 10; }
};

/// The points of the curve, coarse to fine.
struct GrainSizes {
    std::vector<double> size;     // mm
    std::vector<double> percent;  // passing
};

struct frmSieve : TestSheet {
    explicit frmSieve(Program& program);

    Frame FraWt{*this, "FraWt", "Select Method of Sieving"};
    OptionButton optNo{*this, laboratory::kSieving[0], "method", {.Click = [this] { optNo_Click(); }}, true};
    OptionButton optYes{*this, laboratory::kSieving[1], "method", {.Click = [this] { optYes_Click(); }}};
    TextBox txtGsoil{*this, laboratory::kOriginalMass, {.GotFocus = HidesEditors()}};
    TextBox txtDwp{*this,
                   laboratory::kMassAfterWashing,
                   {.KeyPress = [this](Key key) { return txtDwp_KeyPress(key); }, .GotFocus = HidesEditors()}};
    TextBox txtWl{*this, laboratory::kWashingLoss, {.GotFocus = HidesEditors()}};
    TextBox txtErr{*this, laboratory::kMassLost};

    Frame Frame10{*this, "Frame10", "Select Sieve Size"};
    ListBox lstSieve;
    CommandButton cmdSieve{*this, "cmdSieve", "Add/Modified", {.Click = [this] { cmdSieve_Click(); }}};
    Frame FraWt1{*this, "FraWt1", laboratory::kSieveStack.frame};
    TextGrid MSHSieve{
        *this,
        laboratory::kSieveStack.control,
        laboratory::kSieveStack.Rows(),
        laboratory::kSieveStack.Columns(),
        {.MouseDown = [this](MouseButton button, int row, int column) { MSHSieve_MouseDown(button, row, column); }}};
    CellEditor txtData;

    TextBox txtP4{*this, laboratory::kPassing4};
    TextBox txtP10{*this, laboratory::kPassing10};
    TextBox txtP40{*this, laboratory::kPassing40};
    TextBox txtP200{*this, laboratory::kPassing200};

    CommandButton cmdgraph{*this, "cmdgraph", "Plot Graph", {.Click = [this] { cmdgraph_Click(); }}};
    CheckBox chkSmooth{*this, "chkSmooth", "Smooth Curve"};
    CheckBox chkEdit{*this, "chkEdit", "Edit D10, D30, D60", {.Click = [this] { chkEdit_Click(); }}};
    TextBox txtD60{*this, laboratory::kD60};
    TextBox txtD30{*this, laboratory::kD30};
    TextBox txtD10{*this, laboratory::kD10};
    TextBox txtCu{*this, laboratory::kUniformity};
    TextBox txtCc{*this, laboratory::kCurvature};

    TextBox txtLL{*this, laboratory::kTakenLiquidLimit, {.GotFocus = HidesEditors()}};
    TextBox txtPL{*this, laboratory::kTakenPlasticLimit, {.GotFocus = HidesEditors()}};
    CommandButton cmdAtt{*this, "cmdAtt", "Import LL - PL", {.Click = [this] { cmdAtt_Click(); }}};
    CommandButton cmdClass{*this, "cmdClass", "Classify", {.Click = [this] { cmdClass_Click(); }}};
    Frame fraUSCS{*this, "fraUSCS", "USCS"};
    TextBox txtSuscs{*this, laboratory::kUscsSymbol};
    TextBox txtNuscs{*this, laboratory::kUscsName};
    Frame fraAASHTO{*this, "fraAASHTO", "AASHTO"};
    TextBox txtSaash{*this, laboratory::kAashtoSymbol};
    TextBox txtMtype{*this, laboratory::kAashtoName};

    PictureBox picgraph1{*this, "picgraph1", 0, 0, 9200, 6200};  // tick labels and axis titles of the curve
    PictureBox picGraph{*this, "picGraph", 900, 500, 8000, 5000};
    PictureBox picChart1{*this, "picChart1", 0, 0, 7000, 5200};  // and those of the plasticity chart
    PictureBox picChart{*this, "picChart", 700, 300, 6000, 4200};

    // Not seen: the spline's work, and the vertical caption of the printed curve.
    TextGrid MSHData{*this, "MSHData", 1, 2};  // the points: mm, percent passing
    TextGrid MSH2{*this, "MSH2", 1, spline::kColumns};
    TextGrid MSH3{*this, "MSH3", 1, 2};  // the curve: mm, percent passing
    TextBox Text6{*this, "Text6", "Interval", "0.01"};
    CommandButton Command5{*this, "Command5", "&Derivative", {.Click = [this] { Command5_Click(); }}};
    CommandButton Command6{*this, "Command6", "&SPline", {.Click = [this] { Command6_Click(); }}};
    OptionButton Option2{*this, "Option2", "One Point", "evaluation"};
    PictureBox Image3{*this, "Image3", 0, 0, 550, 1800};

    /// The diameters in mm that 60, 30 and 10 percent pass, as texts. A diameter that a later plot can't read keeps its
    /// text, as long as the sheet is open.
    std::string D60, D30, D10;

    /// The points of the curve that stands on picGraph, MSHData or MSH3; none where none was drawn.
    const TextGrid* ShownCurve = nullptr;

    /// The sample as it was classified last, in percent: passing the sieves, and the coarse parts.
    double P4 = 0, P10 = 0, P40 = 0, P200 = 0;
    double Gravel = 0, Sand = 0;

    void Form_Load() override;

    /// Wet sieving: the masses of washing can be typed. Dry: they are cleared and can't.
    void optYes_Click();
    void optNo_Click();
    /// Enter gives the mass lost by washing.
    bool txtDwp_KeyPress(Key key);
    /// Builds the stack from the selected sieves; an eleventh is refused with a warning. Row 10 is never cleared: what
    /// stood there stays until a tenth sieve takes its place.
    void cmdSieve_Click();
    void MSHSieve_MouseDown(MouseButton button, int row, int column);

    /// Calculate: percentages passing and the percentage of mass lost. Error 11 or 6 for an original mass of zero, with
    /// nothing written, and for a stack without soil, at its first sieve.
    void cmdCal_Click() override;
    /// The limits saved by the Atterberg test of the same material.
    void cmdAtt_Click();
    /// Plot Graph: the curve, the diameters and the coefficients. Fails where it stands, with the picture half drawn:
    /// for fewer than three sieves under a smooth curve, and for a first sieve that passes nothing.
    void cmdgraph_Click();
    /// The spline's second derivatives into MSH2, from the points in MSHData. Error 9 or 6 for fewer than three points.
    void Command5_Click();
    /// The spline's curve into MSH3.
    void Command6_Click();
    /// Opens and locks the diameters for typing; what is typed holds from the next plot on.
    void chkEdit_Click();
    /// Classify: both systems, the mark on the plasticity chart, and the posting. Error 11 or 6 for a coarse sample of
    /// few fines whose D10 was not read; the boxes keep their texts.
    void cmdClass_Click();

    void LoadChoice(std::string_view stored) override;

  private:
    void SetHints();
    void LockResults();
    void DrawAxisCaption();
    void OpenWashing(bool open);
    void SelectStack();

    float TotalMass();
    void ReduceRow(int row, float total, float& cumulative);
    void CopyPassing();

    void FillPoints();
    GrainSizes Points() const;
    void WriteCurvePoint(const GrainSizes& points, const std::vector<SplineRow>& rows, std::size_t interval,
                         double size);
    void ReadDiameters();
    std::string DiameterFromCurve(double level, const std::string& kept) const;
    std::string DiameterFromStack(double level, const std::string& kept) const;
    int SieveRows() const;
    void WriteDiameters();
    void WriteCoefficients();

    GrainSizeScale Scale() const;
    void DrawGrainSizeGrid();
    void DrawSizeLines(const GrainSizeScale& scale);
    void DrawPercentLines(const GrainSizeScale& scale);
    void DrawSieveTicks(const GrainSizeScale& scale);
    void MarkPoints();
    void DrawCurve(const TextGrid& table);

    Limits LimitsNow() const;
    void ClassifyUSCS();
    void ClassifyAASHTO();
    void PostClasses();
    void DrawPlasticityChart(const std::optional<Limits>& sample = std::nullopt);
    void DrawChartGrid();
    void PrintZones();
    void MarkSample(const Limits& limits);
};

}  // namespace terravane
