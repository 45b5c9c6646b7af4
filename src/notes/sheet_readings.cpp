#include "notes/sheet_readings.h"

#include "controls/choice_controls.h"
#include "controls/text_grid.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane::notes {

namespace {

std::optional<double> NumberOf(const std::string& text)
{
    if (text.empty()) return {};
    return Val(text);
}

}  // namespace

std::string SheetReadings::Text(const laboratory::Box& box) const
{
    const Control* control = sheet_.Find(box.control);
    return control ? std::string(Trim(control->Text())) : std::string();
}

Place SheetReadings::At(const laboratory::Grid& grid, int line, int trial)
{
    const int place = grid.firstTrial + trial - 1;
    return grid.IsAcross() ? Place{grid.control, line, place} : Place{grid.control, place, line};
}

int SheetReadings::Trials(const laboratory::Grid& grid) const
{
    return grid.isList ? sheet_.Get<TextGrid>(grid.control).Rows() - grid.firstTrial : grid.count;
}

std::string SheetReadings::Text(const laboratory::Grid& grid, int line, int trial) const
{
    const Place at = At(grid, line, trial);
    return std::string(Trim(sheet_.Get<TextGrid>(grid.control)(at.row, at.column)));
}

std::optional<double> SheetReadings::Number(const laboratory::Box& box) const
{
    return NumberOf(Text(box));
}

std::optional<double> SheetReadings::Number(const laboratory::Grid& grid, int line, int trial) const
{
    return NumberOf(Text(grid, line, trial));
}

std::vector<Reading> SheetReadings::Line(const laboratory::Grid& grid, int line) const
{
    std::vector<Reading> readings;
    for (int trial = 1; trial <= Trials(grid); ++trial)
        if (const auto value = Number(grid, line, trial)) readings.push_back({trial, *value, At(grid, line, trial)});
    return readings;
}

bool SheetReadings::IsChosen(std::string_view option) const
{
    return sheet_.Get<OptionButton>(option).Value();
}

bool SheetReadings::IsTicked(std::string_view box) const
{
    return sheet_.Get<CheckBox>(box).Value();
}

std::string SheetReadings::Kept(Test test, std::string_view column, int row) const
{
    if (!job_) return {};
    const TableSchema& table = TableOf(test, material_);
    return job_->Trimmed(table.name, table.ColumnName(column), row);
}

std::optional<double> SheetReadings::KeptNumber(Test test, std::string_view column, int row) const
{
    return NumberOf(Kept(test, column, row));
}

std::optional<double> SheetReadings::Posted(std::string_view column) const
{
    if (!job_) return {};
    const int row = laboratory::Describe(material_).summaryRow;
    return NumberOf(job_->Trimmed(kSummaryTable, SummaryTable().ColumnName(column), row));
}

}  // namespace terravane::notes
