/// Files of the machine's own disk that are read and written bit by bit, by their paths in UTF-8. Bytes are what they
/// are: no line end is turned into another.
#pragma once

#include <fstream>
#include <string>

namespace terravane {

std::ifstream OpenToRead(const std::string& path);

/// A new file in place of an old one.
std::ofstream OpenNew(const std::string& path);

/// What is written comes behind what is there, each text in one write, also where several processes add to one file.
std::ofstream OpenToAdd(const std::string& path);

}  // namespace terravane
