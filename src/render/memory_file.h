/// Files are made in memory and put on the disk whole.
#pragma once

#include <QBuffer>
#include <cstdint>
#include <span>

namespace terravane {

/// What was written into a buffer, for as long as the buffer stands.
inline std::span<const std::uint8_t> ContentOf(const QBuffer& buffer)
{
    const QByteArray& bytes = buffer.data();
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

}  // namespace terravane
