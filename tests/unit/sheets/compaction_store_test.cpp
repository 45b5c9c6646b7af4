// The compaction sheet and the project file: what is loaded, what is saved, what a failure leaves.
#include <gtest/gtest.h>

#include "jet/engine_error.h"
#include "store/schema.h"
#include "support/laboratory.h"
#include "unit/runtime/raises.h"

namespace terravane::compaction {
namespace {

using support::kProject;
using support::Laboratory;
using support::TypeCell;
using TestKind = terravane::Test;  // inside a test "Test" is the test
using Texts = std::vector<std::string>;

struct CompactionStore : testing::Test {
    Laboratory lab;

    void Save(frmCompaction& sheet) { sheet.tblMenu.Press(1); }
};

struct Kind {
    TestKind test;
    Material material;
    std::string table, prefix;
};
const std::vector<Kind> kKinds{
    {TestKind::StdSoil, Material::Soil, "STDSOIL", "std_"},
    {TestKind::StdSoil, Material::Crush, "STDCRUSH", "std_"},
    {TestKind::ModSoil, Material::Soil, "MODSOIL", "mod_"},
    {TestKind::ModSoil, Material::Crush, "MODCRUSH", "mod_"},
};

/// A text for each field, none like another, each as long as its column takes at most.
void FillEverything(frmCompaction& sheet)
{
    sheet.txtClient.Type("กรมทางหลวง");
    sheet.txtProject.Type("ทางหลวงหมายเลข 4");
    sheet.txtLocation.Type("กม. 12+500");
    sheet.txtID.Type("T-0001/69");
    sheet.DTPDate.Type("5/3/2026");
    sheet.txtSoil.Type("ลูกรัง 3 ซ้ายทาง ขวา");
    sheet.cboTest.Type("Somchai");
    sheet.cboCheck.Type("Somsri");
    sheet.txtHeight.Type("11.64");
    sheet.txtDia.Type("10.16");
    sheet.cboBlow.Type("25");
    sheet.cboLayer.Type("3");
    sheet.cboWt.Type("2.5 kg");
    sheet.txtGs.Type("2.71");
    for (int i = 1; i <= kTrials; ++i) {
        const std::string n = std::to_string(i);
        support::TypeTrial(sheet, i,
                           {"ก-" + n + "-9", "6" + n + ".11", "5" + n + ".22", "1" + n + ".33", n + ".5",
                            "3" + n + "00.4", "14" + n + "0.5"});
    }
    sheet.txtOMC.SetText("12.3");
    sheet.txtDmax.SetText("1.98");
}

TEST_F(CompactionStore, ShowsANewFilesThreeBlanksInTheHeadAndNothingInTheLists)
{
    frmCompaction& sheet = lab.OpenSheet();
    for (const char* name : {"txtClient", "txtProject", "txtLocation", "txtID", "txtSoil", "cboTest", "cboCheck",
                             "txtDia", "txtHeight", "cboBlow", "cboLayer", "cboWt", "txtGs"}) {
        EXPECT_EQ(sheet.Find(name)->Text(), "   ") << name;
    }
    EXPECT_EQ(sheet.txtOMC.Text(), "");
    EXPECT_EQ(sheet.txtDmax.Text(), "");
    EXPECT_EQ(sheet.DTPDate.Text(), "21/11/2026") << "Today.";
    for (int trial = 1; trial <= kTrials; ++trial) {
        for (int row = 1; row <= 4; ++row) EXPECT_EQ(sheet.MSHWt(row, trial), "");
        for (int row = 0; row <= 2; ++row) EXPECT_EQ(sheet.MSHDensity(row, trial), "");
    }
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(CompactionStore, WritesEveryColumnOfEveryRow)
{
    for (const Kind& kind : kKinds) {
        FillEverything(lab.OpenSheet(kind.test, kind.material));
        Save(lab.program.Get<frmCompaction>("frmCompaction"));
        ASSERT_TRUE(lab.ask.errors.empty()) << lab.ask.errors[0];
        const auto rows = lab.Stored(kind.table);
        ASSERT_EQ(rows.size(), 6U);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            EXPECT_EQ(rows[i], (Texts{" " + n,
                                      "05/03/2026",
                                      "ลูกรัง 3 ซ้ายทาง ขวา",
                                      "Somchai",
                                      "Somsri",
                                      "11.64",
                                      "10.16",
                                      "25",
                                      "3",
                                      "2.5 kg",
                                      "ก-" + n + "-9",
                                      "6" + n + ".11",
                                      "5" + n + ".22",
                                      "1" + n + ".33",
                                      n + ".5",
                                      "3" + n + "00.4",
                                      "14" + n + "0.5",
                                      "12.3",
                                      "1.98",
                                      "2.71"}))
                << kind.table << " row " << n;
        }
    }
    EXPECT_EQ(lab.Stored("HEAD"), (std::vector<Texts>{{"กรมทางหลวง", "ทางหลวงหมายเลข 4", "กม. 12+500", "T-0001/69"}}));
}

TEST_F(CompactionStore, LeavesTheOtherTablesAlone)
{
    FillEverything(lab.OpenSheet(TestKind::StdSoil, Material::Crush));
    Save(lab.program.Get<frmCompaction>("frmCompaction"));
    for (const char* table : {"STDSOIL", "MODSOIL", "MODCRUSH", "DENSOIL", "SUMMARY"}) {
        for (const Texts& row : lab.Stored(table)) {
            for (std::size_t i = 1; i < row.size(); ++i) EXPECT_EQ(row[i], "   ") << table;
        }
    }
}

TEST_F(CompactionStore, BringsBackTheReadingsAndNotTheResults)
{
    for (const Kind& kind : kKinds) {
        FillEverything(lab.OpenSheet(kind.test, kind.material));
        Save(lab.program.Get<frmCompaction>("frmCompaction"));
        frmCompaction& sheet = lab.OpenSheet(kind.test, kind.material);
        EXPECT_EQ(sheet.txtClient.Text(), "กรมทางหลวง");
        EXPECT_EQ(sheet.txtProject.Text(), "ทางหลวงหมายเลข 4");
        EXPECT_EQ(sheet.txtLocation.Text(), "กม. 12+500");
        EXPECT_EQ(sheet.txtID.Text(), "T-0001/69");
        EXPECT_EQ(sheet.DTPDate.Text(), "05/03/2026");
        EXPECT_EQ(sheet.txtSoil.Text(), "ลูกรัง 3 ซ้ายทาง ขวา");
        EXPECT_EQ(sheet.cboTest.Text(), "Somchai");
        EXPECT_EQ(sheet.cboCheck.Text(), "Somsri");
        EXPECT_EQ(sheet.txtHeight.Text(), "11.64");
        EXPECT_EQ(sheet.txtDia.Text(), "10.16");
        EXPECT_EQ(sheet.cboBlow.Text(), "25");
        EXPECT_EQ(sheet.cboLayer.Text(), "3");
        EXPECT_EQ(sheet.cboWt.Text(), "2.5 kg");
        EXPECT_EQ(sheet.txtGs.Text(), "2.71");
        EXPECT_EQ(sheet.MSHWt(water::CanNumber, 6), "ก-6-9");
        EXPECT_EQ(sheet.MSHWt(water::WetAndCan, 1), "61.11");
        EXPECT_EQ(sheet.MSHWt(water::DryAndCan, 2), "52.22");
        EXPECT_EQ(sheet.MSHWt(water::Can, 3), "13.33");
        EXPECT_EQ(sheet.MSHDensity(density::AssumedWater, 4), "4.5");
        EXPECT_EQ(sheet.MSHDensity(density::WetAndMold, 5), "3500.4");
        EXPECT_EQ(sheet.MSHDensity(density::Mold, 6), "1460.5");
        EXPECT_EQ(sheet.txtOMC.Text(), "") << "Results wait for the next plot.";
        EXPECT_EQ(sheet.txtDmax.Text(), "");
        EXPECT_EQ(sheet.MSHWt(water::WaterContent, 1), "") << "Calculated cells wait for Calculate.";
        EXPECT_EQ(sheet.MSHDensity(density::DryDensity, 1), "");
        EXPECT_FALSE(sheet.SSTData.TabEnabled(1));
    }
}

TEST_F(CompactionStore, TrimsListsButNotTheHead)
{
    lab.Change("UPDATE HEAD Set Project_Client ='  A client '");
    lab.Change("UPDATE STDSOIL Set std_soil =' S-1 ',  std_can =' A1 ',  std_wm =' 1876 ' Where std_ID =' 1'");
    frmCompaction& sheet = lab.OpenSheet();
    EXPECT_EQ(sheet.txtClient.Text(), "  A client ");
    EXPECT_EQ(sheet.txtSoil.Text(), " S-1 ");
    EXPECT_EQ(sheet.MSHWt(water::CanNumber, 1), "A1");
    EXPECT_EQ(sheet.MSHDensity(density::Mold, 1), "1876");
}

TEST_F(CompactionStore, ReadsTheHeadFromTheFirstRow)
{
    lab.Change("UPDATE STDSOIL Set std_soil ='first' Where std_ID =' 1'");
    lab.Change("UPDATE STDSOIL Set std_soil ='second' Where std_ID =' 2'");
    EXPECT_EQ(lab.OpenSheet().txtSoil.Text(), "first");
}

TEST_F(CompactionStore, FailsOnAStoredDateThatIsNone)
{
    lab.Change("UPDATE STDSOIL Set std_date ='some day' Where std_ID =' 1'");
    frmCompaction& sheet = lab.OpenSheet();
    EXPECT_EQ(lab.OnlyError(), error::kTypeMismatch);
    EXPECT_EQ(sheet.DTPDate.Text(), "21/11/2026") << "The picker keeps today.";
}

TEST_F(CompactionStore, SavesTheSameTwice)
{
    FillEverything(lab.OpenSheet());
    auto& sheet = lab.program.Get<frmCompaction>("frmCompaction");
    Save(sheet);
    const auto once = lab.files.Content(std::string(kProject));
    Save(sheet);
    EXPECT_EQ(lab.files.Content(std::string(kProject)), once);
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(CompactionStore, SavesBlankResultsAsTheyStand)
{
    frmCompaction& sheet = lab.OpenSheet();
    sheet.txtGs.Type("");
    Save(sheet);
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_omc")[0], "");
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_mdd")[5], "");
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_gs")[0], "");
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_soil")[0], "   ")
        << "A head field that nobody touched keeps its blanks.";
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_can")[0], "") << "A cell lost them when it was loaded.";
    EXPECT_EQ(lab.OpenSheet().txtGs.Text(), "");
}

TEST_F(CompactionStore, ForgetsTheStoredResultsWhereASheetIsSavedWithoutAPlot)
{
    FillEverything(lab.OpenSheet());
    Save(lab.program.Get<frmCompaction>("frmCompaction"));
    lab.Change("UPDATE SUMMARY Set sum_omcS ='12.3' Where sum_ID =' 1'");
    Save(lab.OpenSheet());
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_omc"), Texts(6, ""));
    EXPECT_EQ(lab.Posted("sum_omcS"), "12.3") << "What was posted stays posted.";
}

TEST_F(CompactionStore, StopsAtAnApostropheBehindTheHead)
{
    frmCompaction& sheet = lab.OpenSheet();
    FillEverything(sheet);
    sheet.txtSoil.Type("O'Hara pit");
    Save(sheet);
    EXPECT_EQ(lab.OnlyError(), jet::engine::kSyntax);
    EXPECT_EQ(lab.ask.errors[0].event, "frmCompaction.tblMenu_ButtonClick");
    EXPECT_EQ(lab.StoredColumn("HEAD", "project_client")[0], "กรมทางหลวง") << "The head had been written.";
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_can"), Texts(6, "   ")) << "No trial was.";
    EXPECT_EQ(sheet.txtSoil.Text(), "O'Hara pit") << "The sheet keeps what was typed.";
    EXPECT_EQ(sheet.MSHWt(water::CanNumber, 1), "ก-1-9");
}

TEST_F(CompactionStore, StopsAtAnApostropheInTheHeadBeforeAnything)
{
    frmCompaction& sheet = lab.OpenSheet();
    FillEverything(sheet);
    sheet.txtClient.Type("Surat's Dept.");
    const auto before = lab.files.Content(std::string(kProject));
    Save(sheet);
    EXPECT_EQ(lab.OnlyError(), jet::engine::kSyntax);
    EXPECT_EQ(lab.files.Content(std::string(kProject)), before);
}

// The can number takes five characters; trial 3 has six.
TEST_F(CompactionStore, StopsAtATextThatIsTooLongAndKeepsTheTrialsBefore)
{
    frmCompaction& sheet = lab.OpenSheet();
    FillEverything(sheet);
    TypeCell(sheet.txtData, water::CanNumber, 3, "123456");
    Save(sheet);
    EXPECT_EQ(lab.OnlyError(), jet::engine::kTextTooLong);
    EXPECT_NE(lab.ask.errors[0].description.find("std_can"), std::string::npos) << lab.ask.errors[0];
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_can"), (Texts{"ก-1-9", "ก-2-9", "   ", "   ", "   ", "   "}));
}

TEST_F(CompactionStore, SaysThatTheFileIsGone)
{
    frmCompaction& sheet = lab.OpenSheet();
    lab.files.TakeAway(std::string(kProject));
    Save(sheet);
    EXPECT_EQ(lab.OnlyError(), jet::engine::kFile);
    EXPECT_EQ(lab.ask.errors[0].description, "Could not find file '" + std::string(kProject) + "'.");
}

TEST_F(CompactionStore, KeepsTheOldFileWhereTheDiskIsFull)
{
    frmCompaction& sheet = lab.OpenSheet();
    FillEverything(sheet);
    const auto before = lab.files.Content(std::string(kProject));
    lab.files.FailAtStep(1, error::kDiskFull);
    Save(sheet);
    EXPECT_EQ(lab.OnlyError(), error::kDiskFull);
    EXPECT_EQ(lab.files.Content(std::string(kProject)), before);
    EXPECT_EQ(sheet.txtClient.Text(), "กรมทางหลวง");
    Save(sheet);
    EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_can")[0], "ก-1-9") << "Once there is room the same press saves.";
}

TEST_F(CompactionStore, CannotSaveBeforeItWasOpenedByTheFrame)
{
    lab.program.AddForm("frmCompaction", [](Program& owner) { return std::make_unique<frmCompaction>(owner); });
    auto& sheet = dynamic_cast<frmCompaction&>(lab.program.Show("frmCompaction"));
    EXPECT_FALSE(sheet.tblMenu.Button(1).enabled);
}

TEST_F(CompactionStore, OffersTestersAndCheckersOfTheBrandStore)
{
    jet::Connection brand;
    brand.Open(lab.files, "/lab/BrandList/logo.mdb");
    const auto person = [&](int row, const std::string& name, const std::string& position) {
        brand.Execute("UPDATE PERSON Set person_name ='" + name + "',  person_position ='" + position +
                      "' Where person_ID ='" + RowKey(row) + "'");
    };
    person(2, "นายสมชาย ใจดี", "Tester");
    person(4, "B", " Checker ");
    person(9, "C", "Approver");
    person(15, "D", "Tester");
    brand.Flush();
    frmCompaction& sheet = lab.OpenSheet();
    EXPECT_EQ(sheet.cboTest.List(), (Texts{"นายสมชาย ใจดี", "D"}));
    EXPECT_EQ(sheet.cboCheck.List(), Texts{"B"});
}

TEST_F(CompactionStore, CannotOpenWithoutTheBrandStore)
{
    lab.OpenSheet();
    lab.program.Unload("frmCompaction");
    lab.files.TakeAway("/lab/BrandList/logo.mdb");
    EXPECT_EQ(ErrorOf([&] { lab.program.Show("frmCompaction"); }), jet::engine::kFile);
    EXPECT_EQ(lab.program.Loaded("frmCompaction"), nullptr);
}

}  // namespace
}  // namespace terravane::compaction
