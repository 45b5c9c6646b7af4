// Undo and redo of what random hands do: to every sheet, thousands of acts, and letter by letter.
#include <vector>

#include "controls/list_cell_editor.h"
#include "controls/visit_control.h"
#include "journal/journal.h"
#include "properties/every_case.h"

namespace terravane::support {
namespace {

/// On each of 14 sheets: in the long run 10,000 in all.
int Acts()
{
    return Seeds() >= 20 ? 720 : 120;
}

class Undo : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, Undo, AllCases(), NameOf);

/// What a person answers for: readings, and what is chosen.
Texts Answered(const SheetBench& bench)
{
    Texts texts = bench.Entries();
    for (Control* control : bench.Sheet().Controls()) {
        const bool isSwitch = dynamic_cast<OptionButton*>(control) || dynamic_cast<CheckBox*>(control);
        if (isSwitch) texts[control->Name()] = TextAt({control});
        if (const auto* list = dynamic_cast<ListBox*>(control))
            for (int entry = 0; entry < static_cast<int>(list->List().size()); ++entry)
                texts[list->Name() + std::to_string(entry)] = TextAt({control, entry, 0});
    }
    return texts;
}

/// One act of a person on a control; many kinds take none.
struct Hands {
    SheetBench& bench;
    RandomReadings& hand;

    std::string AnyText() const { return hand.Chance(60) ? hand.Number(0, 200, 2) : hand.Slip(10); }

    void operator()(CellEditor& editor) const
    {
        const CellRange range = editor.Range();
        const int row = range.firstRow + hand.Pick(range.lastRow - range.firstRow + 1);
        const int column = range.firstColumn + hand.Pick(range.lastColumn - range.firstColumn + 1);
        if (!editor.Grid().Enabled() || !editor.OpenAt(row, column)) return;
        editor.Type(AnyText());
        editor.PressKey(hand.Chance(90) ? Key::Enter : Key::Esc);
    }
    void operator()(TextBox& box) const
    {
        if (box.Enabled() && !box.Locked() && box.Name() != "txtLabName") box.Type(AnyText());
    }
    void operator()(ComboBox& box) const
    {
        if (!box.List().empty() && hand.Chance(50)) return box.Choose(0);
        box.Type(AnyText());
    }
    void operator()(ListCellEditor&) const {}
    void operator()(DatePicker& picker) const
    {
        if (picker.Visible()) picker.Type(ShortDate(MakeMoment(2026, 1 + hand.Pick(12), 1 + hand.Pick(28))));
    }
    void operator()(OptionButton& option) const
    {
        if (option.Visible()) option.Press();
    }
    void operator()(CheckBox& box) const
    {
        if (box.Visible()) box.SetValue(!box.Value());
    }
    void operator()(ListBox& list) const
    {
        list.SetSelected(static_cast<std::size_t>(hand.Pick(static_cast<int>(list.List().size()))), hand.Chance(50));
    }
    void operator()(TextGrid& grid) const
    {
        if (grid.Rows() < 2) return;
        const MouseButton button = hand.Chance(30) ? MouseButton::Right : MouseButton::Left;
        grid.PressMouse(button, hand.Pick(grid.Rows()), hand.Pick(grid.Columns()));
    }
    void operator()(CommandButton& button) const
    {
        if (button.Visible() && button.Name() != "cmdView" && hand.Chance(30)) button.Press();
    }
    void operator()(TabControl& tabs) const
    {
        const int tab = hand.Pick(tabs.Count());
        if (tabs.TabEnabled(tab)) tabs.SetTab(tab);
    }
    void operator()(OneOf<Frame, Image, Label, MenuEntry, PictureBox, ScrollBar, StatusBar, Timer, Toolbar> auto&) const
    {}
};

void Act(SheetBench& bench, RandomReadings& hand)
{
    std::vector<Control*> controls;
    for (Control* control : bench.Sheet().Controls()) controls.push_back(control);
    VisitControl(Hands{bench, hand}, *controls[static_cast<std::size_t>(hand.Pick(static_cast<int>(controls.size())))]);
}

/// Acts until as many were kept as steps; states[n] is what stood there when n steps could be undone.
std::vector<Texts> ActAndRemember(SheetBench& bench, RandomReadings& hand, const Journal& journal)
{
    std::vector<Texts> states{Answered(bench)};
    const int acts = Acts();
    for (int tries = 0; tries < 40 * acts && static_cast<int>(journal.Undoable()) < acts; ++tries) {
        Act(bench, hand);
        states.resize(journal.Undoable() + 1);
        if (!states.empty()) states.back() = Answered(bench);
    }
    return states;
}

TEST_P(Undo, OfAllActsGivesEveryTextBackAndRedoGivesItAgain)
{
    RandomReadings hand(7, Hand::Hasty);
    SheetBench bench(GetParam());
    Journal journal(bench.TheProgram());
    const std::vector<Texts> states = ActAndRemember(bench, hand, journal);
    const auto acts = static_cast<std::size_t>(Acts());
    ASSERT_EQ(states.size(), acts + 1) << "Too few of the acts changed anything.";
    for (std::size_t step = acts; step-- > 0;) {
        ASSERT_TRUE(journal.Undo());
        ASSERT_EQ(Differences(states[step], Answered(bench)), "") << "back to step " << step;
    }
    EXPECT_FALSE(journal.Undo());
    for (std::size_t step = 1; step <= acts; ++step) {
        ASSERT_TRUE(journal.Redo());
        ASSERT_EQ(Differences(states[step], Answered(bench)), "") << "forth to step " << step;
    }
    EXPECT_FALSE(journal.Redo());
}

}  // namespace
}  // namespace terravane::support
