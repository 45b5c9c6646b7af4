/// The journal of the open sheet: it listens to the program and to the sheet's controls, and keeps every act of a
/// person as a step that can be undone. Commands are not undone. Knows no sheet and no window.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/changes.h"
#include "controls/subscription.h"
#include "journal/act.h"
#include "journal/cells.h"
#include "journal/drafts.h"
#include "journal/history.h"
#include "journal/others.h"
#include "journal/steps.h"
#include "program/program.h"

namespace terravane {

class Journal : private ProgramListener, private ControlListener {
  public:
    /// Listens as long as it lives; the program outlives it.
    explicit Journal(Program& program);
    /// From here on the projects that are saved have a history.
    void KeepHistory() { keepsHistory_ = true; }
    bool KeepsHistory() const { return keepsHistory_; }
    ~Journal() override;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Tells whether another window, or another machine, has saved the open test since; costs next to nothing where
    /// nobody has. Asked after every act and every second by itself.
    void LookForOthers();
    /// From here on what is typed has a draft in that folder, with a mark at its end.
    void KeepDrafts(const std::string& folder);
    /// Those of the open project that wait, the latest first.
    std::vector<Draft> WaitingDrafts() const;
    /// The latest that waits for the open sheet; nothing where none does.
    std::optional<Draft> WaitingDraft() const;
    /// Puts its texts into the sheet, as one step that can be undone; those that stand there already and those that
    /// find no place are left. How many it put in.
    int Take(const Draft& draft);
    void Forget(const Draft& draft);
    /// To be called at least every second while something may be typed.
    void SyncDraft();
    /// What the notice's Show does; given by a window.
    std::function<void(const Draft&)> ShowDraft;

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

    /// Puts a block of texts, lines with tabs between, into a grid of the open sheet from that cell on, as one step;
    /// says in a notice what was left out or written otherwise. A block that does not fit changes nothing, and is told,
    /// too.
    PutBlock Paste(TextGrid& grid, int row, int column, std::string_view lines);
    /// Puts nothing into the typed cells of a block, as one step.
    PutBlock Erase(TextGrid& grid, const CellBlock& block);

    /// Runs the listener when there may be other steps to undo, or another line in the history.
    Subscription Show(std::function<void()> listener) { return changes_.Listen(std::move(listener)); }

  private:
    void FormOpened(Form& form) override;
    void FormClosed(Form& form) override;
    void CommandBegan(std::string_view event) override;
    void CommandEnded(std::string_view event, bool hasSucceeded) override;
    void ProjectSaved(const jet::SavedFile& saved) override;
    void ProjectMade(std::string_view path, std::string_view source) override;
    void TextChanged(const TextChange& change) override;
    void RowsChanged(Control& control, int before, int after) override;

    Writer WriterNow() const;
    template <class Write>
    void WriteHistory(std::string_view project, Write write);
    template <class Put>
    PutBlock PutAsOneStep(TextGrid& grid, std::string_view event, Put put);
    void TellOfPaste(const TextGrid& grid, const PutBlock& put);
    std::optional<TextPlace> Walk(const Step* (Steps::*way)());
    bool IsInFront() const;
    void LeaveSheet();
    void KeepStep();
    void KeepDraft();
    void OpenDraft();
    bool ShowsTableOf(const StoredPlace& place) const;
    void LoadAnew();
    void TellReplaced(const std::vector<TextDifference>& replaced);
    void OfferDraft();
    void TellDraftFailure(const RuntimeError& error);
    std::vector<TextPlace> Differing(const Draft& draft) const;
    void TakeStepBack();

    Program& program_;
    Form* sheet_ = nullptr;
    Steps steps_;
    Step step_;  // of the act that runs
    std::optional<Actor> actor_;
    const Control* actedOn_ = nullptr;      // by the act that runs
    const Control* lastActedOn_ = nullptr;  // by the one before: typing goes on in one box
    HistoryKeeper history_;
    OthersWatch others_;
    bool keepsHistory_ = false, hasSaved_ = false;
    std::unique_ptr<DraftKeeper> drafts_;
    std::chrono::steady_clock::time_point lastSync_{};
    Announcement changes_;
};

}  // namespace terravane
