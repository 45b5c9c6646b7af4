/// The first sheet of every printed report, in Thai. It has no preview.
#pragma once

#include "reports/report.h"

namespace terravane {

/// Draws cover logo, title, project, client and issuing organisation. The title is the report's own, whatever the
/// sheet's banner says. A missing picture or an empty LOGO table is an error half-way.
void DrawCoverPage(const Printing& of);

}  // namespace terravane
