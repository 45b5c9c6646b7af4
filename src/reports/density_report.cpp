#include "reports/density_report.h"

#include <array>

#include "reports/report_table.h"
#include "sheets/density/frmDensity.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;
using namespace field;

constexpr std::array kConeLabels{
    "Initial Mass of Jar + Sand + Cone, (g)"sv,
    "Final Mass of Jar + Sand + Cone, (g)"sv,
    "Mass of Sand in Cone, (g)"sv,
    "Average, (g)"sv,
};
constexpr std::array kSandLabels{
    "Mass of Empty Mold + Baseplate, (g)"sv,
    "Mass of Mold + Sand + Baseplate, (g)"sv,
    "Mass of Sand, (g)"sv,
    "Volume of Mold, (cm^3)"sv,
    "Density of Sand, (g/cm^3)"sv,
};
constexpr std::array kSoilLabels{
    "Mass of Wet Soil + Pan, (g)"sv,
    "Mass of Pan, (g)"sv,
    "Mass of Wet Soil, (g)"sv,
};
constexpr std::array kVolumeLabels{
    "Initial of Soil + Jar + Cone, (g)"sv, "Final of Soil + Jar + Cone, (g)"sv, "Mass of Sand in Cone, (g)"sv,
    "Mass of Sand in Hole, (g)"sv,         "Density of Sand, (g/cm^3)"sv,       "Volume of Hole, (cm^3)"sv,
};
constexpr std::array kWaterLabels{
    "Mass of Wet Soil + Can, (g)"sv, "Mass of Dry Soil + Can, (g)"sv, "Mass of Can, (g)"sv,
    "Mass of Wet Soil, (g)"sv,       "Mass of Dry Soil, (g)"sv,       "Water Content, (%)"sv,
};
constexpr std::array kSummaryLabels{
    "Max. Dry Density in Lab,(g/cm^3)"sv,
    "Wet Density in Field, (g/cm^3)"sv,
    "Dry Density in Field, (g/cm^3)"sv,
    "Percent Compaction, (%)"sv,
};

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
    std::string_view grid;
    int firstRow;
    std::span<const std::string_view> labels;
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
            .labels = shown.labels,
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
    Block{LeftHalf, Calibration({"Mass of Sand in Cone", 1, "MSHWsand", cone::Initial, kConeLabels})},
    Block{RightHalf, Calibration({"Density of Sand used Mold", 0, "MSHDsand", sand::Mould, kSandLabels})},
    Block{WholeWidth, Holes({"Mass of Wet Soil", 7, "MSHWsoil", soil::WetAndPan, kSoilLabels})},
    Block{WholeWidth, Holes({"Volume from Sand Cone Method", 12, "MSHVolume", volume::Initial, kVolumeLabels})},
    Block{WholeWidth, Holes({"Water Content of Soil", 20, "MSHWater", water::WetAndCan, kWaterLabels})},
    Block{BesideSignatures, Holes({"", 28, "MSHSummary", summary::MaximumDensity, kSummaryLabels})},
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
