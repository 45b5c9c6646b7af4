// The page of the overall results as a list of drawn things. Lengths in twips; a line of the table's size 16 is 417.6,
// so that row n begins at 4500 + 417.6 n. The three columns are (11906 - 2500) / 3 = 3135.33 wide, from 1250 on; the
// third is cut at 1250 + 2.5 × 3135.33 = 9088.33.

#include <gtest/gtest.h>

#include "results/frmSummary.h"
#include "support/page_marks.h"
#include "support/results_bench.h"

namespace terravane {
namespace {

using namespace support;

constexpr double kLeftEdge = 1250, kRightEdge = 10656;
constexpr double kSecond = 4385.33, kThird = 7520.67, kCut = 9088.33;
constexpr double kSoilMiddle = 8304.5, kCrushMiddle = 9872.17;

double Row(double row)
{
    return 4500 + 417.6 * row;
}
const double kBottom = Row(summary::kRows);

/// The form with a text of its own in every value: "s9" is row 9 of the soil, "c9" of the crushed rock.
struct SummaryPage : ::testing::Test {
    ResultsBench bench;
    frmSummary& form = bench.Open();

    SummaryPage()
    {
        form.txtProject.SetText("Bypass Road");
        form.txtLocation.SetText("Km 12+400");
        for (int row = 2; row < summary::kRows; ++row) {
            form.mshSum(row, 2) = "s" + std::to_string(row);
            form.mshSum(row, 3) = "c" + std::to_string(row);
        }
    }

    PageMarks Page() const { return {form.Pages().front().items}; }
};

TEST_F(SummaryPage, IsOneUprightPage)
{
    const auto pages = form.Pages();
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages.front().width, 11906);
    EXPECT_EQ(pages.front().height, 16838);
}

TEST_F(SummaryPage, BannerStandsBesideThePicture)
{
    const PageMarks page = Page();
    const auto pictures = ItemsOf<PictureItem>(page.items);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].x, 1250);
    EXPECT_EQ(pictures[0].y, 1250);
    EXPECT_EQ(pictures[0].width, 1200);
    EXPECT_EQ(pictures[0].height, 1200);
    EXPECT_EQ(*pictures[0].picture, *form.imgLogo.Content());

    const auto texts = ItemsOf<TextItem>(page.items);
    const TextItem &thai = texts[0], &name = texts[1], &version = texts[2], &maker = texts[3];
    EXPECT_EQ(thai.x, 3000);
    EXPECT_EQ(thai.y, 1200);
    EXPECT_EQ(thai.colour, (Colour{192, 0, 0}));
    EXPECT_EQ(thai.font, (Font{"DilleniaUPC", 20, true, false}));
    EXPECT_EQ(name, (TextItem{"Terravane Program", 3000, 1600, {"DilleniaUPC", 20, true, false}, {0, 0, 192}, 0}));
    EXPECT_EQ(version, (TextItem{"Terravane version 1.0", 3000, 2070, {"DilleniaUPC", 14, true, false}, kBlack, 0}));
    EXPECT_EQ(maker.y, 2070) << "on the line of the version";
    EXPECT_EQ(maker.font, (Font{"DilleniaUPC", 14, false, false}));
    EXPECT_NEAR(maker.x + TextWidth(maker.font, maker.text), kRightEdge, kTwip);
    EXPECT_EQ(page.Across(3000, kRightEdge, 2480, 1), 1) << "the rule under the version";
}

TEST_F(SummaryPage, JobStandsAboveTheTitle)
{
    const PageMarks page = Page();
    const Font plain{"DilleniaUPC", 16, false, false};
    EXPECT_EQ(page.Text("Project Name"), (TextItem{"Project Name", 1250, 2700, plain, kBlack, 0}));
    EXPECT_EQ(page.Text(":  Bypass Road"), (TextItem{":  Bypass Road", 2800, 2700, plain, kBlack, 0}));
    EXPECT_NEAR(page.Text("Location").y, 3117.6, kTwip);
    EXPECT_NEAR(page.Text(":  Km 12+400").y, 3117.6, kTwip);
    EXPECT_EQ(page.Text(":  Km 12+400").x, 2800);
    const TextItem title = page.Text("Overall Testing Results");
    EXPECT_EQ(title.y, 3800);
    EXPECT_EQ(title.font, (Font{"DilleniaUPC", 20, true, false}));
    EXPECT_NEAR(page.Middle("Overall Testing Results"), 5953, kTwip);
}

TEST_F(SummaryPage, TableIsBoxedAndCutIntoColumns)
{
    const PageMarks page = Page();
    EXPECT_EQ(page.Boxes(kLeftEdge, 4500, kRightEdge, kBottom, 2), 1);
    EXPECT_EQ(page.Down(kSecond, 4500, kBottom, 1), 1);
    EXPECT_EQ(page.Down(kThird, 4500, kBottom, 1), 1);
    EXPECT_EQ(page.Down(kCut, Row(1), kBottom, 1), 1) << "the values part below their common head";
    EXPECT_EQ(page.Down(kCut, 4500, kBottom, 1), 0);
}

TEST_F(SummaryPage, RulesStandBetweenTheTests)
{
    const PageMarks page = Page();
    EXPECT_EQ(page.Across(kThird, kRightEdge, Row(1), 1), 1) << "below the head of the values alone";
    EXPECT_EQ(page.Across(kLeftEdge, kRightEdge, Row(1), 1), 0);
    for (const int row : {2, 6, 9, 11, 12, 14, 16, 17})
        EXPECT_EQ(page.Across(kLeftEdge, kRightEdge, Row(row), 1), 1) << "row " << row;
    EXPECT_EQ(ItemsOf<LineItem>(page.items).size(), 1u + 3u + 1u + 8u) << "and no line elsewhere";
}

TEST_F(SummaryPage, HeadsAreCentredInTheirCells)
{
    const PageMarks page = Page();
    EXPECT_NEAR(page.Middle("List of Testing"), (kLeftEdge + kSecond) / 2, kTwip);
    EXPECT_NEAR(page.Middle("Properties"), (kSecond + kThird) / 2, kTwip);
    EXPECT_NEAR(page.Middle("Values"), (kThird + kRightEdge) / 2, kTwip);
    EXPECT_NEAR(page.Middle("Soil"), kSoilMiddle, kTwip);
    EXPECT_NEAR(page.Middle("Crushed Rock"), kCrushMiddle, kTwip);
    EXPECT_NEAR(page.Text("List of Testing").y, Row(0.5), kTwip) << "half-way down two rows";
    EXPECT_NEAR(page.Text("Properties").y, Row(0.5), kTwip);
    EXPECT_NEAR(page.Text("Values").y, Row(0), kTwip);
    EXPECT_NEAR(page.Text("Soil").y, Row(1), kTwip);
    EXPECT_NEAR(page.Text("Crushed Rock").y, Row(1), kTwip);
}

// Half-way down: four rows from 2 on begin their text at row 3.5, three from 6 on at row 7, two at half a row below.
TEST_F(SummaryPage, TestsStandHalfWayDownTheirRows)
{
    const PageMarks page = Page();
    const std::vector<std::pair<std::string, double>> tests{
        {"Atterberg Limits", 3.5},        {"Sieve Analysis", 7},
        {"Soil Classification", 9.5},     {"Specific Gravity", 11},
        {"Standard Compaction", 12.5},    {"Modified Compaction", 14.5},
        {"California Bearing Ratio", 16}, {"Field Density by Sand Cone", 17}};
    for (const auto& [name, row] : tests) {
        EXPECT_EQ(page.Text(name).x, 1450) << name;
        EXPECT_NEAR(page.Text(name).y, Row(row), kTwip) << name;
    }
}

TEST_F(SummaryPage, CaptionsStandInTheSecondColumn)
{
    const PageMarks page = Page();
    const std::vector<std::string> captions{"Liquid Limit (LL)",
                                            "Plastic Limit (PL)",
                                            "Plasticity Index (PI)",
                                            "Flow Index (FI)",
                                            "Gravel Fraction (GF)",
                                            "Sand Fraction (SF)",
                                            "Fine Fraction (Passing #200)",
                                            "USCS",
                                            "AASHTO",
                                            "Average Specific Gravity (Gs)",
                                            "Optimum Moisture Content (OMC)",
                                            "Maximum Dry Density (MDD)",
                                            "Optimum Moisture Content (OMC)",
                                            "Maximum Dry Density (MDD)",
                                            "Percent CBR",
                                            "Average Percent Compaction"};
    for (std::size_t line = 0; line < captions.size(); ++line) {
        const auto found = page.Texts(captions[line]);
        const double y = Row(static_cast<double>(line) + 2);
        const auto here = std::ranges::find_if(found, [&](const TextItem& item) { return PageMarks::Near(item.y, y); });
        ASSERT_NE(here, found.end()) << captions[line];
        EXPECT_GT(here->x, kSecond);
        EXPECT_LT(here->x + TextWidth(here->font, here->text), kThird) << captions[line] << " keeps to its column";
    }
}

TEST_F(SummaryPage, ValuesStandInTheirHalvesWithTheirUnits)
{
    const PageMarks page = Page();
    for (int row = 2; row < summary::kRows; ++row) {
        const bool isDensity = row == 13 || row == 15;
        const bool isBare = row == 9 || row == 10 || row == 11;
        const std::string unit = isBare ? "" : isDensity ? " g/cm^3" : " %";
        const std::string soil = "s" + std::to_string(row) + unit, crush = "c" + std::to_string(row) + unit;
        EXPECT_NEAR(page.Middle(soil), kSoilMiddle, kTwip) << soil;
        EXPECT_NEAR(page.Text(soil).y, Row(row), kTwip) << soil;
        EXPECT_NEAR(page.Middle(crush), kCrushMiddle, kTwip) << crush;
        EXPECT_NEAR(page.Text(crush).y, Row(row), kTwip) << crush;
        EXPECT_EQ(page.Text(soil).font, (Font{"DilleniaUPC", 16, true, false})) << "nothing of the remark's slant";
    }
}

TEST_F(SummaryPage, MarkStandsBeforeTheUnit)
{
    form.mshSum(6, 2) = "12.3*";
    form.mshSum(16, 3) = "   *";
    const PageMarks page = Page();
    EXPECT_EQ(page.Texts("12.3* %").size(), 1u);
    EXPECT_EQ(page.Texts("   * %").size(), 1u) << "a mark without a value has the sign, too";
}

TEST_F(SummaryPage, BlankValuesHaveNoUnit)
{
    for (int row = 2; row < summary::kRows; ++row) form.mshSum(row, 3) = "   ";
    form.mshSum(2, 2) = "";
    const PageMarks page = Page();
    EXPECT_EQ(page.Texts("   ").size(), kSummaryLines.size());
    EXPECT_TRUE(page.Texts(" %").empty());
    EXPECT_TRUE(page.Texts("    %").empty());
}

TEST_F(SummaryPage, RemarkStandsSlantedBelowTheTable)
{
    const PageMarks page = Page();
    const TextItem remark =
        page.Text("Remark: * indicates that the test was performed using a wet sieve or an unsoaked CBR.");
    EXPECT_EQ(remark.x, 1250);
    EXPECT_EQ(remark.y, 4576 + 418 * summary::kRows);
    EXPECT_TRUE(remark.font.italic);
    const auto texts = ItemsOf<TextItem>(page.items);
    EXPECT_EQ(std::ranges::count_if(texts, [](const TextItem& item) { return item.font.italic; }), 1);
    EXPECT_LT(remark.x + TextWidth(remark.font, remark.text), kRightEdge);
}

// The longest that the sheets post into each column.
TEST_F(SummaryPage, NoTwoTextsOverlap)
{
    for (const int column : {2, 3}) {
        for (int row = 2; row < summary::kRows; ++row) form.mshSum(row, column) = "100.0*";
        for (const int row : {12, 13, 14, 15}) form.mshSum(row, column) = "12.34";
        form.mshSum(9, column) = "SW-SC";
        form.mshSum(10, column) = "A-7-5(20)";
        form.mshSum(17, column) = " 100.83333";
    }
    form.txtProject.SetText("ก่อสร้างถนนสายบ้านโคกตูม - บ้านนาโสม ระยะทาง 8.450 กม.");
    ExpectNoTextOverText(Page().items);
}

}  // namespace
}  // namespace terravane
