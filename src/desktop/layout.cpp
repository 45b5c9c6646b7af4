#include "desktop/layout.h"

#include <utility>

namespace terravane {

namespace layout {

Place Row(std::vector<Place> parts, int stretch)
{
    return {Place::Kind::Row, {}, std::move(parts), {}, stretch};
}

Place Column(std::vector<Place> parts, int stretch)
{
    return {Place::Kind::Column, {}, std::move(parts), {}, stretch};
}

Place Pair(std::vector<Place> parts, int stretch)
{
    return {Place::Kind::Pair, {}, std::move(parts), {}, stretch};
}

Place Fields(const std::vector<std::string_view>& controls, int stretch)
{
    Place fields{Place::Kind::Fields, {}, {}, {}, stretch};
    for (const auto control : controls) fields.parts.push_back(One(control));
    return fields;
}

Place Group(std::string_view frame, std::vector<Place> parts, int stretch)
{
    return {Place::Kind::Group, frame, std::move(parts), {}, stretch};
}

Place Tabs(std::string_view control, std::vector<Place> pages)
{
    return {Place::Kind::Tabs, control, std::move(pages), {}, 1};
}

Place One(std::string_view control, int stretch)
{
    return {Place::Kind::Control, control, {}, {}, stretch};
}

Place Field(std::string_view control, int stretch)
{
    return {Place::Kind::Field, control, {}, {}, stretch};
}

Place Measured(std::string_view control, std::string_view unit)
{
    return {Place::Kind::Field, control, {}, unit, 0};
}

Place Named(std::string_view control, std::string_view caption)
{
    return {Place::Kind::Control, control, {}, caption, 0};
}

Place NamedFields(std::vector<Place> fields, int stretch)
{
    return {Place::Kind::Fields, {}, std::move(fields), {}, stretch};
}

Place Result(std::string_view control, std::string_view unit)
{
    return {Place::Kind::Result, control, {}, unit, 0};
}

Place Banner(std::string_view control)
{
    return {Place::Kind::Banner, control, {}, {}, 0};
}

Place Plot(std::string_view frame, std::string_view plot, int stretch)
{
    return {Place::Kind::Plot, frame, {}, plot, stretch};
}

Place Picture(std::string_view control, std::string_view name)
{
    return {Place::Kind::Picture, control, {}, name, 1};
}

Place Space()
{
    return {Place::Kind::Space, {}, {}, {}, 1};
}

/// Two rows of four fields; with a field of the sheet's own three of three.
Place GeneralData(std::string_view ownField)
{
    if (!ownField.empty())
        return Group("fraGeneral",
                     {Row({Fields({"txtClient", "txtProject", "txtLocation"}, 5),
                           Fields({"txtID", "txtSoil", "DTPDate"}, 3), Fields({"cboTest", "cboCheck", ownField}, 4)})});
    return Group("fraGeneral", {Row({Fields({"txtClient", "txtProject"}, 4), Fields({"txtLocation", "DTPDate"}, 4),
                                     Fields({"txtID", "txtSoil"}, 3), Fields({"cboTest", "cboCheck"}, 4)})});
}

}  // namespace layout

std::vector<std::string> PlacedControls(const Place& place)
{
    std::vector<std::string> names;
    if (!place.control.empty()) names.emplace_back(place.control);
    if (place.kind == Place::Kind::Plot && !place.text.empty()) names.emplace_back(place.text);
    for (const Place& part : place.parts) {
        for (auto& name : PlacedControls(part)) names.push_back(std::move(name));
    }
    return names;
}

}  // namespace terravane
