// The field density report as a list of drawn things. Lengths in twips; a line of the body's size 13 is 339.3, so that
// y(n) = 3800 + 339.3 n. The content runs from 500 to 11406; a half box is 5403 wide, the right one starts at 6003. The
// labels take 3000 of each box; six holes share the other 7906, three determinations the 2403 of a half, and the
// summary has six cells in half of the 7906.
#include <cmath>

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "reports/print_report.h"
#include "support/density_laboratory.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane::density_page {
namespace {

using namespace support;

constexpr double kHoleWidth = 7906 / 6.0;
constexpr double kDeterminationWidth = 2403 / 3.0;
constexpr double kSummaryWidth = 3953 / 6.0;

double Y(double line)
{
    return 3800 + kBodyLine * line;
}

/// Where a block's rules and cells are expected.
struct WantedBlock {
    const char* mark;  // of the grid's cells
    double left, right, top, bottom;
    double cellWidth;
    int columns;
    int firstRow, lastRow;  // of the grid, printed cell by cell
    bool averaged;          // a last row of one cell
};

// Boxes: caption above, head line, then a line a row.
const std::vector<WantedBlock> kWanted{
    {"cone", 500, 5903, 2, 7, kDeterminationWidth, 3, 1, 3, true},
    {"sand", 6003, 11406, 1, 7, kDeterminationWidth, 3, 3, 6, true},
    {"soil", 500, 11406, 8, 12, kHoleWidth, 6, 1, 3, false},
    {"volume", 500, 11406, 13, 20, kHoleWidth, 6, 1, 6, false},
    {"water", 500, 11406, 21, 28, kHoleWidth, 6, 1, 6, false},
    {"summary", 500, 7453, 29, 34, kSummaryWidth, 6, 1, 4, false},
};

/// A sheet on which every cell of the six grids holds a text of its own: "soil32" is row 3, column 2 of the soil.
struct DensityPage : ::testing::Test {
    ReportBench bench;
    frmDensity& sheet = OpenDensity();

    DensityPage()
    {
        Fill(sheet.MSHWsand, "cone");
        Fill(sheet.MSHDsand, "sand");
        Fill(sheet.MSHWsoil, "soil");
        Fill(sheet.MSHVolume, "volume");
        Fill(sheet.MSHWater, "water");
        Fill(sheet.MSHSummary, "summary");
        sheet.txtPosition.SetText("กม. 12+400");
    }

    frmDensity& OpenDensity()
    {
        bench.program.AddForm("frmDensity", [](Program& owner) { return std::make_unique<frmDensity>(owner); });
        return dynamic_cast<frmDensity&>(bench.Open(terravane::Test::DenSoil, "frmDensity", ""));
    }

    static void Fill(TextGrid& grid, const std::string& mark)
    {
        for (int row = 1; row < grid.Rows(); ++row)
            for (int column = 1; column <= field::kColumns; ++column)
                grid(row, column) = " " + mark + std::to_string(row) + std::to_string(column) + " ";
    }

    PageMarks Printed() { return {PagesOfReport(bench.program).back().items}; }
    PageMarks Shown() { return {bench.Preview().picView.Items()}; }
};

TEST_F(DensityPage, EachBlockIsRuled)
{
    const PageMarks page = Printed();
    for (const WantedBlock& wanted : kWanted) {
        SCOPED_TRACE(wanted.mark);
        EXPECT_EQ(page.Boxes(wanted.left, Y(wanted.top), wanted.right, Y(wanted.bottom), 2), 1);
        EXPECT_EQ(page.Across(wanted.left, wanted.right, Y(wanted.top + 1), 2), 1) << "below the heads";
        for (double line = wanted.top + 2; line < wanted.bottom; ++line)
            EXPECT_EQ(page.Across(wanted.left, wanted.right, Y(line), 1), 1) << line;
        EXPECT_EQ(page.Down(wanted.left + 3000, Y(wanted.top), Y(wanted.bottom), 2), 1) << "beside the labels";
        const double end = wanted.averaged ? wanted.bottom - 1 : wanted.bottom;
        for (int column = 1; column < wanted.columns; ++column)
            EXPECT_EQ(page.Down(wanted.left + 3000 + wanted.cellWidth * column, Y(wanted.top), Y(end), 2), 1) << column;
    }
}

TEST_F(DensityPage, CellsStandTrimmedInTheMiddleOfTheirColumns)
{
    const PageMarks page = Printed();
    for (const WantedBlock& wanted : kWanted) {
        for (int row = wanted.firstRow; row <= wanted.lastRow; ++row) {
            for (int column = 1; column <= wanted.columns; ++column) {
                const std::string cell = wanted.mark + std::to_string(row) + std::to_string(column);
                EXPECT_NEAR(page.Middle(cell), wanted.left + 3000 + wanted.cellWidth * (column - 0.5), kTwip) << cell;
                EXPECT_NEAR(page.Text(cell).y, Y(wanted.top + 1 + row - wanted.firstRow), kTwip) << cell;
                EXPECT_EQ(page.Text(cell).font, (Font{"DilleniaUPC", 13, false, false})) << cell;
            }
        }
    }
}

TEST_F(DensityPage, OfTheSandThreeDeterminationsAndTheAveragesPrint)
{
    const PageMarks page = Printed();
    EXPECT_NEAR(page.Middle("cone41"), 3500 + 2403 / 2.0, kTwip);
    EXPECT_NEAR(page.Text("cone41").y, Y(6), kTwip);
    EXPECT_NEAR(page.Middle("sand71"), 9003 + 2403 / 2.0, kTwip);
    EXPECT_NEAR(page.Text("sand71").y, Y(6), kTwip);
    for (const char* missing : {"cone14", "cone42", "sand11", "sand21", "sand34", "sand72"})
        EXPECT_TRUE(page.Texts(missing).empty()) << missing;
}

TEST_F(DensityPage, CaptionsAndHeadsAreBold)
{
    const PageMarks page = Printed();
    struct Caption {
        const char* text;
        double left, line;
    };
    for (const Caption& caption :
         {Caption{"Mass of Sand in Cone", 500, 1}, Caption{"Density of Sand used Mold", 6003, 0},
          Caption{"Mass of Wet Soil", 500, 7}, Caption{"Volume from Sand Cone Method", 500, 12},
          Caption{"Water Content of Soil", 500, 20}, Caption{"Summary", 500, 28}}) {
        const TextItem item = page.Text(caption.text);
        EXPECT_NEAR(item.x, caption.left, kTwip) << caption.text;
        EXPECT_NEAR(item.y, Y(caption.line), kTwip) << caption.text;
        EXPECT_TRUE(item.font.bold) << caption.text;
    }
    const auto determinations = page.Texts("Determination No."), holes = page.Texts("Test Hole No.");
    ASSERT_EQ(determinations.size(), 2U);
    ASSERT_EQ(holes.size(), 4U);
    const double half = TextWidth(holes[0].font, "Test Hole No.") / 2;
    for (std::size_t block = 0; block < holes.size(); ++block) {
        EXPECT_NEAR(holes[block].x + half, 2000, kTwip);
        EXPECT_NEAR(holes[block].y, Y(kWanted[block + 2].top), kTwip);
        EXPECT_TRUE(holes[block].font.bold);
    }
    EXPECT_EQ(page.Texts("3").size(), 6U);
    EXPECT_EQ(page.Texts("6").size(), 4U);
}

TEST_F(DensityPage, LabelsStandBesideTheirRows)
{
    const PageMarks page = Printed();
    const auto check = [&](const std::string& label, double x, std::vector<double> lines) {
        const auto found = page.Texts(label);
        ASSERT_EQ(found.size(), lines.size()) << label;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_NEAR(found[i].x, x, kTwip) << label;
            EXPECT_NEAR(found[i].y, Y(lines[i]), kTwip) << label;
            EXPECT_FALSE(found[i].font.bold) << label;
        }
    };
    check("Initial Mass of Jar + Sand + Cone, (g)", 700, {3});
    check("Final Mass of Jar + Sand + Cone, (g)", 700, {4});
    check("Mass of Sand in Cone, (g)", 700, {5, 16});
    check("Average, (g)", 700, {6});
    check("Mass of Empty Mold + Baseplate, (g)", 6203, {2});
    check("Mass of Mold + Sand + Baseplate, (g)", 6203, {3});
    check("Mass of Sand, (g)", 6203, {4});
    check("Volume of Mold, (cm^3)", 6203, {5});
    check("Mass of Wet Soil + Pan, (g)", 700, {9});
    check("Mass of Pan, (g)", 700, {10});
    check("Mass of Wet Soil, (g)", 700, {11, 25});
    check("Initial of Soil + Jar + Cone, (g)", 700, {14});
    check("Final of Soil + Jar + Cone, (g)", 700, {15});
    check("Mass of Sand in Hole, (g)", 700, {17});
    check("Volume of Hole, (cm^3)", 700, {19});
    check("Mass of Wet Soil + Can, (g)", 700, {22});
    check("Mass of Dry Soil + Can, (g)", 700, {23});
    check("Mass of Can, (g)", 700, {24});
    check("Mass of Dry Soil, (g)", 700, {26});
    check("Water Content, (%)", 700, {27});
    check("Max. Dry Density in Lab,(g/cm^3)", 700, {30});
    check("Wet Density in Field, (g/cm^3)", 700, {31});
    check("Dry Density in Field, (g/cm^3)", 700, {32});
    check("Percent Compaction, (%)", 700, {33});
    const auto densities = page.Texts("Density of Sand, (g/cm^3)");
    ASSERT_EQ(densities.size(), 2U);
    EXPECT_NEAR(densities[0].x, 6203, kTwip);
    EXPECT_NEAR(densities[0].y, Y(6), kTwip);
    EXPECT_NEAR(densities[1].y, Y(18), kTwip);
}

TEST_F(DensityPage, TheSummarysCaptionNamesTheChoice)
{
    bench.files.MakeFolders("/lab/");
    CreateProjectFile(bench.files, std::string(kProject));
    bench.program.CurrentProjectPath = kProject;
    EXPECT_EQ(Printed().Texts("Summary").size(), 1U) << "Nothing is chosen.";
    sheet.optStd.Choose();
    EXPECT_NEAR(Printed().Text("Summary (Percent Compaction for Standard Compaction)").y, Y(28), kTwip);
    sheet.optMod.Choose();
    EXPECT_NEAR(Printed().Text("Summary (Percent Compaction for Modified Compaction)").y, Y(28), kTwip);
}

TEST_F(DensityPage, ThePositionIsTheHeadsFourthRow)
{
    const PageMarks page = Printed();
    EXPECT_NEAR(page.Text("Position").y, page.Text("Location").y + 365.4, kTwip);
    EXPECT_EQ(page.Texts("กม. 12+400").size(), 1U);
}

// The last name ends above the footer at 16138; size 15 has lines of 391.5.
TEST_F(DensityPage, SignaturesEndAboveTheFooter)
{
    const PageMarks page = Printed();
    const double anchor = 39 * kBodyLine;
    EXPECT_NEAR(page.Text("Tested by ").y, anchor + kBodyLine, kTwip);
    EXPECT_NEAR(page.Text("Checked by ").y, anchor + 3.5 * kBodyLine, kTwip);
    EXPECT_NEAR(page.Text("(Anong Jai)").y, anchor + kBodyLine + 391.5, kTwip);
    EXPECT_NEAR(page.Text("Page 1").y, 16138, kTwip);
    for (const TextItem& item : ItemsOf<TextItem>(page.items)) {
        if (item.y > 16000) continue;  // the footer itself
        EXPECT_LT(item.y + TextHeight(item.font), 16138) << item.text;
    }
}

TEST_F(DensityPage, FewerHolesLeaveTheirColumnsEmpty)
{
    for (TextGrid* grid : {&sheet.MSHWsoil, &sheet.MSHVolume, &sheet.MSHWater, &sheet.MSHSummary})
        for (int row = 1; row < grid->Rows(); ++row)
            for (int column = 4; column <= 6; ++column) (*grid)(row, column) = "   ";
    const PageMarks page = Printed();
    EXPECT_EQ(page.Down(3500 + 5 * kHoleWidth, Y(8), Y(12), 2), 1);
    EXPECT_EQ(page.Texts("6").size(), 4U) << "The empty holes keep their numbers.";
    EXPECT_TRUE(page.Texts("soil34").empty());
    EXPECT_EQ(page.Texts("soil33").size(), 1U);
}

TEST_F(DensityPage, PreviewAndPrinterShareTheBody)
{
    DrawingSurface preview(kA4Short, kA4Long);
    preview.FontName = "DilleniaUPC";
    Printer printer;
    printer.FontName = "DilleniaUPC";
    DrawPageBody(PrintingOf(bench.program, preview, Medium::Preview));
    DrawPageBody(PrintingOf(bench.program, printer, Medium::Printer));
    EXPECT_EQ(preview.Items(), printer.Items());
}

TEST_F(DensityPage, ThePreviewHasOnePage)
{
    frmPreview& preview = bench.Preview();
    EXPECT_FALSE(preview.cmdNext.Visible());
    EXPECT_EQ(TextsOf(preview.picView.Items(), "Volume from Sand Cone Method").size(), 1U);
    EXPECT_EQ(PagesOfReport(bench.program).size(), 2U) << "The cover and the page.";
}

TEST_F(DensityPage, ReadingsOfUsualLengthTouchNothing)
{
    for (TextGrid* grid : {&sheet.MSHWsand, &sheet.MSHDsand, &sheet.MSHWsoil, &sheet.MSHVolume, &sheet.MSHWater})
        for (int row = 1; row < grid->Rows(); ++row)
            for (int column = 1; column <= 6; ++column) (*grid)(row, column) = "10612.67";
    for (int row = 1; row < sheet.MSHSummary.Rows(); ++row)
        for (int column = 1; column <= 6; ++column) sheet.MSHSummary(row, column) = "100.00";
    ExpectNoTextOverText(Printed().items);
    ExpectNoTextOverText(Shown().items);
    const PageMarks page = Printed();
    for (const TextItem& item : page.Texts("Mass of Mold + Sand + Baseplate, (g)"))
        EXPECT_LT(item.x + TextWidth(item.font, item.text), 9003) << "Labels end before the cells.";
    const TextItem share = page.Texts("100.00").front();
    EXPECT_LT(TextWidth(share.font, share.text), kSummaryWidth) << "The summary's cells are narrow.";
}

}  // namespace
}  // namespace terravane::density_page
