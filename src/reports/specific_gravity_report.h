/// The specific gravity page: the calibration of the flask with its curve, the trials, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"

namespace terravane {

/// The page's body on the printer, below frame and head block.
void PrintSpecificGravity(Program& program, Printer& printer);

/// The same on the preview's page.
void ShowSpecificGravity(Program& program, DrawingSurface& picView);

}  // namespace terravane
