/// Reading and writing cells: every stage of every calculation goes through these.
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "runtime/numbers.h"

namespace terravane {
namespace {

/// Readings as a sheet holds them: up to 2000, with two decimals.
std::vector<double> Readings()
{
    std::mt19937 random(1);
    std::vector<double> readings(1024);
    for (double& reading : readings) reading = static_cast<double>(random() % 200'000) / 100;
    return readings;
}

/// What the formulas leave: quotients with all their digits.
std::vector<double> Quotients()
{
    std::vector<double> quotients = Readings();
    for (double& quotient : quotients) quotient /= 7.13;
    return quotients;
}

/// Readings halfway between two figures of two decimals.
std::vector<double> Halves()
{
    std::vector<double> halves = Readings();
    for (double& half : halves) half += 0.005;
    return halves;
}

void FormatAll(benchmark::State& state, const std::vector<double>& values, std::string_view mask)
{
    std::size_t at = 0;
    for (auto _ : state) benchmark::DoNotOptimize(Format(values[at++ % values.size()], mask));
    state.SetItemsProcessed(state.iterations());
}

void FormatTwoDecimals(benchmark::State& state)
{
    FormatAll(state, Quotients(), "#0.00");
}
void FormatTwoDecimalsOfHalves(benchmark::State& state)
{
    FormatAll(state, Halves(), "#0.00");
}
void FormatSevenDecimals(benchmark::State& state)
{
    FormatAll(state, Quotients(), "##0.0#####0");
}

void ReadCells(benchmark::State& state, std::string_view mask)
{
    std::vector<std::string> cells;
    for (const double value : Quotients()) cells.push_back(Format(value, mask));
    std::size_t at = 0;
    for (auto _ : state) benchmark::DoNotOptimize(Val(cells[at++ % cells.size()]));
    state.SetItemsProcessed(state.iterations());
}

void ValTwoDecimals(benchmark::State& state)
{
    ReadCells(state, "#0.00");
}
void ValSevenDecimals(benchmark::State& state)
{
    ReadCells(state, "##0.0#####0");
}

void RoundSevenDecimals(benchmark::State& state)
{
    const std::vector<double> values = Quotients();
    std::size_t at = 0;
    for (auto _ : state) benchmark::DoNotOptimize(RoundedToPlaces(values[at++ % values.size()], 7));
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(FormatTwoDecimals);
BENCHMARK(FormatTwoDecimalsOfHalves);
BENCHMARK(FormatSevenDecimals);
BENCHMARK(ValTwoDecimals);
BENCHMARK(ValSevenDecimals);
BENCHMARK(RoundSevenDecimals);

}  // namespace
}  // namespace terravane
