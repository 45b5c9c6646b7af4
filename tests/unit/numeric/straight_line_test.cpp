// The slope of a line through points is worked here a second way: from the distances to the means, in long double.
#include "numeric/straight_line.h"

#include <vector>

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "unit/runtime/raises.h"
#include "unit/runtime/random_values.h"

namespace terravane {
namespace {

// y = 7 - 2x through (1, 5), (2, 3), (3, 1).
TEST(StraightLine, GoesThroughPointsThatLieOnALine)
{
    const std::vector<double> x{1, 2, 3}, y{5, 3, 1};
    const StraightLine line = FitStraightLine<double>(x, y);
    EXPECT_DOUBLE_EQ(line.slope, -2);
    EXPECT_DOUBLE_EQ(line.intercept, 7);
    EXPECT_DOUBLE_EQ(line.At(10), -13);
}

// Means 2.5 and 4.75; the products of the distances add up to 4.5, the squares of x to 5: slope 0.9, intercept 2.5.
TEST(StraightLine, LiesNearestToScatteredPoints)
{
    const std::vector<double> x{1, 2, 3, 4}, y{4, 3, 6, 6};
    const StraightLine line = FitStraightLine<double>(x, y);
    EXPECT_NEAR(line.slope, 0.9, 1e-12);
    EXPECT_NEAR(line.intercept, 2.5, 1e-12);
}

TEST(StraightLine, OneNumberOnTheAxisHasNoSlope)
{
    const std::vector<double> one{25.3}, same{25.3, 25.3, 25.3}, y{1, 2, 4};
    EXPECT_EQ(ErrorOf([&] { FitStraightLine<double>(same, y); }), error::kOverflow)
        << "0/0, also where rounding leaves the determinant a hair off zero";
    EXPECT_EQ(ErrorOf([&] { FitStraightLine<double>(one, one); }), error::kOverflow) << "0/0";
    EXPECT_EQ(ErrorOf([] { FitStraightLine<double>({}, {}); }), error::kOverflow) << "0/0";
}

// log10 of 24, 25 and 26 blows lie so close together that single sums change the second decimal of the slope: -71.5996
// against -71.5569 in double (both worked with sums rounded by hand of a script).
TEST(StraightLine, SumsAreKeptInTheChosenPrecision)
{
    const std::vector<float> x{1.3802112F, 1.39794F, 1.4149734F}, y{61.08F, 60.0F, 58.59F};
    EXPECT_NEAR(FitStraightLine<float>(x, y).slope, -71.59961688, 1e-6);
    const std::vector<double> xDouble(x.begin(), x.end()), yDouble(y.begin(), y.end());
    EXPECT_NEAR(FitStraightLine<double>(xDouble, yDouble).slope, -71.5569, 1e-3);
}

TEST(StraightLine, SingleSumBeyondItsRangeOverflows)
{
    const std::vector<float> x{1, 3e38F}, y{1, 2};
    EXPECT_EQ(ErrorOf([&] { FitStraightLine<float>(x, y); }), error::kOverflow);
}

TEST(StraightLine, AgreesWithTheDistancesToTheMeans)
{
    RandomValues random(20261121);
    for (int round = 0; round < 200; ++round) {
        std::vector<double> x, y;
        long double meanX = 0, meanY = 0, products = 0, squares = 0;
        for (int i = 0; i < 7; ++i) {
            x.push_back(10 + 5.0 * i + static_cast<double>(random.Below(400)) / 100);
            y.push_back(600 + static_cast<double>(random.Below(6000)) / 100);
            meanX += x.back() / 7.0L;
            meanY += y.back() / 7.0L;
        }
        for (std::size_t i = 0; i < x.size(); ++i) {
            products += (x[i] - meanX) * (y[i] - meanY);
            squares += (x[i] - meanX) * (x[i] - meanX);
        }
        const StraightLine line = FitStraightLine<double>(x, y);
        EXPECT_NEAR(line.slope, static_cast<double>(products / squares), 1e-9);
        EXPECT_NEAR(line.intercept, static_cast<double>(meanY - products / squares * meanX), 1e-7);
    }
}

}  // namespace
}  // namespace terravane
