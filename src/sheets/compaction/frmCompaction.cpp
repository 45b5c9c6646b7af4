#include "sheets/compaction/frmCompaction.h"

#include <array>

#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "sheets/pattern/grids.h"
#include "store/statements.h"

namespace terravane {

namespace {

using namespace compaction;

constexpr double kTitleWidth = 2500;  // twips, of the grids' titles
constexpr double kPointWidth = 680;   // of MSHData's first column
constexpr CellRange kWeighings{water::CanNumber, water::Can, 1, kTrials};
constexpr CellRange kMoulds{density::AssumedWater, density::Mould, 1, kTrials};
constexpr std::string_view kDitto = "/";

/// The ways that Enter takes.
constexpr std::array<std::string_view, 9> kWay{"txtClient", "txtID",   "txtProject", "txtLocation", "txtDia",
                                               "txtHeight", "txtSoil", "cboTest",    "cboCheck"};
constexpr std::array<std::string_view, 4> kHammerWay{"cboWt", "cboBlow", "cboLayer", "txtProject"};

/// Masses are shown to 0.01 g as soon as they are typed; can numbers are names.
std::string CommitWeighing(int row, int, const std::string& text)
{
    return row == water::CanNumber ? text : Format(text, kTwoDecimals);
}

/// The same mould serves trial after trial: a ditto mark takes the mass from the trial before.
CommitRule CommitMould(TextGrid& grid)
{
    return [&grid](int row, int column, const std::string& text) {
        const bool isDitto = row == density::Mould && column > 1 && text == kDitto;
        return isDitto ? grid(row, column - 1).Text() : text;
    };
}

}  // namespace

frmCompaction::frmCompaction(Program& owner)
    : TestSheet(owner, "frmCompaction", "Compaction Test",
                {"Data Monitor Determination", "Compaction Parameters Determination"}),
      txtData(
          *this, "txtData", MSHWt, [] { return kWeighings; }, CommitWeighing),
      txtData1(
          *this, "txtData1", MSHDensity, [] { return kMoulds; }, CommitMould(MSHDensity))
{
    MSH2.SetVisible(false);
    MSH3.SetVisible(false);
    WireEvents();
    ChainFocus(kWay);
    ChainFocus(kHammerWay);
}

void frmCompaction::WireEvents()
{
    cmdOMC.Click = [this] { cmdOMC_Click(); };
    Command5.Click = [this] { Command5_Click(); };
    Command6.Click = [this] { Command6_Click(); };
    chkSatLine.Click = [this] { chkSatLine_Click(); };
    SSTData.TabChanged = [this](int previousTab) { SSTData_Click(previousTab); };
    MSHWt.MouseDown = [this](MouseButton button, int row, int column) { MSHWt_MouseDown(button, row, column); };
    OpenByMouse(txtData1);
}

void frmCompaction::Form_Load()
{
    BuildGrids();
    DrawAxes();
    SSTData.SetTabEnabled(1, false);
    TestSheet::Form_Load();
}

void frmCompaction::BuildGrids()
{
    MSHWt.SetRowTitles({"Sample No. ", "Moisture Can No. ", "Mass of Can + Wet Soil, (g) ",
                        "Mass of Can + Dry Soil, (g) ", "Mass of Can, (g) ", "Mass of Water, (g) ",
                        "Mass of Dry Soil, (g) ", "Water Content, (%)"});
    MSHWt.SetColumnTitles({"Sample No. ", "1 ", "2 ", "3 ", "4 ", "5 ", "6 "});
    MSHDensity.SetHeadRows(0);
    MSHDensity.SetRowTitles({"Assumed Water Content, (%)", "Mass of Wet Soil + Mold, (g)", "Mass of Mold, (g)",
                             "Water Content, (%)", "Mass of Wet Soil in Mold, (g) ", "Wet Density, (g/cm^3)",
                             "Dry  Density, (g/cm^3)"});
    MSHWt.SetColumnWidth(0, kTitleWidth);
    MSHDensity.SetColumnWidth(0, kTitleWidth);
    MarkCalculatedFrom(MSHWt, water::Water);
    MarkCalculatedFrom(MSHDensity, density::WaterContent);
    MSHData.SetTitleColumns(0);
    MSHData.SetColumnTitles({"wc\n  \n(%)", "Dry Density\n  \n(g/cm^3)"});
    MSHData.SetColumnWidth(0, kPointWidth);
}

void frmCompaction::MSHWt_MouseDown(MouseButton button, int row, int column)
{
    if (button == MouseButton::Left) return PressCell(txtData, row, column);
    if (AsksToErase("คอลัมภ์นี้")) EraseTrial(std::max(column, 1));  // a press on the titles counts as the first trial
}

void frmCompaction::SSTData_Click(int previousTab)
{
    HideEditors(*this);
    if (previousTab == 0) FillPoints();
}

void frmCompaction::chkSatLine_Click()
{
    txtGs.SetText(ResultsOf(Test::SpcSoil)["gs"]);
    if (!chkSatLine.Value()) txtGs.SetText("");
}

void frmCompaction::PostPeak()
{
    const bool isStandard = program.CurrentTest == Test::StdSoil;
    PostSummary(program, {{isStandard ? "sum_omcS" : "sum_omcM", txtOMC.Text()},
                          {isStandard ? "sum_mddS" : "sum_mddM", txtDmax.Text()}});
}

}  // namespace terravane
