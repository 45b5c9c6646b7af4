// Project files, pictures and paths come from others: nothing that stands in one is ever run or opened. What could do
// that stands in no source but those named here.
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
    std::string pattern;
    std::vector<std::string> files;
};

const std::vector<Power> kPowers{
    {R"(\b(system|popen|posix_spawnp?|exec[lv]p?e?)\()", {}},
    {R"(\bQProcess\b)", {}},
    {R"(\b(CreateProcess\w*|ShellExecute\w*|WinExec)\s*\()", {"batch/worker_process_windows.cpp"}},  // itself anew
    {R"(\b(dlopen\s*\(|LoadLibrary\w*\s*\(|QLibrary\b|QPluginLoader\b))", {}},
    {R"(\bQDesktopServices::)", {"desktop/qt_surroundings.cpp"}},
    {R"(\bAsk\(\)\.OpenDocument\()", {"app/mdiBack.cpp"}},
};

std::vector<std::string> FilesWith(const std::string& pattern)
{
    const std::regex wanted(pattern);
    std::vector<std::string> files;
    for (const auto& file : SourcesBelow(kSources / "src")) {
        if (std::regex_search(ReadText(kSources / "src" / file), wanted)) files.push_back(file);
    }
    return files;
}

}  // namespace

TEST(UntrustedFiles, AreNeverRunNorOpenedWithAnotherProgram)
{
    for (const Power& power : kPowers) EXPECT_EQ(FilesWith(power.pattern), power.files) << power.pattern;
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
