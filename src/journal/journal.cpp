#include "journal/journal.h"

#include <algorithm>
#include <utility>

#include "controls/cell_editor.h"
#include "controls/visit_control.h"
#include "program/next_command.h"

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

}  // namespace

Journal::Journal(Program& program) : program_(program)
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

void Journal::CommandEnded(std::string_view, bool)
{
    const auto actor = std::exchange(actor_, std::nullopt);
    if (!sheet_ || !actor || *actor == Actor::Timer) return;
    if (*actor == Actor::Person) KeepStep();
    lastActedOn_ = *actor == Actor::Person ? actedOn_ : nullptr;
    step_ = {};
}

void Journal::KeepStep()
{
    step_.Tidy();
    if (step_.IsEmpty()) return;
    steps_.Add(std::move(step_), actedOn_ == lastActedOn_);
    changes_.Announce();
}

void Journal::TextChanged(const TextChange& change)
{
    if (actor_ != Actor::Person || !HoldsTypedText(change.control)) return;
    step_.Add({&change.control, change.row, change.column}, change.before, change.after);
}

void Journal::RowsChanged(Control& control, int before, int after)
{
    if (actor_ == Actor::Person) step_.AddRows(dynamic_cast<TextGrid&>(control), before, after);
}

bool Journal::HoldsUncommitted() const
{
    if (!sheet_) return false;
    return std::ranges::any_of(ControlsOf<CellEditor>(*sheet_), [](const CellEditor* editor) {
        const TextGrid& grid = editor->Grid();
        return editor->Visible() && editor->Text() != grid(grid.Row(), grid.Column());
    });
}

/// Not while a preview or a dialog stands over it.
bool Journal::IsInFront() const
{
    const auto& shown = program_.ShownForms();
    return !shown.empty() && shown.back().form == sheet_;
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
