/// Which project files a run is about, and where their outputs go.
#pragma once

#include <string>
#include <vector>

#include "runtime/file_system.h"

namespace terravane {

/// path  of the file
/// stem  of its outputs' paths: folder and the file's name without ".mdb"
struct ProjectFile {
    std::string path, stem;
};

/// The files named and those below the folders named, links not followed; in the order of the arguments, a folder's
/// sorted by path; each once. Every ".mdb" counts but brand stores. What lies below a folder lies in the same
/// subfolder below outputFolder; without an output folder outputs go beside their project.
/// A path that leads nowhere stands in the list too: opening it says so.
std::vector<ProjectFile> ListProjects(const std::vector<std::string>& arguments, const std::string& outputFolder);

}  // namespace terravane
