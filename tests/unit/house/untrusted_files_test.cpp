// Project files, pictures and paths come from others: nothing that stands in one is ever run or opened. What could do
// that stands in no source but those named here.
#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "source_folder.h"
#include "unit/house/include_rules.h"

namespace terravane::house {

namespace {

const std::filesystem::path kSources = kSourceFolder;

/// What runs a program, loads code or hands a name to the desktop, and the only files that may.
struct Power {
    std::vector<std::string> words;  ///< what no text with the pattern is without: looked for first, which is quick
    std::string pattern;
    std::vector<std::string> files;
};

const std::vector<Power> kPowers{
    {{"system(", "popen(", "posix_spawn", "exec"}, R"(\b(system|popen|posix_spawnp?|exec[lv]p?e?)\()", {}},
    {{"QProcess"}, R"(\bQProcess\b)", {}},
    {{"CreateProcess", "ShellExecute", "WinExec"},
     R"(\b(CreateProcess\w*|ShellExecute\w*|WinExec)\s*\()",
     {"batch/worker_process_windows.cpp"}},  // itself anew
    {{"dlopen", "LoadLibrary", "QLibrary", "QPluginLoader"},
     R"(\b(dlopen\s*\(|LoadLibrary\w*\s*\(|QLibrary\b|QPluginLoader\b))",
     {}},
    {{"QDesktopServices"}, R"(\bQDesktopServices::)", {"desktop/qt_surroundings.cpp"}},
    {{"OpenDocument"}, R"(\bAsk\(\)\.OpenDocument\()", {"app/mdiBack.cpp"}},
};

bool Has(const std::string& text, const Power& power)
{
    const auto stands = [&](const std::string& word) { return text.find(word) != std::string::npos; };
    return std::ranges::any_of(power.words, stands) && std::regex_search(text, std::regex(power.pattern));
}

std::vector<std::string> FilesWith(const Power& power)
{
    std::vector<std::string> files;
    for (const auto& file : SourcesBelow(kSources / "src")) {
        if (Has(ReadText(kSources / "src" / file), power)) files.push_back(file);
    }
    return files;
}

}  // namespace

TEST(UntrustedFiles, AreNeverRunNorOpenedWithAnotherProgram)
{
    for (const Power& power : kPowers) EXPECT_EQ(FilesWith(power), power.files) << power.pattern;
}

TEST(UntrustedFiles, OnlyTheGuideOfTheBrandFolderIsOpened)
{
    const std::string text = ReadText(kSources / "src/app/mdiBack.cpp");
    const std::regex opening(R"(OpenDocument\(([^;]*)\);)");
    std::vector<std::string> paths;
    for (std::sregex_iterator at(text.begin(), text.end(), opening), end; at != end; ++at) paths.push_back((*at)[1]);
    EXPECT_EQ(paths, std::vector<std::string>{"BrandFolderIn(folder).append(kGuideFile)"});
}

}  // namespace terravane::house
