/// The figures of a sheet as its description writes them: no handler knows a mask that a line or a box has already.
#pragma once

#include <string>

#include "controls/text_grid.h"
#include "laboratory/description.h"

namespace terravane {

/// A number through the value's mask; without one, as the number stands.
std::string Shown(const laboratory::Value& is, double number);

/// One trial of a grid, its cells found by the names of the lines.
class TrialCells {
  public:
    /// number  the column of trials that stand side by side, the row of those one below another
    TrialCells(TextGrid& grid, const laboratory::Grid& described, int number)
        : grid_(grid), described_(described), number_(number)
    {}

    /// Error 9 "Subscript out of range" outside the grid.
    Cell operator[](int line) const;
    /// What Val reads there.
    double Value(int line) const;
    /// Writes a worked out number as its line shows it: the next stage reads that text.
    void Show(int line, double number) const;

  private:
    TextGrid& grid_;
    const laboratory::Grid& described_;
    int number_;
};

}  // namespace terravane
