/// A project file whose every cell tells which save it comes from: what a test that kills saves needs to see that a
/// file is the old one or the new one and never a mixture.
#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "program/program.h"
#include "store/new_stores.h"
#include "store/statements.h"
#include "support/test_surroundings.h"

namespace terravane::support {

/// The text of a cell after save number `generation`: digits of it, Latin or Thai, of a length that goes up and down,
/// so that rows grow and shrink from save to save.
inline std::string CellOf(int generation, const TableSchema& table, std::size_t column, int row)
{
    constexpr std::array<std::string_view, 10> kThai{"๐", "๑", "๒", "๓", "๔", "๕", "๖", "๗", "๘", "๙"};
    const int most = table.columns[column].length;
    const int length = (generation * 7 + static_cast<int>(column) * 3 + row) % (most + 1);
    const std::string digits = std::to_string(generation) + ".";
    std::string text;
    for (int i = 0; i < length; ++i) {
        const char letter = digits[static_cast<std::size_t>(i) % digits.size()];
        const bool thai = column % 4 == 3 && letter != '.';
        text += thai ? std::string(kThai[static_cast<std::size_t>(letter - '0')]) : std::string(1, letter);
    }
    return text;
}

/// All rows of a table as a save leaves them, key first where it has one. Generation 0 is the file as it was made.
inline std::vector<std::vector<std::string>> RowsOf(int generation, const TableSchema& table)
{
    std::vector<std::vector<std::string>> rows;
    for (int row = 1; row <= table.rows; ++row) {
        auto& cells = rows.emplace_back();
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            const bool isKey = table.keyed && column == 0;
            if (isKey)
                cells.push_back(RowKey(row));
            else
                cells.push_back(generation == 0 ? std::string(kSeed) : CellOf(generation, table, column, row));
        }
    }
    return rows;
}

/// The command "save everything", as a sheet's save does it: a connection, statements, the flush at its end.
inline void SaveGeneration(Program& program, int generation)
{
    program.Run("crash.Save", [&] {
        OpenProjectConnection(program);
        for (const TableSchema& table : ProjectTables()) {
            const auto rows = RowsOf(generation, table);
            for (int row = 1; row <= table.rows; ++row) {
                const auto& cells = rows[static_cast<std::size_t>(row - 1)];
                std::vector<Assignment> assignments;
                for (std::size_t column = table.keyed ? 1 : 0; column < cells.size(); ++column) {
                    assignments.push_back({table.ColumnName(table.columns[column].suffix), cells[column]});
                }
                if (table.keyed)
                    Execute(program, program.ProjectConnection, UpdateRow(table, assignments, row));
                else
                    Execute(program, program.ProjectConnection, UpdateHead(cells[0], cells[1], cells[2], cells[3]));
            }
        }
    });
}

/// A folder of its own, gone with the test, with one project file in it.
class CrashFolder {
  public:
    CrashFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "terravane-crash-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        folder_ = name + "/";
        DiskFileSystem files;
        CreateProjectFile(files, Project());
    }
    ~CrashFolder() { std::filesystem::remove_all(folder_); }
    CrashFolder(const CrashFolder&) = delete;
    CrashFolder& operator=(const CrashFolder&) = delete;

    const std::string& Folder() const { return folder_; }
    std::string Project() const { return folder_ + "TRVN_road.mdb"; }

    /// What stands in the folder beside the project file.
    std::size_t Leftovers() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {})) - 1;
    }

  private:
    std::string folder_;
};

/// A program over a real disk, as an instance of the desktop has it.
struct Instance {
    explicit Instance(const CrashFolder& folder) : program(ask, files, folder.Folder())
    {
        program.CurrentProjectPath = folder.Project();
    }

    DiskFileSystem files;
    TestSurroundings ask;
    Program program;
};

// --- two readers

/// What our reader finds in a table, nulls as empty texts, or the failure as one cell.
inline std::vector<std::vector<std::string>> ReadByUs(const std::string& path, const TableSchema& table)
try {
    std::vector<std::vector<std::string>> rows;
    const jet::Database database(DiskFileSystem().Read(path));
    for (const auto& found : database.ReadRows(std::string(table.name)).rows) {
        auto& cells = rows.emplace_back();
        for (const auto& value : found) cells.push_back(value.value_or(""));
    }
    return rows;
} catch (const RuntimeError& error) {
    return {{error.Description()}};
}

inline std::string OutputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), count);
    return text;
}

/// The lines that mdbtools print for a table of these rows: cells with a bar between them.
inline std::string LinesOf(const std::vector<std::vector<std::string>>& rows)
{
    std::string lines;
    for (const auto& cells : rows) {
        for (std::size_t i = 0; i < cells.size(); ++i) lines += (i == 0 ? "" : "|") + cells[i];
        lines += '\n';
    }
    return lines;
}

inline std::string ReadByMdbtools(const std::string& path, const TableSchema& table)
{
    return OutputOf("mdb-export -H -Q -d '|' '" + path + "' " + std::string(table.name));
}

/// What is wrong with the file where it should be the one of this generation; empty where nothing is.
inline std::string DifferenceFrom(int generation, const std::string& path, bool alsoMdbtools)
{
    for (const TableSchema& table : ProjectTables()) {
        const auto expected = RowsOf(generation, table);
        if (ReadByUs(path, table) != expected) return std::string(table.name) + " as we read it";
        if (alsoMdbtools && ReadByMdbtools(path, table) != LinesOf(expected)) {
            return std::string(table.name) + " as mdbtools read it";
        }
    }
    return {};
}

/// Which of the generations the file is, whole; nothing for a mixture, a damaged file or a lost row.
inline std::optional<int> GenerationOf(const std::string& path, std::initializer_list<int> possible, bool alsoMdbtools)
{
    for (const int generation : possible) {
        if (DifferenceFrom(generation, path, alsoMdbtools).empty()) return generation;
    }
    return std::nullopt;
}

/// How often a test goes round: a few seconds' worth, or what the long run asks for (tools/crash-test).
inline int RoundsFromEnvironment(const char* name, int rounds)
{
    const char* const asked = std::getenv(name);
    return asked != nullptr ? std::atoi(asked) : rounds;
}

}  // namespace terravane::support
