// Forms opened by name and the one place that catches, over a disk in memory and surroundings that the test sets.
#include "program/program.h"

#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "controls/choice_controls.h"
#include "runtime/memory_file_system.h"
#include "support/test_surroundings.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using support::Untrapped;

/// What the forms of a test went through, in order.
using Diary = std::vector<std::string>;

struct DiaryForm : Form {
    DiaryForm(Program& program, const std::string& name, Diary& kept) : Form(program, name, name), diary(kept) {}
    ~DiaryForm() override { diary.push_back(Name() + " gone"); }

    void Form_Load() override
    {
        diary.push_back(Name() + " load");
        if (failsToLoad) throw RuntimeError(error::kDivisionByZero);
    }
    void Form_Activate() override { diary.push_back(Name() + " activate"); }
    void Form_Unload() override { diary.push_back(Name() + " unload"); }

    CommandButton cmdClose{*this, "cmdClose", "Close"};
    Diary& diary;
    bool failsToLoad = false;
};

struct ProgramTest : testing::Test {
    MemoryFileSystem files;
    support::TestSurroundings ask;
    Diary diary;
    Program program{ask, files, "/lab"};

    ProgramTest()
    {
        for (const char* name : {"frmOne", "frmTwo"}) {
            program.AddForm(name,
                            [this, name](Program& owner) { return std::make_unique<DiaryForm>(owner, name, diary); });
        }
        program.AddForm("frmBroken", [this](Program& owner) {
            auto form = std::make_unique<DiaryForm>(owner, "frmBroken", diary);
            form->failsToLoad = true;
            return form;
        });
    }

    void MakeStore(const std::string& path)
    {
        files.MakeFolders("/lab/");
        jet::NewDatabase store(files, path);
        store.Execute("CREATE TABLE HEAD(project_client text(100))");
        store.Execute("insert into HEAD (project_client) Values ('   ')");
        store.Close();
    }

    std::string StoredClient(const std::string& path) const
    {
        const auto rows = jet::Database::FromBytes(files.Content(path)).ReadRows("HEAD").rows;
        return rows.at(0).at(0).value_or("(null)");
    }
};

TEST_F(ProgramTest, LoadsAFormOnceAndFindsItWithoutRegardToCase)
{
    Form& form = program.Load("frmOne");
    EXPECT_EQ(&program.Load("frmOne"), &form);
    EXPECT_EQ(program.Loaded("FRMONE"), &form);
    EXPECT_EQ(program.Loaded("frmTwo"), nullptr);
    EXPECT_EQ(diary, Diary{"frmOne load"});
}

TEST_F(ProgramTest, HasNoFormOfAnUnknownName)
{
    EXPECT_EQ(ErrorOf([&] { program.Load("frmNone"); }), error::kObjectRequired);
    EXPECT_EQ(ErrorOf([&] { program.Get<Form>("frmOne"); }), error::kObjectRequired) << "It is not loaded yet.";
    program.Unload("frmOne");
    EXPECT_TRUE(diary.empty()) << "Unloading what is not loaded does nothing.";
}

TEST_F(ProgramTest, LeavesAFormWhoseLoadFailsNotLoaded)
{
    EXPECT_EQ(ErrorOf([&] { program.Show("frmBroken", Modality::Modal); }), error::kDivisionByZero);
    EXPECT_EQ(program.Loaded("frmBroken"), nullptr);
    EXPECT_TRUE(program.LoadedForms().empty());
    EXPECT_TRUE(program.ShownForms().empty());
}

TEST_F(ProgramTest, PutsTheFormShownLastOnTop)
{
    program.Show("frmOne");
    program.Show("frmTwo", Modality::Modal);
    ASSERT_EQ(program.ShownForms().size(), 2U);
    EXPECT_EQ(program.ShownForms().back().form->Name(), "frmTwo");
    EXPECT_EQ(program.ShownForms().back().modality, Modality::Modal);
    program.Show("frmOne");
    ASSERT_EQ(program.ShownForms().size(), 2U) << "A form stands on the stack once.";
    EXPECT_EQ(program.ShownForms().back().form->Name(), "frmOne");
    EXPECT_EQ(diary, (Diary{"frmOne load", "frmOne activate", "frmTwo load", "frmTwo activate", "frmOne activate"}));
}

TEST_F(ProgramTest, TakesAnUnloadedFormFromTheStack)
{
    program.Show("frmOne");
    program.Show("frmTwo", Modality::Modal);
    program.Unload("frmTwo");
    EXPECT_EQ(program.ShownForms().back().form->Name(), "frmOne");
    EXPECT_EQ(program.LoadedForms(), std::vector<Form*>{program.Loaded("frmOne")});
    EXPECT_EQ(diary.back(), "frmTwo gone") << "Outside of a command the form goes at once.";
    EXPECT_EQ(diary[diary.size() - 2], "frmTwo unload");
}

// "Exit Screen" unloads the sheet from a button of that very sheet.
TEST_F(ProgramTest, KeepsAFormAliveThatUnloadsItselfUntilItsEventHasEnded)
{
    auto& form = dynamic_cast<DiaryForm&>(program.Show("frmOne"));
    form.cmdClose.Click = [&] {
        program.Unload("frmOne");
        EXPECT_EQ(program.Loaded("frmOne"), nullptr);
        form.diary.push_back("still there");
    };
    form.cmdClose.Press();
    EXPECT_EQ(diary, (Diary{"frmOne load", "frmOne activate", "frmOne unload", "still there", "frmOne gone"}));
}

TEST_F(ProgramTest, TellsWhoListensToFormsComingAndGoing)
{
    int told = 0;
    const auto listening = program.ShowForms([&] { ++told; });
    program.Load("frmOne");
    EXPECT_EQ(told, 1);
    program.Show("frmOne");
    EXPECT_EQ(told, 2);
    program.Unload("frmOne");
    EXPECT_EQ(told, 3);
}

TEST_F(ProgramTest, ShowsWhatNoHandlerTrapped)
{
    auto& form = dynamic_cast<DiaryForm&>(program.Show("frmOne"));
    form.cmdClose.Click = [] { throw RuntimeError(error::kDivisionByZero); };
    form.cmdClose.Press();
    EXPECT_EQ(ask.errors, (std::vector<Untrapped>{{"frmOne.cmdClose_Click", 11, "Division by zero"}}));
    EXPECT_NE(program.Loaded("frmOne"), nullptr) << "The form stays as the error left it.";
}

TEST_F(ProgramTest, LetsAnInnerFailureEndTheWholeCommand)
{
    auto& form = dynamic_cast<DiaryForm&>(program.Show("frmOne"));
    CommandButton inner(form, "cmdInner");
    inner.Click = [] { throw RuntimeError(error::kOverflow); };
    bool wentOn = false;
    form.cmdClose.Click = [&] {
        inner.Press();
        wentOn = true;
    };
    form.cmdClose.Press();
    EXPECT_FALSE(wentOn) << "A command that fails, fails as a whole.";
    ASSERT_EQ(ask.errors.size(), 1U) << "It is told once, by the command that the user gave.";
    EXPECT_EQ(ask.errors[0].event, "frmOne.cmdClose_Click");
    EXPECT_EQ(ask.errors[0].number, error::kOverflow);
}

/// Something else happens while a person reads what failed.
struct BusySurroundings : support::TestSurroundings {
    std::function<void()> meanwhile;

    void Fail(const std::string& event, const RuntimeError& error) override
    {
        TestSurroundings::Fail(event, error);
        if (const auto once = std::exchange(meanwhile, {})) once();
    }
};

TEST_F(ProgramTest, TellsOfAFailureThatHappensWhileAnotherIsTold)
{
    BusySurroundings busy;
    Program running(busy, files, "/lab");
    running.AddForm("frmOne", [this](Program& owner) { return std::make_unique<DiaryForm>(owner, "frmOne", diary); });
    running.Show("frmOne");
    busy.meanwhile = [&] {
        running.Run("clock", [] { throw RuntimeError(error::kOverflow); });
        diary.push_back("told");
    };
    running.Run("outer", [&] {
        running.Unload("frmOne");
        throw RuntimeError(error::kDivisionByZero);
    });
    ASSERT_EQ(busy.errors.size(), 2U);
    EXPECT_EQ(busy.errors[0].event, "outer");
    EXPECT_EQ(busy.errors[1].event, "clock") << "A command of its own, it fails by itself.";
    EXPECT_EQ(diary, (Diary{"frmOne load", "frmOne activate", "frmOne unload", "told", "frmOne gone"}));
    running.Run("next", [] { throw RuntimeError(error::kOverflow); });
    EXPECT_EQ(busy.errors.size(), 3U) << "The next failure is told as well.";
}

TEST_F(ProgramTest, LetsAHandlerTrapAnInnerFailure)
{
    program.Run("outer", [&] {
        try {
            program.Run("inner", [] { throw RuntimeError(error::kOverflow); });
        } catch (const RuntimeError&) {
            diary.push_back("trapped");
        }
    });
    EXPECT_TRUE(ask.errors.empty());
    EXPECT_EQ(diary, Diary{"trapped"});
}

TEST_F(ProgramTest, ShowsAFailureOfTheProgramItselfAsAnInternalError)
{
    program.Run("event", [] { throw std::out_of_range("vector::at"); });
    EXPECT_EQ(ask.errors, (std::vector<Untrapped>{{"event", error::kInternal, "vector::at"}}));
    program.Run("next", [&] { diary.push_back("the next command runs"); });
    EXPECT_EQ(diary.size(), 1U);
}

TEST_F(ProgramTest, SendsChangesToTheFileAtTheEndOfTheCommand)
{
    MakeStore("/lab/a.mdb");
    program.Run("save", [&] {
        program.ProjectConnection.Open(files, "/lab/a.mdb");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='A client'");
        program.Run("inner", [] {});
        EXPECT_EQ(StoredClient("/lab/a.mdb"), "   ") << "Not before the outermost command has ended.";
    });
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "A client");
    EXPECT_TRUE(ask.errors.empty());
}

TEST_F(ProgramTest, SendsWhatStoodBeforeTheFailureToTheFile)
{
    MakeStore("/lab/a.mdb");
    program.Run("save", [&] {
        program.ProjectConnection.Open(files, "/lab/a.mdb");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='A client'");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='it's broken'");
    });
    EXPECT_EQ(ask.errors.size(), 1U);
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "A client");
}

TEST_F(ProgramTest, TellsOfAFileThatCannotBeWrittenAndGoesOn)
{
    MakeStore("/lab/a.mdb");
    files.FailAtStep(1, error::kDiskFull);
    program.Run("save", [&] {
        program.ProjectConnection.Open(files, "/lab/a.mdb");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='A client'");
    });
    ASSERT_EQ(ask.errors.size(), 1U);
    EXPECT_EQ(ask.errors[0].event, "save");
    EXPECT_EQ(ask.errors[0].number, error::kDiskFull);
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "   ") << "The file keeps what it had.";
    program.Run("next", [] {});
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "   ") << "What was told as not saved is not saved later in silence.";
    files.FailAtStep(1, error::kDiskFull);
    program.Run("the one after it", [] {});
    EXPECT_EQ(ask.errors.size(), 1U) << "One failure is told once, not by every later command.";
}

TEST_F(ProgramTest, SendsBothStoresToTheirFiles)
{
    MakeStore("/lab/a.mdb");
    MakeStore("/lab/b.mdb");
    program.Run("save", [&] {
        program.ProjectConnection.Open(files, "/lab/a.mdb");
        program.BrandConnection.Open(files, "/lab/b.mdb");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='a'");
        program.BrandConnection.Execute("UPDATE HEAD Set project_client ='b'");
    });
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "a");
    EXPECT_EQ(StoredClient("/lab/b.mdb"), "b");
}

// The disk takes nothing of the project and, a moment later, takes the brand store.
TEST_F(ProgramTest, SendsTheOtherStoreToItsFileWhereOneCannotBeWritten)
{
    MakeStore("/lab/a.mdb");
    MakeStore("/lab/logo.mdb");
    files.FailAtStep(1, error::kDiskFull);
    program.Run("save", [&] {
        program.ProjectConnection.Open(files, "/lab/a.mdb");
        program.ProjectConnection.Execute("UPDATE HEAD Set project_client ='A client'");
        program.BrandConnection.Open(files, "/lab/logo.mdb");
        program.BrandConnection.Execute("UPDATE HEAD Set project_client ='A name'");
    });
    EXPECT_EQ(StoredClient("/lab/a.mdb"), "   ");
    EXPECT_EQ(StoredClient("/lab/logo.mdb"), "A name");
    ASSERT_EQ(ask.errors.size(), 1U);
    EXPECT_EQ(ask.errors[0].number, error::kDiskFull);
}

TEST_F(ProgramTest, TellsTheFirstFailureWhereNeitherStoreCanBeWritten)
{
    MakeStore("/lab/a.mdb");
    MakeStore("/lab/logo.mdb");
    program.Run("save", [&] {
        for (auto* const store : {&program.ProjectConnection, &program.BrandConnection}) {
            store->Open(files, store == &program.ProjectConnection ? "/lab/a.mdb" : "/lab/logo.mdb");
            store->Execute("UPDATE HEAD Set project_client ='x'");
        }
        files.TakeAway("/lab/a.mdb");
        files.TakeAway("/lab/logo.mdb");
    });
    ASSERT_EQ(ask.errors.size(), 1U);
    EXPECT_EQ(ask.errors[0].description, "Could not find file '/lab/a.mdb'; nothing was saved.");
}

TEST(ProgramPaths, PutTheBrandStoreBesideTheProgram)
{
    MemoryFileSystem files;
    support::TestSurroundings ask;
    const auto folder = [&](const std::string& application, const std::string& brand) {
        return Program(ask, files, application, brand).BrandFolderNow();
    };
    EXPECT_EQ(folder("/opt/terravane", ""), "/opt/terravane/BrandList/");
    EXPECT_EQ(folder("/opt/terravane/", ""), "/opt/terravane/BrandList/");
    EXPECT_EQ(folder("/", ""), "/BrandList/") << "The root's own mark is not doubled.";
    EXPECT_EQ(folder("/opt/terravane", "/srv/brand/"), "/srv/brand/") << "A folder named for this run goes before.";
}

TEST(ProgramState, BeginsWithoutProjectAndTest)
{
    MemoryFileSystem files;
    support::TestSurroundings ask;
    const Program program(ask, files, "/opt/terravane");
    EXPECT_EQ(program.CurrentProjectPath, "");
    EXPECT_EQ(program.AppFolder, "") << "The frame sets it when it is loaded.";
    EXPECT_EQ(program.CurrentTest, terravane::Test::None);
    EXPECT_EQ(program.CurrentMaterial, Material::None);
    EXPECT_FALSE(program.ProjectConnection.IsOpen());
}

}  // namespace
}  // namespace terravane
