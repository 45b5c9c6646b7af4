#include <gtest/gtest.h>

#include "reports/frmPreview.h"
#include "support/report_bench.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using namespace support;

// The viewport is 11000 by 7500; the page 11906 by 16838.
TEST(Preview, OpensOnTheFirstPageAtFullSize)
{
    ReportBench bench;
    bench.OpenCompaction();
    const frmPreview& preview = bench.Preview();
    EXPECT_EQ(preview.Caption(), "Report Preview");
    EXPECT_EQ(preview.cboScale.Text(), "100%");
    EXPECT_TRUE(preview.picPreview.Visible());
    EXPECT_FALSE(preview.picView.Visible());
    EXPECT_FALSE(preview.cmdNext.Visible()) << "a report of one page is not turned";
    EXPECT_EQ(preview.picPreview.Width, 11906);
    EXPECT_EQ(preview.picPreview.Height, 16838);
    EXPECT_EQ(preview.picPreview.Left, -453) << "centred, also where it is wider";
    EXPECT_EQ(preview.picPreview.Top, 0);
    EXPECT_EQ(preview.HScroll1.Maximum(), 0);
    EXPECT_EQ(preview.VScroll1.Maximum(), 9338);
}

TEST(Preview, ShowsACopyOfThePage)
{
    ReportBench bench;
    bench.OpenCompaction();
    const frmPreview& preview = bench.Preview();
    ASSERT_EQ(preview.picPreview.Items().size(), 1u);
    const auto& copy = std::get<PictureItem>(preview.picPreview.Items().front());
    EXPECT_EQ(*copy.drawing, *preview.picView.Image());
    EXPECT_EQ(TextsOf(preview.picView.Items(), "Density Determination").size(), 1u);
    EXPECT_EQ(TextsOf(preview.picView.Items(), "เสนอ").size(), 0u) << "the cover is not previewed";
}

TEST(Preview, KeepsTheLoadedPicturesInItsHolders)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    EXPECT_EQ(preview.Image1.Content()->name, "ins_logo.jpg");
    EXPECT_EQ(preview.Image2.Content()->name, "dep_logo.jpg");
    EXPECT_EQ(preview.Image6.Content(), nullptr) << "no cover was drawn yet";
    preview.Toolbar1.Press(1);
    EXPECT_EQ(preview.Image6.Content()->name, "cov_logo.jpg");
}

TEST(Preview, ShowsNoneOfItsHolders)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    for (const Image* holder : {&preview.Image1, &preview.Image2, &preview.Image6, &preview.imgPoint})
        EXPECT_FALSE(holder->Visible()) << holder->Name();
    EXPECT_EQ(preview.Toolbar1.MousePointer(), Pointer::Hand);
}

// 50 %: 5953 by 8419, centred across: (11000 - 5953) / 2 = 2523.5, 8419 - 7500 = 919 to scroll.
// 75 %: 8929.5 by 12628.5, both rounded half to even: 8930 and 12628; (11000 - 8930) / 2 = 1035, 5128 to scroll.
TEST(Preview, ZoomRoundsToWholeTwipsAndCentres)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.cboScale.Choose(0);
    EXPECT_EQ(preview.picPreview.Width, 5953);
    EXPECT_EQ(preview.picPreview.Height, 8419);
    EXPECT_EQ(preview.picPreview.Left, 2523.5);
    EXPECT_EQ(preview.picPreview.Top, 0);
    EXPECT_EQ(preview.VScroll1.Maximum(), 919);
    EXPECT_EQ(preview.HScroll1.Maximum(), 0);
    preview.cboScale.Choose(1);
    EXPECT_EQ(preview.picPreview.Width, 8930);
    EXPECT_EQ(preview.picPreview.Height, 12628);
    EXPECT_EQ(preview.picPreview.Left, 1035);
    EXPECT_EQ(preview.VScroll1.Maximum(), 5128);
}

TEST(Preview, ChosenFullSizeStartsAtThePagesEdge)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.cboScale.Choose(2);
    EXPECT_EQ(preview.picPreview.Left, 0);
    EXPECT_EQ(preview.HScroll1.Maximum(), 906);
    EXPECT_EQ(preview.VScroll1.Maximum(), 9338);
}

TEST(Preview, SmallPageIsCentredBothWays)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.ResizeViewport(12000, 9000);
    preview.cboScale.Choose(0);
    EXPECT_EQ(preview.picPreview.Left, 3023.5);
    EXPECT_EQ(preview.picPreview.Top, 290.5);
    EXPECT_EQ(preview.VScroll1.Maximum(), 0);
}

TEST(Preview, ZoomCopiesThePageAndDrawsNothingAgain)
{
    ReportBench bench;
    frmCompaction& sheet = bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    const auto before = preview.picView.Image();
    sheet.txtClient.SetText("Changed behind the preview");
    preview.cboScale.Choose(0);
    EXPECT_EQ(*preview.picView.Image(), *before);
}

TEST(Preview, TypedScaleDoesNotZoom)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.cboScale.Type("50%");
    EXPECT_EQ(preview.picPreview.Width, 11906);
}

// 33000 twips do not fit 16 bits.
TEST(Preview, ZoomBeyondSixteenBitsOverflows)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.program.printer.Resize(33000, 39000);
    frmPreview& preview = bench.Preview();
    preview.cboScale.Choose(0);
    EXPECT_TRUE(bench.ask.errors.empty()) << "half of it fits";
    EXPECT_EQ(preview.picPreview.Width, 16500);
    preview.cboScale.Choose(2);
    ASSERT_EQ(bench.ask.errors.size(), 1u);
    EXPECT_EQ(bench.ask.errors.front().number, error::kOverflow);
    EXPECT_EQ(preview.picPreview.Width, 16500) << "the page stays as it was";
}

TEST(Preview, ScrollingMovesTheSurfaceInView)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.VScroll1.SetValue(1500);
    EXPECT_EQ(preview.picPreview.Top, -1500);
    EXPECT_EQ(preview.picView.Top, 0);
    preview.cboScale.SetText("");
    preview.VScroll1.SetValue(2000);
    EXPECT_EQ(preview.picView.Top, -2000);
    preview.cboScale.Choose(2);
    EXPECT_EQ(preview.picPreview.Top, 0) << "a zoom goes back to the page's top";
    EXPECT_EQ(preview.VScroll1.Value(), 0);
    preview.HScroll1.SetValue(906);
    EXPECT_EQ(preview.picPreview.Left, -906);
}

TEST(Preview, PrintsCoverAndPageUnderTheReportsName)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.Preview().Toolbar1.Press(1);
    ASSERT_EQ(bench.printed.size(), 1u);
    const auto& pages = bench.printed.front();
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(TextsOf(pages[0].items, "ผลทดสอบการบดอัดดินแบบมาตรฐาน").size(), 1u);
    EXPECT_EQ(TextsOf(pages[1].items, "Density Determination").size(), 1u);
    EXPECT_EQ(bench.jobTitles.front(), "Standard Compaction Test R-17");
}

TEST(Preview, SecondPressPrintsTheWholeReportAgain)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    preview.Toolbar1.Press(1);
    preview.Toolbar1.Press(1);
    ASSERT_EQ(bench.printed.size(), 2u);
    EXPECT_EQ(bench.printed[0], bench.printed[1]);
}

TEST(Preview, CancelledDialogPrintsNothing)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.ask.paper.reset();
    frmPreview& preview = bench.Preview();
    const auto before = preview.picPreview.Image();
    preview.Toolbar1.Press(1);
    EXPECT_TRUE(bench.printed.empty());
    EXPECT_TRUE(bench.ask.errors.empty());
    EXPECT_EQ(*preview.picPreview.Image(), *before);
}

TEST(Preview, ReportThatFailsHalfWaySendsNothing)
{
    ReportBench bench;
    bench.OpenCompaction();
    frmPreview& preview = bench.Preview();
    const std::string logo = std::string(kBrandFolder) + "dep_logo.jpg";  // needed on the page behind the cover
    const Bytes content = bench.files.Content(logo);
    bench.files.TakeAway(logo);
    preview.Toolbar1.Press(1);
    EXPECT_TRUE(bench.printed.empty());
    ASSERT_EQ(bench.ask.errors.size(), 1u);
    EXPECT_EQ(bench.ask.errors.front().number, error::kFileNotFound);

    bench.files.Put(logo, content);
    preview.Toolbar1.Press(1);
    ASSERT_EQ(bench.printed.size(), 1u);
    EXPECT_EQ(bench.printed.front().size(), 2u) << "nothing of the failed job is left";
}

TEST(Preview, DoesNotOpenWithoutTheBrandStore)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.files.TakeAway(std::string(kBrandFolder) + "logo.mdb");
    EXPECT_NE(ErrorOf([&] { bench.Preview(); }), 0);
    EXPECT_EQ(bench.program.Loaded("frmPreview"), nullptr);
}

TEST(Preview, TestWithoutAReportIsRefused)
{
    ReportBench bench;
    bench.OpenCompaction();
    bench.program.CurrentTest = terravane::Test::None;
    EXPECT_EQ(ErrorOf([&] { bench.Preview(); }), error::kInvalidProcedureCall);
    EXPECT_EQ(DescriptionOf([&] { bench.Preview(); }), "This test has no report");
}

TEST(Preview, ClosingGivesTheCommandsTheirColourBack)
{
    ReportBench bench;
    frmCompaction& sheet = bench.OpenCompaction();
    sheet.cmdView.SetBackColor(kCommandHover);
    sheet.cmdCal.SetBackColor(kCommandHover);
    bench.Preview().Toolbar1.Press(2);
    EXPECT_EQ(bench.program.Loaded("frmPreview"), nullptr);
    EXPECT_EQ(sheet.cmdView.BackColor(), (Colour{255, 192, 128}));
    EXPECT_EQ(sheet.cmdCal.BackColor(), (Colour{255, 192, 128}));
}

TEST(Preview, ClosingLeavesTheCommandsOfTheCbrSheet)
{
    ReportBench bench;
    TestSheet& sheet = bench.Open(terravane::Test::CBRSoil, "frmCBR");
    sheet.cmdView.SetBackColor(kCommandHover);
    frmPreview preview(bench.program);
    preview.Form_Unload();
    EXPECT_EQ(sheet.cmdView.BackColor(), kCommandHover);
}

}  // namespace
}  // namespace terravane
