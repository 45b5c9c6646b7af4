#include "runtime/file_system.h"

#include <algorithm>
#include <atomic>

#include <unistd.h>

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {
namespace {

constexpr char kMark = '/';
constexpr std::size_t kNameCharactersKept = 40;  // a temporary name must not outgrow what a folder takes

std::size_t NameStart(std::string_view path)
{
    const std::size_t mark = path.rfind(kMark);
    return mark == std::string_view::npos ? 0 : mark + 1;
}

/// A name that no other process and no other thread uses: ".Road 7.mdb.saving-4711-2".
std::string TemporaryBeside(const std::string& path)
{
    static std::atomic<unsigned> count = 0;
    return FolderOf(path) + "." + std::string(Left(NameOf(path), kNameCharactersKept)) + ".saving-" +
           std::to_string(getpid()) + "-" + std::to_string(++count);
}

/// The same failure, told of the file that the user knows.
RuntimeError Renamed(const RuntimeError& failure, const std::string& temporary, const std::string& target)
{
    std::string description = failure.Description();
    if (const std::size_t at = description.find(temporary); at != std::string::npos) {
        description.replace(at, temporary.size(), target);
    }
    return {failure.Number(), description};
}

std::string Join(const std::string& folder, std::string_view name)
{
    const bool needsMark = !folder.empty() && folder.back() != kMark;
    return folder + (needsMark ? std::string(1, kMark) : "") + std::string(name);
}

}  // namespace

void FileSystem::ReplaceWhole(const std::string& path, std::span<const std::uint8_t> content)
{
    const std::string target = Target(path);
    const std::string temporary = TemporaryBeside(target);
    try {
        WriteNew(temporary, content, target);
        SyncFile(temporary);
        Rename(temporary, target);
    } catch (const RuntimeError& failure) {
        Remove(temporary);
        throw Renamed(failure, temporary, target);
    } catch (...) {
        Remove(temporary);
        throw;
    }
    SyncFolder(FolderOf(target));
}

void FileSystem::Copy(const std::string& source, const std::string& target)
{
    ReplaceWhole(target, Read(source));
}

std::string FolderOf(std::string_view path)
{
    return std::string(path.substr(0, NameStart(path)));
}

std::string NameOf(std::string_view path)
{
    return std::string(path.substr(NameStart(path)));
}

std::string FindWithoutCase(const FileSystem& files, const std::string& folder, std::string_view name)
{
    const std::string plain = Join(folder, name);
    if (files.Exists(plain) || !files.IsFolder(folder)) return plain;
    std::vector<std::string> names = files.Names(folder);
    std::ranges::sort(names);  // of several that differ by case alone always the same one
    const auto found = std::ranges::find_if(names, [&](const std::string& n) { return SameName(n, name); });
    return found == names.end() ? plain : Join(folder, *found);
}

}  // namespace terravane
