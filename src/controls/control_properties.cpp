#include "controls/control_properties.h"

#include <array>
#include <cstddef>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

using Answer = std::optional<PropertyValue>;

/// What a kind has beside what every control has; nothing where it has no such property.
struct OwnProperties {
    Answer value = {}, locked = {};
    Answer rows = {}, columns = {};
    const std::vector<std::string>* list = nullptr;
    const TabControl* tabs = nullptr;
};

/// Of every kind.
struct OwnPropertiesOf {
    OwnProperties operator()(const OptionButton& option) const { return {.value = option.Value()}; }
    OwnProperties operator()(const CheckBox& box) const { return {.value = box.Value()}; }
    OwnProperties operator()(const ScrollBar& bar) const { return {.value = bar.Value()}; }
    OwnProperties operator()(const DatePicker& picker) const
    {
        return {.value = picker.Text(), .locked = picker.Locked()};
    }
    OwnProperties operator()(const OneOf<TextBox, CellEditor> auto& box) const { return {.locked = box.Locked()}; }
    OwnProperties operator()(const OneOf<ComboBox, ListCellEditor> auto& combo) const
    {
        return {.locked = combo.Locked(), .list = &combo.List()};
    }
    OwnProperties operator()(const ListBox& box) const { return {.list = &box.List()}; }
    OwnProperties operator()(const TextGrid& grid) const { return {.rows = grid.Rows(), .columns = grid.Columns()}; }
    OwnProperties operator()(const TabControl& tabs) const { return {.tabs = &tabs}; }
    OwnProperties operator()(
        const OneOf<CommandButton, Frame, Image, Label, MenuEntry, PictureBox, StatusBar, Timer, Toolbar> auto&) const
    {
        return {};
    }
};

OwnProperties OwnOf(const Control& control)
{
    return VisitControl(OwnPropertiesOf{}, control);
}

std::string ColourAnswer(const std::optional<Colour>& colour)
{
    return colour ? ColourText(*colour) : std::string();
}

Answer ListEntryOf(const Control& control, int index)
{
    const auto* list = OwnOf(control).list;
    if (!list) return std::nullopt;
    if (index < 0 || index >= static_cast<int>(list->size())) throw RuntimeError(error::kSubscriptOutOfRange);
    return (*list)[static_cast<std::size_t>(index)];
}

Answer ListCountOf(const Control& control, int)
{
    const auto* list = OwnOf(control).list;
    return list ? Answer(static_cast<int>(list->size())) : std::nullopt;
}

Answer TabOf(const Control& control, int)
{
    const TabControl* tabs = OwnOf(control).tabs;
    return tabs ? Answer(tabs->Tab()) : std::nullopt;
}

Answer TabEnabledOf(const Control& control, int index)
{
    const TabControl* tabs = OwnOf(control).tabs;
    if (!tabs) return std::nullopt;
    if (index < 0 || index >= tabs->Count()) throw RuntimeError(error::kSubscriptOutOfRange);
    return tabs->TabEnabled(index);
}

struct Property {
    std::string_view name;
    Answer (*read)(const Control& control, int index);
};

constexpr std::array kProperties{
    Property{"Enabled", [](const Control& control, int) { return Answer(control.Enabled()); }},
    Property{"Visible", [](const Control& control, int) { return Answer(control.Visible()); }},
    Property{"Caption", [](const Control& control, int) { return Answer(control.Caption()); }},
    Property{"Text", [](const Control& control, int) { return Answer(control.Text()); }},
    Property{"BackColor", [](const Control& control, int) { return Answer(ColourAnswer(control.BackColor())); }},
    Property{"ForeColor", [](const Control& control, int) { return Answer(ColourAnswer(control.ForeColor())); }},
    Property{"Value", [](const Control& control, int) { return OwnOf(control).value; }},
    Property{"Locked", [](const Control& control, int) { return OwnOf(control).locked; }},
    Property{"ListCount", ListCountOf},
    Property{"List", ListEntryOf},
    Property{"Rows", [](const Control& control, int) { return OwnOf(control).rows; }},
    Property{"Cols", [](const Control& control, int) { return OwnOf(control).columns; }},
    Property{"Tab", TabOf},
    Property{"TabEnabled", TabEnabledOf},
};

}  // namespace

std::optional<PropertyValue> ReadProperty(const Control& control, std::string_view property, int index)
{
    for (const Property& known : kProperties) {
        if (SameName(known.name, property)) return known.read(control, index);
    }
    return std::nullopt;
}

}  // namespace terravane
