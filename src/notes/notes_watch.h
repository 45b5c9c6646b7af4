/// The notes of the open sheet while it is worked on: looked for anew behind every command, and told in a notice when
/// the page is looked at. Knows no window.
#pragma once

#include <string_view>
#include <vector>

#include "controls/subscription.h"
#include "notes/find_notes.h"
#include "program/listener.h"
#include "program/program.h"

namespace terravane::notes {

class NotesWatch : private ProgramListener {
  public:
    /// Listens as long as it lives; the program outlives it.
    explicit NotesWatch(Program& program);
    ~NotesWatch() override;
    NotesWatch(const NotesWatch&) = delete;
    NotesWatch& operator=(const NotesWatch&) = delete;

    /// In the order of the rules; none where no sheet is open.
    const std::vector<SaidNote>& Notes() const { return notes_; }
    /// Of the cell of the open sheet's grid; the loudest first.
    std::vector<const SaidNote*> On(std::string_view grid, int row, int column) const;
    /// A sentence for each bad line of the laboratory's settings.
    const std::vector<std::string>& Complaints() const { return checker_.TheSettings().Complaints(); }

    /// Runs the listener when there may be other notes.
    Subscription Show(std::function<void()> listener) { return changes_.Listen(std::move(listener)); }

  private:
    void FormOpened(Form& form) override;
    void CommandEnded(std::string_view event, bool hasSucceeded) override;
    void TellDoubts() const;

    Program& program_;
    Checker checker_;
    std::vector<SaidNote> notes_;
    bool previewOpens_ = false;
    Announcement changes_;
};

}  // namespace terravane::notes
