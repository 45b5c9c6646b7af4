// What a person does at the windows. Each is one command of the program: it runs inside the event boundary,
// and its changes are in the files when it ends.
#include <algorithm>
#include <array>

#include "app/mdiBack.h"
#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"
#include "runtime/text.h"
#include "script/commands.h"
#include "script/script_controls.h"

namespace terravane {

namespace {

void Refuse(Session& session, const std::string& asked, std::string_view why)
{
    session.answers.Write(RefusedAnswer(asked, why));
}

/// Runs what a person does to a control, or answers why no person could.
void Use(Session& session, const std::string& asked, Control& control, const Handler& act)
{
    if (const auto why = WhyUnusable(control)) return Refuse(session, asked, *why);
    session.program.Run(control.Owner().Name() + "." + control.Name(), act);
}

/// The same for one that takes the focus first, as it does under a person's mouse or keys.
void Enter(Session& session, const std::string& asked, Control& control, const Handler& act)
{
    Use(session, asked, control, [&] {
        control.SetFocus();
        act();
    });
}

/// The menu and the toolbar of the tests: entries by name, dropped items by key.
void RunMenu(Session& session, Words words)
{
    const std::string& key = words[0];
    auto& frame = session.program.Get<mdiBack>(kFrameName);
    Control* control = frame.Find(key);
    if (MenuEntry* entry = control ? UsesOf(*control).entry : nullptr) {
        return Use(session, key, *entry, [entry] { entry->Press(); });
    }
    const auto hasKey = [&key](const ToolButton& button) {
        return std::ranges::find(button.items, key, &ToolButton::key) != button.items.end();
    };
    if (std::ranges::none_of(frame.tbrLab.Buttons(), hasKey)) {
        throw LineFault("There is no menu entry \"" + key + "\".");
    }
    Use(session, key, frame.tbrLab, [&] { frame.tbrLab.PressItem(key); });
}

void RunClick(Session& session, Words words)
{
    Control& control = ControlNamed(session.program, words[0]);
    const ControlUses uses = UsesOf(control);
    if (!uses.click) throw LineFault("\"" + words[0] + "\" can't be clicked.");
    uses.clickTakesFocus ? Enter(session, words[0], control, uses.click) : Use(session, words[0], control, uses.click);
}

/// The number, from 1, of a bar's button by that number or by its key; nothing where it has none such.
std::optional<int> ButtonOf(const Toolbar& bar, const std::string& word)
{
    const auto& buttons = bar.Buttons();
    if (const auto number = ReadWholeNumber(word)) {
        const bool isThere = *number >= 1 && *number <= static_cast<int>(buttons.size());
        return isThere ? number : std::nullopt;
    }
    const auto found = std::ranges::find(buttons, word, &ToolButton::key);
    if (found == buttons.end()) return std::nullopt;
    return static_cast<int>(found - buttons.begin()) + 1;
}

void RunTool(Session& session, Words words)
{
    auto& bar = ControlFor(&ControlUses::buttons, session.program, words[0], "take a button's number");
    const auto number = ButtonOf(bar, words[1]);
    if (!number) throw LineFault("\"" + words[0] + "\" has no button " + words[1] + ".");
    if (!bar.Button(*number).enabled) return Refuse(session, words[0], "disabled");
    Use(session, words[0], bar, [&] { bar.Press(*number); });
}

void RunCheck(Session& session, Words words)
{
    auto& box = ControlFor(&ControlUses::tick, session.program, words[0], "be ticked");
    const bool on = OnOrOff(words[1]);
    Enter(session, words[0], box, [&] { box.SetValue(on); });
}

void RunSet(Session& session, Words words)
{
    auto& box = ControlFor(&ControlUses::text, session.program, words[0], "take a text");
    Enter(session, words[0], box, [&] { box.Type(words[1]); });
}

/// The place of an entry by its text, blanks at the ends aside. Error 5 where there is none.
std::size_t EntryOf(const std::vector<std::string>& list, std::string_view text)
{
    const auto found = std::ranges::find_if(list, [text](const auto& entry) { return Trim(entry) == Trim(text); });
    if (found == list.end()) {
        throw RuntimeError(error::kInvalidProcedureCall, "There is no entry \"" + std::string(text) + "\"");
    }
    return static_cast<std::size_t>(found - list.begin());
}

void RunChoose(Session& session, Words words)
{
    auto& box = ControlFor(&ControlUses::list, session.program, words[0], "choose from a list");
    Enter(session, words[0], box, [&] { box.Choose(EntryOf(box.List(), words[1])); });
}

void RunSelect(Session& session, Words words)
{
    auto& list = ControlFor(&ControlUses::entries, session.program, words[0], "select entries");
    const bool on = OnOrOff(words[2]);
    Enter(session, words[0], list, [&] { list.SetSelected(EntryOf(list.List(), words[1]), on); });
}

TextGrid& GridNamed(Session& session, const std::string& name)
{
    return ControlFor(&ControlUses::cells, session.program, name, "be asked for a cell");
}

/// The grid's editor that a predicate holds for; several may share a grid.
template <class Editor, class Predicate>
Editor* EditorOver(TextGrid& grid, Predicate holds)
{
    for (Editor* editor : ControlsOf<Editor>(grid.Owner())) {
        if (&editor->Grid() == &grid && holds(*editor)) return editor;
    }
    return nullptr;
}

template <class Editor>
void TypeInto(Session& session, Words words, TextGrid& grid, Editor* editor)
{
    const bool isOpen = !WhyUnusable(grid);
    if (isOpen && (!editor || editor->Locked())) return Refuse(session, words[0], "locked");
    Use(session, words[0], grid, [&] {
        editor->OpenAt(WholeNumber(words[1], "a row"), WholeNumber(words[2], "a column"));
        editor->Type(words[3]);
        editor->PressKey(Key::Enter);
    });
}

void RunType(Session& session, Words words)
{
    TextGrid& grid = GridNamed(session, words[0]);
    const int row = WholeNumber(words[1], "a row"), column = WholeNumber(words[2], "a column");
    const auto stands = [&](const auto& over) {
        return over.Range().Holds(row, column) && !grid.IsCalculated(row, column);
    };
    if (auto* list = EditorOver<ListCellEditor>(grid, stands)) return TypeInto(session, words, grid, list);
    TypeInto(session, words, grid, EditorOver<CellEditor>(grid, stands));
}

void RunPut(Session& session, Words words)
{
    TextGrid& grid = GridNamed(session, words[0]);
    const int row = WholeNumber(words[1], "a row"), column = WholeNumber(words[2], "a column");
    grid(row, column) = words[3];
}

struct NamedKey {
    std::string_view name;
    Key key;
};

constexpr std::array kKeys{
    NamedKey{"Enter", Key::Enter}, NamedKey{"Esc", Key::Esc},   NamedKey{"Up", Key::Up},
    NamedKey{"Down", Key::Down},   NamedKey{"Left", Key::Left}, NamedKey{"Right", Key::Right},
    NamedKey{"Tab", Key::Tab},
};

Key KeyNamed(const std::string& name)
{
    const auto found = std::ranges::find_if(kKeys, [&name](const NamedKey& key) { return SameName(key.name, name); });
    if (found == kKeys.end()) throw LineFault("There is no key \"" + name + "\".");
    return found->key;
}

/// What takes the keys of a control: a grid's go to the editor that stands on it, null where none does.
Control* KeyTaker(Control& control)
{
    TextGrid* grid = UsesOf(control).cells;
    if (!grid) return &control;
    const auto stands = [](const Control& editor) { return editor.Visible(); };
    if (auto* list = EditorOver<ListCellEditor>(*grid, stands)) return list;
    return EditorOver<CellEditor>(*grid, stands);
}

void RunKey(Session& session, Words words)
{
    Control* taker = KeyTaker(ControlNamed(session.program, words[0]));
    const Key key = KeyNamed(words[1]);
    if (!taker) return Refuse(session, words[0], "hidden");
    Enter(session, words[0], *taker, [&] { taker->PressKey(key); });
}

MouseButton ButtonNamed(const std::string& name)
{
    if (name != "left" && name != "right") throw LineFault("There is no mouse button \"" + name + "\".");
    return name == "left" ? MouseButton::Left : MouseButton::Right;
}

void RunMouse(Session& session, Words words)
{
    TextGrid& grid = GridNamed(session, words[0]);
    const MouseButton button = ButtonNamed(words[1]);
    const int row = WholeNumber(words[2], "a row"), column = WholeNumber(words[3], "a column");
    Use(session, words[0], grid, [&] { grid.PressMouse(button, row, column); });
}

void RunTab(Session& session, Words words)
{
    auto& tabs = ControlFor(&ControlUses::tabs, session.program, words[0], "show a tab");
    const int tab = WholeNumber(words[1], "a tab");
    const bool isThere = tab >= 0 && tab < tabs.Count();
    if (isThere && !tabs.TabEnabled(tab)) return Refuse(session, words[0], "disabled");
    Use(session, words[0], tabs, [&] { tabs.SetTab(tab); });
}

void RunClose(Session& session, Words)
{
    Program& program = session.program;
    if (program.ShownForms().empty()) throw LineFault("No form is shown.");
    const std::string name = program.ShownForms().back().form->Name();
    program.Run(name + ".Form_Unload", [&] { program.Unload(name); });
}

constexpr std::array kActingCommands{
    Command{"menu", 1, 1, RunMenu},     Command{"click", 1, 1, RunClick}, Command{"tool", 2, 2, RunTool},
    Command{"check", 2, 2, RunCheck},   Command{"set", 2, 2, RunSet},     Command{"choose", 2, 2, RunChoose},
    Command{"select", 3, 3, RunSelect}, Command{"type", 4, 4, RunType},   Command{"put", 4, 4, RunPut},
    Command{"key", 2, 2, RunKey},       Command{"mouse", 4, 4, RunMouse}, Command{"tab", 2, 2, RunTab},
    Command{"close", 0, 0, RunClose},
};

}  // namespace

std::span<const Command> ActingCommands()
{
    return kActingCommands;
}

}  // namespace terravane
