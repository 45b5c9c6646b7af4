#include "controls/cell_editor.h"

#include <utility>

#include "controls/visit_control.h"
#include "runtime/text.h"

namespace terravane {

CellEditor::CellEditor(Form& owner, std::string_view name, TextGrid& grid, std::function<CellRange()> range,
                       CommitRule commit, TextEvents events)
    : ControlKind(owner, name, std::string(), std::move(events)),
      grid_(grid),
      range_(std::move(range)),
      commit_(std::move(commit))
{
    SetVisible(false);
}

void CellEditor::SetText(std::string_view text)
{
    if (text_ == text) return;
    text_ = text;
    Changed();
}

bool CellEditor::OpenAt(int row, int column)
{
    HideSiblings();
    if (!Range().Holds(row, column) || grid_.IsCalculated(row, column)) {
        Hide();
        return false;
    }
    grid_.Select(row, column);
    SetText(grid_(row, column));
    SetVisible(true);
    SetFocus();
    Changed();  // the cell may be another though text and state are the same
    return true;
}

void CellEditor::CommitAt(int row, int column, std::string_view text)
{
    const std::string trimmed(Trim(text));
    const std::string taken = commit_ ? commit_(row, column, trimmed) : trimmed;
    grid_(row, column) = taken;
}

bool CellEditor::PressKey(Key key)
{
    Raise("KeyDown", [&] {
        if (key == Key::Esc) return HideEditors(Owner());
        if (key == Key::Enter) Commit();
        Walk(key);
        if (key == Key::Enter) SelectAll();
    });
    return true;
}

void CellEditor::PressLeft(int row, int column)
{
    if (OpenAt(row, column)) SelectAll();
}

CellEditor::Place CellEditor::Next(Key key, Place from) const
{
    const CellRange range = Range();
    const auto [row, column] = from;
    switch (key) {
        case Key::Up:
            return row > range.firstRow ? Place{row - 1, column} : Place{row, column};
        case Key::Down:
            return row < range.lastRow ? Place{row + 1, column} : Place{row, column};
        case Key::Left:
            return column > range.firstColumn ? Place{row, column - 1} : Place{row, column};
        case Key::Enter:
            if (row < range.lastRow) return {row + 1, column};
            return column < range.lastColumn ? Place{range.firstRow, column + 1} : Place{row, column};
        case Key::Right:
        case Key::Tab:
            if (column < range.lastColumn) return {row, column + 1};
            return row < range.lastRow ? Place{row + 1, range.firstColumn} : Place{row, column};
        case Key::Esc:
            break;
    }
    return {row, column};
}

/// Where there is no cell to type in on that way the editor stays.
void CellEditor::Walk(Key key)
{
    const Place here{grid_.Row(), grid_.Column()};
    Place next = Next(key, here), last = here;
    while (!(next == last) && grid_.IsCalculated(next.row, next.column)) {
        last = next;
        next = Next(key, next);
    }
    if (next == last) next = here;
    OpenAt(next.row, next.column);
}

void CellEditor::HideSiblings()
{
    for (CellEditor* other : ControlsOf<CellEditor>(Owner())) {
        if (other != this) other->Hide();
    }
}

void HideEditors(Form& form)
{
    for (CellEditor* editor : ControlsOf<CellEditor>(form)) editor->Hide();
}

}  // namespace terravane
