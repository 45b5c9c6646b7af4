#include "script/script_home.h"

#include "program/program.h"
#include "runtime/machine.h"
#include "runtime/paths.h"
#include "store/new_stores.h"

namespace terravane {

ScriptHome::ScriptHome(FileSystem& files, const std::string& named)
    : path_(named.empty() ? MakePrivateFolder("terravane-script") : WithoutMark(FullPath(named))),
      isPrivate_(named.empty())
{
    const std::string brand = BrandFolderIn(path_);
    if (!files.IsFolder(brand)) WriteFirstContent(files, brand);
}

ScriptHome::~ScriptHome()
{
    if (isPrivate_) RemoveAll(path_);
}

}  // namespace terravane
