#include "program/failure_notice.h"

#include <algorithm>
#include <string>
#include <vector>

#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "laboratory/tests.h"
#include "program/cell_words.h"
#include "program/next_command.h"
#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr int kFirstOfStore = 3021;  // and the negative ones: the language has none so high

using laboratory::Box;
using laboratory::KeptColumn;
using laboratory::Sheet;

/// "cmdCal" of "frmCompaction.cmdCal_Click"; nothing of a command of no form.
std::string_view ControlOf(std::string_view event)
{
    const auto point = event.find('.');
    if (point == std::string_view::npos) return {};
    const std::string_view handler = event.substr(point + 1);
    return handler.substr(0, handler.rfind('_'));
}

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
const KeptColumn* ColumnOf(Test test, const Sheet& sheet, std::string_view name)
{
    const std::string_view prefix = laboratory::Describe(test).prefix;
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
bool TellTooLong(const Failed& failed, Notice& notice)
{
    const Form& form = *failed.form;
    const std::string description = failed.error.Description();
    const std::string_view name = Between(description, '\'', false);
    const auto job = std::ranges::find_if(laboratory::kJobBoxes, [name](const Box& box) {
        return name.ends_with("_" + std::string(box.is.kept)) && name.starts_with("project_");
    });
    int most = 0;
    if (job != laboratory::kJobBoxes.end()) {
        notice.place = {form.Name(), std::string(job->control)};
        most = job->is.length;
    } else if (const Sheet* sheet = SheetOfForm(form.Name())) {
        const KeptColumn* column = ColumnOf(failed.test, *sheet, name);
        if (!column) return false;
        notice.place = PlaceOf(*sheet, *column, static_cast<int>(Val(Between(failed.statement, '\'', true))));
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

std::string Details(const Failed& failed)
{
    const int number = failed.error.Number();
    std::string details = "Run-time error " + std::to_string(number) + " in " + std::string(failed.event) + ": " +
                          failed.error.Description();
    const bool isStores = number < 0 || number >= kFirstOfStore;
    if (isStores && !failed.statement.empty()) details.append("\n").append(failed.statement);
    return details + "\nWhat you typed stays as it is, and so does what was saved before.";
}

}  // namespace

Notice FailureNotice(const Failed& failed)
{
    Notice notice{.kind = NoticeKind::Failure, .details = Details(failed), .subject = std::string(failed.event)};
    notice.sentence = CommandWords(failed.form, ControlOf(failed.event)) + " stopped: ";
    if (!failed.form)
        notice.sentence += failed.error.Description();
    else if (!TellTooLong(failed, notice))
        TellWhere(*failed.form, failed.error, notice);
    return notice;
}

}  // namespace terravane
