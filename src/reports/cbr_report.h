/// The bearing ratio report, two pages: type of test, parameters, water contents, densities, result, swelling and
/// signatures; then the penetration table, the curves and a summary. Values are printed as they stand on the sheet;
/// only the result of a single mould is chosen here.
#pragma once

#include "program/program.h"

namespace terravane {

/// Both pages on the printer: the first below frame and head block, the second with its own furniture.
void PrintCBR(Program& program, Printer& printer);

/// The first page on the preview's page, below frame and head block.
void ShowCBRPage1(Program& program, DrawingSurface& picView);

/// The second one, with its furniture.
void ShowCBRPage2(Program& program, DrawingSurface& picView);

}  // namespace terravane
