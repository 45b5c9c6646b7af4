/// The Atterberg limits page: the trials of both limits, the flow curve, a summary box, signatures. Values are printed
/// as they stand on the sheet; nothing is computed.
#pragma once

#include "reports/report.h"

namespace terravane {

/// The page's body, below frame and head block.
void DrawAtterberg(const Printing& printing);

}  // namespace terravane
