#include "jet/recordset.h"

#include <algorithm>
#include <utility>

#include "jet/engine_error.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

RuntimeError NoCurrentRecord()
{
    return RuntimeError(engine::kNoCurrentRecord,
                        "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                        "requires a current record.");
}

RuntimeError ItemNotFound()
{
    return RuntimeError(engine::kItemNotFound,
                        "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

}  // namespace

Recordset::Recordset(Rows rows) : rows_(std::make_shared<const Rows>(std::move(rows))) {}

Recordset Recordset::Affected(int rows)
{
    Recordset result;
    result.affected_ = rows;
    return result;
}

const Rows& Recordset::Held() const
{
    static const Rows kNone;
    return rows_ ? *rows_ : kNone;
}

void Recordset::MoveNext()
{
    if (Eof()) throw NoCurrentRecord();
    ++current_;
}

void Recordset::MoveFirst()
{
    if (RowCount() == 0) throw NoCurrentRecord();
    current_ = 0;
}

const Value& Recordset::ValueOf(std::string_view name) const
{
    const auto& [columns, rows] = Held();
    const auto column = std::ranges::find_if(columns, [&](const std::string& other) { return SameName(other, name); });
    if (column == columns.end()) throw ItemNotFound();
    if (Eof()) throw NoCurrentRecord();
    return rows[current_][static_cast<std::size_t>(column - columns.begin())];
}

const std::string& Recordset::Fields(std::string_view name) const&
{
    static const std::string kNull;
    const Value& value = ValueOf(name);
    return value ? *value : kNull;
}

bool Recordset::IsNull(std::string_view name) const
{
    return !ValueOf(name).has_value();
}

}  // namespace terravane::jet
