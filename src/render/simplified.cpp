#include "render/simplified.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace terravane {

namespace {

/// Square of the distance between a point and the stretch from a to b.
double SquaredDistance(const DrawnPoint& point, const DrawnPoint& a, const DrawnPoint& b)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along = length > 0 ? ((point.x - a.x) * dx + (point.y - a.y) * dy) / length : 0;
    const double share = std::clamp(along, 0.0, 1.0);
    const double x = point.x - a.x - share * dx;
    const double y = point.y - a.y - share * dy;
    return x * x + y * y;
}

/// A stretch of the run, by its first and last point.
using Stretch = std::pair<std::size_t, std::size_t>;

/// The point between the ends that is farthest off the line between them, and the square of how far.
std::pair<std::size_t, double> Farthest(std::span<const DrawnPoint> points, Stretch stretch)
{
    std::pair<std::size_t, double> farthest{stretch.first, -1};
    for (std::size_t at = stretch.first + 1; at < stretch.second; ++at) {
        const double off = SquaredDistance(points[at], points[stretch.first], points[stretch.second]);
        if (!(off <= farthest.second)) farthest = {at, off};  // one that is no number counts as far off
    }
    return farthest;
}

}  // namespace

std::vector<DrawnPoint> Simplified(std::span<const DrawnPoint> points, double tolerance)
{
    if (points.size() < 3) return {points.begin(), points.end()};
    std::vector<DrawnPoint> kept{points.front()};
    std::vector<Stretch> open{{0, points.size() - 1}};  // the next one last
    while (!open.empty()) {
        const Stretch stretch = open.back();
        open.pop_back();
        const auto [at, off] = Farthest(points, stretch);
        if (off <= tolerance * tolerance) {
            kept.push_back(points[stretch.second]);
        } else {
            open.emplace_back(at, stretch.second);
            open.emplace_back(stretch.first, at);
        }
    }
    return kept;
}

}  // namespace terravane
