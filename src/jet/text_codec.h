/// Texts as columns hold them: UTF-16LE, or compressed where a column allows it.
#pragma once

#include <string>
#include <string_view>

#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// UTF-8 of a column's bytes; FF FE in front says that they are compressed. Never fails: half a unit at the
/// end is left out, a unit that is no text reads as U+FFFD.
std::string DecodeText(ByteView bytes);

/// The bytes for a column; `compressible` is the column's own flag. Error engine::kFile for a text that
/// begins with U+FEFF, which would read as a compressed one.
Bytes EncodeText(std::u16string_view text, bool compressible);

/// UTF-16LE as it stands, as the names of columns are kept.
Bytes PlainText(std::u16string_view text);

}  // namespace terravane::jet
