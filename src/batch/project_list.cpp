#include "batch/project_list.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "runtime/text.h"

namespace terravane {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".mdb";
constexpr std::string_view kBrandStore = "logo.mdb";

bool IsProject(const fs::path& path)
{
    return SameName(path.extension().string(), kExtension) && !SameName(path.filename().string(), kBrandStore);
}

/// What lies below a folder and can be read; a folder that can't be entered is passed over.
std::vector<fs::path> FilesBelow(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code failure;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(folder, options, failure), end; entry != end && !failure;
         entry.increment(failure)) {
        std::error_code ignored;
        if (!entry->is_directory(ignored) && IsProject(entry->path())) files.push_back(entry->path());
    }
    std::ranges::sort(files);
    return files;
}

std::string StemOf(const fs::path& path)
{
    fs::path stem = path;
    if (SameName(path.extension().string(), kExtension)) stem.replace_extension();
    return stem.string();
}

class Collector {
  public:
    explicit Collector(const std::string& outputFolder) : outputFolder_(outputFolder) {}

    void Add(const fs::path& path, const fs::path& below)
    {
        std::error_code failure;
        const fs::path real = fs::weakly_canonical(path, failure);
        if (!seen_.insert(failure ? path : real).second) return;
        const fs::path output = outputFolder_.empty() ? path : outputFolder_ / path.lexically_relative(below);
        projects_.push_back({path.string(), StemOf(output)});
    }

    std::vector<ProjectFile> Take() { return std::move(projects_); }

  private:
    fs::path outputFolder_;
    std::set<fs::path> seen_;
    std::vector<ProjectFile> projects_;
};

}  // namespace

std::vector<ProjectFile> ListProjects(const std::vector<std::string>& arguments, const std::string& outputFolder)
{
    Collector collector(outputFolder);
    for (const fs::path argument : arguments) {
        std::error_code failure;
        if (!fs::is_directory(argument, failure)) {
            collector.Add(argument, argument.parent_path());
            continue;
        }
        for (const fs::path& file : FilesBelow(argument)) collector.Add(file, argument);
    }
    return collector.Take();
}

}  // namespace terravane
