/// The journal of the open sheet: it listens to the program and to the sheet's controls, and keeps every act of a
/// person as a step that can be undone. Commands are not undone. Knows no sheet and no window.
#pragma once

#include <optional>
#include <string>

#include "controls/changes.h"
#include "controls/subscription.h"
#include "journal/act.h"
#include "journal/steps.h"
#include "program/program.h"

namespace terravane {

class Journal : private ProgramListener, private ControlListener {
  public:
    /// Listens as long as it lives; the program outlives it.
    explicit Journal(Program& program);
    ~Journal() override;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// The sheet that is open; nullptr where none is.
    Form* Sheet() const { return sheet_; }

    /// Whether something is typed into a cell that Enter has not taken yet.
    bool HoldsUncommitted() const;

    std::size_t Undoable() const { return steps_.Undoable(); }
    std::size_t Redoable() const { return steps_.Redoable(); }
    /// Takes the last step back, or brings the last one taken back again. The place of its first text; nothing where
    /// there is no such step, a command runs or another form stands over the sheet.
    std::optional<TextPlace> Undo() { return Walk(&Steps::Undo); }
    std::optional<TextPlace> Redo() { return Walk(&Steps::Redo); }

    /// Runs the listener when there may be other steps to undo.
    Subscription Show(std::function<void()> listener) { return changes_.Listen(std::move(listener)); }

  private:
    void FormOpened(Form& form) override;
    void FormClosed(Form& form) override;
    void CommandBegan(std::string_view event) override;
    void CommandEnded(std::string_view event, bool hasSucceeded) override;
    void TextChanged(const TextChange& change) override;
    void RowsChanged(Control& control, int before, int after) override;

    std::optional<TextPlace> Walk(const Step* (Steps::*way)());
    bool IsInFront() const;
    void LeaveSheet();
    void KeepStep();

    Program& program_;
    Form* sheet_ = nullptr;
    Steps steps_;
    Step step_;  // of the act that runs
    std::optional<Actor> actor_;
    const Control* actedOn_ = nullptr;      // by the act that runs
    const Control* lastActedOn_ = nullptr;  // by the one before: typing goes on in one box
    Announcement changes_;
};

}  // namespace terravane
