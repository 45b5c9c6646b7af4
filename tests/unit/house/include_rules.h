/// The rules of docs/architecture.md for includes, as they are written there: its layer table and its table of headers
/// of others are read, nothing of them is repeated here.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace terravane::house {

using Words = std::vector<std::string>;

/// One row of the layer table.
struct Layer {
    std::string folder;
    std::set<std::string> mayInclude;
    bool stands = false;  // false: the folder is to come
};

/// One row of the table of headers of others.
/// header  the beginning of the header's name
/// places  folders ("render/") or files ("script/main.cpp") of src/
struct ForeignHeader {
    std::string header, of;
    Words places;
};

struct IncludeRules {
    std::vector<Layer> layers;
    std::vector<ForeignHeader> foreign;

    const Layer* Find(const std::string& folder) const;
};

/// Reads the two tables from the page's text. A table that is not found leaves its list empty.
IncludeRules ReadIncludeRules(const std::string& page);

/// One include line. `file` is the path below src/, '/' between folders.
struct IncludeLine {
    std::string file;
    int number = 0;
    bool quoted = false;
    std::string header;
};

/// The include lines of a source text.
std::vector<IncludeLine> IncludeLinesOf(const std::string& file, const std::string& text);

/// What is wrong with the line, as a sentence with file, line and row; nothing where it is right. Whether the header
/// exists is not asked.
std::optional<std::string> Complaint(const IncludeRules& rules, const IncludeLine& line);

/// The layers that a CMakeLists.txt declares: folder, USES.
std::vector<Layer> LayersOfBuild(const std::string& cmakeLists);

std::string ReadText(const std::filesystem::path& path);

/// Every .h and .cpp below the folder, as a path relative to it, sorted; none where there is no such folder.
Words SourcesBelow(const std::filesystem::path& folder);

}  // namespace terravane::house
