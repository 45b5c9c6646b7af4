/// The sieve report's first page: masses, percentages, grain sizes and classes. Values are printed as they stand on the
/// sheet; only the three fractions are worked out here.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawSieve(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
