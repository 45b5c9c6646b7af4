/// The laboratory's brand folder, read once for all projects of a run.
#pragma once

#include <string>

#include "runtime/file_system.h"
#include "runtime/memory_file_system.h"

namespace terravane {

/// The names, persons and pictures that head the reports.
/// folder  with a mark at its end
/// disk    holds its files, the settings beside it and nothing else: what a project's program starts with
/// digest  the same for the same content
struct Brand {
    std::string folder;
    MemoryFileSystem disk;
    std::string digest;
};

/// The brand folder as it stands; a file error where it can't be read.
Brand ReadBrand(const FileSystem& disk, std::string folder);
/// What a new installation starts with.
Brand FirstBrand();

}  // namespace terravane
