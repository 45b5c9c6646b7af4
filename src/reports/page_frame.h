/// The frame that every upright report page begins with: the furniture, which is footer, banner and boxed title with
/// logos and names, and the head block.
#pragma once

#include "reports/report.h"

namespace terravane {

/// Furniture and, on the first page, the head block; nothing on a page on its side. Errors: what the brand store and
/// its pictures raise; the page is left half drawn.
void DrawPageFrame(const Printing& of);

}  // namespace terravane
