/// A step: what one act of a person changed on the open sheet, text by text, with what stood there before. Put back and
/// brought again as a whole. Knows no program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/text_grid.h"

namespace terravane {

/// Where a text of a form stands: a control, and in a grid the cell, in a list the entry and column 0.
struct TextPlace {
    Control* control = nullptr;
    int row = -1, column = -1;

    bool operator==(const TextPlace&) const = default;
    bool IsCell() const { return row >= 0; }
};

/// "MSHWt 2 1", "txtSoil": as scripts name it.
std::string NameOf(const TextPlace& place);

/// A text that a person answers for: of a box, a cell, an option. What floats over a grid shows a cell and has no text
/// of its own.
bool HoldsTypedText(const Control& control);

/// What stands there now; nothing where the place is gone. Of a switch "on" or "off".
std::string TextAt(const TextPlace& place);
/// Puts a text there, as a handler does; nothing happens where the place is gone. A switch runs its event where it
/// changes, whose RuntimeError goes on to the caller.
void PutText(const TextPlace& place, std::string_view text);

class Step {
  public:
    struct Change {
        TextPlace place;
        std::string before, after;
    };
    struct Rows {
        TextGrid* grid;
        int before, after;
    };

    /// A text changed again keeps what stood there first.
    void Add(const TextPlace& place, std::string_view before, std::string_view after);
    void AddRows(TextGrid& grid, int before, int after);
    /// Forgets what came back to where it was.
    void Tidy();

    bool IsEmpty() const { return changes_.empty() && rows_.empty(); }
    const std::vector<Change>& Changes() const { return changes_; }
    const std::vector<Rows>& ChangedRows() const { return rows_; }
    /// The first text that it changed, in the order of the changes.
    TextPlace Place() const;

    /// Whether all of it is one text of one box, as typing letter by letter makes it.
    bool IsOneBox() const { return rows_.empty() && changes_.size() == 1 && !changes_.front().place.IsCell(); }
    /// Takes up a later step of the same box.
    void Continue(const Step& later) { changes_.front().after = later.changes_.front().after; }

    void Undo() const { Put(&Change::before, &Rows::before); }
    void Redo() const { Put(&Change::after, &Rows::after); }

  private:
    void PutSwitches(std::string Change::*text) const;
    void Put(std::string Change::*text, int Rows::*count) const;

    std::vector<Change> changes_;
    std::vector<Rows> rows_;
};

}  // namespace terravane
