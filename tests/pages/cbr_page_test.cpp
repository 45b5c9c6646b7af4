// The bearing ratio report as lists of drawn things. Lengths in twips; a line of the body's size 13 is 339.3: page 1
// has y(n) = 3800 + 339.3 n, page 2's table starts at 3000. Left edge 500, right edge 11406; a half box is 5403 wide,
// the right one starts at 6003; the six columns are (10906 - 3000) / 6 = 1317.67 wide, from 3500 on.
#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "reports/print_report.h"
#include "support/cbr_laboratory.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane::cbr_page {
namespace {

using namespace support;

constexpr double kColumn = 7906 / 6.0;
constexpr double kTenth = 1090.6;

double Y(double line)
{
    return 3800 + kBodyLine * line;
}

double TableY(double line)
{
    return 3000 + kBodyLine * line;
}

struct CbrPage : ::testing::Test {
    ReportBench bench;
    frmCBR& sheet;

    CbrPage() : sheet(Opened(bench))
    {
        sheet.txtK.SetText("4.99");
        sheet.txtWeight.SetText("4.54");
        sheet.txtOMC.SetText("12.0");
        sheet.txtMDD.SetText("1.95");
        sheet.txtCompaction.SetText("Stardard Compaction");
        Fill(sheet.MSHWater, "w", 1, 1);
        Fill(sheet.MSHCompaction, "d", 1, 1);
        Fill(sheet.MSHSwell, "s", cbr::swell::First, 0);
        sheet.cmdPen.Press();
        Fill(sheet.MSHPenetrate1, "p", 0, 1);
        Fill(sheet.mshLPC, "r", 1, 1);
    }

    static frmCBR& Opened(ReportBench& bench)
    {
        bench.program.AddForm("frmCBR", [](Program& owner) { return std::make_unique<frmCBR>(owner); });
        return dynamic_cast<frmCBR&>(bench.Open(terravane::Test::CBRSoil, "frmCBR"));
    }

    /// Every cell gets a text of its own: "w35" is row 3, column 5.
    static void Fill(TextGrid& grid, const std::string& mark, int firstRow, int firstColumn)
    {
        for (int row = firstRow; row < grid.Rows(); ++row)
            for (int column = firstColumn; column < grid.Columns(); ++column)
                grid(row, column) = mark + std::to_string(row) + std::to_string(column);
    }

    /// A printed page: 1 or 2, behind the cover.
    PageMarks Printed(std::size_t page) { return {PagesOfReport(bench.program).at(page).items}; }
};

constexpr auto Near = PageMarks::Near;

void ExpectAt(const PageMarks& page, std::string_view text, double middle, double y)
{
    EXPECT_NEAR(page.Middle(text), middle, kTwip) << text;
    EXPECT_NEAR(page.Text(text).y, y, kTwip) << text;
}

TEST_F(CbrPage, CaptionsStandInTheirLines)
{
    const auto page = Printed(1);
    for (const auto& [text, line] :
         {std::pair{"Type of Conpaction and CBR", 0}, std::pair{"CBR Solution", 0},
          std::pair{"Water Content Determination", 4}, std::pair{"Dry Density Determination", 11},
          std::pair{"Results of Testing ", 21}, std::pair{"Swelling Determination", 23}}) {
        const TextItem caption = page.Text(text);
        EXPECT_TRUE(Near(caption.y, Y(line))) << text << " at " << caption.y;
        EXPECT_TRUE(caption.font.bold) << text;
    }
    EXPECT_EQ(page.Text("CBR Solution").x, 6003);
}

TEST_F(CbrPage, BoxesHaveTheirPlaces)
{
    const auto page = Printed(1);
    EXPECT_EQ(page.Boxes(500, Y(1), 5903, Y(4), 2), 1);
    EXPECT_EQ(page.Boxes(6003, Y(1), 11406, Y(5), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(5), 11406, Y(11), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(12), 11406, Y(21), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(22), 3500 + 3 * kColumn, Y(23), 2), 1);
    EXPECT_EQ(page.Boxes(500, Y(24), 3500 + 3 * kColumn, Y(32), 2), 1);
    EXPECT_EQ(page.Down(3500 + 3 * kColumn, Y(5), Y(11), 2), 1);
    EXPECT_EQ(page.Down(3500 + kColumn, Y(13), Y(21), 1), 1);
    EXPECT_EQ(page.Across(500, 11406, Y(20), 1), 1);
    EXPECT_EQ(page.Down(9003 + 801, Y(1), Y(5), 2), 1);
    EXPECT_EQ(page.Down(3500, Y(24), Y(32), 2), 1);
    EXPECT_EQ(page.Down(3500 + kColumn / 2, Y(26), Y(32), 1), 1);
    EXPECT_EQ(page.Down(3500 + kColumn, Y(24), Y(32), 1), 1) << "Between two molds.";
    EXPECT_EQ(page.Down(1500, Y(25), Y(32), 1), 1);
}

TEST_F(CbrPage, ValuesAreCentredInTheirCells)
{
    const auto page = Printed(1);
    ExpectAt(page, "w11", 3500 + kColumn * 0.5, Y(6));
    ExpectAt(page, "w56", 3500 + kColumn * 5.5, Y(10));
    ExpectAt(page, "d13", 3500 + kColumn * 2.5, Y(13));
    ExpectAt(page, "d86", 3500 + kColumn * 5.5, Y(20));
    ExpectAt(page, "s30", 1000, Y(27));
    ExpectAt(page, "s72", 3000, Y(31));
    ExpectAt(page, "s33", 3500 + kColumn * 0.25, Y(27));
    ExpectAt(page, "s78", 3500 + kColumn * 2.75, Y(31));
    ExpectAt(page, "r21", 9003 + 400.5, Y(3));
    ExpectAt(page, "r33", 9003 + 2002.5, Y(4));
    EXPECT_EQ(page.Texts("d22").size(), 2U) << "The blows stand in the table and in the solution.";
    EXPECT_TRUE(Near(page.Text("Moistue Content, (%)").x, 700));
}

TEST_F(CbrPage, ParametersStandAtTheirStops)
{
    const auto page = Printed(1);
    const TextItem unit = page.Text("%");
    EXPECT_TRUE(Near(unit.x, 700 + TextWidth(unit.font, "Opt. Moisture           "))) << unit.x;
    EXPECT_TRUE(Near(unit.y, Y(2)));
    EXPECT_TRUE(
        Near(page.Text("lb/div.").x, 500 + 2701.5 + 200 + TextWidth(unit.font, "Prv. Constant (K)           ")));
    EXPECT_TRUE(Near(page.Text("MDD ").y, Y(3)));
    EXPECT_TRUE(Near(page.Text("Surcharge Weight  ").x, 3401.5));
}

// The place is 377 twips behind the colon: four digits (347) fit, six signs (477) don't.
TEST_F(CbrPage, AConstantThatFitsLeavesItsUnitAndALongerOnePushesIt)
{
    const double place = Printed(1).Text("lb/div.").x;
    sheet.txtK.SetText("4995");
    EXPECT_EQ(Printed(1).Text("lb/div.").x, place);
    for (const char* longer : {"4.9958", "4.99581234"}) {
        sheet.txtK.SetText(longer);
        const auto page = Printed(1);
        const TextItem value = page.Text(longer);
        const double end = value.x + TextWidth(value.font, value.text);
        EXPECT_NEAR(page.Text("lb/div.").x, end + TextWidth(value.font, " "), kTwip) << longer;
    }
    EXPECT_EQ(Printed(1).Text("kg").x, place) << "The other row stays.";
}

TEST_F(CbrPage, TheChoicesNameTheTest)
{
    const double quarter = 5403 / 4.0;
    auto page = Printed(1);
    EXPECT_EQ(page.Texts("Soaked CBR").size() + page.Texts("Unsoaked CBR").size(), 0U) << "Nothing is chosen.";
    sheet.optSoak.Choose();
    ExpectAt(Printed(1), "Soaked CBR", 500 + 3 * quarter, Y(1));
    sheet.optUnsoak.Choose();
    ExpectAt(Printed(1), "Unsoaked CBR", 500 + 3 * quarter, Y(1));
    page = Printed(1);
    EXPECT_EQ(page.Texts("Unsoaked").size(), 3U) << "In the solution and over both tables.";
    EXPECT_EQ(page.Texts("Before Soaking").size(), 0U);
    sheet.optBoth.Choose();
    page = Printed(1);
    ExpectAt(page, "Unsoaked and Soaked CBR", 500 + 3 * quarter, Y(1));
    EXPECT_EQ(page.Texts("Before Soaking").size(), 2U);
    EXPECT_EQ(page.Texts("After Soaking").size(), 2U);
    EXPECT_EQ(page.Texts("d24").size(), 2U) << "The soaked mold's blows stand in the solution.";
}

TEST_F(CbrPage, WithoutAChoiceTheSwellingGridPrints)
{
    for (int row = cbr::swell::First; row < sheet.MSHSwell.Rows(); ++row)
        for (int column = 0; column < sheet.MSHSwell.Columns(); ++column) sheet.MSHSwell(row, column) = "";
    const auto page = Printed(1);
    EXPECT_EQ(page.Texts("Swell").size(), 3U);
    EXPECT_EQ(page.Across(500, 3500 + 3 * kColumn, Y(31), 1), 1);
}

TEST_F(CbrPage, ThreeMoldsPrintTheDesignValue)
{
    sheet.SSTData.SetTabEnabled(cbr::kValueTab, true);
    sheet.txtCBR.SetText("6.1");
    const auto page = Printed(1);
    const TextItem line = page.Text("CBR Value at 95% of Stardard Compaction is 6.1 %");
    ExpectAt(page, line.text, 500 + (3000 + 3 * kColumn) / 2, Y(22));
    EXPECT_TRUE(line.font.bold) << "What the client looks for.";
}

// The number, not the text: "8.0" prints as 8.
TEST_F(CbrPage, ASingleMoldPrintsTheHigherRatio)
{
    sheet.mshLPC(cbr::result::At01, 1) = "6.8";
    sheet.mshLPC(cbr::result::At02, 1) = "8.0";
    sheet.mshLPC(cbr::result::At01, 2) = "9.5";
    sheet.mshLPC(cbr::result::At02, 2) = "9.1";
    const TextItem line = Printed(1).Text("CBR Value of Stardard Compaction is 8 %");
    EXPECT_TRUE(Near(line.y, Y(22)));
    EXPECT_TRUE(line.font.bold);
    sheet.optBoth.Choose();
    EXPECT_EQ(Printed(1).Texts("CBR Value of Stardard Compaction is 9.5 %").size(), 1U) << "The soaked mold.";
}

TEST_F(CbrPage, PreviewAndPrinterShareTheFirstPagesBody)
{
    DrawingSurface preview(kA4Short, kA4Long);
    preview.FontName = "DilleniaUPC";
    Printer printer;
    printer.FontName = "DilleniaUPC";
    DrawPageBody(PrintingOf(bench.program, preview, Medium::Preview));
    DrawPageBody(PrintingOf(bench.program, printer, Medium::Printer));
    EXPECT_EQ(preview.Items(), printer.Items());
}

// Nine rows below four lines of heads.
TEST_F(CbrPage, TheSecondPagesTableHoldsItsRows)
{
    const auto page = Printed(2);
    EXPECT_EQ(page.Boxes(500, 3000, 11406, TableY(13), 2), 1);
    EXPECT_EQ(page.Across(500, 11406, TableY(4), 2), 1);
    EXPECT_EQ(page.Down(500 + kTenth, 3000, TableY(13), 2), 1);
    EXPECT_EQ(page.Down(500 + 7 * kTenth, 3000, TableY(13), 2), 1);
    EXPECT_EQ(page.Down(500 + 2 * kTenth, TableY(1), TableY(13), 1), 1);
    EXPECT_EQ(page.Across(500, 11406, TableY(12), 1), 1);
    ExpectAt(page, "p01", 500 + 1.5 * kTenth, TableY(4));
    ExpectAt(page, "p89", 500 + 9.5 * kTenth, TableY(12));
    ExpectAt(page, "0.200", 500 + 0.5 * kTenth, TableY(12));
    EXPECT_EQ(page.Texts("Load Dial").size(), 3U);
    EXPECT_EQ(page.Texts("(lb/in^2)").size(), 3U);
    EXPECT_EQ(page.Texts("Page 2").size(), 1U);
    EXPECT_EQ(page.Texts("Client Name ").size(), 0U) << "No head block on the second page.";
    EXPECT_EQ(page.Texts("การทดสอบหาค่า ซี.บี.อาร์.").size(), 1U);
}

TEST_F(CbrPage, CurvesAreCopiedBelowTheTable)
{
    const double top = TableY(13) + 400;
    sheet.picgraph1.Circle(100, 100, 30);
    const auto pictures = ItemsOf<PictureItem>(Printed(2).items);
    const auto find = [&](std::string_view name) {
        for (const PictureItem& picture : pictures)
            if (picture.name == name) return picture;
        return PictureItem{};
    };
    struct Wanted {
        const char* name;
        double x, y;
    };
    for (const Wanted& wanted : {Wanted{"picGraph", 500, top}, Wanted{"picgraph1", 1300, top + 550},
                                 Wanted{"picGraph2", 7806, top}, Wanted{"picGraph3", 8606, top + 550}}) {
        const PictureItem picture = find(wanted.name);
        EXPECT_TRUE(Near(picture.x, wanted.x) && Near(picture.y, wanted.y))
            << wanted.name << " at " << picture.x << ", " << picture.y;
    }
    ASSERT_TRUE(find("picgraph1").drawing);
    EXPECT_EQ(*find("picgraph1").drawing, *sheet.picgraph1.Image());
}

// Size 15 has lines of 391.5; the first of three stands four lines below the table and 500.
TEST_F(CbrPage, TheSummaryStandsBetweenTheCurves)
{
    const double top = TableY(13) + 500;
    auto page = Printed(2);
    const TextItem density = page.Text("Dry Density is ");
    EXPECT_EQ(density.font.size, 15);
    EXPECT_TRUE(Near(density.x, 4180) && Near(density.y, top + 4 * 391.5)) << density.x << ", " << density.y;
    EXPECT_TRUE(Near(page.Text("r21").y, top + 5 * 391.5));
    EXPECT_TRUE(Near(page.Text("r31").y, top + 6 * 391.5));

    sheet.optBoth.Choose();
    page = Printed(2);
    EXPECT_TRUE(Near(page.Text("Unsoaked CBR").y, top + 2 * 391.5));
    EXPECT_TRUE(page.Text("Soaked CBR").font.bold);
    EXPECT_TRUE(Near(page.Text("Soaked CBR").y, top + 6 * 391.5));
    EXPECT_TRUE(Near(page.Text("r32").y, top + 9 * 391.5));
    for (const TextItem& text : ItemsOf<TextItem>(page.items)) {
        if (text.font.size != 15 || text.x < 4000) continue;
        EXPECT_LT(text.x + TextWidth(text.font, text.text), 7806) << text.text << " runs into the right curve.";
    }
}

/// Below them "Load" stands in the middle of each group.
void ExpectMoldNumbers(const PageMarks& page)
{
    for (int mold = 1; mold <= 3; ++mold) {
        const double middle = 500 + (3 * mold - 0.5) * kTenth;
        ExpectAt(page, std::to_string(mold), middle, 3000);
        const TextItem load = page.Texts("Load").at(static_cast<std::size_t>(mold) - 1);
        EXPECT_TRUE(Near(load.x + TextWidth(load.font, load.text) / 2, middle) && Near(load.y, TableY(1)));
    }
    ExpectAt(page, "Mold No.", 500 + 0.5 * kTenth, 3000);
}

TEST_F(CbrPage, MoldNumbersStandOverTheMiddlesOfTheirGroupsAlsoWithBothConditions)
{
    auto page = Printed(2);
    ExpectMoldNumbers(page);
    EXPECT_EQ(page.Texts("Unsoaked").size(), 0U);
    sheet.optBoth.Choose();
    page = Printed(2);
    ExpectMoldNumbers(page);
    ExpectAt(page, "Unsoaked", 500 + 1.5 * kTenth, 3000);
    ExpectAt(page, "Soaked", 500 + 4.5 * kTenth, 3000);
    std::vector<DrawnItem> table = page.items;
    std::erase_if(table, [](const DrawnItem& item) {
        const auto* text = std::get_if<TextItem>(&item);
        return !text || text->y < 3000 || text->y > TableY(12);
    });
    ExpectNoTextOverText(table);
}

// The verticals within a pair begin below the numbers' line and that of "Swell".
TEST_F(CbrPage, NoLineRunsThroughAMoldNumberOfTheSwellingTable)
{
    const auto page = Printed(1);
    for (int mold = 1; mold <= 3; ++mold) {
        const double middle = 3500 + kColumn * (mold - 0.5);
        EXPECT_EQ(page.Down(middle, Y(26), Y(32), 1), 1) << mold;
        for (const LineItem& line : ItemsOf<LineItem>(page.items))
            EXPECT_FALSE(Near(line.x1, middle) && line.x1 == line.x2 && line.y1 < Y(26) && line.y2 > Y(24)) << mold;
        int numbers = 0;
        for (const TextItem& text : page.Texts(std::to_string(mold)))
            numbers += Near(text.y, Y(24)) && Near(text.x + TextWidth(text.font, text.text) / 2, middle) ? 1 : 0;
        EXPECT_EQ(numbers, 1) << mold;
    }
}

// The heads of the depth are two lines in the height of three.
TEST_F(CbrPage, HeadsOfTheReadingsStandOverTheirColumns)
{
    const auto page = Printed(2);
    ExpectAt(page, "Penetration", 500 + 0.5 * kTenth, TableY(1.5));
    ExpectAt(page, "(in)", 500 + 0.5 * kTenth, TableY(2.5));
    struct Head {
        const char* text;
        double column, line;
    };
    for (const Head& head : {Head{"Load Dial", 1.5, 1}, Head{"Reading", 1.5, 2}, Head{"(div)", 1.5, 3},
                             Head{"Load", 2.5, 1}, Head{"P", 2.5, 2}, Head{"(lb)", 2.5, 3}, Head{"Stress", 3.5, 1},
                             Head{"P/A", 3.5, 2}, Head{"(lb/in^2)", 3.5, 3}}) {
        const auto texts = page.Texts(head.text);
        ASSERT_EQ(texts.size(), 3U) << head.text;
        for (std::size_t mold = 0; mold < 3; ++mold) {
            const TextItem& text = texts[mold];
            const double middle = 500 + (head.column + 3 * static_cast<double>(mold)) * kTenth;
            EXPECT_NEAR(text.x + TextWidth(text.font, text.text) / 2, middle, kTwip) << head.text << " of " << mold;
            EXPECT_NEAR(text.y, TableY(head.line), kTwip) << head.text;
        }
    }
}

TEST_F(CbrPage, ThePreviewTurnsToThePage)
{
    frmPreview& preview = bench.Preview();
    EXPECT_TRUE(preview.cmdNext.Visible());
    EXPECT_EQ(TextsOf(preview.picView.Items(), "Type of Conpaction and CBR").size(), 1U);
    preview.cmdNext.Press();
    EXPECT_EQ(preview.cmdNext.Caption(), "<<Back");
    EXPECT_EQ(TextsOf(preview.picView.Items(), "Load Dial").size(), 3U);
    preview.cmdNext.Press();
    EXPECT_EQ(TextsOf(preview.picView.Items(), "Type of Conpaction and CBR").size(), 1U);
    EXPECT_TRUE(bench.ask.errors.empty());
}

TEST_F(CbrPage, ALongCellIsNotClipped)
{
    const std::string longText(60, 'W');
    sheet.MSHWater(1, 6) = longText;
    EXPECT_EQ(Printed(1).Texts(longText).size(), 1U);
}

// Twenty penetrations end the table at 3000 + 24 · 339.3; the curves end above the footer at 16138.
TEST_F(CbrPage, TwentyPenetrationsLeaveRoomForTheCurves)
{
    sheet.MSHPenetrate1.SetRows(20);
    for (const PictureItem& picture : ItemsOf<PictureItem>(Printed(2).items))
        EXPECT_LE(picture.y + picture.height, 16138) << picture.name;
}

}  // namespace
}  // namespace terravane::cbr_page
