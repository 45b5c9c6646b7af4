// Calculate: from weighings to water contents and densities.
#include <numbers>

#include "runtime/numbers.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

using namespace compaction;

constexpr std::string_view kBlank = "     ";  // what a calculated cell shows while nothing is worked out for it

}  // namespace

/// A stage reads back the text that the stage before it wrote, because the two decimals on the sheet are the
/// ones that count: they are the figures of the printed report.
void frmCompaction::cmdCal_Click()
{
    BlankCalculatedRows();
    for (int trial = 1; trial <= kTrials; ++trial) WaterContentOf(trial);
    for (int trial = 1; trial <= kTrials; ++trial) DensityOf(trial);
    SSTData.SetTabEnabled(kCurveTab, true);
}

void frmCompaction::BlankCalculatedRows()
{
    for (int trial = 1; trial <= kTrials; ++trial) {
        for (int row = water::Water; row <= water::WaterContent; ++row) MSHWt(row, trial) = kBlank;
        for (int row = density::WaterContent; row <= density::DryDensity; ++row) MSHDensity(row, trial) = kBlank;
    }
}

void frmCompaction::WaterContentOf(int trial)
{
    const TrialCells of(MSHWt, laboratory::kCompactionWater, trial);
    if (of.Value(water::WetAndCan) != 0) {
        of.Show(water::Water, of.Value(water::WetAndCan) - of.Value(water::DryAndCan));
    }
    if (of.Value(water::DryAndCan) != 0) {
        of.Show(water::DrySoil, of.Value(water::DryAndCan) - of.Value(water::Can));
    }
    if (of.Value(water::DrySoil) != 0) {
        of.Show(water::WaterContent, Divide(of.Value(water::Water), of.Value(water::DrySoil)) * 100);
    }
}

void frmCompaction::DensityOf(int trial)
{
    const TrialCells of(MSHDensity, laboratory::kCompactionDensity, trial);
    if (of.Value(density::Mold) == 0) return;  // no mold weighed, no trial in this column

    of.Show(density::WaterContent, Val(MSHWt(water::WaterContent, trial)));
    of.Show(density::WetSoil, of.Value(density::WetAndMold) - of.Value(density::Mold));
    of.Show(density::WetDensity, Divide(of.Value(density::WetSoil), MoldVolume()));
    of.Show(density::DryDensity, Divide(of.Value(density::WetDensity), 1 + of.Value(density::WaterContent) / 100));
}

/// cm³, of a mold in cm.
double frmCompaction::MoldVolume() const
{
    const double height = Val(txtHeight.Text()), diameter = Val(txtDia.Text());
    return height * std::numbers::pi * (diameter * diameter) / 4;
}

void frmCompaction::EraseTrial(int trial)
{
    for (int row = water::CanNumber; row < water::kRows; ++row) MSHWt(row, trial) = "";
    for (int row = 0; row < density::kRows; ++row) MSHDensity(row, trial) = "";
}

}  // namespace terravane
