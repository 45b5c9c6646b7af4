/// Blocks of cells as spreadsheets exchange them: lines of texts with tabs between. Knows no grid.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace terravane {

using Block = std::vector<std::vector<std::string>>;  // row by row

/// A text with a tab, a line end or a quote in it stands in quotes, a quote in it twice.
std::string BlockText(const Block& block);
/// Takes line ends of every system; one at the very end begins no further row. Nothing fails: a quote that is not
/// closed ends with the text.
Block ReadBlock(std::string_view text);

/// A number as calculations read it: Thai digits as those of 0 to 9, thousands without their separators. A text that is
/// no number comes back unchanged: "กม. ๑๒" and "1,5" mean something else.
std::string PlainNumber(std::string_view text);

}  // namespace terravane
