/// Between a path as a text and the standard library's. For `runtime` alone: everyone else hands texts over.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace terravane {

std::filesystem::path ToNative(std::string_view utf8);
std::string ToText(const std::filesystem::path& path);

}  // namespace terravane
