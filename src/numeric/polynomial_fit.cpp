#include "numeric/polynomial_fit.h"

#include <cstddef>
#include <utility>

#include "runtime/numbers.h"

namespace terravane {
namespace {

using Row = std::vector<double>;
using Matrix = std::vector<Row>;

/// Σ x^k and Σ x^k·y, k from 0.
struct Sums {
    Row powers;
    Row products;
};

Sums SumsOf(std::span<const double> x, std::span<const double> y, std::size_t degree)
{
    Sums sums{Row(2 * degree + 1), Row(degree + 1)};
    for (std::size_t point = 0; point < x.size(); ++point) {
        double power = 1;
        for (std::size_t k = 0; k <= 2 * degree; ++k, power *= x[point]) {
            sums.powers[k] += power;
            if (k <= degree) sums.products[k] += power * y[point];
        }
    }
    return sums;
}

Matrix NormalMatrix(const Sums& sums)
{
    const std::size_t order = sums.products.size();
    Matrix matrix(order, Row(order));
    for (std::size_t row = 0; row < order; ++row) {
        for (std::size_t column = 0; column < order; ++column) matrix[row][column] = sums.powers[row + column];
    }
    return matrix;
}

void AppendIdentity(Matrix& matrix)
{
    const std::size_t order = matrix.size();
    for (std::size_t row = 0; row < order; ++row) {
        matrix[row].resize(2 * order);
        matrix[row][order + row] = 1;
    }
}

/// Brings up the first row below with an entry in the pivot's column; where there is none the zero pivot
/// stays, and the division by it fails.
void SwapZeroPivot(Matrix& matrix, std::size_t pivot)
{
    if (matrix[pivot][pivot] != 0) return;
    for (std::size_t row = pivot + 1; row < matrix.size(); ++row) {
        if (matrix[row][pivot] == 0) continue;
        std::swap(matrix[row], matrix[pivot]);
        return;
    }
}

void DivideRow(Row& row, double divisor)
{
    for (double& entry : row) entry = Divide(entry, divisor);
}

void Subtract(Row& from, const Row& row, double factor)
{
    for (std::size_t column = 0; column < from.size(); ++column) from[column] -= factor * row[column];
}

}  // namespace

std::vector<std::vector<double>> Inverse(std::vector<std::vector<double>> matrix)
{
    const std::size_t order = matrix.size();
    AppendIdentity(matrix);
    for (std::size_t pivot = 0; pivot < order; ++pivot) {
        SwapZeroPivot(matrix, pivot);
        DivideRow(matrix[pivot], matrix[pivot][pivot]);
        for (std::size_t row = 0; row < order; ++row) {
            if (row != pivot) Subtract(matrix[row], matrix[pivot], matrix[row][pivot]);
        }
    }
    for (Row& row : matrix) row.erase(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(order));
    return matrix;
}

std::vector<double> FitPolynomial(std::span<const double> x, std::span<const double> y, int degree)
{
    const Sums sums = SumsOf(x, y, static_cast<std::size_t>(degree));
    const Matrix inverse = Inverse(NormalMatrix(sums));
    std::vector<double> coefficients;
    for (const Row& row : inverse) {
        double coefficient = 0;
        for (std::size_t k = 0; k < row.size(); ++k) coefficient += row[k] * sums.products[k];
        coefficients.push_back(coefficient);
    }
    return coefficients;
}

double EvaluatePolynomial(std::span<const double> coefficients, double x)
{
    double sum = 0;
    double power = 1;
    for (const double coefficient : coefficients) {
        sum += coefficient * power;
        power *= x;
    }
    return sum;
}

}  // namespace terravane
