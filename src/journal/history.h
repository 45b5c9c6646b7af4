/// The history of a project: `NAME.history` beside `NAME.mdb`, to which every save that changes a text adds lines. Kept
/// by who saves, read by everybody. What it shows and what not stands in docs/reliability.md.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "jet/connection.h"
#include "journal/history_line.h"
#include "runtime/file_system.h"

namespace terravane {

/// "/lab/TRVN_road.mdb" has "/lab/TRVN_road.history".
std::string HistoryPath(const std::string& project);

/// Empty where there is none. The file system's errors where it can't be read.
ReadHistory LoadHistory(const FileSystem& files, const std::string& project);

/// Who writes.
struct Writer {
    std::string at, login, version;
};

class HistoryKeeper {
  public:
    explicit HistoryKeeper(FileSystem& files) : files_(files) {}

    /// Adds what the save changed, and what others changed since the last line. To be called while the project is
    /// locked. The file system's errors where nothing can be added: the save stands all the same.
    void Save(const jet::SavedFile& saved, const Writer& writer);
    /// A new project, or one made as a copy of `source`, begins a history; where one of an earlier project of that name
    /// stands, it goes on there.
    void Begin(const std::string& project, const std::string& source, const Writer& writer);

  private:
    /// What is known of a history, so that it is not read anew for each save.
    struct Known {
        std::uint64_t stamp = 0;
        std::string lastSum;
        FileTexts texts;
        bool isThere = false;
        bool isTorn = false;
    };
    Known& KnownOf(const std::string& path);
    void Add(const std::string& path, Known& known, std::vector<HistoryLine> lines);

    FileSystem& files_;
    std::map<std::string, Known> known_;
};

}  // namespace terravane
