/// The job's particulars below a page's title: client, project, location; report number, date, sample.
#pragma once

#include "reports/report.h"

namespace terravane {

/// Draws the sheet's block, one text height a row. Nothing is clipped: a long name runs into what stands at
/// its right.
void DrawHeadBlock(const Printing& of);

}  // namespace terravane
