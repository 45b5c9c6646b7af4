#include "reports/head_block.h"

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "support/every_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;

std::vector<DrawnItem> HeadOf(const TestSheet& sheet, Medium medium)
{
    DrawingSurface page(kA4Short, kA4Long);
    page.FontName = "DilleniaUPC";
    DrawHeadBlock(PrintingOf(sheet.program, page, medium));
    return page.Items();
}

// In size 14, 168 / 2048 twips a unit: 500; + 14476 units "Project Name : " = 1687.5; 3500 + 8406 / 6 × 3 + 200 = 7903;
// + 13346 units "Date of Test : " = 8997.8. A line is 365.4.
TEST(HeadBlock, RowsAndColumnsStandInLine)
{
    ReportBench bench;
    const auto items = HeadOf(bench.OpenCompaction(), Medium::Printer);
    const auto colons = TextsOf(items, " : ");
    ASSERT_EQ(colons.size(), 6u);
    const std::vector<std::pair<std::string, double>> labels{{"Client Name ", 500},  {"Report No.", 7903},
                                                             {"Project Name ", 500}, {"Date of Test", 7903},
                                                             {"Location", 500},      {"Sample", 7903}};
    for (std::size_t at = 0; at < labels.size(); ++at) {
        const double y = 2687.1 + 365.4 * static_cast<double>(at / 2);
        const TextItem label = TextOn(items, labels[at].first);
        EXPECT_NEAR(label.x, labels[at].second, kTwip) << labels[at].first;
        EXPECT_NEAR(label.y, y, kTwip) << labels[at].first;
        EXPECT_NEAR(colons[at].x, at % 2 == 0 ? 1687.5 : 8997.8, kTwip) << labels[at].first;
        EXPECT_NEAR(colons[at].y, y, kTwip) << labels[at].first;
        EXPECT_EQ(label.font, (Font{"DilleniaUPC", 14, false, false}));
    }
}

TEST(HeadBlock, ValuesFollowTheirColons)
{
    ReportBench bench;
    const auto items = HeadOf(bench.OpenCompaction(), Medium::Preview);
    const double colon = TextsOf(items, " : ").front().x;
    const TextItem client = TextOn(items, "Highway Department");
    EXPECT_NEAR(client.x, colon + TextWidth(client.font, " : "), kTwip);
    for (const char* value : {"R-17", "Bypass Road", "21/11/2026", "Km 12+400", "Sample 3"})
        EXPECT_EQ(TextsOf(items, value).size(), 1u) << value;
}

TEST(HeadTop, IsTheSheetsOwn)
{
    for (const ReportUnderTest& wanted : kReportsUnderTest) {
        ReportBench bench;
        const TestSheet& sheet = bench.Open(wanted.test, wanted.Form());
        const auto top = [&](Medium medium) { return TextOn(HeadOf(sheet, medium), "Client Name ").y; };
        EXPECT_NEAR(top(Medium::Printer), wanted.headTop.printer, kTwip) << wanted.english;
        EXPECT_NEAR(top(Medium::Preview), wanted.headTop.preview, kTwip) << wanted.english;
    }
}

TEST(HeadBlock, OnlyFieldDensityHasAPosition)
{
    ReportBench bench;
    auto& density = dynamic_cast<BareSheet&>(bench.Open(terravane::Test::DenSoil, "frmDensity"));
    density.txtPosition.SetText("Left lane");
    const auto items = HeadOf(density, Medium::Printer);
    EXPECT_NEAR(TextOn(items, "Position").y, 2687.1 + 3 * 365.4, kTwip);
    EXPECT_NEAR(TextOn(items, "Left lane").y, 2687.1 + 3 * 365.4, kTwip);
    EXPECT_EQ(TextsOf(HeadOf(bench.Open(terravane::Test::CBRSoil, "frmCBR"), Medium::Printer), "Position").size(), 0u);
}

TEST(HeadBlock, LongClientNameIsNotClipped)
{
    ReportBench bench;
    TestSheet& sheet = bench.OpenCompaction();
    const std::string client(150, 'W');
    sheet.txtClient.SetText(client);
    const auto items = HeadOf(sheet, Medium::Printer);
    const TextItem drawn = TextOn(items, client);
    EXPECT_GT(drawn.x + TextWidth(drawn.font, client), 7903) << "runs into the right column";
    EXPECT_NEAR(TextOn(items, "Report No.").x, 7903, kTwip) << "which stays where it is";
    EXPECT_NEAR(TextOn(items, "Project Name ").y, drawn.y + 365.4, kTwip) << "and nothing wraps";
}

}  // namespace
}  // namespace terravane
