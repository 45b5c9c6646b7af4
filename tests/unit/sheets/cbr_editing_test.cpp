// What a technician types and chooses on the bearing ratio sheet.
#include <gtest/gtest.h>

#include "support/cbr_laboratory.h"

namespace terravane {
namespace {

using namespace support;

namespace pen = cbr::penetration;

struct CbrEditing : testing::Test {
    CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    std::string Depths() const
    {
        std::string text;
        for (int row = 0; row < sheet.MSHPenetrate1.Rows(); ++row)
            text += (row == 0 ? "" : "|") + sheet.MSHPenetrate1(row, 0).Text();
        return text;
    }
};

TEST_F(CbrEditing, ANewSheetShowsItsTitles)
{
    EXPECT_EQ(CellsOf(sheet.MSHWater, 0, 0, 6),
              "Condition|Before Soaking|Before Soaking|Before Soaking|After Soaking|After Soaking|After Soaking");
    EXPECT_EQ(CellsOf(sheet.MSHCompaction, 1, 0, 6), "Mold No.|1|2|3|1|2|3");
    EXPECT_EQ(sheet.MSHWater(5, 0), "Moistue Content, (%)");
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 2, 0, 8), "||Time(hr)|mm|%|mm|%|mm|%")
        << "A new project's blanks do not hide it.";
    EXPECT_EQ(sheet.mshLPC(1, 0), "Dry Density (g/cm^3)  ");
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 1);
    EXPECT_EQ(sheet.SSTData.Count(), 4);
    EXPECT_FALSE(sheet.SSTData.TabEnabled(3));
    EXPECT_EQ(sheet.cboCBR.Text(), "95%");
}

TEST_F(CbrEditing, TheConditionNamesTheColumns)
{
    sheet.optBoth.Choose();
    EXPECT_EQ(CellsOf(sheet.MSHWater, 0, 1, 6), "Unsoaked|Unsoaked|Unsoaked|Soaked|Soaked|Soaked");
    EXPECT_EQ(CellsOf(sheet.MSHCompaction, 0, 1, 6), "Unsoaked|Unsoaked|Unsoaked|Soaked|Soaked|Soaked");
    EXPECT_EQ(CellsOf(sheet.mshLPC, 0, 1, 3), "Unsoak|Soak|");
    EXPECT_TRUE(sheet.MSHSwell.Enabled());
    for (OptionButton* option : {&sheet.optUnsoak, &sheet.optSoak}) {
        option->Choose();
        EXPECT_EQ(CellsOf(sheet.MSHWater, 0, 3, 4), "Before Soaking|After Soaking");
        EXPECT_EQ(CellsOf(sheet.MSHCompaction, 0, 3, 4), "Before Soaking|After Soaking");
        EXPECT_EQ(CellsOf(sheet.mshLPC, 0, 1, 3), "1|2|3");
        EXPECT_EQ(sheet.MSHSwell.Enabled(), option == &sheet.optSoak);
    }
}

TEST_F(CbrEditing, CompactionParametersComeFromTheSavedTests)
{
    lab.Change("UPDATE STDSOIL Set std_omc ='12.0',  std_mdd ='1.95' Where std_ID =' 1'");
    lab.Change("UPDATE MODSOIL Set mod_omc ='9.4',  mod_mdd ='2.10' Where mod_ID =' 1'");
    sheet.optStd.Choose();
    EXPECT_EQ(sheet.txtCompaction.Text(), "Stardard Compaction");
    EXPECT_EQ(sheet.txtOMC.Text() + "|" + sheet.txtOMC1.Text(), "12.0|12.0");
    EXPECT_EQ(sheet.txtMDD.Text() + "|" + sheet.txtMDD1.Text(), "1.95|1.95");
    sheet.optMod.Choose();
    EXPECT_EQ(sheet.txtCompaction.Text(), "Modified Compaction");
    EXPECT_EQ(sheet.txtOMC.Text() + "|" + sheet.txtMDD1.Text(), "9.4|2.10");
}

TEST_F(CbrEditing, CrushedRockTakesItsOwnCompaction)
{
    frmCBR& rock = lab.OpenCbr(Material::Crush);
    lab.Change("UPDATE STDCRUSH Set std_omc ='6.1',  std_mdd ='2.25' Where std_ID =' 1'");
    rock.optStd.Choose();
    EXPECT_EQ(rock.txtOMC.Text() + "|" + rock.txtMDD.Text(), "6.1|2.25");
    rock.optMod.Choose();
    EXPECT_EQ(rock.txtMDD.Text(), "   ") << "A modified test that was never saved has three blanks.";
}

TEST_F(CbrEditing, PenetrationIntervalsAreNineToAFifthOfAnInch)
{
    sheet.cmdPen.Press();
    EXPECT_EQ(Depths(), "0.000|0.025|0.050|0.075|0.100|0.125|0.150|0.175|0.200");
    for (const int column : {2, 3, 5, 6, 8, 9}) EXPECT_TRUE(sheet.MSHPenetrate1.IsCalculated(8, column));
    for (const int column : {0, 1, 4, 7}) EXPECT_FALSE(sheet.MSHPenetrate1.IsCalculated(8, column));
}

TEST_F(CbrEditing, IntervalsShortenALongerList)
{
    TypePenetrations(sheet, kDepths);
    TypeDials(sheet, 1, kSandyDials);
    sheet.cmdPen.Press();
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 9);
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 8, 0, 1), "0.200|54.8") << "The dials stay.";
}

TEST_F(CbrEditing, TheListGrowsAsPenetrationsAreTyped)
{
    TypePenetrations(sheet, kDepths);
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 13) << "A row is ready for the next penetration.";
    EXPECT_EQ(sheet.MSHPenetrate1.Row(), 12);
    sheet.SSTData.SetTab(2);
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 12) << "None came: the blank row would be a reading at 0 in.";
    EXPECT_TRUE(sheet.MSHPenetrate1.IsCalculated(11, pen::Stress(3)));
}

TEST_F(CbrEditing, TheListEndsAtTwentyAsTheTableDoes)
{
    for (int row = 0; row < 20; ++row) TypeCell(sheet.txtData3, row, 0, std::to_string(row));
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 20);
}

TEST_F(CbrEditing, ABlankPenetrationInTheMiddleStays)
{
    sheet.cmdPen.Press();
    TypeCell(sheet.txtData3, 8, 0, "");
    sheet.txtK.Type("1");
    sheet.cmdCal.Press();
    EXPECT_EQ(sheet.MSHPenetrate1.Rows(), 9) << "Only a row that the list itself appended goes.";
}

TEST_F(CbrEditing, TheRightButtonTakesAPenetrationOut)
{
    TypePenetrations(sheet, {"0.000", "0.025", "0.050"});
    TypeDials(sheet, 2, {"0", "7", "9"});
    lab.ask.answer = MessageAnswer::Cancel;
    sheet.MSHPenetrate1.PressMouse(MouseButton::Right, 1, 0);
    EXPECT_EQ(sheet.MSHPenetrate1(1, 0), "0.025");
    lab.ask.answer = MessageAnswer::Ok;
    sheet.MSHPenetrate1.PressMouse(MouseButton::Right, 1, 0);
    EXPECT_EQ(CellsOf(sheet.MSHPenetrate1, 1, 0, 4), "0.050||||9");
    EXPECT_EQ(lab.ask.messages.back().title, "ยืนยันการลบ");
}

TEST_F(CbrEditing, EditorsStepOverCalculatedCells)
{
    sheet.cmdPen.Press();
    sheet.MSHPenetrate1.PressMouse(MouseButton::Left, 0, 0);
    std::string walked;
    for (int i = 0; i < 5; ++i) {
        sheet.txtData3.PressKey(Key::Right);
        walked += std::to_string(sheet.MSHPenetrate1.Row()) + "," + std::to_string(sheet.MSHPenetrate1.Column()) + " ";
    }
    EXPECT_EQ(walked, "0,1 0,4 0,7 1,0 1,1 ");
    sheet.MSHPenetrate1.PressMouse(MouseButton::Left, 0, pen::Load(1));
    EXPECT_FALSE(sheet.txtData3.Visible()) << "A load is worked out, not typed.";
}

TEST_F(CbrEditing, EnterInTheLastSwellingDialGoesToTheNextMold)
{
    sheet.optSoak.Choose();
    TypeCell(sheet.txtData2, cbr::swell::Last, cbr::swell::Dial(1), "1.5");
    EXPECT_EQ(sheet.MSHSwell.Row(), cbr::swell::First);
    EXPECT_EQ(sheet.MSHSwell.Column(), cbr::swell::Dial(2)) << "The percentage between them is worked out.";
    TypeCell(sheet.txtData2, cbr::swell::Last, cbr::swell::Dial(3), "2");
    EXPECT_EQ(sheet.MSHSwell.Column(), cbr::swell::Dial(3)) << "The last cell keeps the editor.";
}

TEST_F(CbrEditing, OnlyOneEditorIsOpen)
{
    sheet.cmdPen.Press();
    sheet.optSoak.Choose();
    sheet.MSHWater.PressMouse(MouseButton::Left, 1, 1);
    sheet.MSHCompaction.PressMouse(MouseButton::Left, 2, 1);
    EXPECT_FALSE(sheet.txtData.Visible());
    EXPECT_TRUE(sheet.txtData1.Visible());
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 1);
    EXPECT_FALSE(sheet.txtData1.Visible());
    sheet.MSHPenetrate1.PressMouse(MouseButton::Left, 3, 1);
    EXPECT_FALSE(sheet.txtData2.Visible());
    EXPECT_TRUE(sheet.txtData3.Visible());
    sheet.SSTData.SetTab(1);
    EXPECT_FALSE(sheet.txtData3.Visible());
}

TEST_F(CbrEditing, ThePickerPutsADateIntoTheCell)
{
    sheet.optSoak.Choose();
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 0);
    EXPECT_TRUE(sheet.dtpSwell.Visible());
    EXPECT_EQ(sheet.dtpSwell.Text(), "21/11/2026") << "An empty cell offers today.";
    EXPECT_EQ(sheet.MSHSwell(3, 0), "   ") << "but takes no date before one is chosen.";
    sheet.dtpSwell.Type("2009-03-02");
    EXPECT_EQ(sheet.MSHSwell(3, 0), "02/03/2009");
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 1);
    EXPECT_FALSE(sheet.dtpSwell.Visible());
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 0);
    EXPECT_EQ(sheet.dtpSwell.Text(), "02/03/2009");
    sheet.dtpSwell.PressKey(Key::Enter);
    EXPECT_EQ(sheet.MSHSwell.Row(), 4);
    sheet.dtpSwell.PressKey(Key::Enter);
    EXPECT_EQ(sheet.MSHSwell(4, 0), "21/11/2026") << "Enter takes the date that is shown.";
    sheet.dtpSwell.PressKey(Key::Esc);
    EXPECT_FALSE(sheet.dtpSwell.Visible());
    EXPECT_EQ(sheet.MSHSwell(5, 0), "   ");
}

TEST_F(CbrEditing, ADisabledSwellingGridTakesNoPress)
{
    sheet.optSoak.Choose();
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 0);
    sheet.optUnsoak.Choose();
    EXPECT_FALSE(sheet.dtpSwell.Visible());
    sheet.MSHSwell.PressMouse(MouseButton::Left, 3, 1);
    EXPECT_FALSE(sheet.txtData2.Visible());
}

TEST_F(CbrEditing, TheRightButtonErasesASwellingReading)
{
    sheet.optSoak.Choose();
    TypeSwell(sheet, 3, kSwellRows[0]);
    sheet.MSHSwell.PressMouse(MouseButton::Right, 3, 0);
    EXPECT_EQ(CellsOf(sheet.MSHSwell, 3, 0, 8), "||||||||");
    sheet.MSHSwell.PressMouse(MouseButton::Right, 1, 0);
    EXPECT_EQ(sheet.MSHSwell(1, 0), "Date") << "Heads stay.";
}

TEST_F(CbrEditing, EnterWalksThroughTheFieldsOutsideTheGrids)
{
    sheet.txtClient.SetFocus();
    std::string walked;
    for (int i = 0; i < 8; ++i) {
        sheet.ActiveControl()->PressKey(Key::Enter);
        walked += sheet.ActiveControl()->Name() + " ";
    }
    EXPECT_EQ(walked, "txtID txtProject txtLocation txtK txtWeight txtSoil cboTest cboCheck ");
}

}  // namespace
}  // namespace terravane
