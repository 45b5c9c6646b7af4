#include "reports/page_frame.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "support/every_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using namespace support;

const std::string kBanner = "Terravane Program for Road Construction Materials 2022 (Terravane Version 1.0)";

std::vector<DrawnItem> PreviewFrame(ReportBench& bench)
{
    DrawingSurface page(kA4Short, kA4Long);
    DrawPageFrame(PrintingOf(bench.program, page, Medium::Preview));
    return page.Items();
}

std::vector<DrawnItem> PrintedFrame(ReportBench& bench)
{
    Printer printer;
    DrawPageFrame(PrintingOf(bench.program, printer, Medium::Printer));
    return printer.Items();
}

double WidthOf(const TextItem& item, std::string_view text)
{
    return TextWidth(item.font, text);
}

// Banner: 8 × 1139 / 2048 × 12 × 12 = 640.7 down. Names in size 14, whose line is 365.4: 3 and 3.8 lines down; titles
// 4.9 and 5.7 lines.
TEST(PageFrame, TextsStandAtTheirHeights)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto items = PreviewFrame(bench);
    EXPECT_NEAR(TextOn(items, kBanner).y, 640.7, kTwip);
    EXPECT_NEAR(TextOn(items, "Materials Laboratory").y, 1096.2, kTwip);
    EXPECT_NEAR(TextOn(items, "Institute of Roads").y, 1388.5, kTwip);
    EXPECT_NEAR(TextOn(items, "การทดสอบการบดอัดแบบมาตรฐาน").y, 1790.5, kTwip);
    EXPECT_NEAR(TextOn(items, "Standard Compaction Test").y, 2082.8, kTwip);
}

TEST(PageFrame, FooterHoldsTheDatabaseAndThePageNumber)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto items = PreviewFrame(bench);
    const TextItem left = TextOn(items, "Database File is /home/road.mdb");
    const TextItem right = TextOn(items, "Page 1");
    EXPECT_NEAR(left.x, 500, kTwip);
    EXPECT_NEAR(left.y, 16138, kTwip);
    EXPECT_NEAR(right.y, 16138, kTwip);
    EXPECT_NEAR(right.x + WidthOf(right, "Page 1"), 11406, kTwip) << "the page number ends at the right edge";
    EXPECT_EQ(right.font, (Font{"DilleniaUPC", 12, false, false}));
}

// The box begins below the banner's line of 417.6 and is 3.5 such lines high; its inner rule lies 1.6 lines down.
TEST(PageFrame, TitleBoxIsWhiteAndRuled)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto items = PreviewFrame(bench);
    const auto fills = ItemsOf<FillItem>(items);
    const auto boxes = ItemsOf<BoxItem>(items);
    ASSERT_EQ(fills.size(), 1u);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(fills.front().colour, kWhite);
    EXPECT_NEAR(boxes.front().y1, 1058.3, kTwip);
    EXPECT_NEAR(boxes.front().y2, 2519.9, kTwip);
    EXPECT_NEAR(boxes.front().x1, 500, kTwip);
    EXPECT_NEAR(boxes.front().x2, 11406, kTwip);
    EXPECT_EQ(boxes.front().pen.width, 4);
    const auto lines = ItemsOf<LineItem>(items);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_NEAR(lines[0].y1, 1726.4, kTwip) << "the rule under the names";
    EXPECT_NEAR(lines[0].x1, 500 + 1461.6, kTwip);
    EXPECT_NEAR(lines[0].x2, 11406 - 1461.6, kTwip);
    EXPECT_NEAR(lines[1].x1, 500 + 1461.6, kTwip) << "the left logo's cell";
    EXPECT_NEAR(lines[2].x1, 9997.1, kTwip) << "the right logo's cell";
    EXPECT_NEAR(lines[2].y2, 2519.9, kTwip);
    for (const LineItem& line : lines) EXPECT_EQ(line.pen.width, 2);
}

TEST(PageFrame, LogosStandWhereTheMediumHasThem)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto preview = ItemsOf<PictureItem>(PreviewFrame(bench));
    const auto printed = ItemsOf<PictureItem>(PrintedFrame(bench));
    ASSERT_EQ(preview.size(), 2u);
    ASSERT_EQ(printed.size(), 2u);
    for (const auto& logos : {preview, printed}) {
        EXPECT_EQ(logos[0].name, "dep_logo.jpg");
        EXPECT_NEAR(logos[0].x, 11906 - 530 - 1278.9, kTwip);
        EXPECT_EQ(logos[0].width, 1250);
        EXPECT_EQ(logos[0].height, 1250);
        EXPECT_EQ(logos[1].name, "ins_logo.jpg");
        EXPECT_EQ(logos[1].x, 640);
        EXPECT_EQ(logos[1].width, 1200);
        EXPECT_EQ(logos[1].height, 1200);
    }
    EXPECT_EQ(printed[0].y, 1200);
    EXPECT_EQ(printed[1].y, 1225);
    EXPECT_EQ(preview[0].y, 1240);
    EXPECT_EQ(preview[1].y, 1235);
}

// A blank is 690 / 2048 × 12 × 16 = 64.7 wide; the printed banner starts half of it too far right.
TEST(PageFrame, PrintedBannerIsCentredByATextOneBlankShorter)
{
    ReportBench bench;
    bench.OpenCompaction();
    const TextItem preview = TextOn(PreviewFrame(bench), kBanner);
    const TextItem printed = TextOn(PrintedFrame(bench), kBanner);
    EXPECT_NEAR(preview.x + WidthOf(preview, kBanner) / 2, 5953, kTwip);
    EXPECT_NEAR(printed.x - preview.x, 690.0 / 2048 * 12 * 16 / 2, kTwip);
    EXPECT_TRUE(preview.font.italic);
    EXPECT_EQ(preview.font.size, 16);
}

/// The titles of a test stand on the open sheet's page.
void ExpectTitles(ReportBench& bench, Test test)
{
    const ReportUnderTest& wanted = *std::ranges::find(kReportsUnderTest, test, &ReportUnderTest::test);
    EXPECT_EQ(TextsOf(PreviewFrame(bench), std::string(wanted.preview)).size(), 1u) << wanted.english;
    EXPECT_EQ(TextsOf(PreviewFrame(bench), std::string(wanted.english)).size(), 1u) << wanted.english;
    EXPECT_EQ(TextsOf(PrintedFrame(bench), std::string(wanted.printed)).size(), 1u) << wanted.english;
    EXPECT_EQ(TextsOf(PrintedFrame(bench), std::string(wanted.english)).size(), 1u) << wanted.english;
    EXPECT_EQ(TitlesOf(bench.program).english, wanted.english);
}

TEST(PageTitle, StandsInThaiAndEnglish)
{
    for (const ReportUnderTest& report : kReportsUnderTest) {
        ReportBench bench;
        bench.Open(report.test, report.Form(), std::string("x\r\n").append(report.english));
        ExpectTitles(bench, report.test);
    }
}

TEST(PageTitle, OfACompactionPageGoesByTheSheetsBanner)
{
    ReportBench bench;
    bench.Open(terravane::Test::StdSoil, "frmCompaction", "");
    ExpectTitles(bench, terravane::Test::ModSoil);
    bench.Open(terravane::Test::ModSoil, "frmCompaction", "Standard");
    ExpectTitles(bench, terravane::Test::StdSoil);
}

const std::string kPrintedDensity = "การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย";
const std::string kPreviewDensity = "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย";

// The preview's wording is longer by "หา". So the printed title starts half of that left of its own centre, the
// previewed one as much right of it.
TEST(PageFrame, FieldDensityTitlesAreCentredByEachOthersWording)
{
    ReportBench bench;
    bench.Open(terravane::Test::DenSoil, "frmDensity");
    const TextItem printed = TextOn(PrintedFrame(bench), kPrintedDensity);
    const TextItem preview = TextOn(PreviewFrame(bench), kPreviewDensity);
    const double shift = WidthOf(printed, "หา") / 2;
    EXPECT_GT(shift, 50);
    EXPECT_NEAR(printed.x + WidthOf(printed, kPrintedDensity) / 2, 5953 - shift, kTwip);
    EXPECT_NEAR(preview.x + WidthOf(preview, kPreviewDensity) / 2, 5953 + shift, kTwip);
}

TEST(PageFrame, NamesCentreOnTheSheetAndTitlesOnThePrintableWidth)
{
    ReportBench bench;
    bench.OpenCompaction();
    DrawingSurface page(kA4Short, kA4Long);
    page.ScaleWidth = kA4Short - 200;
    DrawPageFrame(PrintingOf(bench.program, page, Medium::Preview));
    const TextItem name = TextOn(page.Items(), "Institute of Roads");
    const TextItem title = TextOn(page.Items(), "Standard Compaction Test");
    EXPECT_NEAR(name.x + WidthOf(name, name.text) / 2, 5953, kTwip);
    EXPECT_NEAR(title.x + WidthOf(title, title.text) / 2, 5853, kTwip);
}

TEST(PageFrame, PageTwoHasItsNumberAndNoHeadBlock)
{
    ReportBench bench;
    bench.Open(terravane::Test::CBRSoil, "frmCBR");
    DrawingSurface page(kA4Short, kA4Long);
    DrawPageFrame(PrintingOf(bench.program, page, Medium::Preview, kSecondPage));
    EXPECT_EQ(TextsOf(page.Items(), "Page 2").size(), 1u);
    EXPECT_EQ(TextsOf(page.Items(), "Page 1").size(), 0u);
    EXPECT_EQ(TextsOf(page.Items(), "Highway Department").size(), 0u);
}

TEST(PageFrame, MissingLogoIsNamed)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.files.TakeAway(std::string(kBrandFolder) + "dep_logo.jpg");
    EXPECT_EQ(ErrorOf([&] { PreviewFrame(bench); }), error::kFileNotFound);
    EXPECT_NE(DescriptionOf([&] { PreviewFrame(bench); }).find("dep_logo.jpg"), std::string::npos);
}

TEST(PageFrame, BrandStoreWithoutANameRowFails)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.files.TakeAway(std::string(kBrandFolder) + "logo.mdb");
    jet::NewDatabase empty(bench.files, std::string(kBrandFolder) + "logo.mdb");
    empty.Execute("CREATE TABLE LOGO(logo_ID text(10),logo_ins text(100),logo_dep text(100))");
    empty.Close();
    EXPECT_EQ(ErrorOf([&] { PreviewFrame(bench); }), 3021);
}

TEST(PageFrame, ReportWithoutItsOpenSheetFails)
{
    ReportBench bench;
    EXPECT_EQ(ErrorOf([&] { PreviewFrame(bench); }), error::kInvalidProcedureCall) << "no test was opened";
    bench.program.CurrentTest = terravane::Test::StdSoil;
    EXPECT_EQ(ErrorOf([&] { PreviewFrame(bench); }), error::kObjectRequired) << "the sheet is not open";
}

}  // namespace
}  // namespace terravane
