/*  In the row: u32 length (24 bits) and flags, u32 pointer, u32 0, 12 bytes in all.

    flag 0x80000000   the data follow the 12 bytes
    flag 0x40000000   the pointer leads to a row that is the data
    neither           it leads to the first of several rows, each a pointer to the next one (0 the end) and
   data  */
#include "jet/long_value.h"

#include <set>

#include "jet/data_page.h"

namespace terravane::jet {

namespace {

constexpr std::size_t kHead = 12;
constexpr std::uint32_t kLengthBits = 0x00FFFFFF;
constexpr std::uint32_t kInRow = 0x80000000;
constexpr std::uint32_t kOnePiece = 0x40000000;

ByteView Piece(const Image& image, RowPointer at)
{
    const ByteView page = image.Page(at.page, PageKind::Data);
    return SlotBytes(page, ReadSlot(page, at.slot));
}

Bytes Collect(const Image& image, std::uint32_t first, std::size_t length)
{
    Bytes value;
    std::set<std::uint32_t> visited;
    for (std::uint32_t next = first; next != 0 && value.size() < length;) {
        if (!visited.insert(next).second) throw Damaged("a long value leads back into itself");
        const ByteView piece = Piece(image, RowPointer::Unpack(next));
        next = Get<std::uint32_t>(piece, 0);
        Append(value, piece.subspan(4));
    }
    return value;
}

}  // namespace

Bytes ReadLongValue(const Image& image, ByteView inRow)
{
    if (inRow.empty()) return {};
    const auto head = Get<std::uint32_t>(inRow, 0);
    const std::size_t length = head & kLengthBits;
    const auto pointer = Get<std::uint32_t>(Part(inRow, 0, kHead), 4);
    Bytes value;
    if ((head & kInRow) != 0) {
        Append(value, inRow.subspan(kHead));
    } else if ((head & kOnePiece) != 0) {
        Append(value, Piece(image, RowPointer::Unpack(pointer)));
    } else {
        value = Collect(image, pointer, length);
    }
    if (value.size() < length) throw Damaged("a long value is cut short");
    value.resize(length);
    return value;
}

}  // namespace terravane::jet
