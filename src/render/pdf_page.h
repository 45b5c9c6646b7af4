/// A display list as the content of a PDF page.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "drawing/display_list.h"
#include "render/pdf_faces.h"
#include "render/pdf_pictures.h"
#include "render/pdf_structure.h"

namespace terravane::pdf {

/// What the pages of a document draw with, collected while they are written. Names: "/F1" and "/P1" for the
/// first face and picture, in the order of their first use.
class Resources {
  public:
    /// The face's name, the glyphs noted.
    std::string NameOf(const Face& face, const std::vector<PlacedGlyph>& glyphs);
    /// The same picture from two places has one name, and the pixels that the larger place needs.
    std::string NameOf(const std::shared_ptr<const Picture>& picture, PixelSize needed);

    /// Adds all of them; the number of the dictionary that names them.
    int AddTo(Objects& objects) const;

  private:
    struct UsedFace {
        const Face* face;
        UsedGlyphs glyphs;
    };
    std::vector<UsedFace> faces_;
    struct UsedPicture {
        std::shared_ptr<const Picture> picture;
        PixelSize needed;
    };
    std::vector<UsedPicture> pictures_;
};

/// A side of the paper in points, from twips. A4 is 210 by 297 mm, which no whole twips are.
double PaperPoints(double twips);

/// The operators that draw a list as PaintList draws it, on a page of its size. A curve's points that stand
/// within kFlatness of the line through its others are left out. What is written is marked as the elements that it
/// belongs to.
std::string PageContent(const DisplayList& page, Resources& resources, PageStructure& structure);

/// Twips on the page: 1/2880 inch, half a dot of a printer with 1200 dots to the inch being 1/2400.
inline constexpr double kFlatness = 0.5;

}  // namespace terravane::pdf
