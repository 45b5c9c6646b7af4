// Texts that a calculation reads as something else than they say.
#include <algorithm>

#include "laboratory/bearing_ratio.h"
#include "notes/figures.h"
#include "notes/rule.h"
#include "runtime/text.h"

namespace terravane::notes {

namespace on_texts {

namespace {

using laboratory::Quantity;

/// A figure that is typed. Blows over layers ("56/5") are a text with two.
bool IsTypedFigure(const laboratory::Value& value)
{
    const Quantity quantity = value.unit.quantity;
    const bool isFigure = quantity != Quantity::Text && value.unit.symbol != laboratory::kDate.symbol;
    return !value.isWorkedOut && (isFigure || quantity == Quantity::Count || quantity == Quantity::Ratio);
}

bool IsReadOtherwise(std::string_view text)
{
    return !text.empty() && !IsNumber(text);
}

void OfGrids(const SheetReadings& read, Findings& found)
{
    const laboratory::Line& blows = laboratory::kBearingDensity[cbr::density::Blows];
    for (const laboratory::Grid& grid : read.Described().sheet.grids) {
        for (const laboratory::Line& line : grid.lines) {
            if (!grid.IsTyped(line.number) || !IsTypedFigure(line.is) || &line == &blows) continue;
            for (int trial = 1; trial <= read.Trials(grid); ++trial) {
                const std::string text = read.Text(grid, line.number, trial);
                if (IsReadOtherwise(text))
                    found.Add(SheetReadings::At(grid, line.number, trial), {Printable(text), Plain(Val(text))});
            }
        }
    }
}

/// Boxes with a list offer texts with a unit behind the figure.
void OfBoxes(const SheetReadings& read, Findings& found)
{
    for (const auto boxes : {read.Described().sheet.boxes, read.Described().sheet.results}) {
        for (const laboratory::Box& box : boxes) {
            if (!IsTypedFigure(box.is) || !box.control.starts_with("txt")) continue;
            const std::string text = read.Text(box);
            if (IsReadOtherwise(text)) found.Add(SheetReadings::At(box), {Printable(text), Plain(Val(text))});
        }
    }
}

void ReadOtherwise(const SheetReadings& read, Findings& found)
{
    OfBoxes(read, found);
    OfGrids(read, found);
}

constexpr Rule kRules[]{
    {"text.read-otherwise",
     Level::Doubtful,
     "Typed figures that are no numbers",
     0,
     {},
     "",
     "how the sheets read figures",
     "\"{}\" is read as {}.",
     "Type the figure in plain digits with a point.",
     ReadOtherwise},
};

}  // namespace

}  // namespace on_texts

std::span<const Rule> TextRules()
{
    return on_texts::kRules;
}

}  // namespace terravane::notes
