// Calculate: from weighings to water contents and densities.
#include <numbers>

#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "sheets/compaction/frmCompaction.h"

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
    const auto cell = [&](water::Row row) { return MSHWt(row, trial); };
    const auto value = [&](water::Row row) { return Val(cell(row)); };

    if (value(water::WetAndCan) != 0) {
        cell(water::Water) = Format(value(water::WetAndCan) - value(water::DryAndCan), kTwoDecimals);
    }
    if (value(water::DryAndCan) != 0) {
        cell(water::DrySoil) = Format(value(water::DryAndCan) - value(water::Can), kTwoDecimals);
    }
    if (value(water::DrySoil) != 0) {
        cell(water::WaterContent) = Format(Divide(value(water::Water), value(water::DrySoil)) * 100, kTwoDecimals);
    }
}

void frmCompaction::DensityOf(int trial)
{
    const auto cell = [&](density::Row row) { return MSHDensity(row, trial); };
    const auto value = [&](density::Row row) { return Val(cell(row)); };
    if (value(density::Mold) == 0) return;  // no mold weighed, no trial in this column

    cell(density::WaterContent) = Format(Val(MSHWt(water::WaterContent, trial)), kTwoDecimals);
    cell(density::WetSoil) = Format(value(density::WetAndMold) - value(density::Mold), kTwoDecimals);
    cell(density::WetDensity) = Format(Divide(value(density::WetSoil), MoldVolume()), kTwoDecimals);
    cell(density::DryDensity) =
        Format(Divide(value(density::WetDensity), 1 + value(density::WaterContent) / 100), kTwoDecimals);
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
