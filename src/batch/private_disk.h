/// The disk of one project's program, all of it in memory: the project's private copy and the laboratory's brand
/// folder. Nothing that a form writes reaches a real disk.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "runtime/file_system.h"

namespace terravane {

/// The names, persons and pictures that head the reports, read once for all projects.
/// folder  with a mark at its end
/// files   by their whole path
/// digest  the same for the same content
struct Brand {
    std::string folder;
    std::map<std::string, Bytes> files;
    std::string digest;
};

/// The brand folder as it stands; a file error where it can't be read.
Brand ReadBrand(const FileSystem& disk, std::string folder);
/// What a new installation starts with.
Brand FirstBrand();

class PrivateDisk : public FileSystem {
  public:
    /// The brand has to outlive the disk.
    explicit PrivateDisk(const Brand& brand) : brand_(&brand) {}
    PrivateDisk(const Brand& brand, const std::string& project, Bytes content) : brand_(&brand)
    {
        files_[project] = std::move(content);
    }

    const Bytes& Content(const std::string& path) const { return files_.at(path); }

    bool Exists(const std::string& path) const override { return Find(path) || IsFolder(path); }
    bool IsFolder(const std::string& path) const override;
    bool IsWritableFolder(const std::string& path) const override { return IsFolder(path); }
    std::vector<std::string> Names(const std::string& folder) const override;
    void MakeFolders(const std::string& path) override;
    Bytes Read(const std::string& path) const override { return Known(path); }

  protected:
    std::uint64_t SizeOf(const std::string& path) const override { return Known(path).size(); }
    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) override;
    void SyncFile(const std::string&) override {}
    void Rename(const std::string& from, const std::string& to) override;
    void SyncFolder(const std::string&) override {}
    void Remove(const std::string& path) noexcept override { files_.erase(path); }

  private:
    const Bytes* Find(const std::string& path) const;
    const Bytes& Known(const std::string& path) const;

    const Brand* brand_;
    std::map<std::string, Bytes> files_;  // before the brand's of the same path
    std::set<std::string> folders_;       // made, and perhaps empty
};

}  // namespace terravane
