/*  The pages of a new file:

    0        header                                  7 to 13  leaves of the system tables' indexes
    1        maps: free pages, an empty one          14       rows of MSysObjects
    2 to 5   definitions of the system tables        15       rows of MSysACEs
    6        31 maps of the system tables            then, for each table: definition, its two maps, its rows

    Page 6, for each system table: owned, room; owned, room of each column of long values by number; its
   indexes.   */
#include "jet/new_file.h"

#include <algorithm>
#include <chrono>

#include "jet/catalog.h"
#include "jet/data_page.h"
#include "jet/index_leaf.h"
#include "jet/system_tables.h"
#include "jet/table_definition.h"
#include "jet/usage_map.h"
#include "runtime/machine.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

constexpr PageNumber kNewPages = 16;
constexpr PageNumber kFirstDataPage = 14;  // of MSysObjects; that of MSysACEs follows, the others have none
constexpr std::size_t kTablesWithRows = 2;
constexpr std::size_t kMapBits = (kMapRow - 5) * 8;
constexpr std::size_t kMaxText = 255;
constexpr std::size_t kMaxName = 64;

// --- system tables

Bytes MapWith(PageNumber first, PageNumber end)
{
    Bytes map = EmptyMap();
    for (PageNumber page = first; page < end; ++page) WriteBit(MutableBytes(map).subspan(5), page, true);
    return map;
}

/// Hands out the places of the system tables' maps and what is in them.
class SystemMaps {
  public:
    RowPointer Add(Bytes map)
    {
        slots_.push_back({slot::kPlain, std::move(map)});
        return {kSystemMapsPage, U8(slots_.size() - 1)};
    }
    const std::vector<SlotContent>& Slots() const { return slots_; }

  private:
    std::vector<SlotContent> slots_;
};

/// Numbers, offsets and places in the row follow from the order of the columns.
void AddSystemColumn(TableDefinition& table, const SystemColumn& from, std::uint16_t language)
{
    Column column{.name = std::string(from.name),
                  .type = from.type,
                  .number = table.columnNumbers++,
                  .variableIndex = table.variableColumns,
                  .language = language,
                  .flags = from.flags,
                  .size = from.size};
    for (const Column& before : table.columns) {
        const bool takesRoom = column.IsFixed() && before.IsFixed() && from.type != ColumnType::Boolean;
        if (takesRoom) column.fixedOffset = U16(before.fixedOffset + std::size_t{before.size});
    }
    if (!column.IsFixed()) ++table.variableColumns;
    table.columns.push_back(std::move(column));
}

void AddLongValueMaps(TableDefinition& table, SystemMaps& maps)
{
    for (const Column& column : table.columns) {
        if (column.type != ColumnType::Memo && column.type != ColumnType::LongBinary) continue;
        const RowPointer owned = maps.Add(EmptyMap());
        table.longValues.push_back({column.number, owned, maps.Add(EmptyMap())});
    }
    std::ranges::sort(table.longValues, {}, [&](const LongValueMaps& entry) -> const std::string& {
        return table.columns[entry.column].name;
    });
}

void AddSystemIndex(TableDefinition& table, const SystemIndex& from, PageNumber root, SystemMaps& maps)
{
    PhysicalIndex index{.map = maps.Add(MapWith(root, root + 1)), .root = root, .flags = from.flags};
    for (const std::string_view name : from.columns) {
        if (!name.empty()) index.columns.push_back(table.Find(name)->number);
    }
    const auto number = static_cast<std::uint32_t>(table.indexes.size());
    table.logicalIndexes.push_back({std::string(from.name), number, from.primary});
    table.indexes.push_back(std::move(index));
}

TableDefinition SystemDefinition(std::size_t number, PageNumber& leaf, SystemMaps& maps, std::uint16_t language)
{
    const SystemTable& from = SystemTables()[number];
    const PageNumber rows = kFirstDataPage + static_cast<PageNumber>(number);
    const PageNumber end = number < kTablesWithRows ? rows + 1 : rows;
    TableDefinition table;
    table.page = kObjectsPage + static_cast<PageNumber>(number);
    table.system = true;
    table.owned = maps.Add(MapWith(rows, end));
    table.room = maps.Add(MapWith(rows, end));
    for (const SystemColumn& column : from.columns) AddSystemColumn(table, column, language);
    AddLongValueMaps(table, maps);
    for (const SystemIndex& index : from.indexes) AddSystemIndex(table, index, leaf++, maps);
    std::ranges::sort(table.logicalIndexes, {}, &LogicalIndex::name);
    return table;
}

void WriteSystemTable(Image& image, const TableDefinition& table)
{
    WriteDefinition(image, table);
    for (const PhysicalIndex& index : table.indexes) WriteLeaf(image.Change(index.root), table.page, {});
    for (const PageNumber page : PagesOf(image, table.owned)) FormatDataPage(image.Change(page), table.page);
}

void WriteSystemTables(Image& image, std::uint16_t language)
{
    SystemMaps maps;
    std::vector<TableDefinition> tables;
    PageNumber leaf = kFirstLeafPage;
    for (std::size_t i = 0; i < SystemTables().size(); ++i) {
        tables.push_back(SystemDefinition(i, leaf, maps, language));
    }
    FormatDataPage(image.Change(kSystemMapsPage), 0);
    LayOut(image.Change(kSystemMapsPage), maps.Slots());
    for (const TableDefinition& table : tables) WriteSystemTable(image, table);
}

void WriteFreeMap(Image& image)
{
    FormatDataPage(image.Change(kFreeMapPage), 1);
    LayOut(image.Change(kFreeMapPage), {{slot::kPlain, MapWith(kNewPages, kMapBits)}, {slot::kPlain, EmptyMap()}});
}

// --- user tables

RuntimeError NotAllowed(const std::string& what)
{
    return RuntimeError(engine::kSyntax, what);
}

bool IsName(std::string_view name)
{
    constexpr std::string_view kForbidden = ".!`[]";
    return !name.empty() && CharacterCount(name) <= kMaxName && name.front() != ' ' &&
           std::ranges::none_of(name, [&](char c) {
               return kForbidden.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ';
           });
}

void CheckColumns(const NewTable& table)
{
    if (table.columns.size() > kMaxColumns) throw NotAllowed("Too many fields defined in table '" + table.name + "'.");
    for (auto column = table.columns.begin(); column != table.columns.end(); ++column) {
        if (!IsName(column->name)) throw NotAllowed("'" + column->name + "' is not a valid name.");
        if (column->length == 0 || column->length > kMaxText) {
            throw NotAllowed("Size of field '" + column->name + "' is not between 1 and 255.");
        }
        if (std::any_of(table.columns.begin(), column, [&](const auto& c) { return SameName(c.name, column->name); })) {
            throw NotAllowed("Cannot define field '" + column->name + "' more than once.");
        }
    }
}

void CheckTable(const Image& image, const NewTable& table)
{
    if (!IsName(table.name) || !CanBeKey(table.name)) throw NotAllowed("'" + table.name + "' is not a valid name.");
    const auto tables = UserTables(image);
    const auto isNamesake = [&](const TableEntry& entry) { return SameName(entry.name, table.name); };
    if (std::ranges::any_of(tables, isNamesake)) throw NotAllowed("Table '" + table.name + "' already exists.");
    CheckColumns(table);
}

TableDefinition DefinitionOf(const NewTable& from, PageNumber page, PageNumber maps, std::uint16_t language)
{
    TableDefinition table;
    table.page = page;
    table.owned = {maps, 0};
    table.room = {maps, 1};
    for (const NewColumn& column : from.columns) {
        const std::uint16_t number = table.columnNumbers++;
        table.columns.push_back({.name = column.name,
                                 .number = number,
                                 .variableIndex = number,
                                 .position = number,
                                 .language = language,
                                 .size = U16(2 * column.length)});
    }
    table.variableColumns = table.columnNumbers;
    return table;
}

void AddToCatalog(Image& image, std::string_view name, PageNumber page, double created)
{
    AddObject(image, {page, kTablesContainer, name, kTableType, Identifier::Admin, 0}, created);
    AddRight(image, {page, Identifier::Admin, kAllRights, false});
    AddRight(image, {page, Identifier::Users, kAllRights, false});
    RebuildCatalogIndexes(image);
}

}  // namespace

double LocalNow()
{
    using Days = std::chrono::duration<double, std::chrono::days::period>;
    constexpr auto kFirstDay = std::chrono::local_days(std::chrono::year(1899) / 12 / 30);
    return Days(terravane::LocalNow() - kFirstDay).count();
}

Image NewImage(const Locale& locale, double created)
{
    Image image(Bytes(kNewPages * kPageSize, 0));
    WriteHeader(image.Change(0), locale);
    WriteFreeMap(image);
    WriteSystemTables(image, locale.language);
    for (const CatalogObject& object : NewObjects()) AddObject(image, object, created);
    for (const Right& right : NewRights()) AddRight(image, right);
    RebuildCatalogIndexes(image);
    return image;
}

void CreateTable(Image& image, const NewTable& table, const Locale& locale, double created)
{
    CheckTable(image, table);
    const PageNumber page = TakeNewPage(image, PageKind::Definition);
    const PageNumber maps = TakeNewPage(image, PageKind::Data);
    FormatDataPage(image.Change(maps), 0);
    LayOut(image.Change(maps), {{slot::kPlain, EmptyMap()}, {slot::kPlain, EmptyMap()}});
    WriteDefinition(image, DefinitionOf(table, page, maps, locale.language));
    AddToCatalog(image, table.name, page, created);
}

}  // namespace terravane::jet
