// The sieve sheet: masses, the particle-size curve, the classifications.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

Place MassesTab()
{
    return Row({
        Column({Group("FraWt",
                      {Row({One("optNo"), One("optYes"), Space()}), Fields({"txtGsoil", "txtDwp", "txtWl", "txtErr"})}),
                Group("Frame10", {Row({One("lstSieve", 1), Column({Space(), One("cmdSieve")})}, 1)}, 1)},
               2),
        Column({Group("FraWt1", {One("MSHSieve", 1)}, 1), Row({Space(), One("cmdCal"), One("cmdView")})}, 4),
    });
}

Place GradingTab()
{
    return Row({
        Plot("picgraph1", "picGraph", 4),
        Column({Row({Fields({"txtP4", "txtP10", "txtP40", "txtP200"}),
                     NamedFields({Named("txtD60", "D60 (mm)"), Named("txtD30", "D30 (mm)"), Named("txtD10", "D10 (mm)"),
                                  Named("txtCu", "Cu"), Named("txtCc", "Cc")})}),
                One("chkEdit"), Row({One("chkSmooth"), Field("Text6")}),
                Row({One("Option2"), One("Command5"), One("Command6")}), Space(), Row({Space(), One("cmdgraph")})},
               2),
    });
}

Place ClassesTab()
{
    return Row({
        Plot("picChart1", "picChart", 3),
        Column(
            {Row({Field("txtLL"), Field("txtPL"), One("cmdAtt")}), Group("fraUSCS", {Fields({"txtSuscs", "txtNuscs"})}),
             Group("fraAASHTO", {Fields({"txtSaash", "txtMtype"})}), Space(), Row({Space(), One("cmdClass")})},
            3),
    });
}

}  // namespace

Place SieveLayout()
{
    return Column({Banner("txtLabName"), GeneralData(), Tabs("SSTData", {MassesTab(), GradingTab(), ClassesTab()})});
}

}  // namespace terravane
