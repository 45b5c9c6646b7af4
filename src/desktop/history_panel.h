/// The panel at the frame's right that shows the history of the open test, and the sheet as it stood; and the texts of
/// a draft beside those of the sheet.
#pragma once

#include <QDockWidget>

#include "journal/journal.h"

class QLabel;
class QPushButton;
class QTreeWidget;

namespace terravane {

class HistoryPanel : public QDockWidget {
  public:
    /// Closed until somebody opens it.
    HistoryPanel(QWidget* parent, Program& program, Journal& journal);

    /// Reads the history anew; nothing happens while the panel is closed.
    void Refresh();

  private:
    void ShowAsItStood();

    Program& program_;
    Journal& journal_;
    QLabel* about_;
    QTreeWidget* list_;
    QPushButton* asItStood_;
    std::vector<HistoryLine> lines_;  // the whole history
    Subscription following_;
};

/// A window with the texts of a draft that are not the sheet's.
void ShowDraftTexts(QWidget* parent, const Form& sheet, const Draft& draft);

}  // namespace terravane
