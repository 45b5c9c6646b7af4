#include "batch/project_list.h"

#include <algorithm>
#include <set>

#include "runtime/file_system.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr std::string_view kExtension = ".mdb";
constexpr std::string_view kBrandStore = "logo.mdb";

bool HasExtension(const std::string& path)
{
    return SameName(ExtensionOf(path), kExtension);
}

bool IsProject(const std::string& path)
{
    return HasExtension(path) && !SameName(NameOf(path), kBrandStore);
}

class Collector {
  public:
    explicit Collector(const std::string& outputFolder) : outputFolder_(outputFolder) {}

    /// A project below the folder that was named, "" for one that was named itself.
    void Add(const std::string& path, const std::string& below)
    {
        if (!seen_.insert(RealPath(path)).second) return;
        const std::string output = outputFolder_.empty() ? path
                                   : below.empty()       ? WithMark(outputFolder_) + NameOf(path)
                                                         : Moved(path, below, outputFolder_);
        projects_.push_back({path, HasExtension(output) ? WithoutExtension(output) : output});
    }

    std::vector<ProjectFile> Take() { return std::move(projects_); }

  private:
    std::string outputFolder_;
    std::set<std::string> seen_;
    std::vector<ProjectFile> projects_;
};

}  // namespace

std::vector<ProjectFile> ListProjects(const std::vector<std::string>& arguments, const std::string& outputFolder)
{
    const DiskFileSystem disk;
    Collector collector(outputFolder);
    for (const std::string& argument : arguments) {
        if (argument.empty() || !disk.IsFolder(argument)) {
            collector.Add(argument, "");
            continue;
        }
        for (const std::string& file : FilesBelow(argument)) {
            if (IsProject(file)) collector.Add(file, argument);
        }
    }
    return collector.Take();
}

}  // namespace terravane
