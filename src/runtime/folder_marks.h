/// What separates the folders of a path on the machine's own system.
#pragma once

#include <string_view>

namespace terravane {

/// The characters that do, the system's own first.
extern const std::string_view kFolderMarks;

}  // namespace terravane
