// Calculate: from the sand to the percent compaction. A stage reads back the text that the stage before it wrote.
// Differences are shown with all their digits, what is divided with two decimals.
#include "runtime/numbers.h"
#include "sheets/density/frmDensity.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

using namespace field;

constexpr double kPi = 3.141592654;

/// A sum over columns, averaged by the last column that has readings, not by how many have: the determinations are
/// expected side by side from the first column on, and a gap between them lowers the average.
struct ColumnAverage {
    double sum = 0;
    int last = 0;

    void Add(int column, double value)
    {
        sum += value;
        last = column;
    }

    /// Into all six columns; a sheet without any determination keeps what stands there.
    void Write(TextGrid& grid, const laboratory::Grid& described, int row) const
    {
        if (last == 0) return;
        for (int column = 1; column <= kColumns; ++column) TrialCells(grid, described, column).Show(row, sum / last);
    }
};

}  // namespace

void frmDensity::cmdCal_Click()
{
    SandInCone();
    SandDensity();
    WetSoil();
    Volumes();
    for (int hole = 1; hole <= kColumns; ++hole) DensitiesOf(hole);
    Post({{"compaction", SignedNumberText(AverageCompaction())}});
}

void frmDensity::SandInCone()
{
    ColumnAverage average;
    for (int column = 1; column <= kColumns; ++column) {
        const TrialCells of(MSHWsand, laboratory::kSandInCone, column);
        if (of.Value(cone::Initial) == 0) continue;
        of.Show(cone::SandInCone, of.Value(cone::Initial) - of.Value(cone::Final));
        average.Add(column, of.Value(cone::SandInCone));
    }
    average.Write(MSHWsand, laboratory::kSandInCone, cone::Average);
}

void frmDensity::SandDensity()
{
    ColumnAverage average;
    for (int column = 1; column <= kColumns; ++column) {
        const TrialCells of(MSHDsand, laboratory::kSandDensity, column);
        const double diameter = of.Value(sand::Diameter);
        if (diameter == 0) continue;
        of.Show(sand::Sand, of.Value(sand::MoldAndSand) - of.Value(sand::Mold));
        of.Show(sand::Volume, kPi * (diameter * diameter) / 4 * of.Value(sand::Height));
        average.Add(column, Divide(of.Value(sand::Sand), of.Value(sand::Volume)));
    }
    average.Write(MSHDsand, laboratory::kSandDensity, sand::Density);
}

void frmDensity::WetSoil()
{
    for (int hole = 1; hole <= kColumns; ++hole) {
        const TrialCells of(MSHWsoil, laboratory::kHoleSoil, hole);
        if (of.Value(soil::WetAndPan) == 0) continue;
        of.Show(soil::WetSoil, of.Value(soil::WetAndPan) - of.Value(soil::Pan));
    }
}

void frmDensity::Volumes()
{
    for (int hole = 1; hole <= kColumns; ++hole) {
        const TrialCells of(MSHVolume, laboratory::kHoleVolume, hole);
        if (of.Value(volume::Initial) == 0) continue;
        of[volume::SandInCone] = MSHWsand(cone::Average, hole);
        of.Show(volume::SandInHole, of.Value(volume::Initial) - of.Value(volume::Final) - of.Value(volume::SandInCone));
        of[volume::SandDensity] = MSHDsand(sand::Density, hole);
        of.Show(volume::Volume, Divide(of.Value(volume::SandInHole), of.Value(volume::SandDensity)));
    }
}

/// Water content, wet and dry density of one hole. One without a water content has no densities.
void frmDensity::DensitiesOf(int hole)
{
    const TrialCells of(MSHWater, laboratory::kHoleWater, hole);
    if (of.Value(water::WetAndCan) == 0) return;
    of.Show(water::Water, of.Value(water::WetAndCan) - of.Value(water::DryAndCan));
    of.Show(water::DrySoil, of.Value(water::DryAndCan) - of.Value(water::Can));
    of.Show(water::WaterContent, Divide(of.Value(water::Water), of.Value(water::DrySoil)) * 100);

    const TrialCells result(MSHSummary, laboratory::kHoleSummary, hole);
    const double wetSoil = Val(MSHWsoil(soil::WetSoil, hole)), size = Val(MSHVolume(volume::Volume, hole));
    result.Show(summary::WetDensity, Divide(wetSoil, size));
    result.Show(summary::DryDensity,
                Divide(result.Value(summary::WetDensity), 1 + of.Value(water::WaterContent) / 100));
}

/// Percent compaction of the holes up to the first without a maximum density, and its average to two decimals.
float frmDensity::AverageCompaction()
{
    double sum = 0;
    int holes = 0;
    for (int hole = 1; hole <= kColumns; ++hole) {
        const TrialCells of(MSHSummary, laboratory::kHoleSummary, hole);
        if (of.Value(summary::MaximumDensity) == 0) break;
        of.Show(summary::Compaction, Divide(of.Value(summary::DryDensity), of.Value(summary::MaximumDensity)) * 100);
        sum += of.Value(summary::Compaction);
        ++holes;
    }
    return ToSingle(RoundedToPlaces(Divide(sum, holes), 2));
}

}  // namespace terravane
