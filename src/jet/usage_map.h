/// Usage maps: sets of page numbers, each kept as one row of a data page.
#pragma once

#include <cstddef>
#include <vector>

#include "jet/image.h"
#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// Length of a map's row in a new file; its 64 bytes of bits cover 512 pages.
inline constexpr std::size_t kMapRow = 69;

/// A new map's row: empty, its window from page 0.
Bytes EmptyMap();

/// The pages of a map in ascending order; error engine::kFile where it names a page outside the file.
std::vector<PageNumber> PagesOf(const Image& image, RowPointer map);

/// Adds a page to a table's map; moves the map's window or turns it into a row of references where it must.
void AddToMap(Image& image, RowPointer map, PageNumber page);

/// One more page at the end of the file, taken out of the map of free pages.
PageNumber TakeNewPage(Image& image, PageKind kind);

}  // namespace terravane::jet
