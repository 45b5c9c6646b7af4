#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <thread>

#include <windows.h>

#include "runtime/file_system.h"
#include "runtime/machine.h"
#include "runtime/native_path.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {
namespace {

constexpr std::uint64_t kLargestFile = std::uint64_t{2} << 30;
constexpr std::size_t kPortion = std::size_t{64} << 20;      // a call takes no count of more than 32 bits
constexpr std::chrono::milliseconds kLockPatience{5000};     // a save takes some hundredths of a second
constexpr std::chrono::milliseconds kScannerPatience{2000};  // virus scanners and indexers hold what was just written
constexpr std::chrono::milliseconds kRefusalPatience{200};   // a lock's file that is going away refuses its opening
constexpr std::chrono::milliseconds kPause{5};

constexpr DWORD kQuotaExceeded = 1295;  // the compiler's headers have no name for it

/// What the system calls a failure, its number here, and the words before and behind the path.
struct Failure {
    DWORD system;
    int number;
    const char* before;
    const char* behind;
};
constexpr Failure kReadOnly{0, error::kPermissionDenied, "Permission denied:", " is read-only"};
constexpr Failure kNotAFile{0, error::kPathFileAccess, "Could not use", ": it is not a file"};
constexpr Failure kDeviceName{0, error::kPathFileAccess, "Could not use", ": it is the name of a device"};
constexpr Failure kBeingSaved{0, error::kPermissionDenied, "Could not save",
                              ": another program is saving it; try again"};
constexpr Failure kTooLarge{0, error::kPathFileAccess, "Could not read", ": it is larger than 2 GiB"};
constexpr std::array kFailures{
    Failure{ERROR_FILE_NOT_FOUND, error::kFileNotFound, "Could not find file", ""},
    Failure{ERROR_PATH_NOT_FOUND, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_INVALID_DRIVE, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_BAD_NETPATH, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_BAD_NET_NAME, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_DIRECTORY, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_NOT_READY, error::kPathNotFound, "Could not find the folder of", ""},
    Failure{ERROR_ACCESS_DENIED, error::kPermissionDenied, "Permission denied:", ""},
    Failure{ERROR_NETWORK_ACCESS_DENIED, error::kPermissionDenied, "Permission denied:", ""},
    Failure{ERROR_SHARING_VIOLATION, error::kPermissionDenied, "Permission denied:", " is open in another program"},
    Failure{ERROR_LOCK_VIOLATION, error::kPermissionDenied, "Permission denied:", " is open in another program"},
    Failure{ERROR_USER_MAPPED_FILE, error::kPermissionDenied, "Permission denied:", " is open in another program"},
    Failure{ERROR_WRITE_PROTECT, error::kPermissionDenied, "Permission denied:", " is on a read-only disk"},
    Failure{ERROR_DISK_FULL, error::kDiskFull, "Could not write", ": the disk is full"},
    Failure{ERROR_HANDLE_DISK_FULL, error::kDiskFull, "Could not write", ": the disk is full"},
    Failure{kQuotaExceeded, error::kDiskFull, "Could not write", ": the disk quota is used up"},
    Failure{ERROR_FILE_TOO_LARGE, error::kDiskFull, "Could not write", ": the disk takes no file of this size"},
    Failure{ERROR_FILE_EXISTS, error::kPathFileAccess, "Could not make", ": it is there already"},
    Failure{ERROR_ALREADY_EXISTS, error::kPathFileAccess, "Could not make", ": it is there already"},
    Failure{ERROR_FILENAME_EXCED_RANGE, error::kPathFileAccess, "Could not use", ": the name is too long"},
    Failure{ERROR_BUFFER_OVERFLOW, error::kPathFileAccess, "Could not use", ": the name is too long"},
    Failure{ERROR_INVALID_NAME, error::kPathFileAccess, "Could not use", ": it is no name of a file"},
    Failure{ERROR_BAD_PATHNAME, error::kPathFileAccess, "Could not use", ": it is no name of a file"},
    Failure{ERROR_CANT_RESOLVE_FILENAME, error::kPathFileAccess, "Could not use",
            ": it is a link that leads to itself"},
};
constexpr Failure kDevice{0, error::kDeviceError, "Could not read or write", ": the device failed"};

[[noreturn]] void Throw(const Failure& failure, const std::string& path)
{
    throw RuntimeError(failure.number,
                       std::string(failure.before) + " '" + Printable(path) + "'" + failure.behind + ".");
}

[[noreturn]] void ThrowSystem(DWORD system, const std::string& path)
{
    const auto known = std::ranges::find(kFailures, system, &Failure::system);
    Throw(known != kFailures.end() ? *known : kDevice, path);
}

// --- names

/// The names that stand for devices in every folder, also with something behind a dot.
bool IsDeviceName(std::string_view name)
{
    constexpr std::array<std::string_view, 6> kDevices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    const std::string_view bare = Trim(name.substr(0, name.find_first_of(".:")));
    if (std::ranges::any_of(kDevices, [&](std::string_view device) { return SameName(bare, device); })) return true;
    const bool isPort = SameName(bare.substr(0, 3), "COM") || SameName(bare.substr(0, 3), "LPT");
    constexpr std::string_view kNumbers[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "¹", "²", "³"};
    return isPort && std::ranges::find(kNumbers, bare.substr(3)) != std::end(kNumbers);
}

/// A path as the system's calls take it whatever its length: from the root, behind the mark that says so. Behind that
/// mark nothing is read into a name any more, so that what would mean a device, or lose its last dot, is refused here.
std::wstring Long(const std::string& path)
{
    const std::string name = NameOf(path);
    if (IsDeviceName(name)) Throw(kDeviceName, path);
    const bool isDots = name == "." || name == "..";
    if (!isDots && (name.ends_with('.') || name.ends_with(' '))) ThrowSystem(ERROR_INVALID_NAME, path);
    const std::wstring given = ToNative(path.empty() ? "." : path).wstring();
    std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.empty()) ThrowSystem(ERROR_INVALID_NAME, path);
    if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\")) return full;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

std::string WithoutLongMark(const std::wstring& path)
{
    if (path.starts_with(L"\\\\?\\UNC\\")) return "\\" + ToText(path.substr(7));
    return ToText(path.starts_with(L"\\\\?\\") ? path.substr(4) : path);
}

// --- open files

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// An open file, closed at the end of its scope.
class Handle {
  public:
    Handle(const std::string& path, DWORD access, DWORD share, DWORD how, DWORD flags = FILE_ATTRIBUTE_NORMAL)
        : handle_(CreateFileW(Long(path).c_str(), access, share, nullptr, how, flags, nullptr)),
          failure_(IsOpen() ? ERROR_SUCCESS : GetLastError())
    {}
    ~Handle()
    {
        if (IsOpen()) CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }
    DWORD Failure() const { return failure_; }

  private:
    HANDLE handle_;
    DWORD failure_;
};

std::optional<DWORD> AttributesOf(const std::string& path)
{
    const DWORD attributes = GetFileAttributesW(Long(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
    return attributes;
}

void WriteAll(const Handle& file, std::span<const std::uint8_t> content, const std::string& path)
{
    while (!content.empty()) {
        DWORD count = 0;
        const auto portion = static_cast<DWORD>(std::min(content.size(), kPortion));
        if (!WriteFile(file.Get(), content.data(), portion, &count, nullptr)) ThrowSystem(GetLastError(), path);
        if (count == 0) Throw(kDevice, path);
        content = content.subspan(count);
    }
}

Bytes ReadAll(const Handle& file, std::size_t expected, const std::string& path)
{
    Bytes content(expected + 1);  // the byte over finds the end without another round
    std::size_t size = 0;
    for (;;) {
        DWORD count = 0;
        const auto portion = static_cast<DWORD>(std::min(content.size() - size, kPortion));
        if (!ReadFile(file.Get(), &content[size], portion, &count, nullptr)) ThrowSystem(GetLastError(), path);
        if (count == 0) break;
        size += count;
        if (size > kLargestFile) Throw(kTooLarge, path);
        if (size == content.size()) content.resize(2 * size);
    }
    content.resize(size);
    return content;
}

/// Tries until it succeeds or the failure is none that passes; says the failure, or ERROR_SUCCESS.
template <typename Try>
DWORD Patiently(std::chrono::milliseconds patience, const Try& attempt)
{
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + patience;
    for (;;) {
        if (attempt()) return ERROR_SUCCESS;
        const DWORD failure = GetLastError();
        const bool mayPass = failure == ERROR_ACCESS_DENIED || failure == ERROR_SHARING_VIOLATION ||
                             failure == ERROR_LOCK_VIOLATION || failure == ERROR_USER_MAPPED_FILE;
        if (!mayPass || steady_clock::now() > end) return failure;
        std::this_thread::sleep_for(kPause);
    }
}

// --- access lists

/// Who may do what with a file, as the system keeps it; empty on a disk without such lists, or where they may not be
/// read.
std::vector<char> AccessListOf(const std::string& path)
{
    const std::wstring name = Long(path);
    DWORD size = 0;
    GetFileSecurityW(name.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<char> list(size);
    if (size == 0 || !GetFileSecurityW(name.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size)) return {};
    return list;
}

/// The old file's list on the new one: a project that few may read must not become everyone's by a save.
void KeepAccessList(const std::string& path, const std::string& like)
{
    std::vector<char> list = AccessListOf(like);
    if (list.empty()) return;
    if (!SetFileSecurityW(Long(path).c_str(), DACL_SECURITY_INFORMATION, list.data()))
        ThrowSystem(GetLastError(), path);
}

/// Beside the file, since a lock on it would keep it from being replaced; the system takes it away with the process
/// that holds it.
class DiskLock : public FileLock {
  public:
    explicit DiskLock(const std::string& path)
        : file_(FolderOf(path) + "~$" + NameOf(path) + ".lock", GENERIC_READ | GENERIC_WRITE | DELETE, 0, OPEN_ALWAYS,
                FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE)
    {}

    bool IsTaken() const { return file_.IsOpen(); }
    DWORD Failure() const { return file_.Failure(); }

  private:
    Handle file_;
};

}  // namespace

bool DiskFileSystem::Exists(const std::string& path) const
try {
    return !path.empty() && AttributesOf(path).has_value();  // "" would be the current folder
} catch (const RuntimeError&) {
    return false;  // no name of a file
}

bool DiskFileSystem::IsFolder(const std::string& path) const
try {
    const auto attributes = AttributesOf(path);
    return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
} catch (const RuntimeError&) {
    return false;
}

/// Access lists and shares have too many ways of refusing: it is tried.
bool DiskFileSystem::IsLink(const std::string& path) const
{
    const auto attributes = AttributesOf(path);
    return attributes && (*attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

bool DiskFileSystem::IsWritableFolder(const std::string& path) const
{
    if (!IsFolder(path)) return false;
    const std::string tried =
        (path.empty() ? path : WithMark(path)) + "~$terravane-" + std::to_string(ProcessNumber()) + ".tmp";
    return Handle(tried, GENERIC_WRITE | DELETE, 0, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE)
        .IsOpen();
}

std::vector<std::string> DiskFileSystem::Names(const std::string& folder) const
{
    WIN32_FIND_DATAW entry{};
    const HANDLE search =
        FindFirstFileW(Long((folder.empty() ? "." : WithMark(folder)) + std::string("\\*")).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) ThrowSystem(GetLastError(), folder);
    std::vector<std::string> names;
    do {
        const std::wstring_view name = entry.cFileName;
        if (name != L"." && name != L"..") names.push_back(ToText(name));
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
}

void DiskFileSystem::MakeFolders(const std::string& path)
{
    const std::string folder = WithoutMark(path);
    if (folder.empty() || IsFolder(folder)) return;
    const std::string above = FolderOf(folder);
    if (above.size() < folder.size()) MakeFolders(above);
    if (CreateDirectoryW(Long(folder).c_str(), nullptr)) return;
    const DWORD failure = GetLastError();
    if (!IsFolder(folder)) ThrowSystem(failure, path);  // else another process came first
}

Bytes DiskFileSystem::Read(const std::string& path) const
{
    const auto attributes = AttributesOf(path);
    if (attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY)) Throw(kNotAFile, path);
    const Handle file(path, GENERIC_READ, kShareAll, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
    if (!file.IsOpen()) ThrowSystem(file.Failure(), path);
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) Throw(kNotAFile, path);
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.Get(), &size)) ThrowSystem(GetLastError(), path);
    if (static_cast<std::uint64_t>(size.QuadPart) > kLargestFile) Throw(kTooLarge, path);
    return ReadAll(file, static_cast<std::size_t>(size.QuadPart), path);
}

std::uint64_t DiskFileSystem::SizeOf(const std::string& path) const
{
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!GetFileAttributesExW(Long(path).c_str(), GetFileExInfoStandard, &found)) ThrowSystem(GetLastError(), path);
    return (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow;
}

/// Opened for oneself alone, which the system allows where nobody else has it open.
bool DiskFileSystem::IsOpenElsewhere(const std::string& path) const
{
    const Handle file(path, GENERIC_READ, 0, OPEN_EXISTING);
    return !file.IsOpen() && file.Failure() != ERROR_FILE_NOT_FOUND && file.Failure() != ERROR_PATH_NOT_FOUND;
}

std::unique_ptr<FileLock> DiskFileSystem::TakeLock(const std::string& path)
{
    using std::chrono::steady_clock;
    const auto begin = steady_clock::now();
    if (!Exists(path)) ThrowSystem(ERROR_FILE_NOT_FOUND, path);
    for (;;) {
        auto lock = std::make_unique<DiskLock>(path);
        if (lock->IsTaken()) return lock;
        const auto waited = steady_clock::now() - begin;
        const bool isHeld = lock->Failure() == ERROR_SHARING_VIOLATION;
        const bool isGoing = lock->Failure() == ERROR_ACCESS_DENIED && waited < kRefusalPatience;
        if (!isHeld && !isGoing) ThrowSystem(lock->Failure(), path);
        if (waited > kLockPatience) Throw(kBeingSaved, path);
        std::this_thread::sleep_for(kPause);
    }
}

void DiskFileSystem::WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like)
{
    const auto old = AttributesOf(like);
    if (old && (*old & FILE_ATTRIBUTE_DIRECTORY)) Throw(kNotAFile, like);
    if (old && (*old & FILE_ATTRIBUTE_READONLY)) Throw(kReadOnly, like);
    const DWORD hidden = old.value_or(0) & FILE_ATTRIBUTE_HIDDEN;
    const Handle file(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW, hidden ? hidden : FILE_ATTRIBUTE_NORMAL);
    if (!file.IsOpen()) ThrowSystem(file.Failure(), path);
    if (old) KeepAccessList(path, like);
    WriteAll(file, content, path);
}

void DiskFileSystem::Append(const std::string& path, std::span<const std::uint8_t> content)
{
    const Handle file(path, FILE_APPEND_DATA | SYNCHRONIZE, kShareAll, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL);
    if (!file.IsOpen()) ThrowSystem(file.Failure(), path);
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) Throw(kNotAFile, path);
    WriteAll(file, content, path);
}

bool DiskFileSystem::IsLocked(const std::string& path) const
{
    if (!Exists(path)) return false;
    const DiskLock tried(path);
    return !tried.IsTaken() && tried.Failure() == ERROR_SHARING_VIOLATION;
}

std::uint64_t DiskFileSystem::Stamp(const std::string& path) const
{
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!GetFileAttributesExW(Long(path).c_str(), GetFileExInfoStandard, &found)) return 0;
    std::uint64_t stamp = 1;
    for (const DWORD part : {found.nFileSizeHigh, found.nFileSizeLow, found.ftLastWriteTime.dwHighDateTime,
                             found.ftLastWriteTime.dwLowDateTime})
        stamp = stamp * 1'000'003 + part;
    return stamp;
}

void DiskFileSystem::SyncFile(const std::string& path)
{
    const Handle file(path, GENERIC_WRITE, kShareAll, OPEN_EXISTING);
    if (!file.IsOpen()) ThrowSystem(file.Failure(), path);
    if (!FlushFileBuffers(file.Get())) ThrowSystem(GetLastError(), path);
}

void DiskFileSystem::Rename(const std::string& from, const std::string& to)
{
    const std::wstring old = Long(from), target = Long(to);
    const DWORD failure = Patiently(kScannerPatience, [&] {
        return MoveFileExW(old.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
    if (failure != ERROR_SUCCESS) ThrowSystem(failure, to);
}

void DiskFileSystem::RenameToFree(const std::string& from, const std::string& to)
{
    if (!MoveFileExW(Long(from).c_str(), Long(to).c_str(), MOVEFILE_WRITE_THROUGH)) ThrowSystem(GetLastError(), to);
}

/// Renaming writes through: the folder is on the disk with the file.
void DiskFileSystem::SyncFolder(const std::string&) {}

void DiskFileSystem::Remove(const std::string& path) noexcept
try {
    DeleteFileW(Long(path).c_str());
} catch (const RuntimeError&) {
}

std::string DiskFileSystem::Target(const std::string& path) const
{
    if (!IsLink(path)) return path;
    const Handle file(path, 0, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (!file.IsOpen()) ThrowSystem(file.Failure(), path);
    std::wstring target(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    target.resize(
        GetFinalPathNameByHandleW(file.Get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED));
    return target.empty() ? path : WithoutLongMark(target);
}

}  // namespace terravane
