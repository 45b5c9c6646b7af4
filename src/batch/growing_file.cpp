#include "batch/growing_file.h"

#include <filesystem>

#include "runtime/runtime_error.h"

namespace terravane {

GrowingFile::GrowingFile(std::string path) : path_(std::move(path))
{
    if (!IsWanted()) return;
    part_ = path_ + ".part";
    file_.open(part_, std::ios::binary | std::ios::trunc);
    if (!file_) throw RuntimeError(error::kPathFileAccess, "Could not write '" + path_ + "'.");
}

GrowingFile::~GrowingFile()
{
    std::error_code ignored;
    if (!part_.empty()) std::filesystem::remove(part_, ignored);
}

void GrowingFile::Add(std::string_view text)
{
    if (!IsWanted()) return;
    file_.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!file_) throw RuntimeError(error::kDeviceError, "Could not write '" + path_ + "'.");
}

void GrowingFile::Finish()
{
    if (!IsWanted()) return;
    file_.close();
    std::error_code failure;
    if (file_) std::filesystem::rename(part_, path_, failure);
    if (!file_ || failure) throw RuntimeError(error::kDeviceError, "Could not write '" + path_ + "'.");
    part_.clear();
}

}  // namespace terravane
