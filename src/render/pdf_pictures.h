/// Pictures as objects of a PDF file.
#pragma once

#include "drawing/picture.h"
#include "render/pdf_objects.h"

namespace terravane::pdf {

/// Adds a picture that can be decoded; the number of its object. A JPEG file goes in as it is, any other as
/// its pixels without loss, with what is seen through in a mask.
int AddPicture(Objects& objects, const std::shared_ptr<const Picture>& picture);

}  // namespace terravane::pdf
