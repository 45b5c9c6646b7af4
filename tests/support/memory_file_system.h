/// A disk in memory whose steps can be made to fail: what a test hands to the code that saves.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "runtime/file_system.h"
#include "runtime/runtime_error.h"

namespace terravane::support {

/// Files by their path; folders exist once MakeFolders named them, or when a file was Put into them.
///
/// A step is each WriteNew, SyncFile, Rename and SyncFolder, in the order of a save: 1 write, 2 sync, 3 rename, 4 sync
/// of the folder. A failing write leaves the half of its bytes behind, as a full disk does.
class MemoryFileSystem : public FileSystem {
  public:
    /// The step with this number from now on fails once, with the error given.
    void FailAtStep(int step, int errorNumber)
    {
        failAt_ = steps_ + step;
        failWith_ = errorNumber;
    }

    int Steps() const { return steps_; }
    int Reads() const { return reads_; }

    /// A file put there or taken away by "another program": no step.
    void Put(const std::string& path, Bytes content)
    {
        folders_.insert(FolderOf(path));
        files_[path] = std::move(content);
    }
    void Put(const std::string& path, std::string_view content) { Put(path, Bytes(content.begin(), content.end())); }
    void TakeAway(const std::string& path) { files_.erase(path); }

    /// What "another program" holds: a file that it has open, a file that it is saving.
    void OpenElsewhere(const std::string& path) { openElsewhere_.insert(path); }
    void CloseElsewhere(const std::string& path) { openElsewhere_.erase(path); }
    void LockElsewhere(const std::string& path) { lockedElsewhere_.insert(path); }
    void UnlockElsewhere(const std::string& path) { lockedElsewhere_.erase(path); }

    /// Runs when the program has taken a lock and before it does anything with the file.
    std::function<void()> whenLocked;

    int LocksHeld() const { return *locksHeld_; }

    /// A file's bytes; nothing where there is no such file.
    Bytes Content(const std::string& path) const { return files_.contains(path) ? files_.at(path) : Bytes(); }

    std::vector<std::string> Paths() const
    {
        std::vector<std::string> paths;
        for (const auto& [path, content] : files_) paths.push_back(path);
        return paths;
    }

    bool Exists(const std::string& path) const override { return files_.contains(path) || IsFolder(path); }
    bool IsFolder(const std::string& path) const override
    {
        return path.empty() || folders_.contains(path.back() == '/' ? path : path + "/");
    }
    bool IsWritableFolder(const std::string& path) const override { return IsFolder(path); }

    std::vector<std::string> Names(const std::string& folder) const override
    {
        const std::string prefix = folder.empty() || folder.back() == '/' ? folder : folder + "/";
        std::vector<std::string> names;
        for (const auto& [path, content] : files_) {
            if (FolderOf(path) == prefix) names.push_back(NameOf(path));
        }
        return names;
    }

    void MakeFolders(const std::string& path) override
    {
        for (std::size_t mark = path.find('/'); mark != std::string::npos; mark = path.find('/', mark + 1)) {
            folders_.insert(path.substr(0, mark + 1));
        }
        if (!path.empty() && path.back() != '/') folders_.insert(path + "/");
    }

    Bytes Read(const std::string& path) const override
    {
        ++reads_;
        CheckThere(path);
        return files_.at(path);
    }
    bool IsOpenElsewhere(const std::string& path) const override { return openElsewhere_.contains(path); }

  protected:
    std::uint64_t SizeOf(const std::string& path) const override
    {
        CheckThere(path);
        return files_.at(path).size();
    }

    std::unique_ptr<FileLock> TakeLock(const std::string& path) override
    {
        CheckThere(path);
        if (lockedElsewhere_.contains(path)) {
            throw RuntimeError(error::kPermissionDenied, "Another program is saving '" + path + "'.");
        }
        auto lock = std::make_unique<HeldLock>(locksHeld_);
        if (whenLocked) whenLocked();
        return lock;
    }

    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string&) override
    {
        const bool fails = NextStepFails();
        files_[path] = Bytes(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(fails ? content.size() / 2
                                                                                                  : content.size()));
        if (fails) Fail(path);
    }

    void SyncFile(const std::string& path) override { Step(path); }

    void Rename(const std::string& from, const std::string& to) override
    {
        Step(from);
        CheckThere(from);
        files_[to] = std::move(files_[from]);
        files_.erase(from);
    }

    void SyncFolder(const std::string& folder) override { Step(folder); }
    void Remove(const std::string& path) noexcept override { files_.erase(path); }

  private:
    /// Counts the locks that are held; a file system may be gone before them.
    class HeldLock : public FileLock {
      public:
        explicit HeldLock(std::shared_ptr<int> count) : count_(std::move(count)) { ++*count_; }
        ~HeldLock() override { --*count_; }

      private:
        std::shared_ptr<int> count_;
    };

    bool NextStepFails() { return ++steps_ == failAt_; }
    void Step(const std::string& path)
    {
        if (NextStepFails()) Fail(path);
    }
    [[noreturn]] void Fail(const std::string& path) const
    {
        throw RuntimeError(failWith_, "The step failed as the test asked: '" + path + "'.");
    }
    void CheckThere(const std::string& path) const
    {
        if (!files_.contains(path)) throw RuntimeError(error::kFileNotFound, "File not found: '" + path + "'.");
    }

    std::map<std::string, Bytes> files_;
    std::set<std::string> folders_;
    std::set<std::string> openElsewhere_;
    std::set<std::string> lockedElsewhere_;
    std::shared_ptr<int> locksHeld_ = std::make_shared<int>(0);
    int steps_ = 0;
    int failAt_ = 0;
    int failWith_ = 0;
    mutable int reads_ = 0;
};

}  // namespace terravane::support
