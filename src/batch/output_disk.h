/// The disk as the outputs of a run need it.
#pragma once

#include <span>
#include <string>

#include "runtime/file_system.h"

namespace terravane {

/// Each output is synced before it appears, so that it is whole; that it has appeared need not survive a power cut,
/// since it can be made again. That halves the waiting for the disk.
///
/// A folder of outputs may be shared with strangers: an output takes the place of a link that stands under its name,
/// and what the link leads to stays as it is.
class OutputDisk : public DiskFileSystem {
  public:
    std::string Target(const std::string& path) const override { return path; }

  protected:
    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) override;
    void SyncFolder(const std::string&) override {}
};

/// Error 75, with the folder's name, where `folder` or one between it and `top` is a link. `top` itself, which the user
/// named, may be one; an empty `top` and folders elsewhere are let through.
void RefuseLinksBelow(const FileSystem& files, const std::string& top, const std::string& folder);

}  // namespace terravane
