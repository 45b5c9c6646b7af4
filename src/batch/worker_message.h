/// A text on its way between processes: eight bytes of length, then the text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace terravane {

/// send  takes all of (bytes, count), or says false
template <typename Send>
bool SendText(const Send& send, const std::string& text)
{
    const std::uint64_t length = text.size();
    return send(&length, sizeof length) && send(text.data(), text.size());
}

/// receive  fills all of (bytes, count), or says false at the end of what comes
template <typename Receive>
std::optional<std::string> ReceiveText(const Receive& receive)
{
    std::uint64_t length = 0;
    if (!receive(&length, sizeof length)) return std::nullopt;
    std::string text(static_cast<std::size_t>(length), '\0');
    if (!receive(text.data(), text.size())) return std::nullopt;
    return text;
}

}  // namespace terravane
