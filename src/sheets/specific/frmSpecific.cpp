#include "sheets/specific/frmSpecific.h"

#include "sheets/pattern/grids.h"

namespace terravane {

frmSpecific::frmSpecific(Program& owner)
    : TestSheet(owner, laboratory::kSpecificGravitySheet),
      txtData(*this, "txtData", MSHCalibration, TypedCellsOf(laboratory::kCalibration)),
      txtData1(*this, "txtData1", MSHSpecific, TypedCellsOf(laboratory::kGravityTrialGrid))
{
    picgraph1.Container = &picGraph;
    ChainFocus(kHeadBlockWay);
}

void frmSpecific::Form_Load()
{
    BuildGrids();
    DrawAxes();
    TestSheet::Form_Load();
}

void frmSpecific::BuildGrids()
{
    BuildGrid(MSHCalibration, laboratory::kCalibration);
    BuildGrid(MSHSpecific, laboratory::kGravityTrialGrid);
}

void frmSpecific::optFit_Click()
{
    txtFormula.SetText("");
    txtR.SetText("");
}

}  // namespace terravane
