#include "program/plot_numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace terravane {

namespace {

constexpr int kMostDecimals = 6;
constexpr int kCopiedDigits = 7;

std::string Decimals(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string Significant(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*g", kCopiedDigits, value);
    return text;
}

std::string LineOf(DrawnPoint point, const PlotAxes& axes)
{
    return Significant(axes.across.ValueAt(point.x)) + "\t" + Significant(axes.upwards.ValueAt(point.y)) + "\n";
}

}  // namespace

std::string ReadingText(double value, double neighbour)
{
    constexpr double kHair = 1e-6;  // of a decimal: a step of 0.001 shows three of them
    const double step = std::abs(neighbour - value);
    const int decimals = step > 0 ? static_cast<int>(std::ceil(-std::log10(step) - kHair)) : kMostDecimals;
    return Decimals(value, std::clamp(decimals, 0, kMostDecimals));
}

/// A mark is a dot in a circle of the same middle: it is told once.
std::string PlotNumbers(const std::vector<DrawnItem>& items, const PlotAxes& axes)
{
    std::string numbers = axes.across.title + "\t" + axes.upwards.title + "\n", mark;
    for (const DrawnItem& item : items) {
        if (const auto* circle = std::get_if<CircleItem>(&item)) {
            const std::string line = LineOf({circle->x, circle->y}, axes);
            if (line != mark) numbers += line;
            mark = line;
        }
        if (const auto* curve = std::get_if<PolylineItem>(&item)) {
            numbers += "\n";
            for (const DrawnPoint& point : curve->points) numbers += LineOf(point, axes);
        }
    }
    return numbers;
}

}  // namespace terravane
