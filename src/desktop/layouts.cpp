#include "desktop/layouts.h"

#include <map>
#include <string>

#include "runtime/runtime_error.h"

namespace terravane {

using namespace layout;

Place GeneralDataLayout()
{
    return Column({Group("fraGeneral", {Fields({"txtProject", "txtLocation", "txtID", "txtClient"})}),
                   Row({Space(), One("cmdOK")})});
}

Place AboutLayout()
{
    return Column({Row({Column({One("imgMark"), One("imgRoad"), Space()}),
                        Column({One("lblName"), One("lblVersion"), Space(), One("lblInstitution"), One("lblDepartment"),
                                One("lblDeveloper"), Space()},
                               1)}),
                   Row({Space(), One("cmdClose")})});
}

const Place& LayoutOf(std::string_view form)
{
    static const auto layouts = [] {
        std::map<std::string_view, Place> made;
        for (const WindowLayout& window : kLayouts) made.emplace(window.form, window.make());
        return made;
    }();
    const auto found = layouts.find(form);
    if (found != layouts.end()) return found->second;
    throw RuntimeError(error::kObjectRequired, "The form " + std::string(form) + " has no window.");
}

}  // namespace terravane
