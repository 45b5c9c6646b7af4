#include "reports/density_report.h"

#include <gtest/gtest.h>

#include "reports/print_report.h"
#include "sheets/density/frmDensity.h"
#include "support/report_bench.h"

namespace terravane {
namespace {

using namespace support;

struct DensityReport : ::testing::Test {
    ReportBench bench;

    DensityReport()
    {
        bench.program.AddForm("frmDensity", [](Program& owner) { return std::make_unique<frmDensity>(owner); });
    }
};

// The program's folder has no approver: the last signature's brackets stay empty.
TEST_F(DensityReport, ANewSheetPrintsItsEmptyTables)
{
    auto& sheet = bench.Open(terravane::Test::DenSoil, "frmDensity", "");
    sheet.Get<TextBox>("txtPosition").SetText("Km 1");
    const auto pages = PagesOfReport(bench.program);
    ASSERT_EQ(pages.size(), 2U) << "The cover and the page.";
    const auto& items = pages.back().items;
    EXPECT_EQ(TextsOf(items, "Test Hole No.").size(), 4U);
    EXPECT_EQ(TextsOf(items, "Km 1").size(), 1U);
    EXPECT_EQ(TextsOf(items, "()").size(), 1U);
    EXPECT_EQ(JobTitle(bench.program), "Field Density Test by Sand Cone Method R-17");
}

TEST_F(DensityReport, NeedsItsSheet)
{
    bench.program.CurrentTest = terravane::Test::DenSoil;
    EXPECT_THROW(PagesOfReport(bench.program), RuntimeError);
    EXPECT_TRUE(bench.program.printer.Items().empty());
}

}  // namespace
}  // namespace terravane
