// What the program announces to rooms that keep a record of it.
#include "program/listener.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "program/program.h"
#include "runtime/memory_file_system.h"
#include "support/test_surroundings.h"

namespace terravane {
namespace {

struct Record : ProgramListener {
    std::vector<std::string> told;

    void FormOpened(Form& form) override { told.push_back("opened " + form.Name()); }
    void FormClosed(Form& form) override { told.push_back("closed " + form.Name()); }
    void CommandBegan(std::string_view event) override { told.push_back("began " + std::string(event)); }
    void CommandEnded(std::string_view event, bool hasSucceeded) override
    {
        told.push_back((hasSucceeded ? "ended " : "failed ") + std::string(event));
    }
    void ProjectSaved(const jet::SavedFile& saved) override
    {
        told.push_back("saved " + saved.path + (std::ranges::equal(saved.before, saved.after) ? " as it was" : ""));
    }
    void ProjectMade(std::string_view path, std::string_view source) override
    {
        told.push_back("made " + std::string(path) + " from " + std::string(source));
    }
};
using Told = std::vector<std::string>;

class ProgramListenerTest : public testing::Test {
  protected:
    ProgramListenerTest()
    {
        program_.AddForm("frmPlain", [](Program& owner) { return std::make_unique<Form>(owner, "frmPlain", ""); });
        program_.Listen(record_);
    }

    MemoryFileSystem files_;
    support::TestSurroundings ask_;
    Program program_{ask_, files_, "/lab"};
    Record record_;
};

TEST_F(ProgramListenerTest, HearsOfFormsWithinTheCommandThatShowsThem)
{
    program_.Run("Start", [this] { program_.Show("frmPlain"); });
    program_.Run("frmPlain.Form_Unload", [this] { program_.Unload("frmPlain"); });
    EXPECT_EQ(record_.told, (Told{"began Start", "opened frmPlain", "ended Start", "began frmPlain.Form_Unload",
                                  "closed frmPlain", "ended frmPlain.Form_Unload"}));
}

TEST_F(ProgramListenerTest, HearsOfOneCommandWhereOneRunsWithinAnother)
{
    program_.Run("a", [this] { program_.Run("b", [] { throw RuntimeError(error::kTypeMismatch); }); });
    EXPECT_EQ(record_.told, (Told{"began a", "failed a"}));
}

TEST_F(ProgramListenerTest, HearsOfASaveBeforeTheCommandHasEnded)
{
    jet::NewDatabase made(files_, "a.mdb");
    made.Execute("CREATE TABLE T (a TEXT(9))");
    made.Execute("INSERT INTO T (a) VALUES ('x')");
    made.Close();
    const auto update = [this] {
        program_.ProjectConnection.Open(files_, "a.mdb", program_.ListenerOfSaves());
        program_.ProjectConnection.Execute("UPDATE T Set a ='y'");
        EXPECT_EQ(files_.LocksHeld(), 0);
    };
    program_.Run("Save", update);
    EXPECT_EQ(record_.told, (Told{"began Save", "saved a.mdb", "ended Save"}));
    program_.StopListening(record_);
    EXPECT_EQ(program_.ListenerOfSaves(), nullptr);
}

TEST_F(ProgramListenerTest, HearsOfANewProject)
{
    program_.TellProjectMade("b.mdb", "a.mdb");
    EXPECT_EQ(record_.told, Told{"made b.mdb from a.mdb"});
}

}  // namespace
}  // namespace terravane
