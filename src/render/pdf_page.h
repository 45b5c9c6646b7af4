/// A display list as the content of a PDF page.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "drawing/display_list.h"
#include "render/pdf_faces.h"

namespace terravane::pdf {

/// What the pages of a document draw with, collected while they are written. Names: "/F1" and "/P1" for the
/// first face and picture, in the order of their first use.
class Resources {
  public:
    /// The face's name, the glyphs noted.
    std::string NameOf(const Face& face, const std::vector<PlacedGlyph>& glyphs);
    /// The same picture from two places has one name.
    std::string NameOf(const std::shared_ptr<const Picture>& picture);

    /// Adds all of them; the number of the dictionary that names them.
    int AddTo(Objects& objects) const;

  private:
    struct UsedFace {
        const Face* face;
        UsedGlyphs glyphs;
    };
    std::vector<UsedFace> faces_;
    std::vector<std::shared_ptr<const Picture>> pictures_;
};

/// A side of the paper in points, from twips: paper comes in whole points, A4 as 595 by 842.
double PaperPoints(double twips);

/// The operators that draw a list as PaintList draws it, on a page of its size. A curve's points that stand
/// within kFlatness of the line through its others are left out.
std::string PageContent(const DisplayList& page, Resources& resources);

/// Twips on the page: 1/2880 inch, half a dot of a printer with 1200 dots to the inch being 1/2400.
inline constexpr double kFlatness = 0.5;

}  // namespace terravane::pdf
