/// A disk in memory: what a program works on whose files must not reach a real one, and what a test hands to the code
/// that saves. Other programs can be played on it, and each step of a save can be made to fail.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/file_system.h"

namespace terravane {

/// A step of a save. A save makes one of each kind, in this order; what is appended makes an Append, and to make it
/// sure takes the two syncs.
struct SaveStep {
    enum class Kind { Write, SyncFile, Rename, SyncFolder, Append };

    Kind kind;
    std::string_view path;                       // of the file or folder
    std::string_view to = {};                    // of a rename
    std::span<const std::uint8_t> content = {};  // of a write
};

/// Files by their path. A folder is there when MakeFolders named it, or Put a file into it or below it.
///
/// A copy is a disk of its own. It costs little: the two share the contents of each file until one of them saves it.
class MemoryFileSystem : public FileSystem {
  public:
    // --- what is on it

    /// A file put there by "another program": no step. TakeAway is none either.
    void Put(const std::string& path, Bytes content);
    void Put(const std::string& path, std::string_view content) { Put(path, Bytes(content.begin(), content.end())); }

    /// A file's bytes, until it is saved or taken away; none where there is no such file.
    const Bytes& Content(const std::string& path) const;
    /// Of all files, in the order of their letters.
    std::vector<std::string> Paths() const;

    // --- what "another program" holds: a file that it has open, a file that it is saving

    void OpenElsewhere(const std::string& path) { openElsewhere_.insert(path); }
    void CloseElsewhere(const std::string& path) { openElsewhere_.erase(path); }
    void LockElsewhere(const std::string& path) { lockedElsewhere_.insert(path); }
    void UnlockElsewhere(const std::string& path) { lockedElsewhere_.erase(path); }

    // --- fault points

    /// The step with this number from now on fails once, with the error given. A write that fails leaves the half of
    /// its bytes behind, as a full disk does.
    void FailAtStep(int step, int errorNumber);
    /// Runs at each step, before anything is done; what it throws is the step's failure.
    std::function<void(const SaveStep&)> atStep;
    /// Runs when the program has taken a lock and before it does anything with the file.
    std::function<void()> whenLocked;

    // --- what was done on it

    int Steps() const { return steps_; }
    int Reads() const { return reads_; }
    int LocksHeld() const { return static_cast<int>(locks_.held->size()); }

    bool Exists(const std::string& path) const override { return files_.contains(path) || IsFolder(path); }
    bool IsFolder(const std::string& path) const override;
    bool IsWritableFolder(const std::string& path) const override { return IsFolder(path); }
    /// Of files alone.
    std::vector<std::string> Names(const std::string& folder) const override;
    void MakeFolders(const std::string& path) override;
    Bytes Read(const std::string& path) const override;
    bool IsOpenElsewhere(const std::string& path) const override { return openElsewhere_.contains(path); }
    void Append(const std::string& path, std::span<const std::uint8_t> content) override;
    bool IsLocked(const std::string& path) const override;
    std::uint64_t Stamp(const std::string& path) const override;

  protected:
    std::uint64_t SizeOf(const std::string& path) const override { return Known(path).size(); }
    std::unique_ptr<FileLock> TakeLock(const std::string& path) override;
    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) override;
    void SyncFile(const std::string& path) override;
    void Rename(const std::string& from, const std::string& to) override;
    void SyncFolder(const std::string& folder) override;
    void Remove(const std::string& path) noexcept override;

  private:
    /// The locks of this disk that are held, by their files; they may outlive it. A copy of the disk holds none.
    struct Locks {
        Locks() = default;
        Locks(const Locks&) {}
        Locks& operator=(const Locks&) { return *this; }

        std::shared_ptr<std::multiset<std::string>> held = std::make_shared<std::multiset<std::string>>();
    };
    void Changed(const std::string& path) { stamps_[path] = ++lastStamp_; }

    const Bytes& Known(const std::string& path) const;
    void Take(const SaveStep& step);

    std::map<std::string, std::shared_ptr<const Bytes>> files_;
    std::set<std::string> folders_;  // with a mark at the end
    std::set<std::string> openElsewhere_, lockedElsewhere_;
    Locks locks_;
    int steps_ = 0, failAt_ = 0, failWith_ = 0;
    mutable int reads_ = 0;
    std::map<std::string, std::uint64_t> stamps_;
    std::uint64_t lastStamp_ = 0;
};

}  // namespace terravane
