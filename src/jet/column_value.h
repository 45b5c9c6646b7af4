/// What the bytes of a column mean, as text for the reader of a result.
#pragma once

#include <optional>
#include <string>

#include "jet/row.h"

namespace terravane::jet {

/// Text of a column, nothing for a null. Numbers as plain texts, dates "21/11/2026" with " hh:nn:ss" where
/// there is a time of day, booleans "True" and "False", identifiers in braces, binary values as hexadecimal
/// digits. Error engine::kFile for bytes that are no value of the column's type.
std::optional<std::string> TextOf(const Image& image, const Column& column, const RowView& row);

}  // namespace terravane::jet
