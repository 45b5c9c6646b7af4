// The same pages whatever was drawn before: a printer and the preview keep fonts and pens from one page, and from one
// job, to the next.
#include <vector>

#include <gtest/gtest.h>

#include "app/form_makers.h"
#include "drawing/scopes.h"
#include "laboratory/tests.h"
#include "reports/all_reports.h"
#include "reports/cover_page.h"
#include "reports/page_frame.h"
#include "reports/print_report.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;

struct UsedSurface : ::testing::TestWithParam<terravane::Test> {
    ReportBench bench;
    DrawingSurface fresh{kA4Short, kA4Long}, used{kA4Short, kA4Long};

    UsedSurface()
    {
        AddForms(bench.program);
        bench.Open(GetParam(), std::string(SheetNameOf(GetParam())));
        LeaveEverythingElse(used);
    }

    static void LeaveEverythingElse(DrawingSurface& surface)
    {
        surface.FontName = "Loma";
        surface.FontSize = 40;
        surface.FontBold = true;
        surface.FontItalic = true;
        surface.DrawWidth = 9;
        surface.DrawStyle = kDotted;
        surface.FillSolid = true;
    }

    void Draw(DrawingSurface& surface, Medium medium, int number) const
    {
        const Printing of = PrintingOf(bench.program, surface, medium, number);
        if (number == kCover) return DrawCoverPage(of);
        DrawPageFrame(of);
        DrawPageBody(of);
    }

    void ExpectTheSame(Medium medium, int number)
    {
        fresh.Cls();
        used.Cls();
        Draw(fresh, medium, number);
        Draw(used, medium, number);
        EXPECT_EQ(fresh.Items(), used.Items()) << "page " << number;
    }
};

TEST_P(UsedSurface, PrintsTheSamePages)
{
    ExpectTheSame(Medium::Printer, kCover);
    ExpectTheSame(Medium::Printer, kFirstPage);
    if (ReportOf(GetParam()).second) ExpectTheSame(Medium::Printer, kSecondPage);
}

TEST_P(UsedSurface, PreviewsTheSamePages)
{
    ExpectTheSame(Medium::Preview, kFirstPage);
    if (ReportOf(GetParam()).second) ExpectTheSame(Medium::Preview, kSecondPage);
}

TEST_P(UsedSurface, KeepsItsPen)
{
    Draw(used, Medium::Printer, kFirstPage);
    if (ReportOf(GetParam()).second) Draw(used, Medium::Printer, kSecondPage);
    EXPECT_EQ(used.DrawWidth, 9);
    EXPECT_EQ(used.DrawStyle, kDotted);
    EXPECT_TRUE(used.FillSolid);
    EXPECT_FALSE(used.FontBold) << "what a page begins with";
}

std::vector<terravane::Test> AllTests()
{
    std::vector<terravane::Test> tests;
    for (const auto* description : laboratory::Tests()) tests.push_back(description->test);
    return tests;
}

INSTANTIATE_TEST_SUITE_P(Reports, UsedSurface, ::testing::ValuesIn(AllTests()));

}  // namespace
}  // namespace terravane
