#include "reports/print_report.h"

#include <gtest/gtest.h>

#include "support/report_bench.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using namespace support;

TEST(PrintReport, LeavesTheJobOpenOnTheLastPageBehindTheCover)
{
    ReportBench bench;
    bench.OpenCompaction();
    Printer printer;
    PrintReport(bench.program, printer);
    ASSERT_EQ(printer.Pages().size(), 2u);
    EXPECT_EQ(TextsOf(printer.Pages()[0].items, "เสนอ").size(), 1u);
    EXPECT_EQ(TextsOf(printer.Items(), "เสนอ").size(), 0u);
    EXPECT_EQ(TextsOf(printer.Items(), "Density Determination").size(), 1u);
}

TEST(PrintReport, LookingAtThePagesLeavesThePrinterAsItIs)
{
    ReportBench bench;
    bench.OpenCompaction();
    const std::string font = bench.program.printer.FontName;
    const auto pages = PagesOfReport(bench.program);
    EXPECT_EQ(pages.size(), 2u);
    EXPECT_EQ(bench.program.printer.FontName, font);
    EXPECT_TRUE(bench.program.printer.Items().empty());
    EXPECT_EQ(bench.program.printer.Pages().size(), 1u);
    EXPECT_EQ(PagesOfReport(bench.program), pages) << "looking twice shows the same";
}

TEST(PrintReport, PagesLookedAtHaveNothingOfAnUnfinishedJob)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto pages = PagesOfReport(bench.program);
    bench.program.printer.Print("unfinished");
    bench.program.printer.NewPage();
    bench.program.printer.Print("unfinished too");
    EXPECT_EQ(PagesOfReport(bench.program), pages);
    EXPECT_EQ(bench.program.printer.Pages().size(), 2u) << "the job itself goes on";
}

TEST(PrintReport, PrintedPagesAreThePagesLookedAt)
{
    ReportBench bench;
    bench.OpenCompaction();
    const auto pages = PagesOfReport(bench.program);
    bench.Preview().Toolbar1.Press(1);
    ASSERT_EQ(bench.printed.size(), 1u);
    EXPECT_EQ(bench.printed.front(), pages);
}

TEST(PrintReport, TestWithoutAReportDrawsNothing)
{
    ReportBench bench;
    Printer printer;
    EXPECT_EQ(ErrorOf([&] { PrintReport(bench.program, printer); }), error::kInvalidProcedureCall);
    EXPECT_TRUE(printer.Items().empty());
    EXPECT_EQ(printer.Pages().size(), 1u);
}

TEST(PrintReport, JobWithoutANumberHasTheTitleAlone)
{
    ReportBench bench;
    bench.OpenCompaction().txtID.SetText("   ");
    EXPECT_EQ(JobTitle(bench.program), "Standard Compaction Test");
}

}  // namespace
}  // namespace terravane
