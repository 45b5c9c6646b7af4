#include "journal/step.h"

#include <algorithm>
#include <utility>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/visit_control.h"
#include "laboratory/general_data.h"
#include "laboratory/tests.h"
#include "program/next_command.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr std::string_view kOn = OnOrOffText(true);

struct IsTypedKind {
    bool operator()(const DatePicker& picker) const { return picker.Name() == laboratory::kTestDate.control; }
    bool operator()(const OneOf<TextBox, ComboBox, TextGrid, OptionButton, CheckBox, ListBox> auto&) const
    {
        return true;
    }
    bool operator()(const OneOf<CellEditor, ListCellEditor, CommandButton, Frame, Image, Label, MenuEntry, PictureBox,
                                ScrollBar, StatusBar, TabControl, Timer, Toolbar> auto&) const
    {
        return false;
    }
};

bool IsWithin(const TextGrid& grid, const TextPlace& place)
{
    return place.row >= 0 && place.row < grid.Rows() && place.column >= 0 && place.column < grid.Columns();
}

struct TextIn {
    const TextPlace& place;

    std::string operator()(const TextGrid& grid) const
    {
        return IsWithin(grid, place) ? grid(place.row, place.column) : std::string();
    }
    std::string operator()(const OneOf<OptionButton, CheckBox> auto& of) const
    {
        return std::string(OnOrOffText(of.Value()));
    }
    std::string operator()(const ListBox& list) const
    {
        return std::string(OnOrOffText(list.Selected(static_cast<std::size_t>(place.row))));
    }
    std::string operator()(const Control& other) const { return other.Text(); }
};

struct PutInto {
    const TextPlace& place;
    std::string_view text;

    void operator()(OneOf<TextBox, ComboBox, DatePicker> auto& box) const { box.SetText(text); }
    void operator()(TextGrid& grid) const
    {
        if (IsWithin(grid, place)) grid(place.row, place.column) = text;
    }
    void operator()(OptionButton& option) const { text == kOn ? option.Choose() : option.Release(); }
    void operator()(CheckBox& box) const { box.SetValue(text == kOn); }
    void operator()(ListBox& list) const { list.SetSelected(static_cast<std::size_t>(place.row), text == kOn); }
    void operator()(Control&) const {}
};

struct IsSwitchKind {
    bool operator()(const OneOf<OptionButton, CheckBox, ListBox> auto&) const { return true; }
    bool operator()(const Control&) const { return false; }
};

bool IsSwitch(const Control& control)
{
    return VisitControl(IsSwitchKind{}, control);
}

/// Rows that come take the marks that the sheet's description gives them.
void MarkWorkedOut(TextGrid& grid)
{
    const laboratory::Sheet* sheet = SheetOfForm(grid.Owner().Name());
    if (!sheet) return;
    const auto described = std::ranges::find(sheet->grids, grid.Name(), &laboratory::Grid::control);
    if (described == sheet->grids.end() || described->IsAcross()) return;
    for (const laboratory::Line& line : described->lines)
        for (int row = described->firstTrial; line.is.isWorkedOut && row < grid.Rows(); ++row)
            grid.MarkCalculated(row, line.number);
}

void SetRows(TextGrid& grid, int rows)
{
    if (grid.Rows() == rows) return;
    grid.SetRows(rows);
    MarkWorkedOut(grid);
}

/// What a switch sets off may fail, where it reads a file that is gone: the texts are put back all the same.
void PutSwitch(const TextPlace& place, const std::string& text)
try {
    PutText(place, text);
} catch (const RuntimeError&) {
}

/// The texts of a form as they stand: what a switch sets off writes into more of them than the step did.
class KeptTexts {
  public:
    explicit KeptTexts(Form& form)
    {
        for (Control* control : form.Controls()) {
            if (!HoldsTypedText(*control) || IsSwitch(*control)) continue;
            if (auto* grid = dynamic_cast<TextGrid*>(control))
                KeepCells(*grid);
            else
                texts_.emplace_back(TextPlace{control}, TextAt({control}));
        }
    }
    void PutBack() const
    {
        for (const auto& [place, text] : texts_) PutText(place, text);
    }

  private:
    void KeepCells(TextGrid& grid)
    {
        for (int row = 0; row < grid.Rows(); ++row)
            for (int column = 0; column < grid.Columns(); ++column)
                texts_.emplace_back(TextPlace{&grid, row, column}, std::as_const(grid)(row, column));
    }

    std::vector<std::pair<TextPlace, std::string>> texts_;
};

}  // namespace

std::string NameOf(const TextPlace& place)
{
    if (!place.IsCell()) return place.control->Name();
    return place.control->Name() + " " + std::to_string(place.row) + " " + std::to_string(place.column);
}

bool HoldsTypedText(const Control& control)
{
    return VisitControl(IsTypedKind{}, control);
}

std::string TextAt(const TextPlace& place)
{
    return VisitControl(TextIn{place}, static_cast<const Control&>(*place.control));
}

void PutText(const TextPlace& place, std::string_view text)
{
    VisitControl(PutInto{place, text}, *place.control);
}

void Step::Add(const TextPlace& place, std::string_view before, std::string_view after)
{
    const auto known = std::ranges::find(changes_, place, &Change::place);
    if (known != changes_.end())
        known->after = after;
    else
        changes_.push_back({place, std::string(before), std::string(after)});
}

void Step::AddRows(TextGrid& grid, int before, int after)
{
    const auto known = std::ranges::find(rows_, &grid, &Rows::grid);
    if (known != rows_.end())
        known->after = after;
    else
        rows_.push_back({&grid, before, after});
}

void Step::Tidy()
{
    std::erase_if(changes_, [](const Change& change) { return change.before == change.after; });
    std::erase_if(rows_, [](const Rows& rows) { return rows.before == rows.after; });
}

TextPlace Step::Place() const
{
    return changes_.empty() ? TextPlace{rows_.front().grid} : changes_.front().place;
}

void Step::PutSwitches(std::string Change::*text) const
{
    const auto isSwitch = [](const Change& change) { return IsSwitch(*change.place.control); };
    if (std::ranges::none_of(changes_, isSwitch)) return;
    const KeptTexts kept(changes_.front().place.control->Owner());
    for (const Change& change : changes_)
        if (isSwitch(change)) PutSwitch(change.place, change.*text);
    kept.PutBack();
}

/// The switches come first, since what they set off writes texts; rows that are taken away go last, since what stood in
/// them was emptied before.
void Step::Put(std::string Change::*text, int Rows::*count) const
{
    PutSwitches(text);
    for (const Rows& rows : rows_) SetRows(*rows.grid, std::max({rows.before, rows.after, rows.grid->Rows()}));
    for (const Change& change : changes_)
        if (!IsSwitch(*change.place.control)) PutText(change.place, change.*text);
    for (const Rows& rows : rows_) SetRows(*rows.grid, rows.*count);
}

}  // namespace terravane
