/// Page 2 of the sieve report: the particle-size distribution, drawn anew from the sheet's grids in a scale of its own.
#pragma once

#include "reports/report.h"

namespace terravane {

/// Draws the whole page, footer included; it is on its side already. Error 5 for a curve through a size of zero or
/// less.
void DrawSieveChart(const Printing& printing);

}  // namespace terravane
