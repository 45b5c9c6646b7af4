// File, Overall Results: the form comes modally, or the command ends without a word.
#include <gtest/gtest.h>

#include "results/frmSummary.h"
#include "unit/app/app_bench.h"

namespace terravane::testing {
namespace {

constexpr const char* kFile = "/jobs/TRVN_road.mdb";

struct OverallResultsCommand : ::testing::Test {
    AppBench bench;

    /// A start that finds a project of an earlier run in its recent entry.
    mdiBack& StartAfter(const std::string& recentPath)
    {
        const std::string line = recentPath + "\r\n";
        bench.files.Put("/home/FileRecent.txt", Bytes(line.begin(), line.end()));
        return bench.ShowFrame();
    }

    void ExpectNothingHappened()
    {
        EXPECT_EQ(bench.program.Loaded("frmSummary"), nullptr);
        EXPECT_EQ(bench.program.ShownForms().back().form, &bench.Frame());
        EXPECT_TRUE(bench.surroundings.messages.empty());
        EXPECT_TRUE(bench.surroundings.failures.empty());
    }
};

TEST_F(OverallResultsCommand, ShowsTheFormModally)
{
    CreateProjectFile(bench.files, kFile);
    bench.Press(StartAfter(kFile).mnuSum);
    EXPECT_NE(dynamic_cast<frmSummary*>(bench.program.ShownForms().back().form), nullptr);
    EXPECT_EQ(bench.program.ShownForms().back().modality, Modality::Modal);
}

TEST_F(OverallResultsCommand, TakesTheRecentFileWithoutOpeningIt)
{
    CreateProjectFile(bench.files, kFile);
    mdiBack& frame = StartAfter(kFile);
    EXPECT_EQ(bench.program.CurrentProjectPath, "");
    bench.Press(frame.mnuSum);
    EXPECT_EQ(bench.program.CurrentProjectPath, kFile);
    EXPECT_FALSE(frame.tbrLab.Enabled()) << "Looking at results opens no sheet.";
    EXPECT_EQ(frame.StatusBar1.BackColor(), kNoProjectColour);
}

TEST_F(OverallResultsCommand, SaysNothingBeforeTheFirstProject)
{
    bench.Press(bench.ShowFrame().mnuSum);
    ExpectNothingHappened();
    EXPECT_EQ(bench.program.CurrentProjectPath, "");
}

TEST_F(OverallResultsCommand, SaysNothingOfAVanishedFile)
{
    bench.Press(StartAfter("/jobs/TRVN_gone.mdb").mnuSum);
    ExpectNothingHappened();
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_gone.mdb") << "The path had been taken by then.";
}

TEST_F(OverallResultsCommand, SaysNothingOfADamagedFile)
{
    CreateProjectFile(bench.files, kFile);
    Bytes half = bench.files.Content(kFile);
    half.resize(half.size() / 2);
    bench.files.Put(kFile, half);
    bench.Press(StartAfter(kFile).mnuSum);
    ExpectNothingHappened();
    bench.files.Put(kFile, "just a text");
    bench.Press(bench.Frame().mnuSum);
    ExpectNothingHappened();
}

TEST_F(OverallResultsCommand, ComesUpOnceTheFileIsMended)
{
    mdiBack& frame = StartAfter(kFile);
    bench.Press(frame.mnuSum);
    ExpectNothingHappened();
    CreateProjectFile(bench.files, kFile);
    bench.Press(frame.mnuSum);
    EXPECT_NE(bench.program.Loaded("frmSummary"), nullptr);
}

}  // namespace
}  // namespace terravane::testing
