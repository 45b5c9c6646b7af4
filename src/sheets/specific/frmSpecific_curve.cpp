// Plot Graph Calibration: the readings, the curve of the chosen model through them and its text, drawn into the sheet's
// two picture boxes from where the report copies it.
#include <algorithm>
#include <cmath>

#include "drawing/scopes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "sheets/pattern/plot.h"
#include "sheets/specific/frmSpecific.h"

namespace terravane {

namespace {

constexpr double kTurnedTitleLeft = 50;  // left of the widest mass label
constexpr double kFrameRoom = 120;       // from the frame's right edge to the last label
constexpr double kCurveStep = 0.1;       // °C
constexpr double kWantedSteps = 7;       // of an axis
constexpr int kMostTicks = 20;
constexpr double kFinestStep = 0.01;  // the labels' last place
constexpr double kEndRoom = 0.08;     // of the readings' range, at each end of an axis
constexpr std::string_view kMassMask = "000.00";
constexpr std::string_view kTemperatureMask = "#00.00";
constexpr std::string_view kDeterminationMask = "#0.0000";

constexpr AxisTitles kAxes{"Temperature (Degree Celsius)", "Weight of Water + Flask (g)", kSmallAxisSize,
                           kTurnedTitleLeft};

constexpr std::array kModels{CalibrationModel::Exponential, CalibrationModel::Linear, CalibrationModel::Polynomial};

/// The smallest of 1, 2, 5 times a power of ten that is not below the wanted step.
double RoundStep(double wanted)
{
    if (wanted <= kFinestStep) return kFinestStep;
    double power = kFinestStep;
    while (power * 10 <= wanted && std::isfinite(power)) power *= 10;
    for (const double digit : {1, 2, 5}) {
        if (digit * power >= wanted) return digit * power;
    }
    return 10 * power;
}

/// An axis over the values with some room at both ends; around 0 where there is none.
CalibrationAxis AxisOver(const std::vector<double>& values)
{
    const auto [lowest, highest] = std::ranges::minmax_element(values);
    const double low = values.empty() ? 0 : *lowest, high = values.empty() ? 0 : *highest;
    const double room = std::max((high - low) * kEndRoom, kFinestStep);
    const CalibrationAxis axis{low - room, high + room, RoundStep((high - low) / kWantedSteps)};
    if (!(axis.low < axis.high) || !std::isfinite(axis.high - axis.low)) throw RuntimeError(error::kOverflow);
    return axis;
}

}  // namespace

std::vector<double> CalibrationAxis::Ticks() const
{
    std::vector<double> ticks;
    const double first = -Int(-low / step);  // in steps from 0
    for (int i = 0; i < kMostTicks && (first + i) * step <= high; ++i) ticks.push_back((first + i) * step);
    return ticks;
}

void frmSpecific::cmdgraph_Click()
{
    try {
        PlotCalibration();
    } catch (const RuntimeError& failure) {
        program.Ask().Show({failure.Description(), "Error", MessageStyle::Critical});
    }
}

void frmSpecific::PlotCalibration()
{
    const ShownAtEnd frameShown{picGraph}, plotShown{picgraph1};
    ClearPlot(picGraph, picgraph1, kAxes);
    const AtEnd framed([this] { DrawPlotFrames(picGraph, picgraph1, WithinMargins(picgraph1)); });
    const CalibrationReadings readings = Readings();
    const CalibrationScale scale = ScaleOf(readings);
    DrawTemperatureTicks(scale);
    DrawMassTicks(scale);

    curve_ = FitCalibration(ChosenModel(readings), readings);
    txtFormula.SetText(curve_.Equation());
    txtR.SetText(" " + Format(curve_.determination, kDeterminationMask));
    DrawCurve(scale, readings);
    DrawReadings(scale, readings);
    TellAxes(picgraph1, scale, kAxes, {scale.temperature.low, scale.temperature.high},
             {scale.mass.low, scale.mass.high});
}

/// The first row without a mass ends them.
CalibrationReadings frmSpecific::Readings() const
{
    CalibrationReadings readings;
    for (int row = 1; row <= kCalibrationReadings; ++row) {
        const double mass = Val(MSHCalibration(row, calibration::FlaskAndWater));
        if (mass == 0) break;
        readings.temperature.push_back(Val(MSHCalibration(row, calibration::Temperature)));
        readings.mass.push_back(mass);
    }
    return readings;
}

CalibrationModel frmSpecific::ChosenModel(const CalibrationReadings& readings)
{
    if (optExp.Value()) return CalibrationModel::Exponential;
    if (optLin.Value()) return CalibrationModel::Linear;
    return optPol.Value() ? CalibrationModel::Polynomial : ChooseBestModel(readings);
}

/// Auto: chooses the option of the model that explains more than each other one. Where two tie for the top Auto stays
/// chosen, and the polynomial, fitted last, is in force.
CalibrationModel frmSpecific::ChooseBestModel(const CalibrationReadings& readings)
{
    const std::array options{&optExp, &optLin, &optPol};
    std::array<double, kModels.size()> explained;
    std::ranges::transform(kModels, explained.begin(),
                           [&](CalibrationModel model) { return FitCalibration(model, readings).determination; });
    const auto best = std::ranges::max_element(explained);
    if (std::ranges::count(explained, *best) > 1) return CalibrationModel::Polynomial;
    const auto place = static_cast<std::size_t>(best - explained.begin());
    options[place]->Choose();
    return kModels[place];
}

CalibrationScale frmSpecific::ScaleOf(const CalibrationReadings& readings) const
{
    return {picgraph1.Width - kBoxMargin, picgraph1.Height - kBoxMargin, AxisOver(readings.temperature),
            AxisOver(readings.mass)};
}

/// The title beside the mass axis stands at the frame's edge: the labels need the room next to the plot.
void frmSpecific::DrawAxes()
{
    DrawEmptyPlot(picGraph, picgraph1, kAxes, WithinMargins(picgraph1));
}

/// A label at the axis's end is kept inside the frame; one that would stand on the label before it is left out.
void frmSpecific::DrawTemperatureTicks(const CalibrationScale& scale)
{
    const auto [left, top] = InsetOf(picgraph1, picGraph);
    double lastEnd = 0;
    for (const double celsius : scale.temperature.Ticks()) {
        const double x = scale.X(celsius);
        picgraph1.Line(x, 0, x, scale.height, kGridGrey);
        const std::string label = Format(celsius, kTemperatureMask);
        const double width = picGraph.TextWidth(label), farthest = picGraph.Width - kFrameRoom - width;
        const double start = std::min(left + x - width / 2, farthest);
        if (start < lastEnd) continue;
        DrawTickBelow(picGraph, picgraph1, x, scale.height);
        PrintAt(picGraph, start, top + scale.height + kTickRoom, label);
        lastEnd = start + width;
    }
}

void frmSpecific::DrawMassTicks(const CalibrationScale& scale)
{
    for (const double grams : scale.mass.Ticks()) {
        const double y = scale.Y(grams);
        picgraph1.Line(0, y, scale.width, y, kGridGrey);
        DrawTickLeft(picGraph, picgraph1, y);
        PrintLeftOf(picGraph, picgraph1, y, Format(grams, kMassMask));
    }
}

void frmSpecific::DrawReadings(const CalibrationScale& scale, const CalibrationReadings& readings)
{
    std::vector<DrawnPoint> marks;
    for (std::size_t i = 0; i < readings.mass.size(); ++i)
        marks.push_back({scale.X(readings.temperature[i]), scale.Y(readings.mass[i])});
    DrawMarks(picgraph1, marks);
}

/// From the coldest reading to the warmest.
void frmSpecific::DrawCurve(const CalibrationScale& scale, const CalibrationReadings& readings)
{
    const auto [coldest, warmest] = std::ranges::minmax(readings.temperature);
    const double steps = Int((warmest - coldest) / kCurveStep);
    RefuseEndless(steps);
    std::vector<DrawnPoint> curve;
    const auto draw = [&](double celsius) { curve.push_back({scale.X(celsius), scale.Y(curve_.At(celsius))}); };
    for (int k = 0; k <= steps; ++k) draw(coldest + k * kCurveStep);
    if (coldest + steps * kCurveStep < warmest) draw(warmest);
    const Stroke stroke(picgraph1, plot_pen::kCurve);
    picgraph1.Polyline(curve, kBlue);
}

}  // namespace terravane
