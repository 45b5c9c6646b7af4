// What an item of the tests' toolbar does.
#include <gtest/gtest.h>

#include "sheets/compaction/frmCompaction.h"
#include "support/every_report.h"
#include "unit/app/app_bench.h"

namespace terravane::testing {
namespace {

/// The frame with a fresh project chosen.
mdiBack& OpenRoad(AppBench& bench)
{
    CreateProjectFile(bench.files, "/jobs/TRVN_road.mdb");
    mdiBack& frame = bench.ShowFrame();
    bench.Press(frame.mnuOpen, "/jobs/TRVN_road.mdb");
    return frame;
}

TEST(OpeningASheet, EachItemShowsItsFormItsBannerAndItsColour)
{
    for (const support::ReportUnderTest& report : support::kReportsUnderTest) {
        const laboratory::Description& test = laboratory::Describe(report.test);
        for (const bool isRock : {false, true}) {
            AppBench bench;
            bench.NoteSheets();
            mdiBack& frame = OpenRoad(bench);
            ASSERT_TRUE(frame.tbrLab.PressItem(std::string(test.menu) + (isRock ? "2" : "1")));
            auto* sheet = dynamic_cast<NotedSheet*>(bench.program.Loaded(test.sheet.form));
            ASSERT_NE(sheet, nullptr) << test.menu;
            EXPECT_EQ(bench.program.CurrentTest, report.test);
            EXPECT_EQ(bench.program.CurrentMaterial, isRock ? Material::Crush : Material::Soil);
            EXPECT_EQ(sheet->testAtLoad, terravane::Test::None)
                << "The load runs while the test is still the last sheet's.";
            EXPECT_EQ(sheet->txtLabName.Text(), report.Banner());
            EXPECT_EQ(sheet->txtLabName.BackColor(), (isRock ? Colour{128, 0, 128} : Colour{0, 0, 192}));
            EXPECT_EQ(sheet->stbDes.Panel(1), "Database File is /jobs/TRVN_road.mdb");
            EXPECT_TRUE(sheet->tblMenu.Button(1).enabled);
            EXPECT_EQ(sheet->txtClient.Text(), "   ") << "LoadTestSheet fills the headings from the file.";
        }
    }
}

TEST(OpeningASheet, ClosesTheOpenOneFirstWithoutAQuestion)
{
    AppBench bench;
    bench.NoteSheets();
    mdiBack& frame = OpenRoad(bench);
    frame.tbrLab.PressItem("mnuAtt1");
    frame.tbrLab.PressItem("mnuSie2");
    EXPECT_EQ(bench.log, (std::vector<std::string>{"+frmAtterberg", "-frmAtterberg", "+frmSieve"}));
    EXPECT_TRUE(bench.surroundings.messages.empty());
}

TEST(OpeningASheet, ClosesAllSheetsInItsOrder)
{
    AppBench bench;
    OpenRoad(bench);
    bench.LoadNotedSheets();
    bench.Frame().tbrLab.PressItem("mnuCBR1");
    std::vector<std::string> expected = Closed(laboratory::SheetsClosedBeforeSheet());
    expected.emplace_back("+frmCBR");
    EXPECT_EQ(bench.log, expected);
}

TEST(OpeningASheet, UnknownKeyOnlyClosesTheSheets)
{
    for (const std::string key : {"mnuSei1", "mnuStd3", "mnuStd", "1", ""}) {
        AppBench bench;
        OpenRoad(bench);
        bench.LoadNotedSheets();
        bench.Frame().tbrLab_ButtonMenuClick(key);
        EXPECT_EQ(bench.log, Closed(laboratory::SheetsClosedBeforeSheet())) << key;
        EXPECT_EQ(bench.program.CurrentTest, terravane::Test::None);
    }
}

TEST(OpeningASheet, NothingHappensWhileNoProjectIsChosen)
{
    AppBench bench;
    bench.NoteSheets();
    bench.ShowFrame().tbrLab.PressItem("mnuStd1");
    EXPECT_EQ(bench.log, std::vector<std::string>{});
}

TEST(OpeningASheet, FileThatIsNoProjectIsFoundOutNow)
{
    AppBench bench;
    bench.files.Put("/jobs/letter.txt", "Dear Sir");
    mdiBack& frame = bench.ShowFrame();
    bench.Press(frame.mnuOpen, "/jobs/letter.txt");
    EXPECT_TRUE(bench.surroundings.failures.empty());
    frame.tbrLab.PressItem("mnuStd1");
    ASSERT_EQ(bench.surroundings.failures.size(), 1U);
    EXPECT_EQ(bench.surroundings.failures.front().Description(), "Unrecognized database format '/jobs/letter.txt'.");
    EXPECT_NE(bench.program.Loaded("frmCompaction"), nullptr) << "The sheet stands as the error left it.";
}

TEST(OpeningASheet, MissingBrandStoreLeavesNoSheet)
{
    AppBench bench;
    mdiBack& frame = OpenRoad(bench);
    bench.files.TakeAway("/home/BrandList/logo.mdb");
    frame.tbrLab.PressItem("mnuStd1");
    ASSERT_EQ(bench.surroundings.failures.size(), 1U);
    EXPECT_EQ(bench.program.Loaded("frmCompaction"), nullptr);
}

// A second command that chooses a file goes back to "project chosen": the sheet and what was typed are gone.
TEST(ChoosingAFile, ClosesTheOpenSheetAndItsUnsavedReadings)
{
    AppBench bench;
    mdiBack& frame = OpenRoad(bench);
    frame.tbrLab.PressItem("mnuStd1");
    bench.program.Get<frmCompaction>("frmCompaction").txtSoil.Type("Sample 3");
    bench.Press(frame.mnuRecent);
    EXPECT_EQ(bench.program.Loaded("frmCompaction"), nullptr);
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "STDSOIL", "std_soil"), "   ");
    EXPECT_TRUE(frame.tbrLab.Enabled());
}

}  // namespace
}  // namespace terravane::testing
