#include "reports/density_report.h"

#include <array>

#include "laboratory/field_density.h"
#include "reports/report_table.h"
#include "sheets/density/frmDensity.h"

namespace terravane {

namespace {

using namespace field;

/// The left part of the page that leaves room for the signatures.
Edges BesideSignatures(const DrawingSurface& page)
{
    return {kLeft, kLeft + kLabelWidth + (WholeWidth(page).Width() - kLabelWidth) / 2};
}

/// A table and its room across the page.
struct Block {
    Edges (*edges)(const DrawingSurface& page);
    ReportTable table;
};

/// What a block shows: under its caption, rows of a grid from the first one on.
struct Shown {
    std::string_view caption;
    double captionLine;
    const laboratory::Grid& grid;
    int firstRow;
};

constexpr ReportTable BlockTable(const Shown& shown, std::string_view head, int columns, LastRow lastRow)
{
    return {.caption = shown.caption,
            .captionLine = shown.captionLine,
            .head = head,
            .headCentredAs = head,
            .columns = columns,
            .grid = shown.grid,
            .firstRow = shown.firstRow,
            .rules = RowRules::Between,
            .verticals = {1, 2, columns},
            .lastRow = lastRow};
}

constexpr ReportTable Calibration(const Shown& shown)
{
    return BlockTable(shown, "Determination No.", 3, LastRow::AverageAcross);
}

constexpr ReportTable Holes(const Shown& shown)
{
    return BlockTable(shown, "Test Hole No.", kColumns, LastRow::Cells);
}

/// The last one bears the caption of the summary's frame, which names the compaction test.
constexpr std::array kBlocks{
    Block{LeftHalf, Calibration({"Mass of Sand in Cone", 1, laboratory::kSandInCone, cone::Initial})},
    Block{RightHalf, Calibration({"Density of Sand used Mold", 0, laboratory::kSandDensity, sand::Mold})},
    Block{WholeWidth, Holes({"Mass of Wet Soil", 7, laboratory::kHoleSoil, soil::WetAndPan})},
    Block{WholeWidth, Holes({"Volume from Sand Cone Method", 12, laboratory::kHoleVolume, volume::Initial})},
    Block{WholeWidth, Holes({"Water Content of Soil", 20, laboratory::kHoleWater, water::WetAndCan})},
    Block{BesideSignatures, Holes({"", 28, laboratory::kHoleSummary, summary::MaximumDensity})},
};

}  // namespace

void DrawFieldDensity(const Printing& printing)
{
    const auto& sheet = printing.SheetAs<frmDensity>();
    const ReportPage of(printing);
    for (const auto& [edgesOf, table] : kBlocks) {
        const Edges edges = edgesOf(of.page);
        const TablePlace place{edges, ColumnsBeside(kLabelWidth, edges, table.columns)};
        DrawRules(of, place, table);
        PrintCaption(of.page, edges.left, of.y(table.captionLine),
                     table.caption.empty() ? sheet.fraSummary.Caption() : table.caption);
        PrintTable(of, place, table);
    }
}

}  // namespace terravane
