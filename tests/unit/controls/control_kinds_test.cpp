// Every control as what it is, and the events that it was declared with.
#include "controls/control_kinds.h"

#include <gtest/gtest.h>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"
#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

/// One control of each kind, and an editor with keys of its own.
struct AllKindsForm : PlainForm {
    TextBox box{*this, "box"};
    ComboBox combo{*this, "combo"};
    DatePicker date{*this, "date"};
    CommandButton command{*this, "command"};
    OptionButton option{*this, "option", "", "group"};
    CheckBox check{*this, "check", ""};
    ListBox list{*this, "list", {}};
    Label label{*this, "label"};
    Frame frame{*this, "frame"};
    Image image{*this, "image"};
    TabControl tabs{*this, "tabs", {}};
    Toolbar bar{*this, "bar", {}};
    StatusBar status{*this, "status", 1};
    MenuEntry entry{*this, "entry", ""};
    Timer timer{*this, "timer", std::chrono::milliseconds(1)};
    ScrollBar scroll{*this, "scroll"};
    PictureBox picture{*this, "picture", 0, 0, 1, 1};
    TextGrid grid{*this, "grid", 1, 1};
    CellEditor editor{*this, "editor", grid, [] { return CellRange{0, 0, 0, 0}; }};
    ListCellEditor listEditor{*this, "listEditor", grid, {0, 0, 0, 0}, {}};
};

struct NameOfKind {
    std::string operator()(const TextBox&) const { return "box"; }
    std::string operator()(const ComboBox&) const { return "combo"; }
    std::string operator()(const DatePicker&) const { return "date"; }
    std::string operator()(const CommandButton&) const { return "command"; }
    std::string operator()(const OptionButton&) const { return "option"; }
    std::string operator()(const CheckBox&) const { return "check"; }
    std::string operator()(const ListBox&) const { return "list"; }
    std::string operator()(const Label&) const { return "label"; }
    std::string operator()(const Frame&) const { return "frame"; }
    std::string operator()(const Image&) const { return "image"; }
    std::string operator()(const TabControl&) const { return "tabs"; }
    std::string operator()(const Toolbar&) const { return "bar"; }
    std::string operator()(const StatusBar&) const { return "status"; }
    std::string operator()(const MenuEntry&) const { return "entry"; }
    std::string operator()(const Timer&) const { return "timer"; }
    std::string operator()(const ScrollBar&) const { return "scroll"; }
    std::string operator()(const PictureBox&) const { return "picture"; }
    std::string operator()(const TextGrid&) const { return "grid"; }
    std::string operator()(const CellEditor&) const { return "editor"; }
    std::string operator()(const ListCellEditor&) const { return "listEditor"; }
};

TEST(ControlKinds, EveryControlIsVisitedAsWhatItIs)
{
    const AllKindsForm form;
    std::size_t visited = 0;
    for (const Control* control : form.Controls()) {
        EXPECT_EQ(VisitControl(NameOfKind{}, *control), control->Name());
        ++visited;
    }
    EXPECT_EQ(visited, std::variant_size_v<AnyControl>) << "A kind has no control on this form.";
}

TEST(ControlKinds, AFormGivesTheControlsOfOneKind)
{
    AllKindsForm form;
    TextBox second(form, "second");
    EXPECT_EQ(ControlsOf<TextBox>(form), (std::vector<TextBox*>{&form.box, &second}));
    EXPECT_EQ(ControlsOf<ComboBox>(form), (std::vector<ComboBox*>{&form.combo}))
        << "A list over the cells of a grid is a kind of its own.";
}

/// Each control with all the events of its kind.
struct WiredForm : PlainForm {
    std::string seen;
    Handler Notes(std::string word)
    {
        return [this, word] { seen += word + " "; };
    }
    KeyHandler TakesKey()
    {
        return [this](Key) {
            seen += "key ";
            return true;
        };
    }

    CommandButton command{
        *this, "command", "", {.Click = Notes("click"), .MouseMove = Notes("over"), .MouseLeave = Notes("off")}};
    OptionButton option{*this, "option", "", "group", {.Click = Notes("option")}};
    CheckBox check{*this, "check", "", {.Click = Notes("check")}};
    ListBox list{*this, "list", {"one"}, {.Click = Notes("list")}};
    Label label{*this, "label", "", {.Click = Notes("label")}};
    MenuEntry entry{*this, "entry", "", "", {.Click = Notes("entry")}};
    Timer timer{*this, "timer", std::chrono::milliseconds(1), {.Ticked = Notes("tick")}};
    TextBox box{
        *this,
        "box",
        "",
        {.Change = Notes("change"), .KeyPress = TakesKey(), .GotFocus = Notes("in"), .LostFocus = Notes("out")}};
    ComboBox combo{*this,
                   "combo",
                   "",
                   {"one"},
                   {.Click = Notes("choice"),
                    .Change = Notes("change"),
                    .KeyPress = TakesKey(),
                    .GotFocus = Notes("in"),
                    .LostFocus = Notes("out")}};
};

TEST(ControlEvents, GivenWhereAControlIsDeclaredRun)
{
    WiredForm form;
    form.command.Press();
    form.command.MouseMove();
    form.command.MouseLeave();
    form.option.Choose();
    form.check.SetValue(true);
    form.list.SetSelected(0, true);
    form.label.Press();
    form.entry.Press();
    form.timer.Tick();
    EXPECT_EQ(form.seen, "click over off option check list label entry tick ");
}

TEST(ControlEvents, OfATextRun)
{
    for (const auto* name : {"box", "combo"}) {
        WiredForm form;
        auto& control = form.Get<TextControl>(name);
        control.SetFocus();
        control.Type("1");
        EXPECT_TRUE(control.PressKey(Key::Enter));
        form.command.SetFocus();
        EXPECT_EQ(form.seen, "in change key out ") << name;
    }
    WiredForm form;
    form.combo.Choose(0);
    EXPECT_EQ(form.seen, "choice ");
}

}  // namespace
}  // namespace terravane
