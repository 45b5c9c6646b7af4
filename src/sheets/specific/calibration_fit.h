/// The calibration curve of a pycnometer flask: its mass filled with water, over the water's temperature. Three models,
/// fitted by least squares.
#pragma once

#include <string>
#include <vector>

namespace terravane {

/// °C and g, in the order typed.
struct CalibrationReadings {
    std::vector<double> temperature;
    std::vector<double> mass;
};

enum class CalibrationModel { Exponential, Linear, Polynomial };

/// y = a·e^(bx), y = a + bx or y = a + bx + cx².
struct CalibrationCurve {
    CalibrationModel model = CalibrationModel::Polynomial;
    double a = 0, b = 0, c = 0;
    double determination = 0;  // R²

    /// Mass in g at a temperature in °C; error 6 beyond the range of a double.
    double At(double temperature) const;
    /// " y = 658.12 + (-0.081234x)".
    std::string Equation() const;
};

/// The curve of a model nearest to the readings, in mass; that of the exponential model is nearest in the mass's
/// logarithm.
/// throws  RuntimeError 5 for the logarithm of a negative mass; 11 or 6, as the quotient comes, for readings that no
///         single curve of the model is nearest to, and for masses without scatter, whose determination is 0/0
/// Method: regression in double precision for the exponential and linear model. The normal equations of the polynomial
///         stand in single precision and are solved by elimination without exchange of rows: with masses near 600 g
///         the rounding shows in the coefficients, and it is the method's.
CalibrationCurve FitCalibration(CalibrationModel model, const CalibrationReadings& readings);

}  // namespace terravane
