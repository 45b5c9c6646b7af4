/// The first sheet of every printed report, in Thai. It has no preview.
#pragma once

#include "program/program.h"

namespace terravane {

/// Draws cover logo, title, project, client and issuing organisation on the printer's present page. The title
/// goes by the current test alone. A missing picture or an empty LOGO table is an error half-way.
void PrintCoverPage(Program& program, Printer& printer);

}  // namespace terravane
