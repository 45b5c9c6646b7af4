// The history of a project: what saves add to it, and what is found in one that was changed.
#include "journal/history.h"

#include <gtest/gtest.h>

#include "unit/journal/journal_bench.h"

namespace terravane::support {
namespace {

constexpr const char* kHistory = "/lab/TRVN_road.history";

struct HistoryBench : JournalBench {
    HistoryBench() { journal->KeepHistory(); }

    std::string Text() const
    {
        const Bytes& content = files.Content(kHistory);
        return {content.begin(), content.end()};
    }
    void Write(const std::string& text) { files.Put(kHistory, text); }
    ReadHistory Read() const { return LoadHistory(files, kProject); }
    /// The changes as sentences.
    std::vector<std::string> Changes() const
    {
        std::vector<std::string> told;
        for (const HistoryLine& line : Read().lines) {
            if (!line.IsChange()) continue;
            const PlaceWords words = WordsOf(line.place);
            told.push_back((line.kind == LineKind::Found ? "found " : "") + words.test + " " + words.material + " " +
                           words.cell + ": " + line.before + " > " + line.now);
        }
        return told;
    }
    void ByOthers(const std::string& statement)
    {
        jet::Connection other;
        other.Open(files, kProject);
        other.Execute(statement);
        other.Flush();
    }
};
using Told = std::vector<std::string>;

TEST(History, HasALineForEachTextThatASaveChanged)
{
    HistoryBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Type("txtSoil", "Red clay");
    bench.Save();
    bench.Type("MSHWt", 2, 1, "86");
    bench.Save();
    const Told told = bench.Changes();
    EXPECT_TRUE(std::ranges::count(told, "std soil MSHWt 2 1:  > 85.30")) << bench.Text();
    EXPECT_TRUE(std::ranges::count(told, "std soil txtSoil:  > Red clay")) << bench.Text();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), "std soil MSHWt 2 1: 85.30 > 86.00");
    EXPECT_EQ(bench.Read().faults, Told{});
    EXPECT_EQ(bench.Read().lines.front().kind, LineKind::Begun);
    EXPECT_EQ(bench.Read().lines.back().at, "2026-11-21T12:00:00");
}

TEST(History, StaysAsItIsWhereASaveChangesNothing)
{
    HistoryBench bench;
    bench.Open();
    bench.Save();
    const std::string text = bench.Text();
    bench.Save();
    EXPECT_EQ(bench.Text(), text);
}

TEST(History, KeepsPostedResultsToo)
{
    HistoryBench bench;
    bench.ByOthers("UPDATE ATTSOIL Set att_LL='45.31',att_PL='22.70'");
    bench.Open("mnuAtt1");
    const std::vector<std::pair<std::string, std::string>> none;
    jet::Connection post;
    bench.program->Run("Post", [&] {
        bench.program->ProjectConnection.Open(bench.files, bench.kProject, bench.program->ListenerOfSaves());
        bench.program->ProjectConnection.Execute("UPDATE SUMMARY Set sum_LL ='45.31' Where sum_ID =' 1'");
    });
    EXPECT_EQ(bench.Changes(), Told{"results soil sum_LL:  > 45.31"});
}

TEST(History, GivesTheProjectBackAsItStoodAfterEverySave)
{
    HistoryBench bench;
    bench.Open();
    std::vector<FileTexts> states;
    for (const char* text : {"1", "22", "", "333"}) {
        bench.Type("MSHWt", 2, 1, text);
        bench.Type("txtDia", text);
        bench.Save();
        states.push_back(TextsOf(bench.files.Content(bench.kProject)));
    }
    const auto lines = bench.Read().lines;
    std::size_t state = 0;
    for (std::size_t count = 1; count <= lines.size() && state < states.size(); ++count)
        if (StateAfter(lines, count) == states[state]) ++state;
    EXPECT_EQ(state, states.size());
}

TEST(History, FindsALineThatWasChangedByHand)
{
    HistoryBench bench;
    bench.Open();
    for (const char* text : {"85.3", "86", "87"}) {
        bench.Type("MSHWt", 2, 1, text);
        bench.Save();
    }
    const std::string whole = bench.Text();
    std::string changed = whole;
    changed.replace(changed.find("85.30"), 5, "95.30");
    bench.Write(changed);
    EXPECT_FALSE(bench.Read().faults.empty());
    changed = whole;
    changed.replace(changed.rfind("87.00"), 5, "88.00");
    bench.Write(changed);
    EXPECT_EQ(bench.Read().faults.size(), 1u) << "the last line as well";
    const auto second = whole.find('\n') + 1;
    bench.Write(whole.substr(0, second) + whole.substr(whole.find('\n', second) + 1));
    EXPECT_EQ(bench.Read().faults.size(), 1u) << "a line that was taken out";
}

// The writer was killed half way: what stands of the line is kept, the next save tells of it and goes on.
TEST(History, MendsATornLineAndTheLinesThatAreMissing)
{
    HistoryBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Save();
    bench.Type("MSHWt", 2, 1, "86");
    bench.Save();
    const std::string whole = bench.Text();
    const auto last = whole.rfind('\n', whole.size() - 2) + 1;
    for (std::size_t length = whole.size() - 1; length >= last; --length) {
        bench.Write(whole.substr(0, length));
        bench.Start();
        bench.journal->KeepHistory();
        bench.Open();
        bench.Type("MSHWt", 2, 1, "1" + std::to_string(length));
        bench.Save();
        ASSERT_EQ(bench.Read().faults, Told{}) << length << "\n" << bench.Text();
        const auto lines = bench.Read().lines;
        ASSERT_EQ(StateAfter(lines, lines.size()), TextsOf(bench.files.Content(bench.kProject))) << length;
    }
}

TEST(History, TellsOfATornLineOnce)
{
    HistoryBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Save();
    bench.Write(bench.Text() + "torn");
    for (const char* text : {"86", "87"}) {
        bench.Type("MSHWt", 2, 1, text);
        bench.Save();
    }
    EXPECT_EQ(std::ranges::count(bench.Read().lines, LineKind::Mended, &HistoryLine::kind), 1);
}

// Whatever step of a save and of its history fails, the next save leaves both whole and in step.
TEST(History, OutlivesEveryStepThatFails)
{
    for (int step = 1; step <= 7; ++step) {
        HistoryBench bench;
        bench.Open();
        bench.Type("MSHWt", 2, 1, "85.3");
        bench.Save();
        bench.Type("MSHWt", 2, 1, "86");
        bench.files.FailAtStep(step, error::kDiskFull);
        bench.Save();
        bench.Type("txtDia", "10.16");
        bench.Save();
        const ReadHistory history = bench.Read();
        EXPECT_EQ(history.faults, Told{}) << step;
        EXPECT_EQ(StateAfter(history.lines, history.lines.size()), TextsOf(bench.files.Content(bench.kProject)))
            << step;
    }
}

TEST(History, TellsWhatAnotherProgramChangedInTheFile)
{
    HistoryBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.Save();
    bench.ByOthers("UPDATE STDSOIL Set std_wcanw='99' Where std_ID =' 1'");
    bench.Type("txtDia", "10.16");
    bench.Save();
    const Told told = bench.Changes();
    EXPECT_TRUE(std::ranges::count(told, "found std soil MSHWt 2 1: 85.30 > 99")) << bench.Text();
    EXPECT_TRUE(std::ranges::count(told, "std soil MSHWt 2 1: 99 > 85.30")) << "and the Save put its own back";
}

TEST(History, OfACopyNamesWhereItCameFrom)
{
    HistoryBench bench;
    bench.Open();
    bench.ask.paths.push_back("/lab/copy.mdb");
    bench.Frame().Get<MenuEntry>("mnuTo").Press();
    const ReadHistory copy = LoadHistory(bench.files, "/lab/TRVN_copy.mdb");
    ASSERT_EQ(copy.lines.size(), 1u);
    EXPECT_EQ(copy.lines.front().from, bench.kProject);
}

TEST(History, ThatCantBeWrittenCostsNoSave)
{
    HistoryBench bench;
    bench.Open();
    bench.Type("MSHWt", 2, 1, "85.3");
    bench.files.atStep = [](const SaveStep& step) {
        if (step.kind == SaveStep::Kind::Append) throw RuntimeError(error::kPermissionDenied, "read-only");
    };
    bench.Save();
    EXPECT_EQ(TextsOf(bench.files.Content(bench.kProject)).at({"STDSOIL", 1, "std_wcanw"}), "85.30");
    ASSERT_NE(bench.program->notices.Current(), nullptr);
    EXPECT_EQ(bench.program->notices.Current()->sentence,
              "The project is saved, but its history could not be written.");
    EXPECT_TRUE(bench.ask.errors.empty());
}

}  // namespace
}  // namespace terravane::support
