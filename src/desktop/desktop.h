/// Keeps a window for every form that the program shows, and takes it away with the form.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <map>

#include "desktop/qt_surroundings.h"
#include "desktop/windows.h"
#include "journal/journal.h"
#include "notes/notes_watch.h"
#include "program/program.h"

namespace terravane {

class FrameWindow;

class Desktop {
  public:
    Desktop(Program& program, QtSurroundings& surroundings);
    ~Desktop();

    /// Keeps what is typed and not saved in that folder of the user's own, and offers it when its sheet is opened
    /// again.
    void KeepDrafts(const std::string& folder);

    /// The window of a shown form; nullptr where it has none, or has lost it with the frame that it belongs to.
    QWidget* WindowOf(const Form& form) const;

  private:
    std::string ProposedPdf() const;
    void Follow();
    void DisposeOfClosed();
    QWidget* Open(const Program::ShownForm& shown);
    QWidget* MakeWindow(const Program::ShownForm& shown);
    FrameWindow* FrameOpen() const;

    Program& program_;
    QtSurroundings& surroundings_;
    Journal journal_;
    notes::NotesWatch watch_;  // outlives its windows, which go when their events are over
    QTimer syncing_;
    std::map<const Form*, QPointer<QWidget>> windows_;
    Subscription following_;
};

}  // namespace terravane
