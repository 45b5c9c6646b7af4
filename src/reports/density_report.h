/// The field density page: the calibration of cone and sand side by side, then a table a step down to the percent
/// compaction, signatures. Values are printed as they stand on the sheet; nothing is computed.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawFieldDensity(const Printing& printing);

}  // namespace terravane
