/// Rows: the values of a table's columns in the order of the format. What bytes mean is column_value.h's
/// business.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "jet/page.h"
#include "jet/table_definition.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// A row as it lies on its page; valid as long as the page is not changed.
struct RowView {
    std::uint16_t columns = 0;  // how many the row knows; later ones are null
    ByteView fixed;
    std::vector<ByteView> variable;
    ByteView mask;

    /// The bytes of a column, nothing for a null. A boolean is one byte, 0 or 1, and never null.
    /// Error engine::kFile where a fixed column lies outside the row.
    std::optional<ByteView> BytesOf(const Column& column) const;

  private:
    bool Has(std::uint16_t number) const;
};

/// Takes a row apart; error engine::kFile where its parts contradict each other.
RowView ReadRow(const TableDefinition& table, ByteView bytes);

/// A row to be changed, widened to all columns of its table.
class RowParts {
  public:
    /// All columns null.
    explicit RowParts(const TableDefinition& table);
    RowParts(const TableDefinition& table, const RowView& row);

    /// A fixed column takes exactly its size; a boolean takes no bytes, to be set is to be true.
    void Set(const Column& column, ByteView value);

    /// Error engine::kFile for a row of more than 4060 bytes.
    Bytes Build() const;

  private:
    std::uint16_t columns_;
    bool hasVariable_;
    Bytes fixed_;
    std::vector<Bytes> variable_;
    Bytes mask_;
};

}  // namespace terravane::jet
