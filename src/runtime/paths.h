/// Paths as the program holds them: texts in UTF-8, with the marks of the machine's own system between the folders. The
/// one place that turns them into what the standard library wants, so that no letter is lost on a system whose file
/// names are no bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace terravane {

/// Whether a character separates folders here: '/', and on Windows '\' as well.
bool IsFolderMark(char character);

/// The mark that a path is written with; the system's own where it has none. What is put behind a path takes it, so
/// that a path looks like one.
char FolderMarkOf(std::string_view path);

/// The folder of a path with its mark at the end ("" for a bare name), and the name behind it.
std::string FolderOf(std::string_view path);
std::string NameOf(std::string_view path);

/// The path of a folder with the mark at its end, and without; a root keeps it.
std::string WithMark(std::string folder);
std::string WithoutMark(std::string folder);

/// As the program holds a path and the pages show it: from the root, without "." and "..", with the system's own marks.
/// A path that can't be completed comes back unchanged.
std::string FullPath(const std::string& path);

/// The same file for every way of writing it: links followed as far as they lead.
std::string RealPath(const std::string& path);

/// "Road.mdb" is ".mdb", and "Road" without it.
std::string ExtensionOf(const std::string& path);
std::string WithoutExtension(const std::string& path);

/// A path below `folder` as it stands below `other`.
std::string Moved(const std::string& path, const std::string& folder, const std::string& other);

/// Every file below a folder, in the order of the paths. A folder that can't be entered is passed over.
std::vector<std::string> FilesBelow(const std::string& folder);

/// A file of data, or a link that leads to one: no folder, device or pipe.
bool IsFile(const std::string& path);

/// Puts a file in another's place; false where that failed.
bool MoveOver(const std::string& from, const std::string& to);

/// Takes away a file, or a folder with all that it holds. What can't be taken away stays.
void RemoveAll(const std::string& path);

}  // namespace terravane
