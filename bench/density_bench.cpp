/// The field density sheet with six holes: Calculate with its posting into a project file on a disk in memory, and the
/// choice of the compaction test.
#include <benchmark/benchmark.h>

#include "support/density_laboratory.h"

namespace terravane {
namespace {

using namespace support;

frmDensity& SixHoles(DensityLaboratory& lab)
{
    lab.StoreMaximum("STDSOIL", "std_mdd", "2.00");
    lab.StoreMaximum("MODSOIL", "mod_mdd", "2.10");
    frmDensity& sheet = lab.OpenDensity();
    for (int column = 1; column <= field::kColumns; ++column) {
        TypeCone(sheet, column, kCone);
        TypeSand(sheet, column, kSandMould);
        TypeHole(sheet, column, kHole);
    }
    sheet.optStd.Choose();
    return sheet;
}

void DensityCalculate(benchmark::State& state)
{
    DensityLaboratory lab;
    frmDensity& sheet = SixHoles(lab);
    for (auto _ : state) sheet.cmdCal_Click();
}

void DensityCalculateByItsButton(benchmark::State& state)
{
    DensityLaboratory lab;
    frmDensity& sheet = SixHoles(lab);
    for (auto _ : state) sheet.cmdCal.Press();
}

void DensityChoice(benchmark::State& state)
{
    DensityLaboratory lab;
    frmDensity& sheet = SixHoles(lab);
    for (auto _ : state) (sheet.optStd.Value() ? sheet.optMod : sheet.optStd).Choose();
}

BENCHMARK(DensityCalculate)->Unit(benchmark::kMicrosecond);
BENCHMARK(DensityCalculateByItsButton)->Unit(benchmark::kMicrosecond);
BENCHMARK(DensityChoice)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
