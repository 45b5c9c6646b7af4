/// Pages on paper: PDF files, and printers that take the same pages.
#pragma once

#include <span>
#include <string>

#include "drawing/display_list.h"
#include "runtime/file_system.h"

class QPagedPaintDevice;

namespace terravane {

/// Prints one list a page on a device, edge to edge of the paper: each page has its list's size, landscape
/// where it is wider than high. Error 482 where the device can't be drawn on and where there is no page.
void PrintPages(QPagedPaintDevice& device, std::span<const DisplayList> pages);

/// The pages as a PDF file with its fonts in it, lines and letters as vectors. The file is made in memory and
/// put in place whole. Errors: 482 as above and for a missing font, and those of the file system.
void WritePdf(FileSystem& files, const std::string& path, std::span<const DisplayList> pages, const std::string& title);

}  // namespace terravane
