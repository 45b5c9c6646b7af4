/// The shell's own Edit menu: what the journal of the open sheet can do.
#pragma once

#include <QObject>
#include <functional>

#include "controls/control.h"
#include "journal/journal.h"

class QAction;
class QMainWindow;

namespace terravane {

/// Belongs to the window.
class EditMenu : public QObject {
  public:
    /// restored  is told of a control whose text was put back or brought again
    EditMenu(QMainWindow& window, Journal& journal, std::function<void(const Control&)> restored);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Walk(std::optional<TextPlace> (Journal::*way)());
    void Follow();

    Journal& journal_;
    std::function<void(const Control&)> restored_;
    QAction* undo_;
    QAction* redo_;
    Subscription following_;
};

}  // namespace terravane
