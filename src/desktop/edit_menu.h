/// The shell's own Edit menu: what the journal of the open sheet can do.
#pragma once

#include <QObject>
#include <functional>

#include "controls/control.h"
#include "desktop/cell_blocks.h"
#include "journal/journal.h"

class QAction;
class QKeyEvent;
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
    bool TakesOver(const QKeyEvent& key) const;
    void Walk(std::optional<TextPlace> (Journal::*way)());
    void Follow();

    Journal& journal_;
    std::function<void(const Control&)> restored_;
    CellBlocks* blocks_;
    QAction* undo_;
    QAction* redo_;
    QAction* paste_;
    Subscription following_;
};

}  // namespace terravane
