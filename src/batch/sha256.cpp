#include "batch/sha256.h"

#include <QCryptographicHash>

namespace terravane {

std::string Sha256(std::span<const std::uint8_t> content)
{
    return Sha256(std::string_view(reinterpret_cast<const char*>(content.data()), content.size()));
}

std::string Sha256(std::string_view text)
{
    const auto bytes = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

}  // namespace terravane
