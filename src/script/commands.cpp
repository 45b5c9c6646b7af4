#include "script/commands.h"

#include <algorithm>
#include <array>

#include "jet/connection.h"
#include "store/new_stores.h"

namespace terravane {

namespace {

void RunAnswer(Session& session, Words words)
{
    session.surroundings.QueueAnswer(words[0]);
}

void RunEcho(Session& session, Words words)
{
    session.answers.Write({{"echo", words[0]}});
}

void RunQuit(Session& session, Words)
{
    session.hasQuit = true;
}

void WriteResult(AnswerWriter& answers, jet::Recordset result)
{
    if (!result.IsQuery()) return answers.Write({{"rows_affected", result.RowsAffected()}});
    for (int number = 1; !result.Eof(); ++number, result.MoveNext()) answers.Write(RowAnswer(number, result));
}

/// A statement on a connection of its own; its changes are in the file before the next line runs.
void RunStatement(Session& session, const std::string& path, const std::string& statement)
{
    jet::Connection connection;
    connection.Open(session.program.Files(), path);
    auto result = connection.Execute(statement);
    connection.Flush();
    WriteResult(session.answers, std::move(result));
}

void RunSql(Session& session, Words words)
{
    RunStatement(session, session.program.CurrentProjectPath, words[0]);
}

void RunBrandSql(Session& session, Words words)
{
    const Program& program = session.program;
    RunStatement(session, BrandStoreToOpen(program.Files(), program.BrandFolderNow()), words[0]);
}

constexpr std::array kRunCommands{
    Command{"answer", 1, 1, RunAnswer}, Command{"sql", 1, 1, RunSql},   Command{"brandsql", 1, 1, RunBrandSql},
    Command{"echo", 1, 1, RunEcho},     Command{"quit", 0, 0, RunQuit},
};

const Command& CommandNamed(const std::string& name)
{
    for (const auto table : {ActingCommands(), LookingCommands(), JournalCommands(), RunCommands()}) {
        const auto found = std::ranges::find(table, name, &Command::name);
        if (found != table.end()) return *found;
    }
    throw LineFault("There is no command \"" + name + "\".");
}

std::string WordCount(const Command& command)
{
    const std::string most = std::to_string(command.most);
    return command.fewest == command.most ? most : std::to_string(command.fewest) + " to " + most;
}

}  // namespace

std::span<const Command> RunCommands()
{
    return kRunCommands;
}

void RunCommand(Session& session, Words line)
{
    const Command& command = CommandNamed(line.front());
    const Words words = line.subspan(1);
    if (words.size() < command.fewest || words.size() > command.most) {
        throw LineFault("Words behind " + line.front() + ": " + std::to_string(words.size()) + ", and it takes " +
                        WordCount(command) + "; a text with blanks stands in quotes.");
    }
    command.run(session, words);
}

}  // namespace terravane
