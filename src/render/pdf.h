/// Pages on paper: PDF files, and printers that take the same pages.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "drawing/display_list.h"
#include "runtime/dates.h"
#include "runtime/file_system.h"

class QPagedPaintDevice;

namespace terravane {

/// Prints one list a page on a device, edge to edge of the paper: each page has its list's size, landscape
/// where it is wider than high. Error 482 where the device can't be drawn on and where there is no page.
void PrintPages(QPagedPaintDevice& device, std::span<const DisplayList> pages);

/// A place to go to in a document of many pages, shown as a bookmark.
/// firstPage  counted from 0
struct PdfSection {
    std::string title;
    std::size_t firstPage = 0;
};

/// What a document says of itself.
/// created   local time, as it stands in the file
/// sections  in the order in which they are shown; none for a document without bookmarks
struct PdfDocument {
    std::string title;
    Moment created{};
    std::vector<PdfSection> sections = {};
};

/// The pages as a PDF file's bytes with its fonts in it, lines and letters as vectors. The same pages and the
/// same document are the same bytes, on every run, in every process and thread. May be called from several
/// threads at once after EnsureGuiApplication was called from the main thread. Error 482 where there is no
/// page and for a missing font, 5 for a section behind the last page.
Bytes MakePdf(std::span<const DisplayList> pages, const PdfDocument& document);

/// The same as a file, put in place whole. Errors: also those of the file system.
void WritePdf(FileSystem& files, const std::string& path, std::span<const DisplayList> pages,
              const PdfDocument& document);

/// The same without bookmarks, created now by the machine's clock.
void WritePdf(FileSystem& files, const std::string& path, std::span<const DisplayList> pages, const std::string& title);

}  // namespace terravane
