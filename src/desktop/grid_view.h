/// A text grid on the screen, with its cell editor floating exactly over the current cell. Keys, mouse and limits are
/// the headless editor's; the view shows and forwards.
#pragma once

#include <QLineEdit>
#include <QTableView>

#include "controls/cell_editor.h"
#include "controls/text_grid.h"
#include "desktop/bindings.h"

namespace terravane {

class GridModel;

class GridView : public QTableView {
  public:
    GridView(TextGrid& grid, QWidget* parent);

    TextGrid& Grid() const { return grid_; }
    /// The box of the grid's editor; nullptr where the grid is only read.
    QLineEdit* EditorBox() const { return box_; }

    /// A few rows at the least; all of them, up to a dozen, where there is room.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent*) override {}
    void focusInEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    QSize SizeFor(int mostRows) const;
    void ShareRoom();
    void ShowEditor();
    int LeastRowHeight(int row) const;

    TextGrid& grid_;
    GridModel* model_;
    QLineEdit* box_ = nullptr;
    int selectRequestsSeen_ = 0;
    Bindings bindings_;
};

}  // namespace terravane
