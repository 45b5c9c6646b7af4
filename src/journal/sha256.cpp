#include "journal/sha256.h"

#include <array>

#include <nettle/base16.h>
#include <nettle/sha2.h>

namespace terravane {

std::string Sha256(std::span<const std::uint8_t> content)
{
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, content.size(), content.data());
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
    sha256_digest(&context, digest.size(), digest.data());
    std::string text(BASE16_ENCODE_LENGTH(SHA256_DIGEST_SIZE), '0');
    base16_encode_update(text.data(), digest.size(), digest.data());
    return text;
}

std::string Sha256(std::string_view text)
{
    return Sha256(std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

}  // namespace terravane
