// The commands that create, open and copy project files: states, order, failures.
#include <gtest/gtest.h>

#include "unit/app/app_bench.h"

namespace terravane::testing {
namespace {

using Names = std::vector<std::string>;

const Names kClosedByFileCommands = Closed(laboratory::SheetsClosedBeforeFile());
const Names kClosedBySaveAs = Closed(laboratory::SheetsClosedBeforeSheet());

void ExpectQuestion(const AppBench& bench, const std::string& title, FileDialogKind kind)
{
    ASSERT_EQ(bench.surroundings.questions.size(), 1U);
    const FileQuestion& question = bench.surroundings.questions.front();
    EXPECT_EQ(question.title, title);
    EXPECT_EQ(question.kind, kind);
    EXPECT_EQ(question.filter, "Terravane File(*.mdb)|TRVN*.mdb");
    EXPECT_EQ(question.filterIndex, 2);
}

/// The one box that a reported failure shows.
void ExpectErrorBox(const AppBench& bench, const std::string& text)
{
    ASSERT_EQ(bench.surroundings.messages.size(), 1U);
    const Message& box = bench.surroundings.messages.front();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, "Error");
    EXPECT_EQ(box.style, MessageStyle::Critical);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
}

void ExpectNoProject(AppBench& bench)
{
    EXPECT_EQ(bench.Frame().StatusBar1.BackColor(), kNoProjectColour);
    EXPECT_FALSE(bench.Frame().tbrLab.Enabled());
}

void ExpectProjectChosen(AppBench& bench, const std::string& path)
{
    EXPECT_EQ(bench.Frame().StatusBar1.BackColor(), (Colour{50, 205, 50}));
    EXPECT_TRUE(bench.Frame().tbrLab.Enabled());
    EXPECT_EQ(bench.program.CurrentProjectPath, path);
    EXPECT_EQ(bench.Frame().mnuRecent.Caption(), path);
    EXPECT_TRUE(bench.Frame().mnuRecent.Visible());
}

TEST(NameRule, PrefixIsAlwaysAddedAndNothingElse)
{
    EXPECT_EQ(ProjectPathFor("/jobs/road.mdb", "road.mdb"), "/jobs/TRVN_road.mdb");
    EXPECT_EQ(ProjectPathFor("/jobs/TRVN_road.mdb", "TRVN_road.mdb"), "/jobs/TRVN_TRVN_road.mdb");
    EXPECT_EQ(ProjectPathFor("/road", "road"), "/TRVN_road");
    EXPECT_EQ(ProjectPathFor("road.mdb", "road.mdb"), "TRVN_road.mdb");
}

TEST(NewFile, CreatesTheFileAndAsksForItsGeneralData)
{
    AppBench bench;
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuNew, "/jobs/road.mdb");
    ExpectQuestion(bench, "New File", FileDialogKind::Save);
    ExpectSilence(bench);
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "   ");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_road.mdb");
    EXPECT_EQ(bench.Frame().mnuRecent.Caption(), "/jobs/TRVN_road.mdb");
    EXPECT_EQ(bench.log, kClosedByFileCommands);
    EXPECT_EQ(bench.program.ShownForms().back().modality, Modality::Modeless);
    EXPECT_EQ(bench.GeneralData().Caption(), "General Data");
    EXPECT_EQ(bench.GeneralData().txtProject.Text(), "") << "What HEAD holds is not read.";
    EXPECT_TRUE(bench.GeneralData().txtID.HasFocus());
    ExpectNoProject(bench);
}

TEST(NewFile, CancelShowsItsTextAndChangesNothing)
{
    AppBench bench;
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_old.mdb";
    bench.Press(bench.Frame().mnuNew);
    ExpectErrorBox(bench, "Cancel was selected.");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_old.mdb");
    EXPECT_EQ(bench.program.Loaded("frmProject"), nullptr);
}

TEST(NewFile, ExistingFileIsLeftAloneAndItsPathKept)
{
    AppBench bench;
    bench.files.Put("/jobs/TRVN_road.mdb", "someone's");
    bench.ShowFrame();
    bench.Press(bench.Frame().mnuNew, "/jobs/road.mdb");
    ASSERT_EQ(bench.surroundings.messages.size(), 1U);
    EXPECT_EQ(bench.surroundings.messages.front().title, "Error");
    EXPECT_NE(bench.surroundings.messages.front().text.find("TRVN_road.mdb"), std::string::npos)
        << bench.surroundings.messages.front().text;
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_road.mdb");
    EXPECT_EQ(bench.files.Content("/jobs/TRVN_road.mdb").size(), 9U);
    EXPECT_EQ(bench.program.Loaded("frmProject"), nullptr);
}

TEST(GeneralData, FieldsStandInTheirTabOrder)
{
    AppBench bench;
    bench.ShowFrame();
    bench.Press(bench.Frame().mnuNew, "/jobs/road.mdb");
    std::vector<std::pair<std::string, std::string>> boxes;
    for (const Control* control : bench.GeneralData().Controls()) {
        if (dynamic_cast<const TextBox*>(control)) boxes.emplace_back(control->Name(), control->Caption());
    }
    const decltype(boxes) expected{{"txtProject", "Project Name"},
                                   {"txtLocation", "Location"},
                                   {"txtID", "Task No."},
                                   {"txtClient", "Client Name"}};
    EXPECT_EQ(boxes, expected);
    EXPECT_EQ(bench.GeneralData().cmdOK.Caption(), "Accept");
}

/// A new file with its General Data typed and not yet accepted.
void BeginRoad(AppBench& bench, const std::string& project)
{
    bench.ShowFrame();
    bench.Press(bench.Frame().mnuNew, "/jobs/road.mdb");
    bench.GeneralData().txtProject.Type(project);
    bench.GeneralData().txtLocation.Type("Km 12+400");
    bench.GeneralData().txtID.Type("R-17");
    bench.GeneralData().txtClient.Type("กรมทางหลวง");
}

TEST(GeneralData, AcceptWritesTheHeadingsAndChoosesTheProject)
{
    AppBench bench;
    BeginRoad(bench, "Bypass Road");
    bench.GeneralData().cmdOK.Press();
    ExpectSilence(bench);
    ExpectProjectChosen(bench, "/jobs/TRVN_road.mdb");
    EXPECT_EQ(bench.program.Loaded("frmProject"), nullptr);
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "Bypass Road");
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_location"), "Km 12+400");
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_number"), "R-17");
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_client"), "กรมทางหลวง");
}

TEST(GeneralData, ApostropheFailsAndLeavesTheTexts)
{
    AppBench bench;
    BeginRoad(bench, "King's Road");
    bench.GeneralData().cmdOK.Press();
    ASSERT_EQ(bench.surroundings.failures.size(), 1U);
    EXPECT_LT(bench.surroundings.failures.front().Number(), 0) << "The engine's error is expected.";
    EXPECT_EQ(bench.GeneralData().txtProject.Text(), "King's Road");
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "   ");
    ExpectNoProject(bench);
}

// Each step of the save in turn: writing, syncing, renaming.
TEST(GeneralData, FullDiskAtAcceptLeavesTheFormAndTheFile)
{
    for (const int step : {1, 2, 3}) {
        AppBench bench;
        BeginRoad(bench, "Bypass Road");
        bench.files.FailAtStep(step, error::kDiskFull);
        bench.GeneralData().cmdOK.Press();
        ASSERT_EQ(bench.surroundings.failures.size(), 1U) << "step " << step;
        EXPECT_EQ(bench.surroundings.failures.front().Number(), error::kDiskFull);
        ASSERT_NE(bench.program.Loaded("frmProject"), nullptr) << "The typed texts must not be lost.";
        EXPECT_EQ(bench.GeneralData().txtProject.Text(), "Bypass Road");
        EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "   ");
        ExpectNoProject(bench);

        bench.GeneralData().cmdOK.Press();  // once there is room again
        EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "Bypass Road");
        ExpectProjectChosen(bench, "/jobs/TRVN_road.mdb");
    }
}

TEST(GeneralData, ClosedByItsTitleBarLeavesTheFileBlankAndTheFrameRed)
{
    AppBench bench;
    BeginRoad(bench, "Bypass Road");
    bench.program.Run("close", [&] { bench.program.Unload("frmProject"); });
    EXPECT_EQ(bench.Stored("/jobs/TRVN_road.mdb", "HEAD", "project_name"), "   ");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_road.mdb");
    EXPECT_EQ(bench.Frame().mnuRecent.Caption(), "/jobs/TRVN_road.mdb");
    ExpectNoProject(bench);
}

TEST(OpenFile, TakesThePathUnchangedAndUnchecked)
{
    AppBench bench;
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuOpen, "/jobs/nothing there.txt");
    ExpectQuestion(bench, "Open File", FileDialogKind::Open);
    ExpectSilence(bench);
    ExpectProjectChosen(bench, "/jobs/nothing there.txt");
    EXPECT_EQ(bench.log, kClosedByFileCommands);
}

TEST(OpenFile, CancelShowsNothing)
{
    AppBench bench;
    bench.ShowFrame();
    bench.Press(bench.Frame().mnuOpen);
    ExpectSilence(bench);
    ExpectNoProject(bench);
    EXPECT_EQ(bench.program.CurrentProjectPath, "");
}

TEST(RecentEntry, OpensTheFileOfTheLastRun)
{
    AppBench bench;
    CreateProjectFile(bench.files, "/jobs/TRVN_a.mdb");
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb\r\n");
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuRecent);
    ExpectSilence(bench);
    ExpectProjectChosen(bench, "/jobs/TRVN_a.mdb");
    EXPECT_EQ(bench.log, kClosedByFileCommands);
}

TEST(RecentEntry, MissingFileIsReportedAndItsPathTaken)
{
    AppBench bench;
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_gone.mdb\r\n");
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_other.mdb";
    bench.Press(bench.Frame().mnuRecent);
    ExpectErrorBox(bench, "Could not find file '/jobs/TRVN_gone.mdb'.");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_gone.mdb");
    ExpectNoProject(bench);
}

TEST(FileNamedAtTheStart, IsOpened)
{
    AppBench bench;
    CreateProjectFile(bench.files, "/jobs/TRVN_a.mdb");
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Frame().OpenFile("/jobs/TRVN_a.mdb");
    ExpectSilence(bench);
    ExpectProjectChosen(bench, "/jobs/TRVN_a.mdb");
    EXPECT_EQ(bench.log, kClosedByFileCommands);
}

TEST(FileNamedAtTheStart, ThatIsMissingIsReportedAndNotRemembered)
{
    AppBench bench;
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_other.mdb";
    bench.Frame().OpenFile("/jobs/TRVN_gone.mdb");
    ExpectErrorBox(bench, "Could not find file '/jobs/TRVN_gone.mdb'.");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_other.mdb");
    ExpectNoProject(bench);
}

TEST(SaveFileAs, GoesOnInTheCopyWhileTheStripStaysRed)
{
    AppBench bench;
    bench.files.Put("/jobs/TRVN_a.mdb", "readings");
    bench.files.Put("/jobs/TRVN_b.mdb", "old");
    bench.files.Put("/home/FileRecent.txt", "  /jobs/TRVN_a.mdb \r\n");
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuAs, "/jobs/b.mdb");
    ExpectQuestion(bench, "Save File As...", FileDialogKind::Save);
    ExpectSilence(bench);
    EXPECT_EQ(bench.files.Content("/jobs/TRVN_b.mdb"), bench.files.Content("/jobs/TRVN_a.mdb"));
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_b.mdb");
    EXPECT_EQ(bench.Frame().mnuRecent.Caption(), "/jobs/TRVN_b.mdb");
    EXPECT_EQ(bench.log, kClosedBySaveAs);
    ExpectNoProject(bench);
}

TEST(SaveFileTo, CopiesAndStaysWhereItIs)
{
    AppBench bench;
    bench.files.Put("/jobs/TRVN_a.mdb", "readings");
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb\r\n");
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuTo, "/jobs/TRVN_b.mdb");
    ExpectQuestion(bench, "Save File To...", FileDialogKind::Save);
    EXPECT_EQ(bench.files.Content("/jobs/TRVN_TRVN_b.mdb"), bench.files.Content("/jobs/TRVN_a.mdb"));
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_a.mdb");
    EXPECT_EQ(bench.Frame().mnuRecent.Caption(), "/jobs/TRVN_a.mdb");
    EXPECT_EQ(bench.log, Names{});
}

TEST(SaveFileAsAndTo, WithoutAFileWarn)
{
    AppBench bench;
    mdiBack& frame = bench.ShowFrame();
    for (MenuEntry* entry : {&frame.mnuAs, &frame.mnuTo}) {
        bench.surroundings.messages.clear();
        bench.Press(*entry, "/jobs/b.mdb");
        ASSERT_EQ(bench.surroundings.messages.size(), 1U);
        const Message& box = bench.surroundings.messages.front();
        EXPECT_EQ(box.text, "Please select menu of New File or Open File before.");
        EXPECT_EQ(box.title, "Warning");
        EXPECT_EQ(box.style, MessageStyle::Information);
        EXPECT_TRUE(bench.surroundings.questions.empty());
    }
}

TEST(SaveFileAsAndTo, CancelLeavesTheTrimmedRecentPathAsTheCurrentOne)
{
    AppBench bench;
    bench.files.Put("/home/FileRecent.txt", " /jobs/TRVN_a.mdb \r\n");
    mdiBack& frame = bench.ShowFrame();
    for (MenuEntry* entry : {&frame.mnuAs, &frame.mnuTo}) {
        bench.program.CurrentProjectPath = "";
        bench.Press(*entry);
        ExpectSilence(bench);
        EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_a.mdb");
    }
}

TEST(SaveFileAs, FailingCopySaysNothingAndKeepsTheSheets)
{
    AppBench bench;
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_gone.mdb\r\n");
    bench.ShowFrame();
    bench.LoadNotedSheets();
    bench.Press(bench.Frame().mnuAs, "/jobs/b.mdb");
    ExpectSilence(bench);
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_gone.mdb");
    EXPECT_EQ(bench.log, Names{});
}

}  // namespace
}  // namespace terravane::testing
