#include "runtime/text.h"

#include <algorithm>

namespace terravane {
namespace {

constexpr char32_t kNoText = 0xFFFD;

/// One character of a text and the bytes or units it takes there; what is no text takes one.
struct Character {
    char32_t code;
    std::size_t length;
};

/// The lead bytes of UTF-8 by length, with the smallest code that needs that length (a shorter form is no
/// text).
struct LeadByte {
    unsigned mask;
    unsigned bits;
    std::size_t length;
    char32_t smallest;
};
constexpr LeadByte kLeadBytes[] = {{0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

constexpr unsigned ByteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

constexpr bool IsSurrogate(char32_t code)
{
    return code >= 0xD800 && code < 0xE000;
}

Character Assemble(std::string_view text, const LeadByte& lead)
{
    if (text.size() < lead.length) return {kNoText, 1};
    char32_t code = ByteAt(text, 0) & ~lead.mask;
    for (std::size_t i = 1; i < lead.length; ++i) {
        if ((ByteAt(text, i) & 0xC0) != 0x80) return {kNoText, 1};
        code = code << 6 | (ByteAt(text, i) & 0x3F);
    }
    if (code < lead.smallest || code > 0x10FFFF || IsSurrogate(code)) return {kNoText, 1};
    return {code, lead.length};
}

/// The first character of a text that is not empty.
Character FirstCharacter(std::string_view text)
{
    const unsigned first = ByteAt(text, 0);
    if (first < 0x80) return {first, 1};
    for (const LeadByte& lead : kLeadBytes) {
        if ((first & lead.mask) == lead.bits) return Assemble(text, lead);
    }
    return {kNoText, 1};
}

Character FirstCharacter(std::u16string_view text)
{
    const char16_t first = text[0];
    if (!IsSurrogate(first)) return {first, 1};
    const bool isPair = first < 0xDC00 && text.size() > 1 && text[1] >= 0xDC00 && text[1] < 0xE000;
    if (!isPair) return {kNoText, 1};
    return {0x10000 + ((first - char32_t{0xD800}) << 10) + (text[1] - char32_t{0xDC00}), 2};
}

/// Bytes that the first n characters take.
std::size_t BytesOf(std::string_view text, std::size_t characters)
{
    std::size_t bytes = 0;
    while (characters-- > 0 && bytes < text.size()) bytes += FirstCharacter(text.substr(bytes)).length;
    return bytes;
}

template <typename Visit>
void ForEachCharacter(auto text, Visit visit)
{
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        visit(character.code);
        text.remove_prefix(character.length);
    }
}

void Append(std::u16string& units, char32_t code)
{
    if (code < 0x10000) {
        units.push_back(static_cast<char16_t>(code));
        return;
    }
    units.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
    units.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
}

void Append(std::string& bytes, char32_t code)
{
    const auto tail = [&](int shift) { bytes.push_back(static_cast<char>(0x80 | (code >> shift & 0x3F))); };
    if (code < 0x80) {
        bytes.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        bytes.push_back(static_cast<char>(0xC0 | code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        bytes.push_back(static_cast<char>(0xE0 | code >> 12));
        tail(6), tail(0);
    } else {
        bytes.push_back(static_cast<char>(0xF0 | code >> 18));
        tail(12), tail(6), tail(0);
    }
}

/// Characters of more than a byte that show nothing and yet change how a line is read: further controls, line ends and
/// marks of direction.
constexpr bool IsUnseen(char32_t code)
{
    return (code >= 0x80 && code < 0xA0) || code == 0x61C || code == 0x200E || code == 0x200F ||
           (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

std::string InHex(char32_t code, std::size_t digits)
{
    std::string hex(digits, '0');
    for (std::size_t at = digits; at-- > 0; code >>= 4) hex[at] = "0123456789abcdef"[code & 0xF];
    return hex;
}

/// A character as Printable shows it.
/// bytes  those that it takes in the text
std::string Shown(char32_t code, std::string_view bytes)
{
    if (code == '\n') return "\\n";
    if (code == '\r') return "\\r";
    if (code == '\t') return "\\t";
    const bool isNoText = code == kNoText && bytes.size() == 1;
    if (isNoText || code < 0x20 || code == 0x7F) return "\\x" + InHex(ByteAt(bytes, 0), 2);
    return IsUnseen(code) ? "\\u" + InHex(code, 4) : std::string(bytes);
}

constexpr char UpperCase(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

std::string_view Trim(std::string_view text) noexcept
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return text.substr(text.size());
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view Left(std::string_view text, std::size_t characters) noexcept
{
    return text.substr(0, BytesOf(text, characters));
}

std::string_view SkipCharacters(std::string_view text, std::size_t characters) noexcept
{
    return text.substr(BytesOf(text, characters));
}

std::size_t CharacterCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    ForEachCharacter(text, [&](char32_t) { ++count; });
    return count;
}

std::u16string ToUtf16(std::string_view text)
{
    std::u16string units;
    units.reserve(text.size());
    ForEachCharacter(text, [&](char32_t code) { Append(units, code); });
    return units;
}

std::string ToUtf8(std::u16string_view text)
{
    const bool isAscii = std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; });
    if (isAscii) return {text.begin(), text.end()};
    std::string bytes;
    bytes.reserve(text.size());
    ForEachCharacter(text, [&](char32_t code) { Append(bytes, code); });
    return bytes;
}

std::string Printable(std::string_view text)
{
    std::string printable;
    printable.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        printable += Shown(character.code, text.substr(0, character.length));
        text.remove_prefix(character.length);
    }
    return printable;
}

bool SameName(std::string_view left, std::string_view right) noexcept
{
    return std::ranges::equal(left, right, {}, UpperCase, UpperCase);
}

}  // namespace terravane
