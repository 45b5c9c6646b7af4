// Calculate: from weighings to water contents and the mean plastic limit.
#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "sheets/atterberg/frmAtterberg.h"

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
    const auto cell = [&](ll::Row row) { return MSHLL(row, trial); };
    const auto value = [&](ll::Row row) { return Val(cell(row)); };
    cell(ll::Water) = Format(value(ll::WetAndCan) - value(ll::DryAndCan), kTwoDecimals);
    cell(ll::DrySoil) = Format(value(ll::DryAndCan) - value(ll::Can), kTwoDecimals);
    cell(ll::WaterContent) = Format(Divide(value(ll::Water), value(ll::DrySoil)) * 100, kTwoDecimals);
}

void frmAtterberg::PlasticLimitOf(int thread)
{
    const auto cell = [&](pl::Row row) { return MSHPL(row, thread); };
    const auto value = [&](pl::Row row) { return Val(cell(row)); };
    cell(pl::Water) = Format(value(pl::WetAndCan) - value(pl::DryAndCan), kTwoDecimals);
    cell(pl::DrySoil) = Format(value(pl::DryAndCan) - value(pl::Can), kTwoDecimals);
    cell(pl::WaterContent) = Format(Divide(value(pl::Water), value(pl::DrySoil)) * 100, kTwoDecimals);
    cell(pl::PlasticLimit) = cell(pl::WaterContent);
}

/// A plain mean: no thread is left out, however far off it lies.
void frmAtterberg::AveragePlasticLimits()
{
    for (int thread = 1; HasTrial(MSHPL, thread); ++thread) {
        MSHPL(pl::Average, thread) = Format(MeanPlasticLimit(), kTwoDecimals);
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
