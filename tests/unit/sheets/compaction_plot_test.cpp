// The plot of the compaction curve as drawn items, the air-void line, and what is posted.
#include <algorithm>

#include <gtest/gtest.h>

#include "jet/engine_error.h"
#include "support/laboratory.h"

namespace terravane::compaction {
namespace {

using support::Laboratory;
using TestKind = terravane::Test;  // inside a test "Test" is the test
using Texts = std::vector<std::string>;

template <class Item>
std::vector<Item> ItemsOf(const DrawingSurface& surface)
{
    std::vector<Item> items;
    for (const auto& item : surface.Items()) {
        if (const auto* one = std::get_if<Item>(&item)) items.push_back(*one);
    }
    return items;
}

Texts TextsOn(const DrawingSurface& surface)
{
    Texts texts;
    for (const auto& item : ItemsOf<TextItem>(surface)) texts.push_back(item.text);
    return texts;
}

bool Shows(const DrawingSurface& surface, const std::string& text)
{
    const auto texts = TextsOn(surface);
    return std::ranges::find(texts, text) != texts.end();
}

/// The dots of one colour.
std::vector<PointItem> Dots(const DrawingSurface& surface, Colour colour)
{
    auto dots = ItemsOf<PointItem>(surface);
    std::erase_if(dots, [colour](const PointItem& dot) { return dot.colour != colour; });
    return dots;
}

/// The sandy clay: densities from 1.56 to 1.84, so ymin = 1.55, a tick of (1.84 - 1.55) / 8 = 0.03625, shown 0.04, and
/// ticks up to 1.55 + 13 · 0.04 = 2.07. Water contents from 11.50 to 23.40: 23 - 11 + 2 = 14 percents from 11 on.
struct CompactionPlot : testing::Test {
    Laboratory lab;
    frmCompaction* sheet = nullptr;

    CompactionPlot() { Open(TestKind::StdSoil, Material::Soil); }

    void Open(TestKind test, Material material)
    {
        sheet = &lab.OpenSheet(test, material);
        support::SetMold(*sheet, "12.5", "10.0");
        support::TypeTrials(*sheet, support::kSandyClay);
        sheet->cmdCal.Press();
        sheet->SSTData.SetTab(1);
    }

    double PlotX(double water) const { return (water - 11) * sheet->picGraph.Width / 14; }
    double PlotY(double dryDensity) const
    {
        return sheet->picGraph.Height - (dryDensity - 1.55) / 0.04 * sheet->picGraph.Height / 13;
    }

    void DrawAirVoids(std::string_view gravity, std::string_view voids)
    {
        sheet->chkSatLine.SetValue(true);
        sheet->txtGs.Type(gravity);
        sheet->cboSr.Type(voids);
        sheet->cmdOMC.Press();
    }
};

TEST_F(CompactionPlot, LabelsThirteenIntervalsOfDensity)
{
    sheet->cmdOMC.Press();
    for (const char* label : {"1.55", "1.59", "1.63", "1.67", "1.71", "1.75", "1.79", "1.83", "1.87", "1.91", "1.95",
                              "1.99", "2.03", "2.07"}) {
        EXPECT_TRUE(Shows(sheet->picgraph1, label)) << label;
    }
    for (const auto& item : ItemsOf<TextItem>(sheet->picgraph1)) {
        if (item.text != "1.55") continue;
        EXPECT_NEAR(item.x + sheet->picgraph1.TextWidth("1.55"), sheet->picgraph1.Width - 200, 1e-6);
    }
}

TEST_F(CompactionPlot, LabelsEverySecondPercentPastTen)
{
    sheet->cmdOMC.Press();
    for (const char* label : {"13", "15", "17", "19", "21", "23", "25"}) {
        EXPECT_TRUE(Shows(sheet->picgraph1, label)) << label;
    }
    for (const char* label : {"11", "12", "14", "24", "26"}) EXPECT_FALSE(Shows(sheet->picgraph1, label)) << label;
}

TEST_F(CompactionPlot, LabelsEachPercentUpToTenAndEveryFourthPastTwenty)
{
    const auto spread = [&](const char* last) {
        for (int trial = 1; trial <= kTrials; ++trial) sheet->MSHDensity(density::Mold, trial) = trial < 4 ? "1" : "";
        sheet->MSHDensity(density::WaterContent, 1) = "10.9";
        sheet->MSHDensity(density::WaterContent, 2) = "13";
        sheet->MSHDensity(density::WaterContent, 3) = last;
        sheet->cmdOMC.Press();
    };
    spread("18.9");  // 18 - 10 + 2 = 10 percents
    EXPECT_TRUE(Shows(sheet->picgraph1, "11"));
    EXPECT_TRUE(Shows(sheet->picgraph1, "20"));
    spread("29");  // 21
    EXPECT_FALSE(Shows(sheet->picgraph1, "12"));
    EXPECT_TRUE(Shows(sheet->picgraph1, "14"));
    EXPECT_TRUE(Shows(sheet->picgraph1, "30"));
    spread("28");  // 20
    EXPECT_TRUE(Shows(sheet->picgraph1, "12"));
    EXPECT_FALSE(Shows(sheet->picgraph1, "13"));
}

// A mold that was typed after Calculate has blank cells below it.
TEST_F(CompactionPlot, TrialThatWasNotCalculatedMovesNoAxis)
{
    sheet->MSHDensity(density::DryDensity, 2) = "";
    sheet->MSHDensity(density::WaterContent, 2) = "";
    sheet->cmdOMC.Press();
    for (const char* label : {"1.55", "2.07", "13", "25"}) EXPECT_TRUE(Shows(sheet->picgraph1, label)) << label;
}

// (11.00 - 1.00) / 8 is 1.25, of which the tick keeps .25.
TEST_F(CompactionPlot, DropsWholeUnitsFromTheTick)
{
    sheet->MSHDensity(density::DryDensity, 1) = "1.01";
    sheet->MSHDensity(density::DryDensity, 3) = "11.00";
    sheet->cmdOMC.Press();
    EXPECT_TRUE(Shows(sheet->picgraph1, "1.25"));
    EXPECT_TRUE(Shows(sheet->picgraph1, "4.25")) << "1.00 + 13 · 0.25";
}

TEST_F(CompactionPlot, MarksEachTrialWithADotAndAWhiteCircle)
{
    sheet->cmdOMC.Press();
    const auto circles = ItemsOf<CircleItem>(sheet->picGraph);
    const auto dots = Dots(sheet->picGraph, kBlack);
    ASSERT_EQ(circles.size(), 5U);
    ASSERT_EQ(dots.size(), 5U);
    for (const CircleItem& circle : circles) {
        EXPECT_EQ(circle.radius, 40);
        EXPECT_TRUE(circle.filled);
        EXPECT_EQ(circle.fill, kWhite);
        EXPECT_EQ(circle.pen.colour, kBlack);
    }
    EXPECT_NEAR(circles[0].x, PlotX(11.50), 1e-6);
    EXPECT_NEAR(circles[0].y, PlotY(1.56), 1e-6);
    EXPECT_NEAR(circles[4].x, PlotX(23.40), 1e-6);
    EXPECT_NEAR(dots[2].y, PlotY(1.84), 1e-6);
}

TEST_F(CompactionPlot, DrawsABlueCurveThroughTheTable)
{
    sheet->cmdOMC.Press();
    const auto curves = ItemsOf<PolylineItem>(sheet->picGraph);
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].pen.colour, kBlue);
    EXPECT_EQ(curves[0].points.size(), static_cast<std::size_t>(sheet->MSH3.Rows() - 1));
    EXPECT_NEAR(curves[0].points[0].x, PlotX(11.50), 1e-6);
    EXPECT_NEAR(curves[0].points[0].y, PlotY(1.56), 1e-6);
}

// Top at (15.54, 1.840488) by tools/check_compaction.py.
TEST_F(CompactionPlot, GuidesTheEyeFromTheTopToBothAxes)
{
    sheet->cmdOMC.Press();
    auto guides = ItemsOf<LineItem>(sheet->picGraph);
    std::erase_if(guides, [](const LineItem& line) { return line.pen.colour != kRed; });
    ASSERT_EQ(guides.size(), 2U);
    const double x = PlotX(15.54), y = PlotY(1.840488);
    for (const LineItem& guide : guides) {
        EXPECT_NEAR(guide.x1, x, 1e-6);
        EXPECT_NEAR(guide.y1, y, 1e-6);
    }
    EXPECT_NEAR(guides[0].x2, x, 1e-6);
    EXPECT_NEAR(guides[0].y2, sheet->picGraph.Height, 1e-6);
    EXPECT_NEAR(guides[1].x2, 0, 1e-6);
    EXPECT_NEAR(guides[1].y2, y, 1e-6);
    for (const TextItem& item : ItemsOf<TextItem>(sheet->picGraph)) {
        const double height = sheet->picGraph.TextHeight("W");
        const bool isDensity = item.text.starts_with("MDD");
        EXPECT_NEAR(item.x, isDensity ? 30 : x + 30, 1e-6) << item.text;
        EXPECT_NEAR(item.y, isDensity ? y - height : sheet->picGraph.Height - 30 - height, 1e-6) << item.text;
        EXPECT_EQ(item.colour, kBlack);
    }
}

TEST_F(CompactionPlot, SaysTheResultsInEachMethodsOwnWords)
{
    sheet->cmdOMC.Press();
    EXPECT_EQ(TextsOn(sheet->picGraph), (Texts{"MDD = 1.84 g/cm^3", "OMC = 15.5 %"}));
    sheet->optFit.Choose();
    sheet->cmdOMC.Press();
    EXPECT_EQ(TextsOn(sheet->picGraph), (Texts{"M.D.D. = 1.84 g/cm^3", "O.M.C.= 15.6 %"}));
}

TEST_F(CompactionPlot, TitlesItsAxes)
{
    sheet->cmdOMC.Press();
    int seen = 0;
    for (const TextItem& item : ItemsOf<TextItem>(sheet->picgraph1)) {
        if (item.text != "Water Content , %" && item.text != "Dry Density , g/cm^3") continue;
        ++seen;
        EXPECT_EQ(item.font.name, "Times New Roman");
        EXPECT_EQ(item.angle, item.text == "Dry Density , g/cm^3" ? 90 : 0);
    }
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(sheet->picgraph1.FontName, "MS Sans Serif");
}

TEST_F(CompactionPlot, FramesBothPictures)
{
    sheet->cmdOMC.Press();
    const auto plot = ItemsOf<BoxItem>(sheet->picGraph);
    const auto frame = ItemsOf<BoxItem>(sheet->picgraph1);
    ASSERT_EQ(plot.size(), 1U);
    ASSERT_EQ(frame.size(), 2U);
    EXPECT_EQ((std::vector{plot[0].x1, plot[0].y1, plot[0].x2, plot[0].y2}),
              (std::vector{0.0, 0.0, sheet->picGraph.Width, sheet->picGraph.Height}));
    EXPECT_EQ((std::vector{frame[1].x1, frame[1].y1, frame[1].x2, frame[1].y2}),
              (std::vector{5.0, 5.0, sheet->picgraph1.Width - 5, sheet->picgraph1.Height - 5}));
    for (const BoxItem& box : {plot[0], frame[0], frame[1]}) EXPECT_EQ(box.pen.width, 2);
}

TEST_F(CompactionPlot, DrawsTheSameTwice)
{
    sheet->cmdOMC.Press();
    const DisplayList plot = *sheet->picGraph.Image(), frame = *sheet->picgraph1.Image();
    const auto summary = lab.Stored("SUMMARY");
    sheet->cmdOMC.Press();
    EXPECT_EQ(*sheet->picGraph.Image(), plot);
    EXPECT_EQ(*sheet->picgraph1.Image(), frame);
    EXPECT_EQ(lab.Stored("SUMMARY"), summary);
}

TEST_F(CompactionPlot, DrawsNoAirVoidLineUnasked)
{
    sheet->cmdOMC.Press();
    EXPECT_TRUE(Dots(sheet->picGraph, kMagenta).empty());
}

// From 2.07 down in thousandths of 0.48; 0.48 / 0.0001 = 4800 dots. The first: 2.07 - 0.00048 = 2.06952 g/cm³ and
// 100 · (1/2.06952 - 1/2.71) = 11.4200 %.
TEST_F(CompactionPlot, DotsTheZeroAirVoidLine)
{
    DrawAirVoids("2.71", "0%");
    const auto dots = Dots(sheet->picGraph, kMagenta);
    ASSERT_EQ(dots.size(), 4800U);
    EXPECT_NEAR(dots[0].x, PlotX(11.42001446687), 1e-4);
    EXPECT_NEAR(dots[0].y, PlotY(2.06952), 1e-6);
    EXPECT_NEAR(dots[999].y, PlotY(1.59), 1e-6) << "A thousand dots down stands the first tick.";
    EXPECT_TRUE(Shows(sheet->picgraph1, "Zero Air Void Line (Gs = 2.71)"));
}

// With 20 % the formula's saturation is 0.8: 100 · (0.8/2.06952 - 0.8/2.71) = 9.1360 %.
TEST_F(CompactionPlot, DotsALineOfAirVoids)
{
    DrawAirVoids("2.71", "20%");
    const auto dots = Dots(sheet->picGraph, kMagenta);
    ASSERT_FALSE(dots.empty());
    EXPECT_NEAR(dots[0].x, PlotX(9.13601157350), 1e-4);
    EXPECT_TRUE(Shows(sheet->picgraph1, "20% Air Void Line (Gs = 2.71)"));
}

TEST_F(CompactionPlot, CentresTheLinesCaptionAboveThePlot)
{
    DrawAirVoids("2.71", "0%");
    const double left = sheet->picGraph.Left - sheet->picgraph1.Left;
    for (const TextItem& item : ItemsOf<TextItem>(sheet->picgraph1)) {
        if (!item.text.starts_with("Zero")) continue;
        const double measured = sheet->picgraph1.TextWidth("Zero Air Void  Line (Gs = ");
        EXPECT_NEAR(item.x, left + (sheet->picGraph.Width - measured) / 2, 1e-6);
    }
}

TEST_F(CompactionPlot, FailsAtALineWithoutSpecificGravityBeforePosting)
{
    DrawAirVoids("0", "0%");
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kDivisionByZero);
    EXPECT_EQ(sheet->txtOMC.Text(), "15.5") << "The boxes had been written.";
    EXPECT_EQ(lab.Posted("sum_omcS"), "   ") << "Nothing had been posted.";
    EXPECT_EQ(ItemsOf<CircleItem>(sheet->picGraph).size(), 5U) << "The picture stands half drawn.";
}

TEST_F(CompactionPlot, FailsAtAirVoidsWithoutAPercentSign)
{
    DrawAirVoids("2.71", "20");
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kInvalidProcedureCall);
}

TEST_F(CompactionPlot, FetchesTheSpecificGravityOfItsMaterial)
{
    lab.Change("UPDATE SPCSOIL Set spc_gs ='2.71' Where spc_ID =' 1'");
    lab.Change("UPDATE SPCCRUSH Set spc_gs ='2.80' Where spc_ID =' 1'");
    sheet->chkSatLine.SetValue(true);
    EXPECT_EQ(sheet->txtGs.Text(), "2.71");
    sheet->chkSatLine.SetValue(false);
    EXPECT_EQ(sheet->txtGs.Text(), "");
    Open(TestKind::ModSoil, Material::Crush);
    sheet->chkSatLine.SetValue(true);
    EXPECT_EQ(sheet->txtGs.Text(), "2.80");
    EXPECT_TRUE(lab.ask.errors.empty());
}

TEST_F(CompactionPlot, FetchesTheBlanksOfATestThatWasNeverSaved)
{
    sheet->chkSatLine.SetValue(true);
    EXPECT_EQ(sheet->txtGs.Text(), "   ");
    sheet->cmdOMC.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, error::kDivisionByZero);
}

TEST_F(CompactionPlot, PostsToTheColumnsOfTheTestInTheRowOfTheMaterial)
{
    struct Kind {
        TestKind test;
        Material material;
        const char* omc;
        const char* mdd;
        std::size_t row;
    };
    for (const Kind& kind : {Kind{TestKind::StdSoil, Material::Soil, "sum_omcS", "sum_mddS", 0},
                             Kind{TestKind::StdSoil, Material::Crush, "sum_omcS", "sum_mddS", 1},
                             Kind{TestKind::ModSoil, Material::Soil, "sum_omcM", "sum_mddM", 0},
                             Kind{TestKind::ModSoil, Material::Crush, "sum_omcM", "sum_mddM", 1}}) {
        lab.Change("UPDATE SUMMARY Set sum_omcS ='-', sum_mddS ='-', sum_omcM ='-', sum_mddM ='-'");
        Open(kind.test, kind.material);
        sheet->cmdOMC.Press();
        EXPECT_EQ(lab.Posted(kind.omc, kind.row), "15.5");
        EXPECT_EQ(lab.Posted(kind.mdd, kind.row), "1.84");
        int posted = 0;
        for (const Texts& row : lab.Stored("SUMMARY")) posted += static_cast<int>(std::ranges::count(row, "15.5"));
        EXPECT_EQ(posted, 1) << "In one place and no other.";
        EXPECT_EQ(lab.StoredColumn("STDSOIL", "std_omc")[0], "   ") << "The sheet's own table waits for Save.";
    }
}

TEST_F(CompactionPlot, PostsWhicheverMethodWasDrawnLast)
{
    sheet->cmdOMC.Press();
    sheet->optFit.Choose();
    EXPECT_EQ(lab.Posted("sum_omcS"), "15.5") << "Choosing a method draws nothing.";
    sheet->cmdOMC.Press();
    EXPECT_EQ(lab.Posted("sum_omcS"), "15.6");
}

TEST_F(CompactionPlot, TellsOfAFileThatIsGoneAfterDrawing)
{
    lab.files.TakeAway(std::string(support::kProject));
    sheet->cmdOMC.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1U);
    EXPECT_EQ(lab.ask.errors[0].number, jet::engine::kFile);
    EXPECT_EQ(sheet->txtOMC.Text(), "15.5");
}

TEST_F(CompactionPlot, TellsItsViewsOnceACommand)
{
    int told = 0;
    const auto view = sheet->picGraph.Show([&] { ++told; });
    sheet->cmdOMC.Press();
    EXPECT_EQ(told, 2) << "Once when it is bound, once for the plot, not for each of its strokes.";
}

}  // namespace
}  // namespace terravane::compaction
