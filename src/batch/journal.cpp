#include "batch/journal.h"

#include <set>

#include <nlohmann/json.hpp>

#include "batch/entry_json.h"
#include "runtime/streams.h"

namespace terravane {

namespace {

constexpr std::string_view kJournal = ".terravane-report.journal";

using Entries = std::map<std::string, JournalEntry>;

/// Takes one line in; what is no line of a journal is passed over.
void TakeLine(Entries& entries, const std::string& folder, std::string_view line)
{
    const Json read = Json::parse(line, nullptr, false);
    if (!read.is_object() || !read.contains("project")) return;
    try {
        JournalEntry entry = read.get<JournalEntry>();
        for (Output& output : entry.outputs) output.path = folder + output.path;
        entries[folder + read.at("project").get<std::string>()] = std::move(entry);
    } catch (const Json::exception&) {
    }
}

void TakeJournal(Entries& entries, const std::string& folder, const Bytes& content)
{
    std::string_view text(reinterpret_cast<const char*>(content.data()), content.size());
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        TakeLine(entries, folder, text.substr(0, end));
        text.remove_prefix(end + 1);
    }
}

/// A stranger may have put a link or a pipe under the journal's name.
bool IsOurs(const FileSystem& disk, const std::string& path)
{
    return IsFile(path) && !disk.IsLink(path);
}

}  // namespace

std::string JournalPath(const ProjectFile& project)
{
    return FolderOf(project.stem).append(kJournal);
}

std::map<std::string, JournalEntry> ReadJournals(const FileSystem& disk, const std::vector<ProjectFile>& projects)
{
    Entries all;
    std::set<std::string> read;
    for (const ProjectFile& project : projects) {
        const std::string path = JournalPath(project);
        if (read.insert(path).second && IsOurs(disk, path)) TakeJournal(all, FolderOf(path), disk.Read(path));
    }
    Entries listed;
    for (const ProjectFile& project : projects) {
        if (const auto found = all.find(project.stem); found != all.end()) listed.insert(*found);
    }
    return listed;
}

void AddToJournal(const FileSystem& disk, const ProjectFile& project, const JournalEntry& entry)
{
    JournalEntry kept = entry;
    for (Output& output : kept.outputs) output.path = NameOf(output.path);
    Json line = kept;
    line["project"] = NameOf(project.stem);
    const std::string text = line.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
    const std::string path = JournalPath(project);
    if (disk.IsLink(path)) RemoveAll(path);
    if (!disk.Exists(path) || IsOurs(disk, path))
        OpenToAdd(path).write(text.data(), static_cast<std::streamsize>(text.size()));
}

}  // namespace terravane
