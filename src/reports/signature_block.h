/// Who tested, checked and approved: the block that closes the last page of every report.
#pragma once

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// Draws the block at the place of the current test's report; the font size is the body's afterwards. The
/// approver is looked up in the brand store, but for the compaction preview, which shows a fixed name.
void DrawSignatures(Program& program, DrawingSurface& page, Medium medium);

}  // namespace terravane
