#include "sheets/cbr/frmCBR.h"

#include <algorithm>

#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr double kTitleWidth = 2900;   // twips, of the grids' titles
constexpr double kResultWidth = 2100;  // of mshLPC's
constexpr double kFigureWidth = 700;   // twips, of the readings' columns
constexpr double kDateWidth = 1150;
constexpr double kDepthWidth = 1000;
constexpr std::string_view kThisRow = "แถวนี้";

constexpr CellRange kWeighings{water::CanNumber, water::Can, 1, kColumns};
constexpr CellRange kMeasures{density::Blows, density::JustMould, 1, kColumns};
constexpr CellRange kDials{swell::First, swell::Last, swell::Time, swell::Dial(kMoulds)};

/// The way that Enter takes.
constexpr std::array<std::string_view, 9> kWay{"txtClient", "txtID",   "txtProject", "txtLocation", "txtK",
                                               "txtWeight", "txtSoil", "cboTest",    "cboCheck"};

/// The heads over a mould's three columns of the penetration grid, line by line.
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
    grid.SetHeadRows(swell::First);
    grid.SetTitleColumns(0);
    grid(swell::Heads, swell::Date) = "Date";
    grid(swell::Heads, swell::Time) = "Time";
    grid(swell::Heads, swell::Elapsed) = "Elapsed";
    grid(swell::Units, swell::Elapsed) = "Time(hr)";
    for (int mould = 1; mould <= kMoulds; ++mould) {
        const int dial = swell::Dial(mould);
        grid(swell::Moulds, dial) = kMouldNames[static_cast<std::size_t>(mould - 1)];
        grid(swell::Heads, dial) = "Swelling ";
        grid(swell::Units, dial) = "mm";
        grid(swell::Units, dial + 1) = "%";
    }
    for (int row = swell::First; row <= swell::Last; ++row) {
        grid.MarkCalculated(row, swell::Elapsed);
        for (int mould = 1; mould <= kMoulds; ++mould) grid.MarkCalculated(row, swell::Dial(mould) + 1);
    }
}

void BuildPenetrationHeads(TextGrid& grid)
{
    grid.SetHeadRows(penetration::kHeadRows);
    grid.SetTitleColumns(0);
    grid(0, penetration::Depth) = "Mold No.";
    grid(1, penetration::Depth) = "Penetration";
    grid(2, penetration::Depth) = "(in)";
    for (int mould = 1; mould <= kMoulds; ++mould) {
        grid(0, penetration::Load(mould)) = std::to_string(mould);
        for (int line = 0; line < static_cast<int>(kPenetrationHeads.size()); ++line) {
            const PenetrationHead& head = kPenetrationHeads[static_cast<std::size_t>(line)];
            grid(line + 1, penetration::Dial(mould)) = head.dial;
            grid(line + 1, penetration::Load(mould)) = head.load;
            grid(line + 1, penetration::Stress(mould)) = head.stress;
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
    : TestSheet(owner, "frmCBR", "California Bearing Ratio Test",
                {"Water Content and Density", "Swelling and Penetration", "Load-Penetration Curve",
                 "CBR Value Determination"}),
      txtData(*this, "txtData", MSHWater, [] { return kWeighings; }),
      txtData1(*this, "txtData1", MSHCompaction, [] { return kMeasures; }),
      txtData2(*this, "txtData2", MSHSwell, [] { return kDials; }),
      txtData3(
          *this, "txtData3", MSHPenetrate1,
          [this] {
              return CellRange{0, MSHPenetrate1.Rows() - 1, penetration::Depth, penetration::Dial(kMoulds)};
          },
          [this](int row, int column, std::string text) { return CommitPenetration(row, column, std::move(text)); })
{
    picgraph1.Container = &picGraph;
    picGraph3.Container = &picGraph2;
    dtpSwell.SetVisible(false);
    WireEvents();
    ChainFocus(kWay);
}

void frmCBR::WireEvents()
{
    optUnsoak.Click = [this] { optUnsoak_Click(); };
    optSoak.Click = [this] { optSoak_Click(); };
    optBoth.Click = [this] { optBoth_Click(); };
    optStd.Click = [this] { optStd_Click(); };
    optMod.Click = [this] { optMod_Click(); };
    cmdPen.Click = [this] { cmdPen_Click(); };
    cmdLPen.Click = [this] { cmdLPen_Click(); };
    cmdCBR.Click = [this] { cmdCBR_Click(); };
    lblMold1.Click = [this] { lblMold1_Click(); };
    lblMold2.Click = [this] { lblMold2_Click(); };
    lblMold3.Click = [this] { lblMold3_Click(); };
    lbl01.Click = [this] { lbl01_Click(); };
    lbl02.Click = [this] { lbl02_Click(); };
    SSTData.TabChanged = [this](int previousTab) { SSTData_Click(previousTab); };
    WireGrids();
    cmdView.Click = [this] {
        DropSpareRow();
        cmdView_Click();
    };
    tblMenu.ButtonClick = [this](int number) {
        DropSpareRow();
        tblMenu_ButtonClick(number);
    };
}

void frmCBR::WireGrids()
{
    OpenByMouse(txtData);
    OpenByMouse(txtData1);
    MSHSwell.MouseDown = [this](MouseButton button, int row, int column) { MSHSwell_MouseDown(button, row, column); };
    MSHPenetrate1.MouseDown = [this](MouseButton button, int row, int column) {
        MSHPenetrate1_MouseDown(button, row, column);
    };
    dtpSwell.Change = [this] { dtpSwell_Change(); };
    dtpSwell.KeyPress = [this](Key key) { return dtpSwell_KeyPress(key); };
    dtpSwell.LostFocus = [this] { dtpSwell.SetVisible(false); };
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
    MSHWater.SetRowTitles({"Condition", "Can No.", "Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)",
                           "Mass of Can, (g)", "Moistue Content, (%)"});
    MSHCompaction.SetRowTitles({"Condition", "Mold No.", "Number of Blows per Layer/Layers", "Diameter of Sample, (cm)",
                                "Height of Sample, (cm)", "Mass of Mold + Compacted Soil, (g)", "Mass of Mold, (g)",
                                "Wet Density, (g/cm^3)", "Dry Density, (g/cm^3)"});
    MSHCompaction.SetHeadRows(density::Blows);
    for (TextGrid* grid : {&MSHWater, &MSHCompaction}) grid->SetColumnWidth(0, kTitleWidth);
    for (int column = 1; column <= kColumns; ++column)
        MSHCompaction(density::Mould, column) = std::to_string((column - 1) % kMoulds + 1);
    MarkCalculatedFrom(MSHWater, water::WaterContent);
    MarkCalculatedFrom(MSHCompaction, density::WetDensity);
    BuildSwellHeads(MSHSwell);
    BuildPenetrationHeads(MSHPenetrate);
    SetReadingWidths(MSHSwell, kDateWidth);
    for (TextGrid* grid : {&MSHPenetrate, &MSHPenetrate1}) SetReadingWidths(*grid, kDepthWidth);
    MSHPenetrate1.SetHeadRows(0);
    MSHPenetrate1.SetTitleColumns(0);
    ShapePenetrations(1);
    mshLPC.SetColumnWidth(0, kResultWidth);
    mshLPC.SetRowTitles({"Mold No. ", "Dry Density (g/cm^3)  ", "CBR at 0.1 in. (%) ", "CBR at 0.2 in. (%)"});
    WriteConditions("Before Soaking", "After Soaking", {"1 ", "2 ", "3 "});
}

void frmCBR::WriteConditions(std::string_view first, std::string_view second,
                             const std::array<std::string_view, 3>& moulds)
{
    for (int mould = 1; mould <= kMoulds; ++mould) {
        for (TextGrid* grid : {&MSHWater, &MSHCompaction}) {
            (*grid)(0, mould) = first;
            (*grid)(0, mould + kMoulds) = second;
        }
        mshLPC(result::Mould, mould) = moulds[static_cast<std::size_t>(mould - 1)];
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
    for (int row = 0; row < rows; ++row) {
        for (int mould = 1; mould <= kMoulds; ++mould) {
            MSHPenetrate1.MarkCalculated(row, penetration::Load(mould));
            MSHPenetrate1.MarkCalculated(row, penetration::Stress(mould));
        }
    }
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

void frmCBR::SSTData_Click(int)
{
    HideEditors(*this);
    dtpSwell.SetVisible(false);
    DropSpareRow();
}

void frmCBR::LoadChoice(std::string_view stored)
{
    ShapePenetrations(MSHPenetrate1.Rows());
    TestSheet::LoadChoice(stored);
}

}  // namespace terravane
