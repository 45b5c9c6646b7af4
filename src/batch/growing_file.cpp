#include "batch/growing_file.h"

#include "runtime/paths.h"
#include "runtime/runtime_error.h"

namespace terravane {

GrowingFile::GrowingFile(std::string path) : path_(std::move(path))
{
    if (!IsWanted()) return;
    part_ = path_ + ".part";
    file_ = OpenNew(part_);
    if (!file_) throw RuntimeError(error::kPathFileAccess, "Could not write '" + path_ + "'.");
}

GrowingFile::~GrowingFile()
{
    file_.close();  // an open file can't be taken away everywhere
    if (!part_.empty()) RemoveAll(part_);
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
    if (!file_ || !MoveOver(part_, path_)) throw RuntimeError(error::kDeviceError, "Could not write '" + path_ + "'.");
    part_.clear();
}

}  // namespace terravane
