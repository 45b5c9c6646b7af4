// Calculate: from weighings to water contents and the mean plastic limit.
#include "runtime/numbers.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

/// A stage reads back the text that the stage before it wrote, because the two decimals on the sheet are the ones that
/// count: they are the figures of the printed report.
void frmAtterberg::cmdCal_Click()
{
    for (int trial = 1; HasTrial(MSHLL, trial); ++trial) LiquidWaterContentOf(trial);
    for (int thread = 1; HasTrial(MSHPL, thread); ++thread) PlasticLimitOf(thread);
    AveragePlasticLimits();
    cmdPlot.SetEnabled(true);
    SSTData.SetTabEnabled(kFlowTab, true);
}

/// Whether a column was filled: its first typed row, the number of blows or the wet mass, is there.
bool frmAtterberg::HasTrial(const TextGrid& grid, int column)
{
    constexpr int kFirstTyped = 1;
    return column < grid.Columns() && Val(grid(kFirstTyped, column)) != 0;
}

void frmAtterberg::LiquidWaterContentOf(int trial)
{
    const TrialCells of(MSHLL, laboratory::kLiquidLimit, trial);
    of.Show(ll::Water, of.Value(ll::WetAndCan) - of.Value(ll::DryAndCan));
    of.Show(ll::DrySoil, of.Value(ll::DryAndCan) - of.Value(ll::Can));
    of.Show(ll::WaterContent, Divide(of.Value(ll::Water), of.Value(ll::DrySoil)) * 100);
}

void frmAtterberg::PlasticLimitOf(int thread)
{
    const TrialCells of(MSHPL, laboratory::kPlasticLimit, thread);
    of.Show(pl::Water, of.Value(pl::WetAndCan) - of.Value(pl::DryAndCan));
    of.Show(pl::DrySoil, of.Value(pl::DryAndCan) - of.Value(pl::Can));
    of.Show(pl::WaterContent, Divide(of.Value(pl::Water), of.Value(pl::DrySoil)) * 100);
    of[pl::PlasticLimit] = of[pl::WaterContent];
}

/// A plain mean: no thread is left out, however far off it lies.
void frmAtterberg::AveragePlasticLimits()
{
    for (int thread = 1; HasTrial(MSHPL, thread); ++thread) {
        TrialCells(MSHPL, laboratory::kPlasticLimit, thread).Show(pl::Average, MeanPlasticLimit());
    }
}

double frmAtterberg::MeanPlasticLimit() const
{
    double sum = 0;
    int threads = 0;
    while (HasTrial(MSHPL, threads + 1)) sum += Val(MSHPL(pl::PlasticLimit, ++threads));
    return Divide(sum, threads);
}

}  // namespace terravane
