// The way of the overall results to paper: the dialog, the job, its failures. What stands on the page is in
// tests/pages.
#include <gtest/gtest.h>

#include "results/frmSummary.h"
#include "support/drawn_items.h"
#include "support/results_bench.h"

namespace terravane {
namespace {

using support::ResultsBench;

TEST(PrintOverallResults, SendsTheOnePageThatIsLookedAt)
{
    ResultsBench bench;
    bench.AnswerPrintDialog();
    frmSummary& form = bench.Open();
    const auto looked = form.Pages();
    form.cmdPrint.Press();
    ASSERT_EQ(bench.printed.size(), 1u);
    EXPECT_EQ(bench.printed.front().size(), 1u);
    EXPECT_EQ(bench.printed.front(), looked);
    EXPECT_EQ(bench.jobTitles.front(), "Overall Testing Results");
    EXPECT_TRUE(bench.program.printer.Items().empty()) << "The job has ended.";
    EXPECT_NE(bench.program.Loaded("frmSummary"), nullptr) << "The form stays open.";
}

TEST(PrintOverallResults, LookingLeavesThePrinterAsItIs)
{
    ResultsBench bench;
    const frmSummary& form = bench.Open();
    bench.program.printer.SetOrientation(Orientation::Landscape);
    bench.program.printer.FontName = "MS Sans Serif";
    EXPECT_EQ(form.Pages(), form.Pages());
    EXPECT_EQ(bench.program.printer.PageOrientation(), Orientation::Landscape);
    EXPECT_EQ(bench.program.printer.FontName, "MS Sans Serif");
}

// The second page of a sieve report leaves the printer on its side; the table would run out of such a page.
TEST(PrintOverallResults, StandUprightAfterAReportOnItsSide)
{
    ResultsBench bench;
    bench.program.printer.SetOrientation(Orientation::Landscape);
    frmSummary& form = bench.Open();
    const auto pages = form.Pages();
    EXPECT_EQ(pages.front().width, 11906);
    EXPECT_EQ(pages.front().height, 16838);
    bench.AnswerPrintDialog();
    form.cmdPrint.Press();
    EXPECT_EQ(bench.printed.front(), pages);
    EXPECT_EQ(bench.program.printer.PageOrientation(), Orientation::Portrait) << "The next report is upright, too.";
}

TEST(PrintOverallResults, CancelSaysNothingAndPrintsNothing)
{
    ResultsBench bench;
    bench.Open().cmdPrint.Press();
    EXPECT_TRUE(bench.printed.empty());
    EXPECT_TRUE(bench.ask.errors.empty());
    EXPECT_TRUE(bench.ask.messages.empty());
    EXPECT_TRUE(bench.program.printer.Items().empty());
}

TEST(PrintOverallResults, AFailingPrinterSaysNothing)
{
    ResultsBench bench;
    bench.ask.paper = [](std::span<const DisplayList>, const std::string&) {
        throw RuntimeError(482, "Printer error");
    };
    frmSummary& form = bench.Open();
    form.cmdPrint.Press();
    EXPECT_TRUE(bench.ask.errors.empty());
    EXPECT_TRUE(bench.ask.messages.empty());
    bench.AnswerPrintDialog();
    form.cmdPrint.Press();
    ASSERT_EQ(bench.printed.size(), 1u);
    EXPECT_EQ(bench.printed.front().size(), 1u) << "Nothing of the failed job comes with the next.";
}

TEST(PrintOverallResults, AFailureWhileDrawingSendsNothing)
{
    ResultsBench bench;
    bench.AnswerPrintDialog();
    frmSummary& form = bench.Open();
    form.imgLogo.SetContent(nullptr);
    form.cmdPrint.Press();
    EXPECT_TRUE(bench.printed.empty());
    EXPECT_TRUE(bench.ask.errors.empty());
    EXPECT_TRUE(bench.program.printer.Items().empty());
}

TEST(PrintOverallResults, ThePrinterSlantsNothingAfterwards)
{
    ResultsBench bench;
    bench.AnswerPrintDialog();
    bench.Open().cmdPrint.Press();
    EXPECT_FALSE(bench.program.printer.FontItalic);
}

}  // namespace
}  // namespace terravane
