/// All texts that a project file holds, and what is different in two of them. One comparison serves the history of a
/// project, the look at two projects, and another hand in the same file.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace terravane {

/// Where a text stands in the file.
/// row     of the table, from 1
/// column  "std_wcanw"
struct StoredPlace {
    std::string table;
    int row = 0;
    std::string column;

    auto operator<=>(const StoredPlace&) const = default;
};

/// What stands there; blanks alone, as a new file's columns hold, stand for nothing and are left out.
using FileTexts = std::map<StoredPlace, std::string>;

/// Throws the engine's error for bytes that are no project.
FileTexts TextsOf(std::span<const std::uint8_t> project);

struct TextDifference {
    StoredPlace place;
    std::string before, after;
};

/// In the order of the sheets: the job, then test by test, then the overall results.
std::vector<TextDifference> Differences(const FileTexts& before, const FileTexts& after);

/// A place in the sheet's words.
/// test      key of the test, "std"; "job" for the general data, "results" for the overall results
/// material  "soil" or "crush"; empty for the job
/// cell      as scripts name it: "MSHWt 2 1", "txtSoil"; the column of a result
/// words     for a technician: "Mass of Can, (g), trial 1"
struct PlaceWords {
    std::string test, material, cell, words;
};
PlaceWords WordsOf(const StoredPlace& place);

/// "Standard Compaction Test, soil", "Overall results, soil", "General data".
std::string SheetWords(const PlaceWords& words);

}  // namespace terravane
