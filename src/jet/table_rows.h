/// The rows of a table over its pages: found in order, changed in place, laid out afresh, added.
#pragma once

#include <cstddef>
#include <vector>

#include "jet/page.h"
#include "jet/table_definition.h"
#include "runtime/file_system.h"

namespace terravane::jet {

struct StoredRow {
    RowPointer home;  // its place in the order
    RowPointer at;    // where its bytes are; another place when it was moved
    ByteView bytes;   // valid until the image changes
};

struct StoredRows {
    std::vector<PageNumber> pages;  // data pages of the table, ascending
    std::vector<StoredRow> rows;    // in the order of insertion
    bool outOfPlace = false;        // moved rows, or copies that no pointer leads to
};

/// Error engine::kFile for a pointer that leads nowhere, in circles, or to a row that another one leads to.
StoredRows FindRows(const Image& image, const TableDefinition& table);

struct RowChange {
    std::size_t row;  // index into StoredRows::rows
    Bytes bytes;
};

/// Gives rows other bytes and keeps the order of all. A row that outgrows its page has all rows laid out
/// afresh, or, where an index holds on to addresses, is moved away from a pointer that stays.
void ChangeRows(Image& image, const TableDefinition& table, const StoredRows& stored,
                const std::vector<RowChange>& changes);

/// Adds a row behind all others, counts it, and tells where it is. Indexes are the caller's business.
RowPointer AddRow(Image& image, const TableDefinition& table, const Bytes& row);

}  // namespace terravane::jet
