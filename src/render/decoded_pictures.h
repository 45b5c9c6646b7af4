/// Pictures as pixels, decoded once for as long as the picture is in use.
#pragma once

#include <QImage>
#include <memory>

#include "drawing/picture.h"

namespace terravane {

/// The picture's pixels; an empty image where its bytes can't be decoded. Very large pictures come reduced to
/// 4096 pixels on their longer side. May be called from several threads.
QImage Decoded(const std::shared_ptr<const Picture>& picture);

}  // namespace terravane
