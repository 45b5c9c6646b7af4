#include "numeric/polynomial_fit.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"

namespace terravane {
namespace {

using Values = std::vector<double>;

int FailureOf(const Values& x, const Values& y, int degree)
{
    try {
        FitPolynomial(x, y, degree);
        return 0;
    } catch (const RuntimeError& failure) {
        return failure.Number();
    }
}

void ExpectNear(const Values& numbers, const Values& expected, double allowed)
{
    ASSERT_EQ(numbers.size(), expected.size());
    for (std::size_t k = 0; k < numbers.size(); ++k) EXPECT_NEAR(numbers[k], expected[k], allowed) << "a" << k;
}

// Three points: n = 3, sum x = 3, sum x² = 5, sum y = 7, sum xy = 10. Slope (3·10 - 3·7) / (3·5 - 3²) = 1.5,
// constant (7 - 1.5·3) / 3 = 0.8333.
TEST(FitPolynomial, FindsTheLineOfLeastSquares)
{
    ExpectNear(FitPolynomial(Values{0, 1, 2}, Values{1, 2, 4}, 1), {2.5 / 3, 1.5}, 1e-14);
}

// y = x² - 2 at -2, -1, 0, 1, 2 with 1 added at both ends: 3, -1, -2, -1, 3. By symmetry a1 = 0; with sum x²
// = 10 and sum x⁴ = 34, 5·a0 + 10·a2 = 2 and 10·a0 + 34·a2 = 22, so a2 = 18/14 and a0 = 0.4 - 36/14.
TEST(FitPolynomial, FindsTheParabolaOfLeastSquares)
{
    const Values fit = FitPolynomial(Values{-2, -1, 0, 1, 2}, Values{3, -1, -2, -1, 3}, 2);
    ExpectNear(fit, {0.4 - 36.0 / 14, 0, 18.0 / 14}, 1e-14);
}

TEST(FitPolynomial, GoesThroughAsManyPointsAsItHasCoefficients)
{
    const Values x{1, 2, 3, 4};
    const Values y{2, 9, 28, 65};  // x³ + 1
    ExpectNear(FitPolynomial(x, y, 3), {1, 0, 0, 1}, 1e-9);
}

TEST(FitPolynomial, FindsTheQuarticThatMadeTheReadings)
{
    const Values made{0.5, -1, 2, 0.25, -0.125};
    Values x;
    Values y;
    for (int i = -4; i <= 4; ++i) {
        x.push_back(i * 0.5);
        y.push_back(EvaluatePolynomial(made, i * 0.5));
    }
    ExpectNear(FitPolynomial(x, y, 4), made, 1e-12);
}

/// The second method: orthogonal polynomials in long double, nothing of it shared with the normal equations.
double BestValueAt(const Values& x, const Values& y, int degree, double at)
{
    using Wide = long double;
    const auto count = x.size();
    std::vector<Wide> previous(count, 0), current(count, 1);
    Wide previousAt = 0, currentAt = 1, previousNorm = 1, sum = 0;
    for (int k = 0; k <= degree; ++k) {
        Wide norm = 0, product = 0, moment = 0;
        for (std::size_t i = 0; i < count; ++i) {
            norm += current[i] * current[i];
            product += current[i] * Wide{y[i]};
            moment += Wide{x[i]} * current[i] * current[i];
        }
        sum += product / norm * currentAt;
        const Wide shift = moment / norm;
        const Wide ratio = k == 0 ? 0 : norm / previousNorm;
        for (std::size_t i = 0; i < count; ++i) {
            const Wide next = (Wide{x[i]} - shift) * current[i] - ratio * previous[i];
            previous[i] = std::exchange(current[i], next);
        }
        const Wide nextAt = (Wide{at} - shift) * currentAt - ratio * previousAt;
        previousAt = std::exchange(currentAt, nextAt);
        previousNorm = norm;
    }
    return static_cast<double>(sum);
}

// Water contents near 10 % make the normal equations of a quartic lose about half of the digits: what is left
// agrees to a hundredth of what the sheet shows (two decimals of g/cm³).
TEST(FitPolynomial, AgreesWithOrthogonalPolynomialsOnACompactionCurve)
{
    const Values water{6.12, 8.07, 9.95, 12.11, 14.02, 15.98};  // %
    const Values density{1.83, 1.91, 1.97, 1.95, 1.89, 1.82};   // g/cm³
    for (const int degree : {3, 4}) {
        const Values fit = FitPolynomial(water, density, degree);
        for (double at = 6.2; at < 16; at += 0.7) {
            EXPECT_NEAR(EvaluatePolynomial(fit, at), BestValueAt(water, density, degree, at), 1e-4);
        }
    }
}

TEST(FitPolynomial, FailsWithoutPoints)
{
    EXPECT_EQ(FailureOf({}, {}, 3), error::kOverflow);
}

// All readings at one x: the first elimination leaves exact zeros, and the second pivot's row begins with
// 0/0.
TEST(FitPolynomial, FailsWhenAllReadingsHaveOneX)
{
    EXPECT_EQ(FailureOf({2, 2, 2, 2}, {1, 2, 3, 4}, 3), error::kOverflow);
    EXPECT_EQ(FailureOf({0, 0}, {1, 2}, 1), error::kOverflow);
}

TEST(Inverse, SwapsInTheFirstRowWithAnEntryAtAZeroPivot)
{
    EXPECT_EQ(Inverse({{0, 2}, {4, 0}}), (std::vector<Values>{{0, 0.25}, {0.5, 0}}));
    // A zero pivot whose next row is zero there too: the third row comes up. The inverse of a permutation is
    // its transpose.
    EXPECT_EQ(Inverse({{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}), (std::vector<Values>{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}));
}

// 1/2 of a 2 by 2 matrix with determinant 1·8 - 2·3 = 2: {{8, -2}, {-3, 1}} / 2.
TEST(Inverse, IsThatOfTheHandCalculation)
{
    EXPECT_EQ(Inverse({{1, 2}, {3, 8}}), (std::vector<Values>{{4, -1}, {-1.5, 0.5}}));
}

TEST(EvaluatePolynomial, AddsThePowersFromTheLeft)
{
    EXPECT_EQ(EvaluatePolynomial(Values{1, 2, 3}, 2), 17);
    EXPECT_EQ(EvaluatePolynomial(Values{}, 2), 0);
    // 1e16 + 1 is 1e16 in a double, so the 1 survives only when the large terms have met each other before
    // it.
    EXPECT_EQ(EvaluatePolynomial(Values{1e16, -1e16, 1}, 1), 1);
    EXPECT_EQ(EvaluatePolynomial(Values{1, 1e16, -1e16}, 1), 0);
}

}  // namespace
}  // namespace terravane
