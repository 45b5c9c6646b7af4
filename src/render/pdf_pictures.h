/// Picture files as objects of a PDF file.
#pragma once

#include <memory>

#include "drawing/picture.h"
#include "render/pdf_objects.h"

namespace terravane::pdf {

/// Pixels across and down.
struct PixelSize {
    int width = 0, height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// The pixels that a place on the page can show, at 600 to the inch. Lengths in twips.
PixelSize PixelsFor(double width, double height);

/// A picture that can be decoded; the number of its object. A picture with more pixels than `needed` is brought down to
/// them, a photograph stays one (JPEG), and what its file says of upright is obeyed. May be called from several
/// threads: the last few pictures are remembered as they were packed.
int AddPicture(Objects& objects, const std::shared_ptr<const Picture>& picture, PixelSize needed);

}  // namespace terravane::pdf
