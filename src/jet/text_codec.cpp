/*  Compressed: FF FE, then segments. In one-byte mode, the first, a byte b is U+00b; in two-byte mode two
   bytes are a unit; a zero byte where a character would begin changes the mode. */
#include "jet/text_codec.h"

#include <algorithm>

#include "runtime/text.h"

namespace terravane::jet {

namespace {

constexpr char16_t kMark = 0xFEFF;
constexpr std::size_t kWorthCompressing = 3;  // characters; below, the mark takes what is won

bool IsCompressed(ByteView bytes)
{
    return bytes.size() >= 2 && Get<std::uint16_t>(bytes, 0) == kMark;
}

std::u16string Expanded(ByteView bytes)
{
    std::u16string text;
    bool wide = false;
    for (std::size_t at = 0; at < bytes.size();) {
        if (bytes[at] == 0) {
            wide = !wide;
            ++at;
        } else if (!wide) {
            text.push_back(bytes[at++]);
        } else {
            if (at + 2 <= bytes.size()) text.push_back(Get<std::uint16_t>(bytes, at));
            at += 2;
        }
    }
    return text;
}

std::u16string Units(ByteView bytes)
{
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t at = 0; at < text.size(); ++at) text[at] = Get<std::uint16_t>(bytes, 2 * at);
    return text;
}

bool IsWorthCompressing(std::u16string_view text)
{
    return text.size() >= kWorthCompressing &&
           std::ranges::all_of(text, [](char16_t unit) { return unit >= 1 && unit <= 0xFF; });
}

Bytes Compressed(std::u16string_view text)
{
    Bytes bytes{0xFF, 0xFE};
    for (const char16_t unit : text) bytes.push_back(static_cast<std::uint8_t>(unit));
    return bytes;
}

}  // namespace

std::string DecodeText(ByteView bytes)
{
    return ToUtf8(IsCompressed(bytes) ? Expanded(bytes.subspan(2)) : Units(bytes));
}

Bytes PlainText(std::u16string_view text)
{
    Bytes bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : text) Append<std::uint16_t>(bytes, unit);
    return bytes;
}

Bytes EncodeText(std::u16string_view text, bool compressible)
{
    if (!text.empty() && text.front() == kMark) {
        throw Refused("A text that begins with the character U+FEFF can't be stored.");
    }
    return compressible && IsWorthCompressing(text) ? Compressed(text) : PlainText(text);
}

}  // namespace terravane::jet
