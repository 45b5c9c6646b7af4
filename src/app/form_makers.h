/// The one place that knows every form.
#pragma once

#include "program/program.h"

namespace terravane {

/// Makes every form known to the program by its name. A form asks for another by name and never includes it.
void AddForms(Program& program);

}  // namespace terravane
