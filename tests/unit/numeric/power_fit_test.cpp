// Least-squares polynomials by plain elimination, against a second method that shares no step with it: an orthogonal
// triangulation by Householder reflections, in long double.
#include "numeric/power_fit.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "numeric/polynomial_fit.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

using Long = long double;

/// Least squares of columns × c = y without normal equations: reflections carry the columns to a triangle.
std::vector<Long> SolveByReflections(std::vector<std::vector<Long>> columns, std::vector<Long> y)
{
    const std::size_t rows = y.size(), order = columns.size();
    for (std::size_t k = 0; k < order; ++k) {
        Long norm = 0;
        for (std::size_t i = k; i < rows; ++i) norm += columns[k][i] * columns[k][i];
        norm = std::sqrt(norm);
        std::vector<Long> mirror(columns[k].begin() + static_cast<std::ptrdiff_t>(k), columns[k].end());
        mirror[0] += mirror[0] < 0 ? -norm : norm;
        Long length = 0;
        for (const Long v : mirror) length += v * v;
        const auto reflect = [&](std::vector<Long>& vector) {
            Long along = 0;
            for (std::size_t i = k; i < rows; ++i) along += mirror[i - k] * vector[i];
            for (std::size_t i = k; i < rows; ++i) vector[i] -= 2 * along / length * mirror[i - k];
        };
        for (std::size_t c = k; c < order; ++c) reflect(columns[c]);
        reflect(y);
    }
    std::vector<Long> solution(order);
    for (std::size_t k = order; k-- > 0;) {
        Long rest = y[k];
        for (std::size_t c = k + 1; c < order; ++c) rest -= columns[c][k] * solution[c];
        solution[k] = rest / columns[k][k];
    }
    return solution;
}

/// The polynomial's value at `at` by the second method.
Long ValueByReflections(const std::vector<double>& x, const std::vector<double>& y, int lowest, int highest, double at)
{
    std::vector<std::vector<Long>> columns;
    for (int power = lowest; power <= highest; ++power) {
        auto& column = columns.emplace_back();
        for (const double each : x) column.push_back(std::pow(static_cast<Long>(each), static_cast<Long>(power)));
    }
    const auto coefficients = SolveByReflections(columns, {y.begin(), y.end()});
    Long value = 0;
    for (std::size_t k = 0; k < coefficients.size(); ++k)
        value += coefficients[k] * std::pow(static_cast<Long>(at), static_cast<Long>(lowest + static_cast<int>(k)));
    return value;
}

int ErrorOfFit(const std::vector<double>& x, const std::vector<double>& y, int lowest, int highest)
{
    try {
        FitPowers(x, y, lowest, highest);
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

/// Penetrations in inches and stresses in lb/in² of three published tests.
const std::vector<double> kDepths{0,      0.0197, 0.0394, 0.0591, 0.0787, 0.0984,
                                  0.1181, 0.1575, 0.1969, 0.2953, 0.3937, 0.4921};
const std::vector<double> kSandy{0, 33.30, 48.63, 57.30, 64.27, 70.93, 75.93, 84.27, 91.27, 102.90, 109.90, 116.90};
const std::vector<double> kConcave{0, 8.33, 20.00, 33.30, 55.30, 73.27, 83.43, 93.93, 102.73, 112.90, 118.57, 127.40};

// y = 2x - 3x² + x⁵ on six points: no scatter, so the polynomial itself comes back. 1, 2, 3, 4, 5, 6 give 0, 24, 222,
// 984, 3060, 7680.
TEST(FitPowers, FindsThePolynomialThatThePointsLieOn)
{
    const std::vector<double> x{1, 2, 3, 4, 5, 6}, y{0, 24, 222, 984, 3060, 7680};
    const auto c = FitPowers(x, y, 1, 5);
    ASSERT_EQ(c.size(), 6U);
    EXPECT_EQ(c[0], 0);
    const std::vector<double> wanted{0, 2, -3, 0, 0, 1};
    for (std::size_t k = 1; k < 6; ++k) EXPECT_NEAR(c[k], wanted[k], 1e-6) << "power " << k;
}

// y = 1, 3, 2 at x = 1, 2, 3: c1 = Σxy/Σx² = 13/14 for a line through the origin.
TEST(FitPowers, GoesThroughTheOriginWithoutAConstantTerm)
{
    const auto c = FitPowers(std::vector<double>{1, 2, 3}, std::vector<double>{1, 3, 2}, 1, 1);
    EXPECT_EQ(c, (std::vector<double>{0, 13.0 / 14}));
}

TEST(FitPowers, AFirstReadingAboveZeroDoesNotLiftTheCurve)
{
    auto lifted = kSandy;
    lifted[0] = 40;
    EXPECT_EQ(FitPowers(kDepths, lifted, 1, 5), FitPowers(kDepths, kSandy, 1, 5));
    EXPECT_EQ(EvaluatePolynomial(FitPowers(kDepths, lifted, 1, 5), 0), 0);
}

// How far plain elimination in doubles can be trusted: a ratio shows a tenth of a percent, 1 lb/in² at 0.1 in. On the
// published tests the methods differ by 1.0e-10 lb/in² at most, ten digits below what is shown.
TEST(FitPowers, AgreesWithAnOrthogonalMethodOnPublishedTests)
{
    for (const auto& stress : {kSandy, kConcave}) {
        const auto c = FitPowers(kDepths, stress, 1, 5);
        for (double at = 0.01; at < 0.5; at += 0.01) {
            const Long second = ValueByReflections(kDepths, stress, 1, 5, at);
            EXPECT_NEAR(EvaluatePolynomial(c, at), static_cast<double>(second), 1e-9) << "at " << at << " in";
        }
    }
}

// The nine penetrations of the sheet's own intervals, to 0.2 in: they differ by 6.4e-11 lb/in² at most.
TEST(FitPowers, AgreesWithAnOrthogonalMethodOnTheUsualIntervals)
{
    std::vector<double> x, y;
    for (int r = 0; r < 9; ++r) {
        x.push_back(0.025 * r);
        y.push_back(std::round(90000 * (1 - std::exp(-12 * x.back()))) / 100);
    }
    const auto c = FitPowers(x, y, 1, 5);
    for (const double at : {0.001, 0.05, 0.1, 0.15, 0.2}) {
        EXPECT_NEAR(EvaluatePolynomial(c, at), static_cast<double>(ValueByReflections(x, y, 1, 5, at)), 1e-9);
    }
}

// The sums over densities are nearly dependent: 8e-11 percent between the methods for three molds as they are usually
// compacted.
TEST(FitPowers, ParabolaOfThreeDensitiesGoesThroughThem)
{
    const std::vector<double> x{1.75, 1.83, 1.92}, y{5.4, 5.9, 7.0};
    const auto c = FitPowers(x, y, 0, 2);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(EvaluatePolynomial(c, x[i]), y[i], 1e-9);
    EXPECT_NEAR(EvaluatePolynomial(c, 1.8525), static_cast<double>(ValueByReflections(x, y, 0, 2, 1.8525)), 1e-9);
}

// The closest densities that a sheet of two decimals can hold, and a reading seven times their distance away: 2.3e-5
// percent, still three digits below the tenth that is shown.
TEST(FitPowers, DensitiesAHundredthApartStillGiveTheTenthOfAPercent)
{
    const std::vector<double> x{1.90, 1.91, 1.92}, y{5.4, 5.9, 7.0};
    const auto c = FitPowers(x, y, 0, 2);
    EXPECT_NEAR(EvaluatePolynomial(c, 1.8525), static_cast<double>(ValueByReflections(x, y, 0, 2, 1.8525)), 1e-4);
}

TEST(FitPowers, NoReadingsAtAllGiveNoCurve)
{
    const auto c = FitPowers(kDepths, std::vector<double>(12, 0.0), 1, 5);
    EXPECT_EQ(c, std::vector<double>(6, 0.0));
}

TEST(FitPowers, TooFewDifferentPointsAreZeroByZero)
{
    EXPECT_EQ(ErrorOfFit(std::vector<double>(9, 0.0), std::vector<double>(9, 0.0), 1, 5), error::kOverflow);
    EXPECT_EQ(ErrorOfFit({0, 0.025, 0.05, 0.075, 0.1}, {0, 1, 2, 3, 4}, 1, 5), error::kOverflow)
        << "The point at 0 says nothing about a curve through the origin.";
    EXPECT_EQ(ErrorOfFit({1.80, 1.80, 1.90}, {5, 6, 7}, 0, 2), error::kOverflow)
        << "Two densities make a straight line, not a parabola, whatever rounding leaves of the last pivot.";
    EXPECT_EQ(ErrorOfFit({}, {}, 0, 2), error::kOverflow);
    EXPECT_EQ(ErrorOfFit({0, 0.025, 0.05, 0.075, 0.1, 0.125}, {0, 1, 2, 3, 4, 5}, 1, 5), 0);
}

// Swapping the rows would solve it; the method does not.
TEST(SolveInOrder, NeverExchangesRows)
{
    EXPECT_THROW(SolveInOrder({{0, 1}, {1, 0}}, {2, 3}), RuntimeError);
    EXPECT_EQ(SolveInOrder({{2, 1}, {4, 5}}, {4, 14}), (std::vector<double>{1, 2}));
}

// The line through the origin above, 13/14 x: residuals 1/14, 16/14, -11/14; Sr = 378/196, St = 2.
TEST(Determination, IsTheShareOfTheScatterThatIsExplained)
{
    const std::vector<double> x{1, 2, 3}, y{1, 3, 2}, c{0, 13.0 / 14};
    EXPECT_NEAR(Determination(x, y, c), (2 - 378.0 / 196) / 2, 1e-15);
    EXPECT_NEAR(Determination(kDepths, kSandy, FitPowers(kDepths, kSandy, 1, 5)), 0.99, 0.01);
}

TEST(Determination, WithoutScatterIsZero)
{
    EXPECT_EQ(Determination(kDepths, std::vector<double>(12, 0.0), std::vector<double>(6, 0.0)), 0);
    EXPECT_EQ(Determination({}, {}, std::vector<double>(6, 0.0)), 0);
}

}  // namespace
}  // namespace terravane
