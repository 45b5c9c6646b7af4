#include "program/failure_notice.h"

#include <algorithm>
#include <string>
#include <vector>

#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "laboratory/tests.h"
#include "program/cell_words.h"
#include "program/next_command.h"
#include "program/program.h"
#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr int kFirstOfStore = 3021;  // and the negative ones: the language has none so high

using laboratory::Box;
using laboratory::KeptColumn;
using laboratory::Sheet;

/// "frmCompaction.cmdCal_Click" in its parts; a command of no form has its words in front of the point alone.
struct Event {
    std::string_view form, control;

    explicit Event(std::string_view event)
    {
        const auto point = event.find('.');
        form = event.substr(0, point);
        if (point == std::string_view::npos) return;
        control = event.substr(point + 1);
        control = control.substr(0, control.rfind('_'));
    }
};

/// What stands on the command, else what it is.
std::string CommandWords(const Form* form, std::string_view control)
{
    const Control* pressed = form ? form->Find(control) : nullptr;
    const std::string caption = pressed ? PlainWords(pressed->Caption()) : std::string();
    if (!caption.empty()) return caption;
    return control == "tblMenu" ? "Save File" : "The command";
}

/// What comes behind the last sign of that kind, up to the next; empty where there is none.
std::string_view Between(std::string_view text, char sign, bool last)
{
    const auto end = last ? text.rfind(sign) : text.find(sign, text.find(sign) + 1);
    if (end == std::string_view::npos || end == 0) return {};
    const auto begin = last ? text.rfind(sign, end - 1) : text.find(sign);
    return begin == std::string_view::npos || begin == end ? std::string_view()
                                                           : text.substr(begin + 1, end - begin - 1);
}

/// The column of the open sheet's table, or nullptr.
const KeptColumn* ColumnOf(const Program& program, const Sheet& sheet, std::string_view name)
{
    const std::string_view prefix = laboratory::Describe(program.CurrentTest).prefix;
    if (!name.starts_with(prefix)) return nullptr;
    const auto columns = laboratory::TableColumns(sheet);
    const auto found = std::ranges::find(columns, name.substr(prefix.size()), &KeptColumn::suffix);
    return found == columns.end() || found->control.empty() ? nullptr : &*found;
}

/// Where the text stands that a column of record number `record` keeps.
NoticePlace PlaceOf(const Sheet& sheet, const KeptColumn& column, int record)
{
    NoticePlace place{std::string(sheet.form), std::string(column.control)};
    if (column.kind == KeptColumn::Kind::Head) return place;
    const int trial = column.firstRecord + record - 1;
    place.row = column.kind == KeptColumn::Kind::GridRow ? column.line : trial;
    place.column = column.kind == KeptColumn::Kind::GridRow ? trial : column.line;
    return place;
}

std::string PlaceWords(const Form& form, const NoticePlace& place)
{
    const Control* control = form.Find(place.control);
    if (!control) return {};
    if (!place.IsCell()) return PlainWords(control->Caption());
    const auto* grid = dynamic_cast<const TextGrid*>(control);
    const bool isThere = grid && place.row < grid->Rows() && place.column < grid->Columns();
    return isThere ? CellWords(*grid, place.row, place.column) : std::string();
}

/// A text that its column does not take: where it stands and how much there is room for.
bool TellTooLong(const Program& program, const Form& form, const RuntimeError& error, Notice& notice)
{
    const std::string description = error.Description();
    const std::string_view name = Between(description, '\'', false);
    const auto job = std::ranges::find_if(laboratory::kJobBoxes, [name](const Box& box) {
        return name.ends_with("_" + std::string(box.is.kept)) && name.starts_with("project_");
    });
    int most = 0;
    if (job != laboratory::kJobBoxes.end()) {
        notice.place = {form.Name(), std::string(job->control)};
        most = job->is.length;
    } else if (const Sheet* sheet = SheetOfForm(form.Name())) {
        const KeptColumn* column = ColumnOf(program, *sheet, name);
        if (!column) return false;
        notice.place = PlaceOf(*sheet, *column, static_cast<int>(Val(Between(program.CurrentSql, '\'', true))));
        most = column->length;
    }
    const std::string words = most > 0 ? PlaceWords(form, notice.place) : std::string();
    if (words.empty()) return false;
    notice.sentence +=
        words + " is longer than the " + std::to_string(most) + " characters that the project file keeps of it.";
    return true;
}

/// The boxes of the sheet's own that take a measure and have none.
std::vector<const Box*> EmptyBoxes(const Form& form)
{
    std::vector<const Box*> empty;
    const Sheet* sheet = SheetOfForm(form.Name());
    if (!sheet) return empty;
    for (const Box& box : sheet->boxes) {
        const auto* control = dynamic_cast<const TextControl*>(form.Find(box.control));
        const bool isMeasured = !box.is.isWorkedOut && box.is.like.decimals > 0;  // not counted, not chosen
        if (control && isMeasured && Val(control->Text()) == 0) empty.push_back(&box);
    }
    return empty;
}

bool ComesOfNothing(const RuntimeError& error)
{
    return error.Number() == error::kDivisionByZero || error.Number() == error::kOverflow ||
           error.Number() == error::kInvalidProcedureCall;
}

/// Boxes in which nothing is typed are the likelier reason than the cell where it showed.
void TellEmptyBoxes(const Form& form, Notice& notice)
{
    const auto empty = EmptyBoxes(form);
    if (empty.empty()) return;
    notice.place = {form.Name(), std::string(empty.front()->control)};
    std::string names;
    for (const Box* box : empty) names.append(names.empty() ? "" : ", ").append(PlainWords(box->caption));
    notice.sentence += " Nothing is typed in " + names + ".";
}

void TellWhere(const Form& form, const RuntimeError& error, Notice& notice)
{
    std::string description = error.Description();
    while (!description.empty() && description.back() == '.') description.pop_back();
    notice.sentence += description;
    if (const Form::AddressedCell at = form.LastAddressed(); at.grid) {
        const NoticePlace place{form.Name(), at.grid->Name(), at.row, at.column};
        if (const std::string words = PlaceWords(form, place); !words.empty()) {
            notice.place = place;
            notice.sentence += ", at " + words;
        }
    }
    notice.sentence += ".";
    if (ComesOfNothing(error)) TellEmptyBoxes(form, notice);
}

std::string Details(const Program& program, std::string_view event, const RuntimeError& error)
{
    std::string details =
        "Run-time error " + std::to_string(error.Number()) + " in " + std::string(event) + ": " + error.Description();
    const bool isStores = error.Number() < 0 || error.Number() >= kFirstOfStore;
    if (isStores && !program.CurrentSql.empty()) details += "\n" + program.CurrentSql;
    return details + "\nWhat you typed stays as it is, and so does what was saved before.";
}

}  // namespace

Notice FailureNotice(const Program& program, std::string_view event, const RuntimeError& error)
{
    const Event failed(event);
    const Form* form = program.Loaded(failed.form);
    Notice notice{
        .kind = NoticeKind::Failure, .details = Details(program, event, error), .subject = std::string(event)};
    notice.sentence = CommandWords(form, failed.control) + " stopped: ";
    if (!form)
        notice.sentence += error.Description();
    else if (!TellTooLong(program, *form, error, notice))
        TellWhere(*form, error, notice);
    return notice;
}

}  // namespace terravane
