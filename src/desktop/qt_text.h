#pragma once

#include <QString>
#include <string_view>

namespace terravane {

/// A text of the program, which is UTF-8, as Qt's widgets take it.
inline QString ToQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace terravane
