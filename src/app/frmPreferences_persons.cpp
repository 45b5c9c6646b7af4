// The persons: a grid that is not typed into, with a box over its names and a list over its positions. Only Enter
// writes to a cell, only Save to the store.
#include "app/frmPreferences.h"
#include "runtime/text.h"
#include "store/brand_statements.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr double kNumberWidth = 800, kNameWidth = 3200;  // twips
constexpr double kGridWidth = 7200, kScrollWidth = 300;

const Message kOneApproverOnly{"Please input only one approver.", "Inform", MessageStyle::Information,
                               MessageButtons::Ok};

}  // namespace

void frmPreferences::PreparePersonGrid()
{
    mshPerson.SetColumnTitles({"No.", "Name - Surname", "Position"});
    for (int row = 1; row <= kPersons; ++row) mshPerson(row, person::kNumber) = " " + std::to_string(row);
    mshPerson.SetColumnWidth(person::kNumber, kNumberWidth);
    mshPerson.SetColumnWidth(person::kName, kNameWidth);
    mshPerson.SetColumnWidth(person::kPosition, kGridWidth - kNumberWidth - kNameWidth - kScrollWidth);
}

void frmPreferences::LoadPersons()
{
    jet::Recordset persons = Query(program, program.BrandConnection, SelectAll("PERSON"));
    for (int row = 1; row <= kPersons; ++row, persons.MoveNext()) {
        mshPerson(row, person::kName) = persons.Fields("person_name");
        mshPerson(row, person::kPosition) = persons.Fields("person_position");
    }
}

/// The titles stay as they are: a click on them opens nothing.
void frmPreferences::mshPerson_Click(int row, int column)
{
    if (person::kPositions.Holds(row, column) || person::kNames.Holds(row, column)) OpenEditor(row, column);
}

/// The editor of the column, over the cell, with the cell's text; the other one is hidden.
void frmPreferences::OpenEditor(int row, int column)
{
    if (column == person::kPosition) {
        cboList.OpenAt(row, column);
        cboList.SelectAll();
    } else {
        txtData.OpenAt(row, column);
        txtData.SelectAll();
    }
}

/// Enter: the cell takes the text, the editor goes on to the next row, from the last one to the first.
void frmPreferences::CommitAndGoOn(std::string_view text)
{
    const int row = mshPerson.Row(), column = mshPerson.Column();
    mshPerson(row, column) = Trim(text);
    OpenEditor(row < kPersons ? row + 1 : 1, column);
}

bool frmPreferences::cboList_KeyDown(Key key)
{
    if (key == Key::Enter) CommitAndGoOn(cboList.Text());
    if (key == Key::Esc) Frame7_Click();
    return key == Key::Enter || key == Key::Esc;
}

/// Up and Down leave what was typed unwritten.
bool frmPreferences::txtData_KeyDown(Key key)
{
    const int row = mshPerson.Row();
    if (key == Key::Enter) CommitAndGoOn(txtData.Text());
    if (key == Key::Esc) Frame7_Click();
    if (key == Key::Up && row >= 2) txtData.OpenAt(row - 1, person::kName);
    if (key == Key::Down && row < kPersons) txtData.OpenAt(row + 1, person::kName);
    return key != Key::Left && key != Key::Right && key != Key::Tab;
}

void frmPreferences::HidePersonEditors()
{
    txtData.Hide();
    cboList.Hide();
}

void frmPreferences::Frame7_Click()
{
    HidePersonEditors();
    cmdPerson.SetFocus();
}

int frmPreferences::Approvers() const
{
    int count = 0;
    for (int row = 1; row <= kPersons; ++row) count += Trim(mshPerson(row, person::kPosition)) == "Approver" ? 1 : 0;
    return count;
}

void frmPreferences::cmdPerson_Click()
{
    if (Approvers() > 1) {
        program.Ask().Show(kOneApproverOnly);
        return;
    }
    for (int row = 1; row <= kPersons; ++row) {
        Write(UpdatePerson(row, mshPerson(row, person::kName), mshPerson(row, person::kPosition)));
    }
    program.FlushStores();
    keptPersons_ = PersonsShown();
}

std::vector<std::string> frmPreferences::PersonsShown() const
{
    std::vector<std::string> persons;
    for (int row = 1; row <= kPersons; ++row) {
        for (const int column : {person::kName, person::kPosition}) persons.push_back(mshPerson(row, column));
    }
    return persons;
}

bool frmPreferences::IsTypingPerson() const
{
    const auto differs = [this](const TextControl& editor) {
        return editor.Visible() && editor.Text() != mshPerson(mshPerson.Row(), mshPerson.Column());
    };
    return differs(txtData) || differs(cboList);
}

void frmPreferences::cmdClear_Click()
{
    HidePersonEditors();  // they would show what is no longer in the cells
    for (int row = 1; row <= kPersons; ++row) mshPerson(row, person::kName) = mshPerson(row, person::kPosition) = "";
}

}  // namespace terravane
