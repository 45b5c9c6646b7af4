/// A combo box that floats over the cells of a grid, for cells that are chosen from a list. Which keys write and where
/// they lead is its form's business; where it stands on the screen is the view's.
#pragma once

#include <string>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"

namespace terravane {

class ListCellEditor : public ControlKind<ListCellEditor, ComboBox> {
  public:
    /// range  the cells that it may stand over
    ListCellEditor(Form& owner, std::string_view name, TextGrid& grid, CellRange range, std::vector<std::string> list,
                   ComboEvents events = {});

    TextGrid& Grid() { return grid_; }
    const TextGrid& Grid() const { return grid_; }
    const CellRange& Range() const { return range_; }

    /// Stands over a cell of the range, with the cell's text and the focus; the form's other editors are hidden.
    void OpenAt(int row, int column);
    void Hide() { SetVisible(false); }

  private:
    TextGrid& grid_;
    CellRange range_;
};

}  // namespace terravane
