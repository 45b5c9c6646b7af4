#include "journal/act.h"

#include <algorithm>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"
#include "program/next_command.h"

namespace terravane {

namespace {

constexpr std::string_view kPreview = "cmdView";

struct ActorAt {
    const laboratory::Sheet* sheet;

    Actor operator()(const CommandButton& button) const
    {
        const bool isOfMethod = !sheet || button.Name() == kPreview ||
                                std::ranges::find(sheet->commands, button.Name()) != sheet->commands.end();
        return isOfMethod ? Actor::Command : Actor::Person;
    }
    Actor operator()(const OneOf<MenuEntry, Toolbar, TabControl, ScrollBar, StatusBar, Image> auto&) const
    {
        return Actor::Command;
    }
    Actor operator()(const Timer&) const { return Actor::Timer; }
    Actor operator()(const OneOf<TextBox, ComboBox, DatePicker, CellEditor, ListCellEditor, TextGrid, OptionButton,
                                 CheckBox, ListBox, Label, Frame, PictureBox> auto&) const
    {
        return Actor::Person;
    }
};

}  // namespace

const Control* ControlOf(std::string_view event, const Form& form)
{
    const auto point = event.find('.');
    if (point == std::string_view::npos || event.substr(0, point) != form.Name()) return nullptr;
    const std::string_view behind = event.substr(point + 1);
    return form.Find(behind.substr(0, behind.rfind('_')));
}

Actor ActorOf(std::string_view event, const Form& form)
{
    const Control* control = ControlOf(event, form);
    return control ? VisitControl(ActorAt{SheetOfForm(form.Name())}, *control) : Actor::Command;
}

}  // namespace terravane
