/// Who tested, checked and approved: the block that closes the first page of every report.
#pragma once

#include "reports/report.h"

namespace terravane {

/// Draws the block at the report's place for it. The approver is looked up in the brand store, but for the
/// compaction preview, which shows a fixed name.
void DrawSignatures(const Printing& of);

}  // namespace terravane
