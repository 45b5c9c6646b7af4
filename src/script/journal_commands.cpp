// What a person does with the journal of the open sheet.
#include <array>

#include "script/commands.h"
#include "script/script_controls.h"

namespace terravane {

namespace {

void Walk(Session& session, const std::string& command, const std::optional<TextPlace>& place, std::size_t left)
{
    if (!place) return session.answers.Write(RefusedAnswer(command, "nothing to " + command));
    session.answers.Write({{command, NameOf(*place)}, {"steps", left}});
}

void RunUndo(Session& session, Words)
{
    const auto place = session.journal.Undo();
    Walk(session, "undo", place, session.journal.Undoable());
}

void RunRedo(Session& session, Words)
{
    const auto place = session.journal.Redo();
    Walk(session, "redo", place, session.journal.Redoable());
}

TextGrid& BlockGrid(Session& session, const std::string& name)
{
    return ControlFor(&ControlUses::cells, session.program, name, "hold a block of cells");
}

void RunPaste(Session& session, Words words)
{
    TextGrid& grid = BlockGrid(session, words[0]);
    const int row = WholeNumber(words[1], "a row"), column = WholeNumber(words[2], "a column");
    if (const auto why = WhyUnusable(grid)) return session.answers.Write(RefusedAnswer(words[0], *why));
    const PutBlock put = session.journal.Paste(grid, row, column, words[3]);
    if (!put.misfit.empty()) return session.answers.Write(RefusedAnswer(words[0], put.misfit));
    session.answers.Write({{"paste", words[0]}, {"cells", put.cells}, {"passed over", put.passedOver}});
}

void RunCopy(Session& session, Words words)
{
    const TextGrid& grid = BlockGrid(session, words[0]);
    const int row = WholeNumber(words[1], "a row"), column = WholeNumber(words[2], "a column");
    const CellBlock block{row, column, WholeNumber(words[3], "a row"), WholeNumber(words[4], "a column")};
    session.answers.Write({{"copy", words[0]}, {"text", CopyCells(grid, block)}});
}

Json HistoryAnswer(const HistoryLine& line)
{
    const PlaceWords words = WordsOf(line.place);
    Json answer{{"history", line.at},    {"test", words.test}, {"material", words.material}, {"cell", words.cell},
                {"before", line.before}, {"after", line.now},  {"login", line.login}};
    if (line.kind == LineKind::Found) answer["found"] = true;
    return answer;
}

/// A run that has no home of its own keeps a history from here on.
void RunHistory(Session& session, Words)
{
    session.journal.KeepHistory();
    const ReadHistory history = LoadHistory(session.program.Files(), session.program.CurrentProjectPath);
    for (const HistoryLine& line : history.lines) {
        if (line.IsChange()) session.answers.Write(HistoryAnswer(line));
        if (line.kind == LineKind::Begun) session.answers.Write({{"history", line.at}, {"begun", line.from}});
    }
    for (const std::string& fault : history.faults) session.answers.Write({{"fault", fault}});
}

/// A run that has no home of its own keeps drafts from here on, as long as it lasts.
void RunDrafts(Session& session, Words)
{
    session.journal.KeepDrafts(DraftsFolder(session.program));
    for (const Draft& draft : session.journal.WaitingDrafts())
        session.answers.Write(
            {{"draft", draft.of.test + " " + draft.of.material}, {"time", draft.at}, {"texts", draft.texts.size()}});
}

void RunDraft(Session& session, Words words)
{
    session.journal.KeepDrafts(DraftsFolder(session.program));
    if (words[0] != "take" && words[0] != "forget") throw LineFault("A draft is taken or forgotten: take, forget.");
    const auto draft = session.journal.WaitingDraft();
    if (!draft) return session.answers.Write(RefusedAnswer("draft", "no draft"));
    if (words[0] == "forget") {
        session.journal.Forget(*draft);
        return session.answers.Write({{"draft", "forgotten"}});
    }
    session.answers.Write({{"draft", "taken"}, {"texts", session.journal.Take(*draft)}});
}

constexpr std::array kJournalCommands{
    Command{"undo", 0, 0, RunUndo},   Command{"redo", 0, 0, RunRedo},       Command{"paste", 4, 4, RunPaste},
    Command{"copy", 5, 5, RunCopy},   Command{"history", 0, 0, RunHistory}, Command{"drafts", 0, 0, RunDrafts},
    Command{"draft", 1, 1, RunDraft},
};

}  // namespace

std::string DraftsFolder(const Program& program)
{
    return WithMark(WithMark(program.ApplicationPath()) + "Drafts");
}

std::span<const Command> JournalCommands()
{
    return kJournalCommands;
}

}  // namespace terravane
