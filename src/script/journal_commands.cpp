// What a person does with the journal of the open sheet.
#include <array>

#include "script/commands.h"

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

constexpr std::array kJournalCommands{
    Command{"undo", 0, 0, RunUndo},
    Command{"redo", 0, 0, RunRedo},
};

}  // namespace

std::span<const Command> JournalCommands()
{
    return kJournalCommands;
}

}  // namespace terravane
