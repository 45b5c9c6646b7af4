/// The disk as the program sees it: every byte the program reads or writes goes through here, so that a test can make
/// any step of it fail.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/paths.h"

namespace terravane {

using Bytes = std::vector<std::uint8_t>;

/// The right to save a file, held for as long as this lives.
class FileLock {
  public:
    FileLock() = default;
    virtual ~FileLock() = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
};

/// Failures are RuntimeErrors whose description names the path: 53 no such file, 76 no such folder, 70 or 75 not
/// allowed, 61 disk full, 57 any other device failure.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    virtual bool Exists(const std::string& path) const = 0;
    virtual bool IsFolder(const std::string& path) const = 0;
    /// Whether the path itself is a link, wherever it leads.
    virtual bool IsLink(const std::string&) const { return false; }
    /// Where a file's content stands, or would: the path itself, or what it leads to where it is a link.
    virtual std::string Target(const std::string& path) const { return path; }
    /// Whether files can be made in the folder.
    virtual bool IsWritableFolder(const std::string& path) const = 0;
    /// Names (not paths) of what a folder holds, in no order.
    virtual std::vector<std::string> Names(const std::string& folder) const = 0;
    virtual void MakeFolders(const std::string& path) = 0;

    /// The whole file; refused above 2 GiB.
    virtual Bytes Read(const std::string& path) const = 0;

    /// The same, refused above `largest` bytes before any of them is read.
    Bytes ReadAtMost(const std::string& path, std::uint64_t largest) const;

    /// Keeps every other instance of the program from saving the file meanwhile, and takes away what a save that was
    /// killed left beside it. Waits some seconds, then error 70. Nothing is held, and the lock empty, on a disk that
    /// has no locks. The file has to be there.
    std::unique_ptr<FileLock> Lock(const std::string& path);

    /// Whether any other process has the file open; also true where that can't be found out.
    virtual bool IsOpenElsewhere(const std::string&) const { return true; }

    /// Old content or new, never a mixture: a temporary file in the same folder with the old one's mode, written,
    /// synced, renamed over the target, the folder synced. A failure before the rename removes the temporary file.
    /// The sequence is fixed here and its steps are the virtual ones below, so that the path that ships is tested.
    void ReplaceWhole(const std::string& path, std::span<const std::uint8_t> content);

    /// The same for a file that is not there yet; error 75, and it stays as it is, where another one came first.
    void CreateWhole(const std::string& path, std::span<const std::uint8_t> content);

    /// Puts `content` behind what the file holds, in one write where the system takes it so; a file that is not there
    /// is made. On the disk for sure after MakeSure.
    virtual void Append(const std::string& path, std::span<const std::uint8_t> content) = 0;
    /// What was appended outlives a power cut from here on, the file's name too.
    void MakeSure(const std::string& path);
    /// Takes a file away; one that is not there, or can't be taken away, stays as it is.
    void TakeAway(const std::string& path) noexcept { Remove(path); }
    /// Whether somebody holds the file's lock now, also this process.
    virtual bool IsLocked(const std::string&) const { return false; }
    /// A number that is another one when the file was written or replaced since; 0 where it is not there. Asks for
    /// nothing that the file holds.
    virtual std::uint64_t Stamp(const std::string& path) const = 0;

    /// Copies a whole file over the target, by ReplaceWhole, with the target locked.
    void Copy(const std::string& source, const std::string& target);

  protected:
    virtual std::uint64_t SizeOf(const std::string& path) const { return Read(path).size(); }

    /// Empty on a disk that has no locks.
    virtual std::unique_ptr<FileLock> TakeLock(const std::string&) { return nullptr; }

    /// Makes a new file with the mode of `like` where that exists; nothing is on the disk for sure before SyncFile.
    virtual void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) = 0;
    virtual void SyncFile(const std::string& path) = 0;
    virtual void Rename(const std::string& from, const std::string& to) = 0;
    /// The same where `to` must not be there.
    virtual void RenameToFree(const std::string& from, const std::string& to);
    virtual void SyncFolder(const std::string& folder) = 0;
    virtual void Remove(const std::string& path) noexcept = 0;

  private:
    using Step = void (FileSystem::*)(const std::string& from, const std::string& to);
    void WriteWhole(const std::string& target, std::span<const std::uint8_t> content, Step rename);
    void RemoveLeftovers(const std::string& target);
};

/// The machine's own disk.
class DiskFileSystem : public FileSystem {
  public:
    bool Exists(const std::string& path) const override;
    bool IsFolder(const std::string& path) const override;
    bool IsLink(const std::string& path) const override;
    std::string Target(const std::string& path) const override;
    bool IsWritableFolder(const std::string& path) const override;
    std::vector<std::string> Names(const std::string& folder) const override;
    void MakeFolders(const std::string& path) override;
    Bytes Read(const std::string& path) const override;
    bool IsOpenElsewhere(const std::string& path) const override;
    void Append(const std::string& path, std::span<const std::uint8_t> content) override;
    bool IsLocked(const std::string& path) const override;
    std::uint64_t Stamp(const std::string& path) const override;

  protected:
    std::uint64_t SizeOf(const std::string& path) const override;
    std::unique_ptr<FileLock> TakeLock(const std::string& path) override;
    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) override;
    void SyncFile(const std::string& path) override;
    void Rename(const std::string& from, const std::string& to) override;
    void RenameToFree(const std::string& from, const std::string& to) override;
    void SyncFolder(const std::string& folder) override;
    void Remove(const std::string& path) noexcept override;
};

/// The path of a folder's entry whose name equals `name` without regard to case; the plain join where there is none.
/// For stores that were made where "Logo.mdb" and "logo.mdb" are one file.
std::string FindWithoutCase(const FileSystem& files, const std::string& folder, std::string_view name);

}  // namespace terravane
