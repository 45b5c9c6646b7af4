#include "jet/system_tables.h"

namespace terravane::jet {

namespace {

using enum ColumnType;

constexpr std::uint8_t kFixed = 0x13;
constexpr std::uint8_t kVariable = 0x12;
constexpr std::uint8_t kIdentifier = 0x32;

constexpr std::uint8_t kUnique = 0x81;
constexpr std::uint8_t kRequired = 0x88;
constexpr std::uint8_t kNullsLeftOut = 0x82;

constexpr std::array kObjectsColumns{
    SystemColumn{"Id", Int32, 4, kFixed},
    SystemColumn{"ParentId", Int32, 4, kFixed},
    SystemColumn{"Name", Text, 510, kVariable},
    SystemColumn{"Type", Int16, 2, kFixed},
    SystemColumn{"DateCreate", Date, 8, kFixed},
    SystemColumn{"DateUpdate", Date, 8, kFixed},
    SystemColumn{"Owner", Binary, 510, kIdentifier},
    SystemColumn{"Flags", Int32, 4, kFixed},
    SystemColumn{"Database", Memo, 0, kVariable},
    SystemColumn{"Connect", Memo, 0, kVariable},
    SystemColumn{"ForeignName", Text, 510, kVariable},
    SystemColumn{"RmtInfoShort", Binary, 510, kVariable},
    SystemColumn{"RmtInfoLong", LongBinary, 0, kVariable},
    SystemColumn{"Lv", LongBinary, 0, kVariable},
    SystemColumn{"LvProp", LongBinary, 0, kVariable},
    SystemColumn{"LvModule", LongBinary, 0, kVariable},
    SystemColumn{"LvExtra", LongBinary, 0, kVariable},
};
constexpr std::array kObjectsIndexes{
    SystemIndex{"ParentIdName", {"ParentId", "Name"}, kUnique, false},
    SystemIndex{"Id", {"Id"}, kUnique, true},
};

constexpr std::array kRightsColumns{
    SystemColumn{"ObjectId", Int32, 4, kFixed},
    SystemColumn{"SID", Binary, 510, kIdentifier},
    SystemColumn{"ACM", Int32, 4, kFixed},
    SystemColumn{"FInheritable", Boolean, 1, kFixed},
};
constexpr std::array kRightsIndexes{SystemIndex{"ObjectId", {"ObjectId"}, kRequired, false}};

constexpr std::array kQueriesColumns{
    SystemColumn{"ObjectId", Int32, 4, kFixed},    SystemColumn{"Attribute", Byte, 1, kFixed},
    SystemColumn{"Order", Binary, 510, kVariable}, SystemColumn{"Name1", Text, 510, kVariable},
    SystemColumn{"Name2", Text, 510, kVariable},   SystemColumn{"Expression", Memo, 0, kVariable},
    SystemColumn{"Flag", Int16, 2, kFixed},        SystemColumn{"LvExtra", Int32, 4, kFixed},
};
constexpr std::array kQueriesIndexes{
    SystemIndex{"ObjectIdAttribute", {"ObjectId", "Attribute", "Order"}, kUnique, true}};

constexpr std::array kRelationshipsColumns{
    SystemColumn{"szRelationship", Text, 510, kVariable},
    SystemColumn{"grbit", Int32, 4, kFixed},
    SystemColumn{"ccolumn", Int32, 4, kFixed},
    SystemColumn{"icolumn", Int32, 4, kFixed},
    SystemColumn{"szObject", Text, 510, kVariable},
    SystemColumn{"szColumn", Text, 510, kVariable},
    SystemColumn{"szReferencedObject", Text, 510, kVariable},
    SystemColumn{"szReferencedColumn", Text, 510, kVariable},
};
constexpr std::array kRelationshipsIndexes{
    SystemIndex{"szRelationship", {"szRelationship"}, kNullsLeftOut, false},
    SystemIndex{"szObject", {"szObject"}, kNullsLeftOut, false},
    SystemIndex{"szReferencedObject", {"szReferencedObject"}, kNullsLeftOut, false},
};

constexpr std::array kSystemTables{
    SystemTable{"MSysObjects", kObjectsColumns, kObjectsIndexes},
    SystemTable{"MSysACEs", kRightsColumns, kRightsIndexes},
    SystemTable{"MSysQueries", kQueriesColumns, kQueriesIndexes},
    SystemTable{"MSysRelationships", kRelationshipsColumns, kRelationshipsIndexes},
};

constexpr std::uint32_t kRoot = 0x0F000000;
constexpr std::uint32_t kTables = kTablesContainer;
constexpr std::uint32_t kDatabases = 0x0F000002;
constexpr std::uint32_t kRelationships = 0x0F000003;
constexpr std::uint32_t kSystemDatabase = 0x10000000;
constexpr std::int16_t kDatabaseType = 2;
constexpr std::int16_t kContainerType = 3;
using enum Identifier;

constexpr std::array kNewObjects{
    CatalogObject{kTables, kRoot, "Tables", kContainerType, Engine, kSystemObject},
    CatalogObject{kDatabases, kRoot, "Databases", kContainerType, Engine, kSystemObject},
    CatalogObject{kRelationships, kRoot, "Relationships", kContainerType, Engine, kSystemObject},
    CatalogObject{kSystemDatabase, kDatabases, "MSysDb", kDatabaseType, Admin, kSystemObject},
    CatalogObject{2, kTables, "MSysObjects", kTableType, Engine, kSystemObject},
    CatalogObject{3, kTables, "MSysACEs", kTableType, Engine, kSystemObject},
    CatalogObject{4, kTables, "MSysQueries", kTableType, Engine, kSystemObject},
    CatalogObject{5, kTables, "MSysRelationships", kTableType, Engine, kSystemObject},
};

constexpr std::array kNewRights{
    Right{2, Admin, 0x60000, false},
    Right{3, Admin, 0x60000, false},
    Right{4, Admin, 0x60000, false},
    Right{5, Admin, 0xE0000, false},
    Right{kTables, Creator, 0xF00FE, true},
    Right{kTables, Admin, 0xFFEFF, true},
    Right{kRelationships, Creator, 0xF00FE, true},
    Right{kRelationships, Admin, 0x60001, false},
    Right{kDatabases, Admin, 0x60000, false},
    Right{kSystemDatabase, Admin, 0x6000E, false},
    Right{kSystemDatabase, Users, 0x0000E, false},
    Right{4, Users, 0x14, false},
    Right{5, Users, 0x14, false},
    Right{2, Users, 0x14, false},
    Right{kTables, Users, 0xFFEFF, true},
    Right{kRelationships, Users, 0xFFFFF, true},
};

}  // namespace

std::span<const SystemTable> SystemTables()
{
    return kSystemTables;
}
std::span<const CatalogObject> NewObjects()
{
    return kNewObjects;
}
std::span<const Right> NewRights()
{
    return kNewRights;
}

}  // namespace terravane::jet
