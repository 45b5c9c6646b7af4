/// All reports as one table, a row a test, and the report of the current test.
#pragma once

#include <string_view>

#include "reports/report.h"

namespace terravane {

/// Error 5 for a test without a report.
const Report& ReportOf(Test test);

/// The form that serves a test: "frmCompaction" for both compaction tests. Error 5 for no test.
std::string_view SheetNameOf(Test test);

/// The open sheet of the current test, whichever sheet asks; error 424 where it is not open.
TestSheet& OpenSheet(const Program& program);

/// What the frames of the current test's report are headed with.
const laboratory::Names& TitlesOf(const Program& program);

/// A page of the current test's report about its open sheet; errors 5 and 424 as above.
Printing PrintingOf(const Program& program, DrawingSurface& page, Medium medium, int number = kFirstPage);

}  // namespace terravane
