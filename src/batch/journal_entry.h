/// What a run made of one project.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace terravane {

/// A file made; its path as it is reached from here.
struct Output {
    std::string path;
    std::size_t pages = 0, bytes = 0;
    std::string sha256;
    bool operator==(const Output&) const = default;
};

/// content  of the project file as it stood when its outputs had been made
/// made     what they were made with: options, brand folder, and the path that their pages name
/// today    the date that the forms saw
struct JournalEntry {
    std::string content, made, today;
    std::vector<Output> outputs;
};

}  // namespace terravane
