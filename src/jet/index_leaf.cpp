/*  An index leaf:

    0x00   04 01                     0x0C   u32 previous page, u32 next page, u32 tail leaf: none
    0x02   u16  free bytes           0x18   u16 length of a shared prefix: none
    0x04   u32  definition page      0x1B   453 bytes of bits: bit k, an entry ends k bytes after 0x1E0
    0x08   u32  0                    0x1E0  entries, sorted by their bytes

    Entry: key, page (3 bytes, big-endian), slot. A key's column: 7F and, big-endian, the number with its sign
   turned, or the weights of a text's characters and 01 00. */
#include "jet/index_leaf.h"

#include <algorithm>
#include <array>

namespace terravane::jet {

namespace {

constexpr std::size_t kMaskAt = 0x1B;
constexpr std::size_t kEntriesAt = 0x1E0;
constexpr std::size_t kAddress = 4;  // bytes behind the key
constexpr std::uint8_t kNotNull = 0x7F;

struct Weight {
    char character;
    std::uint16_t value;  // two bytes where it is above 0xFF
};

constexpr std::array<std::uint8_t, 26> kLetters{0x4A, 0x4C, 0x4D, 0x4F, 0x51, 0x53, 0x55, 0x57, 0x59,
                                                0x5B, 0x5C, 0x5E, 0x60, 0x62, 0x64, 0x66, 0x68, 0x69,
                                                0x6B, 0x6D, 0x6F, 0x71, 0x73, 0x75, 0x76, 0x78};
constexpr std::uint8_t kFirstDigit = 0x36;  // each digit weighs two more than the one before
constexpr std::array kSigns{
    Weight{' ', 0x07},   Weight{'!', 0x09},   Weight{'#', 0x0C},   Weight{'$', 0x0E}, Weight{'%', 0x10},
    Weight{'&', 0x12},   Weight{'(', 0x14},   Weight{')', 0x16},   Weight{'*', 0x18}, Weight{',', 0x1A},
    Weight{'/', 0x1E},   Weight{':', 0x20},   Weight{';', 0x22},   Weight{'?', 0x24}, Weight{'@', 0x26},
    Weight{'+', 0x2C},   Weight{'<', 0x2E},   Weight{'=', 0x30},   Weight{'>', 0x32}, Weight{'_', 0x2B03},
    Weight{'{', 0x2B09}, Weight{'}', 0x2B0D}, Weight{'~', 0x2B0F},
};

std::uint16_t WeightOf(char character)
{
    if (character >= 'a' && character <= 'z') return kLetters[static_cast<std::size_t>(character - 'a')];
    if (character >= 'A' && character <= 'Z') return kLetters[static_cast<std::size_t>(character - 'A')];
    if (character >= '0' && character <= '9') return static_cast<std::uint16_t>(kFirstDigit + 2 * (character - '0'));
    const auto sign = std::ranges::find(kSigns, character, &Weight::character);
    return sign == kSigns.end() ? std::uint16_t{0} : sign->value;
}

void AppendBigEndian(Bytes& bytes, std::uint32_t value, int count)
{
    for (int i = count - 1; i >= 0; --i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

std::span<const std::uint8_t> KeyOf(const Bytes& entry)
{
    return {entry.data(), entry.size() - kAddress};
}

}  // namespace

bool CanBeKey(std::string_view name)
{
    return std::ranges::all_of(name, [](char character) { return WeightOf(character) != 0; });
}

void AppendKey(Bytes& key, std::int32_t value)
{
    key.push_back(kNotNull);
    AppendBigEndian(key, static_cast<std::uint32_t>(value) ^ 0x80000000U, 4);
}

void AppendKey(Bytes& key, std::string_view text)
{
    key.push_back(kNotNull);
    for (const char character : text) {
        const std::uint16_t weight = WeightOf(character);
        AppendBigEndian(key, weight, weight > 0xFF ? 2 : 1);
    }
    AppendBigEndian(key, 0x0100, 2);
}

Bytes LeafEntry(Bytes key, RowPointer row)
{
    AppendBigEndian(key, row.page, 3);
    key.push_back(row.slot);
    return key;
}

void WriteLeaf(MutableBytes page, PageNumber owner, std::vector<Bytes> entries)
{
    std::ranges::sort(entries, std::ranges::lexicographical_compare);
    std::ranges::fill(page, std::uint8_t{0});
    Put<std::uint16_t>(page, 0, 0x0104);
    Put<std::uint32_t>(page, 4, owner);
    std::size_t end = kEntriesAt;
    for (const Bytes& entry : entries) {
        if (entry.size() > kPageSize - end) throw Refused("The database has too many tables for one index page.");
        std::ranges::copy(entry, page.begin() + static_cast<std::ptrdiff_t>(end));
        end += entry.size();
        WriteBit(page.subspan(kMaskAt), end - kEntriesAt, true);
    }
    Put<std::uint16_t>(page, 2, U16(kPageSize - end));
}

std::size_t DifferentKeys(std::vector<Bytes> entries)
{
    std::ranges::sort(entries, std::ranges::lexicographical_compare);
    // std::unique, not its ranges form: Clang 14 can't compile that one's result.
    const auto end = std::unique(entries.begin(), entries.end(),
                                 [](const Bytes& a, const Bytes& b) { return std::ranges::equal(KeyOf(a), KeyOf(b)); });
    return static_cast<std::size_t>(end - entries.begin());
}

}  // namespace terravane::jet
