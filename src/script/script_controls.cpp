#include "script/script_controls.h"

#include <ranges>

#include "controls/text_controls.h"

namespace terravane {

namespace {

Control* FindInShownForms(const Program& program, std::string_view name)
{
    for (const auto& shown : program.ShownForms() | std::views::reverse) {
        if (Control* control = shown.form->Find(name)) return control;
    }
    return nullptr;
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
    const Form* form = program.Loaded(name.substr(0, point));
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

std::optional<std::string_view> WhyUnusable(const Control& control)
{
    if (!control.Visible()) return "hidden";
    if (!control.Enabled()) return "disabled";
    const auto* box = dynamic_cast<const TextControl*>(&control);
    if (box && box->Locked()) return "locked";
    return std::nullopt;
}

}  // namespace terravane
