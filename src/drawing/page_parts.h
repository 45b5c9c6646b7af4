/// What the items of a page are to somebody who has it read aloud: headings, tables and what their cells are, figures
/// and what they show. Says nothing of how they look.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace terravane {

/// Cells of a table that are one, counted from 0.
struct MergedCells {
    int row = 0, column = 0;
    int rows = 1, columns = 1;
    bool operator==(const MergedCells&) const = default;
};

/// Where a table's cells lie: a text belongs to the cell that its middle is in.
/// columns, rows  edges in twips of the page, in order; one more than there are cells
/// headRows, headColumns  the first ones, whose cells are heads
struct TableShape {
    std::vector<double> columns, rows;
    int headRows = 0, headColumns = 0;
    std::vector<MergedCells> merged = {};
    bool operator==(const TableShape&) const = default;
};

enum class PartKind {
    Title,      // of the page
    Caption,    // of what stands below it
    Line,       // of text, which stands in no cell of the table around it
    Table,      // only its texts count
    Figure,     // one for whoever reads it, whatever it is drawn with
    Furniture,  // what every page has at its edges
};

/// The items from `first` up to, not with, `last`. Of parts within one another the inner one counts; a text of no part
/// is a line of text, and a line that is drawn is nothing to be read. shows  what a figure shows, in words
struct PagePart {
    PartKind kind = PartKind::Caption;
    std::size_t first = 0, last = 0;
    std::string shows = {};
    TableShape table = {};
    bool operator==(const PagePart&) const = default;
};

}  // namespace terravane
