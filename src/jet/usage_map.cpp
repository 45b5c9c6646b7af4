/*  A usage map's row:

    inline      u8 0, u32 first page, bits: bit k is page first + k
    references  u8 1, u32 page numbers of bitmap pages (0 none; the top bit set: a leftover);
                entry i covers the pages from i * 32736

    A bitmap page: 05 01 00 00, then 4092 bytes of bits. */
#include "jet/usage_map.h"

#include <algorithm>

#include "jet/data_page.h"
#include "jet/header_page.h"

namespace terravane::jet {

namespace {

constexpr std::size_t kFirstAt = 1;  // inline: the window's first page
constexpr std::size_t kBitsAt = 5;   // inline: the bits
constexpr std::size_t kRefsAt = 1;
constexpr std::size_t kPageBitsAt = 4;
constexpr std::size_t kPagesPerBitmap = (kPageSize - kPageBitsAt) * 8;
constexpr std::uint32_t kLeftover = 0x80000000;
constexpr std::uint8_t kInline = 0;
constexpr std::uint8_t kReferences = 1;

ByteView MapRow(const Image& image, RowPointer map)
{
    const ByteView page = image.Page(map.page, PageKind::Data);
    const ByteView row = SlotBytes(page, ReadSlot(page, map.slot));
    if (row.size() < kBitsAt || row[0] > kReferences) throw Damaged("a usage map is not one");
    return row;
}

MutableBytes MapRowToChange(Image& image, RowPointer map)
{
    static_cast<void>(MapRow(image, map));  // checked first
    const MutableBytes page = image.Change(map.page);
    const Slot slot = ReadSlot(page, map.slot);
    return page.subspan(slot.start, slot.length);
}

bool IsInline(ByteView row)
{
    return row[0] == kInline;
}
std::size_t WindowStart(ByteView row)
{
    return Get<std::uint32_t>(row, kFirstAt);
}
std::size_t WindowSize(ByteView row)
{
    return (row.size() - kBitsAt) * 8;
}
std::size_t ReferenceCount(ByteView row)
{
    return (row.size() - kRefsAt) / 4;
}

/// The bitmap page of an entry, 0 for none.
PageNumber Reference(ByteView row, std::size_t entry)
{
    const auto page = Get<std::uint32_t>(row, kRefsAt + 4 * entry);
    return (page & kLeftover) != 0 ? 0 : page;
}

void CollectBits(std::vector<PageNumber>& pages, ByteView bits, std::size_t first)
{
    for (std::size_t byte = 0; byte < bits.size(); ++byte) {
        if (bits[byte] == 0) continue;
        for (std::size_t k = 8 * byte; k < 8 * byte + 8; ++k) {
            if (TestBit(bits, k)) pages.push_back(static_cast<PageNumber>(first + k));
        }
    }
}

void CollectReferences(std::vector<PageNumber>& pages, const Image& image, ByteView row)
{
    for (std::size_t entry = 0; entry < ReferenceCount(row); ++entry) {
        const PageNumber number = Reference(row, entry);
        if (number == 0) continue;
        const ByteView page = image.Page(number, PageKind::MapBits);
        CollectBits(pages, page.subspan(kPageBitsAt), entry * kPagesPerBitmap);
    }
}

void CheckPages(const Image& image, const std::vector<PageNumber>& pages)
{
    if (pages.empty()) return;
    if (pages.front() == 0 || pages.back() >= image.PageCount() || !std::ranges::is_sorted(pages)) {
        throw Damaged("a table has pages outside the file");
    }
}

void WriteInline(MutableBytes row, PageNumber first, const std::vector<PageNumber>& pages)
{
    std::ranges::fill(row, std::uint8_t{0});
    Put<std::uint32_t>(row, kFirstAt, first);
    for (const PageNumber page : pages) WriteBit(row.subspan(kBitsAt), page - first, true);
}

/// The bitmap page that an entry leads to, made where there is none.
PageNumber BitmapPage(Image& image, RowPointer map, std::size_t entry)
{
    const ByteView row = MapRow(image, map);
    if (entry >= ReferenceCount(row)) throw Refused("A table has grown over what its map of pages can hold.");
    if (const PageNumber page = Reference(row, entry); page != 0) return page;
    const PageNumber page = TakeNewPage(image, PageKind::MapBits);
    Put<std::uint32_t>(MapRowToChange(image, map), kRefsAt + 4 * entry, page);
    return page;
}

void SetReferenced(Image& image, RowPointer map, PageNumber page)
{
    const PageNumber bitmap = BitmapPage(image, map, page / kPagesPerBitmap);
    static_cast<void>(image.Page(bitmap, PageKind::MapBits));
    WriteBit(image.Change(bitmap).subspan(kPageBitsAt), page % kPagesPerBitmap, true);
}

void TurnIntoReferences(Image& image, RowPointer map, const std::vector<PageNumber>& pages)
{
    const MutableBytes row = MapRowToChange(image, map);
    std::ranges::fill(row, std::uint8_t{0});
    row[0] = kReferences;
    for (const PageNumber page : pages) SetReferenced(image, map, page);
}

void AddOutsideWindow(Image& image, RowPointer map, PageNumber page)
{
    std::vector<PageNumber> pages = PagesOf(image, map);
    pages.insert(std::ranges::upper_bound(pages, page), page);
    const PageNumber first = pages.front() / 8 * 8;
    const MutableBytes row = MapRowToChange(image, map);
    if (pages.back() - first < WindowSize(row)) {
        WriteInline(row, first, pages);
    } else {
        TurnIntoReferences(image, map, pages);
    }
}

bool InWindow(ByteView row, PageNumber page)
{
    return page >= WindowStart(row) && page - WindowStart(row) < WindowSize(row);
}

/// Pages outside the window count as free, so a page behind it moves the window there, all others of it free.
void MarkUsedInline(MutableBytes row, PageNumber page)
{
    if (page < WindowStart(row)) return;
    if (!InWindow(row, page)) {
        Put<std::uint32_t>(row, kFirstAt, page / 8 * 8);
        std::ranges::fill(row.subspan(kBitsAt), std::uint8_t{0xFF});
    }
    if (InWindow(row, page)) WriteBit(row.subspan(kBitsAt), page - WindowStart(row), false);
}

void MarkUsedReferenced(Image& image, RowPointer map, PageNumber page)
{
    const ByteView row = MapRow(image, map);
    const std::size_t entry = page / kPagesPerBitmap;
    const PageNumber bitmap = entry < ReferenceCount(row) ? Reference(row, entry) : 0;
    if (bitmap == 0) return;  // no bits there, nothing to clear
    static_cast<void>(image.Page(bitmap, PageKind::MapBits));
    WriteBit(image.Change(bitmap).subspan(kPageBitsAt), page % kPagesPerBitmap, false);
}

void MarkUsed(Image& image, RowPointer map, PageNumber page)
{
    if (IsInline(MapRow(image, map))) {
        MarkUsedInline(MapRowToChange(image, map), page);
    } else {
        MarkUsedReferenced(image, map, page);
    }
}

}  // namespace

Bytes EmptyMap()
{
    return Bytes(kMapRow, 0);
}

std::vector<PageNumber> PagesOf(const Image& image, RowPointer map)
{
    const ByteView row = MapRow(image, map);
    std::vector<PageNumber> pages;
    if (IsInline(row)) {
        CollectBits(pages, row.subspan(kBitsAt), WindowStart(row));
    } else {
        CollectReferences(pages, image, row);
    }
    CheckPages(image, pages);
    return pages;
}

void AddToMap(Image& image, RowPointer map, PageNumber page)
{
    const ByteView row = MapRow(image, map);
    if (!IsInline(row)) {
        SetReferenced(image, map, page);
    } else if (InWindow(row, page)) {
        WriteBit(MapRowToChange(image, map).subspan(kBitsAt), page - WindowStart(row), true);
    } else {
        AddOutsideWindow(image, map, page);
    }
}

PageNumber TakeNewPage(Image& image, PageKind kind)
{
    const PageNumber page = image.Append(kind);
    MarkUsed(image, FreeMapOf(image.Page(0)), page);
    return page;
}

}  // namespace terravane::jet
