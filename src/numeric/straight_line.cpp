#include "numeric/straight_line.h"

#include <algorithm>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

void Store(float& cell, double value)
{
    cell = ToSingle(value);
}

void Store(double& cell, double value)
{
    cell = value;
}

template <class Real>
struct LineSums {
    Real x = 0, y = 0, xy = 0, xx = 0;

    void Add(double atX, double atY)
    {
        Store(x, x + atX);
        Store(y, y + atY);
        Store(xy, xy + atX * atY);
        Store(xx, xx + atX * atX);
    }
};

template <class Real>
bool NoTwoDiffer(std::span<const Real> x)
{
    return std::ranges::adjacent_find(x, std::ranges::not_equal_to{}) == x.end();
}

}  // namespace

template <class Real>
StraightLine FitStraightLine(std::span<const Real> x, std::span<const Real> y)
{
    if (NoTwoDiffer(x)) throw RuntimeError(error::kOverflow);  // 0/0
    LineSums<Real> sums;
    for (std::size_t i = 0; i < x.size(); ++i) sums.Add(x[i], y[i]);
    const auto count = static_cast<double>(x.size());
    const double sumX = sums.x, sumY = sums.y, sumXY = sums.xy, sumXX = sums.xx;

    StraightLine line;
    line.slope = Divide(count * sumXY - sumX * sumY, count * sumXX - sumX * sumX);
    line.intercept = sumY / count - line.slope * sumX / count;
    return line;
}

template StraightLine FitStraightLine(std::span<const float>, std::span<const float>);
template StraightLine FitStraightLine(std::span<const double>, std::span<const double>);

}  // namespace terravane
