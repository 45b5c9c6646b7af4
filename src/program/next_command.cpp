#include "program/next_command.h"

#include <algorithm>
#include <iterator>

#include "controls/control_kinds.h"
#include "controls/visit_control.h"
#include "laboratory/tests.h"

namespace terravane {

namespace {

constexpr std::string_view kPreview = "cmdView";

template <class Boxes>
bool HasBox(const Boxes& boxes, std::string_view control)
{
    return std::ranges::find(boxes, control, &laboratory::Box::control) != std::ranges::end(boxes);
}

}  // namespace

const laboratory::Sheet* SheetOfForm(std::string_view form)
{
    const auto sheets = laboratory::SheetsClosedBeforeFile();
    const auto found = std::ranges::find(sheets, form, &laboratory::Sheet::form);
    return found == sheets.end() ? nullptr : *found;
}

NextCommand::NextCommand(Form& form) : form_(form)
{
    const laboratory::Sheet* sheet = SheetOfForm(form.Name());
    if (!sheet) return;
    for (const std::string_view name : sheet->commands) commands_.push_back(&form.Get<CommandButton>(name));
    commands_.push_back(&form.Get<CommandButton>(kPreview));
}

void NextCommand::Typed(const Control& control)
{
    if (HasBox(laboratory::kJobBoxes, control.Name()) || HasBox(laboratory::kGeneralBoxes, control.Name())) return;
    done_ = 0;
}

void NextCommand::Done(const Control& command)
{
    const auto found = std::ranges::find(commands_, &command);
    if (found != commands_.end()) done_ = static_cast<std::size_t>(found - commands_.begin()) + 1;
}

/// Enabled, and not on a tab that is shut.
bool NextCommand::CanBePressed(const CommandButton& command) const
{
    const auto tabs = ControlsOf<TabControl>(form_);
    return command.Enabled() && command.Visible() &&
           std::ranges::all_of(tabs, [&command](const TabControl* tab) { return tab->Reaches(command); });
}

/// When all were pressed the page is looked at once more.
CommandButton* NextCommand::Find() const
{
    if (commands_.empty()) return nullptr;
    for (std::size_t i = std::min(done_, commands_.size() - 1); i < commands_.size(); ++i)
        if (CanBePressed(*commands_[i])) return commands_[i];
    return nullptr;
}

}  // namespace terravane
