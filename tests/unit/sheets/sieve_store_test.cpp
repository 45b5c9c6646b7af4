// The sieve sheet and the project file, and the state it opens in.
#include <gtest/gtest.h>

#include "support/sieve_laboratory.h"

namespace terravane {
namespace {

using namespace support;
using Texts = std::vector<std::string>;

struct SieveStore : testing::Test {
    SieveLaboratory lab;

    static void Save(frmSieve& sheet) { sheet.tblMenu.Press(1); }
};

TEST_F(SieveStore, OpensDryWithItsCommandsAndResultsShut)
{
    frmSieve& sheet = lab.OpenSieve();
    EXPECT_TRUE(sheet.optNo.Value());
    EXPECT_FALSE(sheet.txtDwp.Enabled());
    for (const CommandButton* command : {&sheet.cmdgraph, &sheet.cmdClass, &sheet.cmdView})
        EXPECT_FALSE(command->Enabled()) << command->Name();
    EXPECT_TRUE(sheet.cmdCal.Enabled());
    for (const TextBox* result :
         {&sheet.txtErr, &sheet.txtD60, &sheet.txtD30, &sheet.txtD10, &sheet.txtCu, &sheet.txtCc})
        EXPECT_TRUE(result->Locked()) << result->Name();
    for (const Control* hidden : std::initializer_list<const Control*>{&sheet.MSHData, &sheet.MSH2, &sheet.MSH3,
                                                                       &sheet.Text6, &sheet.Command5, &sheet.Image3})
        EXPECT_FALSE(hidden->Visible()) << hidden->Name();
    EXPECT_EQ(sheet.SSTData.Tab(), 0);
    EXPECT_EQ(sheet.txtGsoil.Text(), "   ");
    EXPECT_EQ(sheet.MSHSieve(1, sieve::Number), "   ");
    EXPECT_EQ(sheet.txtLL.Text(), "");  // saved, never read
    EXPECT_EQ(sheet.txtDwp.ToolTip(), "น้ำนหักดินหลังจากล้างน้ำ");
}

TEST_F(SieveStore, ASavedWetSheetComesBackWithItsSelection)
{
    frmSieve& sheet = lab.OpenSieve();
    sheet.txtSoil.Type("ลูกรัง");
    sheet.cboTest.Type("Anong");
    sheet.DTPDate.SetText("20/11/2026");
    SieveWet(sheet, "3530.0", "3340.0");
    TypeStack(sheet, kCrushedRockStack, "3530.0");
    TypeLimits(sheet, "22", "18");
    sheet.cmdCal.Press();
    Save(sheet);

    frmSieve& again = lab.OpenSieve();
    EXPECT_EQ(again.txtSoil.Text(), "ลูกรัง");
    EXPECT_EQ(again.cboTest.Text(), "Anong");
    EXPECT_EQ(again.DTPDate.Text(), "20/11/2026");
    EXPECT_TRUE(again.optYes.Value());
    EXPECT_TRUE(again.txtDwp.Enabled());
    EXPECT_EQ(again.txtGsoil.Text(), "3530.0");
    EXPECT_EQ(again.txtDwp.Text(), "3340.0");
    EXPECT_EQ(again.txtWl.Text(), "190.00");
    EXPECT_EQ(again.MSHSieve(2, sieve::Number), "     3/4 in");
    EXPECT_EQ(again.MSHSieve(9, sieve::Opening), "  ");
    EXPECT_EQ(again.MSHSieve(9, sieve::SieveAndSoil), "386.3");
    EXPECT_EQ(again.MSHSieve(9, sieve::Retained), "");
    EXPECT_EQ(again.txtLL.Text(), "");
    for (std::size_t i = 0; i < kSieves.size(); ++i) {
        bool inStack = false;
        for (const SieveReading& reading : kCrushedRockStack) inStack |= reading.sieve == kSieves[i].name;
        EXPECT_EQ(again.lstSieve.Selected(i), inStack) << kSieves[i].name;
    }
}

TEST_F(SieveStore, EveryRowHoldsTheHeadAndItsOwnSieve)
{
    frmSieve& sheet = lab.OpenSieve(Material::Crush);
    TypeStack(sheet, kFineSand, "729");
    TypeLimits(sheet, "22", "18");
    Save(sheet);
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_mos"), Texts(10, "729"));
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_LL"), Texts(10, "22"));
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_PL"), Texts(10, "18"));
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_pwash"), Texts(10, "0"));
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_mss"),
              (Texts{"0", "40", "60", "89", "140", "122", "210", "56", "12", "   "}));
    EXPECT_EQ(lab.StoredColumn("SIECRUSH", "sie_so")[7], "0.075");
    EXPECT_EQ(lab.StoredColumn("SIESOIL", "sie_mos"), Texts(10, "   "));
}

// Choosing "Dry" clears the masses of washing; those that were stored stand all the same.
TEST_F(SieveStore, StoredMassesOfWashingStandUnderDryToo)
{
    lab.Change("UPDATE SIESOIL Set sie_pwash ='0',  sie_maw ='480',  sie_mlw ='20' Where sie_ID =' 1'");
    frmSieve& sheet = lab.OpenSieve();
    EXPECT_TRUE(sheet.optNo.Value());
    EXPECT_EQ(sheet.txtDwp.Text(), "480");
    EXPECT_EQ(sheet.txtWl.Text(), "20");
    EXPECT_FALSE(sheet.txtDwp.Enabled());
}

TEST_F(SieveStore, LimitsComeFromTheAtterbergTestOfTheMaterial)
{
    lab.Change("UPDATE ATTCRUSH Set att_LL ='22.10',  att_PL ='18.05' Where att_ID =' 1'");
    frmSieve& sheet = lab.OpenSieve(Material::Crush);
    sheet.cmdAtt.Press();
    EXPECT_EQ(sheet.txtLL.Text(), "22.10");
    EXPECT_EQ(sheet.txtPL.Text(), "18.05");
    lab.program.CurrentMaterial = Material::Soil;
    sheet.cmdAtt.Press();
    EXPECT_EQ(sheet.txtLL.Text(), "   ");
    sheet.txtLL.Type("33");
    lab.program.CurrentMaterial = Material::None;
    sheet.cmdAtt.Press();
    EXPECT_EQ(sheet.txtLL.Text(), "33");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(SieveStore, AnApostropheStopsTheSaveAtItsRow)
{
    frmSieve& sheet = lab.OpenSieve();
    sheet.txtClient.Type("Client");
    sheet.MSHSieve(2, sieve::Number) = "#4'";
    Save(sheet);
    EXPECT_EQ(lab.ask.errors.size(), 1u);
    EXPECT_EQ(lab.StoredColumn("HEAD", "project_Client"), Texts{"Client"});
    EXPECT_EQ(lab.StoredColumn("SIESOIL", "sie_pwash"),
              (Texts{"0", "   ", "   ", "   ", "   ", "   ", "   ", "   ", "   ", "   "}));
}

}  // namespace
}  // namespace terravane
