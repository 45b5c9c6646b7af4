/// The compaction sheet's commands on a published test of five trials over twelve percent of water, project file in
/// memory. Goals: both curve methods under 3 ms, drawing included; creating a project under 20 ms; Save under 10 ms.
#include <benchmark/benchmark.h>

#include "store/new_stores.h"
#include "support/laboratory.h"
#include "support/memory_file_system.h"

namespace terravane {
namespace {

struct FullSheet {
    support::Laboratory lab;
    frmCompaction& sheet = lab.OpenSheet();

    FullSheet()
    {
        support::SetMould(sheet, "12.5", "10.0");
        support::TypeTrials(sheet, support::kSandyClay);
        sheet.cmdCal.Press();
    }
};

void CompactionCalculate(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.cmdCal.Press();
}

/// Some 1200 rows of the spline's table, plotted and posted.
void CompactionCurveBySpline(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.cmdOMC.Press();
    state.counters["rows"] = full.sheet.MSH3.Rows();
}

void CompactionCurveByFit(benchmark::State& state)
{
    FullSheet full;
    full.sheet.optFit.Choose();
    for (auto _ : state) full.sheet.cmdOMC.Press();
}

void CompactionSave(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.tblMenu.Press(1);
}

void CreateProjectInMemory(benchmark::State& state)
{
    support::MemoryFileSystem files;
    files.MakeFolders("/jobs/");
    int made = 0;
    for (auto _ : state) CreateProjectFile(files, "/jobs/TRVN_" + std::to_string(made++) + ".mdb");
}

BENCHMARK(CompactionCalculate)->Unit(benchmark::kMicrosecond);
BENCHMARK(CompactionCurveBySpline)->Unit(benchmark::kMicrosecond);
BENCHMARK(CompactionCurveByFit)->Unit(benchmark::kMicrosecond);
BENCHMARK(CompactionSave)->Unit(benchmark::kMicrosecond);
BENCHMARK(CreateProjectInMemory)->Unit(benchmark::kMicrosecond)->Iterations(100);

}  // namespace
}  // namespace terravane
