#include "runtime/file_system.h"

#include <algorithm>
#include <atomic>
#include <functional>

#include "runtime/machine.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {
namespace {

constexpr std::uint64_t kMebibyte = 1 << 20;
constexpr std::size_t kNameCharactersKept = 40;  // a temporary name must not outgrow what a folder takes

/// A long name cut, with a number that tells it from others of the same beginning.
std::string Shortened(const std::string& name)
{
    if (name.size() <= kNameCharactersKept) return name;
    return std::string(Left(name, kNameCharactersKept)) + "~" + std::to_string(std::hash<std::string>{}(name));
}

/// ".Road 7.mdb.saving-"
std::string TemporaryStart(const std::string& name)
{
    return "." + Shortened(name) + ".saving-";
}

/// A name that no other process and no other thread uses: ".Road 7.mdb.saving-4711-2".
std::string TemporaryBeside(const std::string& path)
{
    static std::atomic<unsigned> count = 0;
    return FolderOf(path) + TemporaryStart(NameOf(path)) + std::to_string(ProcessNumber()) + "-" +
           std::to_string(++count);
}

/// The same failure, told of the file that the user knows.
RuntimeError Renamed(const RuntimeError& failure, const std::string& temporary, const std::string& target)
{
    std::string description = failure.Description();
    const std::string told = Printable(temporary);
    if (const std::size_t at = description.find(told); at != std::string::npos)
        description.replace(at, told.size(), Printable(target));
    return {failure.Number(), description};
}

std::string Join(const std::string& folder, std::string_view name)
{
    return (folder.empty() ? folder : WithMark(folder)) + std::string(name);
}

}  // namespace

Bytes FileSystem::ReadAtMost(const std::string& path, std::uint64_t largest) const
{
    if (SizeOf(path) > largest) {
        throw RuntimeError(error::kPathFileAccess, "Could not read '" + Printable(path) + "': it is larger than " +
                                                       std::to_string(largest / kMebibyte) + " MiB.");
    }
    return Read(path);
}

std::unique_ptr<FileLock> FileSystem::Lock(const std::string& path)
{
    const std::string target = Target(path);
    auto lock = TakeLock(target);
    if (lock) RemoveLeftovers(target);
    return lock;
}

/// Who holds the lock knows that no save of the file is under way: a temporary file beside it is a killed one's. One
/// that can't be taken away harms nobody.
void FileSystem::RemoveLeftovers(const std::string& target)
try {
    const std::string start = TemporaryStart(NameOf(target));
    for (const std::string& name : Names(FolderOf(target))) {
        if (name.starts_with(start)) Remove(FolderOf(target) + name);
    }
} catch (const RuntimeError&) {
}

void FileSystem::ReplaceWhole(const std::string& path, std::span<const std::uint8_t> content)
{
    WriteWhole(Target(path), content, &FileSystem::Rename);
}

void FileSystem::CreateWhole(const std::string& path, std::span<const std::uint8_t> content)
{
    WriteWhole(path, content, &FileSystem::RenameToFree);
}

void FileSystem::WriteWhole(const std::string& target, std::span<const std::uint8_t> content, Step rename)
{
    const std::string temporary = TemporaryBeside(target);
    try {
        WriteNew(temporary, content, target);
        SyncFile(temporary);
        (this->*rename)(temporary, target);
    } catch (const RuntimeError& failure) {
        Remove(temporary);
        throw Renamed(failure, temporary, target);
    } catch (...) {
        Remove(temporary);
        throw;
    }
    SyncFolder(FolderOf(target));
}

void FileSystem::RenameToFree(const std::string& from, const std::string& to)
{
    if (Exists(to)) {
        throw RuntimeError(error::kPathFileAccess, "Could not make '" + Printable(to) + "': it is there already.");
    }
    Rename(from, to);
}

void FileSystem::MakeSure(const std::string& path)
{
    SyncFile(path);
    SyncFolder(FolderOf(path));
}

/// The lock comes before the reading, since the two may be one file.
void FileSystem::Copy(const std::string& source, const std::string& target)
{
    const auto lock = Exists(target) ? Lock(target) : nullptr;
    ReplaceWhole(target, Read(source));
}

std::string FindWithoutCase(const FileSystem& files, const std::string& folder, std::string_view name)
{
    std::string plain = Join(folder, name);
    if (files.Exists(plain) || !files.IsFolder(folder)) return plain;
    std::vector<std::string> names = files.Names(folder);
    std::ranges::sort(names);  // of several that differ by case alone always the same one
    const auto found = std::ranges::find_if(names, [&](const std::string& n) { return SameName(n, name); });
    return found == names.end() ? plain : Join(folder, *found);
}

}  // namespace terravane
