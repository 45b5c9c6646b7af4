/// The least-squares straight line. Knows neither soil nor text: numbers in, numbers out, units are the caller's.
#pragma once

#include <span>

namespace terravane {

struct StraightLine {
    double intercept = 0;  // unit of y
    double slope = 0;      // unit of y a unit of x

    double At(double x) const { return intercept + slope * x; }
};

/// The line nearest to the points (x[i], y[i]).
/// Real    the precision that x, y and the sums are kept in: each addition is rounded to it, products and the line
///         itself are double
/// x, y    equally long; nothing is sorted
/// throws  RuntimeError 6 where no two x differ: the slope is 0/0 then, also where rounding would leave it a hair off
///         and the line would be made of noise; 11 or 6 where single sums lose what makes them differ
/// Method: sums neither centred nor scaled, added up in the order of the points.
template <class Real>
StraightLine FitStraightLine(std::span<const Real> x, std::span<const Real> y);

extern template StraightLine FitStraightLine(std::span<const float>, std::span<const float>);
extern template StraightLine FitStraightLine(std::span<const double>, std::span<const double>);

}  // namespace terravane
