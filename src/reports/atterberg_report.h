/// The Atterberg limits page: the trials of both limits, the flow curve, a summary box, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawAtterberg(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
