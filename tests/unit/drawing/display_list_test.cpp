#include "drawing/display_list.h"

#include <gtest/gtest.h>

namespace terravane {
namespace {

TEST(ColourText, IsSixUpperCaseDigits)
{
    EXPECT_EQ(ColourText(kBlack), "#000000");
    EXPECT_EQ(ColourText(kMagenta), "#FF00FF");
    EXPECT_EQ(ColourText({255, 128, 10}), "#FF800A");
}

// Twice as wide, three times as high, then moved by (100, 200).
template <typename Item>
Item PlacedAs(const Item& item)
{
    return std::get<Item>(Placed(item, 100, 200, 2, 3));
}

TEST(Placed, StretchesAndMovesEveryKindOfItem)
{
    const Pen pen{2, 1, kBlue};
    const Font font{"DilleniaUPC", 10, true, false};
    const Font larger{"DilleniaUPC", 30, true, false};
    EXPECT_EQ(PlacedAs(TextItem{"a", 5, 7, font, kRed, 90}), (TextItem{"a", 110, 221, larger, kRed, 90}));
    EXPECT_EQ(PlacedAs(LineItem{1, 2, 3, 4, pen}), (LineItem{102, 206, 106, 212, pen}));
    EXPECT_EQ(PlacedAs(PolylineItem{{{1, 2}, {3, 4}}, pen}), (PolylineItem{{{102, 206}, {106, 212}}, pen}));
    EXPECT_EQ(PlacedAs(BoxItem{1, 2, 3, 4, pen}), (BoxItem{102, 206, 106, 212, pen}));
    EXPECT_EQ(PlacedAs(FillItem{1, 2, 3, 4, kRed}), (FillItem{102, 206, 106, 212, kRed}));
    EXPECT_EQ(PlacedAs(CircleItem{1, 2, 40, true, kWhite, pen}), (CircleItem{102, 206, 120, true, kWhite, pen}));
    EXPECT_EQ(PlacedAs(PointItem{1, 2, 4, kRed}), (PointItem{102, 206, 4, kRed}));
    EXPECT_EQ(PlacedAs(PictureItem{"logo.jpg", 1, 2, 10, 20, nullptr, nullptr}),
              (PictureItem{"logo.jpg", 102, 206, 20, 60, nullptr, nullptr}));
}

std::shared_ptr<const DisplayList> Drawing(double width, double height, std::vector<DrawnItem> items)
{
    return std::make_shared<const DisplayList>(DisplayList{width, height, std::move(items)});
}

PictureItem Frame(std::string name, double x, double y, double width, double height,
                  std::shared_ptr<const DisplayList> drawing)
{
    return {std::move(name), x, y, width, height, nullptr, std::move(drawing)};
}

TEST(Flattened, PutsADrawingsItemsBehindItsPlace)
{
    const PictureItem plot = Frame("picGraph", 500, 1000, 200, 100, Drawing(200, 100, {LineItem{1, 2, 3, 4, {}}}));
    const DisplayList page{11906, 16838, {FillItem{0, 0, 9, 9, kWhite}, plot, PointItem{7, 7, 1, kRed}}};
    const std::vector<DrawnItem> expected{FillItem{0, 0, 9, 9, kWhite}, Frame("picGraph", 500, 1000, 200, 100, nullptr),
                                          LineItem{501, 1002, 503, 1004, {}}, PointItem{7, 7, 1, kRed}};
    EXPECT_EQ(Flattened(page), expected);
}

// The inner drawing (10 wide) stands at 20 in the outer one (100 wide), 30 wide: threefold. The outer one
// stands at 1000 on the page, 200 wide: twofold. So the inner 5 is 20 + 3 * 5 = 35 in the outer one and 1000
// + 2 * 35 on the page.
TEST(Flattened, PlacesDrawingsWithinDrawings)
{
    const auto inner = Drawing(10, 10, {PointItem{5, 5, 1, kRed}});
    const auto outer = Drawing(100, 100, {Frame("picgraph1", 20, 20, 30, 30, inner)});
    const auto flat = Flattened({11906, 16838, {Frame("picGraph", 1000, 1000, 200, 200, outer)}});
    ASSERT_EQ(flat.size(), 3u);
    EXPECT_EQ(std::get<PictureItem>(flat[1]), Frame("picgraph1", 1040, 1040, 60, 60, nullptr));
    EXPECT_EQ(std::get<PointItem>(flat[2]), (PointItem{1070, 1070, 1, kRed}));
}

TEST(Flattened, LeavesADrawingWithoutASizeAsLargeAsItIs)
{
    const auto flat = Flattened({10, 10, {Frame("p", 5, 5, 3, 3, Drawing(0, 0, {PointItem{1, 1, 1, kRed}}))}});
    EXPECT_EQ(std::get<PointItem>(flat.at(1)), (PointItem{6, 6, 1, kRed}));
}

TEST(DisplayList, IsComparedByContents)
{
    const auto logo = [](int width) {
        return std::make_shared<const Picture>(Picture{"logo.jpg", PictureFormat::Jpeg, width, 8, {1, 2}});
    };
    const auto with = [](std::shared_ptr<const Picture> picture, std::shared_ptr<const DisplayList> drawing) {
        return DisplayList{9, 9, {PictureItem{"p", 0, 0, 9, 9, std::move(picture), std::move(drawing)}}};
    };
    EXPECT_EQ(with(logo(8), nullptr), with(logo(8), nullptr));
    EXPECT_NE(with(logo(8), nullptr), with(logo(9), nullptr));
    EXPECT_NE(with(logo(8), nullptr), with(nullptr, nullptr));
    EXPECT_EQ(with(nullptr, Drawing(1, 1, {})), with(nullptr, Drawing(1, 1, {})));
    EXPECT_NE(with(nullptr, Drawing(1, 1, {})), with(nullptr, Drawing(1, 1, {PointItem{}})));
}

}  // namespace
}  // namespace terravane
