#include "sheets/compaction/frmCompaction.h"

#include <array>

#include "runtime/numbers.h"
#include "sheets/pattern/masks.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr double kTitleWidth = 2500;  // twips, of the grids' titles
constexpr double kPointWidth = 680;   // of MSHData's first column
constexpr CellRange kWeighings{wt::CanNumber, wt::Can, 1, kTrials};
constexpr CellRange kMoulds{density::AssumedWater, density::Mould, 1, kTrials};
constexpr std::string_view kDitto = "/";

constexpr std::array kFocusSteps{
    FocusStep{"txtClient", "txtID"},    FocusStep{"txtID", "txtProject"},    FocusStep{"txtProject", "txtLocation"},
    FocusStep{"txtLocation", "txtDia"}, FocusStep{"txtDia", "txtHeight"},    FocusStep{"txtHeight", "txtSoil"},
    FocusStep{"txtSoil", "cboTest"},    FocusStep{"cboTest", "cboCheck"},    FocusStep{"cboWt", "cboBlow"},
    FocusStep{"cboBlow", "cboLayer"},   FocusStep{"cboLayer", "txtProject"},
};

/// Masses are shown to 0.01 g as soon as they are typed; can numbers are names.
std::string CommitWeighing(int row, int, std::string text)
{
    return row == wt::CanNumber ? text : Format(text, kTwoDecimals);
}

/// The same mould serves trial after trial: a ditto mark takes the mass from the trial before.
CommitRule CommitMould(TextGrid& grid)
{
    return [&grid](int row, int column, std::string text) {
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
    ChainFocus(kFocusSteps);
}

void frmCompaction::WireEvents()
{
    Command(cmdOMC, [this] { cmdOMC_Click(); });
    cmdOMC.MouseMove = [] {};  // takes the hand, keeps its colour
    Command5.Click = [this] { Command5_Click(); };
    Command6.Click = [this] { Command6_Click(); };
    chkSatLine.Click = [this] { chkSatLine_Click(); };
    SSTData.TabChanged = [this](int previousTab) { SSTData_Click(previousTab); };
    MSHWt.MouseDown = [this](MouseButton button, int row, int column) { MSHWt_MouseDown(button, row, column); };
    MSHDensity.MouseDown = [this](MouseButton button, int row, int column) {
        MSHDensity_MouseDown(button, row, column);
    };
}

void frmCompaction::Form_Load()
{
    BuildGrids();
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
    for (const int row : {wt::Water, wt::DrySoil, wt::WaterContent}) MSHWt.MarkCalculatedRow(row);
    for (const int row : {density::WaterContent, density::WetSoil, density::WetDensity, density::DryDensity}) {
        MSHDensity.MarkCalculatedRow(row);
    }
    MSHData.SetTitleColumns(0);
    MSHData.SetColumnTitles({"wc\n  \n(%)", "Dry Density\n  \n(g/cm^3)"});
    MSHData.SetColumnWidth(0, kPointWidth);
}

void frmCompaction::MSHWt_MouseDown(MouseButton button, int row, int column)
{
    const int trial = std::max(column, 1);  // a press on the titles counts as the first trial
    if (button == MouseButton::Left) return txtData.PressLeft(row, trial);
    const Message question{"คุณต้องการลบข้อมูลคอลัมภ์นี้ใช่หรือไม่?", "ยืนยันการลบ", MessageStyle::Plain, MessageButtons::OkCancel};
    if (program.Ask().Show(question) == MessageAnswer::Ok) EraseTrial(trial);
}

void frmCompaction::MSHDensity_MouseDown(MouseButton button, int row, int column)
{
    if (button == MouseButton::Left) txtData1.PressLeft(row, std::max(column, 1));
}

void frmCompaction::SSTData_Click(int previousTab)
{
    HideEditors(*this);
    if (previousTab == 0) FillPoints();
}

void frmCompaction::chkSatLine_Click()
{
    OpenProjectConnection(program);
    const auto& trials =
        Query(program, program.ProjectConnection, SelectAll(TableOf(Test::SpcSoil, program.CurrentMaterial).name));
    txtGs.SetText(trials.Fields("spc_gs"));
    if (!chkSatLine.Value()) txtGs.SetText("");
}

void frmCompaction::PostPeak()
{
    const bool isStandard = program.CurrentTest == Test::StdSoil;
    PostSummary(program, {{isStandard ? "sum_omcS" : "sum_omcM", txtOMC.Text()},
                          {isStandard ? "sum_mddS" : "sum_mddM", txtDmax.Text()}});
}

}  // namespace terravane
