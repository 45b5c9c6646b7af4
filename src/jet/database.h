/// A database in memory: its tables by name, their rows as texts, changes that keep everything else byte for
/// byte. Files are connection.h's business.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "jet/catalog.h"
#include "jet/header_page.h"
#include "jet/page.h"
#include "jet/recordset.h"
#include "jet/statement.h"
#include "jet/table_definition.h"
#include "runtime/file_system.h"

namespace terravane::jet {

class Database {
  public:
    /// Checks the header and reads the catalog; a table is read when it is first asked for.
    /// Error engine::kFile for bytes that are no database of this version, or a damaged one.
    explicit Database(Bytes bytes);
    static Database FromBytes(ByteView bytes);

    /// Without a user table. created: days since 1899-12-30, local time, for the catalog.
    static Database New(double created, const Locale& locale = {});

    const Bytes& Content() const { return image_.All(); }

    bool HasChanges() const { return image_.Changed(); }
    void MarkSaved() { image_.MarkSaved(); }

    /// The user tables in the order of the catalog.
    std::vector<std::string> TableNames() const;

    /// Error engine::kNoSuchTable; names compare without regard to case.
    const TableDefinition& Table(std::string_view name) const;

    /// All rows and columns, in the order of insertion.
    Rows ReadRows(std::string_view table) const;

    // Each of these happens whole or, when it fails, not at all. Errors: engine::kNoSuchTable, kNoSuchColumn,
    // kTextTooLong for a text over its column's length, kTypeMismatch for a column that is no text, kFile for
    // what can't be changed safely, a column or a table with an index to keep up, and for a result above 64 MiB.
    Rows Select(const SelectStatement& select) const;
    int Update(const UpdateStatement& update);  // the number of rows changed; none is no error
    int Insert(const InsertStatement& insert);
    void Create(const CreateTableStatement& create);  // only in a database made by New

  private:
    explicit Database(Image image);

    Image image_;
    std::vector<TableEntry> tables_;
    mutable std::map<PageNumber, TableDefinition> definitions_;  // those asked for so far
    bool isNew_ = false;
    double created_ = 0;
    Locale locale_;
};

}  // namespace terravane::jet
