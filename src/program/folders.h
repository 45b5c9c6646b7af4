/// Where the program keeps its own files, as paths. Reads no disk.
#pragma once

#include <string>
#include <string_view>

namespace terravane {

/// What separates the folders of a path.
inline constexpr char kFolderMark = '/';

/// A folder's path with the mark at its end.
inline std::string WithMark(std::string folder)
{
    if (!folder.ends_with(kFolderMark)) folder += kFolderMark;
    return folder;
}

/// The brand store's folder in the program's own, with its mark at the end.
inline std::string BrandFolderIn(const std::string& programFolder)
{
    return WithMark(programFolder) + "BrandList" + kFolderMark;
}

/// The user guide's name in the brand folder.
inline constexpr std::string_view kGuideFile = "UserGuide.pdf";

}  // namespace terravane
