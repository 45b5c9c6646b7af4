// Every call that a save makes to the system fails once, in every way that it can: the user is told, the file is the
// old one (or, when the failure comes behind the rename, the new one), nothing lies about, and the next save succeeds.
#include <cerrno>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "crash/failing_disk.h"
#include "crash/generations.h"

namespace terravane {
namespace {

using namespace support;

/// A call, what can become of it, and whether a save gets over that.
struct Trouble {
    std::string_view call;
    Fault fault;
    int error;
    bool harmless = false;
};

const std::vector<Trouble> kTroubles{
    {"open", Fault::Fails, EMFILE},        {"open", Fault::Fails, EIO},
    {"open", Fault::Fails, EACCES},        {"open", Fault::Fails, ENOSPC},
    {"open", Fault::KeepsFailing, ENFILE}, {"open", Fault::Fails, EINTR, true},
    {"read", Fault::Fails, EIO},           {"read", Fault::Fails, EINTR, true},
    {"flock", Fault::Fails, ENOLCK, true}, {"flock", Fault::Fails, EINTR, true},
    {"flock", Fault::Fails, EIO},          {"flock", Fault::Fails, EWOULDBLOCK, true},
    {"fchmod", Fault::Fails, EPERM},       {"fchmod", Fault::Fails, EIO},
    {"write", Fault::Fails, ENOSPC},       {"write", Fault::KeepsFailing, ENOSPC},
    {"write", Fault::Fails, EDQUOT},       {"write", Fault::Fails, EIO},
    {"write", Fault::Fails, EFBIG},        {"write", Fault::Fails, EINTR, true},
    {"write", Fault::Halves, 0, true},     {"fsync", Fault::Fails, EIO},
    {"fsync", Fault::Fails, ENOSPC},       {"fsync", Fault::KeepsFailing, EIO},
    {"fsync", Fault::Fails, EINTR, true},  {"rename", Fault::Fails, EIO},
    {"rename", Fault::Fails, ENOSPC},      {"rename", Fault::Fails, EACCES},
    {"rename", Fault::Fails, EXDEV},       {"rename", Fault::KeepsFailing, EROFS},
};

std::string Named(const Trouble& trouble, int number)
{
    return std::string(trouble.call) + " number " + std::to_string(number) + ", fault " +
           std::to_string(static_cast<int>(trouble.fault)) + ", errno " + std::to_string(trouble.error);
}

class FailingSaves : public testing::Test {
  protected:
    bool AlsoMdbtools() { return ++checks_ % everyMdbtools_ == 0; }

    void ExpectGeneration(int generation, const std::string& what)
    {
        EXPECT_EQ(DifferenceFrom(generation, folder_.Project(), AlsoMdbtools()), "") << what;
    }

    /// A save with the fault; false when the save never made the call.
    bool SaveWith(const Trouble& trouble, int number)
    {
        const std::string what = Named(trouble, number);
        Arm({trouble.call, number, trouble.fault, trouble.error});
        SaveGeneration(instance_.program, last_ + 1);
        if (!Disarm()) {
            ExpectSaved("no " + what);
            return false;
        }
        ++faults_;
        if (trouble.harmless) {
            ExpectSaved(what);
        } else {
            ExpectRefused(what);
        }
        EXPECT_EQ(folder_.Leftovers(), 0U) << what;
        return true;
    }

    void ExpectSaved(const std::string& what)
    {
        EXPECT_TRUE(instance_.ask.errors.empty()) << what << ": " << testing::PrintToString(instance_.ask.errors);
        instance_.ask.errors.clear();
        ExpectGeneration(++last_, what);
    }

    /// Told once; old, or new when only the folder's sync failed; and the next save succeeds.
    void ExpectRefused(const std::string& what)
    {
        EXPECT_EQ(instance_.ask.errors.size(), 1U) << what;
        instance_.ask.errors.clear();
        EXPECT_EQ(folder_.Leftovers(), 0U) << what;
        const auto found = GenerationOf(folder_.Project(), {last_, last_ + 1}, AlsoMdbtools());
        ASSERT_TRUE(found) << what;
        renamed_ += *found == last_ ? 0 : 1;
        last_ = *found;
        SaveGeneration(instance_.program, last_ + 1);
        ExpectSaved("the save after " + what);
    }

    CrashFolder folder_;
    Instance instance_{folder_};
    int last_ = 0, faults_ = 0, renamed_ = 0;

  private:
    int checks_ = 0;
    int everyMdbtools_ = RoundsFromEnvironment("TERRAVANE_CRASH_MDBTOOLS_EVERY", 8);
};

TEST_F(FailingSaves, AreToldAndLeaveTheOldFileOrTheNewOne)
{
    SaveGeneration(instance_.program, ++last_);
    for (const Trouble& trouble : kTroubles) {
        int number = 1;
        while (SaveWith(trouble, number) && !HasFatalFailure()) ++number;
        EXPECT_GT(number, 1) << "a save makes no such call: " << trouble.call;
    }
    std::printf("%d failing calls; %d of them behind the rename, the new file in place\n", faults_, renamed_);
}

TEST_F(FailingSaves, ProcessKilledAtAnyCallLeavesTheOldFileOrTheNewOne)
{
    SaveGeneration(instance_.program, ++last_);
    int killed = 0;
    for (const std::string_view call : {"open", "read", "flock", "fchmod", "write", "fsync", "rename"}) {
        for (const Fault fault : {Fault::Dies, Fault::DiesBehind}) {
            for (int number = 1;; ++number) {
                const pid_t process = fork();
                if (process == 0) {
                    Arm({call, number, fault, 0});
                    SaveGeneration(instance_.program, last_ + 1);
                    _exit(0);
                }
                int status = 0;
                ASSERT_EQ(waitpid(process, &status, 0), process);
                const auto found = GenerationOf(folder_.Project(), {last_, last_ + 1}, AlsoMdbtools());
                ASSERT_TRUE(found) << call << " number " << number;
                const bool renamed = *found != last_;
                last_ = *found;
                if (WIFEXITED(status)) break;
                ++killed;
                renamed_ += renamed ? 1 : 0;
            }
        }
    }
    SaveGeneration(instance_.program, last_ + 1);
    ExpectSaved("the save after all");
    EXPECT_EQ(folder_.Leftovers(), 0U);
    std::printf("%d processes killed at a call; %d of them behind the rename, the new file in place\n", killed,
                renamed_);
}

}  // namespace
}  // namespace terravane
