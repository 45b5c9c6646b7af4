// What is said without a box: what counts most is shown, what does not hold any more goes, a failed command is not
// "saved".
#include "program/notices.h"

#include <gtest/gtest.h>

#include "program/program.h"
#include "runtime/memory_file_system.h"
#include "support/test_surroundings.h"

namespace terravane {
namespace {

struct NoticesTest : testing::Test {
    Moment now = MakeMoment(2026, 11, 21, 14, 2);
    Notices notices{[this] { return now; }};

    std::string Shown() const { return notices.Current() ? notices.Current()->sentence : std::string(); }
};

TEST_F(NoticesTest, AFailureIsLouderThanWhatIsSaidAfterIt)
{
    notices.Tell({.kind = NoticeKind::Failure, .sentence = "Calculate stopped."});
    notices.Tell({.sentence = "Saved at 14:02."});
    EXPECT_EQ(Shown(), "Calculate stopped.");
    notices.Answer(notices.Current()->number);
    EXPECT_EQ(Shown(), "Saved at 14:02.");
}

TEST_F(NoticesTest, ALaterWordOnTheSameSubjectTakesThePlaceOfTheFirst)
{
    notices.Tell({.kind = NoticeKind::Failure, .sentence = "Save File stopped.", .subject = "save"});
    notices.Tell({.sentence = "Saved at 14:02.", .subject = "save"});
    EXPECT_EQ(Shown(), "Saved at 14:02.") << "Once it is saved, that it was not is moot.";
    notices.Settle("save");
    EXPECT_EQ(notices.Current(), nullptr);
}

TEST_F(NoticesTest, OfAFailedCommandTheInformationIsDropped)
{
    notices.Hold();
    notices.Tell({.sentence = "Saved at 14:02."});
    notices.Tell({.kind = NoticeKind::Attention, .sentence = "A value was emptied."});
    EXPECT_EQ(notices.Current(), nullptr) << "Nothing is told before the command has ended.";
    notices.Release(false);
    EXPECT_EQ(Shown(), "A value was emptied.");
    EXPECT_EQ(notices.Told().size(), 1U);
}

TEST_F(NoticesTest, TheLastFiftyCanBeReadAgain)
{
    for (int i = 1; i <= 60; ++i) notices.Tell({.sentence = std::to_string(i)});
    ASSERT_EQ(notices.Told().size(), 50U);
    EXPECT_EQ(notices.Told().front().sentence, "11");
    EXPECT_EQ(notices.Told().back().at, now);
}

TEST_F(NoticesTest, WhatLeadsToAClosedFormGoesWithIt)
{
    notices.Tell({.kind = NoticeKind::Failure, .sentence = "Stopped.", .place = {"frmCBR", "txtK"}});
    notices.SettleForm("frmCompaction");
    EXPECT_EQ(Shown(), "Stopped.");
    notices.SettleForm("frmCBR");
    EXPECT_EQ(notices.Current(), nullptr);
}

TEST_F(NoticesTest, ListenersHearWhatIsTold)
{
    int heard = 0;
    const Subscription listening = notices.Show([&heard] { ++heard; });
    notices.Tell({.sentence = "Saved at 14:02."});
    notices.Settle("nothing");
    EXPECT_EQ(heard, 1);
}

// The disk refuses after the command is through: its own word of success must not stand.
TEST(ProgramNotices, ACommandThatCanNotBeKeptSaysOnlyThatItFailed)
{
    MemoryFileSystem files;
    support::TestSurroundings ask;
    Program program(ask, files, "/lab");
    program.Run("Save", [&program] {
        program.notices.Tell({.sentence = "Saved."});
        throw RuntimeError(error::kDiskFull);
    });
    ASSERT_EQ(program.notices.Told().size(), 1U);
    EXPECT_EQ(program.notices.Current()->kind, NoticeKind::Failure);
    EXPECT_EQ(program.notices.Current()->sentence, "The command stopped: Disk full");
    EXPECT_EQ(ask.errors.size(), 1U) << "The surroundings are told as before.";
}

}  // namespace
}  // namespace terravane
