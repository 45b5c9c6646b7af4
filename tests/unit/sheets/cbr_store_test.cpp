// What the bearing ratio sheet stores and gets back.
#include <gtest/gtest.h>

#include "support/cbr_laboratory.h"

namespace terravane {
namespace {

using namespace support;

struct CbrStore : testing::Test {
    CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    /// The first rows of a column on the disk, "a|b|c".
    std::string Stored(std::string_view column, std::size_t rows, const std::string& table = "CBRSOIL") const
    {
        const auto texts = lab.StoredColumn(table, column);
        std::string text;
        for (std::size_t row = 0; row < rows; ++row) text += (row == 0 ? "" : "|") + texts.at(row);
        return text;
    }
};

TEST_F(CbrStore, EverythingTypedComesBack)
{
    TypeThreeMolds(sheet);
    sheet.txtSoil.Type("ดินลูกรัง 3");
    sheet.cmdCal.Press();
    sheet.tblMenu.Press(1);
    ASSERT_TRUE(lab.ask.errors.empty());

    frmCBR& again = lab.OpenCbr();
    EXPECT_EQ(again.txtSoil.Text(), "ดินลูกรัง 3");
    EXPECT_EQ(again.txtK.Text() + "|" + again.txtWeight.Text(), "4.9958|4.54");
    EXPECT_TRUE(again.optSoak.Value());
    EXPECT_EQ(CellsOf(again.MSHWater, 1, 1, 6), "B1|B2|B3|A1|A2|A3");
    EXPECT_EQ(CellsOf(again.MSHWater, 2, 1, 6), "132.1|132.0|131.9|138.4|136.9|135.2");
    EXPECT_EQ(CellsOf(again.MSHWater, 5, 1, 6), "|||||") << "Results are worked out again.";
    EXPECT_EQ(CellsOf(again.MSHCompaction, 2, 1, 6), "10/5|25/5|56/5|10/5|25/5|56/5");
    EXPECT_EQ(CellsOf(again.MSHCompaction, 5, 1, 6), "11165|11452|11762|11399|11642|11896");
    EXPECT_EQ(CellsOf(again.MSHSwell, 3, 0, 8), "02/03/2009|9|0|1.0||2.0||1.5|");
    EXPECT_EQ(CellsOf(again.MSHSwell, 6, 0, 8), "06/03/2009|9|96|1.58||2.4||1.74|");
    EXPECT_EQ(again.MSHPenetrate1.Rows(), 12);
    EXPECT_EQ(CellsOf(again.MSHPenetrate1, 11, 0, 9), "0.4921|67|||70.2|||79.4||");
    EXPECT_TRUE(again.MSHPenetrate1.IsCalculated(11, 2));
    EXPECT_FALSE(again.cmdLPen.Enabled());
    again.cmdCal.Press();
    EXPECT_EQ(RatiosOf(again, cbr::result::DryDensity), "1.75|1.83|1.92");
}

TEST_F(CbrStore, RowsOfTheTableAreColumnsOfTheMoldGrids)
{
    TypeThreeMolds(sheet);
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_mcan", 7), "B1|B2|B3|A1|A2|A3|   ");
    EXPECT_EQ(Stored("cbr_nb", 7), "10/5|25/5|56/5|10/5|25/5|56/5|   ");
    EXPECT_EQ(Stored("cbr_dm", 6), "15.24|15.24|15.24|15.24|15.24|15.24");
    EXPECT_EQ(Stored("cbr_wm", 6), "7000|7100|7200|7000|7100|7200");
    EXPECT_EQ(Stored("cbr_k", 7), "4.9958|4.9958|4.9958|4.9958|4.9958|4.9958|   ");
    EXPECT_EQ(Stored("cbr_typ", 7), "1|1|1|1|1|1|   ");
    EXPECT_EQ(Stored("cbr_date", 2), "21/11/2026|21/11/2026");
    EXPECT_EQ(Stored("cbr_mcan", 1, "CBRCRUSH"), "   ") << "The other material keeps its blanks.";
}

// Six rows are stored, the grid's rows 1 to 6.
TEST_F(CbrStore, SwellingIsStoredWithItsHeadsAndWithoutItsLastReading)
{
    sheet.optSoak.Choose();
    for (int row = 3; row <= 6; ++row) TypeSwell(sheet, row, kSwellRows[static_cast<std::size_t>(row - 3)]);
    TypeSwell(sheet, 7, {"07/03/2009", "9", {"1.6", "2.5", "1.8"}});
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_sd", 7), "Date||02/03/2009|03/03/2009|04/03/2009|06/03/2009|   ");
    EXPECT_EQ(Stored("cbr_s1", 6), "Swelling |mm|1.0|1.32|1.45|1.58");
    EXPECT_EQ(Stored("cbr_s3", 6), "Swelling |mm|1.5|1.63|1.69|1.74");
    frmCBR& again = lab.OpenCbr();
    EXPECT_EQ(again.MSHSwell(7, 0), "");
    EXPECT_EQ(CellsOf(again.MSHSwell, 1, 0, 3), "Date|Time|Elapsed|Swelling ");
}

// Another program may have written the record behind those six, and other texts over the heads.
TEST_F(CbrStore, ALastSwellingReadingThatAFileHasIsShownUnderTheSheetsOwnHeads)
{
    lab.Change(
        "UPDATE CBRSOIL Set cbr_sd ='07/03/2009',  cbr_st ='9',  cbr_set ='120',  cbr_s1 ='1.6',  cbr_s2 ='2.5',  "
        "cbr_s3 ='1.8' Where cbr_ID =' 7'");
    lab.Change("UPDATE CBRSOIL Set cbr_sd ='Day' Where cbr_ID =' 1'");
    lab.Change("UPDATE CBRSOIL Set cbr_sd ='08/03/2009' Where cbr_ID =' 8'");
    frmCBR& again = lab.OpenCbr();
    EXPECT_EQ(CellsOf(again.MSHSwell, 7, 0, 8), "07/03/2009|9|120|1.6||2.5||1.8|");
    EXPECT_EQ(CellsOf(again.MSHSwell, 1, 0, 3), "Date|Time|Elapsed|Swelling ");
    EXPECT_EQ(CellsOf(again.MSHSwell, 0, 3, 8), "Mold No.1||Mold No.2||Mold No.3|");
    EXPECT_EQ(CellsOf(again.MSHWater, 1, 1, 6), "   |   |   |   |   |   ") << "The cans stay six.";
}

TEST_F(CbrStore, AsManyPenetrationsAreStoredAsTheGridHasRows)
{
    TypePenetrations(sheet, kDepths);
    TypeDials(sheet, 1, kSandyDials);
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_pen", 13),
              "0.0|0.0197|0.0394|0.0591|0.0787|0.0984|0.1181|0.1575|0.1969|0.2953|0.3937|0.4921|   ")
        << "The row that waits for the next penetration is not stored.";
    EXPECT_EQ(Stored("cbr_read1", 3), "0|20|29.2");
    EXPECT_EQ(Stored("cbr_read2", 3), "||");
}

// The store takes no row away: the twelfth reading of a list shortened to eleven comes back.
TEST_F(CbrStore, AShortenedListComesBackWhole)
{
    TypePenetrations(sheet, kDepths);
    sheet.tblMenu.Press(1);
    frmCBR& shorter = lab.OpenCbr();
    shorter.MSHPenetrate1.PressMouse(MouseButton::Right, 11, 0);
    EXPECT_EQ(shorter.MSHPenetrate1.Rows(), 11);
    shorter.tblMenu.Press(1);
    frmCBR& again = lab.OpenCbr();
    EXPECT_EQ(again.MSHPenetrate1.Rows(), 12);
    EXPECT_EQ(again.MSHPenetrate1(11, 0), "0.4921");
}

TEST_F(CbrStore, ABlankPenetrationEndsTheListAtLoad)
{
    TypePenetrations(sheet, {"0.000", "0.025", "0.050"});
    TypeCell(sheet.txtData3, 1, 0, "");
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_pen", 4), "0.000||0.050|   ");
    EXPECT_EQ(lab.OpenCbr().MSHPenetrate1.Rows(), 1);
}

TEST_F(CbrStore, EachConditionIsStoredAndChosenAgain)
{
    struct Choice {
        OptionButton frmCBR::*option;
        const char* stored;
    };
    for (const auto& [option, stored] :
         {Choice{&frmCBR::optUnsoak, "0"}, Choice{&frmCBR::optSoak, "1"}, Choice{&frmCBR::optBoth, "2"}}) {
        frmCBR& now = lab.OpenCbr();
        (now.*option).Choose();
        now.tblMenu.Press(1);
        EXPECT_EQ(Stored("cbr_typ", 1), stored);
        frmCBR& again = lab.OpenCbr();
        EXPECT_TRUE((again.*option).Value()) << stored;
        EXPECT_EQ(again.MSHSwell.Enabled(), std::string(stored) != "0") << "The choice runs its handler.";
    }
}

TEST_F(CbrStore, ANewProjectChoosesNoCondition)
{
    EXPECT_FALSE(sheet.optUnsoak.Value() || sheet.optSoak.Value() || sheet.optBoth.Value());
    EXPECT_EQ(sheet.txtK.Text(), "   ");
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_typ", 1), "");
}

TEST_F(CbrStore, ABlankSheetWarnsAtCalculateAfterItsSave)
{
    sheet.tblMenu.Press(1);
    frmCBR& again = lab.OpenCbr();
    again.cmdCal.Press();
    ASSERT_EQ(lab.ask.messages.size(), 1U);
    EXPECT_EQ(lab.ask.messages[0].title, "Warning");
}

TEST_F(CbrStore, CrushedRockHasATableOfItsOwn)
{
    frmCBR& rock = lab.OpenCbr(Material::Crush);
    TypeThreeMolds(rock);
    rock.tblMenu.Press(1);
    EXPECT_EQ(Stored("cbr_mcan", 2, "CBRCRUSH"), "B1|B2");
    EXPECT_EQ(Stored("cbr_mcan", 1), "   ");
}

TEST_F(CbrStore, AnApostropheStopsTheSaveAtItsRow)
{
    TypeThreeMolds(sheet);
    TypeCell(sheet.txtData1, cbr::density::Blows, 2, "25'5");
    sheet.txtProject.Type("Bypass");
    sheet.tblMenu.Press(1);
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(Stored("cbr_mcan", 3), "B1|   |   ") << "The row before stands, that one and those behind do not.";
    EXPECT_EQ(Stored("cbr_pen", 1), "   ");
    EXPECT_EQ(lab.StoredColumn("HEAD", "project_name").at(0), "Bypass");
    EXPECT_EQ(sheet.MSHCompaction(2, 2), "25'5") << "The sheet keeps what was typed.";
}

}  // namespace
}  // namespace terravane
