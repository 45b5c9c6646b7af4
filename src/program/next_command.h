/// Which command of a sheet comes next, by one rule for all sheets: the first of the method's order that was not
/// pressed since something was typed, Print Preview behind them. Knows no window.
#pragma once

#include <string_view>
#include <vector>

#include "controls/choice_controls.h"
#include "controls/form.h"
#include "controls/furniture.h"
#include "laboratory/description.h"

namespace terravane {

/// The description of a form's sheet; nullptr of a form that is none.
const laboratory::Sheet* SheetOfForm(std::string_view form);

class NextCommand {
  public:
    /// A form that is no test sheet has no next command.
    explicit NextCommand(Form& form);

    /// Something that the commands read was typed or chosen in the control; what only heads the sheet, a name or a
    /// date, does not count.
    void Typed(const Control& control);
    /// The command was pressed and did its work.
    void Done(const Control& command);

    /// nullptr where there is none. A command that can't be pressed is passed over.
    CommandButton* Find() const;

  private:
    bool CanBePressed(const CommandButton& command) const;

    Form& form_;
    std::vector<CommandButton*> commands_;
    std::size_t done_ = 0;  // so many of them, from the first
};

}  // namespace terravane
