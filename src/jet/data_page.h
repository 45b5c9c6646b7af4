/// Data pages: rows (or pieces of long values, or usage maps) in numbered slots. What a row means is row.h's
/// business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

inline constexpr std::size_t kDataHeader = 14;
inline constexpr std::size_t kMaxSlots = 255;  // a slot number is one byte of a pointer
inline constexpr std::size_t kMaxRow = 4060;   // bytes

/// The top bits of a slot's entry.
namespace slot {
inline constexpr std::uint16_t kPlain = 0;
inline constexpr std::uint16_t kMoved = 0x4000;   // the first 4 bytes point to the row
inline constexpr std::uint16_t kTarget = 0x8000;  // such a row: a scan skips it
inline constexpr std::uint16_t kDeleted = 0xC000;
}  // namespace slot

/// Where a slot's bytes lie on its page.
struct Slot {
    std::uint16_t flags;
    std::uint16_t start;
    std::uint16_t length;
};

/// A slot off its page, to be changed.
struct SlotContent {
    std::uint16_t flags;
    Bytes bytes;
};

/// The slots of a data page; error engine::kFile where they overlap each other, the directory or the page's
/// end.
std::vector<Slot> ReadSlots(ByteView page);

/// One slot; the same error also where there is no such slot.
Slot ReadSlot(ByteView page, std::uint8_t number);

inline ByteView SlotBytes(ByteView page, const Slot& slot)
{
    return Part(page, slot.start, slot.length);
}

/// Definition page of the table whose rows the page holds.
inline PageNumber OwnerOf(ByteView page)
{
    return Get<std::uint32_t>(page, 4);
}

/// An empty data page.
void FormatDataPage(MutableBytes page, PageNumber owner);

std::vector<SlotContent> SlotContentsOf(ByteView page);

/// Whether so many slots with so many bytes in all have room on one page.
bool FitsOnePage(const std::vector<SlotContent>& slots);

/// Writes the slots and the free count; the owner stays, all else of the page becomes zero. They must fit.
void LayOut(MutableBytes page, const std::vector<SlotContent>& slots);

}  // namespace terravane::jet
