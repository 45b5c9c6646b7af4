/// HarfBuzz's objects with their owners.
#pragma once

#include <memory>
#include <string_view>

#include <hb-subset.h>
#include <hb.h>

namespace terravane::hb {

template <auto destroy>
struct Destroy {
    template <class Object>
    void operator()(Object* object) const
    {
        destroy(object);
    }
};

using Blob = std::unique_ptr<hb_blob_t, Destroy<hb_blob_destroy>>;
using Buffer = std::unique_ptr<hb_buffer_t, Destroy<hb_buffer_destroy>>;
using Face = std::unique_ptr<hb_face_t, Destroy<hb_face_destroy>>;
using Font = std::unique_ptr<hb_font_t, Destroy<hb_font_destroy>>;
using Set = std::unique_ptr<hb_set_t, Destroy<hb_set_destroy>>;
using SubsetInput = std::unique_ptr<hb_subset_input_t, Destroy<hb_subset_input_destroy>>;

/// A blob's bytes, for as long as the blob stands.
inline std::string_view BytesOf(const Blob& blob)
{
    unsigned length = 0;
    const char* data = hb_blob_get_data(blob.get(), &length);
    return {data, length};
}

}  // namespace terravane::hb
