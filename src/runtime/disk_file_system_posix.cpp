#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/file_system.h"
#include "runtime/native_path.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {
namespace {

constexpr std::size_t kLargestFile = std::size_t{2} << 30;
constexpr std::chrono::seconds kLockPatience{5};  // a save takes some hundredths of a second
constexpr std::chrono::milliseconds kLockPause{5};
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kModeBits = 07777;
constexpr mode_t kNewFile = 0666;  // less the user's mask

/// What the system calls a failure, its number here, and the words before and behind the path.
struct Failure {
    int system;
    int number;
    const char* before;
    const char* behind;
};
constexpr Failure kNoFolder{ENOENT, error::kPathNotFound, "Could not find the folder of", ""};
constexpr Failure kReadOnly{EACCES, error::kPermissionDenied, "Permission denied:", " is read-only"};
constexpr Failure kNotAFile{EISDIR, error::kPathFileAccess, "Could not use", ": it is not a file"};
constexpr Failure kBeingSaved{EWOULDBLOCK, error::kPermissionDenied, "Could not save",
                              ": another program is saving it; try again"};
constexpr Failure kTooLarge{EFBIG, error::kPathFileAccess, "Could not read", ": it is larger than 2 GiB"};
constexpr std::array kFailures{
    Failure{ENOENT, error::kFileNotFound, "Could not find file", ""},
    Failure{ENOTDIR, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{EACCES, error::kPermissionDenied, "Permission denied:", ""},
    Failure{EPERM, error::kPermissionDenied, "Permission denied:", ""},
    Failure{EROFS, error::kPermissionDenied, "Permission denied:", " is on a read-only disk"},
    Failure{ENOSPC, error::kDiskFull, "Could not write", ": the disk is full"},
    Failure{EDQUOT, error::kDiskFull, "Could not write", ": the disk quota is used up"},
    Failure{EFBIG, error::kDiskFull, "Could not write", ": the disk takes no file of this size"},
    Failure{EEXIST, error::kPathFileAccess, "Could not make", ": it is there already"},
    Failure{ENAMETOOLONG, error::kPathFileAccess, "Could not use", ": the name is too long"},
    Failure{ELOOP, error::kPathFileAccess, "Could not use", ": it is a link that leads to itself"},
    kNotAFile,
};
constexpr Failure kDevice{EIO, error::kDeviceError, "Could not read or write", ": the device failed"};

[[noreturn]] void Throw(const Failure& failure, const std::string& path)
{
    throw RuntimeError(failure.number,
                       std::string(failure.before) + " '" + Printable(path) + "'" + failure.behind + ".");
}

[[noreturn]] void ThrowSystem(int system, const std::string& path)
{
    const auto known = std::ranges::find(kFailures, system, &Failure::system);
    Throw(known != kFailures.end() ? *known : kDevice, path);
}

/// Where a file is made, "no such file" can only mean its folder.
[[noreturn]] void ThrowMaking(int system, const std::string& path)
{
    if (system == ENOENT) Throw(kNoFolder, path);
    ThrowSystem(system, path);
}

/// Repeats a call that a signal broke off.
template <typename Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// An open file, closed at the end of its scope.
class Handle {
  public:
    Handle(const std::string& path, int flags, mode_t mode = 0)
        : number_(Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); }))
    {}
    ~Handle()
    {
        if (IsOpen()) close(number_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

  private:
    int number_;
};

using Status = struct stat;

std::optional<Status> StatusOf(const std::string& path)
{
    Status status{};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

/// The folder itself where the path is that of a bare name.
std::string OrCurrentFolder(const std::string& folder)
{
    return folder.empty() ? "." : folder;
}

void WriteAll(const Handle& file, std::span<const std::uint8_t> content, const std::string& path)
{
    while (!content.empty()) {
        const auto count = Uninterrupted([&] { return write(file.Number(), content.data(), content.size()); });
        if (count < 0) ThrowSystem(errno, path);
        if (count == 0) Throw(kDevice, path);
        content = content.subspan(static_cast<std::size_t>(count));
    }
}

Bytes ReadAll(const Handle& file, std::size_t expected, const std::string& path)
{
    Bytes content(expected + 1);  // the byte over finds the end without another round
    std::size_t size = 0;
    for (;;) {
        const auto count = Uninterrupted([&] { return read(file.Number(), &content[size], content.size() - size); });
        if (count < 0) ThrowSystem(errno, path);
        if (count == 0) break;
        size += static_cast<std::size_t>(count);
        if (size > kLargestFile) Throw(kTooLarge, path);
        if (size == content.size()) content.resize(2 * size);
    }
    content.resize(size);
    return content;
}

// --- locks

/// Open for writing where the file may be: a lock over a network asks for that.
int FlagsToLock(const std::string& path)
{
    return (access(path.c_str(), W_OK) == 0 ? O_RDWR : O_RDONLY) | O_NONBLOCK;
}

/// Held by the file's own content, so that a lock needs no file of its own that a killed process would leave behind.
class DiskLock : public FileLock {
  public:
    explicit DiskLock(const std::string& path) : file_(path, FlagsToLock(path)) {}

    const Handle& File() const { return file_; }

  private:
    Handle file_;
};

enum class Taken { Yes, Later, Never };

Taken Try(const Handle& file, const std::string& path)
{
    if (Uninterrupted([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) == 0) return Taken::Yes;
    if (errno == EWOULDBLOCK) return Taken::Later;
    if (errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL) return Taken::Never;
    ThrowSystem(errno, path);
}

/// Whether the path still leads to what was opened: a save puts another file there.
bool IsStillThere(const Handle& file, const std::string& path)
{
    Status opened{};
    const auto there = StatusOf(path);
    return there && fstat(file.Number(), &opened) == 0 && opened.st_dev == there->st_dev &&
           opened.st_ino == there->st_ino;
}

/// Renaming over a file asks no right to write it; this program does, so that a file set read-only stays as
/// it is.
void RefuseReadOnly(const Status& status, const std::string& path)
{
    if (!S_ISREG(status.st_mode)) Throw(kNotAFile, path);
    if ((status.st_mode & kAnyWrite) == 0 || access(path.c_str(), W_OK) != 0) Throw(kReadOnly, path);
}

}  // namespace

bool DiskFileSystem::Exists(const std::string& path) const
{
    return StatusOf(path).has_value();
}

bool DiskFileSystem::IsFolder(const std::string& path) const
{
    const auto status = StatusOf(OrCurrentFolder(path));
    return status && S_ISDIR(status->st_mode);
}

bool DiskFileSystem::IsLink(const std::string& path) const
{
    Status status{};
    return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool DiskFileSystem::IsWritableFolder(const std::string& path) const
{
    return IsFolder(path) && access(OrCurrentFolder(path).c_str(), W_OK | X_OK) == 0;
}

std::vector<std::string> DiskFileSystem::Names(const std::string& folder) const
{
    namespace fs = std::filesystem;
    std::error_code failure;
    std::vector<std::string> names;
    for (fs::directory_iterator at(ToNative(OrCurrentFolder(folder)), failure), end; !failure && at != end;
         at.increment(failure)) {
        names.push_back(ToText(at->path().filename()));
    }
    if (failure) ThrowMaking(failure.value(), folder);
    return names;
}

void DiskFileSystem::MakeFolders(const std::string& path)
{
    std::error_code failure;
    std::filesystem::create_directories(ToNative(OrCurrentFolder(path)), failure);
    if (failure) ThrowMaking(failure.value(), path);
}

Bytes DiskFileSystem::Read(const std::string& path) const
{
    const Handle file(path, O_RDONLY | O_NONBLOCK);  // a pipe without a writer must not hold the program
    if (!file.IsOpen()) ThrowSystem(errno, path);
    Status status{};
    if (fstat(file.Number(), &status) != 0) ThrowSystem(errno, path);
    if (!S_ISREG(status.st_mode)) Throw(kNotAFile, path);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > kLargestFile) Throw(kTooLarge, path);
    return ReadAll(file, size, path);
}

std::uint64_t DiskFileSystem::SizeOf(const std::string& path) const
{
    const auto status = StatusOf(path);
    if (!status) ThrowSystem(errno, path);
    return static_cast<std::uint64_t>(status->st_size);
}

/// The system gives a lease for writing to the one process that has a file open, and to no other.
bool DiskFileSystem::IsOpenElsewhere(const std::string& path) const
{
    const Handle file(path, O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen()) return errno != ENOENT;
    fcntl(file.Number(), F_SETSIG, SIGURG);  // told of who opens it meanwhile: a signal that ends no process
    if (fcntl(file.Number(), F_SETLEASE, F_WRLCK) != 0) return true;
    fcntl(file.Number(), F_SETLEASE, F_UNLCK);
    return false;
}

std::unique_ptr<FileLock> DiskFileSystem::TakeLock(const std::string& path)
{
    using namespace std::chrono;
    const auto end = steady_clock::now() + kLockPatience;
    for (;;) {
        auto lock = std::make_unique<DiskLock>(path);
        if (!lock->File().IsOpen()) ThrowSystem(errno, path);
        const Taken taken = Try(lock->File(), path);
        if (taken == Taken::Never) return nullptr;
        if (taken == Taken::Yes && IsStillThere(lock->File(), path)) return lock;
        if (steady_clock::now() > end) Throw(kBeingSaved, path);
        if (taken == Taken::Later) std::this_thread::sleep_for(kLockPause);
    }
}

void DiskFileSystem::WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like)
{
    const auto old = StatusOf(like);
    if (old) RefuseReadOnly(*old, like);
    const Handle file(path, O_WRONLY | O_CREAT | O_EXCL, kNewFile);
    if (!file.IsOpen()) ThrowMaking(errno, path);
    if (old && fchmod(file.Number(), old->st_mode & kModeBits) != 0) ThrowSystem(errno, path);
    WriteAll(file, content, path);
}

/// No link is followed: what stands beside a project may have been put there by a stranger.
void DiskFileSystem::Append(const std::string& path, std::span<const std::uint8_t> content)
{
    const Handle file(path, O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK, kNewFile);
    if (!file.IsOpen()) ThrowMaking(errno, path);
    Status status{};
    if (fstat(file.Number(), &status) != 0) ThrowSystem(errno, path);
    if (!S_ISREG(status.st_mode)) Throw(kNotAFile, path);
    WriteAll(file, content, path);
}

bool DiskFileSystem::IsLocked(const std::string& path) const
{
    const DiskLock tried(path);
    return tried.File().IsOpen() && Try(tried.File(), path) == Taken::Later;
}

/// A save puts another file there, whose number in the file system is another one, too.
std::uint64_t DiskFileSystem::Stamp(const std::string& path) const
{
    const auto status = StatusOf(path);
    if (!status) return 0;
    std::uint64_t stamp = 1;
    for (const auto part :
         {static_cast<std::uint64_t>(status->st_ino), static_cast<std::uint64_t>(status->st_size),
          static_cast<std::uint64_t>(status->st_mtim.tv_sec), static_cast<std::uint64_t>(status->st_mtim.tv_nsec)})
        stamp = stamp * 1'000'003 + part;
    return stamp;
}

void DiskFileSystem::SyncFile(const std::string& path)
{
    const Handle file(path, O_RDONLY);
    if (!file.IsOpen()) ThrowSystem(errno, path);
    if (Uninterrupted([&] { return fsync(file.Number()); }) != 0) ThrowSystem(errno, path);
}

void DiskFileSystem::Rename(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0) ThrowSystem(errno, to);
}

void DiskFileSystem::RenameToFree(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return;
    if (errno != EINVAL && errno != ENOSYS) ThrowSystem(errno, to);
    FileSystem::RenameToFree(from, to);  // a disk that can't do both in one step
}

void DiskFileSystem::SyncFolder(const std::string& folder)
{
    const Handle handle(OrCurrentFolder(folder), O_RDONLY | O_DIRECTORY);
    if (!handle.IsOpen()) ThrowSystem(errno, folder);
    const int result = Uninterrupted([&] { return fsync(handle.Number()); });
    if (result != 0 && errno != EINVAL) ThrowSystem(errno, folder);  // EINVAL: this disk syncs no folders
}

void DiskFileSystem::Remove(const std::string& path) noexcept
{
    unlink(path.c_str());
}

std::string DiskFileSystem::Target(const std::string& path) const
{
    namespace fs = std::filesystem;
    constexpr int kMostLinks = 40;
    std::string target = path;
    for (int links = 0;; ++links) {
        std::error_code failure;
        const fs::path next = fs::read_symlink(ToNative(target), failure);
        if (failure) return target;  // no link: this is it
        if (links == kMostLinks) ThrowSystem(ELOOP, path);
        target = next.is_absolute() ? ToText(next) : FolderOf(target) + ToText(next);
    }
}

}  // namespace terravane
