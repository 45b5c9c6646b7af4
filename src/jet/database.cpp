#include "jet/database.h"

#include <algorithm>
#include <utility>

#include "jet/column_value.h"
#include "jet/row.h"
#include "jet/table_rows.h"
#include "jet/text_codec.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

const Column& ColumnOf(const TableDefinition& table, std::string_view name)
{
    const Column* const column = table.Find(name);
    if (column != nullptr) return *column;
    throw RuntimeError(
        engine::kNoSuchColumn,
        "No value given for one or more required parameters: there is no column '" + std::string(name) + "'.");
}

// --- choosing rows

using Conditions = std::vector<std::pair<const Column*, std::string_view>>;

Conditions ConditionsOf(const TableDefinition& table, const std::vector<ColumnText>& where)
{
    Conditions conditions;
    for (const auto& [name, text] : where) conditions.emplace_back(&ColumnOf(table, name), text);
    return conditions;
}

/// Texts compare without the case of A to Z; blanks count, a null equals nothing.
bool Matches(const Image& image, const RowView& row, const Conditions& conditions)
{
    return std::ranges::all_of(conditions, [&](const auto& condition) {
        const Value value = TextOf(image, *condition.first, row);
        return value && SameName(*value, condition.second);
    });
}

// --- changing columns

struct Assignment {
    const Column* column;
    std::u16string text;
    std::string_view shown;
};

bool IsIndexed(const TableDefinition& table, const Column& column)
{
    return std::ranges::any_of(table.indexes, [&](const PhysicalIndex& index) {
        return std::ranges::find(index.columns, column.number) != index.columns.end();
    });
}

void CheckChangeable(const TableDefinition& table, const Column& column)
{
    if (column.type != ColumnType::Text || column.IsFixed()) {
        throw RuntimeError(engine::kTypeMismatch,
                           "Data type mismatch: the column '" + column.name + "' is no text of free length.");
    }
    if (IsIndexed(table, column)) throw Refused("The column '" + column.name + "' has an index and can't be changed.");
}

std::vector<Assignment> AssignmentsOf(const TableDefinition& table, const std::vector<ColumnText>& set)
{
    std::vector<Assignment> assignments;
    for (const auto& [name, text] : set) {
        const Column& column = ColumnOf(table, name);
        CheckChangeable(table, column);
        assignments.push_back({&column, ToUtf16(text), text});
    }
    return assignments;
}

void CheckLength(const Assignment& assignment)
{
    const Column& column = *assignment.column;
    if (assignment.text.size() <= column.TextLength()) return;
    throw RuntimeError(engine::kTextTooLong,
                       "The text of '" + column.name + "' is " + std::to_string(assignment.text.size()) +
                           " characters long; the column takes " + std::to_string(column.TextLength()) + ".");
}

void Assign(RowParts& row, const std::vector<Assignment>& assignments)
{
    for (const Assignment& assignment : assignments) {
        CheckLength(assignment);
        row.Set(*assignment.column, EncodeText(assignment.text, assignment.column->compressible));
    }
}

std::vector<RowChange> ChangesOf(const Image& image, const TableDefinition& table, const StoredRows& stored,
                                 const UpdateStatement& update)
{
    const std::vector<Assignment> assignments = AssignmentsOf(table, update.set);
    const Conditions conditions = ConditionsOf(table, update.where);
    std::vector<RowChange> changes;
    for (std::size_t i = 0; i < stored.rows.size(); ++i) {
        const RowView row = ReadRow(table, stored.rows[i].bytes);
        if (!Matches(image, row, conditions)) continue;
        RowParts parts(table, row);
        Assign(parts, assignments);
        changes.push_back({i, parts.Build()});
    }
    return changes;
}

/// Rows can be added where nothing but the rows has to be kept up.
void CheckOpenToRows(const TableDefinition& table, std::string_view name)
{
    const auto isCounted = [](const Column& column) { return (column.flags & column_flag::kAutonumber) != 0; };
    if (!table.indexes.empty() || std::ranges::any_of(table.columns, isCounted)) {
        throw Refused("The table '" + std::string(name) + "' has an index or counts its rows; none can be added.");
    }
}

// --- reading rows

std::vector<const Column*> ChosenColumns(const TableDefinition& table, const std::vector<std::string>& names)
{
    std::vector<const Column*> columns;
    columns.reserve(std::max(names.size(), table.columns.size()));
    for (const std::string& name : names) columns.push_back(&ColumnOf(table, name));
    if (!names.empty()) return columns;
    for (const Column& column : table.columns) columns.push_back(&column);
    return columns;
}

std::vector<Value> ValuesOf(const Image& image, const RowView& row, const std::vector<const Column*>& columns)
{
    std::vector<Value> values;
    values.reserve(columns.size());
    for (const Column* const column : columns) values.push_back(TextOf(image, *column, row));
    return values;
}

/// Counts what a query reads. Without an end to it, rows that all lead to one large value, or many rows of hundreds of
/// empty columns, would let a small file fill the memory.
class ResultSize {
  public:
    void Add(const std::vector<Value>& row, const std::string& table)
    {
        for (const Value& value : row) bytes_ += sizeof(Value) + (value ? value->size() : 0);
        if (bytes_ > kLargest) throw Refused("The table '" + table + "' has more in it than the program can show.");
    }

  private:
    static constexpr std::size_t kLargest = 64 << 20;

    std::size_t bytes_ = 0;
};

Image CheckedImage(Bytes bytes)
{
    Image image(std::move(bytes));
    CheckHeader(image.Page(0));
    return image;
}

}  // namespace

Database::Database(Image image) : image_(std::move(image)), tables_(UserTables(image_)) {}

Database::Database(Bytes bytes) : Database(CheckedImage(std::move(bytes))) {}

Database Database::FromBytes(ByteView bytes)
{
    return Database(Bytes(bytes.begin(), bytes.end()));
}

Database Database::New(double created, const Locale& locale)
{
    Database database(NewImage(locale, created));
    database.isNew_ = true;
    database.created_ = created;
    database.locale_ = locale;
    return database;
}

std::vector<std::string> Database::TableNames() const
{
    std::vector<std::string> names;
    for (const TableEntry& table : tables_) names.push_back(table.name);
    return names;
}

const TableDefinition& Database::Table(std::string_view name) const
{
    const auto entry = std::ranges::find_if(tables_, [&](const TableEntry& t) { return SameName(t.name, name); });
    if (entry == tables_.end()) {
        throw RuntimeError(engine::kNoSuchTable,
                           "The database engine cannot find the input table or query '" + std::string(name) + "'.");
    }
    const auto known = definitions_.find(entry->definition);
    if (known != definitions_.end()) return known->second;
    return definitions_.emplace(entry->definition, ReadDefinition(image_, entry->definition)).first->second;
}

Rows Database::ReadRows(std::string_view table) const
{
    return Select({std::string(table), {}, {}});
}

Rows Database::Select(const SelectStatement& select) const
{
    const TableDefinition& table = Table(select.table);
    const std::vector<const Column*> columns = ChosenColumns(table, select.columns);
    const Conditions conditions = ConditionsOf(table, select.where);
    Rows result;
    ResultSize size;
    for (const Column* const column : columns) result.columns.push_back(column->name);
    for (const StoredRow& stored : FindRows(image_, table).rows) {
        const RowView row = ReadRow(table, stored.bytes);
        if (!Matches(image_, row, conditions)) continue;
        result.rows.push_back(ValuesOf(image_, row, columns));
        size.Add(result.rows.back(), select.table);
    }
    return result;
}

int Database::Update(const UpdateStatement& update)
{
    const TableDefinition& table = Table(update.table);
    const StoredRows stored = FindRows(image_, table);
    const std::vector<RowChange> changes = ChangesOf(image_, table, stored, update);
    if (changes.empty()) return 0;
    Transaction transaction(image_);
    ChangeRows(image_, table, stored, changes);
    transaction.Commit();
    return static_cast<int>(changes.size());
}

int Database::Insert(const InsertStatement& insert)
{
    const TableDefinition& table = Table(insert.table);
    CheckOpenToRows(table, insert.table);
    RowParts row(table);
    Assign(row, AssignmentsOf(table, insert.values));
    Transaction transaction(image_);
    AddRow(image_, table, row.Build());
    transaction.Commit();
    return 1;
}

void Database::Create(const CreateTableStatement& create)
{
    if (!isNew_) throw Refused("Tables can be created in a new database only.");
    Transaction transaction(image_);
    CreateTable(image_, create.table, locale_, created_);
    tables_ = UserTables(image_);
    transaction.Commit();
}

}  // namespace terravane::jet
