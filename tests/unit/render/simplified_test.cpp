#include "render/simplified.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace terravane {
namespace {

/// Distance of a point from a stretch of a line, by closing in on the nearest place: a second method.
double TriedDistance(const DrawnPoint& point, const DrawnPoint& a, const DrawnPoint& b)
{
    const auto distance = [&](double share) {
        return std::hypot(a.x + share * (b.x - a.x) - point.x, a.y + share * (b.y - a.y) - point.y);
    };
    double low = 0;
    double high = 1;
    for (int step = 0; step < 40; ++step) {
        const double third = (high - low) / 3;
        if (distance(low + third) < distance(high - third))
            high -= third;
        else
            low += third;
    }
    return distance(low);
}

double DistanceFrom(const std::vector<DrawnPoint>& lines, const DrawnPoint& point)
{
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t at = 1; at < lines.size(); ++at)
        nearest = std::min(nearest, TriedDistance(point, lines[at - 1], lines[at]));
    return nearest;
}

/// A wave of the size of a plot, in twips, by the steps that the splines take.
std::vector<DrawnPoint> Wave()
{
    std::vector<DrawnPoint> points;
    for (int step = 0; step <= 1200; ++step)
        points.push_back({1000 + 5.0 * step, 4000 - 1500 * std::sin(step / 150.0) * std::exp(-step / 900.0)});
    return points;
}

TEST(Simplified, LeavesNoPointFartherThanTheTolerance)
{
    const std::vector<DrawnPoint> wave = Wave();
    for (const double tolerance : {0.25, 0.5, 5.0}) {
        const std::vector<DrawnPoint> left = Simplified(wave, tolerance);
        double farthest = 0;
        for (const DrawnPoint& point : wave) farthest = std::max(farthest, DistanceFrom(left, point));
        EXPECT_LE(farthest, tolerance + 1e-4);  // the second method's own fault
        EXPECT_LT(left.size(), wave.size() / 5) << tolerance;
    }
}

TEST(Simplified, KeepsOnlyPointsOfTheRunInTheirOrder)
{
    const std::vector<DrawnPoint> wave = Wave();
    const std::vector<DrawnPoint> left = Simplified(wave, 0.5);
    EXPECT_EQ(left.front(), wave.front());
    EXPECT_EQ(left.back(), wave.back());
    auto from = wave.begin();
    for (const DrawnPoint& point : left) {
        from = std::find(from, wave.end(), point);
        ASSERT_NE(from, wave.end()) << point.x;
    }
}

TEST(Simplified, IsTwoPointsForAStraightLine)
{
    EXPECT_EQ(Simplified(std::vector<DrawnPoint>{{0, 0}, {1, 1}, {2, 2}, {3, 3}}, 0.5).size(), 2u);
}

TEST(Simplified, KeepsTheTurnOfALineThatComesBack)
{
    const std::vector<DrawnPoint> there{{0, 0}, {50, 0}, {100, 0}, {50, 0}, {0, 0}};
    const std::vector<DrawnPoint> wanted{{0, 0}, {100, 0}, {0, 0}};
    EXPECT_EQ(Simplified(there, 0.5), wanted);
}

TEST(Simplified, LeavesTwoPointsAndFewerAsTheyAre)
{
    EXPECT_TRUE(Simplified({}, 0.5).empty());
    EXPECT_EQ(Simplified(std::vector<DrawnPoint>{{7, 7}}, 0.5).size(), 1u);
    EXPECT_EQ(Simplified(std::vector<DrawnPoint>{{7, 7}, {7, 7}}, 0.5).size(), 2u);
}

}  // namespace
}  // namespace terravane
