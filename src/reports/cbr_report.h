/// The bearing ratio report, two pages: type of test, parameters, water contents, densities, result, swelling and
/// signatures; then the penetration table, the curves and a summary. Values are printed as they stand on the sheet;
/// only the result of a single mold is chosen here.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The first page's body, below frame and head block.
void DrawCbrPage1(const Printing& printing);

/// The second page's body, below the frame.
void DrawCbrPage2(const Printing& printing);

}  // namespace terravane
