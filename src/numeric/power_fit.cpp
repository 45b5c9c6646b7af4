#include "numeric/power_fit.h"

#include <cstddef>
#include <set>
#include <utility>

#include "numeric/polynomial_fit.h"
#include "runtime/numbers.h"

namespace terravane {
namespace {

using Row = std::vector<double>;
using Matrix = std::vector<Row>;

/// Σ x^k and Σ y·x^k, k from 0 to twice the highest power.
struct PowerSums {
    Row powers, products;
};

PowerSums PowerSumsOf(std::span<const double> x, std::span<const double> y, std::size_t highest)
{
    PowerSums sums{Row(2 * highest + 1), Row(2 * highest + 1)};
    for (std::size_t point = 0; point < x.size(); ++point) {
        double power = 1;
        for (std::size_t k = 0; k < sums.powers.size(); ++k, power *= x[point]) {
            sums.powers[k] += power;
            sums.products[k] += y[point] * power;
        }
    }
    return sums;
}

/// A point at x = 0 says nothing about a polynomial that goes through the origin.
std::size_t CountDifferent(std::span<const double> x, bool zeroCounts)
{
    std::set<double> different(x.begin(), x.end());
    if (!zeroCounts) different.erase(0);
    return different.size();
}

}  // namespace

std::vector<double> SolveInOrder(Matrix matrix, Row rightSide)
{
    const std::size_t order = rightSide.size();
    for (std::size_t pivot = 0; pivot < order; ++pivot) {
        for (std::size_t row = pivot + 1; row < order; ++row) {
            const double factor = Divide(matrix[row][pivot], matrix[pivot][pivot]);
            for (std::size_t k = pivot; k < order; ++k) matrix[row][k] -= factor * matrix[pivot][k];
            rightSide[row] -= factor * rightSide[pivot];
        }
    }
    Row solution(order);
    for (std::size_t row = order; row-- > 0;) {
        double rest = rightSide[row];
        for (std::size_t k = row + 1; k < order; ++k) rest -= matrix[row][k] * solution[k];
        solution[row] = Divide(rest, matrix[row][row]);
    }
    return solution;
}

std::vector<double> FitPowers(std::span<const double> x, std::span<const double> y, int lowest, int highest)
{
    const auto first = static_cast<std::size_t>(lowest), last = static_cast<std::size_t>(highest);
    const std::size_t unknowns = last - first + 1;
    if (CountDifferent(x, lowest == 0) < unknowns) Divide(0, 0);
    const PowerSums sums = PowerSumsOf(x, y, last);
    Matrix matrix(unknowns, Row(unknowns));
    Row rightSide(unknowns);
    for (std::size_t row = 0; row < unknowns; ++row) {
        for (std::size_t column = 0; column < unknowns; ++column)
            matrix[row][column] = sums.powers[row + column + 2 * first];
        rightSide[row] = sums.products[row + first];
    }
    Row coefficients = SolveInOrder(std::move(matrix), std::move(rightSide));
    coefficients.insert(coefficients.begin(), first, 0.0);
    return coefficients;
}

double Determination(std::span<const double> x, std::span<const double> y, std::span<const double> coefficients)
{
    double sum = 0;
    for (const double value : y) sum += value;
    const double mean = y.empty() ? 0 : sum / static_cast<double>(y.size());
    double total = 0, residual = 0;
    for (std::size_t point = 0; point < y.size(); ++point) {
        const double fromMean = y[point] - mean;
        const double fromCurve = y[point] - EvaluatePolynomial(coefficients, x[point]);
        total += fromMean * fromMean;
        residual += fromCurve * fromCurve;
    }
    return total == 0 ? 0 : (total - residual) / total;
}

}  // namespace terravane
