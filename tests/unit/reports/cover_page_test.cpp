#include "reports/cover_page.h"

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "support/every_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using namespace support;

constexpr double kLine = 574.2;  // size 22

std::vector<DrawnItem> CoverOf(ReportBench& bench)
{
    Printer printer;
    DrawCoverPage(PrintingOf(bench.program, printer, Medium::Printer, kCover));
    return printer.Items();
}

// The banner of another test does not change it.
TEST(CoverTitle, GoesByTheCurrentTestAlone)
{
    for (const ReportUnderTest& wanted : kReportsUnderTest) {
        ReportBench bench;
        bench.Open(wanted.test, wanted.Form(), "Modified Compaction Test");
        const TextItem title = TextOn(CoverOf(bench), std::string(wanted.cover));
        EXPECT_NEAR(title.y, 4000, kTwip) << wanted.cover;
        EXPECT_EQ(title.font, (Font{"DilleniaUPC", 28, true, false})) << wanted.cover;
        EXPECT_NEAR(title.x + TextWidth(title.font, title.text) / 2, 5953, kTwip) << wanted.cover;
    }
}

// The title's line is 26.1 × 28 = 730.8; all below are lines of 574.2: one blank, two texts, four blanks, "เสนอ", the
// client, four blanks, "โดย", three names.
TEST(CoverPage, PartsFollowEachOtherByLines)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto items = CoverOf(bench);
    const double below = 4730.8;
    EXPECT_NEAR(TextOn(items, "Bypass Road").y, below + kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "Km 12+400").y, below + 2 * kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "เสนอ").y, below + 7 * kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "Highway Department").y, below + 8 * kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "โดย").y, below + 13 * kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "First Reporter").y, below + 14 * kLine, kTwip);
    EXPECT_NEAR(TextOn(items, "Second Reporter").y, below + 15 * kLine, kTwip);
    EXPECT_TRUE(TextOn(items, "โดย").font.bold);
    EXPECT_FALSE(TextOn(items, "First Reporter").font.bold);
    EXPECT_EQ(ItemsOf<TextItem>(items).size(), 8u) << "the third name is blank: an empty line";
}

TEST(CoverPage, EmptyClientLeavesItsLine)
{
    ReportBench bench;
    bench.OpenCompaction().txtClient.SetText("");
    const auto items = CoverOf(bench);
    EXPECT_NEAR(TextOn(items, "โดย").y - TextOn(items, "เสนอ").y, 6 * kLine, kTwip);
}

/// A picture of 200 by 100: the head of a GIF file is all that is read here.
Bytes WideGif()
{
    return {'G', 'I', 'F', '8', '9', 'a', 200, 0, 100, 0, 0, 0, 0, ';'};
}

TEST(CoverPage, LogoKeepsItsProportions)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.files.Put(std::string(kBrandFolder) + "cov_logo.jpg", WideGif());
    const auto pictures = ItemsOf<PictureItem>(CoverOf(bench));
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures.front().name, "cov_logo.jpg");
    EXPECT_NEAR(pictures.front().x, 5953 - 710, kTwip);
    EXPECT_EQ(pictures.front().y, 1200);
    EXPECT_NEAR(pictures.front().width, 1420, kTwip);
    EXPECT_NEAR(pictures.front().height, 710, kTwip);
}

TEST(CoverPage, MissingLogoIsNamed)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.files.TakeAway(std::string(kBrandFolder) + "cov_logo.jpg");
    EXPECT_EQ(ErrorOf([&] { CoverOf(bench); }), error::kFileNotFound);
    EXPECT_NE(DescriptionOf([&] { CoverOf(bench); }).find("cov_logo.jpg"), std::string::npos);
}

}  // namespace
}  // namespace terravane
