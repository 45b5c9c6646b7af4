/// Drafts: what is typed into a sheet and not saved, kept in the user's own folder so that it outlives a crash, a power
/// cut and a closed window. A file a window and sheet, to which each act adds a line.
///
///   {"project":"/lab/TRVN_road.mdb","test":"std","material":"soil"}
///   {"at":"2026-11-21T14:02:10","texts":[["MSHWt",2,1,"85.30"],["txtSoil",-1,-1,"Red clay"]]}
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "journal/step.h"
#include "runtime/dates.h"
#include "runtime/file_system.h"

namespace terravane {

/// Whose draft it is.
struct DraftOf {
    std::string project, test, material;

    bool operator==(const DraftOf&) const = default;
};

/// row, column  as TextPlace has them; kRowsPlace for the number of rows of a list
struct DraftText {
    std::string control;
    int row, column;
    std::string text;
};
inline constexpr int kRowsPlace = -2;

/// A draft as it is read: the last text of every place.
struct Draft {
    std::string path;
    DraftOf of;
    std::string at;  // of the last act
    std::vector<DraftText> texts;
};

class DraftKeeper {
  public:
    static constexpr int kDaysKept = 30;

    /// folder  the drafts' own, with a mark at its end; made when it is needed
    DraftKeeper(FileSystem& files, std::string folder) : files_(files), folder_(std::move(folder)) {}
    ~DraftKeeper() { Leave(); }
    DraftKeeper(const DraftKeeper&) = delete;
    DraftKeeper& operator=(const DraftKeeper&) = delete;

    /// A sheet is opened. Drafts older than thirty days go away.
    void Open(DraftOf of, Moment now);
    /// It is closed: what was typed waits for its next opening.
    void Leave();
    /// It is saved: its draft goes, and those that were taken over.
    void Saved();

    /// Adds what an act made of the texts. The file system's errors where it can't.
    void Add(const Step& step, const std::string& at);
    /// On the disk for sure from here on; nothing happens where it is already.
    void Sync();

    /// Drafts of this sheet, or of all sheets of a project, that no window is writing now; the latest first.
    std::vector<Draft> Waiting() const;
    std::vector<Draft> WaitingOf(std::string_view project) const;
    void Forget(const Draft& draft) { files_.TakeAway(draft.path); }

  private:
    std::vector<Draft> ReadAll() const;
    void Begin();

    FileSystem& files_;
    std::string folder_;
    DraftOf of_;
    std::string path_;  // of this window's; empty: nothing was typed yet
    std::unique_ptr<FileLock> lock_;
    bool isSynced_ = true;
};

}  // namespace terravane
