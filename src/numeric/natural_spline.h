/// Natural cubic splines through points in the order typed. Knows no grid and no mask: how a stage is rounded
/// is an argument, and who shows the stages listens to their writes.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace terravane {

/// What one point's row holds, each number as rounded when written. In the unit of x: before, after and the
/// diagonal; right side in (unit of y) / (unit of x); moment, the second derivative, in (unit of y) / (unit
/// of x)². Of the first row only after and moment are ever written, of the last row moment alone; the rest
/// reads 0.
struct SplineRow {
    double before = 0;     // interval to the point before, the sub-diagonal
    double diagonal = 0;   // then its eliminated form
    double after = 0;      // interval to the next point
    double rightSide = 0;  // then its eliminated form
    double moment = 0;
};

enum class SplineColumn { kBefore, kDiagonal, kAfter, kRightSide, kMoment };

/// Rounds a stage's number, as the text of a cell does. Every write rounds, every later step reads the
/// rounded number.
using StageRounding = double (*)(double);

/// Told of each number right after it is written, in the order of the method, points from 0; a failure
/// leaves what it was told of.
using SplineListener = std::function<void(std::size_t point, SplineColumn column, double value)>;

/// One row a point, with the second derivatives that make the cubics between the points a natural spline.
/// x, y    equally long, rising or falling, in the order typed; nothing is sorted
/// throws  RuntimeError 9 for fewer than two points; 11 or 6 at an interval of zero, as its quotient comes;
///         6 for two points: the back substitution divides two numbers that no step has written, 0/0
std::vector<SplineRow> NaturalSpline(std::span<const double> x, std::span<const double> y, StageRounding rounded,
                                     const SplineListener& written = {});

/// The cubic of one interval at a place, which may lie outside of the interval.
/// rows      as NaturalSpline made them of x and y
/// interval  from 0: the one between points interval and interval + 1
double SplineValue(std::span<const SplineRow> rows, std::span<const double> x, std::span<const double> y,
                   std::size_t interval, double at);

}  // namespace terravane
