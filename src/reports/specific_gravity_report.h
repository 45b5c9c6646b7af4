/// The specific gravity page: the calibration of the flask with its curve, the trials, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawSpecificGravity(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
