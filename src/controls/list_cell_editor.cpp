#include "controls/list_cell_editor.h"

#include <utility>

namespace terravane {

ListCellEditor::ListCellEditor(Form& owner, std::string_view name, TextGrid& grid, CellRange range,
                               std::vector<std::string> list, ComboEvents events)
    : ControlKind(owner, name, std::string(), std::move(list), std::move(events)), grid_(grid), range_(range)
{
    SetVisible(false);
}

void ListCellEditor::OpenAt(int row, int column)
{
    HideEditors(Owner());
    grid_.Select(row, column);
    SetText(grid_(row, column).Text());
    SetVisible(true);
    SetFocus();
    Changed();  // the cell may be another though text and state are the same
}

}  // namespace terravane
