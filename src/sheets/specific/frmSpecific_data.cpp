// Calculate: from the flask's curve and the trials' weighings to the specific gravity.
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/trial_cells.h"
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
        TrialCells(MSHSpecific, laboratory::kGravityTrialGrid, trial).Show(gravity::Average, sum / trials);
    PostGravity();
}

/// The mass of the water that the grains displace is that of flask and water, plus the grains, less the three together.
/// A stage reads back the text that the stage before it wrote.
void frmSpecific::GravityOf(int trial)
{
    const TrialCells of(MSHSpecific, laboratory::kGravityTrialGrid, trial);
    of.Show(gravity::FlaskAndWater, curve_.At(of.Value(gravity::Temperature)));
    of.Show(gravity::DrySoil, of.Value(gravity::DryAndContainer) - of.Value(gravity::Container));
    of.Show(gravity::Correction, WaterDensity(of[gravity::Temperature]) / kWaterDensityAt20);
    const double displaced =
        of.Value(gravity::FlaskAndWater) + of.Value(gravity::DrySoil) - of.Value(gravity::FlaskWaterAndSoil);
    of.Show(gravity::Gravity, Divide(of.Value(gravity::Correction) * of.Value(gravity::DrySoil), displaced));
}

void frmSpecific::PostGravity()
{
    Post({{"Gs", MSHSpecific(gravity::Average, 1).Text()}});
}

}  // namespace terravane
