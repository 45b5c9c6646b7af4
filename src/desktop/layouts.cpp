#include "desktop/layouts.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "laboratory/tests.h"
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

namespace {

Place* RowOfCalculate(Place& place)
{
    const bool isHere = std::ranges::find(place.parts, "cmdCal", &Place::control) != place.parts.end();
    if (place.kind == Place::Kind::Row && isHere) return &place;
    for (Place& part : place.parts)
        if (Place* row = RowOfCalculate(part)) return row;
    return nullptr;
}

std::map<std::string_view, Place> AllLayouts()
{
    std::map<std::string_view, Place> made;
    for (const WindowLayout& window : kLayouts) made.emplace(window.form, window.make());
    for (const laboratory::Sheet* sheet : laboratory::SheetsClosedBeforeFile()) {
        const auto layout = made.find(sheet->form);
        if (layout != made.end()) layout->second = WithOtherBoxes(std::move(layout->second), *sheet);
    }
    return made;
}

}  // namespace

Place WithOtherBoxes(Place layout, const laboratory::Sheet& sheet)
{
    const auto placed = PlacedControls(layout);
    std::vector<Place> others;
    for (const laboratory::Box& box : sheet.boxes)
        if (std::ranges::find(placed, box.control) == placed.end()) others.push_back(Field(box.control));
    if (Place* row = RowOfCalculate(layout)) row->parts.insert(row->parts.begin(), others.begin(), others.end());
    return layout;
}

const Place& LayoutOf(std::string_view form)
{
    static const auto layouts = AllLayouts();
    const auto found = layouts.find(form);
    if (found != layouts.end()) return found->second;
    throw RuntimeError(error::kObjectRequired, "The form " + std::string(form) + " has no window.");
}

}  // namespace terravane
