/// The program's own picture, which heads the overall results.
#pragma once

#include <array>

#include "store/brand_pictures.h"

namespace terravane {

inline constexpr std::string_view kProductLogo = "product_logo.jpg";

/// Compiled into the program from assets/product.
std::array<BrandPicture, 1> ProductPictures();

}  // namespace terravane
