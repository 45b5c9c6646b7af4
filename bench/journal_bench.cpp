// What the journal costs: a cell that Enter takes, with and without a draft on the disk, a pasted block, a way back, a
// save with its history.
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/cell_editor.h"
#include "journal/journal.h"
#include "runtime/machine.h"
#include "store/new_stores.h"
#include "support/test_surroundings.h"

namespace terravane {
namespace {

/// A compaction sheet in a project of its own on the disk; the folder goes away with it.
class JournalDesk {
  public:
    explicit JournalDesk(bool keeps)
        : folder_(WithMark(MakePrivateFolder("terravane-bench"))), program_(ask_, files_, folder_)
    {
        WriteFirstContent(files_, BrandFolderIn(folder_));
        CreateProjectFile(files_, folder_ + "TRVN_road.mdb");
        AddForms(program_);
        if (keeps) journal_ = std::make_unique<Journal>(program_);
        if (keeps) journal_->KeepHistory();
        if (keeps) journal_->KeepDrafts(folder_ + "Drafts/");
        program_.Run("Start", [this] { program_.Show(kFrameName); });
        auto& frame = program_.Get<mdiBack>(kFrameName);
        frame.OpenFile(folder_ + "TRVN_road.mdb");
        frame.tbrLab.PressItem("mnuStd1");
    }
    ~JournalDesk()
    {
        journal_.reset();
        RemoveAll(folder_);
    }

    Form& Sheet() { return *program_.Loaded("frmCompaction"); }
    Journal& TheJournal() { return *journal_; }
    void Commit(int number)
    {
        auto& editor = Sheet().Get<CellEditor>("txtData");
        editor.OpenAt(2, 1 + number % 6);
        editor.Type(std::to_string(number));
        editor.PressKey(Key::Enter);
    }

  private:
    std::string folder_;
    DiskFileSystem files_;
    support::TestSurroundings ask_;
    Program program_;
    std::unique_ptr<Journal> journal_;
};

void CommitACell(benchmark::State& state)
{
    JournalDesk desk(state.range(0) != 0);
    int number = 0;
    for (auto _ : state) desk.Commit(++number);
}
BENCHMARK(CommitACell)->ArgName("journal")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void PasteSixByFour(benchmark::State& state)
{
    JournalDesk desk(true);
    auto& grid = desk.Sheet().Get<TextGrid>("MSHWt");
    const std::string blocks[] = {"1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\n",
                                  "๖\t5\t4\t3\t2\t1\n6\t5\t4\t3\t2\t1\n6\t5\t4\t3\t2\t1\n6\t5\t4\t3\t2\t1\n"};
    std::size_t turn = 0;
    for (auto _ : state) desk.TheJournal().Paste(grid, 1, 1, blocks[++turn % 2]);
}
BENCHMARK(PasteSixByFour)->Unit(benchmark::kMicrosecond);

void UndoAndRedo(benchmark::State& state)
{
    JournalDesk desk(true);
    desk.Commit(1);
    for (auto _ : state) {
        desk.TheJournal().Undo();
        desk.TheJournal().Redo();
    }
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMicrosecond);

void SaveOneChange(benchmark::State& state)
{
    JournalDesk desk(state.range(0) != 0);
    int number = 0;
    for (auto _ : state) {
        desk.Commit(++number);
        desk.Sheet().Get<Toolbar>("tblMenu").Press(1);
    }
}
BENCHMARK(SaveOneChange)->ArgName("history")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace terravane
