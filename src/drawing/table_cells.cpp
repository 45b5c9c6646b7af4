#include "drawing/table_cells.h"

#include <algorithm>

namespace terravane {

namespace {

bool IsIn(const MergedCells& area, int row, int column)
{
    return row >= area.row && row < area.row + area.rows && column >= area.column &&
           column < area.column + area.columns;
}

}  // namespace

int SpacesBetween(const std::vector<double>& edges)
{
    return std::max(1, static_cast<int>(edges.size()) - 1);
}

int SpaceAt(const std::vector<double>& edges, double place)
{
    const auto behind = std::upper_bound(edges.begin(), edges.end(), place) - edges.begin();
    return std::clamp(static_cast<int>(behind) - 1, 0, SpacesBetween(edges) - 1);
}

MergedCells CellOf(const TableShape& shape, int row, int column)
{
    for (const MergedCells& area : shape.merged)
        if (IsIn(area, row, column)) return area;
    return {row, column};
}

}  // namespace terravane
