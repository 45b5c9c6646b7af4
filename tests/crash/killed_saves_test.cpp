// A process that saves again and again is killed at random moments. Whatever the moment, the file is whole: the one of
// the last save that ended, or the one of the save that was under way.
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "crash/generations.h"

namespace terravane {
namespace {

using namespace support;
using Microseconds = std::chrono::microseconds;

struct Progress {
    int generation;
    bool ended;
};

/// Saves generation after generation until it is killed, and says so before and behind each.
class Saver {
  public:
    Saver(const CrashFolder& folder, int first)
    {
        int ends[2];
        if (pipe(ends) != 0) std::abort();
        process_ = fork();
        if (process_ == 0) Save(folder, first, ends[1]);
        close(ends[1]);
        from_ = ends[0];
    }
    ~Saver() { close(from_); }
    Saver(const Saver&) = delete;
    Saver& operator=(const Saver&) = delete;

    /// The next thing it says; nothing when it is gone.
    std::optional<Progress> Next() const
    {
        Progress progress{};
        if (read(from_, &progress, sizeof progress) != sizeof progress) return std::nullopt;
        return progress;
    }

    void Kill() const
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }

  private:
    [[noreturn]] static void Save(const CrashFolder& folder, int first, int to)
    {
        const auto say = [to](const Progress& progress) { (void)!write(to, &progress, sizeof progress); };
        Instance instance(folder);
        for (int generation = first;; ++generation) {
            say({generation, false});
            SaveGeneration(instance.program, generation);
            if (!instance.ask.errors.empty()) _exit(1);
            say({generation, true});
        }
    }

    pid_t process_ = 0;
    int from_ = -1;
};

/// How long one save takes on this machine.
Microseconds TimeOfOneSave(const CrashFolder& folder, int& generation)
{
    Instance instance(folder);
    SaveGeneration(instance.program, ++generation);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 5; ++i) SaveGeneration(instance.program, ++generation);
    return std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start) / 5;
}

struct Figures {
    int kills = 0, oldContent = 0, newContent = 0, betweenSaves = 0, leftTemporaries = 0, checkedByMdbtools = 0;

    void Print(Microseconds save) const
    {
        std::printf("%d kills at random moments; a save takes %.1f ms\n", kills,
                    static_cast<double>(save.count()) / 1e3);
        std::printf("  during a save, the file was the old one: %d\n", oldContent);
        std::printf("  during a save, the file was the new one: %d\n", newContent);
        std::printf("  between two saves, the file was the last: %d\n", betweenSaves);
        std::printf("  files checked by mdbtools as well:        %d\n", checkedByMdbtools);
        std::printf("  temporary files left, gone with the next save: %d\n", leftTemporaries);
    }
};

TEST(KilledSaves, LeaveTheOldFileOrTheNewOne)
{
    const int rounds = RoundsFromEnvironment("TERRAVANE_CRASH_KILLS", 40);
    const int everyMdbtools = RoundsFromEnvironment("TERRAVANE_CRASH_MDBTOOLS_EVERY", 8);
    const CrashFolder folder;
    int last = 0;
    const Microseconds save = TimeOfOneSave(folder, last);
    std::mt19937 random(static_cast<unsigned>(RoundsFromEnvironment("TERRAVANE_CRASH_SEED", 1)));
    std::uniform_int_distribution<int> delay(0, static_cast<int>(3 * save.count()));
    Figures figures;
    for (int round = 0; round < rounds; ++round) {
        const Saver saver(folder, last + 1);
        ASSERT_TRUE(saver.Next()) << "it did not start";
        std::this_thread::sleep_for(Microseconds(delay(random)));
        saver.Kill();
        Progress progress{last + 1, false};
        while (const auto next = saver.Next()) progress = *next;

        const bool alsoMdbtools = round % everyMdbtools == 0;
        const int before = progress.generation - 1, now = progress.generation;
        const auto found = progress.ended ? GenerationOf(folder.Project(), {now}, alsoMdbtools)
                                          : GenerationOf(folder.Project(), {before, now}, alsoMdbtools);
        ASSERT_TRUE(found) << "round " << round << ", during save " << now
                           << ": not the old file: " << DifferenceFrom(before, folder.Project(), alsoMdbtools)
                           << "; not the new one: " << DifferenceFrom(now, folder.Project(), alsoMdbtools);
        ++figures.kills;
        ++(progress.ended ? figures.betweenSaves : *found == now ? figures.newContent : figures.oldContent);
        figures.checkedByMdbtools += alsoMdbtools ? 1 : 0;
        figures.leftTemporaries += folder.Leftovers() > 0 ? 1 : 0;
        ASSERT_LE(folder.Leftovers(), 1U) << "the next save takes it away";
        last = *found;
    }
    Instance instance(folder);
    SaveGeneration(instance.program, last + 1);
    EXPECT_EQ(folder.Leftovers(), 0U);
    EXPECT_EQ(DifferenceFrom(last + 1, folder.Project(), true), "");
    figures.Print(save);
}

}  // namespace
}  // namespace terravane
