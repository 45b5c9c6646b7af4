/// Another hand in the same file: what the sheet knows of its project, and what others made of it since.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/connection.h"
#include "journal/file_texts.h"
#include "runtime/file_system.h"

namespace terravane {

class OthersWatch {
  public:
    explicit OthersWatch(FileSystem& files) : files_(files) {}

    /// The sheet shows what the file holds now.
    void Begin(const std::string& project);
    void End() { *this = OthersWatch(files_); }

    /// What others changed since the last look; asks for the file's stamp alone where nothing was written. Empty where
    /// the file can't be read.
    std::vector<TextDifference> Look();

    /// To be called with every save of the project: what others had saved, and the save replaced by something else.
    /// From here on the sheet knows what was saved.
    std::vector<TextDifference> Saved(const jet::SavedFile& saved);

  private:
    OthersWatch& operator=(OthersWatch&& other) noexcept
    {
        project_ = std::move(other.project_);
        known_ = std::move(other.known_);
        seen_ = std::move(other.seen_);
        stamp_ = other.stamp_;
        return *this;
    }

    FileSystem& files_;
    std::string project_;
    Bytes known_;  // the file as the sheet knows it
    Bytes seen_;   // as it was looked at last
    std::uint64_t stamp_ = 0;
};

}  // namespace terravane
