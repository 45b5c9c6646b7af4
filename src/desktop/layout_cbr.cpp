// The CBR sheet: molds, swelling and penetration, the corrected curves, the value at a density.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

Place MoldsTab()
{
    return Column({
        Row({One("optUnsoak"), One("optSoak"), One("optBoth"), Space(), One("optStd"), One("optMod"),
             Field("txtCompaction"), Field("txtOMC"), Field("txtMDD")}),
        Pair({Group("fraWater", {One("MSHWater", 1)}, 1), Group("fraDensity", {One("MSHCompaction", 1)}, 1)}),
        Row({Measured("txtK", "lb/div"), Field("txtWeight"), Space(), One("cmdCal"), One("cmdView")}),
    });
}

Place PenetrationTab()
{
    return Row({
        Group("fraSwell", {One("MSHSwell", 1), Row({Field("dtpSwell"), Space()})}, 5),
        Group("fraPenetrate", {One("MSHPenetrate"), One("MSHPenetrate1", 1), Row({Space(), One("cmdPen")})}, 6),
    });
}

Place CurvesTab()
{
    return Row({
        Plot("picGraph", "picgraph1", 2),
        Column({One("mshLPC", 1),
                Group("fraCorrection", {Row({Named("chkMold1", "Mold 1"), One("lblMold1"), Named("chkMold2", "Mold 2"),
                                             One("lblMold2"), Named("chkMold3", "Mold 3"), One("lblMold3"), Space()})}),
                Row({Space(), One("cmdLPen")})},
               3),
    });
}

Place ValueTab()
{
    return Row({
        Plot("picGraph2", "picGraph3", 2),
        Column({Group("fraCompaction", {Fields({"txtOMC1", "txtMDD1"})}), Row({Field("cboCBR"), Result("txtCBR", "%")}),
                One("lbl01"), One("lbl02"), Space(), Row({Space(), One("cmdCBR")})},
               3),
    });
}

}  // namespace

Place CbrLayout()
{
    return Column({Banner("txtLabName"), GeneralData(),
                   Tabs("SSTData", {MoldsTab(), PenetrationTab(), CurvesTab(), ValueTab()})});
}

}  // namespace terravane
