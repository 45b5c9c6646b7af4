/// What the places of a plot mean: from twips back to the readings that were drawn there.
#pragma once

#include <cmath>
#include <string>
#include <utility>

namespace terravane {

/// A straight axis, or one in powers of ten.
struct PlotAxis {
    std::string title;            // with its unit, as it stands beside the axis
    double place = 0, value = 0;  // of one spot; the value's logarithm where the axis is logarithmic
    double perTwip = 0;
    bool isLogarithmic = false;

    double ValueAt(double twips) const
    {
        const double straight = value + (twips - place) * perTwip;
        return isLogarithmic ? std::pow(10, straight) : straight;
    }
};

struct PlotAxes {
    PlotAxis across, upwards;
};

/// The axis through two of its values and their places, which must differ.
inline PlotAxis AxisThrough(std::string title, double first, double firstPlace, double last, double lastPlace,
                            bool isLogarithmic = false)
{
    const double from = isLogarithmic ? std::log10(first) : first, to = isLogarithmic ? std::log10(last) : last;
    return {std::move(title), firstPlace, from, (to - from) / (lastPlace - firstPlace), isLogarithmic};
}

}  // namespace terravane
