#include "sheets/specific/calibration_fit.h"

#include <array>
#include <cmath>

#include "laboratory/masks.h"
#include "numeric/straight_line.h"
#include "runtime/elementary.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr std::string_view kSixDecimals = "#0.000000";

double Exp(double exponent)
{
    const double value = Exponential(exponent);
    if (!std::isfinite(value)) throw RuntimeError(error::kOverflow);
    return value;
}

double SquareRoot(double value)
{
    if (value < 0) throw RuntimeError(error::kInvalidProcedureCall);
    return std::sqrt(value);
}

/// (St - Sr) / St: the share of the masses' scatter that the curve explains.
double DeterminationOf(const CalibrationCurve& curve, const CalibrationReadings& readings)
{
    const auto& mass = readings.mass;
    double mean = 0, total = 0, rest = 0;
    for (const double y : mass) mean += y;
    mean = Divide(mean, static_cast<double>(mass.size()));
    for (std::size_t i = 0; i < mass.size(); ++i) {
        const double off = mass[i] - mean, error = mass[i] - curve.At(readings.temperature[i]);
        total += off * off;
        rest += error * error;
    }
    return Divide(total - rest, total);
}

/// The square of the coefficient of correlation.
double SquaredCorrelation(const CalibrationReadings& readings)
{
    double x = 0, y = 0, xy = 0, xx = 0, yy = 0;
    for (std::size_t i = 0; i < readings.mass.size(); ++i) {
        const double atX = readings.temperature[i], atY = readings.mass[i];
        x += atX;
        y += atY;
        xy += atX * atY;
        xx += atX * atX;
        yy += atY * atY;
    }
    const auto n = static_cast<double>(readings.mass.size());
    const double r = Divide(n * xy - x * y, SquareRoot(n * xx - x * x) * SquareRoot(n * yy - y * y));
    return r * r;
}

CalibrationCurve FitExponential(const CalibrationReadings& readings)
{
    std::vector<double> logarithms;
    for (const double mass : readings.mass) logarithms.push_back(Log(mass));
    const auto line = FitStraightLine<double>(readings.temperature, logarithms);
    CalibrationCurve curve{CalibrationModel::Exponential, Exp(line.intercept), line.slope};
    curve.determination = DeterminationOf(curve, readings);
    return curve;
}

CalibrationCurve FitLinear(const CalibrationReadings& readings)
{
    const auto line = FitStraightLine<double>(readings.temperature, readings.mass);
    return {CalibrationModel::Linear, line.intercept, line.slope, 0, SquaredCorrelation(readings)};
}

/// Three equations in a, b, c, the right side in the fourth cell.
using NormalEquations = std::array<std::array<float, 4>, 3>;

NormalEquations NormalEquationsOf(const CalibrationReadings& readings)
{
    NormalEquations cells{};
    for (std::size_t i = 0; i < readings.mass.size(); ++i) {
        const double x = readings.temperature[i], y = readings.mass[i];
        const std::array<double, 5> powers{1, x, x * x, x * x * x, x * x * x * x};
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column)
                cells[row][column] = ToSingle(cells[row][column] + powers[row + column]);
            cells[row][3] = ToSingle(cells[row][3] + powers[row] * y);
        }
    }
    return cells;
}

/// Takes so much of one row from another that the cell below the pivot goes.
void Eliminate(NormalEquations& cells, std::size_t from, std::size_t pivot)
{
    const double factor = Divide(cells[from][pivot], cells[pivot][pivot]);
    for (std::size_t column = pivot; column < 4; ++column)
        cells[from][column] = ToSingle(cells[from][column] - factor * cells[pivot][column]);
}

CalibrationCurve FitQuadratic(const CalibrationReadings& readings)
{
    NormalEquations cells = NormalEquationsOf(readings);
    Eliminate(cells, 1, 0);
    Eliminate(cells, 2, 0);
    Eliminate(cells, 2, 1);
    const auto cell = [&](std::size_t row, std::size_t column) { return static_cast<double>(cells[row][column]); };

    CalibrationCurve curve{CalibrationModel::Polynomial};
    curve.c = Divide(cell(2, 3), cell(2, 2));
    curve.b = Divide(cell(1, 3) - cell(1, 2) * curve.c, cell(1, 1));
    curve.a = Divide(cell(0, 3) - cell(0, 1) * curve.b - cell(0, 2) * curve.c, cell(0, 0));
    curve.determination = DeterminationOf(curve, readings);
    return curve;
}

}  // namespace

double CalibrationCurve::At(double temperature) const
{
    if (model == CalibrationModel::Exponential) return a * Exp(b * temperature);
    return a + b * temperature + c * temperature * temperature;
}

std::string CalibrationCurve::Equation() const
{
    const std::string start = " y = " + Format(a, kTwoDecimals);
    const std::string factor = Format(b, kSixDecimals);
    if (model == CalibrationModel::Exponential) return start + "e^(" + factor + "x)";
    std::string line = start + " + (" + factor + "x)";
    if (model == CalibrationModel::Linear) return line;
    return line + " + (" + Format(c, kSixDecimals) + "x^2)";
}

CalibrationCurve FitCalibration(CalibrationModel model, const CalibrationReadings& readings)
{
    switch (model) {
        case CalibrationModel::Exponential:
            return FitExponential(readings);
        case CalibrationModel::Linear:
            return FitLinear(readings);
        case CalibrationModel::Polynomial:
            break;
    }
    return FitQuadratic(readings);
}

}  // namespace terravane
