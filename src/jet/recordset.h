/// The result of a statement. A query's rows are held whole, so that the reader can go back to the first one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace terravane::jet {

/// A column's value as text, nothing for a null.
using Value = std::optional<std::string>;

struct Rows {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;  // each as long as columns

    friend bool operator==(const Rows&, const Rows&) = default;
};

class Recordset {
  public:
    /// Nothing: no query, no row.
    Recordset() = default;
    /// The result of a query; the first row is the current one.
    explicit Recordset(Rows rows);
    /// The result of an UPDATE or an insert.
    static Recordset Affected(int rows);

    bool IsQuery() const { return isQuery_; }
    int RowsAffected() const { return affected_; }
    std::size_t RowCount() const { return rows_.rows.size(); }
    const std::vector<std::string>& ColumnNames() const { return rows_.columns; }

    /// Whether the current row is the one behind the last.
    bool Eof() const { return current_ >= RowCount(); }
    /// Error 3021 past the end.
    void MoveNext();
    /// Error 3021 where there is no row.
    void MoveFirst();

    /// The current row's value; a null reads as "". Error 3265 for an unknown name, 3021 without a current
    /// row. Names compare without regard to case.
    const std::string& Fields(std::string_view name) const;

    /// Whether the current row's value is a null, with the same errors.
    bool IsNull(std::string_view name) const;

  private:
    const Value& ValueOf(std::string_view name) const;

    Rows rows_;
    std::size_t current_ = 0;
    int affected_ = 0;
    bool isQuery_ = false;
};

}  // namespace terravane::jet
