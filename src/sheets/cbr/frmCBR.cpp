#include "sheets/cbr/frmCBR.h"

#include <algorithm>

#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kFigureWidth = 700;  // twips, of the readings' columns
constexpr double kDateWidth = 1150;
constexpr double kDepthWidth = 1000;
constexpr std::string_view kThisRow = "แถวนี้";

/// The typed cells behind the dates, which the picker takes.
CellRange BehindDates()
{
    CellRange range = TypedCells(laboratory::kSwelling);
    range.firstColumn = swell::Time;
    return range;
}

/// The way that Enter takes.
constexpr std::array<std::string_view, 9> kWay{"txtClient", "txtID",   "txtProject", "txtLocation", "txtK",
                                               "txtWeight", "txtSoil", "cboTest",    "cboCheck"};

/// The heads over a mold's three columns of the penetration grid, line by line.
struct PenetrationHead {
    std::string_view dial, load, stress;
};
constexpr std::array kPenetrationHeads{
    PenetrationHead{"Dial", "Load", "Stress"},
    PenetrationHead{"Reading", "P", "P/A"},
    PenetrationHead{"(Div)", "(lb)", "(lb/in^2)"},
};

/// The first column has the longest texts.
void SetReadingWidths(TextGrid& grid, double first)
{
    grid.SetColumnWidth(0, first);
    for (int column = 1; column < grid.Columns(); ++column) grid.SetColumnWidth(column, kFigureWidth);
}

void BuildSwellHeads(TextGrid& grid)
{
    grid(swell::Heads, swell::Date) = "Date";
    grid(swell::Heads, swell::Time) = "Time";
    grid(swell::Heads, swell::Elapsed) = "Elapsed";
    grid(swell::Units, swell::Elapsed) = "Time(hr)";
    for (int mold = 1; mold <= kMolds; ++mold) {
        const int dial = swell::Dial(mold);
        grid(swell::Molds, dial) = kMoldNames[static_cast<std::size_t>(mold - 1)];
        grid(swell::Heads, dial) = "Swelling ";
        grid(swell::Units, dial) = "mm";
        grid(swell::Units, dial + 1) = "%";
    }
}

void BuildPenetrationHeads(TextGrid& grid)
{
    grid.SetHeadRows(penetration::kHeadRows);
    grid.SetTitleColumns(0);
    grid(0, penetration::Depth) = "Mold No.";
    grid(1, penetration::Depth) = "Penetration";
    grid(2, penetration::Depth) = "(in)";
    for (int mold = 1; mold <= kMolds; ++mold) {
        grid(0, penetration::Load(mold)) = std::to_string(mold);
        for (int line = 0; line < static_cast<int>(kPenetrationHeads.size()); ++line) {
            const PenetrationHead& head = kPenetrationHeads[static_cast<std::size_t>(line)];
            grid(line + 1, penetration::Dial(mold)) = head.dial;
            grid(line + 1, penetration::Load(mold)) = head.load;
            grid(line + 1, penetration::Stress(mold)) = head.stress;
        }
    }
}

bool IsBlankRow(const TextGrid& grid, int row)
{
    for (int column = 0; column < grid.Columns(); ++column)
        if (!Trim(grid(row, column)).empty()) return false;
    return true;
}

/// The cell's date; today where it has none.
Moment DateOfCell(std::string_view text, Moment today)
{
    try {
        return ParseDate(text);
    } catch (const RuntimeError&) {
        return today;
    }
}

}  // namespace

frmCBR::frmCBR(Program& owner)
    : TestSheet(owner, laboratory::kBearingSheet),
      txtData(*this, "txtData", MSHWater, TypedCellsOf(laboratory::kBearingWater)),
      txtData1(*this, "txtData1", MSHCompaction, TypedCellsOf(laboratory::kBearingDensity)),
      txtData2(*this, "txtData2", MSHSwell, BehindDates),
      txtData3(
          *this, "txtData3", MSHPenetrate1,
          [this] {
              return CellRange{0, MSHPenetrate1.Rows() - 1, penetration::Depth, penetration::Dial(kMolds)};
          },
          [this](int row, int column, std::string text) { return CommitPenetration(row, column, std::move(text)); })
{
    picgraph1.Container = &picGraph;
    picGraph3.Container = &picGraph2;
    dtpSwell.SetVisible(false);
    SSTData.Hold(kValueTab, {&picGraph2, &picGraph3, &fraCompaction, &txtOMC1, &txtMDD1, &cboCBR, &txtCBR, &lbl01,
                             &lbl02, &cmdCBR});
    ChainFocus(kWay);
}

void frmCBR::Form_Load()
{
    BuildGrids();
    DrawEmptyLoadPlot();
    DrawEmptyDensityPlot();
    SSTData.SetTabEnabled(kValueTab, false);
    for (CommandButton* later : {&cmdLPen, &cmdView, &cmdCBR}) later->SetEnabled(false);
    TestSheet::Form_Load();
}

void frmCBR::BuildGrids()
{
    BuildGrid(MSHWater, laboratory::kBearingWater);
    BuildGrid(MSHCompaction, laboratory::kBearingDensity);
    for (int column = 1; column <= kColumns; ++column)
        MSHCompaction(density::Mold, column) = std::to_string((column - 1) % kMolds + 1);
    SetHeads(MSHSwell, laboratory::kSwelling);
    MarkWorkedOut(MSHSwell, laboratory::kSwelling);
    BuildSwellHeads(MSHSwell);
    BuildPenetrationHeads(MSHPenetrate);
    SetReadingWidths(MSHSwell, kDateWidth);
    for (TextGrid* grid : {&MSHPenetrate, &MSHPenetrate1}) SetReadingWidths(*grid, kDepthWidth);
    SetHeads(MSHPenetrate1, laboratory::kPenetrations);
    ShapePenetrations(1);
    SetTitles(mshLPC, laboratory::kBearingRatios);
    WriteConditions("Before Soaking", "After Soaking", {"1 ", "2 ", "3 "});
}

void frmCBR::WriteConditions(std::string_view first, std::string_view second,
                             const std::array<std::string_view, 3>& molds)
{
    for (int mold = 1; mold <= kMolds; ++mold) {
        for (TextGrid* grid : {&MSHWater, &MSHCompaction}) {
            (*grid)(0, mold) = first;
            (*grid)(0, mold + kMolds) = second;
        }
        mshLPC(result::Mold, mold) = molds[static_cast<std::size_t>(mold - 1)];
    }
}

void frmCBR::optUnsoak_Click()
{
    WriteConditions("Before Soaking", "After Soaking", {"1", "2", "3"});
    txtData2.Hide();
    dtpSwell.SetVisible(false);
    MSHSwell.SetEnabled(false);
}

void frmCBR::optSoak_Click()
{
    WriteConditions("Before Soaking", "After Soaking", {"1", "2", "3"});
    MSHSwell.SetEnabled(true);
}

void frmCBR::optBoth_Click()
{
    WriteConditions("Unsoaked", "Soaked", {"Unsoak", "Soak", ""});
    MSHSwell.SetEnabled(true);
}

void frmCBR::optStd_Click()
{
    FetchCompaction(Test::StdSoil, "Stardard Compaction");
}

void frmCBR::optMod_Click()
{
    FetchCompaction(Test::ModSoil, "Modified Compaction");
}

void frmCBR::FetchCompaction(Test test, std::string_view name)
{
    const StoredResults compaction = ResultsOf(test);
    for (TextBox* box : {&txtOMC, &txtOMC1}) box->SetText(compaction["omc"]);
    for (TextBox* box : {&txtMDD, &txtMDD1}) box->SetText(compaction["mdd"]);
    txtCompaction.SetText(name);
}

/// A press on a date shows the picker over it, on another cell the editor. The right button clears a reading.
void frmCBR::MSHSwell_MouseDown(MouseButton button, int row, int column)
{
    dtpSwell.SetVisible(false);
    if (button == MouseButton::Right) return EraseSwelling(row);
    if (column == swell::Date && row >= swell::First) return ShowSwellDate(row);
    txtData2.PressLeft(row, column);
}

void frmCBR::EraseSwelling(int row)
{
    if (row < swell::First || !AsksToErase(kThisRow)) return;
    HideEditors(*this);
    for (int column = 0; column < MSHSwell.Columns(); ++column) MSHSwell(row, column) = "";
}

void frmCBR::ShowSwellDate(int row)
{
    HideEditors(*this);
    MSHSwell.Select(row, swell::Date);
    dtpSwell.SetText(ShortDate(DateOfCell(MSHSwell(row, swell::Date), program.Ask().Now())));
    dtpSwell.SetVisible(true);
    dtpSwell.SetFocus();
}

void frmCBR::dtpSwell_Change()
{
    if (MSHSwell.Row() >= swell::First) MSHSwell(MSHSwell.Row(), swell::Date) = ShortDate(dtpSwell.Value());
}

/// Enter takes the date that is shown and goes down the column; Esc leaves the cell as it is.
bool frmCBR::dtpSwell_KeyPress(Key key)
{
    if (key != Key::Enter && key != Key::Esc) return false;
    if (key == Key::Enter) dtpSwell_Change();
    const int row = MSHSwell.Row();
    if (key == Key::Enter && row < swell::Last) {
        ShowSwellDate(row + 1);
    } else {
        dtpSwell.SetVisible(false);
    }
    return true;
}

/// The right button takes a row out of the list; its last one is emptied.
void frmCBR::MSHPenetrate1_MouseDown(MouseButton button, int row, int column)
{
    if (button == MouseButton::Right) {
        if (AsksToErase(kThisRow)) ErasePenetration(row);
        return;
    }
    if (row != spareRow_) DropSpareRow();
    txtData3.PressLeft(row, column);
}

void frmCBR::ErasePenetration(int row)
{
    HideEditors(*this);
    const int last = MSHPenetrate1.Rows() - 1;
    for (int each = row; each <= last; ++each) {
        for (int column = 0; column < MSHPenetrate1.Columns(); ++column)
            MSHPenetrate1(each, column) = each < last ? MSHPenetrate1(each + 1, column).Text() : std::string();
    }
    ShapePenetrations(std::max(last, 1));
}

void frmCBR::ShapePenetrations(int rows)
{
    MSHPenetrate1.SetRows(rows);
    spareRow_ = 0;
    MarkWorkedOut(MSHPenetrate1, laboratory::kPenetrations);
}

/// A penetration typed into the last row makes room for the next one.
std::string frmCBR::CommitPenetration(int row, int column, std::string text)
{
    const int rows = MSHPenetrate1.Rows();
    if (column == penetration::Depth && row == rows - 1 && rows < kMostPenetrations && !text.empty()) {
        ShapePenetrations(rows + 1);
        spareRow_ = rows;
    }
    return text;
}

/// The row that was made for a penetration that did not come: it would stand as a reading at 0 in.
void frmCBR::DropSpareRow()
{
    const int spare = spareRow_;
    if (spare == 0 || spare != MSHPenetrate1.Rows() - 1 || !IsBlankRow(MSHPenetrate1, spare)) return;
    txtData3.Hide();
    ShapePenetrations(spare);
}

void frmCBR::SSTData_Click(int previousTab)
{
    TestSheet::SSTData_Click(previousTab);
    dtpSwell.SetVisible(false);
    DropSpareRow();
}

void frmCBR::cmdView_Click()
{
    DropSpareRow();
    TestSheet::cmdView_Click();
}

void frmCBR::tblMenu_ButtonClick(int number)
{
    DropSpareRow();
    TestSheet::tblMenu_ButtonClick(number);
}

void frmCBR::LoadChoice(std::string_view stored)
{
    ShapePenetrations(MSHPenetrate1.Rows());
    TestSheet::LoadChoice(stored);
}

}  // namespace terravane
