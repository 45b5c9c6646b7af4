/// The sheets of Atterberg limits and of specific gravity: full trials, Calculate with its posting into a project file
/// on a disk in memory, and both plots.
#include <benchmark/benchmark.h>

#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/specific/frmSpecific.h"
#include "support/laboratory.h"

namespace terravane {
namespace {

using support::Laboratory;

void FillTrials(frmAtterberg& sheet)
{
    constexpr const char* kBlows[] = {"35", "29", "24", "19", "14"};
    constexpr const char* kWet[] = {"28.56", "29.27", "25.73", "27.11", "26.90"};
    for (int trial = 1; trial <= kLimitTrials; ++trial) {
        sheet.MSHLL(ll::Blows, trial) = kBlows[trial - 1];
        sheet.MSHLL(ll::WetAndCan, trial) = kWet[trial - 1];
        sheet.MSHLL(ll::DryAndCan, trial) = "24.90";
        sheet.MSHLL(ll::Can, trial) = "21.87";
        sheet.MSHPL(pl::WetAndCan, trial) = "16.39";
        sheet.MSHPL(pl::DryAndCan, trial) = "15.28";
        sheet.MSHPL(pl::Can, trial) = "7.78";
    }
}

void FillReadings(frmSpecific& sheet)
{
    constexpr const char* kMass[] = {"659.98", "659.70", "659.32", "658.74", "658.10", "657.39", "656.60"};
    constexpr const char* kCelsius[] = {"20", "23", "26", "30", "34", "38", "42"};
    for (int row = 1; row <= kCalibrationReadings; ++row) {
        sheet.MSHCalibration(row, calibration::FlaskAndWater) = kMass[row - 1];
        sheet.MSHCalibration(row, calibration::Temperature) = kCelsius[row - 1];
    }
    for (int trial = 1; trial <= kGravityTrials; ++trial) {
        sheet.MSHSpecific(gravity::Temperature, trial) = "25.5";
        sheet.MSHSpecific(gravity::FlaskWaterAndSoil, trial) = "721.88";
        sheet.MSHSpecific(gravity::DryAndContainer, trial) = "150.12";
        sheet.MSHSpecific(gravity::Container, trial) = "50.02";
    }
}

void AtterbergCalculate(benchmark::State& state)
{
    Laboratory lab;
    auto& sheet = lab.Open<frmAtterberg>("frmAtterberg", Test::AttSoil);
    FillTrials(sheet);
    for (auto _ : state) sheet.cmdCal_Click();
}

void AtterbergPlot(benchmark::State& state)
{
    Laboratory lab;
    auto& sheet = lab.Open<frmAtterberg>("frmAtterberg", Test::AttSoil);
    FillTrials(sheet);
    sheet.cmdCal_Click();
    for (auto _ : state) sheet.cmdPlot_Click();
}

void SpecificPlotOfAuto(benchmark::State& state)
{
    Laboratory lab;
    auto& sheet = lab.Open<frmSpecific>("frmSpecific", Test::SpcSoil);
    FillReadings(sheet);
    for (auto _ : state) {
        sheet.optAut.Choose();
        sheet.cmdgraph_Click();
    }
}

void SpecificCalculate(benchmark::State& state)
{
    Laboratory lab;
    auto& sheet = lab.Open<frmSpecific>("frmSpecific", Test::SpcSoil);
    FillReadings(sheet);
    sheet.cmdgraph_Click();
    for (auto _ : state) sheet.cmdCal_Click();
}

BENCHMARK(AtterbergCalculate)->Unit(benchmark::kMicrosecond);
BENCHMARK(AtterbergPlot)->Unit(benchmark::kMicrosecond);
BENCHMARK(SpecificPlotOfAuto)->Unit(benchmark::kMicrosecond);
BENCHMARK(SpecificCalculate)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
