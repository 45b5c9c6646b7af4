/// A surface as a picture file.
#pragma once

#include <QImage>
#include <string>

#include "drawing/display_list.h"
#include "runtime/file_system.h"

namespace terravane {

/// The list on a white ground; 100 percent is 96 dots an inch, 15 twips a pixel, and a pixel that is begun
/// counts. Error 5 "Invalid procedure call or argument" for a percentage that leaves no pixel or more than
/// 200 million.
QImage PaintImage(const DisplayList& list, double percent);

/// The same as a PNG file, put in place whole. Errors: also 482 for a missing font, and those of the file
/// system.
void WritePng(FileSystem& files, const std::string& path, const DisplayList& list, double percent);

}  // namespace terravane
