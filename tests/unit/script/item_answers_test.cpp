// Items one by one; the texts are those that readers of answers rely on.
#include "script/item_answers.h"

#include <sstream>

#include <gtest/gtest.h>

namespace terravane {
namespace {

std::string Answer(const DrawnItem& item)
{
    return ItemAnswer(item).dump();
}

TEST(ItemAnswer, Text)
{
    EXPECT_EQ(Answer(TextItem{"MDD = 1.98 g/cm^3", 30, 410, {}, kBlack, 0}),
              R"({"text":"MDD = 1.98 g/cm^3","x":30,"y":410,"font":"MS Sans Serif","size":8.25,"bold":false,)"
              R"("italic":false,"colour":"#000000","angle":0})");
}

TEST(ItemAnswer, LinesBoxesFills)
{
    EXPECT_EQ(Answer(LineItem{500, 3800, 9500, 3800, {2, 0, kBlack}}),
              R"({"line":[500,3800,9500,3800],"width":2,"style":0,"colour":"#000000"})");
    EXPECT_EQ(Answer(BoxItem{500, 3800, 9500, 4300, {2, 0, kBlack}}),
              R"({"box":[500,3800,9500,4300],"width":2,"colour":"#000000"})");
    EXPECT_EQ(Answer(FillItem{500, 1000, 9500, 2100, kWhite}), R"({"fill":[500,1000,9500,2100],"colour":"#FFFFFF"})");
}

TEST(ItemAnswer, PointsAndCurves)
{
    EXPECT_EQ(Answer(CircleItem{1200, 900, 40, true, kWhite, {1, 0, kBlack}}),
              R"({"circle":[1200,900],"radius":40,"fill":"#FFFFFF","colour":"#000000"})");
    EXPECT_EQ(Answer(CircleItem{1200, 900, 40, false, kWhite, {1, 0, kBlack}}),
              R"({"circle":[1200,900],"radius":40,"fill":null,"colour":"#000000"})");
    EXPECT_EQ(Answer(PointItem{1200, 900, 1, kMagenta}), R"({"point":[1200,900],"colour":"#FF00FF"})");
    EXPECT_EQ(Answer(PolylineItem{{{0, 10}, {5, 12}}, {1, 0, kBlue}}),
              R"({"polyline":[[0,10],[5,12]],"width":1,"colour":"#0000FF"})");
}

TEST(ItemAnswer, CoordinatesAreRoundedToTwoDecimals)
{
    EXPECT_EQ(Answer(PointItem{0.125, 2.994, 1, kBlack}), R"({"point":[0.13,2.99],"colour":"#000000"})");
    EXPECT_EQ(Answer(PointItem{1199.996, -0.001, 1, kBlack}), R"({"point":[1200,0],"colour":"#000000"})");
}

// A box of 100 by 50 twips placed into 200 by 100 at (10, 20): its line from (0, 0) to (100, 50) runs from (10, 20) to
// (210, 120).
TEST(ItemAnswer, PlacedDrawingIsFollowedByItsOwnItems)
{
    auto drawing = std::make_shared<DisplayList>();
    drawing->width = 100;
    drawing->height = 50;
    drawing->items.push_back(LineItem{0, 0, 100, 50, {}});
    DisplayList page{1000, 1000, {PictureItem{"picGraph", 10, 20, 200, 100, nullptr, drawing}}};
    std::ostringstream out;
    AnswerWriter answers(out);
    WriteItems(answers, page);
    EXPECT_EQ(out.str(),
              "{\"picture\":\"picGraph\",\"x\":10,\"y\":20,\"width\":200,\"height\":100}\n"
              "{\"line\":[10,20,210,120],\"width\":1,\"style\":0,\"colour\":\"#000000\"}\n");
}

TEST(Answers, BytesThatAreNoTextDoNotEndTheRun)
{
    std::ostringstream out;
    AnswerWriter answers(out);
    answers.Write(TextAnswer("txtSoil", "a\xFF"));
    EXPECT_EQ(out.str(), "{\"get\":\"txtSoil\",\"text\":\"a\xEF\xBF\xBD\"}\n");
}

}  // namespace
}  // namespace terravane
