/// The bytes of a page: numbers are little-endian, every access is checked against the end of what it looks
/// into.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

#include "jet/engine_error.h"
#include "runtime/file_system.h"

namespace terravane::jet {

inline constexpr std::size_t kPageSize = 4096;

/// Page n begins at byte 4096 * n of the file.
using PageNumber = std::uint32_t;

using ByteView = std::span<const std::uint8_t>;
using MutableBytes = std::span<std::uint8_t>;

/// The first byte of a page. Pages of zeros and freed pages (8, 9) occur too and are never asked for.
enum class PageKind : std::uint8_t { Header = 0, Data = 1, Definition = 2, IndexLeaf = 4, MapBits = 5 };

/// The place of a row; in a file 4 bytes, slot first.
struct RowPointer {
    PageNumber page = 0;
    std::uint8_t slot = 0;

    static RowPointer Unpack(std::uint32_t packed) { return {packed >> 8, static_cast<std::uint8_t>(packed & 0xFF)}; }
    std::uint32_t Packed() const { return (page << 8) | slot; }
    friend auto operator<=>(const RowPointer&, const RowPointer&) = default;
};

/// Throws the engine's error where length bytes from `at` are not all inside.
inline void CheckInside(std::size_t size, std::size_t at, std::size_t length)
{
    if (at > size || length > size - at) throw Damaged("a field reaches over the end of its page or row");
}

inline ByteView Part(ByteView bytes, std::size_t at, std::size_t length)
{
    CheckInside(bytes.size(), at, length);
    return bytes.subspan(at, length);
}

template <std::unsigned_integral T>
T Get(ByteView bytes, std::size_t at)
{
    CheckInside(bytes.size(), at, sizeof(T));
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(T); i-- > 0;) value = (value << 8) | bytes[at + i];
    return static_cast<T>(value);
}

template <std::unsigned_integral T>
void Put(MutableBytes bytes, std::size_t at, T value)
{
    CheckInside(bytes.size(), at, sizeof(T));
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bytes[at + i] = static_cast<std::uint8_t>(std::uint64_t{value} >> 8 * i);
}

template <std::unsigned_integral T>
void Append(Bytes& bytes, T value)
{
    bytes.resize(bytes.size() + sizeof(T));
    Put<T>(bytes, bytes.size() - sizeof(T), value);
}

inline void Append(Bytes& bytes, ByteView more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

/// Bit k of a bitmap: byte k / 8, low bit first.
inline bool TestBit(ByteView bits, std::size_t k)
{
    return (Get<std::uint8_t>(bits, k / 8) >> (k % 8) & 1) != 0;
}

inline void WriteBit(MutableBytes bits, std::size_t k, bool on)
{
    CheckInside(bits.size(), k / 8, 1);
    const auto mask = static_cast<std::uint8_t>(1U << (k % 8));
    const std::uint8_t without = bits[k / 8] & static_cast<std::uint8_t>(~mask);
    bits[k / 8] = on ? static_cast<std::uint8_t>(without | mask) : without;
}

/// Sizes on a page fit 16 bits; the narrowing says so.
inline std::uint16_t U16(std::size_t value)
{
    return static_cast<std::uint16_t>(value);
}
inline std::uint8_t U8(std::size_t value)
{
    return static_cast<std::uint8_t>(value);
}

}  // namespace terravane::jet
