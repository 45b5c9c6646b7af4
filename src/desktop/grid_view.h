/// A text grid on the screen, with its cell editor floating exactly over the current cell. Keys, mouse and limits are
/// the headless editor's; the view shows and forwards.
#pragma once

#include <QLineEdit>
#include <QTableView>
#include <map>
#include <string>
#include <utility>

#include "controls/cell_editor.h"
#include "controls/list_cell_editor.h"
#include "controls/text_grid.h"
#include "desktop/bindings.h"

class QComboBox;

namespace terravane {

class GridModel;

/// By text and the room in which its lines are broken, pixels.
using TextSizes = std::map<std::pair<std::string, int>, QSize>;

/// Whether a column tells what its rows are, be it in merged groups.
bool HoldsTitles(const TextGrid& grid, int column);

class GridView : public QTableView {
  public:
    GridView(TextGrid& grid, QWidget* parent);

    TextGrid& Grid() const { return grid_; }
    /// The grid's editor, with its view; nullptr where the grid is only read.
    CellEditor* Editor() const { return editor_; }
    QLineEdit* EditorBox() const { return box_; }
    /// The list over the cells that are chosen, with its view; nullptr where the grid has none.
    ListCellEditor* ListEditor() const { return listEditor_; }
    QComboBox* EditorList() const { return list_; }

    /// Tab and Shift+Tab in the editor: the next cell that way; false behind the last and before the first, where the
    /// editor is hidden and the key leads out of the grid.
    bool WalkByTab(bool isBack);
    /// Opens a cell that is typed; another is shown with the coloured edge.
    void ShowCell(int row, int column);
    /// Opens the first typed cell that is empty, trial by trial; false where there is none.
    bool OpenFirstEmpty();
    /// Whether the grid shows rows of its own height and nothing behind them; a grid with merged cells, and one whose
    /// form says how wide each column is, fills its place.
    bool IsWhole() const;

    /// All rows, of a long list a dozen at the least and twenty where there is room, and columns that can be read; no
    /// column is asked to be wider than a figure needs. A grid with merged cells is as wide as its form says.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent*) override {}
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    bool IsTyped(int row, int column) const;
    QModelIndex CellAt(int row, int column) const;
    bool CanBeOpened(int row, int column) const;
    bool OpenCurrent();
    void MoveCurrent(int down, int right);
    void NameEditors();
    void SpeakCurrent();
    void SpeakFocus();
    int TitlesWidth() const;
    QSize SizeFor(int mostRows, int columnWidth) const;
    void AttachModel();
    void DistributeRoom();
    void DistributeWidth();
    void DistributeHeight();
    void ShowMerged();
    void MakeEditorBox();
    void MakeEditorList();
    bool PlaceEditor(QWidget& view, const Control& editor);
    void ShowEditors();
    int TitleWidth(int column) const;
    int ColumnShare(int column, int left) const;
    int MinimumRowHeight(int row) const;
    int CurrentWidth(int column) const;
    QSize TextSize(const std::string& text, int room) const;

    TextGrid& grid_;
    GridModel* model_;
    CellEditor* editor_;
    QLineEdit* box_ = nullptr;
    ListCellEditor* listEditor_;
    QComboBox* list_ = nullptr;
    int selectRequestsSeen_ = 0;
    mutable TextSizes* textSizes_ = nullptr;  // in the view's font
    Bindings bindings_;
};

}  // namespace terravane
