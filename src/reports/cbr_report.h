/// The bearing ratio report, two pages: type of test, parameters, water contents, densities, result, swelling and
/// signatures; then the penetration table, the curves and a summary. Values are printed as they stand on the sheet;
/// only the result of a single mould is chosen here.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// The first page's body, below frame and head block.
void DrawCbrPage1(Program& program, DrawingSurface& page, Medium medium);

/// The second page with its furniture.
void DrawCbrPage2(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
