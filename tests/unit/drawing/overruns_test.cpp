// What is told of texts that do not fit where they are printed.
#include "drawing/overruns.h"

#include <gtest/gtest.h>

#include "drawing/scopes.h"

namespace terravane {
namespace {

constexpr double kWidth = 11906, kHeight = 16838;

struct Overruns : testing::Test {
    DrawingSurface page{kWidth, kHeight};

    void Print(double x, double y, std::string_view text)
    {
        page.CurrentX = x;
        page.CurrentY = y;
        page.PrintOn(text);
    }

    std::vector<std::string> Sentences() const
    {
        std::vector<std::string> told;
        for (const Overrun& overrun : OverrunsOf(*page.Image())) told.push_back(Told(overrun));
        return told;
    }

    /// Two columns of 1000 twips, two rows of 200.
    static TableShape Cells() { return {.columns = {500, 1500, 2500}, .rows = {1000, 1200, 1400}, .headRows = 1}; }
};

using List = std::vector<std::string>;

TEST_F(Overruns, NothingIsToldOfAPageOnWhichAllFits)
{
    Print(500, 500, "Client Name ");
    Print(2000, 500, " : Highway Department");
    {
        const AsTable table(page, Cells());
        Print(600, 1000, "1.25");
        Print(1600, 1000, "2.50");
    }
    EXPECT_EQ(Sentences(), List{});
    EXPECT_EQ(StatusOf({}), "");
}

TEST_F(Overruns, ALongProjectNameRunsOverTheDateOfTest)
{
    Print(500, 500, "Bypass Road of the Northern Province, Section Four, Lot 12");
    Print(3000, 510, "Date of Test");
    EXPECT_EQ(Sentences(), List{"“Bypass Road of the Northern Province, Se...” runs over “Date of Test”."});
}

TEST_F(Overruns, TextsOnLinesBelowEachOtherAreApart)
{
    Print(500, 500, "Bypass Road of the Northern Province");
    Print(500, 500 + page.TextHeight(""), "Km 12+400 to Km 17+300");
    EXPECT_EQ(Sentences(), List{});
}

TEST_F(Overruns, BlanksHaveNoInkToRunOver)
{
    Print(500, 500, "Location        ");
    Print(500 + page.TextWidth("Location "), 500, "   : Km 12");
    EXPECT_EQ(Sentences(), List{});
}

TEST_F(Overruns, AMassOfMillionsIsWiderThanItsCell)
{
    {
        const AsCaption caption(page);
        Print(500, 800, "Density Determination");
    }
    {
        TableShape shape = Cells();
        shape.merged = {{0, 0, 1, 2}};
        const AsTable table(page, shape);
        Print(700, 1000, "Mold No. One and Two");  // in both columns
        Print(1400, 1210, "123456789.25 grams");
    }
    EXPECT_EQ(Sentences(), List{"“123456789.25 grams” is wider than its cell under “Density Determination”."});
}

TEST_F(Overruns, APathOf250CharactersIsCutAtTheEdgeOfThePaper)
{
    Print(500, 16000, "Database File is /" + std::string(250, 'w'));
    const auto overruns = OverrunsOf(*page.Image(), 3);
    ASSERT_EQ(overruns.size(), 1U);
    EXPECT_EQ(overruns[0].page, 3U);
    EXPECT_EQ(overruns[0].kind, OverrunKind::LeavesPaper);
    EXPECT_EQ(Told(overruns[0]), "“Database File is /wwwwwwwwwwwwwwwwwwwwww...” is cut at the edge of the paper.");
}

TEST_F(Overruns, WhatIsInAFigureIsTheFiguresBusiness)
{
    {
        const AsFigure figure(page, "Curve");
        Print(-100, 500, "12");
        Print(-90, 500, "13");
    }
    EXPECT_EQ(Sentences(), List{});
}

TEST_F(Overruns, TheStatusLineTellsTheFirstAndCountsTheRest)
{
    Print(-100, 500, "one");
    Print(-100, 900, "two");
    Print(-100, 1300, "three");
    EXPECT_EQ(StatusOf(OverrunsOf(*page.Image())), "“one” is cut at the edge of the paper. And 2 more on this page.");
}

}  // namespace
}  // namespace terravane
