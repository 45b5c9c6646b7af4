/// The advances of the fonts that are drawn with, in design units, 2048 to the em. One list of character
/// blocks serves all faces, so that a character is looked for once. The figures are written by
/// tools/font_advances.py.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace terravane {

inline constexpr double kUnitsPerEm = 2048;
inline constexpr std::size_t kAdvanceBlocks = 8;
inline constexpr std::size_t kMeasuredCharacters = 767;

/// Stands in a face's advances where the face has no such character.
inline constexpr std::uint16_t kNone = 0xFFFF;

/// Characters `first` to `last` stand in a face's advances from `start` on.
struct AdvanceBlock {
    char32_t first, last;
    std::size_t start;
};

/// unknown   the advance of the box that is drawn for a character without a glyph
/// advances  by place; a Thai mark above or below has 0
struct FaceAdvances {
    std::uint16_t unknown;
    std::array<std::uint16_t, kMeasuredCharacters> advances;

    bool Has(std::size_t place) const noexcept { return advances[place] != kNone; }
};

extern const std::array<AdvanceBlock, kAdvanceBlocks> kBlocks;

extern const FaceAdvances kLoma;
extern const FaceAdvances kLomaBold;
extern const FaceAdvances kLiberationSans;
extern const FaceAdvances kLiberationSansBold;
extern const FaceAdvances kLiberationSansItalic;
extern const FaceAdvances kLiberationSansBoldItalic;
extern const FaceAdvances kLiberationSerif;
extern const FaceAdvances kLiberationSerifBold;
extern const FaceAdvances kLiberationSerifItalic;
extern const FaceAdvances kLiberationSerifBoldItalic;

/// Where a character stands in every face's advances; nothing for one outside all blocks.
inline std::optional<std::size_t> AdvancePlace(char32_t character) noexcept
{
    for (const AdvanceBlock& block : kBlocks)
        if (character >= block.first && character <= block.last) return block.start + (character - block.first);
    return std::nullopt;
}

}  // namespace terravane
