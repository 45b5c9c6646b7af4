/// The sieve report's first page: masses, percentages, grain sizes and classes. Values are printed as they stand on the
/// sheet; only the three fractions are worked out here.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawSieve(const Printing& printing);

}  // namespace terravane
