/// The rules of docs/architecture.md for includes, as they are written there: its layer table, its table of headers of
/// others and its table of orders inside folders are read, nothing of them is repeated here.
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

/// One row of the table of orders inside folders.
/// ranks  from the lowest to the highest; a name is a unit's, or "*_report" for all that end so and are not named
struct FolderOrder {
    std::string folder;
    std::vector<Words> ranks;

    /// The place of a unit's name among the ranks; none where no rank has it.
    std::optional<std::size_t> RankOf(const std::string& name) const;
};

struct IncludeRules {
    std::vector<Layer> layers;
    std::vector<ForeignHeader> foreign;
    std::vector<FolderOrder> orders;

    const Layer* Find(const std::string& folder) const;
};

/// Reads the three tables from the page's text. A table that is not found leaves its list empty.
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

/// A source text. `file` is the path below src/.
struct Source {
    std::string file, text;
};

/// An include line of a folder's unit that names another unit of the folder. A unit is a header and the source of its
/// name, and the sources that continue that name and include the header: frmCBR.h, frmCBR.cpp, frmCBR_data.cpp are the
/// unit "sheets/cbr/frmCBR".
struct Arrow {
    std::string from, to;
    IncludeLine line;
};

std::vector<Arrow> ArrowsInside(const std::vector<Source>& sources);

/// A sentence for each arrow that leads back to where it starts, with the way back.
Words CircleComplaints(const std::vector<Arrow>& arrows);

/// A sentence for each arrow that runs up in the order of its folder, for each unit of such a folder that has no place
/// in the order, and for each name of an order that is no unit's.
Words OrderComplaints(const IncludeRules& rules, const std::vector<Source>& sources);

/// The layers that a CMakeLists.txt declares: folder, USES.
std::vector<Layer> LayersOfBuild(const std::string& cmakeLists);

std::string ReadText(const std::filesystem::path& path);

/// Every .h and .cpp below the folder, as a path relative to it, sorted; none where there is no such folder.
Words SourcesBelow(const std::filesystem::path& folder);

}  // namespace terravane::house
