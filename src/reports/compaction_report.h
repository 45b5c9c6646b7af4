/// The compaction page: mould and hammer, the two results, water contents, densities, the curve, signatures.
/// Values are printed as they stand on the sheet; nothing is computed.
#pragma once

#include "program/program.h"

namespace terravane {

/// The page's body on the printer, below frame and head block.
void PrintCompaction(Program& program, Printer& printer);

/// The same on the preview's page; only the approver differs.
void ShowCompaction(Program& program, DrawingSurface& picView);

}  // namespace terravane
