// What a form's controls tell whoever keeps a record of their texts.
#include "controls/changes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

struct Record : ControlListener {
    std::vector<std::string> told;

    void TextChanged(const TextChange& change) override
    {
        std::string place = change.control.Name();
        if (change.row >= 0) place += "(" + std::to_string(change.row) + "," + std::to_string(change.column) + ")";
        told.push_back(place + ": " + std::string(change.before) + " > " + std::string(change.after));
    }
    void RowsChanged(Control& control, int before, int after) override
    {
        told.push_back(control.Name() + " rows: " + std::to_string(before) + " > " + std::to_string(after));
    }
};
using Told = std::vector<std::string>;

struct RecordedForm : PlainForm {
    TextBox soil{*this, "soil", "", "red"};
    ComboBox tester{*this, "tester", "", std::vector<std::string>{"A", "B"}};
    DatePicker date{*this, "date"};
    OptionButton dry{*this, "dry", "", "method", true};
    OptionButton wet{*this, "wet", "", "method"};
    CheckBox smooth{*this, "smooth", ""};
    ListBox sieves{*this, "sieves", {"#4", "#10"}};
    TextGrid grid{*this, "grid", 2, 2};
    CellEditor editor{*this, "editor", grid, [] { return CellRange{1, 1, 1, 1}; }};
    Record record;

    RecordedForm() { ListenToTexts(record); }
};

TEST(Changes, TellTheTextBeforeAndTheTextAfterOfEveryKind)
{
    RecordedForm form;
    form.soil.Type("grey");
    form.tester.Choose(1);
    form.date.SetText("21/11/2026");
    form.grid(1, 1) = "85.32";
    form.grid(1, 1) = "85.32";
    form.smooth.SetValue(true);
    form.sieves.SetSelected(1, true);
    EXPECT_EQ(form.record.told, (Told{"soil: red > grey", "tester:  > B", "date: 01/01/1970 > 21/11/2026",
                                      "grid(1,1):  > 85.32", "smooth: off > on", "sieves(1,0): off > on"}));
}

TEST(Changes, TellWhichOptionGoesOffBeforeTheOtherGoesOn)
{
    RecordedForm form;
    form.wet.Press();
    EXPECT_EQ(form.record.told, (Told{"dry: on > off", "wet: off > on"}));
}

TEST(Changes, TellTheTextsOfRowsThatGoAwayBeforeTheRowsGo)
{
    RecordedForm form;
    form.grid(1, 0) = "a";
    form.record.told.clear();
    form.grid.SetRows(1);
    form.grid.AppendRow({"", "b"});
    EXPECT_EQ(form.record.told, (Told{"grid(1,0): a > ", "grid rows: 2 > 1", "grid rows: 1 > 2", "grid(1,1):  > b"}));
}

TEST(Changes, TellWhatTheEditorCommitsButNotWhatIsTypedIntoIt)
{
    RecordedForm form;
    form.editor.OpenAt(1, 1);
    form.editor.Type(" 8.5 ");
    EXPECT_EQ(form.record.told, Told{});
    form.editor.PressKey(Key::Enter);
    EXPECT_EQ(form.record.told, Told{"grid(1,1):  > 8.5"});
}

TEST(Changes, AreToldToNobodyWhoIsTakenOff)
{
    RecordedForm form;
    form.StopListening(form.record);
    form.soil.Type("grey");
    EXPECT_EQ(form.record.told, Told{});
}

}  // namespace
}  // namespace terravane
