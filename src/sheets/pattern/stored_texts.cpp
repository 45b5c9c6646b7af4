// How a sheet's texts come from the project file and go back: one walk over the columns of its table serves both, so
// that what is saved is what is loaded.
#include <algorithm>
#include <iterator>

#include "laboratory/general_data.h"
#include "laboratory/masks.h"
#include "laboratory/tests.h"
#include "runtime/text.h"
#include "sheets/pattern/test_sheet.h"
#include "store/statements.h"

namespace terravane {

namespace {

using laboratory::KeptColumn;
using enum KeptColumn::Kind;

const TableSchema& TableOf(const TestSheet& sheet)
{
    return TableOf(sheet.program.CurrentTest, sheet.program.CurrentMaterial);
}

/// Columns that are saved by one statement a record and loaded in one walk over the records.
using Pass = std::span<const KeptColumn>;

std::vector<Pass> PassesOf(const TestSheet& sheet)
{
    std::vector<Pass> passes;
    Pass rest = laboratory::StatementColumns(sheet.described);
    while (!rest.empty()) {
        const auto end = std::ranges::find_if(
            rest, [records = rest.front().records](const KeptColumn& column) { return column.records != records; });
        passes.push_back(rest.first(static_cast<std::size_t>(end - rest.begin())));
        rest = rest.subspan(passes.back().size());
    }
    return passes;
}

template <class Sheet>
auto CellOf(Sheet& sheet, const KeptColumn& column, int record)
{
    auto& grid = sheet.template Get<TextGrid>(column.control);
    const int trial = column.firstRecord + record - 1;
    return column.kind == GridRow ? grid(column.line, trial) : grid(trial, column.line);
}

void LoadHeadings(TestSheet& sheet)
{
    Program& program = sheet.program;
    const TableSchema& table = ProjectTables().front();  // HEAD
    const jet::Recordset head = Query(program, program.ProjectConnection, SelectAll(table.name));
    for (const laboratory::Box& box : laboratory::kJobBoxes)
        sheet.Get<TextControl>(box.control).SetText(head.Fields(table.ColumnName(box.is.kept)));
}

/// A date that was never saved is today's.
std::string DateOr(const TestSheet& sheet, const std::string& stored)
{
    return Trim(stored).empty() ? Format(sheet.program.Ask().Now(), kLongDate) : stored;
}

void LoadHead(TestSheet& sheet, const KeptColumn& column, const std::string& stored)
{
    auto& control = sheet.Get<TextControl>(column.control);
    control.SetText(&control == &sheet.DTPDate ? DateOr(sheet, stored) : stored);
}

/// Behind the records that are saved only what another program wrote is loaded; the blanks of a new file stay out.
bool IsLoaded(const KeptColumn& column, int record, std::string_view stored)
{
    if (record <= column.records) return record >= column.firstLoaded;
    return record <= column.lastLoaded && !Trim(stored).empty();
}

int LastLoaded(Pass pass)
{
    const auto last = std::ranges::max_element(pass, {}, &KeptColumn::lastLoaded);
    return std::max(last->records, last->lastLoaded);
}

void LoadRecord(TestSheet& sheet, Pass pass, const jet::Recordset& records, int record)
{
    const TableSchema& table = TableOf(sheet);
    for (const KeptColumn& column : pass) {
        const std::string& stored = records.Fields(table.ColumnName(column.suffix));
        if (!column.isLoaded || column.kind == Choice) continue;
        if (column.kind == Head) {
            if (record == 1) LoadHead(sheet, column, stored);
        } else if (IsLoaded(column, record, stored)) {
            CellOf(sheet, column, record) = sheet.described.trimsLists ? Trim(stored) : std::string_view(stored);
        }
    }
}

/// What was chosen when the test was saved, once all else is loaded.
void LoadStoredChoice(TestSheet& sheet, jet::Recordset& records)
{
    const laboratory::Choice& choice = sheet.described.choice;
    if (choice.options.empty()) return;
    records.MoveFirst();
    sheet.LoadChoice(Trim(records.Fields(TableOf(sheet).ColumnName(choice.is.kept))));
}

/// Of the option that is chosen; a sheet without a choice stores none.
std::string SavedChoice(const TestSheet& sheet)
{
    const auto options = sheet.described.choice.options;
    const auto chosen = std::ranges::find_if(
        options, [&](const laboratory::Option& of) { return sheet.Get<OptionButton>(of.control).Value(); });
    return chosen == options.end() ? std::string() : std::string(chosen->stored);
}

/// A list ends at the first record whose first column is blank.
bool IsListEnd(const TestSheet& sheet, Pass pass, const jet::Recordset& records)
{
    if (!pass.front().isList) return false;
    return Trim(records.Fields(TableOf(sheet).ColumnName(pass.front().suffix))).empty();
}

/// A list has a row a record afterwards.
void LoadPass(TestSheet& sheet, Pass pass, jet::Recordset& records)
{
    records.MoveFirst();
    const int last = LastLoaded(pass);
    for (int record = 1; record <= last; ++record, records.MoveNext()) {
        if (IsListEnd(sheet, pass, records)) return;
        if (pass.front().isList) sheet.Get<TextGrid>(pass.front().control).SetRows(record);
        LoadRecord(sheet, pass, records, record);
    }
}

/// Of a list as many as it has rows.
int RecordsToSave(const TestSheet& sheet, const KeptColumn& column)
{
    return column.isList ? sheet.Get<TextGrid>(column.control).Rows() : column.records;
}

std::string SavedText(const TestSheet& sheet, const KeptColumn& column, int record)
{
    if (column.kind == Choice) return SavedChoice(sheet);
    if (column.kind == Head) return sheet.Get<TextControl>(column.control).Text();
    return CellOf(sheet, column, record);
}

void SaveRecord(const TestSheet& sheet, Pass columns, int record)
{
    const TableSchema& table = TableOf(sheet);
    std::vector<Assignment> assignments;
    assignments.reserve(columns.size());
    for (const KeptColumn& column : columns) {
        assignments.push_back({table.ColumnName(column.suffix), SavedText(sheet, column, record)});
    }
    Execute(sheet.program, sheet.program.ProjectConnection, UpdateRow(table, assignments, record));
}

/// One statement a record, with the columns that are wanted.
template <class Wanted>
void SavePasses(const TestSheet& sheet, Wanted isWanted)
{
    for (const Pass pass : PassesOf(sheet)) {
        std::vector<KeptColumn> columns;
        std::ranges::copy_if(pass, std::back_inserter(columns), isWanted);
        const int records = columns.empty() ? 0 : RecordsToSave(sheet, pass.front());
        for (int record = 1; record <= records; ++record) SaveRecord(sheet, columns, record);
    }
}

}  // namespace

void LoadTestSheet(TestSheet& sheet)
{
    Program& program = sheet.program;
    OpenProjectConnection(program);
    LoadHeadings(sheet);
    jet::Recordset records = Query(program, program.ProjectConnection, SelectAll(TableOf(sheet).name));
    for (const Pass pass : PassesOf(sheet)) LoadPass(sheet, pass, records);
    LoadStoredChoice(sheet, records);
}

void TestSheet::LoadChoice(std::string_view stored)
{
    const auto options = described.choice.options;
    const auto option = std::ranges::find(options, stored, &laboratory::Option::stored);
    if (option != options.end()) Get<OptionButton>(option->control).Choose();
}

void SaveTestSheet(const TestSheet& sheet)
{
    Program& program = sheet.program;
    OpenProjectConnection(program);
    Execute(program, program.ProjectConnection,
            UpdateHead(sheet.txtClient.Text(), sheet.txtProject.Text(), sheet.txtLocation.Text(), sheet.txtID.Text()));
    SavePasses(sheet, [](const KeptColumn&) { return true; });
}

void SaveColumns(const TestSheet& sheet, std::span<const std::string_view> suffixes)
{
    OpenProjectConnection(sheet.program);
    SavePasses(sheet, [suffixes](const KeptColumn& column) {
        return std::ranges::find(suffixes, column.suffix) != suffixes.end();
    });
}

}  // namespace terravane
