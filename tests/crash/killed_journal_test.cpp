// A window that types and saves is killed at random moments. Whatever the moment: of what Enter took nothing is lost
// but what was being taken, and the history fits the project once the next save has mended it.
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/cell_editor.h"
#include "crash/generations.h"
#include "journal/journal.h"
#include "runtime/machine.h"
#include "runtime/numbers.h"
#include "store/new_stores.h"
#include "support/test_surroundings.h"

namespace terravane {
namespace {

using support::RoundsFromEnvironment;
constexpr int kTypedBetweenSaves = 4;

/// A window on a project of a folder, as the desktop's but for the widgets.
class TypingWindow {
  public:
    explicit TypingWindow(const std::string& folder)
        : program_(ask_, files_, folder), journal_(program_), project_(folder + "TRVN_road.mdb")
    {
        AddForms(program_);
        journal_.KeepHistory();
        journal_.KeepDrafts(folder + "Drafts/");
        program_.Run("Start", [this] { program_.Show(kFrameName); });
        auto& frame = program_.Get<mdiBack>(kFrameName);
        frame.OpenFile(project_);
        frame.tbrLab.PressItem("mnuStd1");
    }

    void Type(int number)
    {
        auto& editor = journal_.Sheet()->Get<CellEditor>("txtData");
        editor.OpenAt(2, 1);
        editor.Type(std::to_string(number));
        editor.PressKey(Key::Enter);
    }
    void Save() { journal_.Sheet()->Get<Toolbar>("tblMenu").Press(1); }
    void TakeDraftBack()
    {
        if (const auto draft = journal_.WaitingDraft()) journal_.Take(*draft);
    }
    int Number() { return static_cast<int>(Val(journal_.Sheet()->Get<TextGrid>("MSHWt")(2, 1).Text())); }
    bool HasFailed() const { return !ask_.errors.empty(); }
    ReadHistory History() const { return LoadHistory(files_, project_); }
    FileTexts Stored() const { return TextsOf(files_.Read(project_)); }

  private:
    DiskFileSystem files_;
    support::TestSurroundings ask_;
    Program program_;
    Journal journal_;
    std::string project_;
};

class LaboratoryFolder {
  public:
    LaboratoryFolder() : path_(WithMark(MakePrivateFolder("terravane-journal")))
    {
        DiskFileSystem files;
        WriteFirstContent(files, BrandFolderIn(path_));
        CreateProjectFile(files, path_ + "TRVN_road.mdb");
    }
    ~LaboratoryFolder() { RemoveAll(path_); }
    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

/// Types number after number until it is killed, saves now and then, and says each number that Enter has taken.
class Typist {
  public:
    Typist(const std::string& folder, int first)
    {
        int ends[2];
        if (pipe(ends) != 0) std::abort();
        process_ = fork();
        if (process_ == 0) Work(folder, first, ends[1]);
        close(ends[1]);
        from_ = ends[0];
    }
    ~Typist() { close(from_); }
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    std::optional<int> Next() const
    {
        int number = 0;
        if (read(from_, &number, sizeof number) != sizeof number) return std::nullopt;
        return number;
    }
    void Kill() const
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }

  private:
    [[noreturn]] static void Work(const std::string& folder, int first, int to)
    {
        TypingWindow window(folder);
        for (int number = first; !window.HasFailed(); ++number) {
            window.Type(number);
            (void)!write(to, &number, sizeof number);
            if (number % kTypedBetweenSaves == 0) window.Save();
        }
        _exit(1);
    }

    pid_t process_ = 0;
    int from_ = -1;
};

TEST(KilledJournal, LosesNoTextThatEnterTookAndMendsItsHistory)
{
    const int rounds = RoundsFromEnvironment("TERRAVANE_JOURNAL_KILLS", 50);
    const LaboratoryFolder folder;
    std::mt19937 random(static_cast<unsigned>(RoundsFromEnvironment("TERRAVANE_CRASH_SEED", 1)));
    std::uniform_int_distribution<int> delay(0, 40'000);  // microseconds; some saves long
    int last = 1, inDraft = 0;
    for (int round = 0; round < rounds; ++round) {
        const Typist typist(folder.Path(), last + 1);
        const auto first = typist.Next();
        ASSERT_TRUE(first) << "it did not start";
        std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
        typist.Kill();
        int told = *first;
        while (const auto next = typist.Next()) told = *next;

        TypingWindow after(folder.Path());
        const int stored = after.Number();
        after.TakeDraftBack();
        ASSERT_TRUE(after.Number() == told || after.Number() == told + 1)
            << "round " << round << ": Enter took " << told << ", the draft has " << after.Number() << ", the file "
            << stored;
        inDraft += after.Number() != stored ? 1 : 0;
        last = told + 2;
        after.Type(last);
        after.Save();
        const ReadHistory history = after.History();
        ASSERT_TRUE(history.faults.empty()) << "round " << round << ": " << history.faults.front();
        ASSERT_EQ(StateAfter(history.lines, history.lines.size()), after.Stored()) << "round " << round;
    }
    EXPECT_GT(inDraft, 0) << "no draft was needed: the kills prove nothing";
    std::printf("%d kills at random moments; what was typed last stood in the draft alone: %d\n", rounds, inDraft);
}

}  // namespace
}  // namespace terravane
