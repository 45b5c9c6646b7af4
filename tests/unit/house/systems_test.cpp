// One source for all systems: what differs stands in pairs of files, and nowhere else is a system asked for.
#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "source_folder.h"
#include "unit/house/include_rules.h"

namespace terravane::house {

namespace {

const std::filesystem::path kProgram = std::filesystem::path(kSourceFolder) / "src";

/// The first line that asks the compiler which system it works for; empty where none does.
std::string AskingLine(const std::string& text)
{
    static const std::regex asking(
        R"(\b(_WIN32|_WIN64|__MINGW\w+|_MSC_VER|__linux\w*|__unix\w*|__APPLE__|Q_OS_\w+)\b)");
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.find('_') != std::string::npos && std::regex_search(line, asking)) return line;
    }
    return {};
}

/// The partner of one of a pair: "a_posix.cpp" of "a_windows.cpp" and the other way round; empty for all else.
std::string PartnerOf(const std::string& file)
{
    static const std::regex pair(R"((.*)_(posix|windows)\.cpp)");
    std::smatch found;
    if (!std::regex_match(file, found, pair)) return {};
    return found[1].str() + (found[2] == "posix" ? "_windows.cpp" : "_posix.cpp");
}

}  // namespace

TEST(Systems, ALineThatAsksForASystemIsFound)
{
    EXPECT_EQ(AskingLine("int a;\n#ifdef _WIN32\n"), "#ifdef _WIN32");
    EXPECT_EQ(AskingLine("#if defined(__linux__) && X\n"), "#if defined(__linux__) && X");
    EXPECT_EQ(AskingLine("// on Windows a path has other marks\n"), "");
}

TEST(Systems, ThePartnerOfASourceIsTheOtherSystems)
{
    EXPECT_EQ(PartnerOf("runtime/machine_posix.cpp"), "runtime/machine_windows.cpp");
    EXPECT_EQ(PartnerOf("runtime/machine_windows.cpp"), "runtime/machine_posix.cpp");
    EXPECT_EQ(PartnerOf("desktop/windows.cpp"), "");
}

TEST(House, NoSourceAsksWhichSystemItIsFor)
{
    for (const std::string& file : SourcesBelow(kProgram)) {
        EXPECT_EQ(AskingLine(ReadText(kProgram / file)), "")
            << "src/" << file
            << ": what differs between systems stands in a pair, NAME_posix.cpp and NAME_windows.cpp.";
    }
}

TEST(House, SourcesOfOneSystemStandInPairs)
{
    const Words files = SourcesBelow(kProgram);
    int pairs = 0;
    for (const std::string& file : files) {
        const std::string partner = PartnerOf(file);
        if (partner.empty()) continue;
        ++pairs;
        EXPECT_TRUE(std::ranges::find(files, partner) != files.end()) << "src/" << file << " has no " << partner;
        EXPECT_TRUE(file.starts_with("runtime/") || file.starts_with("batch/"))
            << "src/" << file << ": only runtime and batch know systems.";
    }
    EXPECT_GT(pairs, 4);
}

}  // namespace terravane::house
