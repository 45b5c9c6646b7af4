/// Page 0: what kind of file it is, its language, where its map of free pages is.
#pragma once

#include <array>
#include <cstdint>

#include "jet/page.h"

namespace terravane::jet {

/// Language and code page of a new file. Texts are Unicode all the same; the language is the one that sorts.
struct Locale {
    std::uint16_t language = 0x041E;
    std::uint16_t codePage = 874;
};

/// A new file's page 0, of zeros before.
void WriteHeader(MutableBytes page, const Locale& locale);

/// Whether the bytes begin as a database of this engine of any version.
bool HasSignature(ByteView bytes);

/// Error engine::kFile for another format, another version, or encrypted pages.
void CheckHeader(ByteView page);

RowPointer FreeMapOf(ByteView page);

/// The stream under which bytes 0x18 to 0x97 are masked: RC4 of a fixed key.
std::array<std::uint8_t, 128> HeaderMask();

}  // namespace terravane::jet
