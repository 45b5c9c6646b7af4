#include "journal/journal.h"

#include <algorithm>
#include <utility>

#include "controls/cell_editor.h"
#include "controls/visit_control.h"
#include "program/next_command.h"
#include "program/version.h"
#include "runtime/machine.h"

namespace terravane {

namespace {

/// An editor that stands over a cell shows what the cell holds.
void RefreshEditors(Form& form)
{
    for (CellEditor* editor : ControlsOf<CellEditor>(form)) {
        const TextGrid& grid = editor->Grid();
        if (editor->Visible()) editor->SetText(grid(grid.Row(), grid.Column()));
    }
}

constexpr std::string_view kSheetBar = "tblMenu";  // Save, and Exit, which leaves no sheet

/// Whether what is done so is a person's: typed, or put back.
bool IsKept(std::optional<Actor> actor)
{
    return actor == Actor::Person || actor == Actor::Journal;
}

std::string Counted(int count, std::string_view what)
{
    return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

}  // namespace

Journal::Journal(Program& program) : program_(program), history_(program.Files()), others_(program.Files())
{
    program_.Listen(*this);
    for (Form* form : program_.LoadedForms()) FormOpened(*form);
    if (!program_.IsRunning()) actor_.reset();
}

Journal::~Journal()
{
    LeaveSheet();
    program_.StopListening(*this);
}

void Journal::FormOpened(Form& form)
{
    if (form.Window() != WindowKind::Sheet) return;
    LeaveSheet();
    sheet_ = &form;
    actor_ = Actor::Load;
    form.ListenToTexts(*this);
}

void Journal::FormClosed(Form& form)
{
    if (&form == sheet_) LeaveSheet();
}

void Journal::LeaveSheet()
{
    if (sheet_) sheet_->StopListening(*this);
    sheet_ = nullptr;
    actor_.reset();
    if (drafts_) drafts_->Leave();
    others_.End();
    step_ = {};
    steps_.Clear();
    actedOn_ = lastActedOn_ = nullptr;
    changes_.Announce();
}

void Journal::CommandBegan(std::string_view event)
{
    if (!sheet_ || actor_) return;
    actor_ = ActorOf(event, *sheet_);
    actedOn_ = ControlOf(event, *sheet_);
}

void Journal::CommandEnded(std::string_view event, bool hasSucceeded)
{
    const auto actor = std::exchange(actor_, std::nullopt);
    if (sheet_ && actor == Actor::Load && keepsHistory_) others_.Begin(program_.CurrentProjectPath);
    LookForOthers();
    if (!sheet_ || !actor || *actor == Actor::Timer) return;
    step_.Tidy();
    KeepDraft();
    if (*actor == Actor::Load) OpenDraft();
    if (drafts_ && hasSucceeded && ControlOf(event, *sheet_) == sheet_->Find(kSheetBar)) drafts_->Saved();
    if (*actor == Actor::Person) KeepStep();
    if (std::exchange(hasSaved_, false)) changes_.Announce();
    lastActedOn_ = *actor == Actor::Person ? actedOn_ : nullptr;
    step_ = {};
}

void Journal::KeepStep()
{
    if (step_.IsEmpty()) return;
    steps_.Add(std::move(step_), actedOn_ == lastActedOn_);
    changes_.Announce();
}

void Journal::TextChanged(const TextChange& change)
{
    if (!IsKept(actor_) || !HoldsTypedText(change.control)) return;
    step_.Add({&change.control, change.row, change.column}, change.before, change.after);
}

void Journal::RowsChanged(Control& control, int before, int after)
{
    if (IsKept(actor_)) step_.AddRows(dynamic_cast<TextGrid&>(control), before, after);
}

bool Journal::HoldsUncommitted() const
{
    if (!sheet_) return false;
    return std::ranges::any_of(ControlsOf<CellEditor>(*sheet_), [](const CellEditor* editor) {
        const TextGrid& grid = editor->Grid();
        return editor->Visible() && editor->Text() != grid(grid.Row(), grid.Column());
    });
}

Writer Journal::WriterNow() const
{
    return {TimeText(program_.Ask().Now()), LoginName(), TERRAVANE_VERSION};
}

/// A save stands whatever becomes of its history.
template <class Write>
void Journal::WriteHistory(std::string_view project, Write write)
{
    if (!keepsHistory_) return;
    const std::string subject = "History of " + std::string(project);
    try {
        write();
        program_.notices.Settle(subject);
    } catch (const RuntimeError& error) {
        program_.notices.Tell({.kind = NoticeKind::Attention,
                               .sentence = "The project is saved, but its history could not be written.",
                               .details = error.Description(),
                               .subject = subject});
    }
}

void Journal::ProjectSaved(const jet::SavedFile& saved)
{
    WriteHistory(saved.path, [&] {
        if (sheet_) TellReplaced(others_.Saved(saved));
        history_.Save(saved, WriterNow());
    });
    hasSaved_ = true;
}

void Journal::ProjectMade(std::string_view path, std::string_view source)
{
    WriteHistory(path, [&] { history_.Begin(std::string(path), std::string(source), WriterNow()); });
}

/// Not while a preview or a dialog stands over it.
bool Journal::IsInFront() const
{
    const auto& shown = program_.ShownForms();
    return !shown.empty() && shown.back().form == sheet_;
}

/// As if the act that runs had never been.
void Journal::TakeStepBack()
{
    step_.Tidy();
    std::exchange(step_, {}).Undo();
    step_ = {};
}

template <class Put>
PutBlock Journal::PutAsOneStep(TextGrid& grid, std::string_view event, Put put)
{
    PutBlock done;
    program_.Run(grid.Owner().Name() + "." + grid.Name() + "_" + std::string(event), [&] {
        done = put();
        if (!done.misfit.empty()) TakeStepBack();
        RefreshEditors(grid.Owner());
    });
    return done;
}

PutBlock Journal::Paste(TextGrid& grid, int row, int column, std::string_view lines)
{
    return PutAsOneStep(grid, "Paste", [&] {
        const PutBlock put = PutCells(grid, row, column, lines);
        TellOfPaste(grid, put);
        return put;
    });
}

PutBlock Journal::Erase(TextGrid& grid, const CellBlock& block)
{
    return PutAsOneStep(grid, "Erase", [&] { return EraseCells(grid, block); });
}

void Journal::TellOfPaste(const TextGrid& grid, const PutBlock& put)
{
    const std::string subject = grid.Owner().Name() + ".Paste";
    if (!put.misfit.empty()) {
        return program_.notices.Tell({.kind = NoticeKind::Attention,
                                      .sentence = "Nothing was pasted. " + put.misfit,
                                      .place = {grid.Owner().Name(), grid.Name()},
                                      .subject = subject});
    }
    std::string sentence = "Pasted into " + Counted(put.cells, "cell") + ".";
    if (put.passedOver > 0)
        sentence += " " + Counted(put.passedOver, "cell") + " that " + (put.passedOver == 1 ? "is" : "are") +
                    " not typed passed over.";
    if (put.plain > 0)
        sentence +=
            " Written with plain digits and without thousands separators: " + Counted(put.plain, "number") + ".";
    program_.notices.Tell({.sentence = sentence, .subject = subject});
}

std::optional<TextPlace> Journal::Walk(const Step* (Steps::*way)())
{
    if (!sheet_ || program_.IsRunning() || !IsInFront()) return std::nullopt;
    std::optional<TextPlace> place;
    actor_ = Actor::Journal;
    program_.Run(sheet_->Name() + ".Journal", [&] {
        if (const Step* step = (steps_.*way)()) place = step->Place();
        RefreshEditors(*sheet_);
    });
    changes_.Announce();
    return place;
}

}  // namespace terravane
