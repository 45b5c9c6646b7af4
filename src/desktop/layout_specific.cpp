// The specific gravity sheet: the flask's calibration with its curve, then the determinations.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

Place CalibrationTab()
{
    return Row({
        Group("fraCalibration", {One("MSHCalibration", 1)}, 2),
        Plot("picGraph", "picgraph1", 3),
        Column({One("optAut"), One("optExp"), One("optLin"), One("optPol"), Space(), One("lblEquation"),
                Named("txtFormula", "Equation of Curve"), Field("txtR"), One("cmdgraph")},
               2),
    });
}

Place GravityTab()
{
    return Column({Group("fraSpecific", {One("MSHSpecific", 1)}, 1), Row({Space(), One("cmdCal"), One("cmdView")})});
}

}  // namespace

Place SpecificLayout()
{
    return Column({Banner("txtLabName"), GeneralData(), Tabs("SSTData", {CalibrationTab(), GravityTab()})});
}

}  // namespace terravane
