/// Making project files and brand stores: all tables with all their rows, since nothing is ever inserted
/// later.
#pragma once

#include <string>

#include "runtime/file_system.h"

namespace terravane {

/// A project file with its tables, seeded. The engine's error 3204 where the file exists; it stays as
/// it is.
void CreateProjectFile(FileSystem& files, const std::string& path);

/// The path of a folder's brand store, which is found whatever the case of its name. Where there is none, the two
/// differ in the name that is missed and the name that is given.
std::string BrandStoreToOpen(const FileSystem& files, const std::string& brandFolder);
std::string BrandStoreToCreate(const FileSystem& files, const std::string& brandFolder);

/// A brand store with an empty LOGO row and fifteen empty persons. Error 3204 where the file exists.
void CreateBrandStore(FileSystem& files, const std::string& path);

/// Puts what a new installation shows into the brand folder: an empty "logo.mdb" and three pictures. What is
/// there already stays as it is.
void WriteFirstContent(FileSystem& files, const std::string& brandFolder);

/// Puts the user guide that came with the program into the brand folder, also over the one of another version. A guide
/// that the laboratory made itself stays. Nothing happens where the program came without one, and nothing is told where
/// the folder takes none: the program works without its guide.
void WriteGuide(FileSystem& files, const std::string& source, const std::string& brandFolder);

}  // namespace terravane
