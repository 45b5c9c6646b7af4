/// The commands of a script as a table: name, how many words, what is done.
#pragma once

#include <span>
#include <string_view>

#include "journal/journal.h"
#include "program/program.h"
#include "script/answers.h"
#include "script/script_line.h"
#include "script/script_surroundings.h"

namespace terravane {

/// What a command works with.
struct Session {
    Program& program;
    ScriptSurroundings& surroundings;
    AnswerWriter& answers;
    Journal& journal;
    bool hasQuit = false;
};

/// Where a run keeps its drafts: in its home.
std::string DraftsFolder(const Program& program);

/// fewest, most  words behind the command's name
/// run           throws LineFault for words that mean nothing and RuntimeError for what the program refuses
struct Command {
    std::string_view name;
    std::size_t fewest, most;
    void (*run)(Session& session, Words words);
};

/// Runs one line of words. LineFault and RuntimeError as above; LineFault for an unknown command and for too
/// few or too many words.
void RunCommand(Session& session, Words line);

/// The tables: what a person does, what is looked at, the journal's, and the script's own.
std::span<const Command> ActingCommands();
std::span<const Command> LookingCommands();
std::span<const Command> JournalCommands();
std::span<const Command> RunCommands();

}  // namespace terravane
