#include "jet/catalog.h"

#include <bit>

#include "jet/column_value.h"
#include "jet/index_leaf.h"
#include "jet/row.h"
#include "jet/table_rows.h"
#include "jet/text_codec.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

constexpr std::uint32_t kPageOfId = 0x00FFFFFF;
constexpr std::string_view kSystemPrefix = "MSys";

const Column& Named(const TableDefinition& table, std::string_view name)
{
    const Column* const column = table.Find(name);
    if (column == nullptr) throw Damaged("the catalog lacks the column " + std::string(name));
    return *column;
}

/// A whole number of a catalog row; 0 for a null.
template <typename T>
T NumberOf(const TableDefinition& table, const RowView& row, std::string_view name)
{
    const auto bytes = row.BytesOf(Named(table, name));
    return bytes ? Get<T>(*bytes, 0) : T{0};
}

std::string TableNameOf(const TableDefinition& table, const RowView& row)
{
    const auto bytes = row.BytesOf(Named(table, "Name"));
    return bytes ? DecodeText(*bytes) : std::string();
}

bool IsUserTable(const TableDefinition& catalog, const RowView& row)
{
    return NumberOf<std::uint16_t>(catalog, row, "Type") == kTableType &&
           (NumberOf<std::uint32_t>(catalog, row, "Flags") & kHiddenObject) == 0 &&
           !SameName(Left(TableNameOf(catalog, row), kSystemPrefix.size()), kSystemPrefix);
}

template <typename T>
void SetNumber(RowParts& row, const TableDefinition& table, std::string_view name, T value)
{
    Bytes bytes;
    Append<T>(bytes, value);
    row.Set(Named(table, name), bytes);
}

/// An entry for each row of a table, its key made by `appendKey`.
template <typename AppendKeyOf>
std::vector<Bytes> EntriesOf(const Image& image, const TableDefinition& table, AppendKeyOf appendKeyOf)
{
    std::vector<Bytes> entries;
    for (const StoredRow& stored : FindRows(image, table).rows) {
        Bytes key;
        appendKeyOf(key, ReadRow(table, stored.bytes));
        entries.push_back(LeafEntry(std::move(key), stored.home));
    }
    return entries;
}

void WriteIndex(Image& image, const TableDefinition& table, std::size_t index, const std::vector<Bytes>& entries)
{
    WriteLeaf(image.Change(table.indexes.at(index).root), table.page, entries);
    WriteDifferentKeys(image, table.page, index, static_cast<std::uint32_t>(DifferentKeys(entries)));
}

std::int32_t SignedOf(const TableDefinition& table, const RowView& row, std::string_view name)
{
    return static_cast<std::int32_t>(NumberOf<std::uint32_t>(table, row, name));
}

}  // namespace

std::vector<TableEntry> UserTables(const Image& image)
{
    const TableDefinition catalog = ReadDefinition(image, kObjectsPage);
    std::vector<TableEntry> tables;
    for (const StoredRow& stored : FindRows(image, catalog).rows) {
        const RowView row = ReadRow(catalog, stored.bytes);
        if (!IsUserTable(catalog, row)) continue;
        tables.push_back({TableNameOf(catalog, row), NumberOf<std::uint32_t>(catalog, row, "Id") & kPageOfId});
    }
    return tables;
}

void AddObject(Image& image, const CatalogObject& object, double created)
{
    const TableDefinition table = ReadDefinition(image, kObjectsPage);
    RowParts row(table);
    SetNumber(row, table, "Id", object.id);
    SetNumber(row, table, "ParentId", object.parent);
    row.Set(Named(table, "Name"), PlainText(ToUtf16(object.name)));
    SetNumber(row, table, "Type", static_cast<std::uint16_t>(object.type));
    SetNumber(row, table, "DateCreate", std::bit_cast<std::uint64_t>(created));
    SetNumber(row, table, "DateUpdate", std::bit_cast<std::uint64_t>(created));
    SetNumber(row, table, "Owner", static_cast<std::uint16_t>(object.owner));
    SetNumber(row, table, "Flags", object.flags);
    AddRow(image, table, row.Build());
}

void AddRight(Image& image, const Right& right)
{
    const TableDefinition table = ReadDefinition(image, kRightsPage);
    RowParts row(table);
    SetNumber(row, table, "ObjectId", right.object);
    SetNumber(row, table, "SID", static_cast<std::uint16_t>(right.who));
    SetNumber(row, table, "ACM", right.rights);
    if (right.inheritable) SetNumber(row, table, "FInheritable", std::uint8_t{1});
    AddRow(image, table, row.Build());
}

void RebuildCatalogIndexes(Image& image)
{
    const TableDefinition objects = ReadDefinition(image, kObjectsPage);
    const TableDefinition rights = ReadDefinition(image, kRightsPage);
    WriteIndex(image, objects, 0, EntriesOf(image, objects, [&](Bytes& key, const RowView& row) {
                   AppendKey(key, SignedOf(objects, row, "ParentId"));
                   AppendKey(key, TableNameOf(objects, row));
               }));
    WriteIndex(image, objects, 1, EntriesOf(image, objects, [&](Bytes& key, const RowView& row) {
                   AppendKey(key, SignedOf(objects, row, "Id"));
               }));
    WriteIndex(image, rights, 0, EntriesOf(image, rights, [&](Bytes& key, const RowView& row) {
                   AppendKey(key, SignedOf(rights, row, "ObjectId"));
               }));
}

}  // namespace terravane::jet
