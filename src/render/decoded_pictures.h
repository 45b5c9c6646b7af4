/// Pictures as pixels, decoded once for all their copies: each page of a report reads its logos anew.
#pragma once

#include <QImage>
#include <memory>

#include "drawing/picture.h"

namespace terravane {

/// The picture's pixels, upright; an empty image where its bytes can't be decoded. Large pictures come reduced to 1200
/// pixels on their shorter side, twice what a logo's place shows at 600 dots to the inch, and very long ones to 4096 on
/// their longer. May be called from several threads.
QImage Decoded(const std::shared_ptr<const Picture>& picture);

/// Whether two pictures are copies of one file, whatever their names.
bool AreCopies(const Picture& one, const Picture& other);

}  // namespace terravane
