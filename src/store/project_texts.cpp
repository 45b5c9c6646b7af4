#include "store/project_texts.h"

#include <algorithm>

#include "jet/database.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane {

ProjectTexts::ProjectTexts(const Bytes& content, std::string_view only)
{
    const auto database = jet::Database::FromBytes(content);
    for (const TableSchema& table : ProjectTables()) {
        if (only.empty() || table.name == only) tables_.emplace(std::string(table.name), database.ReadRows(table.name));
    }
}

std::string ProjectTexts::Text(std::string_view table, std::string_view column, int row) const
{
    const jet::Rows& rows = Table(table);
    const auto found =
        std::ranges::find_if(rows.columns, [column](const std::string& name) { return SameName(name, column); });
    if (found == rows.columns.end() || row > static_cast<int>(rows.rows.size())) return {};
    const auto place = static_cast<std::size_t>(found - rows.columns.begin());
    return rows.rows[static_cast<std::size_t>(row - 1)][place].value_or("");
}

std::string ProjectTexts::Trimmed(std::string_view table, std::string_view column, int row) const
{
    return std::string(Trim(Text(table, column, row)));
}

}  // namespace terravane
