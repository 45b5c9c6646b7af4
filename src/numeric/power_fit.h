/// Least-squares polynomials whose lowest power is chosen, by plain elimination. With 1 for the lowest power the curve
/// goes through the origin. Knows neither soil nor text: numbers in, numbers out, units are the caller's.
#pragma once

#include <span>
#include <vector>

namespace terravane {

/// Coefficients c[0] to c[highest] of the polynomial c[lowest]·x^lowest + ... + c[highest]·x^highest nearest to the
/// points (x[i], y[i]); those below the lowest power are 0.
/// x, y    equally long; nothing is sorted
/// throws  RuntimeError 6 where fewer different x than unknowns leave the system singular (x of 0 does not count where
///         there is no constant term): pivot and right side are both zero then, 0/0, also where rounding would leave
///         them a hair off and the curve would be made of noise
/// Method: normal equations, sums neither centred nor scaled but added up in the order of the points, powers by
///         repeated multiplication; solved by SolveInOrder.
std::vector<double> FitPowers(std::span<const double> x, std::span<const double> y, int lowest, int highest);

/// The share of the scatter of y that the polynomial explains: (St - Sr) / St, St about the mean, Sr about the curve.
/// 0 where y does not scatter.
double Determination(std::span<const double> x, std::span<const double> y, std::span<const double> coefficients);

/// The solution of a square system by elimination in the order of its rows, never exchanging two. Error 11 or 6 at a
/// pivot of exactly zero.
std::vector<double> SolveInOrder(std::vector<std::vector<double>> matrix, std::vector<double> rightSide);

}  // namespace terravane
