// The Atterberg report as a list of drawn things. Lengths in twips; a line of the body's size 13 is 339.3, so that
// y(n) = 3800 + 339.3 n. The five trial columns are (11406 - 3500) / 5 = 1581.2 wide, from 3500 on.
#include <cmath>

#include <gtest/gtest.h>

#include "reports/print_report.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane::atterberg_page {
namespace {

using namespace support;

constexpr double kColumn = 1581.2;

double Y(double line)
{
    return 3800 + kBodyLine * line;
}

double ColumnMiddle(int column)
{
    return 3500 + kColumn * (column - 0.5);
}

/// A sheet on which every cell of the two grids holds a text of its own: "L35" is row 3, column 5 of the liquid limits.
struct AtterbergPage : ::testing::Test {
    ReportBench bench;
    frmAtterberg& sheet = OpenAtterberg();

    AtterbergPage()
    {
        for (TextGrid* grid : {&sheet.MSHLL, &sheet.MSHPL}) {
            const std::string mark = grid == &sheet.MSHLL ? "L" : "P";
            for (int row = 1; row < grid->Rows(); ++row)
                for (int column = 1; column <= 5; ++column)
                    (*grid)(row, column) = " " + mark + std::to_string(row) + std::to_string(column) + " ";
        }
        sheet.txtLL.SetText("45.31");
        sheet.txtPL.SetText("22.70");
        sheet.txtPI.SetText("22.61");
        sheet.txtFI.SetText("0.66");
    }

    frmAtterberg& OpenAtterberg()
    {
        bench.program.AddForm("frmAtterberg", [](Program& owner) { return std::make_unique<frmAtterberg>(owner); });
        return dynamic_cast<frmAtterberg&>(bench.Open(terravane::Test::AttSoil, "frmAtterberg", ""));
    }

    PageMarks Printed() { return {PagesOfReport(bench.program).back().items}; }
    PageMarks Shown() { return {bench.Preview().picView.Items()}; }
};

TEST_F(AtterbergPage, LiquidLimitTableIsRuled)
{
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(1), 11406, Y(9), 2), 1);
    EXPECT_EQ(page.Across(500, 11406, Y(2), 2), 1) << "below the test numbers";
    for (int line = 3; line <= 9; ++line) EXPECT_EQ(page.Across(500, 11406, Y(line), 1), 1) << line;
    for (int column = 0; column <= 4; ++column)
        EXPECT_EQ(page.Down(3500 + kColumn * column, Y(1), Y(9), 2), 1) << column;
}

TEST_F(AtterbergPage, LastRowOfThePlasticLimitsIsOneCell)
{
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(10), 11406, Y(19), 2), 1);
    EXPECT_EQ(page.Down(3500, Y(10), Y(19), 2), 1);
    for (int column = 1; column <= 4; ++column) {
        EXPECT_EQ(page.Down(3500 + kColumn * column, Y(10), Y(18), 2), 1) << column;
        EXPECT_EQ(page.Down(3500 + kColumn * column, Y(10), Y(19), 2), 0) << column;
    }
    EXPECT_EQ(page.Across(500, 11406, Y(11), 2), 1);
    EXPECT_EQ(page.Across(500, 11406, Y(18), 2), 1);
    for (int line = 11; line <= 17; ++line) EXPECT_EQ(page.Across(500, 11406, Y(line), 1), 1) << line;
    const TextItem average = page.Text("P81");
    EXPECT_NEAR(page.Middle("P81"), (3500 + 11406) / 2.0, kTwip);
    EXPECT_NEAR(average.y, Y(18), kTwip);
    EXPECT_TRUE(page.Texts("P82").empty()) << "the average stands once";
}

TEST_F(AtterbergPage, ValuesAreCentredInTheirCells)
{
    const PageMarks page = Printed();
    for (int column = 1; column <= 5; ++column) {
        for (int row = 1; row <= 7; ++row) {
            const std::string cell = std::to_string(row) + std::to_string(column);
            EXPECT_NEAR(page.Middle("L" + cell), ColumnMiddle(column), kTwip) << cell;
            EXPECT_NEAR(page.Text("L" + cell).y, Y(1 + row), kTwip) << cell;
            EXPECT_NEAR(page.Middle("P" + cell), ColumnMiddle(column), kTwip) << cell;
            EXPECT_NEAR(page.Text("P" + cell).y, Y(10 + row), kTwip) << cell;
            EXPECT_EQ(page.Text("L" + cell).font, (Font{"DilleniaUPC", 13, false, false})) << cell;
            EXPECT_EQ(page.Text("P" + cell).font, (Font{"DilleniaUPC", 13, false, false})) << cell;
        }
    }
}

TEST_F(AtterbergPage, LabelsStandBesideTheirRows)
{
    const PageMarks page = Printed();
    const auto check = [&](const std::string& label, std::vector<double> lines) {
        const auto found = page.Texts(label);
        ASSERT_EQ(found.size(), lines.size()) << label;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_NEAR(found[i].x, 700, kTwip) << label;
            EXPECT_NEAR(found[i].y, Y(lines[i]), kTwip) << label;
            EXPECT_FALSE(found[i].font.bold) << label;
        }
    };
    check("Number of Blows", {2});
    check("Mass of Can + Wet Soil, (g)", {3, 11});
    check("Mass of Can + Dry Soil, (g)", {4, 12});
    check("Mass of Can, (g)", {5, 13});
    check("Mass of Water, (g)", {6, 14});
    check("Mass of Dry Soil, (g)", {7, 15});
    check("Water Content, (%)", {8, 16});
    check("Plastic Limit, (%)", {17});
    check("Average Plastic Limit, (%)", {18});
}

// "Moisture Can No." would be centred in the 3000 of the labels; "Test No." begins where it would.
TEST_F(AtterbergPage, CaptionsAndHeadsAreBold)
{
    const PageMarks page = Printed();
    EXPECT_NEAR(page.Text("Liquid Limit Determination").y, Y(0), kTwip);
    EXPECT_NEAR(page.Text("Plastic Limit Determination").y, Y(9), kTwip);
    for (const char* caption : {"Liquid Limit Determination", "Plastic Limit Determination"}) {
        EXPECT_TRUE(page.Text(caption).font.bold);
        EXPECT_NEAR(page.Text(caption).x, 500, kTwip);
    }
    const auto heads = page.Texts("Test No.");
    ASSERT_EQ(heads.size(), 2u);
    const Font bold{"DilleniaUPC", 13, true, false};
    for (const TextItem& head : heads) {
        EXPECT_NEAR(head.x, 500 + (3000 - TextWidth(bold, "Moisture Can No.")) / 2, kTwip);
        EXPECT_EQ(head.font, bold);
    }
    EXPECT_NEAR(heads[0].y, Y(1), kTwip);
    EXPECT_NEAR(heads[1].y, Y(10), kTwip);
    for (int column = 1; column <= 5; ++column) {
        const auto numbers = page.Texts(std::to_string(column));
        ASSERT_EQ(numbers.size(), 2u);
        for (const TextItem& number : numbers)
            EXPECT_NEAR(number.x + TextWidth(number.font, number.text) / 2, ColumnMiddle(column), kTwip);
    }
}

TEST_F(AtterbergPage, SummaryStandsBesideThePlot)
{
    const PageMarks page = Printed();
    const double left = 3500 + 3 * kColumn, top = Y(19.3);
    EXPECT_EQ(page.Boxes(left, top + kBodyLine, 11406, top + 5 * kBodyLine, 2), 1);
    EXPECT_EQ(page.Down(left + kColumn + 300, top + kBodyLine, top + 5 * kBodyLine, 2), 1);
    for (int row = 2; row <= 4; ++row) EXPECT_EQ(page.Across(left, 11406, top + row * kBodyLine, 1), 1) << row;
    EXPECT_NEAR(page.Text("Summary of Test Results").x, left, kTwip);
    EXPECT_NEAR(page.Text("Summary of Test Results").y, top, kTwip);
    EXPECT_TRUE(page.Text("Summary of Test Results").font.bold);

    int row = 1;
    for (const auto& [label, value] :
         {std::pair{"Liquid Limit (LL) ", "45.31"}, std::pair{"Plastic Limit (PL) ", "22.70"},
          std::pair{"Plasticity Index (PI) ", "22.61"}, std::pair{"Flow Index (PI) ", "0.66"}}) {
        EXPECT_NEAR(page.Text(label).x, left + 200, kTwip) << label;
        EXPECT_NEAR(page.Text(label).y, top + row * kBodyLine, kTwip) << label;
        EXPECT_NEAR(page.Text(value).x, left + kColumn + 700, kTwip) << label;
        EXPECT_NEAR(page.Text(value).y, top + row++ * kBodyLine, kTwip) << label;
        EXPECT_FALSE(page.Text(value).font.bold);
    }
    EXPECT_EQ(page.Texts(" %").size(), 3u) << "the flow index has no unit";
}

TEST_F(AtterbergPage, PlotIsCopiedAsItStands)
{
    sheet.picGraph.Line(1, 2, 3, 4);
    sheet.picgraph1.Line(5, 6, 7, 8);
    const auto pictures = ItemsOf<PictureItem>(Printed().items);
    ASSERT_EQ(pictures.size(), 4u) << "two logos, frame and plot";
    const PictureItem &frame = pictures[2], &plot = pictures[3];
    EXPECT_EQ(frame.name, "picgraph1");
    EXPECT_NEAR(frame.x, 500, kTwip);
    EXPECT_NEAR(frame.y, Y(20.25), kTwip);
    EXPECT_EQ(frame.width, 7100);
    EXPECT_EQ(frame.height, 5200);
    EXPECT_EQ(plot.name, "picGraph");
    EXPECT_NEAR(plot.x, 500 + 960 - 60, kTwip);
    EXPECT_NEAR(plot.y, Y(20.25) + 450, kTwip);
    EXPECT_EQ(plot.width, 5450);
    EXPECT_EQ(plot.height, 3900);
    EXPECT_EQ(*plot.drawing, *sheet.picGraph.Image());
}

// 36 lines from the page's top on the printer, 37 on the preview; then one, four and seven lines.
TEST_F(AtterbergPage, SignaturesStandDeeperOnThePreview)
{
    const PageMarks printed = Printed(), shown = Shown();
    EXPECT_NEAR(printed.Text("Tested by ").y, 37 * kBodyLine, kTwip);
    EXPECT_NEAR(printed.Text("Checked by ").y, 40 * kBodyLine, kTwip);
    EXPECT_NEAR(shown.Text("Tested by ").y, 38 * kBodyLine, kTwip);
    EXPECT_NEAR(shown.Text("Checked by ").y, 41 * kBodyLine, kTwip);
    EXPECT_EQ(printed.Texts("(Anong Jai)").size(), 1u);
}

// The width of "D" in size 14, 121.3, times 20.5 or 22, and 200.
TEST_F(AtterbergPage, HeadBlockStandsDeeperOnThePreview)
{
    EXPECT_NEAR(Printed().Text("Client Name ").y, 2687.1, kTwip);
    EXPECT_NEAR(Shown().Text("Client Name ").y, 2869.1, kTwip);
}

TEST_F(AtterbergPage, TitlesOfTheTest)
{
    for (const PageMarks& page : {Printed(), Shown()}) {
        EXPECT_EQ(page.Texts("การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก").size(), 1u);
        EXPECT_EQ(page.Texts("Atterberg Limits Test").size(), 1u);
    }
    EXPECT_EQ(PageMarks{PagesOfReport(bench.program).front().items}.Texts("ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก").size(), 1u)
        << "the cover's title";
}

TEST_F(AtterbergPage, UnfinishedTestPrintsItsEmptyTables)
{
    for (TextGrid* grid : {&sheet.MSHLL, &sheet.MSHPL})
        for (int row = 1; row < grid->Rows(); ++row)
            for (int column = 1; column <= 5; ++column) (*grid)(row, column) = "   ";
    for (TextBox* box : {&sheet.txtLL, &sheet.txtPL, &sheet.txtPI, &sheet.txtFI}) box->SetText("");
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(1), 11406, Y(9), 2), 1);
    EXPECT_EQ(page.Texts("5").size(), 2u) << "five columns at any time";
    EXPECT_EQ(page.Texts(" %").size(), 3u);
}

TEST_F(AtterbergPage, NoTwoTextsOverlap)
{
    ExpectNoTextOverText(Printed().items);
}

}  // namespace
}  // namespace terravane::atterberg_page
