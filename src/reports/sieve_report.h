/// The sieve report: a page of masses, percentages, grain sizes and classes, and a page on its side with the grain-size
/// chart. Values are printed as they stand on the sheet; only the three fractions are worked out here.
#pragma once

#include "program/program.h"

namespace terravane {

/// Both pages on the printer, below the first page's frame and head block. The second turns the printer, and it stays
/// turned.
void PrintSieve(Program& program, Printer& printer);

/// Page 1 on the preview.
void ShowSievePage1(Program& program, DrawingSurface& picView);

/// Page 2 on the preview, already on its side.
void ShowSievePage2(Program& program, DrawingSurface& picView);

}  // namespace terravane
