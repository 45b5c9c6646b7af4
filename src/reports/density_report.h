/// The field density page: the calibration of cone and sand side by side, then a table a step down to the percent
/// compaction, signatures. Values are printed as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"

namespace terravane {

/// The page's body on the printer, below frame and head block.
void PrintFieldDensity(Program& program, Printer& printer);

/// The same on the preview's page.
void ShowFieldDensity(Program& program, DrawingSurface& picView);

}  // namespace terravane
