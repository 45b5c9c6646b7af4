// Typing into the compaction sheet: what cells make of a text, the mouse, tabs, focus, hover and the bars.
#include <gtest/gtest.h>

#include "support/laboratory.h"

namespace terravane::compaction {
namespace {

using support::Laboratory;
using support::TypeCell;
using support::Untrapped;

struct CompactionEditing : testing::Test {
    Laboratory lab;
    frmCompaction& sheet = lab.OpenSheet();
};

/// A text typed into a cell, and what stands there afterwards.
struct Typed {
    int row, trial;
    std::string_view text, shown;
};

/// All cells are typed before any is looked at.
void ExpectShown(CellEditor& editor, const std::vector<Typed>& cells)
{
    for (const Typed& cell : cells) TypeCell(editor, cell.row, cell.trial, cell.text);
    for (const Typed& cell : cells)
        EXPECT_EQ(editor.Grid()(cell.row, cell.trial), cell.shown) << '"' << cell.text << "\" was typed.";
}

// Halves go away from zero.
TEST_F(CompactionEditing, ShowsMassesToAHundredthAndCanNumbersAsTyped)
{
    ExpectShown(sheet.txtData, {{water::CanNumber, 1, "  12 ", "12"},
                                {water::WetAndCan, 1, " 12 ", "12.00"},
                                {water::DryAndCan, 1, "12.005", "12.01"},
                                {water::Can, 1, "-.5", "-0.50"}});
}

TEST_F(CompactionEditing, LeavesATextThatIsNoNumber)
{
    ExpectShown(sheet.txtData, {{water::WetAndCan, 1, "85.32g", "85.32g"},
                                {water::DryAndCan, 1, "-", "-"},
                                {water::Can, 1, "  ", ""},
                                {water::CanNumber, 2, "กระป๋อง", "กระป๋อง"}});
}

TEST_F(CompactionEditing, KeepsMoldMassesAsTyped)
{
    ExpectShown(sheet.txtData1, {{density::AssumedWater, 1, " 8 ", "8"},
                                 {density::WetAndMold, 1, "12", "12"},
                                 {density::Mold, 1, "1876.0", "1876.0"}});
}

TEST_F(CompactionEditing, TakesTheMoldOfTheTrialBeforeForADittoMark)
{
    ExpectShown(sheet.txtData1, {{density::Mold, 1, "1876", "1876"},
                                 {density::Mold, 2, " / ", "1876"},
                                 {density::Mold, 3, "/", "1876"},
                                 {density::Mold, 4, "//", "//"}});
}

TEST_F(CompactionEditing, KnowsADittoOnlyForMoldsBehindTheFirst)
{
    ExpectShown(
        sheet.txtData1,
        {{density::Mold, 1, "/", "/"}, {density::WetAndMold, 2, "/", "/"}, {density::AssumedWater, 2, "/", "/"}});
    ExpectShown(sheet.txtData, {{water::Can, 2, "/", "/"}, {water::CanNumber, 2, "/", "/"}});
    support::SetMold(sheet);
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "     ") << "The mark reads 0: no mold.";
}

TEST_F(CompactionEditing, TitlesItsGrids)
{
    const std::vector<std::string> weighings{
        "Sample No. ",       "Moisture Can No. ",   "Mass of Can + Wet Soil, (g) ", "Mass of Can + Dry Soil, (g) ",
        "Mass of Can, (g) ", "Mass of Water, (g) ", "Mass of Dry Soil, (g) ",       "Water Content, (%)"};
    const std::vector<std::string> molds{
        "Assumed Water Content, (%)",     "Mass of Wet Soil + Mold, (g)", "Mass of Mold, (g)",     "Water Content, (%)",
        "Mass of Wet Soil in Mold, (g) ", "Wet Density, (g/cm^3)",        "Dry  Density, (g/cm^3)"};
    ASSERT_EQ(sheet.MSHWt.Rows(), 8);
    ASSERT_EQ(sheet.MSHDensity.Rows(), 7);
    EXPECT_EQ(sheet.MSHWt.Columns(), 7);
    EXPECT_EQ(sheet.MSHDensity.Columns(), 7);
    for (int row = 0; row < 8; ++row) EXPECT_EQ(sheet.MSHWt(row, 0), weighings[static_cast<std::size_t>(row)]);
    for (int row = 0; row < 7; ++row) EXPECT_EQ(sheet.MSHDensity(row, 0), molds[static_cast<std::size_t>(row)]);
    EXPECT_EQ(sheet.MSHWt(0, 1), "1 ");
    EXPECT_EQ(sheet.MSHWt(0, 6), "6 ");
}

TEST_F(CompactionEditing, ColoursItsCalculatedRows)
{
    for (int row = 1; row < 8; ++row) EXPECT_EQ(sheet.MSHWt.IsCalculated(row, 1), row >= 5) << "Row " << row;
    for (int row = 0; row < 7; ++row) EXPECT_EQ(sheet.MSHDensity.IsCalculated(row, 6), row >= 3) << "Row " << row;
}

TEST_F(CompactionEditing, OpensTheEditorOfTheGridThatIsPressed)
{
    sheet.MSHWt(2, 3) = "58.22";
    sheet.MSHWt.PressMouse(MouseButton::Left, 2, 3);
    EXPECT_TRUE(sheet.txtData.Visible());
    EXPECT_EQ(sheet.txtData.Text(), "58.22");
    sheet.MSHDensity.PressMouse(MouseButton::Left, 0, 3);
    EXPECT_FALSE(sheet.txtData.Visible());
    EXPECT_TRUE(sheet.txtData1.Visible());
    sheet.MSHDensity.PressMouse(MouseButton::Left, 3, 3);
    EXPECT_FALSE(sheet.txtData1.Visible()) << "Calculated rows are not typed into.";
    sheet.MSHWt.PressMouse(MouseButton::Left, 5, 1);
    EXPECT_FALSE(sheet.txtData.Visible());
}

TEST_F(CompactionEditing, TakesAPressOnTheTitlesAsTheFirstTrial)
{
    sheet.MSHWt.PressMouse(MouseButton::Left, 2, 0);
    EXPECT_TRUE(sheet.txtData.Visible());
    EXPECT_EQ(sheet.MSHWt.Column(), 1);
}

TEST_F(CompactionEditing, ErasesATrialAfterAsking)
{
    support::SetMold(sheet);
    support::TypeTrial(sheet, 2, {"A2", "140", "130", "15", "8", "3552", "1876"});
    support::TypeTrial(sheet, 3, {"A3", "140", "130", "15", "8", "3552", "1876"});
    sheet.cmdCal.Press();
    sheet.MSHWt.PressMouse(MouseButton::Right, 6, 2);
    ASSERT_EQ(lab.ask.messages.size(), 1U);
    EXPECT_EQ(lab.ask.messages[0].text, "คุณต้องการลบข้อมูลคอมลัมภ์นี้ใช่หรือไม่?");
    EXPECT_EQ(lab.ask.messages[0].title, "ยืนยันการลบ");
    EXPECT_EQ(lab.ask.messages[0].buttons, MessageButtons::OkCancel);
    for (int row = 1; row < 8; ++row) EXPECT_EQ(sheet.MSHWt(row, 2), "") << "Row " << row;
    for (int row = 0; row < 7; ++row) EXPECT_EQ(sheet.MSHDensity(row, 2), "") << "Row " << row;
    EXPECT_EQ(sheet.MSHWt(0, 2), "2 ") << "The head stays.";
    EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 3), "1.64") << "So does the next trial.";
}

TEST_F(CompactionEditing, ErasesTheFirstTrialAtAPressOnTheTitles)
{
    support::SetMold(sheet);
    support::TypeTrial(sheet, 1, {"A1", "140", "130", "15", "8", "3552", "1876"});
    sheet.MSHWt.PressMouse(MouseButton::Right, 2, 0);
    ASSERT_EQ(lab.ask.messages.size(), 1U);
    EXPECT_EQ(sheet.MSHWt(water::CanNumber, 1), "");
    EXPECT_EQ(sheet.MSHDensity(density::Mold, 1), "");
    EXPECT_EQ(sheet.MSHWt(water::CanNumber, 0), "Moisture Can No. ") << "The titles stay.";
    EXPECT_EQ(sheet.MSHDensity(density::Mold, 0), "Mass of Mold, (g)");
}

TEST_F(CompactionEditing, KeepsATrialWhenTheQuestionIsCancelled)
{
    TypeCell(sheet.txtData, water::CanNumber, 1, "A1");
    lab.ask.answer = MessageAnswer::Cancel;
    sheet.MSHWt.PressMouse(MouseButton::Right, 1, 1);
    EXPECT_EQ(lab.ask.messages.size(), 1U);
    EXPECT_EQ(sheet.MSHWt(water::CanNumber, 1), "A1");
}

TEST_F(CompactionEditing, AsksNothingOnTheDensityGrid)
{
    TypeCell(sheet.txtData1, density::Mold, 1, "1876");
    sheet.MSHDensity.PressMouse(MouseButton::Right, 2, 1);
    EXPECT_TRUE(lab.ask.messages.empty());
    EXPECT_EQ(sheet.MSHDensity(density::Mold, 1), "1876");
}

TEST_F(CompactionEditing, HidesItsEditorsWhenTheTabChanges)
{
    sheet.txtData.OpenAt(1, 1);
    sheet.SSTData.SetTab(1);
    EXPECT_FALSE(sheet.txtData.Visible());
    sheet.txtData1.OpenAt(0, 1);
    sheet.SSTData.SetTab(0);
    EXPECT_FALSE(sheet.txtData1.Visible());
}

TEST_F(CompactionEditing, FillsThePointsWhenTheDataTabIsLeft)
{
    support::SetMold(sheet);
    support::TypeTrial(sheet, 1, {"A1", "140", "130", "15", "8", "3552", "1876"});
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHData.Rows(), 1);
    sheet.SSTData.SetTab(1);
    EXPECT_EQ(sheet.MSHData.Rows(), 2);
    EXPECT_EQ(sheet.MSHData(1, 0), "8.70");
    EXPECT_EQ(sheet.MSHData(1, 1), "1.64");
    EXPECT_EQ(sheet.MSHData(0, 0), "wc\n  \n(%)");
    EXPECT_EQ(sheet.MSHData(0, 1), "Dry Density\n  \n(g/cm^3)");
    sheet.MSHDensity(density::Mold, 1) = "";
    sheet.SSTData.SetTab(0);
    EXPECT_EQ(sheet.MSHData.Rows(), 2) << "The way back fills nothing.";
}

TEST_F(CompactionEditing, ChainsItsFieldsByEnter)
{
    const std::vector<std::pair<const char*, const char*>> links{
        {"txtClient", "txtID"},  {"txtID", "txtProject"},  {"txtProject", "txtLocation"}, {"txtLocation", "txtDia"},
        {"txtDia", "txtHeight"}, {"txtHeight", "txtSoil"}, {"txtSoil", "cboTest"},        {"cboTest", "cboCheck"},
        {"cboWt", "cboBlow"},    {"cboBlow", "cboLayer"},  {"cboLayer", "txtProject"},
    };
    for (const auto& [from, to] : links) {
        auto& left = sheet.Get<TextControl>(from);
        auto& entered = sheet.Get<TextControl>(to);
        left.SetFocus();
        const int before = entered.SelectAllRequests();
        EXPECT_TRUE(left.PressKey(Key::Enter)) << from << " swallows Enter.";
        EXPECT_EQ(sheet.ActiveControl(), &entered) << from << " leads to " << to << ".";
        EXPECT_EQ(entered.SelectAllRequests(), before + 1) << to << " is selected whole.";
    }
    sheet.cboCheck.SetFocus();
    EXPECT_FALSE(sheet.cboCheck.PressKey(Key::Enter)) << "The chain ends here.";
    sheet.txtClient.SetFocus();
    EXPECT_FALSE(sheet.txtClient.PressKey(Key::Down));
    EXPECT_EQ(sheet.ActiveControl(), &sheet.txtClient);
}

TEST_F(CompactionEditing, HidesItsEditorsWhenAFieldOfTheHeadIsEntered)
{
    for (const char* name : {"txtClient", "txtID", "txtProject", "txtLocation", "txtSoil", "cboTest", "cboCheck",
                             "DTPDate", "txtDia", "txtHeight", "cboWt", "cboBlow", "cboLayer"}) {
        sheet.txtData.OpenAt(1, 1);
        sheet.Find(name)->SetFocus();
        EXPECT_FALSE(sheet.txtData.Visible()) << name;
        sheet.txtData1.OpenAt(0, 1);
        sheet.Find(name)->SetFocus();
        EXPECT_FALSE(sheet.txtData1.Visible()) << name;
    }
}

TEST_F(CompactionEditing, ColoursItsCommandsUnderTheMouse)
{
    const Colour rest{255, 192, 128}, hover{255, 224, 192};
    EXPECT_EQ(sheet.cmdCal.BackColor(), rest);
    sheet.cmdCal.MouseMove();
    sheet.cmdView.MouseMove();
    EXPECT_EQ(sheet.cmdCal.BackColor(), hover);
    EXPECT_EQ(sheet.cmdView.BackColor(), hover);
    const auto curve = sheet.cmdOMC.BackColor();
    if (sheet.cmdOMC.MouseMove) sheet.cmdOMC.MouseMove();
    EXPECT_EQ(sheet.cmdOMC.BackColor(), curve) << "The curve's command keeps its colour.";
    sheet.Form_MouseMove();
    EXPECT_EQ(sheet.cmdCal.BackColor(), rest);
    EXPECT_EQ(sheet.cmdView.BackColor(), rest);
    sheet.cmdView.MouseMove();
    sheet.cmdView.MouseLeave();
    EXPECT_EQ(sheet.cmdView.BackColor(), rest) << "The mouse may leave a command for another window.";
}

TEST_F(CompactionEditing, ShowsTheHandOverItsCommandsFromAHiddenImage)
{
    for (const Control* pointed :
         std::initializer_list<const Control*>{&sheet.cmdCal, &sheet.cmdView, &sheet.cmdOMC, &sheet.tblMenu})
        EXPECT_EQ(pointed->MousePointer(), Pointer::Hand) << pointed->Name();
    EXPECT_FALSE(sheet.imgMouse.Visible());
}

TEST_F(CompactionEditing, TheBannerIsWhite)
{
    EXPECT_EQ(sheet.txtLabName.ForeColor(), kWhite);
}

TEST_F(CompactionEditing, ShowsTheTimeAtEachTick)
{
    lab.ask.now = MakeMoment(2026, 11, 21, 9, 5, 7);
    sheet.Timer1.Tick();
    EXPECT_EQ(sheet.stbDes.Panel(kClockPanel), "09 : 05 : 07");
}

TEST_F(CompactionEditing, LeavesTheScreenByItsSecondButton)
{
    EXPECT_EQ(sheet.tblMenu.Button(1).toolTip, "Save File");
    EXPECT_EQ(sheet.tblMenu.Button(2).toolTip, "Exit Screen");
    sheet.txtSoil.Type("not saved");
    sheet.tblMenu.Press(2);
    EXPECT_EQ(lab.program.Loaded("frmCompaction"), nullptr);
    EXPECT_TRUE(lab.ask.messages.empty()) << "It does not ask.";
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_soil")[0], "   ") << "And it does not save.";
}

TEST_F(CompactionEditing, AsksForThePreviewByItsName)
{
    struct Preview : Form {
        explicit Preview(Program& program) : Form(program, "frmPreview", "") {}
    };
    lab.program.AddForm("frmPreview", [](Program& owner) { return std::make_unique<Preview>(owner); });
    sheet.cmdView.Press();
    ASSERT_EQ(lab.program.ShownForms().size(), 2U);
    EXPECT_EQ(lab.program.ShownForms().back().form->Name(), "frmPreview");
    EXPECT_EQ(lab.program.ShownForms().back().modality, Modality::Modal);
}

}  // namespace
}  // namespace terravane::compaction
