/// A new database's image: system tables, catalog, and user tables with text columns. Statements are not
/// known here.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "jet/header_page.h"
#include "jet/image.h"

namespace terravane::jet {

struct NewColumn {
    std::string name;
    std::size_t length = 0;  // UTF-16 units, 1 to 255
};

struct NewTable {
    std::string name;
    std::vector<NewColumn> columns;
};

/// The moment as the catalog keeps it: days since 1899-12-30, local time.
double LocalNow();

/// A database without a user table, 16 pages. created: see LocalNow.
Image NewImage(const Locale& locale, double created);

/// Adds an empty table to an image that NewImage made: three pages at its end, a row in the catalog, two
/// rights. Error engine::kSyntax for a name that is none, a length outside 1 to 255, too many columns or two
/// of one name.
void CreateTable(Image& image, const NewTable& table, const Locale& locale, double created);

}  // namespace terravane::jet
