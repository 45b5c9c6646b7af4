#include "sheets/compaction/frmCompaction.h"

#include <array>

#include "laboratory/masks.h"
#include "laboratory/tests.h"
#include "runtime/numbers.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace compaction;

constexpr double kPointWidth = 680;  // twips, of MSHData's first column
constexpr std::string_view kDitto = "/";

/// The ways that Enter takes.
constexpr std::array<std::string_view, 9> kWay{"txtClient", "txtID",   "txtProject", "txtLocation", "txtDia",
                                               "txtHeight", "txtSoil", "cboTest",    "cboCheck"};
constexpr std::array<std::string_view, 4> kHammerWay{"cboWt", "cboBlow", "cboLayer", "txtProject"};

/// The same mold serves trial after trial: a ditto mark takes the mass from the trial before.
CommitRule CommitMold(TextGrid& grid)
{
    return [&grid](int row, int column, const std::string& text) {
        const bool isDitto = row == density::Mold && column > 1 && text == kDitto;
        return isDitto ? grid(row, column - 1).Text() : text;
    };
}

}  // namespace

frmCompaction::frmCompaction(Program& owner)
    : TestSheet(owner, laboratory::kCompactionSheet),
      txtData(*this, "txtData", MSHWt, TypedCellsOf(laboratory::kCompactionWater),
              CommitThroughMasks(laboratory::kCompactionWater)),
      txtData1(*this, "txtData1", MSHDensity, TypedCellsOf(laboratory::kCompactionDensity), CommitMold(MSHDensity))
{
    MSH2.SetVisible(false);
    MSH3.SetVisible(false);
    cmdOMC.SetMousePointer(Pointer::Hand);
    SSTData.Hold(kCurveTab, {&picgraph1, &picGraph, &optInt, &optFit, &txtOMC, &txtDmax, &MSHData, &chkSatLine, &txtGs,
                             &cboSr, &optWholeCurve, &Option2, &Text6, &Text4, &Text5, &Command5, &Command6, &cmdOMC});
    ChainFocus(kWay);
    ChainFocus(kHammerWay);
}

void frmCompaction::Form_Load()
{
    BuildGrids();
    DrawAxes();
    SSTData.SetTabEnabled(kCurveTab, false);
    TestSheet::Form_Load();
}

void frmCompaction::BuildGrids()
{
    BuildGrid(MSHWt, laboratory::kCompactionWater);
    BuildGrid(MSHDensity, laboratory::kCompactionDensity);
    MSHData.SetTitleColumns(0);
    MSHData.SetColumnTitles({"wc\n  \n(%)", "Dry Density\n  \n(g/cm^3)"});
    MSHData.SetColumnWidth(0, kPointWidth);
}

void frmCompaction::MSHWt_MouseDown(MouseButton button, int row, int column)
{
    if (button == MouseButton::Left) return PressCell(txtData, row, column);
    if (AsksToErase("คอมลัมภ์นี้")) EraseTrial(std::max(column, 1));  // a press on the titles counts as the first trial
}

void frmCompaction::SSTData_Click(int previousTab)
{
    TestSheet::SSTData_Click(previousTab);
    if (previousTab == 0) FillPoints();
}

void frmCompaction::chkSatLine_Click()
{
    txtGs.SetText(ResultsOf(Test::SpcSoil)["gs"]);
    if (!chkSatLine.Value()) txtGs.SetText("");
}

void frmCompaction::PostPeak()
{
    const auto posts = laboratory::Describe(program.CurrentTest).posts;  // of the standard or the modified test
    Post({{posts[0].column, txtOMC.Text()}, {posts[1].column, txtDmax.Text()}});
}

}  // namespace terravane
