// The overall results. Figures to hold: opening the form on a project file under 2 ms (it reads the file, six of its
// tables and the program's picture), the page under 0.2 ms.
#include "support/results_bench.h"

#include <benchmark/benchmark.h>

#include "results/summary_page.h"

namespace terravane {
namespace {

void SummaryOpening(benchmark::State& state)
{
    support::ResultsBench of;
    for (auto _ : state) benchmark::DoNotOptimize(&of.Open());
}
BENCHMARK(SummaryOpening)->Unit(benchmark::kMicrosecond);

void SummaryPage(benchmark::State& state)
{
    support::ResultsBench of;
    const frmSummary& form = of.Open();
    for (auto _ : state) benchmark::DoNotOptimize(PagesOfSummary(form));
}
BENCHMARK(SummaryPage)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
