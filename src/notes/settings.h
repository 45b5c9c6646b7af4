/// What a laboratory says of the notes in a small text file of its own: which are off, and limits of its own.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "notes/rule.h"
#include "runtime/file_system.h"

namespace terravane::notes {

/// In the folder that holds the brand store's folder.
inline constexpr std::string_view kSettingsFile = "notes.conf";
std::string SettingsPath(const std::string& brandFolder);

/// One line a note: "compaction.water-steps = off", "compaction.water-steps = 3.5", "atterberg.blows = 10 40". Empty
/// lines and those that begin with "#" say nothing.
class Settings {
  public:
    /// As the rules stand.
    Settings() = default;

    /// Reads a file's text; nothing of a bad line is taken.
    static Settings FromText(std::string_view text);
    /// Of the file beside the brand folder; as the rules stand where there is none. A file that can't be read is a
    /// complaint.
    static Settings Beside(const FileSystem& files, const std::string& brandFolder);

    bool IsOn(const Rule& rule) const;
    LimitValues LimitsOf(const Rule& rule) const;

    /// A sentence a bad line: "notes.conf, line 3: there is no note "compaction.watersteps"."
    const std::vector<std::string>& Complaints() const { return complaints_; }

  private:
    std::string Take(std::string_view line);

    std::map<std::string, LimitValues, std::less<>> limits_;
    std::vector<std::string> off_, complaints_;
};

}  // namespace terravane::notes
