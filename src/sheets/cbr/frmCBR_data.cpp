// Penetration Intervals and Calculate: from weighings and dials to water contents, densities, swelling, loads and
// stresses. A stage reads back the text that the stage before it wrote: the figures of the sheet are those of the
// printed report.
#include <numbers>

#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/pattern/trial_cells.h"

namespace terravane {

namespace {

using namespace cbr;

constexpr int kIntervals = 9;
constexpr double kInterval = 0.025;  // in
constexpr std::string_view kPenetrationMask = "0.000";
constexpr double kPistonArea = 3;    // in²
constexpr double kMillimetres = 10;  // percent of a height in cm, of a dial in mm

bool IsEmpty(std::string_view text)
{
    return Trim(text).empty();
}

}  // namespace

void frmCBR::cmdPen_Click()
{
    HideEditors(*this);
    ShapePenetrations(kIntervals);
    for (int row = 0; row < kIntervals; ++row)
        MSHPenetrate1(row, penetration::Depth) = Format(kInterval * row, kPenetrationMask);
}

void frmCBR::cmdCal_Click()
{
    DropSpareRow();
    if (IsEmpty(txtK.Text())) {
        program.Ask().Show({"Please input K-constant before calculation", "Warning", MessageStyle::Information});
        return;
    }
    try {
        Calculate();
    } catch (const RuntimeError& error) {
        program.Ask().Show({error.Description(), "Error Warning", MessageStyle::Critical});
    }
}

void frmCBR::Calculate()
{
    for (const int first : {1, 1 + kMolds}) WaterContents(first);
    for (const int first : {1, 1 + kMolds}) Densities(first);
    if (optBoth.Value()) TakeBothConditions();
    if (optSoak.Value() || optBoth.Value()) Swelling();
    LoadsAndStresses();
    cmdLPen.SetEnabled(true);
}

/// The three cans of one condition, up to the first without a number.
void frmCBR::WaterContents(int firstColumn)
{
    for (int column = firstColumn; column < firstColumn + kMolds; ++column) {
        const TrialCells of(MSHWater, laboratory::kBearingWater, column);
        if (IsEmpty(of[water::CanNumber])) return;
        const double wetLoss = of.Value(water::WetAndCan) - of.Value(water::DryAndCan);
        const double drySoil = of.Value(water::DryAndCan) - of.Value(water::Can);
        of.Show(water::WaterContent, Divide(wetLoss, drySoil) * 100);
    }
}

/// The three molds of one condition, up to the first without blows. The later condition overwrites the earlier one's
/// densities in mshLPC.
void frmCBR::Densities(int firstColumn)
{
    for (int mold = 1; mold <= kMolds; ++mold) {
        const int column = firstColumn + mold - 1;
        if (IsEmpty(MSHCompaction(density::Blows, column))) return;
        DensityOf(column);
        mshLPC(result::DryDensity, mold) = MSHCompaction(density::DryDensity, column);
    }
}

void frmCBR::DensityOf(int column)
{
    const TrialCells of(MSHCompaction, laboratory::kBearingDensity, column);
    const double diameter = of.Value(density::Diameter);
    const double volume = std::numbers::pi * diameter * diameter / 4 * of.Value(density::Height);
    const double soil = of.Value(density::MoldAndSoil) - of.Value(density::JustMold);
    of.Show(density::WetDensity, Divide(soil, volume));
    const double water = Val(MSHWater(water::WaterContent, column));
    of.Show(density::DryDensity, Divide(of.Value(density::WetDensity), 1 + water / 100));
}

/// Of a test of both conditions only the first mold of each goes on.
void frmCBR::TakeBothConditions()
{
    mshLPC(result::DryDensity, 1) = MSHCompaction(density::DryDensity, 1);
    mshLPC(result::DryDensity, 2) = MSHCompaction(density::DryDensity, 1 + kMolds);
}

void frmCBR::Swelling()
{
    for (int row = swell::Second; row <= swell::Last; ++row) {
        if (IsEmpty(MSHSwell(row, swell::Date))) return;
        SwellingOf(row);
    }
}

/// Hours by the calendar and the typed hours of the day; swelling in percent of the mold's height.
void frmCBR::SwellingOf(int row)
{
    const auto date = [&](int at) { return ParseDate(MSHSwell(at, swell::Date)); };
    const auto value = [&](int at, int column) { return Val(MSHSwell(at, column)); };
    const double days = static_cast<double>(HoursBetween(date(swell::First), date(row)));
    const double hours = Int(value(row, swell::Time) - value(swell::First, swell::Time));
    const TrialCells reading(MSHSwell, laboratory::kSwelling, row),
        first(MSHSwell, laboratory::kSwelling, swell::First);
    reading.Show(swell::Elapsed, days + hours);
    for (int mold = 1; mold <= kMolds; ++mold) {
        const double height = Val(MSHCompaction(density::Height, mold));
        if (height == 0) continue;
        const int dial = swell::Dial(mold);
        const double rise = value(row, dial) - value(swell::First, dial);
        reading.Show(dial + 1, rise / height * kMillimetres);
        first.Show(dial + 1, 0);
    }
    first.Show(swell::Elapsed, 0);
}

void frmCBR::LoadsAndStresses()
{
    const double constant = Val(txtK.Text());
    for (int row = 0; row < MSHPenetrate1.Rows(); ++row) {
        const TrialCells of(MSHPenetrate1, laboratory::kPenetrations, row);
        for (int mold = 1; mold <= kMolds; ++mold) {
            if (IsEmpty(of[penetration::Dial(mold)])) continue;
            of.Show(penetration::Load(mold), constant * of.Value(penetration::Dial(mold)));
            of.Show(penetration::Stress(mold), of.Value(penetration::Load(mold)) / kPistonArea);
        }
    }
}

}  // namespace terravane
