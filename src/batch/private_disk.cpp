#include "batch/private_disk.h"

#include "batch/sha256.h"
#include "program/folders.h"
#include "runtime/runtime_error.h"
#include "store/new_stores.h"

namespace terravane {

namespace {

bool Begins(const std::map<std::string, Bytes>& files, const std::string& folder)
{
    const auto first = files.lower_bound(folder);
    return first != files.end() && first->first.starts_with(folder);
}

void AddNames(std::vector<std::string>& names, const std::map<std::string, Bytes>& files, const std::string& folder)
{
    for (auto file = files.lower_bound(folder); file != files.end() && file->first.starts_with(folder); ++file) {
        if (FolderOf(file->first) == folder) names.push_back(NameOf(file->first));
    }
}

}  // namespace

Brand ReadBrand(const FileSystem& disk, std::string folder)
{
    Brand brand{WithMark(std::move(folder)), {}, {}};
    for (const std::string& name : disk.Names(brand.folder)) {
        const std::string path = brand.folder + name;
        if (!disk.IsFolder(path)) brand.files[path] = disk.Read(path);
    }
    for (const auto& [path, content] : brand.files) brand.digest += NameOf(path) + ' ' + Sha256(content) + ' ';
    return brand;
}

Brand FirstBrand()
{
    Brand brand{"BrandList/", {}, "first content"};
    const Brand none;
    PrivateDisk disk(none);
    WriteFirstContent(disk, brand.folder);
    for (const std::string& name : disk.Names(brand.folder)) {
        brand.files[brand.folder + name] = disk.Read(brand.folder + name);
    }
    return brand;
}

const Bytes* PrivateDisk::Find(const std::string& path) const
{
    for (const auto* files : {&files_, &brand_->files}) {
        if (const auto found = files->find(path); found != files->end()) return &found->second;
    }
    return nullptr;
}

bool PrivateDisk::IsFolder(const std::string& path) const
{
    const std::string folder = WithMark(path);
    return folders_.contains(folder) || Begins(files_, folder) || Begins(brand_->files, folder);
}

void PrivateDisk::MakeFolders(const std::string& path)
{
    folders_.insert(WithMark(path));
}

std::vector<std::string> PrivateDisk::Names(const std::string& folder) const
{
    std::vector<std::string> names;
    AddNames(names, files_, WithMark(folder));
    AddNames(names, brand_->files, WithMark(folder));
    return names;
}

const Bytes& PrivateDisk::Known(const std::string& path) const
{
    if (const Bytes* content = Find(path)) return *content;
    throw RuntimeError(error::kFileNotFound, "Could not find file '" + path + "'.");
}

void PrivateDisk::WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string&)
{
    files_[path] = Bytes(content.begin(), content.end());
}

void PrivateDisk::Rename(const std::string& from, const std::string& to)
{
    files_[to] = std::move(files_[from]);
    files_.erase(from);
}

}  // namespace terravane
