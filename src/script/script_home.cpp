#include "script/script_home.h"

#include <filesystem>

#include <stdlib.h>

#include "program/program.h"
#include "script/script_surroundings.h"
#include "store/new_stores.h"

namespace terravane {

namespace {

std::string MakePrivateFolder()
{
    std::string path = (std::filesystem::temp_directory_path() / "terravane-script-XXXXXX").string();
    if (!mkdtemp(path.data())) {
        throw RuntimeError(error::kPathFileAccess, "No private folder can be made at '" + path + "'.");
    }
    return path;
}

std::string WithoutMark(std::string path)
{
    if (path.size() > 1 && path.ends_with(kFolderMark)) path.pop_back();
    return path;
}

}  // namespace

ScriptHome::ScriptHome(FileSystem& files, const std::string& named)
    : path_(named.empty() ? MakePrivateFolder() : WithoutMark(FullPath(named))), isPrivate_(named.empty())
{
    const std::string brand = BrandFolderIn(path_);
    if (!files.IsFolder(brand)) WriteFirstContent(files, brand);
}

ScriptHome::~ScriptHome()
{
    std::error_code ignored;
    if (isPrivate_) std::filesystem::remove_all(path_, ignored);
}

}  // namespace terravane
