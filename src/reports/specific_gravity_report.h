/// The specific gravity page: the calibration of the flask with its curve, the trials, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawSpecificGravity(const Printing& printing);

}  // namespace terravane
