/// Texts are UTF-8; what the user sees counts characters, what the store limits counts UTF-16 units.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace terravane {

/// Without the blanks (U+0020 alone) at both ends.
std::string_view Trim(std::string_view text) noexcept;

/// The first n characters; the whole text where it is shorter.
std::string_view Left(std::string_view text, std::size_t characters) noexcept;

/// All but the first n characters.
std::string_view SkipCharacters(std::string_view text, std::size_t characters) noexcept;

std::size_t CharacterCount(std::string_view text) noexcept;

/// UTF-16 from UTF-8 and back. A byte or a unit that is no text becomes U+FFFD: nothing fails.
std::u16string ToUtf16(std::string_view text);
std::string ToUtf8(std::u16string_view text);

/// As a person may read it in a line of a terminal or a message: control characters, line breaks, marks that turn the
/// direction of writing, and bytes that are no text are shown by their codes ("\n", "\x1b", "\u202e"). A name that a
/// stranger chose can then neither work the terminal nor look like two lines. The same text twice is the same as once.
std::string Printable(std::string_view text);

/// Equal without regard to the case of the letters A to Z: names of tables, columns and brand files.
bool SameName(std::string_view left, std::string_view right) noexcept;

}  // namespace terravane
