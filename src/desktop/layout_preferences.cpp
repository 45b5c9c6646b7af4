// Preferences: the logos and names of the head and of the cover, the persons.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

/// A logo with its two commands below it.
Place LogoWith(std::string_view box, std::string_view name, std::string_view open, std::string_view change)
{
    return Column({layout::Picture(box, name), Row({Space(), One(open), One(change), Space()})}, 1);
}

Place HeadTab()
{
    return Row({
        Group("fraInstitute",
              {LogoWith("picIns", "Logo of the institute", "cmdOpen", "cmdLogo1"), Field("txtIsName"),
               Row({Space(), One("cmdName1")})},
              1),
        Group("fraDepartment",
              {LogoWith("picDep", "Logo of the testing department", "cmdOpen1", "cmdLogo2"), Field("txtDname"),
               Row({Space(), One("cmdName2")})},
              1),
    });
}

Place CoverTab()
{
    return Row({
        Group("fraCover", {LogoWith("picCover", "Logo of the cover", "cmdOpen2", "cmdLogo3")}, 1),
        Group("fraInformation", {Fields({"txtCov1", "txtCov2", "txtCov3"}), Row({Space(), One("cmdName3")}), Space()},
              1),
    });
}

Place PersonTab()
{
    return Column({Group("Frame7", {One("mshPerson", 1)}, 1),
                   Row({One("cmdDbase"), Space(), One("cmdClear"), One("cmdPerson")})});
}

}  // namespace

Place PreferencesLayout()
{
    return Column(
        {Tabs("sstPreference", {HeadTab(), CoverTab(), PersonTab()}), Row({Field("txtLogo", 1), One("cmdClose")})});
}

}  // namespace terravane
