#include "drawing/scopes.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace terravane {
namespace {

TEST(Scopes, FontAndPenAreAsTheyWereBefore)
{
    DrawingSurface surface(1000, 1000);
    surface.FontSize = 10;
    surface.DrawWidth = 3;
    surface.DrawStyle = kDotted;
    {
        const Bold bold(surface);
        const Italic italic(surface);
        const TextSize size(surface, 20);
        const TextColour colour(surface, kRed);
        const Stroke stroke(surface, kThickRule);
        const Filled filled(surface, kBlue);
        EXPECT_EQ(surface.CurrentFont(), (Font{surface.FontName, 20, true, true}));
        EXPECT_EQ(surface.ForeColor, kRed);
        EXPECT_EQ(surface.DrawWidth, 2);
        EXPECT_EQ(surface.DrawStyle, kSolid);
        EXPECT_TRUE(surface.FillSolid);
        EXPECT_EQ(surface.FillColor, kBlue);
    }
    EXPECT_EQ(surface.CurrentFont(), (Font{surface.FontName, 10, false, false}));
    EXPECT_EQ(surface.ForeColor, kBlack);
    EXPECT_EQ(surface.DrawWidth, 3);
    EXPECT_EQ(surface.DrawStyle, kDotted);
    EXPECT_FALSE(surface.FillSolid);
    EXPECT_EQ(surface.FillColor, kBlack);
}

TEST(Scopes, WithinAnotherEndWithTheOuterOne)
{
    DrawingSurface surface(1000, 1000);
    const Bold bold(surface);
    {
        const Regular regular(surface);
        EXPECT_FALSE(surface.FontBold);
        {
            const Bold again(surface);
            EXPECT_TRUE(surface.FontBold);
        }
        EXPECT_FALSE(surface.FontBold);
    }
    EXPECT_TRUE(surface.FontBold);
}

TEST(Scopes, EndWhereAnErrorEndsThem)
{
    DrawingSurface surface(1000, 1000);
    const auto fail = [&] {
        const Bold bold(surface);
        throw std::runtime_error("half-way");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_FALSE(surface.FontBold);
}

}  // namespace
}  // namespace terravane
