// Which column of the specific gravity tables stands where on the sheet: the seven calibration readings and, beside the
// first three of them, the trials. Load and save walk this one table, in two passes.
#include <array>

#include "sheets/specific/frmSpecific.h"

namespace terravane {

namespace {

using enum ColumnPlace::Kind;

constexpr auto kCalibrationPlaces = BehindGeneralData(std::array{
    ColumnPlace{"temp1", "MSHCalibration", GridLine, calibration::Temperature},
    ColumnPlace{"fwater", "MSHCalibration", GridLine, calibration::FlaskAndWater},
});

constexpr std::array kTrialPlaces{
    ColumnPlace{"temp2", "MSHSpecific", GridRow, gravity::Temperature},
    ColumnPlace{"swsoil", "MSHSpecific", GridRow, gravity::FlaskWaterAndSoil},
    ColumnPlace{"can", "MSHSpecific", GridRow, gravity::ContainerNumber},
    ColumnPlace{"dscan", "MSHSpecific", GridRow, gravity::DryAndContainer},
    ColumnPlace{"wcan", "MSHSpecific", GridRow, gravity::Container},
    ColumnPlace{"gs", "MSHSpecific", GridRow, gravity::Average, false},
};

constexpr std::array kPasses{
    TablePass{kCalibrationReadings, kCalibrationPlaces},
    TablePass{kGravityTrials, kTrialPlaces},
};

}  // namespace

std::span<const TablePass> frmSpecific::TablePasses() const
{
    return kPasses;
}

}  // namespace terravane
