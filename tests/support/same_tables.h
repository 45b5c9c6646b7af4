/// Whether two databases hold the same: what a file must survive when it is saved and opened again.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "jet/database.h"

namespace terravane::support {

/// The same user tables with the same columns and rows, in the same order.
inline bool SameTables(const jet::Database& left, const jet::Database& right)
{
    const std::vector<std::string> tables = left.TableNames();
    return tables == right.TableNames() && std::ranges::all_of(tables, [&](const std::string& table) {
               return left.ReadRows(table) == right.ReadRows(table);
           });
}

}  // namespace terravane::support
