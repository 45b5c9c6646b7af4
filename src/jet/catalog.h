/// The catalog: which tables a database holds and where their definitions are.
#pragma once

#include <string>
#include <vector>

#include "jet/image.h"
#include "jet/page.h"
#include "jet/system_tables.h"

namespace terravane::jet {

struct TableEntry {
    std::string name;
    PageNumber definition = 0;
};

/// The user tables, neither system nor hidden nor linked ones, in the order of the catalog.
std::vector<TableEntry> UserTables(const Image& image);

/// The three below write the catalog of a new file, whose indexes are one leaf each and are built anew from
/// the rows. created: days since 1899-12-30, local time.
void AddObject(Image& image, const CatalogObject& object, double created);
void AddRight(Image& image, const Right& right);
void RebuildCatalogIndexes(Image& image);

}  // namespace terravane::jet
