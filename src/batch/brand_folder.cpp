#include "batch/brand_folder.h"

#include <utility>

#include "journal/sha256.h"
#include "notes/settings.h"
#include "program/folders.h"
#include "runtime/paths.h"
#include "store/new_stores.h"

namespace terravane {

Brand ReadBrand(const FileSystem& disk, std::string folder)
{
    Brand brand{WithMark(std::move(folder)), {}, {}};
    for (const std::string& name : disk.Names(brand.folder)) {
        const std::string path = brand.folder + name;
        if (!disk.IsFolder(path)) brand.disk.Put(path, disk.Read(path));
    }
    for (const std::string& path : brand.disk.Paths())
        brand.digest += NameOf(path) + ' ' + Sha256(brand.disk.Content(path)) + ' ';
    const std::string settings = notes::SettingsPath(brand.folder);  // no page depends on it
    if (IsFile(settings)) brand.disk.Put(settings, disk.Read(settings));
    return brand;
}

Brand FirstBrand()
{
    Brand brand{"BrandList/", {}, "first content"};
    WriteFirstContent(brand.disk, brand.folder);
    return brand;
}

}  // namespace terravane
