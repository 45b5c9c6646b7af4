/// Long values: what columns of type memo and long binary hold outside their row. They are read, never
/// written.
#pragma once

#include "jet/image.h"
#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// The whole value that the bytes in the row stand for; error engine::kFile where its pieces don't add up.
Bytes ReadLongValue(const Image& image, ByteView inRow);

}  // namespace terravane::jet
