/// The compaction curve: a spline through six trials, walked in a thousand steps with each value as cell
/// text.
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "numeric/natural_spline.h"
#include "numeric/polynomial_fit.h"
#include "runtime/numbers.h"

namespace terravane {
namespace {

const std::vector<double> kWater{6.12, 8.07, 9.95, 12.11, 14.02, 15.98};  // %
const std::vector<double> kDensity{1.83, 1.91, 1.97, 1.95, 1.89, 1.82};   // g/cm³

double SevenDecimals(double value)
{
    return RoundedToPlaces(value, 7);
}

void SplineCurveAsText(benchmark::State& state)
{
    for (auto _ : state) {
        const auto rows = NaturalSpline(kWater, kDensity, SevenDecimals);
        std::vector<std::string> cells;
        for (int step = 0; step < 1000; ++step) {
            const double x = 9.95 + step * 0.002;
            cells.push_back(Format(x, "##0.0#0"));
            cells.push_back(Format(SplineValue(rows, kWater, kDensity, 2, x), "##0.0#####0"));
        }
        benchmark::DoNotOptimize(cells);
    }
}

void FitQuartic(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(FitPolynomial(kWater, kDensity, 4));
}

BENCHMARK(SplineCurveAsText)->Unit(benchmark::kMicrosecond);
BENCHMARK(FitQuartic)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
