/// What a file's content is known by.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace terravane {

/// SHA-256 as 64 hexadecimal digits.
std::string Sha256(std::span<const std::uint8_t> content);
std::string Sha256(std::string_view text);

}  // namespace terravane
