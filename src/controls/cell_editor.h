/// The floating cell editor: grids are never typed into, a text box stands over the current cell and commits
/// what was typed when Enter is pressed. Here are its keys, its way through the cells and its mouse; where it
/// stands on the screen is the view's.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/text_controls.h"
#include "controls/text_grid.h"

namespace terravane {

/// The cells that can be edited: a rectangle of rows and columns, both ends included.
struct CellRange {
    int firstRow, lastRow, firstColumn, lastColumn;
    bool Holds(int row, int column) const
    {
        return row >= firstRow && row <= lastRow && column >= firstColumn && column <= lastColumn;
    }
};

/// What a cell makes of the committed text, blanks at its ends already gone. The default takes it as it
/// stands.
using CommitRule = std::function<std::string(int row, int column, std::string text)>;

/// Keys:
///   Enter  commits and goes down the column, then to the top of the next one; stays at the last cell
///   Esc    discards: this editor and its siblings are hidden
///   Up, Down, Left  one cell on within the range
///   Right  one column on; from the last column to the first of the next row; stays at the last cell
///   Tab    as Right
/// Calculated cells inside the range are stepped over and can't be opened.
/// Only Enter commits. After any move the cell's text stands in the editor, after Enter and the mouse
/// selected whole.
class CellEditor : public ControlKind<CellEditor, TextControl> {
  public:
    /// The range is asked at each use, since grids grow.
    CellEditor(Form& owner, std::string_view name, TextGrid& grid, std::function<CellRange()> range,
               CommitRule commit = {}, TextEvents events = {});

    std::string Text() const override { return text_; }
    void SetText(std::string_view text) override;

    TextGrid& Grid() { return grid_; }
    const TextGrid& Grid() const { return grid_; }
    CellRange Range() const { return range_(); }

    /// Stands the editor over a cell, hides its siblings, takes the cell's text and the focus. False outside
    /// the range: then the editor is hidden.
    bool OpenAt(int row, int column);
    /// Puts the trimmed text into the current cell by the commit rule.
    void Commit() { CommitAt(grid_.Row(), grid_.Column(), text_); }
    /// The same for any text and cell of the range; the editor stays where it stands.
    void CommitAt(int row, int column, std::string_view text);
    void Hide() { SetVisible(false); }

    bool PressKey(Key key) override;

    /// The left button on a cell of the grid: the editor opens there, its text selected whole.
    void PressLeft(int row, int column);

  private:
    struct Place {
        int row, column;
        bool operator==(const Place&) const = default;
    };
    Place Next(Key key, Place from) const;
    void Walk(Key key);
    void HideSiblings();

    TextGrid& grid_;
    std::function<CellRange()> range_;
    CommitRule commit_;
    std::string text_;
};

/// Hides every cell editor of a form: when a tab changes and when a field outside the grids gets the focus.
void HideEditors(Form& form);

}  // namespace terravane
