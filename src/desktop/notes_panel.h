/// The panel at the frame's right that lists the checker's notes on the open sheet, and the small marks on the cells
/// that they are about.
#pragma once

#include <QDockWidget>

#include "controls/subscription.h"
#include "notes/notes_watch.h"

class QLabel;
class QListWidget;

namespace terravane {

class NotesPanel : public QDockWidget {
  public:
    /// Closed until somebody opens it. Its title tells how many notes there are.
    NotesPanel(QWidget* parent, Program& program, notes::NotesWatch& watch);

  private:
    void Refresh();
    void LeadToChosen();

    Program& program_;
    notes::NotesWatch& watch_;
    QLabel* about_;
    QListWidget* list_;
    Subscription following_;
};

/// Over each grid of a sheet: a corner triangle in a cell that has a note, whose sentence the cell's tip tells. Lives
/// as long as `sheet`, the window of the form.
void MarkNotes(QWidget& sheet, notes::NotesWatch& watch);

}  // namespace terravane
