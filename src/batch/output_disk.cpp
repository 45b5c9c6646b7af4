#include "batch/output_disk.h"

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

/// A link has no mode that would be kept, nor has a file behind it a say.
void OutputDisk::WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like)
{
    DiskFileSystem::WriteNew(path, content, IsLink(like) ? "" : like);
}

void RefuseLinksBelow(const FileSystem& files, const std::string& top, const std::string& folder)
{
    if (top.empty()) return;
    const std::string start = WithMark(FullPath(top));
    std::string below = WithMark(FullPath(folder));
    for (; below.starts_with(start) && below != start; below = FolderOf(WithoutMark(below))) {
        const std::string link = WithoutMark(below);
        if (!files.IsLink(link)) continue;
        throw RuntimeError(error::kPathFileAccess, "The folder '" + Printable(link) +
                                                       "' is a link. With --follow-links outputs go where it leads.");
    }
}

}  // namespace terravane
