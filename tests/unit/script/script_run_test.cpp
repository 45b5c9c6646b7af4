// Runs as a whole: files, folders, complaints, exit status.
#include "unit/script/script_bench.h"

namespace terravane::testing {
namespace {

class ScriptRuns : public ScriptBench {};

TEST_F(ScriptRuns, BeginBehindTheSplash)
{
    EXPECT_EQ(Run("forms\n").Text(), "{\"forms\":[\"mdiBack\"]}\n");
}

TEST_F(ScriptRuns, LinesThatAreNoneAreComplainedOfAndPassed)
{
    const auto run =
        Run("clik cmdCal\n\n# comment\nget nowhere\necho on\nset txtSoil\nget mnuNew.Colour\n"
            "click StatusBar1\ntool tbrLab 9\nmenu mnuNothing\necho \"open\ncheck mnuNew on\npage side\nrender page "
            "x.png\nkey mnuNew Home\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Text(), "{\"echo\":\"on\"}\n");
    EXPECT_EQ(run.complaints,
              "standard input:1: There is no command \"clik\".\n"
              "standard input:4: There is no control \"nowhere\".\n"
              "standard input:6: Words behind set: 1, and it takes 2; a text with blanks stands in quotes.\n"
              "standard input:7: \"mnuNew\" has no property \"Colour\".\n"
              "standard input:8: \"StatusBar1\" can't be clicked.\n"
              "standard input:9: \"tbrLab\" has no button 9.\n"
              "standard input:10: There is no menu entry \"mnuNothing\".\n"
              "standard input:11: A quote is not closed.\n"
              "standard input:12: \"mnuNew\" can't be ticked.\n"
              "standard input:13: A page is \"preview\" or \"print\" and its number.\n"
              "standard input:14: Only the preview's page can be rendered.\n"
              "standard input:15: There is no key \"Home\".\n");
}

TEST_F(ScriptRuns, FilesRunInTheirOrderAndQuitEndsAll)
{
    options.files = {Write("a.trv",
                           "\xEF\xBB\xBF"
                           "echo a\r\nnonsense\r\n"),
                     Write("b.trv", "echo b\nquit\necho c"), Write("c.trv", "echo d\n")};
    const auto run = Run("echo input\n");
    EXPECT_EQ(run.Text(), "{\"echo\":\"a\"}\n{\"echo\":\"b\"}\n");
    EXPECT_EQ(run.complaints, Folder() + "a.trv:2: There is no command \"nonsense\".\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(ScriptRuns, ScriptThatCannotBeReadIsComplainedOf)
{
    options.files = {Folder() + "missing.trv", Folder()};
    const auto run = Run("");
    EXPECT_EQ(run.complaints,
              Folder() + "missing.trv: The script can't be read.\n" + Folder() + ": The script can't be read.\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(ScriptRuns, StrictOnesStopAtTheFirstRunTimeError)
{
    options.isStrict = true;
    const auto run = Run("nonsense\nmenu mnuStd1\nmenu mnuLogoT\nset txtIsName O'Hara\nclick cmdName1\necho on\n");
    EXPECT_EQ(run.status, 2);
    ASSERT_EQ(run.answers.size(), 2U) << run.Text();
    EXPECT_EQ(run.answers.at(0), R"({"refused":"mnuStd1","why":"disabled"})") << "A refusal is no error.";
}

TEST_F(ScriptRuns, QuitLeavesTheRecentFileAlone)
{
    Run("answer a.mdb\nmenu mnuOpen\nquit\n");
    EXPECT_FALSE(std::filesystem::exists(Folder() + "home/FileRecent.txt"));
    Run("answer a.mdb\nmenu mnuOpen\n");
    EXPECT_FALSE(std::filesystem::exists(Folder() + "home/FileRecent.txt"));
    const auto run = Run("answer /a/TRVN_b.mdb\nmenu mnuOpen\nmenu mnuExit\necho never\n");
    EXPECT_EQ(Read("home/FileRecent.txt"), FullPath("/a/TRVN_b.mdb") + "\r\n");
    EXPECT_EQ(run.answers.size(), 1U);
    EXPECT_EQ(Run("get mnuRecent\n").Last(), R"({"get":"mnuRecent","text":)" + Json(FullPath("/a/TRVN_b.mdb")) + "}");
}

TEST_F(ScriptRuns, HomeWithABrandFolderKeepsIt)
{
    std::filesystem::create_directories(Folder() + "home/BrandList");
    const auto run = RunOnSheet("forms\n");
    EXPECT_EQ(run.answers.at(0).find("{\"error\":-2147467259,"), 0U) << "No brand store is made up: " << run.Text();
    EXPECT_TRUE(std::filesystem::is_empty(Folder() + "home/BrandList"));
}

TEST_F(ScriptRuns, BrandStoreMayComeFromAnotherFolder)
{
    options.home = Folder() + "laboratory";
    Run("brandsql \"UPDATE LOGO Set logo_ins ='Institute'\"\n");
    options.home.clear();
    options.brand = Folder() + "laboratory/BrandList";
    const auto run = Run("brandsql \"SELECT * from LOGO'\"\n");
    EXPECT_NE(run.Text().find("Institute"), std::string::npos) << run.Text();
}

TEST_F(ScriptRuns, FixedDateIsWhatTheFormsSee)
{
    EXPECT_EQ(RunOnSheet("get DTPDate\n").Last(), R"({"get":"DTPDate","text":"21/11/2026"})");
}

}  // namespace
}  // namespace terravane::testing
