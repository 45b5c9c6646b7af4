// The editors of the field density sheet and the way of Enter through its fields.
#include <gtest/gtest.h>

#include "support/density_laboratory.h"

namespace terravane::field {
namespace {

using namespace support;

struct DensityEditing : testing::Test {
    DensityLaboratory lab;
    frmDensity& sheet = lab.OpenDensity();

    std::string RowTitles(const TextGrid& grid) const
    {
        std::string text;
        for (int row = 0; row < grid.Rows(); ++row) text += grid(row, 0) + "|";
        return text;
    }
};

TEST_F(DensityEditing, EachGridHasItsEditorOverItsTypedRows)
{
    struct Wanted {
        TextGrid& grid;
        CellEditor& editor;
        int lastTyped;
    };
    for (const Wanted& wanted :
         {Wanted{sheet.MSHWsand, sheet.txtData, 2}, Wanted{sheet.MSHDsand, sheet.txtData1, 4},
          Wanted{sheet.MSHWsoil, sheet.txtData2, 2}, Wanted{sheet.MSHWater, sheet.txtData3, 3},
          Wanted{sheet.MSHVolume, sheet.txtData4, 2}, Wanted{sheet.MSHSummary, sheet.txtData5, 1}}) {
        for (int row = 1; row < wanted.grid.Rows(); ++row) {
            wanted.grid.PressMouse(MouseButton::Left, row, 6);
            EXPECT_EQ(wanted.editor.Visible(), row <= wanted.lastTyped) << wanted.grid.Name() << " row " << row;
            EXPECT_EQ(wanted.grid.IsCalculated(row, 6), row > wanted.lastTyped) << wanted.grid.Name() << " row " << row;
        }
    }
}

TEST_F(DensityEditing, GridsAreTitled)
{
    EXPECT_EQ(RowTitles(sheet.MSHWsand),
              "Determination no.  |Initial Mass of Sand + Jar + Cone, (g)|Final Mass of Sand + Jar + Cone, (g)|"
              "Mass of Sand in Cone, (g)|Average, (g)|");
    EXPECT_EQ(RowTitles(sheet.MSHSummary),
              "Test Hole no.|MDD from Compation Test, (g/cm^3)|Wet Density in Field, (g/cm^3)|"
              "Dry Density in Field, (g/cm^3)|Percent Compaction, (%)|");
    EXPECT_EQ(RowOf(sheet.MSHVolume, 0), "1 |2 |3|4 |5 |6 ");
}

TEST_F(DensityEditing, EnterGoesDownAColumnAndOnToTheNext)
{
    sheet.MSHDsand.PressMouse(MouseButton::Left, sand::Diameter, 0);  // the titles: column 1
    for (const char* text : {" 15.24 ", "11.64", "6998", "10012.50", "15.2"}) {
        sheet.txtData1.Type(text);
        sheet.txtData1.PressKey(Key::Enter);
    }
    EXPECT_EQ(sheet.MSHDsand(sand::Diameter, 1), "15.24");
    EXPECT_EQ(sheet.MSHDsand(sand::MoldAndSand, 1), "10012.50") << "No mask.";
    EXPECT_EQ(sheet.MSHDsand(sand::Diameter, 2), "15.2");
}

TEST_F(DensityEditing, OnlyOneEditorShows)
{
    sheet.MSHWsand.PressMouse(MouseButton::Left, 1, 1);
    sheet.MSHWater.PressMouse(MouseButton::Left, 1, 1);
    EXPECT_FALSE(sheet.txtData.Visible());
    EXPECT_TRUE(sheet.txtData3.Visible());
    sheet.SSTData.SetTab(1);
    EXPECT_FALSE(sheet.txtData3.Visible()) << "A change of tabs hides it.";
    sheet.MSHVolume.PressMouse(MouseButton::Left, 1, 1);
    sheet.txtPosition.SetFocus();
    EXPECT_FALSE(sheet.txtData4.Visible()) << "So does a field of the head.";
}

TEST_F(DensityEditing, TheRightButtonAsksNothing)
{
    TypeOneHole(sheet);
    sheet.MSHWater.PressMouse(MouseButton::Right, 1, 1);
    EXPECT_TRUE(lab.ask.messages.empty());
    EXPECT_EQ(sheet.MSHWater(water::WetAndCan, 1), "130");
}

TEST_F(DensityEditing, EnterGoesFromTheLocationOverThePositionToTheSample)
{
    sheet.txtLocation.SetFocus();
    sheet.txtLocation.PressKey(Key::Enter);
    EXPECT_EQ(sheet.ActiveControl(), &sheet.txtPosition);
    sheet.txtPosition.PressKey(Key::Enter);
    EXPECT_EQ(sheet.ActiveControl(), &sheet.txtSoil);
}

TEST_F(DensityEditing, AllTabsCanBeOpenedFromTheStart)
{
    for (int tab = 0; tab < sheet.SSTData.Count(); ++tab) EXPECT_TRUE(sheet.SSTData.TabEnabled(tab)) << tab;
}

}  // namespace
}  // namespace terravane::field
