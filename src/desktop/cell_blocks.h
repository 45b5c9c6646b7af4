/// Blocks of cells in the window: marked with the mouse or Shift and the arrows, copied, cut, pasted, erased. One
/// object for all grids of the frame; the journal does the work.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRubberBand>
#include <functional>
#include <optional>

#include "desktop/grid_view.h"
#include "journal/journal.h"

class QKeyEvent;
class QMouseEvent;

namespace terravane {

class CellBlocks : public QObject {
  public:
    /// changed  is told of a grid whose cells were pasted or erased
    CellBlocks(QObject* parent, Journal& journal, std::function<void(const Control&)> changed);

    /// The marked block, or the current cell of the grid that has the focus; nothing happens where there is neither.
    void Copy() const;
    void Cut();
    void Paste();
    void Erase();

    /// Whether what the clipboard holds goes into cells though a cell is open for typing: more than one text.
    static bool ClipboardHoldsBlock();
    /// Whether the keys for a block go to cells now, not into a box.
    bool HasPlace() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Marked {
        QPointer<GridView> view;
        CellBlock block;
    };
    std::optional<Marked> Meant() const;
    bool Press(GridView& view, QMouseEvent& event);
    bool Drag(GridView& view, QMouseEvent& event);
    bool Key(GridView& view, bool isInEditor, QKeyEvent& event);
    void Extend(GridView& view, int row, int column);
    void Clear();

    Journal& journal_;
    std::function<void(const Control&)> changed_;
    QPointer<GridView> view_;   // that the block is marked on, or the last press was on
    QModelIndex anchor_, end_;  // corners of the block, in the view's model; no end: none is marked
    QPointer<QRubberBand> band_;
};

}  // namespace terravane
