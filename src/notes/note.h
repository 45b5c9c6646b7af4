/// What whoever checks a sheet is told: a note never changes a result, a message or a page.
#pragma once

#include <string>
#include <string_view>

namespace terravane::notes {

/// Information: nothing is wrong, something is worth knowing. Doubtful: an experienced eye would stop here. Impossible:
/// no soil gives this; a reading, a name or a setting is wrong.
enum class Level { Information, Doubtful, Impossible };

/// "information", "doubtful", "impossible".
constexpr std::string_view Words(Level level)
{
    constexpr std::string_view kWords[]{"information", "doubtful", "impossible"};
    return kWords[static_cast<std::size_t>(level)];
}

/// What a note is about: a box of the sheet, or a cell where the control is a grid. No control: the whole sheet.
struct Place {
    std::string_view control = {};
    int row = -1, column = -1;

    bool IsCell() const { return row >= 0; }
    bool operator==(const Place&) const = default;
};

/// key       of the rule that found it, "compaction.above-zero-air-voids"
/// sentence  for a person, with the figures and the limit
/// source    where the limit is from
struct Note {
    std::string_view key;
    Level level;
    std::string sentence;
    std::string_view source;
    Place at;
};

}  // namespace terravane::notes
