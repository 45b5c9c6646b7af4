// Calculate: from the flask's curve and the trials' weighings to the specific gravity.
#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/specific/frmSpecific.h"
#include "sheets/specific/water_density.h"

namespace terravane {

namespace {

constexpr std::string_view kPlotFirst = "กรุณากดปุ่ม Plot Graph Calibration ก่อน";

}  // namespace

void frmSpecific::cmdCal_Click()
{
    if (Trim(txtFormula.Text()).empty()) {
        program.Ask().Show({std::string(kPlotFirst), "Warning", MessageStyle::Information});
        return;
    }
    double sum = 0;
    int trials = 0;
    while (trials < kGravityTrials && Val(MSHSpecific(gravity::Temperature, trials + 1)) != 0) {
        GravityOf(++trials);
        sum += Val(MSHSpecific(gravity::Gravity, trials));
    }
    for (int trial = 1; trial <= trials; ++trial)
        MSHSpecific(gravity::Average, trial) = Format(sum / trials, kTwoDecimals);
    PostGravity();
}

/// The mass of the water that the grains displace is that of flask and water, plus the grains, less the three together.
/// A stage reads back the text that the stage before it wrote.
void frmSpecific::GravityOf(int trial)
{
    const auto cell = [&](gravity::Row row) { return MSHSpecific(row, trial); };
    const auto value = [&](gravity::Row row) { return Val(cell(row)); };
    cell(gravity::FlaskAndWater) = Format(curve_.At(value(gravity::Temperature)), kTwoDecimals);
    cell(gravity::DrySoil) = Format(value(gravity::DryAndContainer) - value(gravity::Container), kTwoDecimals);
    cell(gravity::Correction) = Format(WaterDensity(cell(gravity::Temperature)) / kWaterDensityAt20, kFourDecimals);
    const double displaced =
        value(gravity::FlaskAndWater) + value(gravity::DrySoil) - value(gravity::FlaskWaterAndSoil);
    cell(gravity::Gravity) =
        Format(Divide(value(gravity::Correction) * value(gravity::DrySoil), displaced), kNoForcedZero);
}

void frmSpecific::PostGravity()
{
    Post({{"Gs", MSHSpecific(gravity::Average, 1).Text()}});
}

}  // namespace terravane
