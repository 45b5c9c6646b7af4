// The compaction report as a list of drawn things. Lengths in twips; a line of the body's size 13 is 339.3, so that
// y(n) = 3800 + 339.3 n. The six sample columns are (11906 - 3500) / 6 = 1401 wide, from 3000 on.
#include <gtest/gtest.h>

#include "reports/compaction_report.h"
#include "reports/print_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane::compaction_page {
namespace {

using namespace support;

constexpr double kColumn = 1401;

double Y(double line)
{
    return 3800 + kBodyLine * line;
}

double ColumnMiddle(int column)
{
    return 3000 + kColumn * (column - 0.5);
}

/// A sheet on which every cell of the two grids holds a text of its own: "w35" is row 3, column 5 of the water grid.
struct CompactionPage : ::testing::Test {
    ReportBench bench;
    frmCompaction& sheet = bench.OpenCompaction();

    CompactionPage()
    {
        sheet.txtDia.SetText("10.16");
        sheet.txtHeight.SetText("11.64");
        sheet.cboWt.SetText("2.5 kg");
        sheet.cboBlow.SetText("25");
        sheet.cboLayer.SetText("3");
        sheet.txtOMC.SetText("12.3");
        sheet.txtDmax.SetText("1.98");
        Fill(sheet.MSHWt, "w", 1);
        Fill(sheet.MSHDensity, "d", 0);
    }

    static void Fill(TextGrid& grid, const std::string& mark, int firstRow)
    {
        for (int row = firstRow; row < grid.Rows(); ++row)
            for (int column = 1; column <= 6; ++column)
                grid(row, column) = " " + mark + std::to_string(row) + std::to_string(column) + " ";
    }

    PageMarks Printed() { return {PagesOfReport(bench.program).back().items}; }
    std::vector<DrawnItem> Shown() { return bench.Preview().picView.Items(); }
};

TEST_F(CompactionPage, BoxesFrameMoldResultsAndTables)
{
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, 3800, 7203, Y(2), 2), 1) << "mold";
    EXPECT_EQ(page.Boxes(7303, 3800, 11406, Y(2), 2), 1) << "results";
    EXPECT_EQ(page.Boxes(500, Y(3), 11406, Y(11), 2), 1) << "water contents";
    EXPECT_EQ(page.Boxes(500, Y(12), 11406, Y(19), 2), 1) << "densities";
}

TEST_F(CompactionPage, TablesAreRuled)
{
    const PageMarks page = Printed();
    EXPECT_EQ(page.Across(500, 11406, Y(4), 2), 1) << "below the sample numbers";
    for (int line = 5; line <= 11; ++line) EXPECT_EQ(page.Across(500, 11406, Y(line), 1), 1) << "water, line " << line;
    for (int line = 13; line <= 19; ++line)
        EXPECT_EQ(page.Across(500, 11406, Y(line), 1), 1) << "density, line " << line;
    for (int column = 0; column <= 6; ++column) {
        EXPECT_EQ(page.Down(3000 + kColumn * column, Y(3), Y(11), 2), 1) << "water, column " << column;
        EXPECT_EQ(page.Down(3000 + kColumn * column, Y(12), Y(19), 2), 1) << "density, column " << column;
    }
    EXPECT_EQ(page.Down(4401, 3800, Y(2), 2), 1);
    EXPECT_EQ(page.Down(2450.5, 3800, Y(2), 2), 1);
}

TEST_F(CompactionPage, ValuesAreCentredInTheirCells)
{
    const PageMarks page = Printed();
    const auto check = [&](const std::string& text, int column, double line) {
        const TextItem item = page.Text(text);
        EXPECT_NEAR(item.x + TextWidth(item.font, text) / 2, ColumnMiddle(column), kTwip) << text;
        EXPECT_NEAR(item.y, Y(line), kTwip) << text;
        EXPECT_EQ(item.font, (Font{"DilleniaUPC", 13, false, false})) << text;
    };
    for (int column = 1; column <= 6; ++column) {
        for (int row = 1; row <= 7; ++row) check("w" + std::to_string(row) + std::to_string(column), column, 3 + row);
        for (int row = 0; row <= 6; ++row) check("d" + std::to_string(row) + std::to_string(column), column, 12 + row);
    }
}

TEST_F(CompactionPage, LabelsStandBesideTheirRows)
{
    const PageMarks page = Printed();
    const std::vector<std::pair<std::string, double>> labels{
        {"Moisture Can No.", 4},       {"Mass of Can + Wet Soil, (g)", 5}, {"Mass of Can + Dry Soil, (g)", 6},
        {"Mass of Can, (g)", 7},       {"Mass of Water, (g)", 8},          {"Mass of Dry Soil, (g)", 9},
        {"Water Content, (%)", 10},    {"Assumed Water Content, (%)", 12}, {"Mass of Soil + Mold, (g)", 13},
        {"Mass of Mold, (g)", 14},     {"Water Content, (g)", 15},         {"Mass of Soil in Mold, (g)", 16},
        {"Wet Density, (g/cm^3)", 17}, {"Dry Density, (g/cm^3)", 18}};
    for (const auto& [label, line] : labels) {
        EXPECT_NEAR(page.Text(label).x, 700, kTwip) << label;
        EXPECT_NEAR(page.Text(label).y, Y(line), kTwip) << label;
        EXPECT_FALSE(page.Text(label).font.bold) << label;
    }
}

TEST_F(CompactionPage, CaptionsAndHeaderAreBold)
{
    const PageMarks page = Printed();
    EXPECT_NEAR(page.Text("Water Content Determination").y, Y(2), kTwip);
    EXPECT_NEAR(page.Text("Density Determination").y, Y(11), kTwip);
    EXPECT_NEAR(page.Text("Sample No.").y, Y(3), kTwip);
    for (const char* text : {"Water Content Determination", "Density Determination", "Sample No."})
        EXPECT_TRUE(page.Text(text).font.bold) << text;
    for (int column = 1; column <= 6; ++column) {
        const std::string number = std::to_string(column);
        int found = 0;
        for (const TextItem& item : page.Texts(number)) {
            if (!PageMarks::Near(item.y, Y(3))) continue;
            ++found;
            EXPECT_NEAR(item.x + TextWidth(item.font, number) / 2, ColumnMiddle(column), kTwip);
        }
        EXPECT_EQ(found, 1) << "sample number " << column;
    }
}

// "Diameter of Mold  " ends its label; the colon stands there, the value 300 and the unit 800 further.
TEST_F(CompactionPage, MoldRowsStandAtTheirStops)
{
    const PageMarks page = Printed();
    const TextItem diameter = page.Text("Diameter of Mold");
    const double stop = 4601 + TextWidth(diameter.font, "Diameter of Mold  ");
    EXPECT_NEAR(diameter.x, 4601, kTwip);
    EXPECT_NEAR(page.Text("10.16").x, stop + 300, kTwip);
    EXPECT_NEAR(page.Text("11.64").x, stop + 300, kTwip);
    const auto units = page.Texts("cm");
    ASSERT_EQ(units.size(), 2u);
    for (const TextItem& unit : units) {
        EXPECT_NEAR(unit.x, stop + 800, kTwip);
        EXPECT_LT(unit.x + TextWidth(unit.font, "cm"), 7203) << "the unit stands inside its box";
    }
    EXPECT_NEAR(page.Text("Number of Layer  :  ").x, 700, kTwip);
    EXPECT_NEAR(page.Text("Blows per Layer  :  ").x, 2650.5, kTwip);
    EXPECT_NEAR(page.Text("2.5 kg").x, 2800.5, kTwip);
    EXPECT_NEAR(page.Text("2.5 kg").y, Y(1), kTwip);
    EXPECT_NEAR(page.Text("Height of Mold").y, Y(1), kTwip);
}

// The unit stands 500 behind the value's beginning: four digits and a point (390) fit. Five digits (477) would leave 23
// to the unit, less than half a blank (26): "10.160cm" would read as one.
TEST_F(CompactionPage, AMoldMeasureThatIsLongerThanItsPlacePushesItsUnit)
{
    const double place = Printed().Texts("cm").at(0).x;
    sheet.txtDia.SetText("11.56");
    EXPECT_EQ(Printed().Texts("cm").at(0).x, place);
    for (const char* longer : {"11.562", "10.16001"}) {
        sheet.txtDia.SetText(longer);
        const PageMarks page = Printed();
        const TextItem value = page.Text(longer);
        const double end = value.x + TextWidth(value.font, value.text);
        EXPECT_NEAR(page.Texts("cm").at(0).x, end + TextWidth(value.font, " "), kTwip) << longer;
        EXPECT_EQ(page.Texts("cm").at(1).x, place) << "The height's stays.";
        EXPECT_NEAR(page.Text("Height of Mold").y, Y(1), kTwip);
    }
}

// Between the colon's end and the units there are 607 twips: "12345.67" needs 651.
TEST_F(CompactionPage, AResultThatIsLongerThanItsPlacePushesItsColon)
{
    const double place = Printed().Texts(": ").at(1).x;
    sheet.txtDmax.SetText("1234.56");
    EXPECT_EQ(Printed().Texts(": ").at(2).x, place);
    sheet.txtDmax.SetText("12345.67");
    const PageMarks page = Printed();
    const TextItem value = page.Text("12345.67"), colon = page.Texts(": ").at(2);
    EXPECT_NEAR(value.x + TextWidth(value.font, value.text), 10655.7, kTwip) << "The value stays.";
    EXPECT_NEAR(colon.x + TextWidth(colon.font, ": "), value.x, kTwip);
    EXPECT_EQ(page.Texts(": ").at(1).x, place) << "The other line's colon stays.";
}

// "00000,00" is 8542 units, 156 / 2048 twips each: 650.7 behind the colon at 3000 + 5 × 1401 = 10005.
TEST_F(CompactionPage, ResultsEndWhereTheirUnitsBegin)
{
    const PageMarks page = Printed();
    const TextItem water = page.Text("12.3");
    EXPECT_NEAR(water.x + TextWidth(water.font, "12.3"), 10655.7, kTwip);
    EXPECT_NEAR(water.y, 3800, kTwip);
    EXPECT_NEAR(page.Text("  %").x, 10655.7, kTwip);
    EXPECT_NEAR(page.Text("  g/cm^3").x, 10655.7, kTwip);
    EXPECT_NEAR(page.Text("1.98").y, Y(1), kTwip);
    EXPECT_NEAR(page.Text("Maximum Dry Density (MDD)  ").x, 7403, kTwip);
}

TEST_F(CompactionPage, UnitsPrintWithoutResults)
{
    sheet.txtOMC.SetText("");
    sheet.txtDmax.SetText("");
    const PageMarks page = Printed();
    EXPECT_NEAR(page.Text("  %").x, 10655.7, kTwip);
    EXPECT_NEAR(page.Text("  g/cm^3").x, 10655.7, kTwip);
}

TEST_F(CompactionPage, PictureBoxesAreCopiedWithTheirOwnSizes)
{
    sheet.picgraph1.Line(0, 0, 100, 100);
    const PageMarks page = Printed();
    const auto pictures = ItemsOf<PictureItem>(page.items);
    ASSERT_EQ(pictures.size(), 4u) << "two logos, two boxes";
    const PictureItem& frame = pictures[2];
    const PictureItem& plot = pictures[3];
    EXPECT_EQ(frame.name, "picgraph1");
    EXPECT_NEAR(frame.x, 500, kTwip);
    EXPECT_NEAR(frame.x + frame.width, 7600, kTwip);
    EXPECT_NEAR(frame.y, 10586, kTwip);
    EXPECT_NEAR(frame.y + frame.height, 15886, kTwip);
    EXPECT_EQ(*frame.drawing, *sheet.picgraph1.Image());
    EXPECT_EQ(plot.name, "picGraph");
    EXPECT_NEAR(plot.x, 1400, kTwip) << "900 inside its frame";
    EXPECT_NEAR(plot.y, 11036, kTwip);
    EXPECT_EQ(plot.width, 5450);
    EXPECT_EQ(plot.height, 4000);
}

TEST_F(CompactionPage, UncalculatedSheetPrintsItsFrames)
{
    for (TextGrid* grid : {&sheet.MSHWt, &sheet.MSHDensity})
        for (int row = 0; row < grid->Rows(); ++row)
            for (int column = 1; column <= 6; ++column) (*grid)(row, column) = "";
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(3), 11406, Y(11), 2), 1);
    EXPECT_NEAR(page.Text("Density Determination").y, Y(11), kTwip);
    EXPECT_EQ(ItemsOf<PictureItem>(page.items).size(), 4u);
}

// The approver aside, the preview is the print: same things at the same places but for banner and logos.
TEST_F(CompactionPage, PreviewDiffersInTheApproverAlone)
{
    bench.MakePerson(1, "Chai Somsak", "Approver");
    const auto printed = Printed().items;
    const auto shown = Shown();
    ASSERT_EQ(printed.size(), shown.size());
    std::vector<std::string> differing;
    for (std::size_t at = 0; at < printed.size(); ++at) {
        if (printed[at] == shown[at]) continue;
        if (const auto* text = std::get_if<TextItem>(&printed[at])) differing.push_back(text->text);
        if (const auto* picture = std::get_if<PictureItem>(&printed[at])) differing.push_back(picture->name);
    }
    EXPECT_EQ(differing, (std::vector<std::string>{
                             "Terravane Program for Road Construction Materials 2022 (Terravane Version 1.0)",
                             "dep_logo.jpg", "ins_logo.jpg", "(Chai Somsak)"}));
}

TEST_F(CompactionPage, UnsavedTextIsPrintedAsTyped)
{
    sheet.txtDmax.SetText("about 2");
    EXPECT_EQ(Printed().Texts("about 2").size(), 1u);
}

// But for the colon on the mold box's rule, which is no text.
TEST_F(CompactionPage, NoTwoTextsOverlap)
{
    ExpectNoTextOverText(Printed().items);
}

}  // namespace
}  // namespace terravane::compaction_page
