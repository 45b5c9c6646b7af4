#include "sheets/atterberg/frmAtterberg.h"

#include "sheets/pattern/grids.h"
#include "sheets/pattern/plot.h"

namespace terravane {

namespace {

constexpr double kEquationSize = 12;  // points

void DrawEquation(PictureBox& picture, std::string_view text)
{
    picture.Cls();
    SetFont(picture, kAxisFont, kEquationSize);
    PrintAt(picture, 100, (picture.Height - picture.TextHeight(text)) / 2, text);
    picture.Changed();
}

}  // namespace

frmAtterberg::frmAtterberg(Program& owner)
    : TestSheet(owner, laboratory::kAtterbergSheet),
      txtData(*this, "txtData", MSHLL, TypedCellsOf(laboratory::kLiquidLimit)),
      txtData1(*this, "txtData1", MSHPL, TypedCellsOf(laboratory::kPlasticLimit))
{
    SSTData.Hold(kFlowTab, {&picgraph1, &picGraph, &txtLL, &txtPL, &txtPI, &txtFI, &picPI, &picFI, &cmdPlot});
    ChainFocus(kHeadBlockWay);
}

void frmAtterberg::Form_Load()
{
    BuildGrids();
    DrawEquations();
    DrawAxes();
    cmdPlot.SetEnabled(false);
    SSTData.SetTabEnabled(kFlowTab, false);
    TestSheet::Form_Load();
}

void frmAtterberg::BuildGrids()
{
    BuildGrid(MSHLL, laboratory::kLiquidLimit);
    BuildGrid(MSHPL, laboratory::kPlasticLimit);
}

void frmAtterberg::DrawEquations()
{
    DrawEquation(picPI, "PI = LL - PL");
    DrawEquation(picFI, "FI = (w1 - w2) / log (N2 / N1)");
}

/// The flow index goes to the summary's column of that name; no swelling is measured here.
void frmAtterberg::PostLimits()
{
    Post({{"LL", txtLL.Text()}, {"PL", txtPL.Text()}, {"PI", txtPI.Text()}, {"swelling", txtFI.Text()}});
}

}  // namespace terravane
