/// The three pictures that a new installation's reports show until the laboratory puts its own there.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace terravane {

inline constexpr std::string_view kInstituteLogo = "ins_logo.jpg";
inline constexpr std::string_view kDepartmentLogo = "dep_logo.jpg";
inline constexpr std::string_view kCoverLogo = "cov_logo.jpg";

struct BrandPicture {
    std::string_view name;
    std::span<const std::uint8_t> content;
};

/// Compiled into the program from assets/BrandList, so that a first start needs no installed file.
std::array<BrandPicture, 3> FirstBrandPictures();

}  // namespace terravane
