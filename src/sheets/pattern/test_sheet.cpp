#include "sheets/pattern/test_sheet.h"

#include <utility>

#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace terravane {

TestSheet::TestSheet(Program& owner, const laboratory::Sheet& sheet)
    : Form(owner, std::string(sheet.form), std::string(sheet.caption), WindowKind::Sheet),
      program(owner),
      described(sheet),
      SSTData(*this, "SSTData", {sheet.tabs.begin(), sheet.tabs.end()},
              {.TabChanged = [this](int previousTab) { SSTData_Click(previousTab); }})
{
    imgMouse.SetVisible(false);
    for (Control* pointed : std::initializer_list<Control*>{&cmdCal, &cmdView, &tblMenu})
        pointed->SetMousePointer(Pointer::Hand);
    txtLabName.SetForeColor(kWhite);
    RestoreCommandColours();
}

void TestSheet::MakeOtherBoxes()
{
    for (const laboratory::Box& box : described.boxes)
        if (!Find(box.control)) otherBoxes_.emplace_back(*this, box);
}

double TestSheet::Number(const laboratory::Box& box) const
{
    return Val(Get<TextControl>(box.control).Text());
}

void TestSheet::Form_Load()
{
    MakeOtherBoxes();
    DTPDate.SetText(Format(program.Ask().Now(), kLongDate));
    FillNameLists(program, cboTest, cboCheck);
}

void TestSheet::cmdView_Click()
{
    program.Show("frmPreview", Modality::Modal);
}

void TestSheet::tblMenu_ButtonClick(int number)
{
    if (number == 1) {
        SaveTestSheet(*this);
        TellSaved();
    }
    if (number == 2) program.Unload(Name());
}

/// Told when the file has taken it, which is at the end of the command.
void TestSheet::TellSaved() const
{
    program.notices.Tell({.sentence = "Saved at " + Format(program.Ask().Now(), kTimeOfDay) + ".",
                          .subject = Name() + ".tblMenu_ButtonClick"});
}

void TestSheet::SSTData_Click(int)
{
    HideEditors(*this);
}

void TestSheet::Timer1_Timer()
{
    stbDes.SetPanel(kClockPanel, Format(program.Ask().Now(), kClock));
}

void TestSheet::RestoreCommandColours()
{
    cmdCal.SetBackColor(kCommandColour);
    cmdView.SetBackColor(kCommandColour);
}

void TestSheet::ChainFocus(std::span<const std::string_view> way)
{
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
        auto& from = Get<TextControl>(way[i]);
        auto& to = Get<TextControl>(way[i + 1]);
        from.KeyPress = [&to](Key key) {
            if (key != Key::Enter) return false;
            to.SetFocus();
            to.SelectAll();
            return true;
        };
        from.GotFocus = to.GotFocus = HidesEditors();
    }
}

bool TestSheet::AsksToErase(std::string_view what) const
{
    const Message question{"คุณต้องการลบข้อมูล" + std::string(what) + "ใช่หรือไม่?", "ยืนยันการลบ", MessageStyle::Plain,
                           MessageButtons::OkCancel};
    return program.Ask().Show(question) == MessageAnswer::Ok;
}

void TestSheet::Post(const std::vector<PostedText>& results)
{
    const std::string emptied = PostedValueEmptiedBy(program, results);
    PostSummary(program, results);
    Tell(emptied.empty() ? std::string() : "An empty result took the place of the posted value " + emptied + ".");
}

void TestSheet::Tell(std::string sentence)
{
    const std::string subject = Name() + ".Tell";
    if (sentence.empty())
        program.notices.Settle(subject);
    else
        program.notices.Tell({.kind = NoticeKind::Attention, .sentence = sentence, .subject = subject});
    stbDes.SetPanel(kNoticePanel, std::move(sentence));
}

StoredResults TestSheet::ResultsOf(Test test) const
{
    OpenProjectConnection(program);
    const TableSchema& table = TableOf(test, program.CurrentMaterial);
    return {table, Query(program, program.ProjectConnection, SelectAll(table.name))};
}

void FillNameLists(Program& program, ComboBox& testerBox, ComboBox& checkerBox)
{
    program.BrandFolder = program.BrandFolderNow();
    OpenBrandConnection(program);
    testerBox.Clear();
    checkerBox.Clear();
    jet::Recordset persons = Query(program, program.BrandConnection, SelectAll("PERSON"));
    for (int row = 1; row <= kPersons; ++row, persons.MoveNext()) {
        const auto position = Trim(persons.Fields("person_position"));
        if (position == "Tester") testerBox.AddItem(persons.Fields("person_name"));
        if (position == "Checker") checkerBox.AddItem(persons.Fields("person_name"));
    }
}

}  // namespace terravane
