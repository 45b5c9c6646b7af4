// Two instances of the program on one project, each saving a sheet of its own again and again, some of them killed:
// none ever loses a finished save of the other.
#include <atomic>
#include <csignal>
#include <random>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "crash/failing_disk.h"
#include "crash/generations.h"

namespace terravane {
namespace {

using namespace support;

constexpr int kInstances = 3;

/// Counters that the processes share: what each has begun and what it has ended.
struct Shared {
    std::atomic<int> begun[kInstances];
    std::atomic<int> ended[kInstances];
    std::atomic<int> refused[kInstances];
};

/// The sheet that an instance saves: no two the same.
const TableSchema& TableOfInstance(int instance)
{
    return ProjectTables()[static_cast<std::size_t>(instance) + 1];
}

void SaveSheet(Program& program, const TableSchema& table, int generation)
{
    program.Run("crash.Save", [&] {
        OpenProjectConnection(program);
        const auto rows = RowsOf(generation, table);
        for (int row = 1; row <= table.rows; ++row) {
            std::vector<Assignment> assignments;
            for (std::size_t column = 1; column < table.columns.size(); ++column) {
                assignments.push_back(
                    {table.ColumnName(table.columns[column].suffix), rows[static_cast<std::size_t>(row - 1)][column]});
            }
            Execute(program, program.ProjectConnection, UpdateRow(table, assignments, row));
        }
    });
}

pid_t StartInstance(const CrashFolder& folder, Shared& shared, int number, int first, int saves)
{
    const pid_t process = fork();
    if (process != 0) return process;
    Instance instance(folder);
    for (int generation = first; generation < first + saves; ++generation) {
        shared.begun[number] = generation;
        SaveSheet(instance.program, TableOfInstance(number), generation);
        if (!instance.ask.errors.empty()) {
            shared.refused[number]++;
            std::fprintf(stderr, "%s\n", instance.ask.errors.front().description.c_str());
            _exit(1);
        }
        shared.ended[number] = generation;
    }
    _exit(0);
}

class TwoInstances : public testing::Test {
  protected:
    TwoInstances()
        : shared_(*static_cast<Shared*>(
              mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {}
    ~TwoInstances() override { munmap(&shared_, sizeof(Shared)); }

    /// Each instance's table is that of its last finished save, or of the one that a kill broke off. What is found
    /// counts as finished from then on.
    void ExpectNothingLost(const std::string& when)
    {
        for (int i = 0; i < kInstances; ++i) {
            const auto rows = ReadByUs(folder_.Project(), TableOfInstance(i));
            const int ended = shared_.ended[i], begun = shared_.begun[i];
            const bool isBegun = rows == RowsOf(begun, TableOfInstance(i));
            ASSERT_TRUE(isBegun || rows == RowsOf(ended, TableOfInstance(i)))
                << when << ": instance " << i << " lost its save " << ended;
            if (isBegun) shared_.ended[i] = begun;
        }
    }

    /// Stops all, so that the file stands still to be looked at.
    static void Stop(const std::vector<pid_t>& processes)
    {
        for (const pid_t process : processes) {
            kill(process, SIGSTOP);
            waitpid(process, nullptr, WUNTRACED);
        }
    }

    CrashFolder folder_;
    Shared& shared_;
};

TEST_F(TwoInstances, LoseNoFinishedSaveOfEachOther)
{
    const int saves = RoundsFromEnvironment("TERRAVANE_CRASH_SAVES", 40);
    std::vector<pid_t> processes;
    for (int i = 0; i < kInstances; ++i) processes.push_back(StartInstance(folder_, shared_, i, 1, saves));
    for (const pid_t process : processes) {
        int status = 0;
        ASSERT_EQ(waitpid(process, &status, 0), process);
        EXPECT_EQ(status, 0);
    }
    for (int i = 0; i < kInstances; ++i) EXPECT_EQ(shared_.ended[i], saves);
    ExpectNothingLost("at the end");
    EXPECT_EQ(folder_.Leftovers(), 0U);
    std::printf("%d instances, %d saves each at the same time: none lost\n", kInstances, saves);
}

// The other instance's save puts a new file there between our opening of the old one and our locking of it: a lock on
// the old one would lock nobody out.
TEST_F(TwoInstances, LockIsOnTheFileThatIsThere)
{
    Instance ours(folder_), theirs(folder_);
    Arm({"flock", 1, Fault::ComesLate, 0, [&] { SaveSheet(theirs.program, TableOfInstance(0), 1); }});
    const auto lock = ours.files.Lock(folder_.Project());
    EXPECT_TRUE(Disarm()) << "nothing was locked";
    ASSERT_TRUE(theirs.ask.errors.empty());
    const int file = open(folder_.Project().c_str(), O_RDWR);
    EXPECT_EQ(flock(file, LOCK_EX | LOCK_NB), -1) << "the file that is there now can be locked by others";
    close(file);
}

// One after the other is killed at a random moment and started again, while the others go on.
TEST_F(TwoInstances, KilledOneTakesNothingOfTheOthersAlong)
{
    const int kills = RoundsFromEnvironment("TERRAVANE_CRASH_INSTANCE_KILLS", 15);
    constexpr int kNoEnd = 1'000'000;
    std::mt19937 random(2);
    std::vector<pid_t> processes;
    for (int i = 0; i < kInstances; ++i) processes.push_back(StartInstance(folder_, shared_, i, 1, kNoEnd));
    for (int round = 0; round < kills; ++round) {
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 60'000));
        Stop(processes);
        const int victim = round % kInstances;
        kill(processes[static_cast<std::size_t>(victim)], SIGKILL);
        waitpid(processes[static_cast<std::size_t>(victim)], nullptr, 0);
        ExpectNothingLost("kill " + std::to_string(round));
        if (HasFatalFailure()) break;
        for (const pid_t process : processes) kill(process, SIGCONT);
        processes[static_cast<std::size_t>(victim)] =
            StartInstance(folder_, shared_, victim, shared_.begun[victim] + 1, kNoEnd);
    }
    for (const pid_t process : processes) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    ExpectNothingLost("at the end");
    int saves = 0;
    for (int i = 0; i < kInstances; ++i) {
        EXPECT_EQ(shared_.refused[i], 0);
        saves += shared_.ended[i];
    }
    std::printf("%d instances, %d kills among %d saves: none lost\n", kInstances, kills, saves);
}

}  // namespace
}  // namespace terravane
