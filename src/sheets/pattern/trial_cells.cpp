#include "sheets/pattern/trial_cells.h"

#include "runtime/numbers.h"

namespace terravane {

std::string Shown(const laboratory::Value& is, double number)
{
    return is.mask.empty() ? NumberText(number) : Format(number, is.mask);
}

Cell TrialCells::operator[](int line) const
{
    return described_.IsAcross() ? grid_(line, number_) : grid_(number_, line);
}

double TrialCells::Value(int line) const
{
    return Val((*this)[line]);
}

void TrialCells::Show(int line, double number) const
{
    (*this)[line] = Shown(described_[line].is, number);
}

}  // namespace terravane
