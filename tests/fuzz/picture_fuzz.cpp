// Any bytes, taken for a picture: a size that can be drawn comes out, or error 481 does.
#include <cstdlib>

#include "drawing/picture.h"
#include "runtime/runtime_error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
try {
    const auto picture = terravane::ReadPicture("logo", terravane::Bytes(data, data + size));
    constexpr std::int64_t kMostPixels = 100'000'000;
    if (picture->width < 1 || picture->height < 1 || picture->bytes.size() != size) std::abort();
    if (std::int64_t{picture->width} * picture->height > kMostPixels) std::abort();
    return 0;
} catch (const terravane::RuntimeError& error) {
    if (error.Number() != terravane::error::kInvalidPicture) std::abort();
    return 0;
}
