/// Which cell of a table a place on the page is in.
#pragma once

#include "drawing/page_parts.h"

namespace terravane {

/// The columns or rows between edges; at least one.
int SpacesBetween(const std::vector<double>& edges);

/// The one that a place is in, from 0; the nearest one for a place outside.
int SpaceAt(const std::vector<double>& edges, double place);

/// The cell in a row and column, with those that it is merged with.
MergedCells CellOf(const TableShape& shape, int row, int column);

}  // namespace terravane
