/// What the options --history and --diff list: the changes of a project, and what is different in two.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "runtime/file_system.h"

namespace terravane {

enum class ListFormat { Text, Csv, JsonLines };

/// A line a change, oldest first. Returns the exit status: 1 where a line does not fit, each of them told on
/// `complaints`. RuntimeError where there is no history or it can't be read.
int ListHistory(const FileSystem& files, const std::string& project, ListFormat format, std::ostream& out,
                std::ostream& complaints);

/// A line a text that is different. A state is a project file, "road.mdb", or one as it stood: "road.mdb@2026-11-21"
/// and "road.mdb@2026-11-21T14:02" at the end of that day or minute, "road.mdb@12" after the twelfth line of its
/// history. RuntimeError where one can't be read or has no such state. Returns 0.
int ListDifferences(const FileSystem& files, const std::string& before, const std::string& after, ListFormat format,
                    std::ostream& out);

}  // namespace terravane
