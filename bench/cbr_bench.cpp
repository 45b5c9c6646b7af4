/// The bearing ratio sheet's commands on a full sheet of three moulds and twelve penetrations, project file in memory.
/// Goals: Calculate under 1 ms, Load-Penetration Curve under 5 ms, CBR Value from Graph under 3 ms.
#include <benchmark/benchmark.h>

#include "support/cbr_laboratory.h"

namespace terravane {
namespace {

struct FullSheet {
    support::CbrLaboratory lab;
    frmCBR& sheet = lab.OpenCbr();

    FullSheet()
    {
        support::TypeThreeMoulds(sheet);
        for (CheckBox* tick : {&sheet.chkMold1, &sheet.chkMold2, &sheet.chkMold3}) tick->SetValue(true);
        sheet.cmdCal.Press();
        sheet.cmdLPen.Press();
    }
};

void CbrCalculate(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.cmdCal.Press();
}

void CbrLoadPenetrationCurve(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.cmdLPen.Press();
}

void CbrValueFromGraph(benchmark::State& state)
{
    FullSheet full;
    for (auto _ : state) full.sheet.cmdCBR.Press();
}

BENCHMARK(CbrCalculate)->Unit(benchmark::kMicrosecond);
BENCHMARK(CbrLoadPenetrationCurve)->Unit(benchmark::kMicrosecond);
BENCHMARK(CbrValueFromGraph)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
