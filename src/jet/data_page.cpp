/*  A data page:

    0x00  01 01                          0x0C  u16  number of slots
    0x02  u16  free bytes                0x0E  u16 a slot: start of its row (13 bits), flags (the top bits)
    0x04  u32  definition page of the owner
    0x08  u32  any                       rows fill the page from its end downwards: row 0 ends at 4096,
                                         row i where row i-1 starts */
#include "jet/data_page.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace terravane::jet {

namespace {

constexpr std::size_t kFreeAt = 0x02;
constexpr std::size_t kOwnerAt = 0x04;
constexpr std::size_t kCountAt = 0x0C;
constexpr std::uint16_t kStartBits = 0x1FFF;
constexpr std::uint16_t kUnknownFlag = 0x2000;

std::size_t SlotCount(ByteView page)
{
    const std::size_t count = Get<std::uint16_t>(page, kCountAt);
    if (count > kMaxSlots) throw Damaged("a page holds more than 255 rows");
    return count;
}

std::uint16_t Entry(ByteView page, std::size_t number)
{
    return Get<std::uint16_t>(page, kDataHeader + 2 * number);
}

/// The slot `number` of `count`, the one before it beginning at `end`.
Slot CheckedSlot(ByteView page, std::size_t number, std::size_t count, std::size_t end)
{
    const std::uint16_t entry = Entry(page, number);
    const std::uint16_t start = entry & kStartBits;
    if ((entry & kUnknownFlag) != 0 || start > end || start < kDataHeader + 2 * count) {
        throw Damaged("a row lies outside its page");
    }
    return {static_cast<std::uint16_t>(entry & slot::kDeleted), start, U16(end - start)};
}

std::size_t RowBytes(const std::vector<SlotContent>& slots)
{
    return std::accumulate(slots.begin(), slots.end(), std::size_t{0},
                           [](std::size_t sum, const SlotContent& slot) { return sum + slot.bytes.size(); });
}

std::size_t BytesTaken(const std::vector<SlotContent>& slots)
{
    return kDataHeader + 2 * slots.size() + RowBytes(slots);
}

}  // namespace

std::vector<Slot> ReadSlots(ByteView page)
{
    const std::size_t count = SlotCount(page);
    std::vector<Slot> slots;
    slots.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        slots.push_back(CheckedSlot(page, i, count, i == 0 ? kPageSize : slots.back().start));
    }
    return slots;
}

Slot ReadSlot(ByteView page, std::uint8_t number)
{
    const std::size_t count = SlotCount(page);
    if (number >= count) throw Damaged("a pointer leads to row " + std::to_string(number) + " of a page that has none");
    const std::size_t end = number == 0 ? kPageSize : Entry(page, number - 1U) & kStartBits;
    return CheckedSlot(page, number, count, std::min(end, kPageSize));
}

void FormatDataPage(MutableBytes page, PageNumber owner)
{
    std::ranges::fill(page, std::uint8_t{0});
    Put<std::uint16_t>(page, 0, 0x0101);
    Put<std::uint16_t>(page, kFreeAt, U16(kPageSize - kDataHeader));
    Put<std::uint32_t>(page, kOwnerAt, owner);
}

std::vector<SlotContent> SlotContentsOf(ByteView page)
{
    std::vector<SlotContent> slots;
    for (const Slot& slot : ReadSlots(page)) {
        const ByteView bytes = SlotBytes(page, slot);
        slots.push_back({slot.flags, Bytes(bytes.begin(), bytes.end())});
    }
    return slots;
}

bool FitsOnePage(const std::vector<SlotContent>& slots)
{
    return slots.size() <= kMaxSlots && BytesTaken(slots) <= kPageSize;
}

void LayOut(MutableBytes page, const std::vector<SlotContent>& slots)
{
    FormatDataPage(page, OwnerOf(page));
    std::size_t start = kPageSize;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        start -= slots[i].bytes.size();
        std::ranges::copy(slots[i].bytes, page.begin() + static_cast<std::ptrdiff_t>(start));
        Put<std::uint16_t>(page, kDataHeader + 2 * i, static_cast<std::uint16_t>(start | slots[i].flags));
    }
    Put<std::uint16_t>(page, kFreeAt, U16(kPageSize - BytesTaken(slots)));
    Put<std::uint16_t>(page, kCountAt, U16(slots.size()));
}

}  // namespace terravane::jet
