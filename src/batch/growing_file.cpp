#include "batch/growing_file.h"

#include "runtime/file_system.h"
#include "runtime/paths.h"
#include "runtime/text.h"

namespace terravane {

GrowingFile::GrowingFile(std::string path) : path_(std::move(path))
{
    if (!IsWanted()) return;
    target_ = DiskFileSystem().Target(path_);
    const bool isThere = DiskFileSystem().Exists(target_);
    if (isThere && !IsFile(target_)) throw Failure(error::kPathFileAccess);
    part_ = target_ + ".part";
    if (DiskFileSystem().IsLink(part_) || IsFile(part_)) RemoveAll(part_);  // of a run that was killed
    file_ = OpenNew(part_);
    if (!file_) throw Failure(error::kPathFileAccess);
}

GrowingFile::~GrowingFile()
{
    file_.close();  // an open file can't be taken away everywhere
    if (!part_.empty()) RemoveAll(part_);
}

RuntimeError GrowingFile::Failure(int number) const
{
    return {number, "Could not write '" + Printable(path_) + "'."};
}

void GrowingFile::Add(std::string_view text)
{
    if (!IsWanted()) return;
    file_.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!file_) throw Failure(error::kDeviceError);
}

void GrowingFile::Finish()
{
    if (!IsWanted()) return;
    file_.close();
    if (!file_ || !MoveOver(part_, target_)) throw Failure(error::kDeviceError);
    part_.clear();
}

}  // namespace terravane
