/// The result of a statement. A query's rows are held whole, so that the reader can go back to the first one, and never
/// change: a recordset is a value, and a copy shares the rows but walks them by itself.
#pragma once

#include <cstddef>
#include <memory>
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

    bool IsQuery() const { return rows_ != nullptr; }
    int RowsAffected() const { return affected_; }
    std::size_t RowCount() const { return Held().rows.size(); }
    const std::vector<std::string>& ColumnNames() const { return Held().columns; }

    /// Whether the current row is the one behind the last.
    bool Eof() const { return current_ >= RowCount(); }
    /// Error 3021 past the end.
    void MoveNext();
    /// Error 3021 where there is no row.
    void MoveFirst();

    /// The current row's value; a null reads as "". Error 3265 for an unknown name, 3021 without a current
    /// row. Names compare without regard to case. The text lives as long as this does; of a passing recordset it is a
    /// copy.
    const std::string& Fields(std::string_view name) const&;
    std::string Fields(std::string_view name) const&& { return Fields(name); }

    /// Whether the current row's value is a null, with the same errors.
    bool IsNull(std::string_view name) const;

  private:
    const Rows& Held() const;
    const Value& ValueOf(std::string_view name) const;

    std::shared_ptr<const Rows> rows_;  // none where the statement was no query
    std::size_t current_ = 0;
    int affected_ = 0;
};

}  // namespace terravane::jet
