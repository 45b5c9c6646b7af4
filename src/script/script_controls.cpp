#include "script/script_controls.h"

#include <algorithm>
#include <ranges>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"

namespace terravane {

namespace {

Control* FindInShownForms(const Program& program, std::string_view name)
{
    for (const auto& shown : program.ShownForms() | std::views::reverse) {
        if (Control* control = shown.form->Find(name)) return control;
    }
    return nullptr;
}

/// Of every kind.
struct UsesOfKind {
    ControlUses operator()(CommandButton& button) const
    {
        return {.click = [&button] { button.Press(); }, .clickTakesFocus = true};
    }
    ControlUses operator()(OptionButton& option) const
    {
        return {.click = [&option] { option.Press(); }, .clickTakesFocus = true};
    }
    ControlUses operator()(CheckBox& box) const
    {
        return {.click = [&box] { box.SetValue(!box.Value()); }, .clickTakesFocus = true, .tick = &box};
    }
    ControlUses operator()(Label& label) const
    {
        return {.click = [&label] { label.Press(); }};
    }
    ControlUses operator()(Frame& frame) const
    {
        if (!frame.Click) return {};
        return {.click = [&frame] { frame.Press(); }};
    }
    ControlUses operator()(MenuEntry& entry) const { return {.entry = &entry}; }
    ControlUses operator()(Toolbar& bar) const { return {.buttons = &bar}; }
    ControlUses operator()(OneOf<TextBox, DatePicker, CellEditor> auto& box) const { return {.text = &box}; }
    ControlUses operator()(OneOf<ComboBox, ListCellEditor> auto& box) const { return {.text = &box, .list = &box}; }
    ControlUses operator()(ListBox& box) const { return {.entries = &box}; }
    ControlUses operator()(TextGrid& grid) const { return {.cells = &grid}; }
    ControlUses operator()(TabControl& tabs) const { return {.tabs = &tabs}; }
    ControlUses operator()(PictureBox& box) const { return {.drawing = &box}; }
    ControlUses operator()(OneOf<Image, ScrollBar, StatusBar, Timer> auto&) const { return {}; }
};

bool IsOnDisabledTab(Control& control)
{
    const auto shuts = [&control](const TabControl* tabs) { return !tabs->Reaches(control); };
    return std::ranges::any_of(ControlsOf<TabControl>(control.Owner()), shuts);
}

[[noreturn]] void FailMissing(std::string_view name)
{
    throw LineFault("There is no control \"" + std::string(name) + "\".");
}

}  // namespace

Control* FindControl(const Program& program, std::string_view name)
{
    const auto point = name.find('.');
    if (point == std::string_view::npos) return FindInShownForms(program, name);
    Form* form = program.Loaded(name.substr(0, point));
    return form ? form->Find(name.substr(point + 1)) : nullptr;
}

Control& ControlNamed(const Program& program, const std::string& name)
{
    if (Control* control = FindControl(program, name)) return *control;
    FailMissing(name);
}

AskedProperty PropertyNamed(const Program& program, const std::string& asked)
{
    if (Control* control = FindControl(program, asked)) return {*control, ""};
    const auto point = asked.rfind('.');
    if (point == std::string::npos) FailMissing(asked);
    return {ControlNamed(program, asked.substr(0, point)), asked.substr(point + 1)};
}

ControlUses UsesOf(Control& control)
{
    return VisitControl(UsesOfKind{}, control);
}

std::optional<std::string_view> WhyUnusable(Control& control)
{
    if (!control.Visible()) return "hidden";
    if (!control.Enabled() || IsOnDisabledTab(control)) return "disabled";
    const TextControl* box = UsesOf(control).text;
    if (box && box->Locked()) return "locked";
    return std::nullopt;
}

}  // namespace terravane
