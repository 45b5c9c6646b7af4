/// The compaction page: mold and hammer, the two results, water contents, densities, the curve, signatures.
/// Values are printed as they stand on the sheet; nothing is computed.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The page's body, below frame and head block. Only the approver differs between printer and preview.
void DrawCompaction(const Printing& printing);

}  // namespace terravane
