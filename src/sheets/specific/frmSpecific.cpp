#include "sheets/specific/frmSpecific.h"

#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

constexpr double kTitleWidth = 3000;  // twips, of the trials' titles
constexpr CellRange kCalibration{1, kCalibrationReadings, calibration::FlaskAndWater, calibration::Temperature};
constexpr CellRange kTrialReadings{gravity::Temperature, gravity::Container, 1, kGravityTrials};

}  // namespace

frmSpecific::frmSpecific(Program& owner)
    : TestSheet(owner, "frmSpecific", "Specific Gravity Test", {"Flask Calibration", "Specific Gravity Determination"}),
      txtData(*this, "txtData", MSHCalibration, [] { return kCalibration; }),
      txtData1(*this, "txtData1", MSHSpecific, [] { return kTrialReadings; })
{
    picgraph1.Container = &picGraph;
    WireEvents();
    ChainFocus(kHeadBlockWay);
}

void frmSpecific::WireEvents()
{
    cmdgraph.Click = [this] { cmdgraph_Click(); };
    for (OptionButton* option : {&optAut, &optExp, &optLin, &optPol}) option->Click = [this] { optFit_Click(); };
    OpenByMouse(txtData);
    OpenByMouse(txtData1);
}

void frmSpecific::Form_Load()
{
    BuildGrids();
    DrawAxes();
    TestSheet::Form_Load();
}

void frmSpecific::BuildGrids()
{
    MSHCalibration.SetRowTitles({"No.", "1", "2", "3", "4", "5", "6", "7"});
    MSHCalibration.SetColumnTitles({"No.", "Flask + Water\n(g)", "Temperature\n(celsius)"});
    MSHSpecific.SetRowTitles({"Trial No.", "Temperature, (Degree Celsius)", "Mass of Flask + Water, (g)",
                              "Mass of Flask + Water + Soil, (g)", "Container No.", "Mass of Dry Soil + Container, (g)",
                              "Mass of Container, (g)", "Dry Soil, (g)", "Correction Factor, K",
                              "Specific Gravity at 20 Degree Celsius, Gs", "Average Specific Gravity, Gs(avg)"});
    MSHSpecific.SetColumnTitles({"Trial No.", "1", "2", "3"});
    MSHSpecific.SetColumnWidth(0, kTitleWidth);
    MSHSpecific.MarkCalculatedRow(gravity::FlaskAndWater);
    MarkCalculatedFrom(MSHSpecific, gravity::DrySoil);
}

void frmSpecific::optFit_Click()
{
    txtFormula.SetText("");
    txtR.SetText("");
}

}  // namespace terravane
