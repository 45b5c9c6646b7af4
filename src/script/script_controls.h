/// How a script finds a control by its name, and whether a person could use it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/control_kinds.h"
#include "controls/form.h"
#include "controls/text_controls.h"
#include "program/program.h"
#include "script/script_line.h"

namespace terravane {

/// "txtSoil": the control in the form shown last that has it, a dialog before the sheet, the sheet before the
/// frame. "frmProject.txtID": the control of that form. Nothing where there is none.
Control* FindControl(const Program& program, std::string_view name);

/// The same; LineFault where there is none.
Control& ControlNamed(const Program& program, const std::string& name);

/// What a script can do with a control: each of these is one command's; null where its kind can't be used so.
struct ControlUses {
    Handler click = {};
    bool clickTakesFocus = false;  // first, as it does under a person's mouse
    MenuEntry* entry = nullptr;
    Toolbar* buttons = nullptr;
    CheckBox* tick = nullptr;
    TextControl* text = nullptr;
    ComboBox* list = nullptr;
    ListBox* entries = nullptr;
    TextGrid* cells = nullptr;
    TabControl* tabs = nullptr;
    PictureBox* drawing = nullptr;
};
ControlUses UsesOf(Control& control);

/// One of these uses of the control of that name; `verb` says in the LineFault what other kinds can't do: "be ticked".
template <class T>
T& ControlFor(T* ControlUses::*use, const Program& program, const std::string& name, const std::string& verb)
{
    if (T* control = UsesOf(ControlNamed(program, name)).*use) return *control;
    throw LineFault("\"" + name + "\" can't " + verb + ".");
}

/// A control and what is asked of it: "cmdView.Enabled", "frmCompaction.cmdView.Enabled"; property is empty
/// for a control alone. LineFault where there is no such control.
struct AskedProperty {
    Control& control;
    std::string property;
};
AskedProperty PropertyNamed(const Program& program, const std::string& asked);

/// Why a person could not use the control now: "hidden", "disabled" where the control or the tab that it stands on is,
/// "locked" where it takes text; nothing where a person could.
std::optional<std::string_view> WhyUnusable(Control& control);

}  // namespace terravane
