// How a sheet's texts come from the project file and go back: one walk over the places of the table's columns
// serves both, so that what is saved is what is loaded.
#include <algorithm>

#include "laboratory/masks.h"
#include "runtime/text.h"
#include "sheets/pattern/test_sheet.h"
#include "store/statements.h"

namespace terravane {

namespace {

using enum ColumnPlace::Kind;

const TableSchema& TableOf(const TestSheet& sheet)
{
    return TableOf(sheet.program.CurrentTest, sheet.program.CurrentMaterial);
}

Cell CellOf(TestSheet& sheet, const ColumnPlace& place, int record)
{
    auto& grid = sheet.Get<TextGrid>(place.control);
    if (place.kind == GridRow) return grid(place.line, record);
    return grid(record + place.rowShift, place.line);
}

void LoadHeadings(TestSheet& sheet)
{
    Program& program = sheet.program;
    const auto& head = Query(program, program.ProjectConnection, SelectAll("HEAD"));
    sheet.txtClient.SetText(head.Fields("project_Client"));
    sheet.txtProject.SetText(head.Fields("project_Name"));
    sheet.txtLocation.SetText(head.Fields("project_Location"));
    sheet.txtID.SetText(head.Fields("project_number"));
}

/// A date that was never saved is today's.
std::string DateOr(const TestSheet& sheet, const std::string& stored)
{
    return Trim(stored).empty() ? Format(sheet.program.Ask().Now(), kLongDate) : stored;
}

void LoadHead(TestSheet& sheet, const ColumnPlace& place, const std::string& stored)
{
    auto& control = sheet.Get<TextControl>(place.control);
    control.SetText(&control == &sheet.DTPDate ? DateOr(sheet, stored) : stored);
}

/// Behind the records that are saved only what another program wrote is loaded; the blanks of a new file stay out.
bool IsLoaded(const TablePass& pass, const ColumnPlace& place, int record, std::string_view stored)
{
    if (record <= pass.records) return record >= place.firstLoaded;
    return record <= place.lastLoaded && !Trim(stored).empty();
}

int LastLoaded(const TablePass& pass)
{
    const auto last = std::ranges::max_element(pass.places, {}, &ColumnPlace::lastLoaded);
    return std::max(pass.records, last->lastLoaded);
}

void LoadRecord(TestSheet& sheet, const TablePass& pass, const jet::Recordset& records, int record)
{
    const TableSchema& table = TableOf(sheet);
    for (const ColumnPlace& place : pass.places) {
        const std::string& stored = records.Fields(table.ColumnName(place.suffix));
        if (!place.loaded || place.kind == Choice) continue;
        if (place.kind == Head) {
            if (record == 1) LoadHead(sheet, place, stored);
        } else if (IsLoaded(pass, place, record, stored)) {
            CellOf(sheet, place, record) = sheet.TrimsLists() ? Trim(stored) : std::string_view(stored);
        }
    }
}

/// From a copy of its text: the click of a choice may query anew, which takes the place of the records.
void LoadChoices(TestSheet& sheet, jet::Recordset& records)
{
    records.MoveFirst();
    const TableSchema& table = TableOf(sheet);
    for (const TablePass& pass : sheet.TablePasses()) {
        const auto choice = std::ranges::find(pass.places, Choice, &ColumnPlace::kind);
        if (choice == pass.places.end()) continue;
        const std::string stored(Trim(records.Fields(table.ColumnName(choice->suffix))));
        return sheet.LoadChoice(stored);
    }
}

/// Of the option that is chosen; a sheet without a choice stores none.
std::string SavedChoice(const TestSheet& sheet)
{
    const auto options = sheet.StoredOptions();
    const auto chosen = std::ranges::find_if(
        options, [&](const StoredOption& of) { return sheet.Get<OptionButton>(of.option).Value(); });
    return chosen == options.end() ? std::string() : std::string(chosen->stored);
}

/// Whether a growing list ends before this record.
bool IsListEnd(const TestSheet& sheet, const TablePass& pass, const jet::Recordset& records)
{
    if (pass.list.empty()) return false;
    return Trim(records.Fields(TableOf(sheet).ColumnName(pass.places.front().suffix))).empty();
}

void LoadPass(TestSheet& sheet, const TablePass& pass, jet::Recordset& records)
{
    records.MoveFirst();
    const int last = LastLoaded(pass);
    for (int record = 1; record <= last; ++record, records.MoveNext()) {
        if (IsListEnd(sheet, pass, records)) return;
        if (!pass.list.empty()) sheet.Get<TextGrid>(pass.list).SetRows(record);
        LoadRecord(sheet, pass, records, record);
    }
}

int RecordsToSave(const TestSheet& sheet, const TablePass& pass)
{
    return pass.list.empty() ? pass.records : sheet.Get<TextGrid>(pass.list).Rows();
}

std::string SavedText(TestSheet& sheet, const ColumnPlace& place, int record)
{
    if (place.kind == Choice) return SavedChoice(sheet);
    if (place.kind == Head) return sheet.Get<TextControl>(place.control).Text();
    return CellOf(sheet, place, record).Text();
}

void SaveRecord(TestSheet& sheet, const TablePass& pass, int record)
{
    const TableSchema& table = TableOf(sheet);
    std::vector<Assignment> assignments;
    for (const ColumnPlace& place : pass.places) {
        assignments.push_back({table.ColumnName(place.suffix), SavedText(sheet, place, record)});
    }
    Execute(sheet.program, sheet.program.ProjectConnection, UpdateRow(table, assignments, record));
}

}  // namespace

void LoadTestSheet(TestSheet& sheet)
{
    Program& program = sheet.program;
    OpenProjectConnection(program);
    LoadHeadings(sheet);
    auto& records = Query(program, program.ProjectConnection, SelectAll(TableOf(sheet).name));
    for (const TablePass& pass : sheet.TablePasses()) LoadPass(sheet, pass, records);
    LoadChoices(sheet, records);
}

void TestSheet::LoadChoice(std::string_view stored)
{
    const auto option = std::ranges::find(StoredOptions(), stored, &StoredOption::stored);
    if (option != StoredOptions().end()) Get<OptionButton>(option->option).Choose();
}

void SaveTestSheet(TestSheet& sheet)
{
    Program& program = sheet.program;
    OpenProjectConnection(program);
    Execute(program, program.ProjectConnection,
            UpdateHead(sheet.txtClient.Text(), sheet.txtProject.Text(), sheet.txtLocation.Text(), sheet.txtID.Text()));
    for (const TablePass& pass : sheet.TablePasses()) {
        const int records = RecordsToSave(sheet, pass);
        for (int record = 1; record <= records; ++record) SaveRecord(sheet, pass, record);
    }
}

}  // namespace terravane
