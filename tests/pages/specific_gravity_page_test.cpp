// The specific gravity report as a list of drawn things. Lengths in twips; a line of the body's size 13 is 339.3, so
// that y(n) = 4500 + 339.3 n. A trial's column is (11406 - 3500) / 6 = 1317.67 wide, from 3500 on; a calibration column
// a third of 3000 + 1317.67, 1439.22, from 500 on.
#include <gtest/gtest.h>

#include "reports/print_report.h"
#include "sheets/specific/frmSpecific.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane::specific_gravity_page {
namespace {

using namespace support;

constexpr double kTrial = 7906.0 / 6;
constexpr double kReading = (3000 + kTrial) / 3;

double Y(double line)
{
    return 4500 + kBodyLine * line;
}

double TrialMiddle(int trial)
{
    return 3500 + kTrial * (trial - 0.5);
}

double ReadingMiddle(int column)
{
    return 500 + kReading * (column + 0.5);
}

struct SpecificGravityPage : ::testing::Test {
    ReportBench bench;
    frmSpecific& sheet = OpenSpecific();

    SpecificGravityPage()
    {
        for (int row = 1; row <= 7; ++row)
            for (int column = 0; column <= 2; ++column)
                sheet.MSHCalibration(row, column) = " C" + std::to_string(row) + std::to_string(column);
        for (int row = 1; row <= 10; ++row)
            for (int trial = 1; trial <= 3; ++trial)
                sheet.MSHSpecific(row, trial) = "S" + std::to_string(row) + std::to_string(trial) + " ";
        sheet.txtFormula.SetText(" y = 661.02 + (-0.001900x) + (-0.002466x^2)");
        sheet.txtR.SetText(" 0.9999");
    }

    frmSpecific& OpenSpecific()
    {
        bench.program.AddForm("frmSpecific", [](Program& owner) { return std::make_unique<frmSpecific>(owner); });
        return dynamic_cast<frmSpecific&>(bench.Open(terravane::Test::SpcSoil, "frmSpecific", ""));
    }

    PageMarks Printed() { return {PagesOfReport(bench.program).back().items}; }
    PageMarks Shown() { return {bench.Preview().picView.Items()}; }
};

TEST_F(SpecificGravityPage, CalibrationTableIsRuled)
{
    const PageMarks page = Printed();
    const double right = 3500 + kTrial;
    EXPECT_EQ(page.Boxes(500, Y(1), right, Y(10), 2), 1);
    EXPECT_EQ(page.Across(500, right, Y(3), 2), 1);
    for (int line = 4; line <= 9; ++line) EXPECT_EQ(page.Across(500, right, Y(line), 1), 1) << line;
    for (int column = 1; column <= 2; ++column)
        EXPECT_EQ(page.Down(500 + kReading * column, Y(1), Y(10), 2), 1) << column;
}

TEST_F(SpecificGravityPage, CalibrationReadingsAreCentred)
{
    const PageMarks page = Printed();
    for (int row = 1; row <= 7; ++row) {
        for (int column = 0; column <= 2; ++column) {
            const std::string cell = "C" + std::to_string(row) + std::to_string(column);
            EXPECT_NEAR(page.Middle(cell), ReadingMiddle(column), kTwip) << cell;
            EXPECT_NEAR(page.Text(cell).y, Y(2 + row), kTwip) << cell;
            EXPECT_FALSE(page.Text(cell).font.bold) << cell;
        }
    }
    for (const auto& [head, column, line] :
         {std::tuple{"No.", 0, 1}, std::tuple{"Flask + Water", 1, 1}, std::tuple{"Temperature", 2, 1},
          std::tuple{"(g)", 1, 2}, std::tuple{"(Degree Celsius)", 2, 2}}) {
        EXPECT_NEAR(page.Middle(head), ReadingMiddle(column), kTwip) << head;
        EXPECT_NEAR(page.Text(head).y, Y(line), kTwip) << head;
    }
}

TEST_F(SpecificGravityPage, EquationStandsBelowItsTable)
{
    const PageMarks page = Printed();
    const Font font{"DilleniaUPC", 13, false, false};
    const double colon = 500 + TextWidth(font, "Equation of Curve");
    const double value = 500 + TextWidth(font, "Equation of Curve :  ");
    EXPECT_EQ(page.Text("Equation of Curve").font, font);
    EXPECT_NEAR(page.Text("Equation of Curve").y, Y(11), kTwip);
    EXPECT_NEAR(page.Text("R-squared Value").y, Y(12), kTwip);
    const auto colons = page.Texts(" :  ");
    ASSERT_EQ(colons.size(), 2u);
    for (const TextItem& item : colons) EXPECT_NEAR(item.x, colon, kTwip);
    EXPECT_NEAR(page.Text(" y = 661.02 + (-0.001900x) + (-0.002466x^2)").x, value, kTwip);
    EXPECT_NEAR(page.Text(" 0.9999").x, value, kTwip);
    EXPECT_NEAR(page.Text(" 0.9999").y, Y(12), kTwip);
}

TEST_F(SpecificGravityPage, PlotStandsAtTheRight)
{
    sheet.picgraph1.Line(1, 2, 3, 4);
    const auto pictures = ItemsOf<PictureItem>(Printed().items);
    ASSERT_EQ(pictures.size(), 4u) << "two logos, frame and plot";
    const PictureItem &frame = pictures[2], &plot = pictures[3];
    EXPECT_EQ(frame.name, "picGraph") << "on this sheet the frame";
    EXPECT_NEAR(frame.x, 11406 - 5900, kTwip);
    EXPECT_NEAR(frame.y, Y(1), kTwip);
    EXPECT_EQ(frame.width, 5900);
    EXPECT_EQ(frame.height, 4300);
    EXPECT_EQ(plot.name, "picgraph1");
    EXPECT_NEAR(plot.x, 5506 + 1120, kTwip) << "room for labels of six digits and two decimals";
    EXPECT_NEAR(plot.y, Y(1) + 300, kTwip);
    EXPECT_EQ(*plot.drawing, *sheet.picgraph1.Image());
}

TEST_F(SpecificGravityPage, TrialTableIsRuled)
{
    const PageMarks page = Printed();
    const double right = 3500 + kTrial * 3;
    EXPECT_EQ(page.Boxes(500, Y(16), right, Y(27), 2), 1);
    EXPECT_EQ(page.Across(500, right, Y(17), 2), 1);
    EXPECT_EQ(page.Across(500, right, Y(26), 2), 1);
    EXPECT_EQ(page.Down(3500, Y(16), Y(27), 2), 1);
    for (int i = 0; i <= 3; ++i) EXPECT_EQ(page.Down(3500 + kTrial * i, Y(16), Y(26), 2), 1) << i;
    for (int line = 17; line <= 25; ++line) EXPECT_EQ(page.Across(500, right, Y(line), 1), 1) << line;
}

TEST_F(SpecificGravityPage, TrialsAreCentredAndTheAverageStandsBelowTheFirst)
{
    const PageMarks page = Printed();
    for (int row = 1; row <= 9; ++row) {
        for (int trial = 1; trial <= 3; ++trial) {
            const std::string cell = "S" + std::to_string(row) + std::to_string(trial);
            EXPECT_NEAR(page.Middle(cell), TrialMiddle(trial), kTwip) << cell;
            EXPECT_NEAR(page.Text(cell).y, Y(16 + row), kTwip) << cell;
        }
    }
    EXPECT_NEAR(page.Middle("S101"), TrialMiddle(1), kTwip);
    EXPECT_NEAR(page.Text("S101").y, Y(26), kTwip);
    EXPECT_TRUE(page.Texts("S102").empty());
    EXPECT_NEAR(page.Middle("Trial No."), 2000, kTwip);
    EXPECT_TRUE(page.Text("Trial No.").font.bold);
    for (int trial = 1; trial <= 3; ++trial) EXPECT_NEAR(page.Middle(std::to_string(trial)), TrialMiddle(trial), kTwip);
}

TEST_F(SpecificGravityPage, LabelsStandBesideTheirRows)
{
    const PageMarks page = Printed();
    double line = 17;
    for (const char* label :
         {"Temperature, (Degree Celsius)", "Mass of Flask + Water, (g)", "Mass of Flask + Water + Soil, (g)",
          "Container No.", "Mass of Dry Soil + Container, (g)", "Mass of Container, (g)", "Dry Soil, (g)",
          "Correction Factor", "Specific Gravity at 20 Degree Celsius", "Average Specific Gravity"}) {
        EXPECT_NEAR(page.Text(label).x, 700, kTwip) << label;
        EXPECT_NEAR(page.Text(label).y, Y(line++), kTwip) << label;
        EXPECT_FALSE(page.Text(label).font.bold) << label;
    }
    for (const auto& [caption, at] : {std::pair{"Calibration Data", 0}, std::pair{"Testing Data", 15}}) {
        EXPECT_NEAR(page.Text(caption).y, Y(at), kTwip);
        EXPECT_TRUE(page.Text(caption).font.bold);
    }
}

// 29.4 lines from the page's top on the printer, 29.5 on the preview; then one, five and nine lines. The head block
// begins at 20.5 or 23.5 widths of "D" and 200.
TEST_F(SpecificGravityPage, PrinterAndPreviewDiffer)
{
    const PageMarks printed = Printed(), shown = Shown();
    EXPECT_NEAR(printed.Text("Tested by ").y, 30.4 * kBodyLine, kTwip);
    EXPECT_NEAR(printed.Text("Checked by ").y, 34.4 * kBodyLine, kTwip);
    EXPECT_NEAR(shown.Text("Tested by ").y, 30.5 * kBodyLine, kTwip);
    EXPECT_NEAR(shown.Text("Checked by ").y, 34.5 * kBodyLine, kTwip);
    EXPECT_NEAR(printed.Text("Client Name ").y, 2687.1, kTwip);
    EXPECT_NEAR(shown.Text("Client Name ").y, 3051.1, kTwip);
    EXPECT_EQ(printed.Texts("การทดสอบหาความถ่วงจำเพาะของดิน").size(), 1u);
    EXPECT_EQ(shown.Texts("การทดสอบหาความความถ่วงจำเพาะของดิน").size(), 1u);
}

TEST_F(SpecificGravityPage, CoverHasItsOwnTitle)
{
    const PageMarks cover{PagesOfReport(bench.program).front().items};
    EXPECT_EQ(cover.Texts("ผลทดสอบหาความถ่วงจำเพาะของดิน").size(), 1u);
}

TEST_F(SpecificGravityPage, EmptyCalibrationPrintsItsGrid)
{
    for (int row = 1; row <= 7; ++row)
        for (int column = 0; column <= 2; ++column) sheet.MSHCalibration(row, column) = "";
    sheet.txtFormula.SetText("");
    sheet.txtR.SetText("");
    const PageMarks page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(1), 3500 + kTrial, Y(10), 2), 1);
    EXPECT_EQ(page.Texts(" :  ").size(), 2u);
}

TEST_F(SpecificGravityPage, NoTwoTextsOverlap)
{
    ExpectNoTextOverText(Printed().items);
    ExpectNoTextOverText(Shown().items);
}

}  // namespace
}  // namespace terravane::specific_gravity_page
