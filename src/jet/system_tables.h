/// The tables that describe all others, and what a new file's hold. The data of it stands here, once.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "jet/page.h"
#include "jet/table_definition.h"

namespace terravane::jet {

/// Who may do something; two bytes under the mask that belongs to the creation date in the header.
enum class Identifier : std::uint16_t { Admin = 0x33A6, Users = 0x33A7, Engine = 0x31A7, Creator = 0x36A7 };

struct SystemColumn {
    std::string_view name;
    ColumnType type;
    std::uint16_t size;
    std::uint8_t flags;
};

struct SystemIndex {
    std::string_view name;
    std::array<std::string_view, 3> columns;  // those with a name
    std::uint8_t flags;
    bool primary;
};

/// Columns by number, physical indexes in their order; each index has one leaf.
struct SystemTable {
    std::string_view name;
    std::span<const SystemColumn> columns;
    std::span<const SystemIndex> indexes;
};

/// In the order of their definition pages, 2 to 5.
std::span<const SystemTable> SystemTables();

/// The places of a new file's pages.
inline constexpr PageNumber kFreeMapPage = 1;
inline constexpr PageNumber kObjectsPage = 2;  // of the catalog's definition, in every file
inline constexpr PageNumber kRightsPage = 3;
inline constexpr PageNumber kSystemMapsPage = 6;
inline constexpr PageNumber kFirstLeafPage = 7;

inline constexpr std::uint32_t kTablesContainer = 0x0F000001;
inline constexpr std::int16_t kTableType = 1;
inline constexpr std::uint32_t kSystemObject = 0x80000000;
inline constexpr std::uint32_t kHiddenObject = 0x80000002;  // system or hidden

/// A row of MSysObjects.
struct CatalogObject {
    std::uint32_t id;
    std::uint32_t parent;
    std::string_view name;
    std::int16_t type;
    Identifier owner;
    std::uint32_t flags;
};

/// A row of MSysACEs.
struct Right {
    std::uint32_t object;
    Identifier who;
    std::uint32_t rights;
    bool inheritable;
};

std::span<const CatalogObject> NewObjects();
std::span<const Right> NewRights();

/// What everyone may do with a user table.
inline constexpr std::uint32_t kAllRights = 0xFFEFF;

}  // namespace terravane::jet
