/// What a document's contents are, as PDF readers take it: a tree of headings, lines, tables and figures whose leaves
/// are stretches of the pages' contents.
///
///     Document                  what the catalog's StructTreeRoot holds
///       Sect                    a page
///         H1 H2 P               its title, captions, lines of text
///         Table TR TH TD        a cell holds the texts in it
///         Figure                with what it shows, in words
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/display_list.h"
#include "render/pdf_objects.h"

namespace terravane::pdf {

/// One element of a page's tree, by its number; the page's own is 0.
/// kind       "/TD"
/// about      what else its dictionary says
/// stretches  of the page's content, by their numbers
struct Element {
    std::string_view kind;
    std::string about = {};
    int parent = 0;
    std::vector<int> kids = {}, stretches = {};
};

/// What an item belongs to in place of an element where it is not read: what every page has at its edges, and lines.
inline constexpr int kFurniture = -2, kArtifact = -1;

/// The elements of a page, in the order in which they are read, which is that of their first items. A table is read row
/// by row, whatever was printed first.
class PageStructure {
  public:
    explicit PageStructure(const DisplayList& page);

    /// The element of the page's item with this number.
    int ElementOf(std::size_t item) const { return elementOf_[item]; }

    /// The operators that begin a stretch of an element's content; "EMC" ends it.
    std::string Begin(int element) const;
    /// The stretch that was begun last has something in it.
    void Keep(int element);

    /// Adds the elements. The objects of those that the stretches belong to, in the stretches' order.
    /// document, page  their objects
    /// own             the page's own element, reserved
    std::string AddTo(Objects& objects, int document, int page, int own) const;

  private:
    std::vector<Element> elements_;
    std::vector<int> elementOf_;  // by item
    std::vector<int> stretches_;  // elements, by stretch
};

/// Adds the tree of a document's structures, and what the catalog says of it. Page number n has to name its stretches
/// as number n ("/StructParents n").
/// pages  their objects
std::string StructureEntries(Objects& objects, std::span<const PageStructure> structures, std::span<const int> pages);

}  // namespace terravane::pdf
