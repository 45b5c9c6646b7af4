/// Leaves of the catalog's indexes. Only whole leaves of new files are built; no other index is kept up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// Whether a name can be a key: letters, digits and plain signs. Apostrophe, hyphen and everything beyond
/// ASCII would need more than a weight a character.
bool CanBeKey(std::string_view name);

/// Appends a column's part of a key.
void AppendKey(Bytes& key, std::int32_t value);
void AppendKey(Bytes& key, std::string_view text);

/// A leaf's entry: the key, then where the row is.
Bytes LeafEntry(Bytes key, RowPointer row);

/// Writes a leaf with its entries sorted; error engine::kFile where they need more than one page.
void WriteLeaf(MutableBytes page, PageNumber owner, std::vector<Bytes> entries);

/// How many different keys entries have.
std::size_t DifferentKeys(std::vector<Bytes> entries);

}  // namespace terravane::jet
