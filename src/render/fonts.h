/// The installed fonts that stand in for those asked for.
#pragma once

#include <QFont>
#include <cstddef>
#include <string_view>

#include "drawing/display_list.h"

namespace terravane {

/// A face at a whole pixel size, without kerning, hinting and substitutes, and what its outlines are to be
/// scaled by to come to the exact size (1 for all sizes in quarters of a point).
struct FaceAtSize {
    QFont font;
    double scale = 1;
};

/// The face of an installed family that draws a font, one pixel being one twip.
FaceAtSize FaceFor(const Font& font, std::string_view family);

/// Takes the fonts that came with the program, where it came with any: they need no installing then. Returns how many
/// there are; more than once does no harm.
std::size_t TakeFontsBeside();

/// Makes sure that every family pages are drawn with is installed: another font in its place would have other
/// widths and spoil the layout without a word. Those that came with the program are taken first. Error 482 names the
/// font and the Debian package that brings it.
void RequireFonts();

}  // namespace terravane
