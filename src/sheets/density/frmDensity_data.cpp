// Calculate: from the sand to the percent compaction. A stage reads back the text that the stage before it wrote.
// Differences are shown with all their digits, what is divided with two decimals.
#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "sheets/density/frmDensity.h"

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
    void Write(TextGrid& grid, int row) const
    {
        if (last == 0) return;
        for (int column = 1; column <= kColumns; ++column) grid(row, column) = Format(sum / last, kTwoDecimals);
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
        const auto value = [&](cone::Row row) { return Val(MSHWsand(row, column)); };
        if (value(cone::Initial) == 0) continue;
        MSHWsand(cone::SandInCone, column) = NumberText(value(cone::Initial) - value(cone::Final));
        average.Add(column, value(cone::SandInCone));
    }
    average.Write(MSHWsand, cone::Average);
}

void frmDensity::SandDensity()
{
    ColumnAverage average;
    for (int column = 1; column <= kColumns; ++column) {
        const auto value = [&](sand::Row row) { return Val(MSHDsand(row, column)); };
        const double diameter = value(sand::Diameter);
        if (diameter == 0) continue;
        MSHDsand(sand::Sand, column) = NumberText(value(sand::MoldAndSand) - value(sand::Mold));
        MSHDsand(sand::Volume, column) = Format(kPi * (diameter * diameter) / 4 * value(sand::Height), kTwoDecimals);
        average.Add(column, Divide(value(sand::Sand), value(sand::Volume)));
    }
    average.Write(MSHDsand, sand::Density);
}

void frmDensity::WetSoil()
{
    for (int hole = 1; hole <= kColumns; ++hole) {
        const auto value = [&](soil::Row row) { return Val(MSHWsoil(row, hole)); };
        if (value(soil::WetAndPan) == 0) continue;
        MSHWsoil(soil::WetSoil, hole) = NumberText(value(soil::WetAndPan) - value(soil::Pan));
    }
}

void frmDensity::Volumes()
{
    for (int hole = 1; hole <= kColumns; ++hole) {
        const auto cell = [&](volume::Row row) { return MSHVolume(row, hole); };
        const auto value = [&](volume::Row row) { return Val(cell(row)); };
        if (value(volume::Initial) == 0) continue;
        cell(volume::SandInCone) = MSHWsand(cone::Average, hole);
        cell(volume::SandInHole) =
            NumberText(value(volume::Initial) - value(volume::Final) - value(volume::SandInCone));
        cell(volume::SandDensity) = MSHDsand(sand::Density, hole);
        cell(volume::Volume) = Format(Divide(value(volume::SandInHole), value(volume::SandDensity)), kTwoDecimals);
    }
}

/// Water content, wet and dry density of one hole. One without a water content has no densities.
void frmDensity::DensitiesOf(int hole)
{
    const auto cell = [&](water::Row row) { return MSHWater(row, hole); };
    const auto value = [&](water::Row row) { return Val(cell(row)); };
    if (value(water::WetAndCan) == 0) return;

    cell(water::Water) = Format(value(water::WetAndCan) - value(water::DryAndCan), kTwoDecimals);
    cell(water::DrySoil) = NumberText(value(water::DryAndCan) - value(water::Can));
    cell(water::WaterContent) = Format(Divide(value(water::Water), value(water::DrySoil)) * 100, kTwoDecimals);

    const double wetSoil = Val(MSHWsoil(soil::WetSoil, hole)), size = Val(MSHVolume(volume::Volume, hole));
    MSHSummary(summary::WetDensity, hole) = Format(Divide(wetSoil, size), kTwoDecimals);
    const double wetDensity = Val(MSHSummary(summary::WetDensity, hole));
    MSHSummary(summary::DryDensity, hole) =
        Format(Divide(wetDensity, 1 + value(water::WaterContent) / 100), kTwoDecimals);
}

/// Percent compaction of the holes up to the first without a maximum density, and its average to two decimals.
float frmDensity::AverageCompaction()
{
    double sum = 0;
    int holes = 0;
    for (int hole = 1; hole <= kColumns; ++hole) {
        const auto value = [&](summary::Row row) { return Val(MSHSummary(row, hole)); };
        if (value(summary::MaximumDensity) == 0) break;
        MSHSummary(summary::Compaction, hole) =
            Format(Divide(value(summary::DryDensity), value(summary::MaximumDensity)) * 100, kTwoDecimals);
        sum += value(summary::Compaction);
        ++holes;
    }
    return ToSingle(RoundedToPlaces(Divide(sum, holes), 2));
}

}  // namespace terravane
