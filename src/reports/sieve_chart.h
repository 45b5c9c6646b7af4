/// Page 2 of the sieve report: the particle-size distribution, drawn anew from the sheet's grids in a scale of its own.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// Draws the whole page, footer included; it is on its side already. The pen is thin and solid afterwards. Error 5
/// for a curve through a size of zero or less.
void DrawSieveChart(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
