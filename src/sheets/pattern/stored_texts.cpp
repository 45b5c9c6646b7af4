// How a sheet's texts come from the project file and go back: one walk over the places of the table's columns
// serves both, so that what is saved is what is loaded.
#include "runtime/text.h"
#include "sheets/pattern/masks.h"
#include "sheets/pattern/test_sheet.h"
#include "store/statements.h"

namespace terravane {

namespace {

const TableSchema& TableOf(const TestSheet& sheet)
{
    return TableOf(sheet.program.CurrentTest, sheet.program.CurrentMaterial);
}

bool IsHead(const ColumnPlace& place)
{
    return place.kind == ColumnPlace::Kind::Head;
}

Cell CellOf(TestSheet& sheet, const ColumnPlace& place, int record)
{
    auto& grid = sheet.Get<TextGrid>(place.control);
    if (place.kind == ColumnPlace::Kind::GridRow) return grid(place.line, record);
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
    if (!place.loaded || place.control.empty()) return;
    auto& control = sheet.Get<TextControl>(place.control);
    control.SetText(&control == &sheet.DTPDate ? DateOr(sheet, stored) : stored);
}

void LoadRecord(TestSheet& sheet, const TablePass& pass, const jet::Recordset& records, int record)
{
    const TableSchema& table = TableOf(sheet);
    for (const ColumnPlace& place : pass.places) {
        const std::string& stored = records.Fields(table.ColumnName(place.suffix));
        if (IsHead(place)) {
            if (record == 1) LoadHead(sheet, place, stored);
        } else if (place.loaded && record >= place.firstLoaded) {
            CellOf(sheet, place, record) = sheet.TrimsLists() ? Trim(stored) : std::string_view(stored);
        }
    }
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
    for (int record = 1; record <= pass.records; ++record, records.MoveNext()) {
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
    if (place.control.empty()) return sheet.SavedChoice(place.suffix);
    if (IsHead(place)) return sheet.Get<TextControl>(place.control).Text();
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
    records.MoveFirst();
    sheet.LoadChoices(records);
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
