/// Least-squares polynomials. Knows neither soil nor text: numbers in, numbers out, units are the caller's.
#pragma once

#include <span>
#include <vector>

namespace terravane {

/// Coefficients a[0] to a[degree] of the polynomial nearest to the n points (x[i], y[i]).
/// x, y    equally long, in the order typed; nothing is sorted; at least degree + 1 different x
/// returns degree + 1 numbers, a[k] in (unit of y) / (unit of x)^k
/// throws  RuntimeError 6 at a pivot of exactly zero: its row is divided from the left, where the steps
/// before
///         have left zeros, and 0/0 comes first. Where rounding hides the zero the numbers mean nothing: the
///         caller takes the degree from the count of points, not from this failure.
/// Method: normal equations, Gauss-Jordan, rows swapped only at a zero pivot, sums neither centred nor scaled
///         but added up in the order of the points, powers by repeated multiplication.
std::vector<double> FitPolynomial(std::span<const double> x, std::span<const double> y, int degree);

/// a[0] + a[1]·x + a[2]·x² + ..., added from the left with each power a product of x: the order in which the
/// method writes it, and so the digits that its hand calculation gives. A nested form would
/// differ in the last of them.
double EvaluatePolynomial(std::span<const double> coefficients, double x);

/// The inverse of a square matrix of full rows by Gauss-Jordan, as FitPolynomial uses it.
std::vector<std::vector<double>> Inverse(std::vector<std::vector<double>> matrix);

}  // namespace terravane
