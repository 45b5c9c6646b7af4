// What the field density sheet stores and gets back, and the maximum density that it fetches.
#include <gtest/gtest.h>

#include "support/density_laboratory.h"

namespace terravane::field {
namespace {

using namespace support;

constexpr const char* kStandardCaption = "Summary (Percent Compaction for Standard Compaction)";
constexpr const char* kModifiedCaption = "Summary (Percent Compaction for Modified Compaction)";

struct DensityStore : testing::Test {
    DensityLaboratory lab;
    frmDensity& sheet = lab.OpenDensity();

    std::string Maxima(const frmDensity& of) const { return RowOf(of.MSHSummary, summary::MaximumDensity); }

    /// A column on the disk, "a|b|c|d|e|f".
    std::string Stored(std::string_view column, const std::string& table = "DENSOIL") const
    {
        std::string text;
        for (const std::string& each : lab.StoredColumn(table, column)) text += (text.empty() ? "" : "|") + each;
        return text;
    }
};

TEST_F(DensityStore, TheChoiceFetchesTheStoredMaximumIntoHolesWithWater)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.84");
    lab.StoreMaximum("MODSOIL", "mod_mdd", "2.01");
    for (const int hole : {1, 3}) TypeHole(sheet, hole, kHole);
    EXPECT_EQ(sheet.fraSummary.Caption(), "Summary");
    sheet.optStd.Choose();
    EXPECT_EQ(sheet.fraSummary.Caption(), kStandardCaption);
    EXPECT_EQ(Maxima(sheet), "1.84|   |1.84|   |   |   ");
    sheet.optMod.Choose();
    EXPECT_EQ(sheet.fraSummary.Caption(), kModifiedCaption);
    EXPECT_EQ(Maxima(sheet), "2.01|   |2.01|   |   |   ");
    EXPECT_FALSE(sheet.optStd.Value());
}

// A technician saves the compaction test once more and presses the option that is chosen already.
TEST_F(DensityStore, TheSameChoicePressedAgainFetchesTheMaximumAnew)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.84");
    TypeHole(sheet, 1, kHole);
    sheet.optStd.Press();
    EXPECT_EQ(Maxima(sheet), "1.84|   |   |   |   |   ");
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.91");
    sheet.optStd.Press();
    EXPECT_EQ(Maxima(sheet), "1.91|   |   |   |   |   ");
}

TEST_F(DensityStore, OnlyTheFirstRowOfTheCompactionTestCounts)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.84");
    lab.Change("UPDATE STDSOIL Set std_mdd ='1.99' Where std_ID =' 2'");
    TypeHole(sheet, 2, kHole);
    sheet.optStd.Choose();
    EXPECT_EQ(Maxima(sheet), "   |1.84|   |   |   |   ");
}

// A result that is plotted but not saved stands in the summary only.
TEST_F(DensityStore, AnUnsavedCompactionTestLeavesTheMaximumBlank)
{
    lab.Change("UPDATE SUMMARY Set sum_mddS ='1.84'");
    TypeHole(sheet, 1, kHole);
    sheet.optStd.Choose();
    EXPECT_EQ(Maxima(sheet), "   |   |   |   |   |   ");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(DensityStore, CrushedRockHasCompactionTestTableAndSummaryOfItsOwn)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "1.11");
    lab.StoreMaximum("STDCRUSH", "std_mdd", "2.00");
    lab.StoreMaximum("MODCRUSH", "mod_mdd", "2.10");
    frmDensity& rock = lab.OpenDensity(Material::Crush);
    TypeOneHole(rock);
    rock.optMod.Choose();
    EXPECT_EQ(Maxima(rock), "2.10|   |   |   |   |   ");
    rock.optStd.Choose();
    rock.cmdCal.Press();
    rock.tblMenu.Press(1);
    EXPECT_EQ(lab.Posted(0), "   ");
    EXPECT_EQ(lab.Posted(1), " 91");
    EXPECT_EQ(Stored("den_mdd", "DENCRUSH"), "2.00|   |   |   |   |   ");
    EXPECT_EQ(Stored("den_imsjc"), "   |   |   |   |   |   ") << "The other material keeps its blanks.";
}

TEST_F(DensityStore, EveryReadingStandsInItsColumn)
{
    TypeCone(sheet, 1, {"i", "f"});
    TypeSand(sheet, 2, {"d", "h", "e", "s"});
    TypeHole(sheet, 3, {"w", "p", "i3", "f3", "cw", "cd", "c"});
    TypeMaximum(sheet, 4, "m");
    sheet.txtPosition.Type("กม. 12+400");
    sheet.txtSoil.Type("S-1");
    sheet.cboTest.Type("Anong");
    sheet.cboCheck.Type("Boon");
    sheet.tblMenu.Press(1);
    const auto rows = lab.Stored("DENSOIL");
    ASSERT_EQ(rows.size(), 6U);
    using Row = std::vector<std::string>;
    const std::string b = "   ";
    const Row head{"21/11/2026", "S-1", "กม. 12+400", "Anong", "Boon"};
    const auto row = [&](const std::string& key, const Row& readings) {
        Row whole{key};
        whole.insert(whole.end(), head.begin(), head.end());
        whole.insert(whole.end(), readings.begin(), readings.end());
        return whole;
    };
    EXPECT_EQ(rows[0], row(" 1", {b, b, "i", "f", b, b, b, b, b, b, b, b, b, b, ""}));
    EXPECT_EQ(rows[1], row(" 2", {"h", "d", b, b, "e", "s", b, b, b, b, b, b, b, b, ""}));
    EXPECT_EQ(rows[2], row(" 3", {b, b, b, b, b, b, "w", "p", "i3", "f3", "cw", "cd", "c", b, ""}));
    EXPECT_EQ(rows[3], row(" 4", {b, b, b, b, b, b, b, b, b, b, b, b, b, "m", ""}));
    EXPECT_EQ(rows[5], row(" 6", {b, b, b, b, b, b, b, b, b, b, b, b, b, b, ""}));
}

TEST_F(DensityStore, ReadingsHeadsAndChoiceComeBack)
{
    lab.StoreMaximum("MODSOIL", "mod_mdd", "2.00");
    TypeOneHole(sheet);
    sheet.txtPosition.Type("กม. 12+400 ซ้ายทาง");
    sheet.optMod.Choose();
    sheet.cmdCal.Press();
    sheet.tblMenu.Press(1);
    EXPECT_EQ(Stored("den_comp"), "Mod|Mod|Mod|Mod|Mod|Mod");

    frmDensity& again = lab.OpenDensity();
    EXPECT_EQ(again.txtPosition.Text(), "กม. 12+400 ซ้ายทาง");
    EXPECT_TRUE(again.optMod.Value());
    EXPECT_EQ(again.fraSummary.Caption(), kModifiedCaption);
    EXPECT_EQ(again.MSHWsand(cone::Initial, 1), "7000");
    EXPECT_EQ(again.MSHWater(water::Can, 1), "20");
    EXPECT_EQ(RowOf(again.MSHWater, water::WaterContent), "|||||") << "Results are worked out again.";
    EXPECT_EQ(Maxima(again), "2.00|   |   |   |   |   ");
    again.cmdCal.Press();
    EXPECT_EQ(RowOf(again.MSHSummary, summary::Compaction), "91.00|||||");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(DensityStore, TheChoiceThatIsLoadedFetchesAnew)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "2.00");
    TypeOneHole(sheet);
    sheet.optStd.Choose();
    sheet.tblMenu.Press(1);
    lab.StoreMaximum("STDSOIL", "std_mdd", "2.10");
    EXPECT_EQ(Maxima(lab.OpenDensity()), "2.10|   |   |   |   |   ");
}

TEST_F(DensityStore, ATypedMaximumComesBackWithoutAChoice)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "1.95");
    sheet.tblMenu.Press(1);
    frmDensity& again = lab.OpenDensity();
    EXPECT_EQ(Maxima(again), "1.95|   |   |   |   |   ");
    EXPECT_FALSE(again.optStd.Value() || again.optMod.Value());
    EXPECT_EQ(again.fraSummary.Caption(), "Summary");
}

TEST_F(DensityStore, AnApostropheStopsTheSaveAtItsRow)
{
    TypeOneHole(sheet);
    TypeHole(sheet, 2, kHole);
    TypeCell(sheet.txtData3, water::Can, 2, "20'");
    sheet.txtProject.Type("Bypass");
    sheet.tblMenu.Press(1);
    EXPECT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(Stored("den_mc"), "20|   |   |   |   |   ") << "The row before stands, that one does not.";
    EXPECT_EQ(lab.StoredColumn("HEAD", "project_name").at(0), "Bypass");
    EXPECT_EQ(sheet.MSHWater(water::Can, 2), "20'") << "The sheet keeps what was typed.";
}

TEST_F(DensityStore, AProjectThatIsGoneLeavesTheOldMaxima)
{
    TypeOneHole(sheet);
    TypeMaximum(sheet, 1, "1.95");
    lab.program.CurrentProjectPath = "/lab/TRVN_gone.mdb";
    sheet.optStd.Choose();
    EXPECT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(Maxima(sheet), "1.95|   |   |   |   |   ");
}

}  // namespace
}  // namespace terravane::field
