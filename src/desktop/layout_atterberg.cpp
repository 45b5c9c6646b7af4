// The Atterberg sheet: both limits' readings on the first tab, the flow curve on the second.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

Place AtterbergReadingsTab()
{
    return Column({Pair({Group("fraLL", {One("MSHLL", 1)}, 1), Group("fraPL", {One("MSHPL", 1)}, 1)}),
                   Row({Space(), One("cmdCal"), One("cmdView")})});
}

Place AtterbergCurveTab()
{
    return Row({
        Plot("picgraph1", "picGraph", 3),
        Column({Row({Result("txtLL", "%"), Result("txtPL", "%")}), Row({Result("txtPI", ""), Result("txtFI", "")}),
                Plot("picPI", "", 0), Plot("picFI", "", 0), Space(), Row({Space(), One("cmdPlot")})},
               2),
    });
}

}  // namespace

Place AtterbergLayout()
{
    return Column(
        {Banner("txtLabName"), GeneralData(), Tabs("SSTData", {AtterbergReadingsTab(), AtterbergCurveTab()})});
}

}  // namespace terravane
