// The sieve report as a list of drawn things. Lengths in twips; a line of the body's size 13 is 339.3, of the chart's
// size 14 365.4. Eight columns are (11906 - 1000) / 8 = 1363.25 wide, from 500 on.
#include <cmath>

#include <gtest/gtest.h>

#include "reports/print_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"
#include "support/sieve_laboratory.h"

namespace terravane::sieve_page {
namespace {

using namespace support;

constexpr double kColumn = 1363.25;

double Y(double line)
{
    return 3800 + kBodyLine * line;
}

double Width(std::string_view text, double size = 13, bool bold = false)
{
    return TextWidth({"DilleniaUPC", size, bold, false}, text);
}

struct SievePage : testing::Test {
    ReportBench bench;
    frmSieve* sheet = nullptr;

    SievePage()
    {
        bench.program.AddForm("frmSieve", [](Program& owner) { return std::make_unique<frmSieve>(owner); });
        sheet = dynamic_cast<frmSieve*>(&bench.Open(terravane::Test::SieSoil, "frmSieve"));
        SieveWet(*sheet, "3530.0", "3340.0");
        TypeStack(*sheet, kCrushedRockStack, "3530.0");
        TypeLimits(*sheet, "22", "18");
        bench.program.CurrentMaterial = Material::None;  // nothing to post to
        sheet->cmdCal.Press();
        sheet->cmdgraph.Press();
        sheet->cmdClass.Press();
    }

    std::vector<DisplayList> Pages() { return PagesOfReport(bench.program); }
    PageMarks Printed() { return {Pages().at(1).items}; }
    PageMarks PrintedChart() { return {Pages().at(2).items}; }
    PageMarks Shown() { return {bench.Preview().picView.Items()}; }
    PageMarks ShownChart()
    {
        frmPreview& preview = bench.Preview();
        preview.cmdNext.Press();
        return {preview.picView.Items()};
    }
    /// The curve of the printed chart.
    std::vector<DrawnPoint> Curve()
    {
        const auto curves = ItemsOf<PolylineItem>(PrintedChart().items);
        return curves.size() == 1 ? curves[0].points : std::vector<DrawnPoint>{};
    }
};

TEST_F(SievePage, APrintedReportIsACoverAndTwoPagesTheLastOnItsSide)
{
    const auto pages = Pages();
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_EQ(pages[1].width, 11906);
    EXPECT_EQ(pages[2].width, 16838);
    EXPECT_EQ(pages[2].height, 11906);
}

TEST_F(SievePage, BoxesStandWhereTheMethodHasThem)
{
    const auto page = Printed();
    EXPECT_EQ(page.Boxes(500, Y(1), 3226.5, Y(4), 2), 1);
    EXPECT_EQ(page.Boxes(3226.5, Y(1), 11406, Y(4), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(4.5), 11406, Y(7.5), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(7.5), 11406, Y(17.5), 2), 1);
    EXPECT_EQ(page.Boxes(500, kBodyLine * 29.8, 500 + 5 * kColumn, kBodyLine * 31.8, 2), 1);
    EXPECT_EQ(page.Boxes(500, kBodyLine * 34.8, 500 + 5 * kColumn, kBodyLine * 40.8, 2), 1);
    const auto preview = Shown();
    EXPECT_EQ(preview.Boxes(500, kBodyLine * 30.8, 500 + 5 * kColumn, kBodyLine * 32.8, 2), 1);
    EXPECT_EQ(preview.Boxes(500, kBodyLine * 35.8, 500 + 5 * kColumn, kBodyLine * 41.8, 2), 1);
}

TEST_F(SievePage, MassesEndAtTheirStop)
{
    const auto page = Printed();
    const double stop = 3226.5 + Width("Dry Mass of Original Sample");
    EXPECT_NEAR(page.Text("Dry Mass of Original Sample").x, 4126.5, kTwip);
    EXPECT_NEAR(page.Text("3530.00").x + Width("3530.00"), stop + 1800, kTwip);
    EXPECT_NEAR(page.Text("3340.00").y, Y(2), kTwip);
    EXPECT_NEAR(page.Texts(" grams ").at(2).x, stop + 2100, kTwip);
    EXPECT_NEAR(page.Middle("Wet Sieving Method"), (500 + 3226.5) / 2, kTwip);
    EXPECT_NEAR(page.Text("Wet Sieving Method").y, Y(2), kTwip);
}

// The colon ends 604 twips before the value's end: 1234.56 g need 564, 12345.67 g 651.
TEST_F(SievePage, AMassThatIsLongerThanItsPlacePushesItsColon)
{
    const std::string colon = " :     ";
    const double place = Printed().Texts(colon).at(0).x;
    sheet->txtGsoil.SetText("1234.56");
    EXPECT_EQ(Printed().Texts(colon).at(0).x, place);
    sheet->txtGsoil.SetText("12345.67");
    const auto page = Printed();
    EXPECT_NEAR(page.Texts(colon).at(0).x + Width(" : "), page.Text("12345.67").x, kTwip);
    EXPECT_EQ(page.Texts(colon).at(1).x, place) << "The next line's stays.";
    EXPECT_NEAR(page.Texts(" grams ").at(0).x, page.Texts(" grams ").at(1).x, kTwip);
}

TEST_F(SievePage, AFractionThatIsLongerThanItsPlacePushesItsSign)
{
    const double place = Printed().Texts("%").at(0).x;
    sheet->txtP4.SetText("-12345.6");  // 12445.60 % of gravel
    const auto page = Printed();
    EXPECT_NEAR(page.Texts("%").at(0).x, page.Text("12445.60").x + Width("12445.60 "), kTwip);
    EXPECT_EQ(page.Texts("%").at(2).x, place);
}

// 100 - 51.2, 51.2 - 5.8, 5.8.
TEST_F(SievePage, FractionsAreWorkedOutHereAndStandClearOfTheMasses)
{
    const auto page = Printed();
    const double grams = page.Texts(" grams ").at(0).x + Width(" grams ");
    for (const auto& [label, value, line] :
         {std::tuple{"Gravel Fraction ", "48.80", 1}, {"Sand Fraction ", "45.40", 2}, {"Fine Fraction ", "5.80", 3}}) {
        const TextItem at = page.Text(label);
        EXPECT_GT(at.x, grams);
        EXPECT_NEAR(at.y, Y(line), kTwip);
        EXPECT_NEAR(page.Text(value).x, at.x + Width("Plasticity Index") + 400, kTwip) << label;
    }
    EXPECT_LT(page.Texts("%").at(0).x + Width("%"), 11406);
}

TEST_F(SievePage, TheTableIsTheGridTrimmedAndCentred)
{
    const auto page = Printed();
    const auto middle = [](int column) { return 500 + kColumn * (column - 0.5); };
    EXPECT_NEAR(page.Middle("3/4 in"), middle(1), kTwip);
    EXPECT_NEAR(page.Text("3/4 in").y, Y(8.5), kTwip);
    EXPECT_NEAR(page.Middle("1118.60"), middle(6), kTwip);
    EXPECT_NEAR(page.Middle("91.0"), middle(8), kTwip);
    EXPECT_NEAR(page.Text("Pan").y, Y(15.5), kTwip);
    const TextItem head = page.Text("Mass of Sieve");
    EXPECT_TRUE(head.font.bold);
    EXPECT_NEAR(head.x + Width("Mass of Sieve", 13, true) / 2, middle(4), kTwip);
    EXPECT_NEAR(head.y, Y(4.5), kTwip);
}

TEST_F(SievePage, TheRemarkTurnsAtExactlyTwoPercent)
{
    const std::string opening = "Remark :  Percent mass loss due to sieving of this test is ";
    const auto remark = [&](std::string_view loss, std::string_view ending) {
        sheet->txtErr.SetText(loss);
        const TextItem found = Printed().Text(opening + std::string(loss) + std::string(ending));
        EXPECT_NEAR(found.x, 500, kTwip) << loss;
        EXPECT_NEAR(found.y, Y(17.5), kTwip) << loss;
    };
    remark("1.99%", " which is less than 2% then the test need not be rerun.");
    remark("2.00%", " which is more than 2% then the test should be rerun.");
    remark("12.50%", " which is more than 2% then the test should be rerun.");
    remark("", " which is less than 2% then the test need not be rerun.");
}

TEST_F(SievePage, GrainSizesAreWhatStandsBehindTheSign)
{
    sheet->txtCc.SetText("");
    sheet->txtD10.SetText("  D10 =  ? = 3 ");
    const auto page = Printed();
    const double line = kBodyLine * 29.8;
    EXPECT_NEAR(page.Text("D60 (mm)").y, line, kTwip);
    EXPECT_TRUE(page.Text("D60 (mm)").font.bold);
    EXPECT_NEAR(page.Text("7.214").y, line + kBodyLine, kTwip);
    EXPECT_NEAR(page.Middle("7.214"), 500 + kColumn * 2.5, kTwip);
    EXPECT_NEAR(page.Middle("? = 3"), 500 + kColumn * 0.5, kTwip);
    EXPECT_EQ(page.Texts("41.04").size(), 1u);
}

TEST_F(SievePage, ClassesStandUnderTheirCaption)
{
    const auto page = Printed();
    const TextItem caption = page.Text("Engineering Soil Classification (LL = 22 % PI = 4 %)");
    EXPECT_NEAR(caption.y, kBodyLine * 33.8, kTwip);
    EXPECT_TRUE(caption.font.bold);
    EXPECT_NEAR(page.Text("Unified Soil Classification System (USCS)").y, kBodyLine * 34.8, kTwip);
    EXPECT_NEAR(page.Text("Well-graded gravel with silty clay and sand").y, kBodyLine * 36.8, kTwip);
    EXPECT_NEAR(page.Text("AASHTO Classification System").y, kBodyLine * 37.8, kTwip);
    EXPECT_NEAR(page.Text("A-1-a(0)").y, kBodyLine * 38.8, kTwip);
    EXPECT_NEAR(page.Text("Stone or gravel fragments").y, kBodyLine * 39.8, kTwip);
    const TextItem name = page.Text("Well-graded gravel with silty clay and sand");
    EXPECT_GT(name.x, 500 + 10906 / 6.0 + 150);
    EXPECT_LT(name.x + Width(name.text), 500 + 5 * kColumn);
}

TEST_F(SievePage, TheDryMethodStillPrintsTheMassAfterWashing)
{
    sheet->optNo.Choose();
    sheet->txtDwp.SetText("480");
    const auto page = Printed();
    EXPECT_EQ(page.Texts("Dry Sieving Method").size(), 1u);
    EXPECT_EQ(page.Texts("480.00").size(), 1u);
}

// Page on its side: xl = 16838 x 1.5 / 11 = 2296.09, xr = 15307.27, D = 13011 \ 4 = 3252, yt = 3348.56, yb = 9673.63,
// ten percent are 632.51.
constexpr double kChartLeft = 16838 * 1.5 / 11, kChartRight = 16838.0 * 10 / 11, kDecade = 3252;
constexpr double kChartTop = 11906 * 4.5 / 16, kChartBottom = 11906.0 * 13 / 16;

double ChartX(double millimetre)
{
    return kChartLeft + 2 * kDecade - std::log10(millimetre) * kDecade;
}

double ChartY(double percent)
{
    return kChartBottom - percent * (kChartBottom - kChartTop) / 100;
}

TEST_F(SievePage, TheChartHasThickDecadesAndAFrame)
{
    const auto page = PrintedChart();
    EXPECT_EQ(page.Boxes(kChartLeft, kChartTop, kChartRight, kChartBottom, 10), 1);
    std::vector<double> decades;
    for (const LineItem& line : ItemsOf<LineItem>(page.items))
        if (line.pen.width == 10) decades.push_back(line.x1);
    ASSERT_EQ(decades.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(decades[i], kChartRight - kDecade * (static_cast<double>(i) + 1), kTwip);
    EXPECT_NEAR(page.Middle("10.00"), kChartRight - 3 * kDecade - 10, kTwip);
    EXPECT_NEAR(page.Middle("0.01"), kChartRight, kTwip);
    EXPECT_NEAR(page.Text("0.01").y, kChartBottom + 200, kTwip);
    EXPECT_NEAR(page.Text("50").y, ChartY(50) - 365.4 / 2, kTwip);
    EXPECT_NEAR(page.Text("50").x, kChartLeft - 600, kTwip);
}

TEST_F(SievePage, TheLegendStandsAboveTheSieveLabelsAboveThePlot)
{
    const auto page = PrintedChart();
    EXPECT_NEAR(page.Text("Gravel").y, kChartTop - 4 * 365.4, kTwip);
    EXPECT_NEAR(page.Middle("Gravel"), (ChartX(75) + ChartX(4.75)) / 2, kTwip);
    EXPECT_NEAR(page.Text("Medium").y, kChartTop - 3 * 365.4, kTwip);
    EXPECT_NEAR(page.Middle("Medium"), (ChartX(2) + ChartX(0.425)) / 2, kTwip);
    EXPECT_NEAR(page.Text("0.425").y, kChartTop - 2 * 365.4, kTwip);
    EXPECT_NEAR(page.Middle("0.425"), ChartX(0.425), kTwip);
    EXPECT_NEAR(page.Text("Unified and USBR").x + Width("Unified and USBR", 14), kChartRight, kTwip);
    EXPECT_NEAR(page.Text("3''").y, kChartTop - 365.4, kTwip);
    EXPECT_NEAR(page.Middle("3''"), ChartX(75), kTwip);
    EXPECT_NEAR(page.Text("U.S. Standard Sieve Size").x + Width("U.S. Standard Sieve Size", 14), kChartRight, kTwip);
    EXPECT_EQ(page.Texts("#16").size(), 0u);
}

TEST_F(SievePage, TitlesFooterAndCaptionPicture)
{
    const auto page = PrintedChart();
    const double middle = (kChartLeft + kChartRight) / 2;
    const TextItem title = page.Text("PATICLE SIZE DISTRIBUTION CURVE");
    EXPECT_NEAR(title.x + Width(title.text, 14, true) / 2, middle, kTwip);
    EXPECT_NEAR(title.y, 700, kTwip);
    EXPECT_TRUE(title.font.bold);
    EXPECT_NEAR(page.Text("Grain Size(mm)").y, kChartBottom + 2 * 365.4, kTwip);
    EXPECT_NEAR(page.Text("Database File is /home/road.mdb").y, 10906, kTwip);
    EXPECT_NEAR(page.Text("Page 2 ").x + Width("Page 2 ", 12), kChartRight, kTwip);
    const auto pictures = ItemsOf<PictureItem>(page.items);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].name, "Image3");
    EXPECT_EQ(pictures[0].x, 700);
    EXPECT_EQ(pictures[0].y, 5600);
    EXPECT_EQ(pictures[0].width, 550);
    EXPECT_EQ(pictures[0].height, 1800);
}

TEST_F(SievePage, MarksTakeTheirSizeFromTheLabelAndThePanStandsBelowTheLast)
{
    sheet->MSHSieve(5, sieve::Opening) = "999";  // of No. 10; the label counts
    const auto marks = ItemsOf<CircleItem>(PrintedChart().items);
    ASSERT_EQ(marks.size(), 9u);  // row 10 has no name
    EXPECT_NEAR(marks[4].x, ChartX(2), kTwip);
    EXPECT_NEAR(marks[4].y, ChartY(32.9), kTwip);
    EXPECT_EQ(marks[4].radius, 40);
    EXPECT_EQ(marks[4].fill, (Colour{255, 128, 0}));
    EXPECT_NEAR(marks[8].x, ChartX(0.075), kTwip);
    EXPECT_NEAR(marks[8].y, ChartY(0), kTwip);
}

// No. 16 has a place on the preview only; printed, it is marked at the sieve above it.
TEST_F(SievePage, NumberSixteenIsMarkedInItsPlaceOnThePreviewOnly)
{
    sheet->MSHSieve(6, sieve::Number) = "     #16";
    EXPECT_NEAR(ItemsOf<CircleItem>(PrintedChart().items).at(5).x, ChartX(2), kTwip);
    EXPECT_NEAR(ItemsOf<CircleItem>(ShownChart().items).at(5).x, ChartX(1.19), kTwip);
}

TEST_F(SievePage, ALabelWithoutASizeBeforeAnyOtherIsNotMarked)
{
    sheet->MSHSieve(1, sieve::Number) = "     1 1/2 in";
    EXPECT_EQ(ItemsOf<CircleItem>(PrintedChart().items).size(), 8u);
}

// A tick alone draws nothing on the sheet, so it changes nothing on paper.
TEST_F(SievePage, ThePrintedCurveIsTheOneThatTheSheetShows)
{
    EXPECT_EQ(Curve().size(), 8u) << "The polygon through the points.";
    sheet->chkSmooth.SetValue(true);
    EXPECT_EQ(Curve().size(), 8u);
    sheet->cmdgraph.Press();
    const auto spline = static_cast<std::size_t>(sheet->MSH3.Rows()) - 1;
    EXPECT_GT(spline, 8u);
    EXPECT_EQ(Curve().size(), spline);
    EXPECT_NEAR(Curve().front().x, ChartX(25), kTwip);
    EXPECT_NEAR(Curve().front().y, ChartY(100), kTwip);
    sheet->chkSmooth.SetValue(false);
    EXPECT_EQ(Curve().size(), spline) << "The spline still stands on the sheet.";
    sheet->cmdgraph.Press();
    EXPECT_EQ(Curve().size(), 8u) << "Not the spline of the plot before.";
}

TEST_F(SievePage, APlotThatFailedPrintsNoCurve)
{
    sheet->chkSmooth.SetValue(true);
    for (int row = 3; row <= 9; ++row) sheet->MSHSieve(row, sieve::Opening) = "";
    sheet->cmdgraph.Press();  // two sieves have no spline
    EXPECT_EQ(ItemsOf<PolylineItem>(sheet->picGraph.Items()).size(), 0u);
    EXPECT_TRUE(Curve().empty());
}

// The chart's own sizes, which are not those of the sieves' openings; No. 16 has one on the preview only.
TEST_F(SievePage, EachSievesMarkHasItsPlaceOnTheChart)
{
    struct Place {
        const char* sieve;
        double millimetre;
    };
    frmPreview& preview = bench.Preview();
    for (const Place& place :
         {Place{"2 in", 50}, Place{"1 in", 25}, Place{"3/4 in", 19}, Place{"1/2 in", 12.5}, Place{"3/8 in", 9.51},
          Place{"#4", 4.75}, Place{"#8", 2.6}, Place{"#10", 2}, Place{"#16", 1.19}, Place{"#20", 0.85},
          Place{"#30", 0.59}, Place{"#40", 0.425}, Place{"#50", 0.3}, Place{"#60", 0.25}, Place{"#80", 0.18},
          Place{"#100", 0.15}, Place{"#140", 0.106}, Place{"#200", 0.075}}) {
        sheet->MSHSieve(1, sieve::Number) = "     " + std::string(place.sieve) + " ";
        preview.cmdNext.Press();
        EXPECT_NEAR(ItemsOf<CircleItem>(preview.picView.Items()).at(0).x, ChartX(place.millimetre), kTwip)
            << place.sieve;
        preview.cmdNext.Press();
        if (place.millimetre == 1.19) continue;
        EXPECT_NEAR(ItemsOf<CircleItem>(PrintedChart().items).at(0).x, ChartX(place.millimetre), kTwip) << place.sieve;
    }
}

TEST_F(SievePage, AnEmptySheetHasPagesToo)
{
    bench.program.Unload("frmSieve");
    sheet = dynamic_cast<frmSieve*>(&bench.Open(terravane::Test::SieSoil, "frmSieve"));
    EXPECT_EQ(Pages().size(), 3u);
    EXPECT_TRUE(Curve().empty());
    EXPECT_TRUE(ItemsOf<CircleItem>(PrintedChart().items).empty());
}

TEST_F(SievePage, ThePreviewTurnsThePageAndNotThePrinter)
{
    frmPreview& preview = bench.Preview();
    EXPECT_TRUE(preview.cmdNext.Visible());
    preview.cmdNext.Press();
    EXPECT_EQ(preview.cmdNext.Caption(), "<<Back");
    EXPECT_EQ(preview.picView.Width, 16838);
    EXPECT_EQ(preview.picView.Height, 11906);
    EXPECT_EQ(bench.program.printer.PageOrientation(), Orientation::Portrait);
    EXPECT_EQ(TextsOf(preview.picView.Items(), "PATICLE SIZE DISTRIBUTION CURVE").size(), 1u);
    preview.cmdNext.Press();
    EXPECT_EQ(preview.picView.Width, 11906);
    EXPECT_EQ(TextsOf(preview.picView.Items(), "AASHTO Classification System").size(), 1u);
}

TEST_F(SievePage, ThePrinterStaysOnItsSideAfterAPrint)
{
    bench.Preview().Toolbar1.Press(1);
    ASSERT_EQ(bench.printed.size(), 1u);
    EXPECT_EQ(bench.printed[0].size(), 3u);
    EXPECT_EQ(bench.program.printer.PageOrientation(), Orientation::Landscape);
}

}  // namespace
}  // namespace terravane::sieve_page
