/// What a table's definition says: its columns, its indexes, where its maps are. Rows are row.h's business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "jet/image.h"
#include "jet/page.h"

namespace terravane::jet {

enum class ColumnType : std::uint8_t {
    Boolean = 1,
    Byte = 2,
    Int16 = 3,
    Int32 = 4,
    Currency = 5,
    Float = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    LongBinary = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

namespace column_flag {
inline constexpr std::uint8_t kFixed = 0x01;
inline constexpr std::uint8_t kNullable = 0x02;
inline constexpr std::uint8_t kAutonumber = 0x04;
}  // namespace column_flag

/// The most columns that a table can have.
inline constexpr std::size_t kMaxColumns = 255;

struct Column {
    std::string name;
    ColumnType type = ColumnType::Text;
    std::uint16_t number = 0;         // its bit in the null mask
    std::uint16_t variableIndex = 0;  // among the variable columns
    std::uint16_t position = 0;       // for display
    std::uint16_t language = 0;
    std::uint8_t flags = column_flag::kNullable;
    bool compressible = false;
    std::uint16_t fixedOffset = 0;  // in the fixed part of a row
    std::uint16_t size = 0;         // bytes

    bool IsFixed() const { return (flags & column_flag::kFixed) != 0; }
    /// A text takes so many UTF-16 units.
    std::size_t TextLength() const { return size / 2U; }
};

struct PhysicalIndex {
    std::vector<std::uint16_t> columns;  // numbers, all ascending
    std::uint32_t differentKeys = 0;
    RowPointer map;
    PageNumber root = 0;
    std::uint8_t flags = 0;
};

/// Name of an index, written in new files and not read back.
struct LogicalIndex {
    std::string name;
    std::uint32_t physical = 0;
    bool primary = false;
};

/// Maps of a column of long values, written in new files and not read back.
struct LongValueMaps {
    std::uint16_t column = 0;
    RowPointer owned;
    RowPointer room;
};

struct TableDefinition {
    PageNumber page = 0;  // the definition's first page: the table's name to all its data pages
    bool system = false;
    std::uint32_t rowCount = 0;
    std::uint16_t columnNumbers = 0;    // the highest number given + 1; deleted columns keep theirs
    std::uint16_t variableColumns = 0;  // deleted ones included
    RowPointer owned;                   // map of the data pages
    RowPointer room;                    // map of those where a row may be added
    std::vector<Column> columns;        // by number
    std::vector<PhysicalIndex> indexes;
    std::vector<LogicalIndex> logicalIndexes;
    std::vector<LongValueMaps> longValues;

    /// By name without regard to case; nullptr where there is none.
    const Column* Find(std::string_view name) const;
};

/// Reads a definition; error engine::kFile for one that contradicts itself.
TableDefinition ReadDefinition(const Image& image, PageNumber page);

/// Writes a new table's definition onto its first page and as many more at the end of the file as it needs.
void WriteDefinition(Image& image, const TableDefinition& table);

void CountOneMoreRow(Image& image, PageNumber definition);
void WriteDifferentKeys(Image& image, PageNumber definition, std::size_t index, std::uint32_t keys);

/// The bytes that a type takes in the fixed part of a row; 0 where the column says it.
std::size_t FixedSizeOf(ColumnType type);

}  // namespace terravane::jet
