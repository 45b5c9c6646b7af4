/// A project file's texts as they stand at one moment.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "jet/recordset.h"
#include "runtime/file_system.h"

namespace terravane {

class ProjectTexts {
  public:
    /// Reads one table, or all where none is named. The engine's error for bytes that are no project file, or a
    /// damaged one.
    explicit ProjectTexts(const Bytes& content, std::string_view only = {});

    /// One that was read.
    const jet::Rows& Table(std::string_view name) const { return tables_.at(std::string(name)); }

    /// The text of a column in a row from 1; empty where the table has no such row or column, and for a null.
    std::string Text(std::string_view table, std::string_view column, int row) const;
    /// The same without the blanks around it: empty for what was never saved.
    std::string Trimmed(std::string_view table, std::string_view column, int row) const;

  private:
    std::map<std::string, jet::Rows, std::less<>> tables_;
};

}  // namespace terravane
