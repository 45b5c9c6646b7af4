#include "reports/density_report.h"

#include <array>
#include <string>

#include "reports/report_table.h"
#include "reports/signature_block.h"
#include "runtime/text.h"
#include "sheets/density/frmDensity.h"

namespace terravane {

namespace {

using namespace std::string_view_literals;
using namespace field;

constexpr double kLabelWidth = 3000;
constexpr double kBetweenHalves = 50;

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

/// Where a block stands across the page. Its cells share what the labels leave.
enum class Span { LeftHalf, RightHalf, Full, Narrow };

/// One table of the page: caption, head line, and rows of a grid below each other.
/// captionLine  of the page; the box begins a line below it and ends with the last row
/// caption      empty: that of the summary's frame, which names the compaction test
/// averaged     the last row is one cell: the average of the columns, which the grid has in each
struct Block {
    std::string_view caption;
    double captionLine;
    Span span;
    std::string_view head;
    int columns;
    TextGrid frmDensity::*grid;
    int firstRow;
    std::span<const std::string_view> labels;
    bool averaged = false;

    double Top() const { return captionLine + 1; }
    int Rows() const { return static_cast<int>(labels.size()); }
    double Bottom() const { return Top() + 1 + Rows(); }
};

constexpr std::array kBlocks{
    Block{"Mass of Sand in Cone", 1, Span::LeftHalf, "Determination No.", 3, &frmDensity::MSHWsand, cone::Initial,
          kConeLabels, true},
    Block{"Density of Sand used Mold", 0, Span::RightHalf, "Determination No.", 3, &frmDensity::MSHDsand, sand::Mould,
          kSandLabels, true},
    Block{"Mass of Wet Soil", 7, Span::Full, "Test Hole No.", kColumns, &frmDensity::MSHWsoil, soil::WetAndPan,
          kSoilLabels},
    Block{"Volume from Sand Cone Method", 12, Span::Full, "Test Hole No.", kColumns, &frmDensity::MSHVolume,
          volume::Initial, kVolumeLabels},
    Block{"Water Content of Soil", 20, Span::Full, "Test Hole No.", kColumns, &frmDensity::MSHWater, water::WetAndCan,
          kWaterLabels},
    Block{"", 28, Span::Narrow, "Test Hole No.", kColumns, &frmDensity::MSHSummary, summary::MaximumDensity,
          kSummaryLabels},
};

/// Left and right edge of a block, in twips.
struct Edges {
    double left, right;
};

Edges EdgesOf(const DrawingSurface& page, Span span)
{
    const double right = RightEdge(page), width = right - kLeft;
    switch (span) {
        case Span::LeftHalf:
            return {kLeft, kLeft + width / 2 - kBetweenHalves};
        case Span::RightHalf:
            return {kLeft + width / 2 + kBetweenHalves, right};
        case Span::Narrow:
            return {kLeft, kLeft + kLabelWidth + (width - kLabelWidth) / 2};
        case Span::Full:
            break;
    }
    return {kLeft, right};
}

/// One block on its way to the page.
struct DensityBlock {
    const frmDensity& sheet;
    DrawingSurface& page;
    PageLines y;
    const Block& block;
    Edges edges;
    PageColumns columns;

    DensityBlock(const frmDensity& open, DrawingSurface& surface, const Block& drawn)
        : sheet(open),
          page(surface),
          y(surface, kBodyTop),
          block(drawn),
          edges(EdgesOf(surface, drawn.span)),
          columns{edges.left + kLabelWidth, (edges.right - edges.left - kLabelWidth) / drawn.columns}
    {}
};

void DrawBlockRules(const DensityBlock& of)
{
    const Block& block = of.block;
    const int single = block.averaged ? 1 : 0;  // rows without cells, at the end
    DrawRules(of.page, of.y,
              {of.edges.left, of.edges.right, block.Top(), block.Bottom(), of.columns, 1, block.Top() + 1,
               block.Top() + 2, block.Rows() - 1});
    of.page.DrawWidth = kThickRule;
    DrawVerticals(of.page, of.y, of.columns, 2, block.columns, block.Top(), block.Bottom() - single);
}

void PrintHeads(const DensityBlock& of)
{
    const Block& block = of.block;
    of.page.FontBold = true;
    of.page.CurrentY = of.y(block.captionLine);
    PrintLineFrom(of.page, of.edges.left, block.caption.empty() ? of.sheet.fraSummary.Caption() : block.caption);
    of.page.CurrentY = of.y(block.Top());
    PrintCentred(of.page, of.edges.left, kLabelWidth, block.head);
    PrintColumnNumbers(of.page, of.columns, block.columns);
    of.page.FontBold = false;
}

void PrintRows(const DensityBlock& of)
{
    const Block& block = of.block;
    const TextGrid& grid = of.sheet.*block.grid;
    const int lastRow = block.firstRow + block.Rows() - 1;
    const int lastCells = block.averaged ? lastRow - 1 : lastRow;
    PrintLabels(of.page, of.y, of.edges.left + kLabelInset, block.Top() + 1, block.labels);
    PrintCells(of.page, of.y, of.columns, block.Top() + 1, grid, {block.firstRow, lastCells, 1, block.columns});
    if (!block.averaged) return;
    of.page.CurrentY = of.y(block.Bottom() - 1);
    PrintCentred(of.page, of.columns.left, of.edges.right - of.columns.left, Trim(grid(lastRow, 1)));
}

void DrawFieldDensity(Program& program, DrawingSurface& page, Medium medium)
{
    page.FontSize = kBodySize;
    page.FontTransparent = true;
    const auto& sheet = program.Get<frmDensity>("frmDensity");
    for (const Block& block : kBlocks) {
        const DensityBlock drawn(sheet, page, block);
        DrawBlockRules(drawn);
        PrintHeads(drawn);
        PrintRows(drawn);
    }
    DrawSignatures(program, page, medium);
}

}  // namespace

void PrintFieldDensity(Program& program, Printer& printer)
{
    DrawFieldDensity(program, printer, Medium::Printer);
}

void ShowFieldDensity(Program& program, DrawingSurface& picView)
{
    DrawFieldDensity(program, picView, Medium::Preview);
}

}  // namespace terravane
