/// How a script finds a control by its name, and whether a person could use it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/text_grid.h"
#include "program/program.h"
#include "script/script_line.h"

namespace terravane {

/// "txtSoil": the control in the form shown last that has it, a dialog before the sheet, the sheet before the
/// frame. "frmProject.txtID": the control of that form. Nothing where there is none.
Control* FindControl(const Program& program, std::string_view name);

/// The same; LineFault where there is none.
Control& ControlNamed(const Program& program, const std::string& name);

/// The same as a control of kind T; `use` says in the LineFault what the other kinds can't do: "be ticked".
template <class T>
T& ControlNamed(const Program& program, const std::string& name, const std::string& use)
{
    if (auto* control = dynamic_cast<T*>(&ControlNamed(program, name))) return *control;
    throw LineFault("\"" + name + "\" can't " + use + ".");
}

/// A control and what is asked of it: "cmdView.Enabled", "frmCompaction.cmdView.Enabled"; property is empty
/// for a control alone. LineFault where there is no such control.
struct AskedProperty {
    Control& control;
    std::string property;
};
AskedProperty PropertyNamed(const Program& program, const std::string& asked);

/// Why a person could not use the control now: "hidden", "disabled", "locked" where
/// it takes text; nothing where a person could.
std::optional<std::string_view> WhyUnusable(const Control& control);

}  // namespace terravane
