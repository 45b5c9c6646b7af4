#include "runtime/elementary.h"

#include <cmath>
#include <limits>

namespace terravane {

namespace {

/// A number as the unrounded sum of two doubles, the second at most half a last place of the first: some 106 bits.
struct Pair {
    double high = 0, low = 0;
};

/// Where |a| is at least |b|.
Pair OrderedSum(double a, double b)
{
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

Pair Sum(double a, double b)
{
    const double sum = a + b, seen = sum - a;
    return {sum, (a - (sum - seen)) + (b - seen)};
}

/// A double cut into halves whose products are exact.
Pair Halves(double a)
{
    constexpr double kSplitter = 134217729;  // 2^27 + 1
    const double scaled = kSplitter * a, high = scaled - (scaled - a);
    return {high, a - high};
}

Pair Product(double a, double b)
{
    const double product = a * b;
    const Pair x = Halves(a), y = Halves(b);
    return {product, ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

Pair operator+(Pair a, Pair b)
{
    const Pair high = Sum(a.high, b.high), low = Sum(a.low, b.low);
    const Pair middle = OrderedSum(high.high, high.low + low.high);
    return OrderedSum(middle.high, middle.low + low.low);
}

Pair operator*(Pair a, Pair b)
{
    const Pair product = Product(a.high, b.high);
    return OrderedSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

Pair operator*(Pair a, double b)
{
    return a * Pair{b, 0};
}

Pair operator/(Pair a, Pair b)
{
    const double first = a.high / b.high;
    const Pair rest = a + b * -first;
    const double second = rest.high / b.high;
    const Pair left = rest + b * -second;
    return Pair(OrderedSum(first, second)) + Pair{left.high / b.high, 0};
}

constexpr Pair kLogarithmOfTwo{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

}  // namespace

/// value = m 2^k with m between 0.71 and 1.41; ln m = 2 (s + s³/3 + s⁵/5 + ...) with s = (m - 1) / (m + 1), which is at
/// most 0.172, so that 21 terms leave out less than the pair holds.
double NaturalLogarithm(double value) noexcept
{
    if (std::isinf(value)) return value;
    constexpr int kLastTerm = 41;
    constexpr double kRootOfHalf = 0.70710678118654752;
    int exponent = 0;
    double m = std::frexp(value, &exponent);
    if (m < kRootOfHalf) {
        m *= 2;
        --exponent;
    }
    const Pair s = Sum(m, -1) / Sum(m, 1), square = s * s;
    Pair series;
    for (int term = kLastTerm; term > 0; term -= 2) series = series * square + Pair{1, 0} / Pair{double(term), 0};
    const Pair result = kLogarithmOfTwo * exponent + s * series * 2;
    return result.high + result.low;
}

/// exponent = k ln 2 + 64 r with |r| at most 0.0055; e^r by its series, then squared six times.
double Exponential(double exponent) noexcept
{
    constexpr double kLargest = 709.782712893384, kSmallest = -745.133219101941;
    if (std::isnan(exponent)) return exponent;
    if (exponent > kLargest) return std::numeric_limits<double>::infinity();
    if (exponent < kSmallest) return 0;
    constexpr int kTerms = 14, kSquarings = 6;
    const double k = std::floor(exponent / kLogarithmOfTwo.high + 0.5);
    const Pair r = (Pair{exponent, 0} + kLogarithmOfTwo * -k) * (1.0 / (1 << kSquarings));
    Pair series{1, 0};
    for (int term = kTerms; term > 0; --term) series = Pair{1, 0} + series * r / Pair{double(term), 0};
    for (int i = 0; i < kSquarings; ++i) series = series * series;
    return std::ldexp(series.high + series.low, static_cast<int>(k));
}

}  // namespace terravane
