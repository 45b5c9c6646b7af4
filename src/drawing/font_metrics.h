/// Text measured in the fonts' design units, so that the same page has the same coordinates on a screen, in a
/// PDF, on a printer and in a test. Knows the advances of the fonts that are drawn with; asks no device.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/display_list.h"

namespace terravane {

/// What a font that is asked for is drawn with.
/// family        the installed family, "Loma"
/// thaiFamily    the family for Thai characters where `family` has none, else the same
/// unitsPerPoint twips of the em for one point of size: 12 for DilleniaUPC and Cordia New, whose letters are small
///               for their size, 20 for the others
/// lineHeight, ascent  twips a point of size
struct FontSubstitute {
    std::string_view asked;
    std::string_view family;
    std::string_view thaiFamily;
    double unitsPerPoint;
    double lineHeight;
    double ascent;
};

/// The substitute of a font by its name, without regard to case; an unknown name is drawn as "MS Sans Serif".
const FontSubstitute& SubstituteFor(std::string_view fontName) noexcept;

/// Width of a text in twips, blanks at its ends included, not rounded: nominal advances, no kerning.
double TextWidth(const Font& font, std::string_view text);

/// A stretch of a text that is drawn from one installed family.
/// text   UTF-16, as text renderers take it
/// width  twips
struct FontRun {
    std::u16string text;
    std::string_view family;
    double width;
};

/// A text cut where its family changes; the widths add up to TextWidth. A character that no family has is
/// drawn as the first family's box for the unknown, and measured so.
std::vector<FontRun> FontRuns(const Font& font, std::string_view text);

/// Height of a line in twips, the same for any text and style.
double TextHeight(const Font& font) noexcept;

}  // namespace terravane
