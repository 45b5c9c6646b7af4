#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

Place GeneralDataLayout()
{
    return Column({Group("fraGeneral", {Fields({"txtProject", "txtLocation", "txtID", "txtClient"})}),
                   Row({Space(), One("cmdOK")})});
}

Place AboutLayout()
{
    return Column({Row({Space(), One("imgMark"), Space()}), One("lblName"), One("lblVersion"), One("lblInstitution"),
                   One("lblDepartment"), One("lblDeveloper"), Row({Space(), One("cmdClose")})});
}

std::map<std::string_view, Place> AllLayouts()
{
    return {
        {"frmProject", GeneralDataLayout()},
        {"frmAbout", AboutLayout()},
        {"frmCompaction", CompactionLayout()},
        {"frmAtterberg", AtterbergLayout()},
        {"frmSpecific", SpecificLayout()},
        {"frmSieve", SieveLayout()},
        {"frmCBR", CbrLayout()},
    };
}

}  // namespace terravane
