#include "numeric/natural_spline.h"

#include <cmath>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

using Values = std::vector<double>;

double AsItIs(double value)
{
    return value;
}
double SevenDecimals(double value)
{
    return RoundedToPlaces(value, 7);
}
double WholeNumber(double value)
{
    return RoundedToPlaces(value, 0);
}

int FailureOf(const Values& x, const Values& y)
{
    try {
        NaturalSpline(x, y, AsItIs);
        return 0;
    } catch (const RuntimeError& failure) {
        return failure.Number();
    }
}

// Intervals 1 and 2; diagonal 2·(4 - 1) = 6; right side 6·((2 - 3)/2 - (3 - 1)/1) = -15; second derivative
// -2.5. At 1.5: (0.5²/1 - 1)·0.5·(-2.5)/6 + 0.5·1 + 0.5·3 = 2.15625. At 3: (1/2 - 2)·1·(-2.5)/6 + 3/2 + 2/2
// = 3.125.
TEST(NaturalSpline, OfThreePointsIsThatOfTheHandCalculation)
{
    const Values x{1, 2, 4};
    const Values y{1, 3, 2};
    const auto rows = NaturalSpline(x, y, SevenDecimals);
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].after, 1);
    EXPECT_EQ(rows[1].before, 1);
    EXPECT_EQ(rows[1].diagonal, 6);
    EXPECT_EQ(rows[1].after, 2);
    EXPECT_EQ(rows[1].rightSide, -15);
    EXPECT_EQ(rows[0].moment, 0);
    EXPECT_EQ(rows[1].moment, -2.5);
    EXPECT_EQ(rows[2].moment, 0);
    EXPECT_EQ(SplineValue(rows, x, y, 0, 1.5), 2.15625);
    EXPECT_EQ(SplineValue(rows, x, y, 1, 3), 3.125);
}

// Points (1,0) (2,1) (4,0) (5,1): diagonals 6 and 6, right sides -9 and 9, interval 2 between. Elimination:
// 6 - 2²/6 = 5.3333 and 9 - 2·(-9)/6 = 12. In whole numbers 5.3333 is 5, then 12/5 = 2.4 is 2 and
// (-9 - 2·2)/6 = -2.17 is -2; without rounding the two are 2.25 and -2.25.
TEST(NaturalSpline, ReadsBackTheRoundingOfEachStage)
{
    const Values x{1, 2, 4, 5};
    const Values y{0, 1, 0, 1};
    const auto whole = NaturalSpline(x, y, WholeNumber);
    EXPECT_EQ(whole[2].diagonal, 5);
    EXPECT_EQ(whole[2].rightSide, 12);
    EXPECT_EQ(whole[2].moment, 2);
    EXPECT_EQ(whole[1].moment, -2);

    const auto seven = NaturalSpline(x, y, SevenDecimals);
    EXPECT_EQ(seven[2].diagonal, 5.3333333);
    EXPECT_EQ(seven[2].moment, 2.25);
    EXPECT_EQ(seven[1].moment, -2.25);
}

TEST(NaturalSpline, TellsOfEachWriteInTheOrderOfTheMethod)
{
    std::string order;
    NaturalSpline(Values{1, 2, 4, 5}, Values{0, 1, 0, 1}, SevenDecimals,
                  [&](std::size_t point, SplineColumn column, double) {
                      order += std::to_string(point + 1) + "," + std::to_string(static_cast<int>(column)) + " ";
                  });
    EXPECT_EQ(order, "1,2 2,0 2,1 2,2 2,3 3,0 3,1 3,2 3,3 3,1 3,3 1,4 4,4 3,4 2,4 ");
}

/// The second method: the full system in long double by elimination with pivots, second derivatives out.
Values SecondDerivatives(const Values& x, const Values& y)
{
    using Wide = long double;
    const std::size_t n = x.size();
    std::vector<std::vector<Wide>> system(n, std::vector<Wide>(n + 1));
    system[0][0] = system[n - 1][n - 1] = 1;
    for (std::size_t i = 1; i + 1 < n; ++i) {
        const Wide before = Wide{x[i]} - Wide{x[i - 1]};
        const Wide after = Wide{x[i + 1]} - Wide{x[i]};
        system[i][i - 1] = before / 6;
        system[i][i] = (before + after) / 3;
        system[i][i + 1] = after / 6;
        system[i][n] = (Wide{y[i + 1]} - Wide{y[i]}) / after - (Wide{y[i]} - Wide{y[i - 1]}) / before;
    }
    for (std::size_t p = 0; p < n; ++p) {
        std::size_t best = p;
        for (std::size_t r = p; r < n; ++r) best = std::abs(system[r][p]) > std::abs(system[best][p]) ? r : best;
        std::swap(system[p], system[best]);
        for (std::size_t r = 0; r < n; ++r) {
            const Wide factor = r == p ? 0 : system[r][p] / system[p][p];
            for (std::size_t c = p; c <= n; ++c) system[r][c] -= factor * system[p][c];
        }
    }
    Values moments;
    for (std::size_t i = 0; i < n; ++i) moments.push_back(static_cast<double>(system[i][n] / system[i][i]));
    return moments;
}

const Values kWater{6.12, 8.07, 9.95, 12.11, 14.02, 15.98};  // %
const Values kDensity{1.83, 1.91, 1.97, 1.95, 1.89, 1.82};   // g/cm³

TEST(NaturalSpline, AgreesWithAFullSystemSolvedInHigherPrecision)
{
    const Values expected = SecondDerivatives(kWater, kDensity);
    const auto exact = NaturalSpline(kWater, kDensity, AsItIs);
    const auto rounded = NaturalSpline(kWater, kDensity, SevenDecimals);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(exact[i].moment, expected[i], 1e-14);
        EXPECT_NEAR(rounded[i].moment, expected[i], 2e-7) << "each of the stages is off by 5e-8 at most";
    }
}

TEST(NaturalSpline, AgreesOnReadingsThatFall)
{
    const Values water(kWater.rbegin(), kWater.rend());
    const Values density(kDensity.rbegin(), kDensity.rend());
    const Values expected = SecondDerivatives(water, density);
    const auto rows = NaturalSpline(water, density, AsItIs);
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_NEAR(rows[i].moment, expected[i], 1e-14);
}

TEST(NaturalSpline, HoldsWhatItsCellsShow)
{
    for (const SplineRow& row : NaturalSpline(kWater, kDensity, SevenDecimals)) {
        for (const double value : {row.before, row.diagonal, row.after, row.rightSide, row.moment}) {
            EXPECT_EQ(Val(Format(value, "##0.0#####0")), value);
        }
    }
}

TEST(SplineValue, GoesThroughThePointsAndBendsWithoutAKink)
{
    const auto rows = NaturalSpline(kWater, kDensity, AsItIs);
    constexpr double kStep = 1e-4;
    for (std::size_t i = 0; i + 1 < kWater.size(); ++i) {
        EXPECT_NEAR(SplineValue(rows, kWater, kDensity, i, kWater[i]), kDensity[i], 1e-14);
        EXPECT_NEAR(SplineValue(rows, kWater, kDensity, i, kWater[i + 1]), kDensity[i + 1], 1e-14);
        if (i == 0) continue;
        const double left = SplineValue(rows, kWater, kDensity, i - 1, kWater[i] + kStep) -
                            SplineValue(rows, kWater, kDensity, i - 1, kWater[i] - kStep);
        const double right = SplineValue(rows, kWater, kDensity, i, kWater[i] + kStep) -
                             SplineValue(rows, kWater, kDensity, i, kWater[i] - kStep);
        EXPECT_NEAR(left / (2 * kStep), right / (2 * kStep), 1e-9) << "slope at point " << i + 1;
    }
}

TEST(SplineValue, GoesOnBeyondAnIntervalByTheSameCubic)
{
    // The hand calculation above, at 4.5, a = -0.5, b = 2.5, h = 2:
    // (0.125 - 2)·(-0.5)·(-2.5)/6 + (-0.5)·3/2 + 2.5·2/2 = -0.390625 - 0.75 + 2.5 = 1.359375.
    const Values x{1, 2, 4};
    const Values y{1, 3, 2};
    EXPECT_EQ(SplineValue(NaturalSpline(x, y, SevenDecimals), x, y, 1, 4.5), 1.359375);
}

TEST(NaturalSpline, FailsWithFewerThanTwoPoints)
{
    EXPECT_EQ(FailureOf({}, {}), error::kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf({1}, {1}), error::kSubscriptOutOfRange);
}

TEST(NaturalSpline, FailsWithTwoPointsAtTheBackSubstitution)
{
    EXPECT_EQ(FailureOf({1, 2}, {1, 2}), error::kOverflow);
}

TEST(NaturalSpline, FailsAtAnIntervalOfZero)
{
    EXPECT_EQ(FailureOf({1, 2, 2}, {1, 2, 3}), error::kDivisionByZero);
    EXPECT_EQ(FailureOf({2, 2, 3}, {1, 2, 3}), error::kDivisionByZero);
    EXPECT_EQ(FailureOf({1, 2, 2}, {1, 3, 3}), error::kOverflow) << "the same point twice";
}

TEST(NaturalSpline, LeavesWhatWasWrittenBeforeAFailure)
{
    int writes = 0;
    const auto count = [&](std::size_t, SplineColumn, double) { ++writes; };
    EXPECT_THROW(NaturalSpline(Values{1, 2, 2}, Values{1, 2, 3}, SevenDecimals, count), RuntimeError);
    EXPECT_EQ(writes, 4) << "the first interval, then three columns of the second point";
}

}  // namespace
}  // namespace terravane
