#include "runtime/memory_file_system.h"

#include <cstddef>
#include <utility>

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

/// The folder's path as its files' paths begin.
std::string Beginning(const std::string& folder)
{
    return folder.empty() ? folder : WithMark(folder);
}

std::shared_ptr<const Bytes> Kept(std::span<const std::uint8_t> content)
{
    return std::make_shared<const Bytes>(content.begin(), content.end());
}

/// Counts itself as long as it lives.
class HeldLock : public FileLock {
  public:
    using Held = std::shared_ptr<std::multiset<std::string>>;

    HeldLock(Held held, std::string path) : held_(std::move(held)), path_(std::move(path)) { held_->insert(path_); }
    ~HeldLock() override { held_->erase(held_->find(path_)); }

  private:
    Held held_;
    std::string path_;
};

}  // namespace

void MemoryFileSystem::Put(const std::string& path, Bytes content)
{
    MakeFolders(FolderOf(path));
    files_[path] = std::make_shared<const Bytes>(std::move(content));
    Changed(path);
}

void MemoryFileSystem::Append(const std::string& path, std::span<const std::uint8_t> content)
{
    const auto add = [&](std::span<const std::uint8_t> added) {
        Bytes whole = Content(path);
        whole.insert(whole.end(), added.begin(), added.end());
        files_[path] = std::make_shared<const Bytes>(std::move(whole));
        Changed(path);
    };
    if (!IsFolder(FolderOf(path)))
        throw RuntimeError(error::kPathNotFound, "Could not find the folder of '" + Printable(path) + "'.");
    try {
        Take({SaveStep::Kind::Append, path, {}, content});
    } catch (...) {
        add(content.first(content.size() / 2));
        throw;
    }
    add(content);
}

bool MemoryFileSystem::IsLocked(const std::string& path) const
{
    return lockedElsewhere_.contains(path) || locks_.held->contains(path);
}

std::uint64_t MemoryFileSystem::Stamp(const std::string& path) const
{
    const auto found = stamps_.find(path);
    return files_.contains(path) && found != stamps_.end() ? found->second : 0;
}

void MemoryFileSystem::Remove(const std::string& path) noexcept
{
    files_.erase(path);
}

const Bytes& MemoryFileSystem::Content(const std::string& path) const
{
    static const Bytes kNone;
    const auto file = files_.find(path);
    return file == files_.end() ? kNone : *file->second;
}

std::vector<std::string> MemoryFileSystem::Paths() const
{
    std::vector<std::string> paths;
    for (const auto& [path, content] : files_) paths.push_back(path);
    return paths;
}

void MemoryFileSystem::FailAtStep(int step, int errorNumber)
{
    failAt_ = steps_ + step;
    failWith_ = errorNumber;
}

bool MemoryFileSystem::IsFolder(const std::string& path) const
{
    return path.empty() || folders_.contains(Beginning(path));
}

std::vector<std::string> MemoryFileSystem::Names(const std::string& folder) const
{
    const std::string beginning = Beginning(folder);
    std::vector<std::string> names;
    for (auto file = files_.lower_bound(beginning); file != files_.end() && file->first.starts_with(beginning); ++file)
        if (FolderOf(file->first) == beginning) names.push_back(NameOf(file->first));
    return names;
}

void MemoryFileSystem::MakeFolders(const std::string& path)
{
    const std::string whole = Beginning(path);
    for (std::size_t end = 1; end <= whole.size(); ++end)
        if (IsFolderMark(whole[end - 1])) folders_.insert(whole.substr(0, end));
}

Bytes MemoryFileSystem::Read(const std::string& path) const
{
    ++reads_;
    return Known(path);
}

const Bytes& MemoryFileSystem::Known(const std::string& path) const
{
    const auto file = files_.find(path);
    if (file == files_.end())
        throw RuntimeError(error::kFileNotFound, "Could not find file '" + Printable(path) + "'.");
    return *file->second;
}

std::unique_ptr<FileLock> MemoryFileSystem::TakeLock(const std::string& path)
{
    Known(path);
    if (lockedElsewhere_.contains(path)) {
        throw RuntimeError(error::kPermissionDenied,
                           "Could not save '" + Printable(path) + "': another program is saving it; try again.");
    }
    auto lock = std::make_unique<HeldLock>(locks_.held, path);
    if (whenLocked) whenLocked();
    return lock;
}

void MemoryFileSystem::Take(const SaveStep& step)
{
    if (++steps_ == failAt_) throw RuntimeError(failWith_, "Could not write '" + Printable(step.path) + "'.");
    if (atStep) atStep(step);
}

void MemoryFileSystem::WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string&)
try {
    Take({SaveStep::Kind::Write, path, {}, content});
    files_[path] = Kept(content);
    Changed(path);
} catch (...) {
    files_[path] = Kept(content.first(content.size() / 2));
    throw;
}

void MemoryFileSystem::SyncFile(const std::string& path)
{
    Take({SaveStep::Kind::SyncFile, path});
}

void MemoryFileSystem::Rename(const std::string& from, const std::string& to)
{
    Take({SaveStep::Kind::Rename, from, to});
    Known(from);
    files_[to] = std::move(files_[from]);
    files_.erase(from);
    Changed(to);
}

void MemoryFileSystem::SyncFolder(const std::string& folder)
{
    Take({SaveStep::Kind::SyncFolder, folder});
}

}  // namespace terravane
