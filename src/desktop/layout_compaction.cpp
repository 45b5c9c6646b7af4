// The compaction sheet: readings on the first tab, the curve on the second.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

Place CompactionReadingsTab()
{
    return Column({
        Row({Field("txtDia"), Field("txtHeight"), Field("cboWt"), Field("cboBlow"), Field("cboLayer"), Space()}),
        Pair({Group("FraWt", {One("MSHWt", 1)}, 1), Group("fraDensity", {One("MSHDensity", 1)}, 1)}),
        Row({Space(), One("cmdCal"), One("cmdView")}),
    });
}

Place CompactionCurveTab()
{
    return Row({
        Plot("picgraph1", "picGraph", 3),
        Column({Row({One("optInt"), One("optFit"), Space()}), Row({Result("txtOMC", "%"), Result("txtDmax", "g/cm^3")}),
                One("MSHData", 1), Row({One("chkSatLine"), Field("txtGs"), Field("cboSr")}),
                Row({One("optWholeCurve"), One("Option2"), Field("Text6")}),
                Row({Field("Text4"), Field("Text5"), One("Command5"), One("Command6")}), Row({Space(), One("cmdOMC")})},
               2),
    });
}

}  // namespace

Place CompactionLayout()
{
    return Column(
        {Banner("txtLabName"), GeneralData(), Tabs("SSTData", {CompactionReadingsTab(), CompactionCurveTab()})});
}

}  // namespace terravane
