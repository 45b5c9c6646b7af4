#include "reports/signature_block.h"

#include <gtest/gtest.h>

#include "reports/all_reports.h"
#include "reports/brand.h"
#include "support/every_report.h"
#include "support/page_marks.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;

const std::string kDots(50, '.');

std::vector<DrawnItem> SignaturesOn(ReportBench& bench, Medium medium)
{
    DrawingSurface page(kA4Short, kA4Long);
    page.FontName = "DilleniaUPC";
    page.FontSize = 20;
    DrawSignatures(PrintingOf(bench.program, page, medium));
    EXPECT_EQ(page.FontSize, 20) << "as it was";
    return page.Items();
}

void ExpectSignatures(const std::vector<DrawnItem>& items, double anchor, const SignatureLines& wanted)
{
    EXPECT_NEAR(TextOn(items, "Tested by ").y, (anchor + 1) * 339.3, kTwip);
    EXPECT_NEAR(TextOn(items, "Checked by ").y, (anchor + wanted.second) * 339.3, kTwip);
    EXPECT_NEAR(TextOn(items, "Approved by " + kDots).y, (anchor + wanted.third) * 339.3, kTwip);
}

TEST(SignatureRows, StandAtTheReportsAnchor)
{
    for (const ReportUnderTest& report : kReportsUnderTest) {
        SCOPED_TRACE(report.english);
        ReportBench bench;
        bench.Open(report.test, report.Form());
        const SignatureLines& lines = report.signatures;
        ExpectSignatures(SignaturesOn(bench, Medium::Printer), lines.anchor.printer, lines);
        ExpectSignatures(SignaturesOn(bench, Medium::Preview), lines.anchor.preview, lines);
    }
}

// The dots are 28450 units, 180 / 2048 twips each in size 15: 2500.5 wide, ending at 11406.
TEST(SignatureBlock, NamesAreCentredUnderTheDots)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.MakePerson(4, "Chai Somsak", "Approver");
    const auto items = SignaturesOn(bench, Medium::Printer);
    for (const char* name : {"(Anong Jai)", "(Boon Dee)", "(Chai Somsak)"}) {
        const TextItem item = TextOn(items, name);
        EXPECT_NEAR(item.x + TextWidth(item.font, name) / 2, 11406 - 2500.5 / 2, kTwip) << name;
        EXPECT_EQ(item.font, (Font{"DilleniaUPC", 15, false, false})) << name;
    }
    EXPECT_NEAR(TextOn(items, "(Anong Jai)").y - TextOn(items, "Tested by ").y, 391.5, kTwip) << "one line below";
}

TEST(SignatureBlock, AllDotsEndAtTheRightEdge)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto items = SignaturesOn(bench, Medium::Printer);
    const auto dots = TextsOf(items, kDots);
    ASSERT_EQ(dots.size(), 2u);
    for (const TextItem& row : dots) EXPECT_NEAR(row.x, 11406 - 2500.5, kTwip);
    EXPECT_NEAR(TextOn(items, "Tested by ").x, 7823.6, kTwip);
    EXPECT_NEAR(TextOn(items, "Approved by " + kDots).x, 7823.6, kTwip);
}

TEST(Approver, IsTheFirstInTheListWithoutOuterBlanks)
{
    ReportBench bench;
    bench.MakePerson(2, "A Tester", "Tester");
    bench.MakePerson(15, " Last One ", " Approver ");
    LoadApproverName(bench.program);
    EXPECT_EQ(bench.program.ApproverName, "Last One");
    bench.MakePerson(3, "Earlier One", "Approver");
    LoadApproverName(bench.program);
    EXPECT_EQ(bench.program.ApproverName, "Earlier One");
}

TEST(Approver, StaysTheOneFoundLastWhereTheListHasNone)
{
    ReportBench bench;
    LoadApproverName(bench.program);
    EXPECT_EQ(bench.program.ApproverName, "");
    bench.program.ApproverName = "Of the last report";
    LoadApproverName(bench.program);
    EXPECT_EQ(bench.program.ApproverName, "Of the last report");
}

TEST(Approver, CompactionPreviewShowsAFixedOne)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.MakePerson(1, "Chai Somsak", "Approver");
    const auto items = SignaturesOn(bench, Medium::Preview);
    EXPECT_EQ(TextsOf(items, "(Head of Laboratory)").size(), 1u);
    EXPECT_EQ(TextsOf(items, "(Chai Somsak)").size(), 0u);
    EXPECT_EQ(bench.program.ApproverName, "") << "the list is not read";
}

TEST(Approver, OtherPreviewsReadTheList)
{
    ReportBench bench;
    bench.Open(terravane::Test::AttSoil, "frmAtterberg");
    bench.MakePerson(1, "Chai Somsak", "Approver");
    EXPECT_EQ(TextsOf(SignaturesOn(bench, Medium::Preview), "(Chai Somsak)").size(), 1u);
}

}  // namespace
}  // namespace terravane
