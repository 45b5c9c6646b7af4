/// The road project of samples/ in a program without windows, driven by script lines: every test has its readings.
#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "runtime/memory_file_system.h"
#include "script/answers.h"
#include "script/commands.h"
#include "script/script_line.h"
#include "script/script_surroundings.h"
#include "store/new_stores.h"

namespace terravane::support {

/// The scripts in the order in which they are run.
inline std::set<std::filesystem::path> RoadScripts(const std::filesystem::path& source)
{
    std::set<std::filesystem::path> scripts;
    for (const auto& entry : std::filesystem::directory_iterator(source / "samples" / "road")) {
        if (entry.path().extension() == ".trv") scripts.insert(entry.path());
    }
    return scripts;
}

/// Disk in memory, fixed clock. A line that answers with an error, a refusal or a message is a mistake of the caller.
class RoadProject {
  public:
    explicit RoadProject(const std::filesystem::path& source)
    {
        files_.MakeFolders("/lab/BrandList/");
        files_.MakeFolders(std::filesystem::current_path().string() + "/");
        WriteFirstContent(files_, "/lab/BrandList/");
        AddForms(program_);
        program_.Run("mdiBack.Form_Load", [&] { program_.Show(kFrameName); });
        for (const auto& script : RoadScripts(source)) {
            std::ifstream lines(script);
            for (std::string line; std::getline(lines, line);) Do(line);
        }
    }

    Program& OfProgram() { return program_; }

    void Do(std::string_view line) { Do(SplitLine(std::string(line))); }

    void Do(const std::vector<std::string>& words)
    {
        if (!words.empty()) RunCommand(session_, words);
    }

    /// Throws with what was answered so far, if that tells of a failure.
    void Check()
    {
        const std::string told = answers_.str();
        answers_.str({});
        for (const auto* word : {"{\"error\"", "{\"refused\"", "{\"message\""}) {
            if (told.find(word) != std::string::npos) throw std::runtime_error(told);
        }
    }

  private:
    MemoryFileSystem files_;
    std::ostringstream answers_;
    AnswerWriter writer_{answers_};
    ScriptSurroundings surroundings_{files_, writer_, MakeMoment(2026, 11, 21, 12)};
    Program program_{surroundings_, files_, "/lab"};
    Journal journal_{program_};
    Session session_{program_, surroundings_, writer_, journal_};
};

}  // namespace terravane::support
