/// Where the program keeps its own files, as paths. Reads no disk.
#pragma once

#include <string>
#include <string_view>

#include "runtime/paths.h"

namespace terravane {

/// The brand store's folder in the program's own, with its mark at the end.
inline std::string BrandFolderIn(const std::string& programFolder)
{
    return WithMark(WithMark(programFolder) + "BrandList");
}

/// The user guide's name in the brand folder.
inline constexpr std::string_view kGuideFile = "UserGuide.pdf";

}  // namespace terravane
