#include "drawing/drawing_surface.h"

#include <array>

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"

namespace terravane {
namespace {

DrawingSurface Page()
{
    DrawingSurface page(11906, 16838);
    page.FontName = "DilleniaUPC";
    page.FontSize = 13;
    return page;
}

template <typename Item>
const Item& Only(const DrawingSurface& surface)
{
    EXPECT_EQ(surface.Items().size(), 1u);
    return std::get<Item>(surface.Items().at(0));
}

TEST(DrawingSurface, HasItsWholeSizeAsItsScale)
{
    const DrawingSurface page = Page();
    EXPECT_EQ(page.Width, 11906);
    EXPECT_EQ(page.ScaleWidth, 11906);
    EXPECT_EQ(page.Height, 16838);
    EXPECT_EQ(page.ScaleHeight, 16838);
    EXPECT_EQ(page.ScaleLeft, 0);
}

TEST(DrawingSurface, PrintsWhereThePositionIsInTheFontInForce)
{
    DrawingSurface page = Page();
    page.FontBold = true;
    page.ForeColor = kRed;
    page.CurrentX = 500;
    page.CurrentY = 1200;
    page.Print("Remark");
    const TextItem expected{"Remark", 500, 1200, {"DilleniaUPC", 13, true, false}, kRed, 0};
    EXPECT_EQ(Only<TextItem>(page), expected);
}

// 13 points of the Thai face are 339.3 twips high.
TEST(DrawingSurface, EndsTheLineAfterPrint)
{
    DrawingSurface page = Page();
    page.ScaleLeft = 30;
    page.CurrentX = 500;
    page.CurrentY = 1000;
    page.Print("one");
    EXPECT_EQ(page.CurrentX, 30);
    EXPECT_DOUBLE_EQ(page.CurrentY, 1339.3);
    page.Print("two");
    EXPECT_DOUBLE_EQ(page.CurrentY, 1678.6);
    EXPECT_EQ(std::get<TextItem>(page.Items()[1]).x, 30);
}

TEST(DrawingSurface, MovesDownOnAnEmptyPrintWithoutDrawing)
{
    DrawingSurface page = Page();
    page.Print();
    page.Print("");
    EXPECT_TRUE(page.Items().empty());
    EXPECT_DOUBLE_EQ(page.CurrentY, 678.6);
}

// "n" is 1139 units: 1139 / 2048 * 156 twips at 13 points.
TEST(DrawingSurface, StaysBehindTheTextAfterPrintOn)
{
    DrawingSurface page = Page();
    page.CurrentX = 100;
    page.CurrentY = 50;
    page.PrintOn("nn");
    EXPECT_DOUBLE_EQ(page.CurrentX, 100 + 2 * 1139.0 / 2048 * 156);
    EXPECT_EQ(page.CurrentY, 50);
    page.PrintOn("n");
    EXPECT_EQ(std::get<TextItem>(page.Items()[1]).x, 100 + 2 * 1139.0 / 2048 * 156);
}

TEST(DrawingSurface, PrintsTurnedTextUpwardsAndMovesNothing)
{
    DrawingSurface page = Page();
    page.CurrentX = 7;
    page.CurrentY = 8;
    page.PrintTurned("Dry Density", 100, 2000);
    EXPECT_EQ(Only<TextItem>(page).angle, 90);
    EXPECT_EQ(Only<TextItem>(page).x, 100);
    EXPECT_EQ(Only<TextItem>(page).y, 2000);
    EXPECT_EQ(page.CurrentX, 7);
    EXPECT_EQ(page.CurrentY, 8);
}

TEST(DrawingSurface, DrawsLinesWithThePenInForce)
{
    DrawingSurface page = Page();
    page.DrawWidth = 4;
    page.DrawStyle = 2;
    page.ForeColor = kBlue;
    page.Line(1, 2, 3, 4);
    page.Line(5, 6, 7, 8, kRed);
    page.Box(1, 2, 3, 4);
    EXPECT_EQ(std::get<LineItem>(page.Items()[0]), (LineItem{1, 2, 3, 4, {4, 2, kBlue}}));
    EXPECT_EQ(std::get<LineItem>(page.Items()[1]), (LineItem{5, 6, 7, 8, {4, 2, kRed}}));
    EXPECT_EQ(std::get<BoxItem>(page.Items()[2]), (BoxItem{1, 2, 3, 4, {4, 2, kBlue}}));
}

TEST(DrawingSurface, DoesNotMoveThePositionWithLines)
{
    DrawingSurface page = Page();
    page.CurrentX = 10;
    page.CurrentY = 20;
    page.Line(1, 2, 3, 4);
    page.Box(1, 2, 3, 4);
    page.Circle(5, 5, 2);
    page.PSet(9, 9, kRed);
    EXPECT_EQ(page.CurrentX, 10);
    EXPECT_EQ(page.CurrentY, 20);
}

TEST(DrawingSurface, FillsWithAColourWhateverThePen)
{
    DrawingSurface page = Page();
    page.FilledBox(1, 2, 3, 4, kWhite);
    EXPECT_EQ(Only<FillItem>(page), (FillItem{1, 2, 3, 4, kWhite}));
}

TEST(DrawingSurface, FillsCirclesOnlyWhereSolid)
{
    DrawingSurface page = Page();
    page.FillColor = kWhite;
    page.Circle(10, 20, 40);
    page.FillSolid = true;
    page.Circle(10, 20, 40);
    EXPECT_FALSE(std::get<CircleItem>(page.Items()[0]).filled);
    EXPECT_EQ(std::get<CircleItem>(page.Items()[1]), (CircleItem{10, 20, 40, true, kWhite, {1, 0, kBlack}}));
}

TEST(DrawingSurface, MarksPointsAsWideAsTheDrawWidth)
{
    DrawingSurface page = Page();
    page.DrawWidth = 3;
    page.PSet(10, 20, kMagenta);
    EXPECT_EQ(Only<PointItem>(page), (PointItem{10, 20, 3, kMagenta}));
}

TEST(DrawingSurface, JoinsAtLeastTwoPoints)
{
    DrawingSurface page = Page();
    const std::array<DrawnPoint, 2> points{{{0, 10}, {5, 12}}};
    page.Polyline(std::span(points).first(1), kBlue);
    EXPECT_TRUE(page.Items().empty());
    page.Polyline(points, kBlue);
    EXPECT_EQ(Only<PolylineItem>(page), (PolylineItem{{{0, 10}, {5, 12}}, {1, 0, kBlue}}));
}

TEST(DrawingSurface, KeepsFontsAndPensOverCls)
{
    DrawingSurface page = Page();
    page.FontItalic = true;
    page.DrawWidth = 2;
    page.ScaleLeft = 3;
    page.ScaleTop = 4;
    page.CurrentX = page.CurrentY = 700;
    page.Print("gone");
    page.Cls();
    EXPECT_TRUE(page.Items().empty());
    EXPECT_EQ(page.CurrentX, 3);
    EXPECT_EQ(page.CurrentY, 4);
    EXPECT_EQ(page.CurrentFont(), (Font{"DilleniaUPC", 13, false, true}));
    EXPECT_EQ(page.DrawWidth, 2);
}

TEST(DrawingSurface, GivesAnImageThatLaterDrawingDoesNotChange)
{
    DrawingSurface box(5450, 4000);
    box.Line(0, 0, 1, 1);
    const auto image = box.Image();
    box.Line(2, 2, 3, 3);
    EXPECT_EQ(image->items.size(), 1u);
    EXPECT_EQ(image->width, 5450);
    EXPECT_EQ(image->height, 4000);
}

TEST(DrawingSurface, PaintsAnotherSurfaceUnderItsName)
{
    DrawingSurface page = Page();
    const auto image = DrawingSurface(100, 50).Image();
    page.PaintPicture("picGraph", image, 500, 600, 200, 100);
    EXPECT_EQ(Only<PictureItem>(page).name, "picGraph");
    EXPECT_EQ(Only<PictureItem>(page).drawing, image);  // the same list, not a copy
}

TEST(DrawingSurface, PaintsAPictureUnderItsFileName)
{
    DrawingSurface page = Page();
    const auto logo = std::make_shared<const Picture>(Picture{"dep_logo.jpg", PictureFormat::Jpeg, 8, 8, {}});
    page.PaintPicture(logo, 640, 1225, 1200, 1200);
    EXPECT_EQ(Only<PictureItem>(page), (PictureItem{"dep_logo.jpg", 640, 1225, 1200, 1200, logo, nullptr}));
}

TEST(DrawingSurface, RefusesToPaintNothing)
{
    DrawingSurface page = Page();
    EXPECT_THROW(page.PaintPicture(std::shared_ptr<const Picture>(), 0, 0, 1, 1), RuntimeError);
    EXPECT_THROW(page.PaintPicture("picGraph", std::shared_ptr<const DisplayList>(), 0, 0, 1, 1), RuntimeError);
}

TEST(DrawingSurface, MeasuresInTheFontInForce)
{
    DrawingSurface page = Page();
    EXPECT_DOUBLE_EQ(page.TextHeight("n"), 339.3);
    page.FontSize = 16;
    EXPECT_DOUBLE_EQ(page.TextHeight("n"), 417.6);
    EXPECT_DOUBLE_EQ(page.TextWidth("n"), 106.78125);
}

}  // namespace
}  // namespace terravane
