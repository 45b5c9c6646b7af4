/// The sheet that a report is about. A report follows the current test, never the sheet that asked for it.
#pragma once

#include <string_view>

#include "sheets/pattern/test_sheet.h"

namespace terravane {

/// The form that serves a test: "frmCompaction" for both compaction tests. Error 5 for no test.
std::string_view SheetNameOf(Test test);

/// The open sheet of the current test; error 424 where it is not open.
TestSheet& OpenSheet(const Program& program);

}  // namespace terravane
