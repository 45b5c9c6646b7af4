/// The statements that the engine reads, as values. What they do to a database is connection.h's business.
///
///   SELECT * from T                                also a list of columns, a stray apostrophe at the end, and
///                                                  WHERE a ='x' AND b ='y'
///   UPDATE T Set a ='x', b ='y' Where c ='z'       the condition may be missing
///   CREATE TABLE T(a text(10),b text(100))
///   insert into T (a,b) Values ('x','y')
///
/// Keywords and names are read without case, blanks are free, a name with blanks stands in [ ]. A text stands
/// in apostrophes; two of them in a row inside it are one.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "jet/new_file.h"

namespace terravane::jet {

/// A column and a text: one assignment of Set, or one condition of Where.
struct ColumnText {
    std::string column;
    std::string text;
};

struct SelectStatement {
    std::string table;
    std::vector<std::string> columns;  // none: all
    std::vector<ColumnText> where;
};

struct UpdateStatement {
    std::string table;
    std::vector<ColumnText> set;
    std::vector<ColumnText> where;
};

struct CreateTableStatement {
    NewTable table;
};

struct InsertStatement {
    std::string table;
    std::vector<ColumnText> values;
};

using Statement = std::variant<SelectStatement, UpdateStatement, CreateTableStatement, InsertStatement>;

/// Error engine::kSyntax, its description quoting the part that can't be read.
Statement ReadStatement(std::string_view text);

}  // namespace terravane::jet
