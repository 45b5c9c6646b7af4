/*  Page 0, after unmasking of 0x18 to 0x97:

    0x00  00 01 00 00                    0x3E  u32  encryption key, 0 none
    0x04  "Standard Jet DB", 0           0x42  40   password, masked with the date; none here
    0x14  u32  format version, 1         0x6A  u32  build of the engine that made the file
    0x18  u32  map of free pages         0x6E  u32  language
    0x1C  u32  a second map, empty       0x72  8    creation date
    0x20  4 u32  system tables' pages    0x98  u32  0x0654, not masked
    0x3C  u16  code page                 0x9C  "4.0", 0, not masked
                                         0xE00 256 times 00 01, the user slots */
#include "jet/header_page.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <string_view>

namespace terravane::jet {

namespace {

constexpr std::string_view kSignature = "Standard Jet DB";
constexpr std::size_t kSignatureAt = 0x04;
constexpr std::size_t kVersionAt = 0x14;
constexpr std::size_t kFreeMapAt = 0x18;
constexpr std::size_t kMaskedAt = 0x18;
constexpr std::size_t kKeyAt = 0x3E;
constexpr std::size_t kPasswordAt = 0x42;
constexpr std::size_t kDateAt = 0x72;
constexpr std::size_t kUserSlotsAt = 0xE00;

constexpr std::uint32_t kVersion = 1;
constexpr std::array<std::uint8_t, 4> kMaskKey{0xC7, 0xDA, 0x39, 0x6B};

// The identifiers in the catalog are masked with two bytes that belong to this date: the two stay together.
constexpr std::array<std::uint8_t, 8> kCreated{0xBC, 0x72, 0x1F, 0x7D, 0xF1, 0x9F, 0xE2, 0x40};
constexpr std::uint32_t kCreatedDay = 38143;  // the date without its time of day

template <typename T>
struct Field {
    std::size_t at;
    T value;
};

constexpr Field<std::uint32_t> kFields[]{
    {0x00, 0x100}, {kVersionAt, kVersion}, {kFreeMapAt, 0x100}, {0x1C, 0x101}, {0x20, 2}, {0x24, 3}, {0x28, 4},
    {0x2C, 5},     {0x6A, 8618},           {0x98, 0x0654},
};

void Mask(MutableBytes page)
{
    const auto mask = HeaderMask();
    for (std::size_t i = 0; i < mask.size(); ++i) page[kMaskedAt + i] ^= mask[i];
}

std::array<std::uint8_t, kPageSize> Unmasked(ByteView page)
{
    std::array<std::uint8_t, kPageSize> plain{};
    std::ranges::copy(Part(page, 0, kPageSize), plain.begin());
    Mask(plain);
    return plain;
}

void WriteNoPassword(MutableBytes page)
{
    for (std::size_t i = 0; i < 40; i += 4) Put<std::uint32_t>(page, kPasswordAt + i, kCreatedDay);
}

void WriteUserSlots(MutableBytes page)
{
    for (std::size_t at = kUserSlotsAt; at < kPageSize; at += 2) Put<std::uint16_t>(page, at, 0x0100);
}

}  // namespace

std::array<std::uint8_t, 128> HeaderMask()
{
    std::array<std::uint8_t, 256> state{};
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + kMaskKey[i % kMaskKey.size()]);
        std::swap(state[i], state[j]);
    }
    std::array<std::uint8_t, 128> stream{};
    std::uint8_t i = 0;
    j = 0;
    for (std::uint8_t& byte : stream) {
        j = static_cast<std::uint8_t>(j + state[++i]);
        std::swap(state[i], state[j]);
        byte = state[static_cast<std::uint8_t>(state[i] + state[j])];
    }
    return stream;
}

void WriteHeader(MutableBytes page, const Locale& locale)
{
    for (const auto& [at, value] : kFields) Put(page, at, value);
    std::ranges::copy(kSignature, page.begin() + kSignatureAt);
    Put<std::uint16_t>(page, 0x3C, locale.codePage);
    Put<std::uint32_t>(page, 0x6E, locale.language);
    std::ranges::copy(kCreated, page.begin() + kDateAt);
    WriteNoPassword(page);
    Put<std::uint32_t>(page, 0x9C, 0x00302E34);  // "4.0"
    WriteUserSlots(page);
    Mask(page);
}

bool HasSignature(ByteView bytes)
{
    return bytes.size() > kSignatureAt + kSignature.size() &&
           std::ranges::equal(
               bytes.subspan(kSignatureAt, kSignature.size()), kSignature,
               [](std::uint8_t byte, char letter) { return byte == static_cast<std::uint8_t>(letter); }) &&
           bytes[kSignatureAt + kSignature.size()] == 0;
}

void CheckHeader(ByteView page)
{
    if (!HasSignature(page)) throw Refused("Unrecognized database format.");
    if (Get<std::uint32_t>(page, kVersionAt) != kVersion) {
        throw Refused("The database is of another version than Access 2000 to 2003.");
    }
    if (Get<std::uint32_t>(Unmasked(page), kKeyAt) != 0) {
        throw Refused("The database is encrypted; save it without encryption first.");
    }
}

RowPointer FreeMapOf(ByteView page)
{
    return RowPointer::Unpack(Get<std::uint32_t>(Unmasked(page), kFreeMapAt));
}

}  // namespace terravane::jet
