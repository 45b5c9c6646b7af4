/// Who changes the texts of a sheet: told by what was set off.
#pragma once

#include <string_view>

#include "controls/form.h"

namespace terravane {

enum class Actor {
    Person,   // typed, chose, pressed, erased
    Command,  // a command of the method, a menu, a toolbar, a tab: what it writes follows from what was typed
    Load,     // the opening of the sheet
    Journal,  // undo and redo
    Timer     // the clock
};

/// Of an event of the form: "frmCompaction.MSHWt_MouseDown". What only prepares the typing, such as the list of sieves,
/// is a person's. An event of another form is a command.
Actor ActorOf(std::string_view event, const Form& form);

/// The control of the event; nullptr where it is none of the form's.
const Control* ControlOf(std::string_view event, const Form& form);

}  // namespace terravane
