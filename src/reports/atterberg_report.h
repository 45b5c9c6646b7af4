/// The Atterberg limits page: the trials of both limits, the flow curve, a summary box, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"

namespace terravane {

/// The page's body on the printer, below frame and head block.
void PrintAtterberg(Program& program, Printer& printer);

/// The same on the preview's page.
void ShowAtterberg(Program& program, DrawingSurface& picView);

}  // namespace terravane
