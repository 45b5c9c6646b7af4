/*  A definition is one block that begins on the definition page and goes on at byte 8 of the next ones:

    0x00  02 01, u16 free bytes of this page less 8, u32 next page or 0     (on each page)
    0x08  u32  length of the block, the first page's header counted in
    0x0C  u32  1625                         0x2D  u16  columns present
    0x10  u32  rows                         0x2F  u32  logical indexes
    0x14  u32  last autonumber              0x33  u32  physical indexes
    0x18  u32  1                            0x37  u32  map of owned pages
    0x28  u8   'N' user, 'S' system         0x3B  u32  map of pages with room
    0x29  u16  highest column number + 1    0x3F  12 a physical index: u32 0, u32 different keys, u32 0
    0x2B  u16  variable columns
    then  25 a column, the columns' names, 52 a physical index, 28 a logical one, their names,
          10 a column of long values, FF FF. A name is u16 bytes, UTF-16LE.

    Column, 25 bytes: u8 type, u32 1625, u16 number, u16 variable index, u16 position, u32 language, u8 flags,
                      u8 compressible, u32 0, u16 fixed offset, u16 size */
#include "jet/table_definition.h"

#include <algorithm>
#include <set>
#include <utility>

#include "jet/text_codec.h"
#include "jet/usage_map.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

constexpr std::size_t kPageHeader = 8;
constexpr std::size_t kFixedPart = 0x3F;
constexpr std::size_t kNextPageAt = 0x04;
constexpr std::size_t kLengthAt = 0x08;
constexpr std::size_t kRowCountAt = 0x10;
constexpr std::size_t kKeysAt = kFixedPart + 4;  // of the first physical index
constexpr std::size_t kIndexStep = 12;
constexpr std::uint32_t kConstant = 1625;
constexpr std::uint32_t kIndexConstant = 1923;
constexpr std::size_t kMaxIndexes = 64;
constexpr std::size_t kKeyColumns = 10;
constexpr std::uint16_t kNoColumn = 0xFFFF;

/// Reads a block from front to end.
class Cursor {
  public:
    Cursor(ByteView bytes, std::size_t at) : bytes_(bytes), at_(at) {}

    template <typename T>
    T Take()
    {
        at_ += sizeof(T);
        return Get<T>(bytes_, at_ - sizeof(T));
    }
    void Skip(std::size_t count) { at_ += count; }
    ByteView TakeBytes(std::size_t count)
    {
        at_ += count;
        return Part(bytes_, at_ - count, count);
    }

  private:
    ByteView bytes_;
    std::size_t at_;
};

// --- reading

/// The block, put together from its pages; no longer than it says it is.
Bytes ReadBlock(const Image& image, PageNumber number)
{
    const ByteView first = image.Page(number, PageKind::Definition);
    const std::size_t length = Get<std::uint32_t>(first, kLengthAt);
    Bytes block(first.begin(), first.end());
    std::set<PageNumber> visited{number};
    for (PageNumber next = Get<std::uint32_t>(first, kNextPageAt); block.size() < length && next != 0;) {
        if (!visited.insert(next).second) throw Damaged("the definition of a table leads back into itself");
        const ByteView page = image.Page(next, PageKind::Definition);
        Append(block, page.subspan(kPageHeader));
        next = Get<std::uint32_t>(page, kNextPageAt);
    }
    if (length < kFixedPart || length > block.size()) throw Damaged("the definition of a table is cut short");
    block.resize(length);
    return block;
}

Column TakeColumn(Cursor& from)
{
    Column column;
    column.type = static_cast<ColumnType>(from.Take<std::uint8_t>());
    from.Skip(4);
    column.number = from.Take<std::uint16_t>();
    column.variableIndex = from.Take<std::uint16_t>();
    column.position = from.Take<std::uint16_t>();
    column.language = static_cast<std::uint16_t>(from.Take<std::uint32_t>() & 0xFFFF);
    column.flags = from.Take<std::uint8_t>();
    column.compressible = (from.Take<std::uint8_t>() & 1) != 0;
    from.Skip(4);
    column.fixedOffset = from.Take<std::uint16_t>();
    column.size = from.Take<std::uint16_t>();
    return column;
}

void CheckColumn(const TableDefinition& table, const Column& column)
{
    if (column.number >= table.columnNumbers) throw Damaged("a column's number is out of its table's range");
    if (!column.IsFixed() && column.variableIndex >= table.variableColumns) {
        throw Damaged("a column's place in the row is out of its table's range");
    }
    const std::size_t fixedSize = FixedSizeOf(column.type);
    if (column.IsFixed() && fixedSize != 0 && column.size != fixedSize) {
        throw Damaged("a column's size does not go with its type");
    }
}

void SortColumns(std::vector<Column>& columns)
{
    std::ranges::stable_sort(columns, {}, &Column::number);
    if (std::ranges::adjacent_find(columns, {}, &Column::number) != columns.end()) {
        throw Damaged("two columns of a table have one number");
    }
}

void TakeColumns(Cursor& from, TableDefinition& table, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        table.columns.push_back(TakeColumn(from));
        CheckColumn(table, table.columns.back());
    }
    for (Column& column : table.columns) column.name = DecodeText(from.TakeBytes(from.Take<std::uint16_t>()));
    SortColumns(table.columns);
}

PhysicalIndex TakeIndex(Cursor& from)
{
    PhysicalIndex index;
    from.Skip(4);
    for (std::size_t i = 0; i < kKeyColumns; ++i) {
        const auto column = from.Take<std::uint16_t>();
        if (column != kNoColumn) index.columns.push_back(column);
        from.Skip(1);
    }
    index.map = RowPointer::Unpack(from.Take<std::uint32_t>());
    index.root = from.Take<std::uint32_t>();
    from.Skip(4);
    index.flags = from.Take<std::uint8_t>();
    from.Skip(5);
    return index;
}

// --- writing

Bytes FixedPart(const TableDefinition& table)
{
    Bytes block(kFixedPart, 0);
    Put<std::uint32_t>(block, 0x0C, kConstant);
    Put<std::uint32_t>(block, kRowCountAt, table.rowCount);
    Put<std::uint32_t>(block, 0x18, 1);
    Put<std::uint8_t>(block, 0x28, table.system ? 'S' : 'N');
    Put<std::uint16_t>(block, 0x29, table.columnNumbers);
    Put<std::uint16_t>(block, 0x2B, table.variableColumns);
    Put<std::uint16_t>(block, 0x2D, U16(table.columns.size()));
    Put<std::uint32_t>(block, 0x2F, static_cast<std::uint32_t>(table.logicalIndexes.size()));
    Put<std::uint32_t>(block, 0x33, static_cast<std::uint32_t>(table.indexes.size()));
    Put<std::uint32_t>(block, 0x37, table.owned.Packed());
    Put<std::uint32_t>(block, 0x3B, table.room.Packed());
    return block;
}

void AppendColumn(Bytes& block, const Column& column)
{
    Append<std::uint8_t>(block, static_cast<std::uint8_t>(column.type));
    Append<std::uint32_t>(block, kConstant);
    Append<std::uint16_t>(block, column.number);
    Append<std::uint16_t>(block, column.variableIndex);
    Append<std::uint16_t>(block, column.position);
    Append<std::uint32_t>(block, column.language);
    Append<std::uint8_t>(block, column.flags);
    Append<std::uint8_t>(block, column.compressible ? 1 : 0);
    Append<std::uint32_t>(block, 0);
    Append<std::uint16_t>(block, column.fixedOffset);
    Append<std::uint16_t>(block, column.size);
}

void AppendName(Bytes& block, std::string_view name)
{
    const Bytes text = PlainText(ToUtf16(name));
    Append<std::uint16_t>(block, U16(text.size()));
    Append(block, text);
}

void AppendIndex(Bytes& block, const PhysicalIndex& index)
{
    Append<std::uint32_t>(block, kIndexConstant);
    for (std::size_t i = 0; i < kKeyColumns; ++i) {
        const bool used = i < index.columns.size();
        Append<std::uint16_t>(block, used ? index.columns[i] : kNoColumn);
        Append<std::uint8_t>(block, used ? 1 : 0);
    }
    Append<std::uint32_t>(block, index.map.Packed());
    Append<std::uint32_t>(block, index.root);
    Append<std::uint32_t>(block, 0);
    Append<std::uint8_t>(block, index.flags);
    Append(block, Bytes(5, 0));
}

void AppendLogicalIndex(Bytes& block, const LogicalIndex& index)
{
    Append<std::uint32_t>(block, kConstant);
    Append<std::uint32_t>(block, index.physical);  // its number: the order in which they were made
    Append<std::uint32_t>(block, index.physical);
    Append<std::uint8_t>(block, 0);
    Append<std::uint32_t>(block, 0xFFFFFFFF);
    Append<std::uint32_t>(block, 0);
    Append<std::uint8_t>(block, 4);
    Append<std::uint8_t>(block, 4);
    Append<std::uint8_t>(block, index.primary ? 1 : 0);
    Append<std::uint32_t>(block, 0);
}

void AppendLongValue(Bytes& block, const LongValueMaps& maps)
{
    Append<std::uint16_t>(block, maps.column);
    Append<std::uint32_t>(block, maps.owned.Packed());
    Append<std::uint32_t>(block, maps.room.Packed());
}

/// System tables keep their columns sorted by name, user tables in the order of creation.
std::vector<Column> ColumnsAsWritten(const TableDefinition& table)
{
    std::vector<Column> columns = table.columns;
    if (table.system) std::ranges::sort(columns, {}, &Column::name);
    return columns;
}

Bytes BuildBlock(const TableDefinition& table)
{
    Bytes block = FixedPart(table);
    for (const PhysicalIndex& index : table.indexes) {
        Append<std::uint32_t>(block, 0);
        Append<std::uint32_t>(block, index.differentKeys);
        Append<std::uint32_t>(block, 0);
    }
    const std::vector<Column> columns = ColumnsAsWritten(table);
    for (const Column& column : columns) AppendColumn(block, column);
    for (const Column& column : columns) AppendName(block, column.name);
    for (const PhysicalIndex& index : table.indexes) AppendIndex(block, index);
    for (const LogicalIndex& index : table.logicalIndexes) AppendLogicalIndex(block, index);
    for (const LogicalIndex& index : table.logicalIndexes) AppendName(block, index.name);
    for (const LongValueMaps& maps : table.longValues) AppendLongValue(block, maps);
    Append<std::uint16_t>(block, 0xFFFF);
    Put<std::uint32_t>(block, kLengthAt, static_cast<std::uint32_t>(block.size()));
    return block;
}

/// One page of the block; `from` says where on the page its bytes begin.
void WritePart(MutableBytes page, ByteView part, std::size_t from, PageNumber next)
{
    std::ranges::fill(page, std::uint8_t{0});
    std::ranges::copy(part, page.begin() + static_cast<std::ptrdiff_t>(from));
    const std::size_t end = from + part.size();
    Put<std::uint16_t>(page, 0, 0x0102);
    Put<std::uint16_t>(page, 2, U16(kPageSize - kPageHeader - std::min(end, kPageSize - kPageHeader)));
    Put<std::uint32_t>(page, kNextPageAt, next);
}

}  // namespace

const Column* TableDefinition::Find(std::string_view name) const
{
    const auto found = std::ranges::find_if(columns, [&](const Column& c) { return SameName(c.name, name); });
    return found == columns.end() ? nullptr : &*found;
}

std::size_t FixedSizeOf(ColumnType type)
{
    switch (type) {
        case ColumnType::Boolean:
        case ColumnType::Byte:
            return 1;
        case ColumnType::Int16:
            return 2;
        case ColumnType::Int32:
        case ColumnType::Float:
            return 4;
        case ColumnType::Currency:
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        case ColumnType::Guid:
            return 16;
        case ColumnType::Numeric:
            return 17;
        case ColumnType::Binary:
        case ColumnType::Text:
        case ColumnType::LongBinary:
        case ColumnType::Memo:
            break;
    }
    return 0;
}

TableDefinition ReadDefinition(const Image& image, PageNumber page)
{
    const Bytes block = ReadBlock(image, page);
    TableDefinition table;
    table.page = page;
    table.system = Get<std::uint8_t>(block, 0x28) == 'S';
    table.rowCount = Get<std::uint32_t>(block, kRowCountAt);
    table.columnNumbers = Get<std::uint16_t>(block, 0x29);
    table.variableColumns = Get<std::uint16_t>(block, 0x2B);
    table.owned = RowPointer::Unpack(Get<std::uint32_t>(block, 0x37));
    table.room = RowPointer::Unpack(Get<std::uint32_t>(block, 0x3B));
    const std::size_t columns = Get<std::uint16_t>(block, 0x2D);
    const std::size_t indexes = Get<std::uint32_t>(block, 0x33);
    if (columns > kMaxColumns || indexes > kMaxIndexes) throw Damaged("a table has too many columns or indexes");
    Cursor cursor(block, kFixedPart + kIndexStep * indexes);
    TakeColumns(cursor, table, columns);
    for (std::size_t i = 0; i < indexes; ++i) table.indexes.push_back(TakeIndex(cursor));
    for (std::size_t i = 0; i < indexes; ++i) {
        table.indexes[i].differentKeys = Get<std::uint32_t>(block, kKeysAt + kIndexStep * i);
    }
    return table;
}

void WriteDefinition(Image& image, const TableDefinition& table)
{
    const Bytes block = BuildBlock(table);
    PageNumber page = table.page;
    std::size_t from = 0;  // on the first page the block holds the page's header
    for (std::size_t done = 0; done < block.size();) {
        const std::size_t count = std::min(block.size() - done, kPageSize - from);
        const bool last = done + count == block.size();
        const PageNumber next = last ? 0 : TakeNewPage(image, PageKind::Definition);
        WritePart(image.Change(page), ByteView(block).subspan(done, count), from, next);
        done += count;
        page = next;
        from = kPageHeader;
    }
}

void CountOneMoreRow(Image& image, PageNumber definition)
{
    const MutableBytes page = image.Change(definition);
    Put<std::uint32_t>(page, kRowCountAt, Get<std::uint32_t>(page, kRowCountAt) + 1);
}

void WriteDifferentKeys(Image& image, PageNumber definition, std::size_t index, std::uint32_t keys)
{
    Put<std::uint32_t>(image.Change(definition), kKeysAt + kIndexStep * index, keys);
}

}  // namespace terravane::jet
